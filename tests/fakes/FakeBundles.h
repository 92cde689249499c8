// ports::Bundles in memory.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "platform/ports/Bundles.h"

namespace fakes {

class FakeBundles final : public ports::Bundles {
  public:
    std::string bundle = "/Installer.app";
    std::string resourceFolder = "/Installer.app/Contents/Resources";
    std::string executable = "/Installer.app/Contents/MacOS/Installer";
    /// Strings by bundle and key.
    std::map<std::pair<std::string, std::string>, std::string> strings;
    /// Arrays of strings by bundle, key of the dictionary and key of the array.
    std::map<std::tuple<std::string, std::string, std::string>, std::vector<std::string>> arrays;

    std::string mainBundle() const override { return bundle; }
    std::string mainResourceFolder() const override { return resourceFolder; }
    std::string mainExecutable() const override { return executable; }

    std::optional<std::string> infoString(const std::string& path, std::string_view key) override {
        const auto found = strings.find({path, std::string(key)});
        return found == strings.end() ? std::nullopt : std::optional(found->second);
    }

    std::vector<std::string> infoStrings(const std::string& path, std::string_view dictionaryKey,
                                         std::string_view arrayKey) override {
        const auto found = arrays.find({path, std::string(dictionaryKey), std::string(arrayKey)});
        return found == arrays.end() ? std::vector<std::string>() : found->second;
    }

    std::vector<std::string> infoStringsOfEach(const std::string& path, std::string_view listKey,
                                               std::string_view arrayKey) override {
        return infoStrings(path, listKey, arrayKey);
    }
};

} // namespace fakes
