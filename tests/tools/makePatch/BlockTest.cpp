#include "patcher/format/Block.h"

#include <gtest/gtest.h>

#include "tests/tools/makePatch/PairsOfFiles.h"
#include "tools/makePatch/BlockMaker.h"
#include "tools/makePatch/DeltaEncoder.h"
#include "tools/makePatch/FrameWriter.h"

namespace tools {
namespace {

using patch::Bytes;
using patch::MemoryFile;
using patch::Method;
using tests::Pair;

/// The content that a block makes of an old file. Bytes before it are no part of it.
Bytes contentFrom(Method method, const Bytes& block, const Bytes& before, std::uint64_t size) {
    MemoryFile file(patch::bytesOf("what stands before"));
    const std::uint64_t offset = file.size();
    file.write(block);
    file.write(patch::bytesOf("and behind"));
    MemoryFile made;
    patch::makeContent(method, {.patch = file, .offset = offset, .length = block.size()},
                       MemoryFile(before), size, made);
    return made.bytes;
}

class EveryPair : public ::testing::TestWithParam<Pair> {};

TEST_P(EveryPair, ComesBackFromADelta) {
    const Pair& pair = GetParam();
    const Bytes delta = deltaOf(MemoryFile(pair.before), MemoryFile(pair.after));
    EXPECT_EQ(contentFrom(Method::delta, delta, pair.before, pair.after.size()), pair.after);
}

TEST_P(EveryPair, ComesBackFromADeltaMadeInSmallWindows) {
    const Pair& pair = GetParam();
    const DeltaSettings settings{.level = 3, .window = {.before = 8192, .after = 4096}};
    const Bytes delta = deltaOf(MemoryFile(pair.before), MemoryFile(pair.after), settings);
    EXPECT_EQ(contentFrom(Method::delta, delta, pair.before, pair.after.size()), pair.after);
}

TEST_P(EveryPair, ComesBackFromWhatIsSmallest) {
    const Pair& pair = GetParam();
    const MemoryFile before(pair.before);
    const MemoryFile after(pair.after);
    for (const patch::Source* base :
         {static_cast<const patch::Source*>(&before), static_cast<const patch::Source*>(nullptr)}) {
        const MadeBlock block = smallestBlock(base, after, 3);
        EXPECT_TRUE(base || block.method == Method::whole);
        EXPECT_EQ(contentFrom(block.method, block.bytes, pair.before, pair.after.size()),
                  pair.after);
    }
}

TEST_P(EveryPair, ComesBackFromADictionary) {
    const Pair& pair = GetParam();
    const Bytes block = packed(pair.after, 3, patch::kWholeWindowLog, pair.before);
    EXPECT_EQ(contentFrom(Method::dictionary, block, pair.before, pair.after.size()), pair.after);
}

INSTANTIATE_TEST_SUITE_P(Blocks, EveryPair, ::testing::ValuesIn(tests::pairsOfFiles()),
                         [](const auto& each) {
                             std::string name = each.param.name;
                             std::ranges::replace_if(
                                 name, [](unsigned char c) { return !std::isalnum(c); }, '_');
                             return name;
                         });

TEST(Blocks, AnEmptyFileNeedsNoBlock) {
    EXPECT_TRUE(contentFrom(Method::nothing, {}, {}, 0).empty());
    EXPECT_THROW(contentFrom(Method::nothing, {}, {}, 1), patch::FormatError);
}

TEST(Blocks, AnOldFileIsCopiedOnlyAtItsOwnLength) {
    const Bytes old = tests::randomBytes(600000, 1);
    EXPECT_EQ(contentFrom(Method::old, {}, old, old.size()), old);
    EXPECT_THROW(contentFrom(Method::old, {}, old, old.size() - 1), patch::FormatError);
}

TEST(Blocks, ARelinkedProgramTakesAQuarterOfWhatItTakesWithoutForetelling) {
    const Bytes before = tests::program(false);
    const Bytes after = tests::program(true);
    const Bytes foretold = deltaOf(MemoryFile(before), MemoryFile(after));
    // The same bytes, but nothing says that they are a program.
    Bytes plainBefore = before;
    Bytes plainAfter = after;
    plainBefore[0] = plainAfter[0] = std::byte{0};
    const Bytes plain = deltaOf(MemoryFile(plainBefore), MemoryFile(plainAfter));
    EXPECT_EQ(foretold[0], std::byte{1});
    EXPECT_EQ(plain[0], std::byte{0});
    EXPECT_LT(4 * foretold.size(), plain.size());
}

TEST(Blocks, TheSameFilesGiveTheSameDelta) {
    const MemoryFile before(tests::program(false));
    const MemoryFile after(tests::program(true));
    EXPECT_EQ(deltaOf(before, after), deltaOf(before, after));
}

TEST(Blocks, ALargerFileIsNotPackedWithADictionary) {
    const Bytes large(patch::kLargestDictionary + 1);
    const Bytes block = packed(large, 1, patch::kWholeWindowLog);
    EXPECT_THROW(contentFrom(Method::dictionary, block, {}, large.size()), patch::FormatError);
    EXPECT_EQ(contentFrom(Method::whole, block, {}, large.size()), large);
}

TEST(Blocks, AFrameDoesNotDependOnThePiecesItWasWrittenIn) {
    const Bytes content = tests::randomBytes(9 << 20, 3);
    const auto inPieces = [&](std::size_t piece) {
        FrameWriter frame(1, patch::kWholeWindowLog);
        for (std::size_t at = 0; at < content.size(); at += piece)
            frame.write(patch::View(content).subspan(at, std::min(piece, content.size() - at)));
        return frame.finish();
    };
    EXPECT_EQ(inPieces(12345), inPieces(content.size()));
}

} // namespace
} // namespace tools
