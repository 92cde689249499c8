// The patch while it is being written: a file beside its place, which it takes when it is complete.
// Nothing is left behind when it does not come to that, also when a signal ends the program.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>

#include "patcher/format/Bytes.h"
#include "tools/files/Descriptor.h"

namespace tools {

/// One at a time in a process. Everything throws FileError.
class PartialFile {
  public:
    explicit PartialFile(std::string path);
    ~PartialFile();
    PartialFile(const PartialFile&) = delete;
    PartialFile& operator=(const PartialFile&) = delete;

    int descriptor() const { return m_file.number(); }
    void write(std::uint64_t offset, patch::View bytes);
    /// Complete: what stood at the path is replaced.
    void keep();

  private:
    std::string m_path;
    std::string m_partial;
    Descriptor m_file;
};

/// Room for blocks that are made before it is their turn. It has no name and goes with the program.
class Spool {
  public:
    /// In the folder of `path`.
    explicit Spool(const std::string& path);

    /// Where the bytes are now. Any thread.
    std::uint64_t add(patch::View bytes);
    int descriptor() const { return m_file.number(); }

  private:
    std::string m_path;
    Descriptor m_file;
    std::mutex m_mutex;
    std::uint64_t m_size = 0;
};

} // namespace tools
