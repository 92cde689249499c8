#include "patcher/format/Block.h"

#include <algorithm>
#include <memory>
#include <new>

#include <zstd.h>

#include "patcher/format/Delta.h"
#include "patcher/format/Frame.h"

namespace patch {

namespace {

constexpr std::size_t kPiece = 1 << 18;

/// Calls `fill(span)` for `size` bytes, piece by piece, and writes what it filled in.
template <typename Fill>
void inPieces(std::uint64_t size, Sink& sink, Fill fill) {
    Bytes piece(static_cast<std::size_t>(std::min<std::uint64_t>(size, kPiece)));
    while (size > 0) {
        const auto now =
            std::span(piece).first(static_cast<std::size_t>(std::min<std::uint64_t>(size, kPiece)));
        fill(now);
        sink.write(now);
        size -= now.size();
    }
}

void copyOld(const Source& old, std::uint64_t size, Sink& sink) {
    if (old.size() != size)
        throw FormatError("The old file is not as long as the new one that it becomes.");
    std::uint64_t offset = 0;
    inPieces(size, sink, [&](std::span<std::byte> into) {
        old.read(offset, into);
        offset += into.size();
    });
}

void unpackWhole(const BlockPlace& block, std::uint64_t size, Sink& sink) {
    FrameReader frame(block.patch, block.offset, block.length, kWholeWindowLog);
    inPieces(size, sink, [&](std::span<std::byte> into) { frame.fill(into); });
    frame.finish();
}

void unpackWithDictionary(const BlockPlace& block, const Source& old, std::uint64_t size,
                          Sink& sink) {
    if (std::max(old.size(), size) > kLargestDictionary ||
        block.length > ZSTD_compressBound(kLargestDictionary))
        throw FormatError("A block with a dictionary is larger than it may be.");
    Bytes packed(static_cast<std::size_t>(block.length));
    block.patch.read(block.offset, packed);
    Bytes dictionary(static_cast<std::size_t>(old.size()));
    old.read(0, dictionary);
    Bytes content(static_cast<std::size_t>(size));
    const std::unique_ptr<ZSTD_DCtx, decltype(&ZSTD_freeDCtx)> context(ZSTD_createDCtx(),
                                                                       &ZSTD_freeDCtx);
    if (!context)
        throw std::bad_alloc();
    ZSTD_DCtx_refPrefix(context.get(), dictionary.data(), dictionary.size());
    const std::size_t made = ZSTD_decompressDCtx(context.get(), content.data(), content.size(),
                                                 packed.data(), packed.size());
    if (ZSTD_isError(made) || made != content.size())
        throw FormatError("A block with a dictionary can't be unpacked.");
    sink.write(content);
}

} // namespace

void makeContent(Method method, const BlockPlace& block, const Source& old, std::uint64_t size,
                 Sink& sink) {
    switch (method) {
    case Method::nothing:
        if (size != 0)
            throw FormatError("A file that is not empty has no content.");
        return;
    case Method::old:
        return copyOld(old, size, sink);
    case Method::whole:
        return unpackWhole(block, size, sink);
    case Method::dictionary:
        return unpackWithDictionary(block, old, size, sink);
    case Method::delta:
        return makeFromDelta(block.patch, block.offset, block.length, old, size, sink);
    }
    throw FormatError("A file's content is made in an unknown way.");
}

} // namespace patch
