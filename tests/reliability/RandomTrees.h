// Two versions of a folder, made at random from a seed, for the tests of making and applying
// patches: files, links, empty folders, permissions, attributes, and between the versions edits,
// renames, changes of kind, what comes and what goes; and what a user put into an installed copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace tests {

struct Item {
    enum class Kind { folder, file, link };
    Kind kind = Kind::folder;
    unsigned mode = 0755;
    std::string text = {}; ///< a file's bytes, a link's target
    std::map<std::string, std::string> attributes = {};
    bool operator==(const Item&) const = default;
};

/// By relative path; every parent is there as a folder.
using Items = std::map<std::string, Item>;

struct Versions {
    Items before;
    Items after;
    /// What is installed: `before` and what the user added.
    Items installed;
    /// What an update makes of it: `after` and what the user added.
    Items updated;
};

/// Of about `size` items each. Always the same for a seed.
Versions randomVersions(std::uint64_t seed, std::size_t size);

/// Writes them into the folder, which is made. Attributes only where the file system has them.
void build(const Items& items, const std::filesystem::path& folder);

} // namespace tests
