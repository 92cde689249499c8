// What a copy asks about trees before it begins. Used by TreeCopy alone.
#pragma once

#include <cstdint>
#include <string>

#include <sys/stat.h>

namespace tools {

bool areSame(const struct stat& a, const struct stat& b);

/// Whether `path`, as far as it exists, is the folder or lies inside it.
bool isInside(const std::string& path, const struct stat& folder);

/// Bytes of all plain files below the open folder, for the progress; what can't be read counts
/// nothing.
std::uint64_t sizeOfTree(int top);

} // namespace tools
