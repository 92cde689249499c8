#include "tools/makePatch/BlockMaker.h"

#include <algorithm>

#include "patcher/format/Block.h"
#include "tools/makePatch/DeltaEncoder.h"
#include "tools/makePatch/FrameWriter.h"
#include "tools/makePatch/ProgramLayout.h"

namespace tools {

using patch::Bytes;
using patch::Method;
using patch::Source;

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20;
/// A delta of less than one part in so many of the file is not beaten by what knows less of it.
constexpr std::uint64_t kGoodPart = 4;
/// Programs of at least this size go best with a delta; others take little time to try.
constexpr std::uint64_t kLargeProgram = std::uint64_t{128} << 10;

Bytes contentOf(const Source& file) {
    Bytes content(static_cast<std::size_t>(file.size()));
    file.read(0, content);
    return content;
}

Bytes wholeBlock(const Source& fresh, int level) {
    FrameWriter frame(level, patch::kWholeWindowLog);
    Bytes piece(static_cast<std::size_t>(std::min<std::uint64_t>(fresh.size(), kPiece)));
    for (std::uint64_t offset = 0; offset < fresh.size();) {
        const auto now = std::span(piece).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(kPiece, fresh.size() - offset)));
        fresh.read(offset, now);
        frame.write(now);
        offset += now.size();
    }
    return frame.finish();
}

Bytes dictionaryBlock(const Source& base, const Source& fresh, int level) {
    // The window must reach back over the new file to the dictionary's first byte.
    return packed(contentOf(fresh), level, patch::kWholeWindowLog, contentOf(base));
}

void keepSmaller(MadeBlock& best, Method method, Bytes bytes) {
    if (best.bytes.empty() || bytes.size() < best.bytes.size())
        best = {.method = method, .bytes = std::move(bytes)};
}

} // namespace

MadeBlock smallestBlock(const Source* base, const Source& fresh, int level) {
    MadeBlock best;
    if (base) {
        keepSmaller(best, Method::delta, deltaOf(*base, fresh, {.level = level, .window = {}}));
        const bool good = best.bytes.size() * kGoodPart < fresh.size();
        const bool fits = std::max(base->size(), fresh.size()) <= patch::kLargestDictionary;
        const bool goesWithDelta =
            good && fresh.size() >= kLargeProgram && !programLayoutOf(fresh).stretches.empty();
        if (fits && !goesWithDelta)
            keepSmaller(best, Method::dictionary, dictionaryBlock(*base, fresh, level));
        if (best.bytes.size() * kGoodPart < fresh.size())
            return best;
    }
    keepSmaller(best, Method::whole, wholeBlock(fresh, level));
    return best;
}

std::uint64_t memoryFor(std::uint64_t baseSize, std::uint64_t freshSize) {
    // The suffixes take four times the window; the tables of zstd's highest levels come last.
    constexpr std::uint64_t kTables = std::uint64_t{100} << 20;
    const MatchingWindow window;
    return 5 * std::min<std::uint64_t>(baseSize, window.before) +
           std::min<std::uint64_t>(freshSize, window.before) +
           std::min<std::uint64_t>(kTables, 16 * (baseSize + freshSize));
}

} // namespace tools
