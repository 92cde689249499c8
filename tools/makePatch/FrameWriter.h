// Packs bytes that come piece by piece into one zstd frame, as patch::FrameReader reads it. Used
// for the streams of blocks. The frame depends on the bytes alone, not on the pieces.
#pragma once

#include <cstdint>
#include <memory>

#include "patcher/format/Bytes.h"

namespace tools {

class FrameWriter {
  public:
    FrameWriter(int level, int windowLog);
    ~FrameWriter();
    FrameWriter(FrameWriter&&) noexcept;

    void write(patch::View bytes);
    void byte(std::uint8_t value);
    void varint(std::uint64_t value);
    void signedVarint(std::int64_t value);

    /// The frame; nothing at all where nothing was written. The writer is of no use afterwards.
    patch::Bytes finish();

  private:
    struct Packer;
    void pack(bool end);

    int m_level;
    int m_windowLog;
    patch::Bytes m_waiting;
    patch::Bytes m_packed;
    std::unique_ptr<Packer> m_packer; ///< once there is more than is kept back
};

/// `content` in one frame, with `dictionary` before it where that is not empty.
patch::Bytes packed(patch::View content, int level, int windowLog, patch::View dictionary = {});

} // namespace tools
