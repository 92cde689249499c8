// Byte images in tests: written as hexadecimal text, damaged in every way.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "platform/formats/AppleDouble.h"
#include "tests/support/TemporaryFolder.h"

namespace formats::testing {

/// "00 05 1607" as four bytes; blanks and line ends don't count.
inline Bytes hex(std::string_view text) {
    Bytes bytes;
    std::string pair;
    for (const char c : text) {
        if (c == ' ' || c == '\n')
            continue;
        pair += c;
        if (pair.size() == 2) {
            bytes.push_back(static_cast<std::byte>(std::strtoul(pair.c_str(), nullptr, 16)));
            pair.clear();
        }
    }
    return bytes;
}

inline Bytes bytesOf(std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

inline void writeFile(const std::string& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

inline Bytes readFile(const std::string& path) {
    return bytesOf(tests::contentsOf(path));
}

inline Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// `image` with the bytes from offset `at` replaced by `to`.
inline Bytes changed(Bytes image, std::size_t at, const Bytes& to) {
    for (const std::byte byte : to)
        image.at(at++) = byte;
    return image;
}

/// Calls `check` with each proper prefix of `image`, in a block of memory that ends with it, so
/// that the sanitizer sees a read past the end.
template <typename Check>
void forEachTruncation(const Bytes& image, Check check) {
    for (std::size_t length = 0; length < image.size(); ++length) {
        const auto block = std::make_unique<std::byte[]>(length);
        std::copy_n(image.begin(), length, block.get());
        check(std::span<const std::byte>(block.get(), length));
    }
}

inline Bytes randomBytes(std::mt19937& random, std::size_t most) {
    Bytes bytes(random() % (most + 1));
    for (std::byte& byte : bytes)
        byte = static_cast<std::byte>(random());
    return bytes;
}

} // namespace formats::testing
