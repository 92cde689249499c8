#include "tools/makePatch/ProgramLayout.h"

#include <gtest/gtest.h>

#include "patcher/format/Fields.h"
#include "tests/tools/makePatch/PairsOfFiles.h"

namespace tools {
namespace {

using patch::Bytes;
using patch::MemoryFile;
using patch::References;

TEST(ProgramLayout, OfAnElfFileIsThatOfItsSections) {
    const ProgramLayout layout = programLayoutOf(MemoryFile(tests::program(false, 60)));
    ASSERT_EQ(layout.stretches.size(), 2u);
    EXPECT_EQ(layout.stretches[0].references, References::code);
    EXPECT_EQ(layout.stretches[0].offset, 0x1000u);
    EXPECT_EQ(layout.stretches[0].address, 0x401000u);
    EXPECT_EQ(layout.stretches[1].references, References::words);
    EXPECT_EQ(layout.stretches[1].length, 8 * 60u);
    EXPECT_EQ(layout.lowest, 0x400000u);
}

TEST(ProgramLayout, OfAMachFileIsThatOfItsSections) {
    Bytes file(0x3000);
    const auto put = [&](std::size_t at, std::uint64_t value, std::size_t width) {
        patch::writeLittle(std::span(file).subspan(at, width), value);
    };
    put(0, 0xFEEDFACF, 4);
    put(4, 0x01000007, 4);
    put(16, 1, 4);       // one command
    put(20, 72 + 80, 4); // of this length
    put(32, 0x19, 4);    // a segment
    put(36, 72 + 80, 4);
    put(32 + 24, 0x100000000, 8);
    put(32 + 32, 0x3000, 8);
    put(32 + 48, 0x3000, 8);
    put(32 + 60, 5, 4); // readable, executable
    put(32 + 64, 1, 4); // one section
    const std::size_t section = 32 + 72;
    put(section + 32, 0x100001000, 8);
    put(section + 40, 0x800, 8);
    put(section + 48, 0x1000, 4);
    put(section + 64, 0x80000400, 4);
    const patch::Stretch text{0x1000, 0x800, 0x100001000, References::code};
    ProgramLayout layout = programLayoutOf(MemoryFile(file));
    EXPECT_EQ(layout.stretches, std::vector{text});
    EXPECT_EQ(layout.lowest, 0x100000000u);
    EXPECT_EQ(layout.extent, 0x3000u);

    // The same in a file for several processors, as the second.
    const Bytes head =
        patch::bytesOf(std::string("\xCA\xFE\xBA\xBE\0\0\0\2", 8) +
                       std::string("\1\0\0\x0C\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20) +
                       std::string("\1\0\0\7\0\0\0\3\0\0\x10\0\0\0\x30\0\0\0\0\x0C", 20));
    Bytes several(0x1000);
    std::ranges::copy(head, several.begin());
    several.insert(several.end(), file.begin(), file.end());
    layout = programLayoutOf(MemoryFile(several));
    ASSERT_EQ(layout.stretches.size(), 1u);
    EXPECT_EQ(layout.stretches[0].offset, 0x2000u);
    EXPECT_EQ(layout.stretches[0].address, 0x100001000u);
}

TEST(ProgramLayout, OtherFilesHaveNone) {
    Bytes arm = tests::program(false, 60);
    arm[18] = std::byte{183};
    for (const Bytes& file : {Bytes{},
                              patch::bytesOf("\x7F"
                                             "ELF"),
                              patch::bytesOf("text"), arm})
        EXPECT_TRUE(programLayoutOf(MemoryFile(file)).stretches.empty());
}

TEST(ProgramLayout, TablesThatMakeNoSenseDoNoHarm) {
    const Bytes whole = tests::program(false, 10);
    for (std::size_t at = 0; at < 128; ++at)
        for (const unsigned value : {0u, 0x7Fu, 0xFFu}) {
            Bytes broken = whole;
            broken[at] = static_cast<std::byte>(value);
            std::uint64_t end = 0;
            for (const patch::Stretch& stretch : programLayoutOf(MemoryFile(broken)).stretches) {
                EXPECT_GE(stretch.offset, end);
                end = stretch.offset + stretch.length;
                EXPECT_LE(end, broken.size());
            }
        }
    for (std::size_t length = 0; length < whole.size(); length += 7)
        programLayoutOf(
            MemoryFile(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))));
}

} // namespace
} // namespace tools
