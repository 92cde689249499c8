// Files that hold one dictionary as a property list, such as the user's preferences. Whoever
// changes a few entries of such a file keeps all others as they are, whatever their keys and types.
// Used by the breadcrumbs. Main thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

/// A dictionary in memory. Texts are UTF-8 without a zero in them.
class PropertyDictionary {
  public:
    virtual ~PropertyDictionary() = default;

    /// The string under `key`; none when the key is absent or its value is no string.
    virtual std::optional<std::string> string(std::string_view key) const = 0;

    /// The strings of the array under `key`; none when the key is absent or its value is no array.
    /// Elements that are no strings are passed over.
    virtual std::optional<std::vector<std::string>> strings(std::string_view key) const = 0;

    /// Sets the value under `key`, in the place of one that is there, else as the last.
    virtual void setString(std::string_view key, std::string_view value) = 0;
    virtual void setStrings(std::string_view key, const std::vector<std::string>& values) = 0;

    /// Takes over all entries of `other`, of whatever type, over those of the same keys. `other`
    /// must come from the same PropertyLists.
    virtual void addEntriesFrom(const PropertyDictionary& other) = 0;
};

/// What reading a file came to.
struct ReadDictionary {
    enum class Outcome {
        missing, ///< there is no such file
        broken,  ///< it can't be read, is no property list, or has no dictionary at its top
        read,
    };
    Outcome outcome = Outcome::missing;
    std::unique_ptr<PropertyDictionary> dictionary; ///< set when read
};

class PropertyLists {
  public:
    virtual ~PropertyLists() = default;

    virtual std::unique_ptr<PropertyDictionary> emptyDictionary() = 0;

    /// Reads an XML or a binary property list. Never throws.
    virtual ReadDictionary readFile(const std::string& path) = 0;

    /// Writes the dictionary as XML, in one step: whoever reads meanwhile sees the old file or the
    /// new one. An existing file keeps its mode, a new one is for its owner alone (0600); a
    /// symbolic link stays and its target is written. False when that fails: the old file is then
    /// as it was and nothing lies beside it. Missing folders are not made.
    virtual bool writeFile(const PropertyDictionary& dictionary, const std::string& path) = 0;

    /// Gives the file at `path` (a symbolic link's target) the first free name of "NAME.damaged",
    /// "NAME.damaged-2" and so on in its folder; answers that path. None when it is no regular file
    /// or can't be renamed; it then stays where it is.
    virtual std::optional<std::string> setAside(const std::string& path) = 0;
};

} // namespace ports
