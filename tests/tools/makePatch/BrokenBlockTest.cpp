#include <gtest/gtest.h>

#include "patcher/format/Block.h"
#include "patcher/format/Delta.h"
#include "tests/tools/makePatch/LargestRequest.h"
#include "tests/tools/makePatch/PairsOfFiles.h"
#include "tools/makePatch/BlockMaker.h"
#include "tools/makePatch/DeltaEncoder.h"
#include "tools/makePatch/FrameWriter.h"

namespace tools {
namespace {

using patch::Bytes;
using patch::DeltaHead;
using patch::DeltaStream;
using patch::MemoryFile;
using patch::Method;

constexpr std::uint64_t kHuge = ~std::uint64_t{0};
/// Dictionary, content and block of that method; all else takes much less.
constexpr std::size_t kPromised = patch::kLargestDictionary + (std::size_t{1} << 18);

/// Counts what is made and keeps nothing.
class Counter : public patch::Sink {
  public:
    void write(patch::View bytes) override { made += bytes.size(); }
    std::uint64_t made = 0;
};

/// True when the block is refused; one that is not makes exactly what it must.
bool isRefused(Method method, const Bytes& block, const Bytes& before, std::uint64_t size) {
    const MemoryFile file(block);
    const MemoryFile old(before);
    Counter counter;
    tests::resetLargestRequest();
    bool refused = false;
    try {
        patch::makeContent(method, {.patch = file, .offset = 0, .length = block.size()}, old, size,
                           counter);
        EXPECT_EQ(counter.made, size);
    } catch (const patch::FormatError&) {
        refused = true;
    }
    EXPECT_LE(tests::largestRequest(), kPromised);
    EXPECT_LE(counter.made, size);
    return refused;
}

/// A delta of matches as one likes; the other streams are empty.
struct HandMade {
    std::vector<std::array<std::uint64_t, 3>> matches = {}; ///< extra, length, seek as stored
    Bytes extra = {};
    std::vector<std::uint64_t> gaps = {};
    std::optional<patch::Layout> layout = {};
    std::optional<std::uint64_t> count = {}; ///< of matches, another than there are

    Bytes block() const {
        std::vector<FrameWriter> streams;
        for (std::size_t i = 0; i < patch::kDeltaStreams; ++i)
            streams.emplace_back(3, patch::kDeltaWindowLog);
        const auto stream = [&](DeltaStream which) -> FrameWriter& {
            return streams[static_cast<std::size_t>(which)];
        };
        for (const auto& [extraLength, length, seek] : matches) {
            stream(DeltaStream::extraLengths).varint(extraLength);
            stream(DeltaStream::matchLengths).varint(length);
            stream(DeltaStream::seeks).varint(seek);
        }
        stream(DeltaStream::extra).write(extra);
        for (const std::uint64_t gap : gaps) {
            stream(DeltaStream::gaps).varint(gap);
            stream(DeltaStream::differences).byte(1);
        }
        DeltaHead head;
        head.matches = count.value_or(matches.size());
        head.differences = gaps.size();
        head.layout = layout;
        Bytes frames;
        for (std::size_t i = 0; i < streams.size(); ++i) {
            const Bytes frame = streams[i].finish();
            head.lengths[i] = frame.size();
            frames.insert(frames.end(), frame.begin(), frame.end());
        }
        Bytes block = patch::encodedHead(head);
        block.insert(block.end(), frames.begin(), frames.end());
        return block;
    }
};

const Bytes kOld = tests::randomBytes(1000, 1);

TEST(BrokenBlocks, AHandMadeDeltaThatIsInOrderMakesItsFile) {
    const Bytes extra = patch::bytesOf("abc");
    EXPECT_FALSE(isRefused(Method::delta,
                           HandMade{.matches = {{1, 10, 0}, {0, 5, 19}}, .extra = extra}.block(),
                           kOld, 18));
    EXPECT_FALSE(isRefused(
        Method::delta, HandMade{.matches = {{0, 1000, 0}}, .gaps = {0, 998}}.block(), kOld, 1000));
}

TEST(BrokenBlocks, MatchesOutsideTheOldFileAreRefused) {
    const std::vector<std::array<std::uint64_t, 3>> hostile{
        {0, 10, 1},       // one before the first byte
        {0, 1001, 0},     // longer than it is
        {0, 10, 2 * 991}, // beyond its end
        {0, 10, kHuge},   // the farthest to either side
        {0, 10, kHuge - 1}, {0, kHuge, 0}, {0, 0, 0},
    };
    for (const auto& match : hostile)
        EXPECT_TRUE(isRefused(Method::delta, HandMade{.matches = {match}}.block(), kOld, 2000));
}

TEST(BrokenBlocks, MoreThanTheNewFileIsRefused) {
    const Bytes extra = patch::bytesOf("abc");
    EXPECT_TRUE(isRefused(Method::delta, HandMade{.matches = {{0, 10, 0}}}.block(), kOld, 9));
    EXPECT_TRUE(isRefused(Method::delta,
                          HandMade{.matches = {{kHuge, 10, 0}}, .extra = extra}.block(), kOld, 13));
    EXPECT_TRUE(isRefused(Method::delta, HandMade{.matches = {{0, 10, 0}}, .extra = extra}.block(),
                          kOld, 12));
    EXPECT_TRUE(isRefused(Method::delta, HandMade{.matches = {{0, 10, 0}}, .extra = extra}.block(),
                          kOld, 14));
}

TEST(BrokenBlocks, DifferencesOutsideTheMatchesAreRefused) {
    for (const std::vector<std::uint64_t>& gaps : {std::vector<std::uint64_t>{10}, {9, 0}, {kHuge}})
        EXPECT_TRUE(isRefused(Method::delta,
                              HandMade{.matches = {{0, 10, 0}}, .gaps = gaps}.block(), kOld, 10));
}

TEST(BrokenBlocks, AnotherNumberOfMatchesIsRefused) {
    HandMade delta{.matches = {{0, 10, 0}}};
    for (const std::uint64_t count : {std::uint64_t{0}, std::uint64_t{2}, kHuge >> 9}) {
        delta.count = count;
        EXPECT_TRUE(isRefused(Method::delta, delta.block(), kOld, 10));
    }
    delta.layout = patch::Layout{};
    delta.count = patch::kMostMatches + 1;
    EXPECT_TRUE(isRefused(Method::delta, delta.block(), kOld, 10));
}

TEST(BrokenBlocks, ALayoutMayBeStrangeAndDoesNoHarm) {
    using patch::References;
    for (std::uint8_t references = 0; references <= patch::kMostReferences; ++references)
        for (const std::uint64_t address : {std::uint64_t{0}, kHuge - 5, std::uint64_t{1} << 63})
            for (const std::uint64_t extent : {std::uint64_t{0}, std::uint64_t{1}, kHuge >> 9}) {
                const std::vector<patch::Stretch> stretches{
                    {3, 100, address, static_cast<References>(references)},
                    {103, 0, 0, References::code},
                    {500, 5000, address + 7, static_cast<References>(references)}};
                HandMade delta{.matches = {{0, 1000, 0}}};
                delta.layout = patch::Layout{stretches, stretches, address, extent};
                EXPECT_FALSE(isRefused(Method::delta, delta.block(), kOld, 1000));
            }
}

TEST(BrokenBlocks, AFrameWithAWindowLargerThanPromisedIsRefused) {
    const Bytes content = tests::randomBytes(std::size_t{20} << 20, 1);
    FrameWriter frame(1, patch::kWholeWindowLog + 1);
    frame.write(content);
    EXPECT_TRUE(isRefused(Method::whole, frame.finish(), {}, content.size()));
    FrameWriter proper(1, patch::kWholeWindowLog);
    proper.write(content);
    EXPECT_FALSE(isRefused(Method::whole, proper.finish(), {}, content.size()));
}

class BrokenBlocksOfEachMethod : public ::testing::TestWithParam<Method> {
  protected:
    BrokenBlocksOfEachMethod() {
        block = GetParam() == Method::delta ? deltaOf(MemoryFile(before), MemoryFile(after))
                : GetParam() == Method::dictionary
                    ? packed(after, 3, patch::kWholeWindowLog, before)
                    : packed(after, 3, patch::kWholeWindowLog);
    }
    bool isRefused(const Bytes& bytes, std::uint64_t size) const {
        return tools::isRefused(GetParam(), bytes, before, size);
    }

    const Bytes before = tests::program(false, 60);
    const Bytes after = tests::program(true, 60);
    Bytes block;
};

TEST_P(BrokenBlocksOfEachMethod, CutAnywhereIsRefused) {
    ASSERT_FALSE(isRefused(block, after.size()));
    for (std::size_t length = 0; length < block.size(); ++length)
        EXPECT_TRUE(
            isRefused(Bytes(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(length)),
                      after.size()))
            << length;
}

TEST_P(BrokenBlocksOfEachMethod, WithSomethingBehindIsRefused) {
    block.push_back(std::byte{0});
    EXPECT_TRUE(isRefused(block, after.size()));
}

TEST_P(BrokenBlocksOfEachMethod, ForAnotherSizeIsRefused) {
    for (const std::uint64_t size :
         {std::uint64_t{0}, std::uint64_t{after.size() - 1}, std::uint64_t{after.size() + 1}})
        EXPECT_TRUE(isRefused(block, size)) << size;
}

// A changed byte may stand for other content of the same length, which the digest tells; it must
// do no other harm.
TEST_P(BrokenBlocksOfEachMethod, EachByteChangedIsRefusedOrMakesAFileOfItsSize) {
    std::size_t refused = 0;
    for (std::size_t at = 0; at < block.size(); ++at)
        for (const unsigned change : {1u, 0x80u, 0xFFu}) {
            Bytes broken = block;
            broken[at] ^= static_cast<std::byte>(change);
            refused += isRefused(broken, after.size()) ? 1 : 0;
        }
    EXPECT_GT(refused, 0u);
}

INSTANTIATE_TEST_SUITE_P(Methods, BrokenBlocksOfEachMethod,
                         ::testing::Values(Method::whole, Method::dictionary, Method::delta));

} // namespace
} // namespace tools
