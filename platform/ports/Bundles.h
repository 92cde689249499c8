// Bundles: the one that the program runs from, and what an Info.plist says.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

class Bundles {
  public:
    virtual ~Bundles() = default;

    /// The main bundle's own folder ("…/X.app"), absolute, without a trailing "/"; for a program
    /// that lies in no bundle the folder that it lies in.
    virtual std::string mainBundle() const = 0;

    /// Resource folder of the main bundle, absolute, without a trailing "/".
    virtual std::string mainResourceFolder() const = 0;

    /// The main bundle's executable, absolute, links resolved.
    virtual std::string mainExecutable() const = 0;

    /// The string under `key` in the information dictionary (XML or binary Info.plist) of the
    /// bundle at `path`. None when there is no bundle, its dictionary can't be read, the key is
    /// absent or its value is no string. Never throws; a broken file is as good as none.
    virtual std::optional<std::string> infoString(const std::string& path,
                                                  std::string_view key) = 0;

    /// The strings of the array under `arrayKey` in the dictionary under `dictionaryKey` of that
    /// information dictionary; other elements are passed over. Empty when there is none, for
    /// whatever reason.
    virtual std::vector<std::string> infoStrings(const std::string& path,
                                                 std::string_view dictionaryKey,
                                                 std::string_view arrayKey) = 0;

    /// The strings of the arrays under `arrayKey` in all dictionaries of the array under `listKey`
    /// of that information dictionary, in their order; other elements are passed over. Empty when
    /// there is none, for whatever reason.
    virtual std::vector<std::string> infoStringsOfEach(const std::string& path,
                                                       std::string_view listKey,
                                                       std::string_view arrayKey) = 0;
};

} // namespace ports
