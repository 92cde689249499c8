// Writes zip archives as `readZipDirectory` reads them: deflated or stored members with Unix modes,
// UTF-8 names and times in seconds, Zip64 where a number needs it. Used by tools/makeArchive and by
// tests. The same calls give the same bytes on every machine with the same libdeflate.
//
// Format: APPNOTE.TXT 6.3.10; Info-ZIP's "UT" extra field for times.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "platform/formats/ZipDirectory.h"

struct libdeflate_compressor;

namespace formats {

struct ZipEntry {
    std::string path; ///< UTF-8, without a slash at the end; written as it is, never checked
    ZipKind kind = ZipKind::file;
    std::uint16_t mode = 0644; ///< permissions
    std::int64_t modified = 0; ///< seconds since 1970, UTC
};

class ZipWriter {
  public:
    /// Takes the archive's bytes in order. What it throws passes through `add` and `finish`.
    using Sink = std::function<void(std::span<const std::byte>)>;

    struct Options {
        int level = 9;            ///< libdeflate's, 1 to 12; 0 stores everything
        bool alwaysZip64 = false; ///< Zip64 fields also where no number needs them
    };

    explicit ZipWriter(Sink sink) : ZipWriter(std::move(sink), Options{}) {}
    ZipWriter(Sink sink, Options options);
    ~ZipWriter();
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    /// Adds a member; `contents` is a file's bytes, a link's target, nothing for a folder.
    void add(const ZipEntry& entry, std::span<const std::byte> contents = {});

    /// Writes the directory. Nothing may follow.
    void finish();

  private:
    void write(std::span<const std::byte> bytes);

    Sink m_sink;
    Options m_options;
    libdeflate_compressor* m_compressor = nullptr;
    std::vector<std::byte> m_packed; // reused
    std::string m_directory;
    std::uint64_t m_written = 0;
    std::uint64_t m_count = 0;
};

} // namespace formats
