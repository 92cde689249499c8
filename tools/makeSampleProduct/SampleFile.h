// Files of the samples. For the two makers of samples alone.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tools {

/// Writes a file, its folders too. Throws std::runtime_error naming the path when that failed.
void writeSample(const std::filesystem::path& path, std::string_view text);

/// The text with every "@NAME@" replaced.
std::string replaced(std::string_view text, std::string_view mark, std::string_view value);

/// Text that packs as real content does: repetitive, but not all the same.
std::string citationStyle(std::string_view field, int number);

} // namespace tools
