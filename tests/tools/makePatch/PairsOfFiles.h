// Pairs of an old and a new file for the tests of deltas, always the same ones.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "patcher/format/Fields.h"
#include "tests/patcher/format/MemoryFile.h"

namespace tests {

using patch::Bytes;

struct Pair {
    std::string name;
    Bytes before;
    Bytes after;
};

inline Bytes randomBytes(std::size_t size, unsigned seed) {
    std::mt19937 random(seed);
    Bytes bytes(size);
    std::ranges::generate(bytes, [&] { return static_cast<std::byte>(random()); });
    return bytes;
}

/// `period` bytes again and again.
inline Bytes repeated(std::string_view period, std::size_t size) {
    Bytes bytes(size);
    for (std::size_t at = 0; at < size; ++at)
        bytes[at] = static_cast<std::byte>(period[at % period.size()]);
    return bytes;
}

inline Bytes edited(Bytes bytes, std::size_t edits, unsigned seed) {
    std::mt19937 random(seed);
    for (std::size_t i = 0; i < edits; ++i) {
        const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(random() % (bytes.size() + 1));
        const Bytes more = randomBytes(random() % 40, static_cast<unsigned>(random()));
        switch (random() % 3) {
        case 0:
            bytes.insert(at, more.begin(), more.end());
            break;
        case 1:
            bytes.erase(at, at + std::min<std::ptrdiff_t>(std::ssize(more), bytes.end() - at));
            break;
        default:
            if (at != bytes.end())
                *at ^= std::byte{0x55};
        }
    }
    return bytes;
}

/// A program for x86-64 as a linker makes it, its functions calling each other and reading data.
/// With `relinked` there are two functions more, so that all else moves and all calls change.
inline Bytes program(bool relinked, std::size_t functions = 1500) {
    constexpr std::size_t kCode = 0x1000;
    constexpr std::uint64_t kAddress = 0x400000;
    std::mt19937 layout(7);
    struct Function {
        unsigned seed;
        std::size_t begin;
        std::size_t length;
    };
    std::vector<Function> all;
    std::vector<std::size_t> known; // indices of those that both versions have
    std::size_t end = kCode;
    for (std::size_t i = 0; i < functions; ++i) {
        if (relinked && (i == functions / 3 || i == functions / 2)) {
            all.push_back({.seed = 90000, .begin = end, .length = 112});
            end += 112;
        }
        known.push_back(all.size());
        all.push_back(
            {.seed = static_cast<unsigned>(i), .begin = end, .length = 48 + 16 * (layout() % 8)});
        end += all.back().length;
    }
    const std::size_t table = end;
    Bytes file(table + 8 * functions);
    const auto put = [&](std::size_t at, std::uint64_t value, std::size_t width) {
        patch::writeLittle(std::span(file).subspan(at, width), value);
    };
    for (const Function& function : all) {
        std::mt19937 random(function.seed);
        for (std::size_t at = function.begin; at < function.begin + function.length; ++at)
            file[at] = static_cast<std::byte>(0x50 + random() % 16);
        for (std::size_t at = 4; at + 12 < function.length; at += 12 + random() % 12) {
            const bool data = random() % 3 == 0;
            const std::size_t index = random() % functions;
            const std::size_t target = data ? table + 8 * index : all[known[index]].begin;
            const std::size_t operand = function.begin + at + (data ? 3 : 1);
            put(function.begin + at, data ? 0x058B48 : 0xE8, data ? 3 : 1);
            put(operand, target - (operand + 4), 4);
        }
    }
    for (std::size_t index = 0; index < functions; ++index)
        put(table + 8 * index, kAddress + all[known[index]].begin, 8);

    const std::string names = std::string("\0.text\0.data\0.shstrtab\0", 23);
    const std::size_t namesAt = file.size();
    const Bytes nameBytes = patch::bytesOf(names);
    file.insert(file.end(), nameBytes.begin(), nameBytes.end());
    file.resize((file.size() + 7) / 8 * 8);
    const std::size_t sections = file.size();
    file.resize(sections + 4 * 64);
    const auto section = [&](std::size_t index, std::uint64_t name, std::uint64_t type,
                             std::uint64_t flags, std::size_t offset, std::size_t length) {
        const std::size_t at = sections + index * 64;
        put(at, name, 4);
        put(at + 4, type, 4);
        put(at + 8, flags, 8);
        put(at + 16, kAddress + offset, 8);
        put(at + 24, offset, 8);
        put(at + 32, length, 8);
    };
    section(1, 1, 1, 6, kCode, table - kCode);
    section(2, 7, 1, 3, table, 8 * functions);
    section(3, 13, 3, 0, namesAt, names.size());
    put(0, 0x464C457F, 4); // ELF, 64 bits, little-endian
    put(4, 0x010102, 3);
    put(16, 2, 2);
    put(18, 62, 2); // x86-64
    put(32, 64, 8);
    put(40, sections, 8);
    put(54, 56, 2);
    put(56, 1, 2);
    put(58, 64, 2);
    put(60, 4, 2);
    put(62, 3, 2);
    put(64, 1, 4); // one segment with all of it
    put(64 + 16, kAddress, 8);
    put(64 + 32, namesAt, 8);
    put(64 + 40, namesAt, 8);
    return file;
}

inline std::vector<Pair> pairsOfFiles() {
    using patch::bytesOf;
    std::vector<Pair> pairs{
        {"one byte from one", bytesOf("a"), bytesOf("b")},
        {"one byte from much", randomBytes(5000, 1), bytesOf("b")},
        {"much from one byte", bytesOf("a"), randomBytes(5000, 1)},
        {"the same", randomBytes(70000, 2), randomBytes(70000, 2)},
        {"nothing in common", randomBytes(70000, 3), randomBytes(80000, 4)},
        {"zeros of another length", Bytes(200000), Bytes(300001)},
        {"a period from zeros", Bytes(100000), repeated("ab", 100000)},
        {"another period", repeated("abc", 100000), repeated("abcabd", 100000)},
        {"a program relinked", program(false), program(true)},
        {"a program cut off", program(true), program(false)},
    };
    Bytes turned = randomBytes(30000, 5);
    std::ranges::reverse(turned);
    pairs.push_back({"reversed", randomBytes(30000, 5), turned});
    Bytes doubled = randomBytes(150000, 6);
    const Bytes once = doubled;
    doubled.insert(doubled.begin() + 70000, once.begin(), once.end());
    pairs.push_back({"twice, one in the other", once, doubled});
    Bytes cut(program(true));
    cut.resize(cut.size() / 2);
    pairs.push_back({"a program from its half", cut, program(false)});
    for (unsigned seed = 0; seed < 12; ++seed) {
        const Bytes text = randomBytes(1 + 9973 * seed, seed);
        pairs.push_back({"edits " + std::to_string(seed), text, edited(text, 3 * seed, seed)});
    }
    const Bytes source = program(false);
    pairs.push_back({"a program edited", source, edited(program(true), 60, 9)});
    return pairs;
}

} // namespace tests
