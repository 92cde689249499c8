// Unpacks one zstd frame that lies in a patch, piece by piece. Used by the blocks' decoders; never
// asks for more memory than the window it is told.
#pragma once

#include <cstdint>
#include <memory>

#include "patcher/format/Bytes.h"

namespace patch {

class FrameReader {
  public:
    /// The frame takes `length` bytes of `patch` from `offset` on; with none there is nothing in
    /// it. Frames with a window of more than 2^windowLog bytes are refused. `patch` must outlive
    /// the reader. Everything throws FormatError for what is no such frame.
    FrameReader(const Source& patch, std::uint64_t offset, std::uint64_t length, int windowLog);
    ~FrameReader();
    FrameReader(FrameReader&&) noexcept;

    /// Fills `into`.
    void fill(std::span<std::byte> into);
    std::uint8_t byte();
    std::uint64_t varint();
    std::int64_t signedVarint();
    /// All must have been read: throws when there is more, in the frame or behind it.
    void finish();

  private:
    struct State;
    std::size_t unpack(std::span<std::byte> into);
    void refill();

    std::unique_ptr<State> m_state;
    const std::byte* m_next = nullptr; ///< unpacked ahead for what is read byte by byte
    const std::byte* m_end = nullptr;
};

inline std::uint8_t FrameReader::byte() {
    if (m_next == m_end)
        refill();
    return static_cast<std::uint8_t>(*m_next++);
}

} // namespace patch
