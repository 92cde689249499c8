#include "tools/makePatch/FrameWriter.h"

#include <new>
#include <stdexcept>
#include <string>

#include <zstd.h>

#include "patcher/format/Fields.h"

namespace tools {

using patch::Bytes;
using patch::View;

namespace {

/// Content of up to this is packed when all of it is known, which makes smaller frames and takes
/// tables of its size only.
constexpr std::size_t kKeptBack = std::size_t{4} << 20;

struct Context {
    Context(int level, int windowLog) : state(ZSTD_createCCtx()) {
        if (!state)
            throw std::bad_alloc();
        set(ZSTD_c_compressionLevel, level);
        if (windowLog > 0)
            set(ZSTD_c_windowLog, windowLog);
    }
    ~Context() { ZSTD_freeCCtx(state); }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    void set(ZSTD_cParameter parameter, int value) {
        checked(ZSTD_CCtx_setParameter(state, parameter, value));
    }
    static std::size_t checked(std::size_t result) {
        if (ZSTD_isError(result))
            throw std::runtime_error(std::string("The content can't be packed: ") +
                                     ZSTD_getErrorName(result) + ".");
        return result;
    }

    ZSTD_CCtx* state;
};

} // namespace

struct FrameWriter::Packer : Context {
    using Context::Context;
};

FrameWriter::FrameWriter(int level, int windowLog) : m_level(level), m_windowLog(windowLog) {}
FrameWriter::~FrameWriter() = default;
FrameWriter::FrameWriter(FrameWriter&&) noexcept = default;

void FrameWriter::write(View bytes) {
    while (!bytes.empty()) {
        if (m_waiting.size() == kKeptBack)
            pack(false);
        const View now = bytes.first(std::min(bytes.size(), kKeptBack - m_waiting.size()));
        m_waiting.insert(m_waiting.end(), now.begin(), now.end());
        bytes = bytes.subspan(now.size());
    }
}

void FrameWriter::byte(std::uint8_t value) {
    if (m_waiting.size() == kKeptBack)
        pack(false);
    m_waiting.push_back(std::byte{value});
}

void FrameWriter::varint(std::uint64_t value) {
    for (; value >= 0x80; value >>= 7)
        byte(static_cast<std::uint8_t>(value | 0x80));
    byte(static_cast<std::uint8_t>(value));
}

void FrameWriter::signedVarint(std::int64_t value) {
    varint((static_cast<std::uint64_t>(value) << 1) ^ static_cast<std::uint64_t>(value >> 63));
}

void FrameWriter::pack(bool end) {
    if (!m_packer)
        m_packer = std::make_unique<Packer>(m_level, m_windowLog);
    ZSTD_inBuffer input{m_waiting.data(), m_waiting.size(), 0};
    Bytes room(ZSTD_CStreamOutSize());
    for (bool done = false; !done;) {
        ZSTD_outBuffer output{room.data(), room.size(), 0};
        const std::size_t left = Context::checked(ZSTD_compressStream2(
            m_packer->state, &output, &input, end ? ZSTD_e_end : ZSTD_e_continue));
        m_packed.insert(m_packed.end(), room.begin(),
                        room.begin() + static_cast<std::ptrdiff_t>(output.pos));
        done = end ? left == 0 : input.pos == input.size;
    }
    m_waiting.clear();
}

Bytes FrameWriter::finish() {
    if (m_packer)
        pack(true);
    else if (!m_waiting.empty())
        m_packed = packed(m_waiting, m_level, m_windowLog);
    m_waiting = {};
    m_packer.reset();
    return std::move(m_packed);
}

Bytes packed(View content, int level, int windowLog, View dictionary) {
    const Context context(level, windowLog);
    if (!dictionary.empty())
        Context::checked(ZSTD_CCtx_refPrefix(context.state, dictionary.data(), dictionary.size()));
    Bytes bytes(ZSTD_compressBound(content.size()));
    bytes.resize(Context::checked(
        ZSTD_compress2(context.state, bytes.data(), bytes.size(), content.data(), content.size())));
    return bytes;
}

} // namespace tools
