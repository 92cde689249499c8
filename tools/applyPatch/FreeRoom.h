// Whether a volume has room for what is to be written. Used before anything is.
#pragma once

#include <cstdint>
#include <string>

namespace tools {

/// Bytes that a file of `size` takes in blocks of `block` bytes.
inline std::uint64_t inBlocks(std::uint64_t size, std::uint64_t block) {
    return (size + block - 1) / block * block;
}

/// The size of the blocks of the volume that `folder` is on. Throws std::system_error.
std::uint64_t blockSize(int folder);

/// Throws ApplyError, naming `path` and what is missing, unless the volume has so much room for
/// this user, and some more for the folders' own growth.
void requireRoom(int folder, const std::string& path, std::uint64_t bytes, std::uint64_t entries);

} // namespace tools
