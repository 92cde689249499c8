// What a classic alias file says of its target, gathered from the file system. The same on every
// system but for three questions, which whoever asks answers. Used by the adapters of
// ports::FinderFiles; formats/AliasRecord lays out the bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/ports/FinderFiles.h"

namespace posix {

/// A volume as an alias names it.
struct AliasVolume {
    std::string mountPoint; ///< begins the path of everything on the volume
    std::string name;
};

struct AliasQuestions {
    std::function<ports::FinderInformation(const std::string& path)> information;
    std::function<AliasVolume(const std::string& path)> volume;
    /// As FinderFileCalls::creationTime.
    std::function<std::int64_t(const std::string& path)> creationTime;
};

/// The record that leads to `target`, whose links are followed; empty when it does not resolve.
/// File and folder numbers are the low 32 bits of inode numbers.
std::vector<std::byte> aliasRecordOf(const std::string& target, const AliasQuestions& ask);

/// The resource fork of an alias file: the record as resource 'alis' 0 with an empty name.
std::vector<std::byte> aliasFork(const std::vector<std::byte>& record);

} // namespace posix
