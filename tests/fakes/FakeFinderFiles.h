// ports::FinderFiles in memory: a file is what a test put into `items`.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports/FinderFiles.h"

namespace fakes {

class FakeFinderFiles final : public ports::FinderFiles {
  public:
    static constexpr int kNotFound = -43;
    static constexpr int kExists = -48;

    std::map<std::string, ports::FinderInformation> items;
    /// Resource forks by the files that have one.
    std::map<std::string, std::vector<std::byte>> forks;
    /// The record of each alias file that was made.
    std::map<std::string, std::vector<std::byte>> aliases;
    /// Folder and icon file of each `setFolderIcon`, in order.
    std::vector<std::pair<std::string, std::string>> icons;
    bool givesEmptyRecords = false;
    /// Answers of the operations of these names instead of success ("createAliasFile").
    std::map<std::string, int> errors;
    bool setsIcons = true;

    int resolve(const std::string& path) override {
        return errorOf("resolve", items.contains(path) ? 0 : kNotFound);
    }

    ReadInformation finderInformation(const std::string& path) override {
        const auto item = items.find(path);
        const int error = errorOf("finderInformation", item == items.end() ? kNotFound : 0);
        return error == 0 ? ReadInformation{0, item->second} : ReadInformation{error, {}};
    }

    std::vector<std::byte> resourceFork(const std::string& path) override {
        const auto fork = forks.find(path);
        return fork == forks.end() ? std::vector<std::byte>() : fork->second;
    }

    std::vector<std::byte> aliasRecord(const std::string& target) override {
        std::vector<std::byte> record;
        if (!givesEmptyRecords)
            for (const char c : target)
                record.push_back(static_cast<std::byte>(c));
        return record;
    }

    int createAliasFile(const std::string& path, const std::vector<std::byte>& record) override {
        const int error = errorOf("createAliasFile", items.contains(path) ? kExists : 0);
        if (error == 0) {
            items[path] = {};
            aliases[path] = record;
        }
        return error;
    }

    int setFinderInformation(const std::string& path,
                             const ports::FinderInformation& information) override {
        const int error = errorOf("setFinderInformation", items.contains(path) ? 0 : kNotFound);
        if (error == 0)
            items[path] = information;
        return error;
    }

    bool setFolderIcon(const std::string& folder, const std::string& icnsFile) override {
        icons.emplace_back(folder, icnsFile);
        return setsIcons;
    }

  private:
    int errorOf(const std::string& operation, int otherwise) const {
        const auto error = errors.find(operation);
        return error == errors.end() ? otherwise : error->second;
    }
};

} // namespace fakes
