// ports::Applications without processes.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "cp/CaseFolding.h"
#include "platform/ports/Applications.h"
#include "platform/ports/PlatformError.h"

namespace fakes {

class FakeApplications final : public ports::Applications {
  public:
    /// Identifiers of what runs.
    std::set<std::string, std::less<>> running;
    /// Bundles that can be launched; with `launchesAll` every one.
    std::set<std::string> launchable;
    bool launchesAll = true;
    /// Installed bundles by their identifiers; with `throwsForPaths` the question fails.
    std::map<std::string, std::vector<std::string>, std::less<>> installed;
    bool throwsForPaths = false;
    /// What opens documents, by their extensions in lower case ("enl"); none for others.
    std::map<std::string, std::vector<std::string>, std::less<>> openers;
    /// Every identifier and document that was asked for and every path that was launched, in order.
    std::vector<std::string> asked;
    std::vector<std::string> documents;
    std::vector<std::string> launched;

    bool isRunning(std::string_view bundleIdentifier) override {
        asked.emplace_back(bundleIdentifier);
        return running.contains(bundleIdentifier);
    }

    std::vector<std::string> pathsFor(std::string_view bundleIdentifier) override {
        if (throwsForPaths)
            throw ports::PlatformError("no registry");
        const auto found = installed.find(bundleIdentifier);
        return found == installed.end() ? std::vector<std::string>() : found->second;
    }

    std::optional<std::vector<std::string>> pathsForDocument(std::string_view document) override {
        documents.emplace_back(document);
        const auto dot = document.rfind('.');
        if (dot == std::string_view::npos)
            return std::nullopt;
        const auto found = openers.find(Corvaldine::CP::case_folded(document.substr(dot + 1)));
        return found == openers.end() ? std::nullopt : std::optional(found->second);
    }

    bool launch(const std::string& path) override {
        if (!launchesAll && !launchable.contains(path))
            return false;
        launched.push_back(path);
        return true;
    }
};

} // namespace fakes
