// ports::Bundles in memory.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/ports/Bundles.h"

namespace fakes {

class FakeBundles final : public ports::Bundles {
  public:
    std::string resourceFolder = "/Installer.app/Contents/Resources";
    std::string executable = "/Installer.app/Contents/MacOS/Installer";
    /// Strings by bundle and key.
    std::map<std::pair<std::string, std::string>, std::string> strings;

    std::string mainResourceFolder() const override { return resourceFolder; }
    std::string mainExecutable() const override { return executable; }

    std::optional<std::string> infoString(const std::string& path, std::string_view key) override {
        const auto found = strings.find({path, std::string(key)});
        return found == strings.end() ? std::nullopt : std::optional(found->second);
    }
};

} // namespace fakes
