// Resource forks as bytes written down by hand, for files that programs of another time made: the
// fork of an application that is a single file, and the AppleDouble file that holds it beside that
// file. Written from the formats' descriptions (Inside Macintosh: More Macintosh Toolbox, and
// RFC 1740), so that the program's reader meets bytes that its own writer did not make.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/xattr.h>

namespace tests {

/// Big-endian, in so many bytes.
inline std::string bigEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xFF);
    return text;
}

/// A fork with one resource, 'vers' number 1, that holds these bytes.
inline std::string forkWithVersion(const std::string& version) {
    const std::string data = bigEndian(static_cast<std::uint32_t>(version.size()), 4) + version;
    const auto mapAt = static_cast<std::uint32_t>(256 + data.size());
    const std::string references = bigEndian(1, 2) + bigEndian(0xFFFF, 2) + // number, no name
                                   bigEndian(0, 4) + bigEndian(0, 4);       // data at its start
    const std::string types = bigEndian(0, 2) + "vers" + bigEndian(0, 2) +  // one of each, less one
                              bigEndian(2 + 8, 2);                          // behind this list
    const std::string map = std::string(16 + 4 + 2 + 2, '\0') + bigEndian(28, 2) +
                            bigEndian(static_cast<std::uint32_t>(28 + 10 + 12), 2) + types +
                            references;
    return bigEndian(256, 4) + bigEndian(mapAt, 4) +
           bigEndian(static_cast<std::uint32_t>(data.size()), 4) +
           bigEndian(static_cast<std::uint32_t>(map.size()), 4) + std::string(240, '\0') + data +
           map;
}

/// Where the header of such a fork says how far away its parts are and how long.
enum class ForkField : std::size_t { dataAt = 0, mapAt = 4, dataLength = 8, mapLength = 12 };

inline std::string withField(std::string fork, ForkField field, std::uint32_t value) {
    return fork.replace(static_cast<std::size_t>(field), 4, bigEndian(value, 4));
}

inline std::string appleDoubleAround(const std::string& fork) {
    const std::string finderInformation = "APPLMSWD" + std::string(24, '\0');
    return bigEndian(0x00051607, 4) + bigEndian(0x00020000, 4) + std::string(16, '\0') +
           bigEndian(2, 2) + bigEndian(9, 4) + bigEndian(50, 4) + bigEndian(32, 4) +
           bigEndian(2, 4) + bigEndian(82, 4) +
           bigEndian(static_cast<std::uint32_t>(fork.size()), 4) + finderInformation + fork;
}

/// A single file whose fork stands beside it.
inline void writeClassicFile(const std::filesystem::path& file, const std::string& fork) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "Joy!peffpwpc";
    std::ofstream(file.parent_path() / ("._" + file.filename().string()), std::ios::binary)
        << appleDoubleAround(fork);
}

/// One whose fork is an attribute of it; false where the file system keeps no such attributes.
[[nodiscard]] inline bool writeClassicFileWithAttribute(const std::filesystem::path& file,
                                                        const std::string& fork) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "Joy!peffpwpc";
    return ::setxattr(file.c_str(), "user.com.apple.ResourceFork", fork.data(), fork.size(), 0) ==
           0;
}

} // namespace tests
