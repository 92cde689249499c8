#include "patcher/format/Frame.h"

#include <algorithm>
#include <array>
#include <new>

#include <zstd.h>

namespace patch {

namespace {

constexpr std::size_t kPackedPiece = 1 << 14;
constexpr std::size_t kUnpackedPiece = 1 << 12;

[[noreturn]] void refuse() {
    throw FormatError("A block of the patch can't be unpacked.");
}

} // namespace

struct FrameReader::State {
    State(const Source& source, std::uint64_t begin, std::uint64_t bytes)
        : patch(source), offset(begin), left(bytes), ended(bytes == 0) {}
    ~State() { ZSTD_freeDCtx(context); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    const Source& patch;
    std::uint64_t offset;
    std::uint64_t left; ///< in the patch
    bool ended;         ///< the frame is complete
    ZSTD_DCtx* context = nullptr;
    ZSTD_inBuffer input{nullptr, 0, 0};
    std::array<std::byte, kPackedPiece> packed;
    std::array<std::byte, kUnpackedPiece> ahead;
};

FrameReader::FrameReader(const Source& patch, std::uint64_t offset, std::uint64_t length,
                         int windowLog)
    : m_state(std::make_unique<State>(patch, offset, length)) {
    if (length == 0)
        return;
    m_state->context = ZSTD_createDCtx();
    if (!m_state->context)
        throw std::bad_alloc();
    ZSTD_DCtx_setParameter(m_state->context, ZSTD_d_windowLogMax, windowLog);
}

FrameReader::~FrameReader() = default;
FrameReader::FrameReader(FrameReader&&) noexcept = default;

// Less than all only at the frame's end.
std::size_t FrameReader::unpack(std::span<std::byte> into) {
    State& state = *m_state;
    ZSTD_outBuffer output{into.data(), into.size(), 0};
    while (output.pos < output.size && !state.ended) {
        if (state.input.pos == state.input.size && state.left > 0) {
            const auto now =
                static_cast<std::size_t>(std::min<std::uint64_t>(state.left, kPackedPiece));
            state.patch.read(state.offset, std::span(state.packed).first(now));
            state.offset += now;
            state.left -= now;
            state.input = {state.packed.data(), now, 0};
        }
        const std::size_t produced = output.pos;
        const std::size_t taken = state.input.pos;
        const std::size_t result = ZSTD_decompressStream(state.context, &output, &state.input);
        if (ZSTD_isError(result))
            refuse();
        state.ended = result == 0;
        if (!state.ended && state.left == 0 && output.pos == produced && state.input.pos == taken)
            refuse();
    }
    return output.pos;
}

void FrameReader::refill() {
    const std::size_t length = unpack(m_state->ahead);
    if (length == 0)
        throw FormatError("A block of the patch ends too early.");
    m_next = m_state->ahead.data();
    m_end = m_next + length;
}

void FrameReader::fill(std::span<std::byte> into) {
    const auto ready = std::min(into.size(), static_cast<std::size_t>(m_end - m_next));
    std::copy_n(m_next, ready, into.begin());
    m_next += ready;
    if (unpack(into.subspan(ready)) != into.size() - ready)
        throw FormatError("A block of the patch ends too early.");
}

std::uint64_t FrameReader::varint() {
    std::uint64_t value = 0;
    for (unsigned shift = 0; shift < 64; shift += 7) {
        const std::uint64_t next = byte();
        if (shift == 63 && next > 1)
            break;
        value |= (next & 0x7F) << shift;
        if (next < 0x80)
            return value;
    }
    throw FormatError("A number in a block of the patch is too large.");
}

std::int64_t FrameReader::signedVarint() {
    const std::uint64_t value = varint();
    return static_cast<std::int64_t>((value >> 1) ^ (~(value & 1) + 1));
}

void FrameReader::finish() {
    std::byte more;
    if (m_next != m_end || unpack(std::span(&more, 1)) != 0 || m_state->left != 0 ||
        m_state->input.pos != m_state->input.size)
        throw FormatError("A block of the patch has more than belongs into it.");
}

} // namespace patch
