// The controller over a disk of a test's own, for the tests of the install methods and their
// driver: a folder for the user, one as the system's root, and the installation with its
// application. Tools are fakes, unless a test lets others do the work.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "engine/LogText.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/LaunchModes.h"
#include "wizard/ecController.h"

namespace tests {

class MethodsStage {
  public:
    explicit MethodsStage(std::string rules = {})
        : components(std::move(rules)),
          controller(preparedHost(), components.rules, components.root) {
        controller.useTables(kRows, {});
        controller.m_mode = ec::launch::kCustomize;
    }
    MethodsStage(const MethodsStage&) = delete;
    MethodsStage& operator=(const MethodsStage&) = delete;

    TemporaryFolder folder;
    fakes::FakeHost host;
    Components components;
    /// The log's lines and what a test adds to them, in order.
    std::vector<std::string> events;
    ec::ecController controller;

    std::string home(const std::string& name) const { return folder.path("home/" + name); }
    std::string system(const std::string& name) const { return folder.path("disk/" + name); }
    std::string temporary(const std::string& name) const { return folder.path("tmp/" + name); }
    /// Beside the application.
    std::string beside(const std::string& name) const { return folder.path(kProduct + name); }
    std::string bundle() const { return host.bundles.bundle; }
    /// In the content bundle, as the log writes it.
    std::string content(const std::string& name) const {
        return folder.path(kProduct + "Product-Support/Content.bundle/" + name);
    }

    /// Writes a file of the content: "Filters/Law/one.filter".
    void writeContent(const std::string& name, const std::string& text = "content") const {
        folder.write(kProduct + "Product-Support/Content.bundle/" + name, text);
    }
    void writeBeside(const std::string& name, const std::string& text = "content") const {
        folder.write(kProduct + name, text);
    }
    /// The two ready-made bundles.
    std::string writeImporter() const {
        folder.write(kProduct + "Installer.app/Contents/Library/Spotlight/Scrivel.mdimporter/Info",
                     "importer");
        return bundle() + "/Contents/Library/Spotlight/Scrivel.mdimporter";
    }
    std::string writeService(const std::string& ending = {}) const {
        writeBeside("Services/SVService.app" + ending + "/Info", "service");
        return beside("Services/SVService.app");
    }

    /// What was run as the user, and as administrator.
    std::vector<std::string> run() const { return texts(host.tools.calls); }
    std::vector<std::string> runAsAdministrator() const { return texts(host.administrator.calls); }
    /// The log's lines since the last question.
    std::vector<std::string> logged() {
        std::vector<std::string> lines = host.logged();
        host.streams.appended.clear();
        return lines;
    }
    void refuseRights() { host.administrator.rightsError = ports::Administrator::kDenied; }
    /// Every tool of that name fails as the user.
    void fail(const std::string& tool) {
        host.tools.handler = [tool](const ports::ToolCall& call) {
            return fakes::FakeTools::Answer{.status = call.tool.ends_with(tool) ? 1 : 0};
        };
    }

  private:
    static inline const std::string kProduct = "Scrivel 21/";
    static constexpr std::array<ec::StepRow, 6> kRows{
        {{.page = 6}, {.page = 10}, {.page = 11}, {.page = 12}, {.page = 13}, {}}};

    static std::vector<std::string> texts(const std::vector<ports::ToolCall>& calls) {
        std::vector<std::string> all;
        for (const ports::ToolCall& call : calls)
            all.push_back(call.tool + " " + ec::joined(call.arguments));
        return all;
    }

    ports::Host preparedHost() {
        for (const char* name : {"home", "disk", "tmp", "Scrivel 21/Installer.app"})
            std::filesystem::create_directories(folder.path(name));
        host.places = {.root = folder.path("disk"),
                       .home = folder.path("home"),
                       .temporary = folder.path("tmp")};
        host.bundles.bundle = folder.path(kProduct + "Installer.app");
        host.bundles.resourceFolder = bundle() + "/Contents/Resources";
        host.watchers.logged = [this](std::string_view line) { events.emplace_back(line); };
        return host.host();
    }
};

} // namespace tests
