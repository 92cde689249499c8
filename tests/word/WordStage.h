// The wizard's controller over fakes, in a root of the test's own with Words in it: folders on disk
// whose versions the pretended bundles tell. For tests of the facets that handle Word.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/ecController.h"

namespace tests {

class WordStage : public testing::Test {
  protected:
    using Texts = std::vector<std::string>;

    TemporaryFolder folder;
    fakes::FakeHost host;
    Components components;
    std::optional<ec::ecController> controller;
    /// The startup folder that current Words share.
    std::string shared;

    void SetUp() override {
        host.places.root = folder.path();
        std::filesystem::create_directories(folder.path("Applications"));
        host.bundles.bundle = folder.path("disk/Installer.app");
        host.bundles.resourceFolder = folder.path("disk/Installer.app/Contents/Resources");
        shared = host.places.system(ec::kSharedStartupFolder);
        controller.emplace(host.host(), components.rules, components.root);
    }

    /// Makes a Word that the host knows; answers its path.
    std::string word(const std::string& name, const std::string& version) {
        std::string path = wordUnknown("Applications/" + name, version);
        host.applications.installed["com.microsoft.Word"].push_back(path);
        return path;
    }
    /// Makes one that it does not know.
    std::string wordUnknown(const std::string& name, const std::string& version) {
        std::string path = folder.path(name);
        std::filesystem::create_directories(path);
        host.bundles.strings[{path, "CFBundleShortVersionString"}] = version;
        return path;
    }
    /// Makes a folder; answers its path.
    std::string made(const std::string& name) {
        std::string path = folder.path(name);
        std::filesystem::create_directories(path);
        return path;
    }
    void remember(const Texts& records) {
        crumbsFile()["Word"] = fakes::arrayProperty(records);
        controller->readBreadcrumbs();
    }
    /// The breadcrumbs as they are in the file.
    Texts remembered() { return crumbsFile()["Word"].texts; }
    fakes::FakeProperties& crumbsFile() {
        return host.propertyLists.files[host.places.expandTilde(ec::kBreadcrumbsFile)];
    }
    /// The log's lines since the last call.
    Texts logged() {
        Texts lines = host.logged();
        host.streams.appended.clear();
        return lines;
    }
    /// The tools' command lines since the last call.
    Texts toolCalls() {
        Texts lines;
        for (const ports::ToolCall& call : std::exchange(host.tools.calls, {}))
            lines.push_back(call.tool + " " + ec::joined(call.arguments));
        return lines;
    }
};

} // namespace tests
