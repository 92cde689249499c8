// The locked flag of a file or folder.
#pragma once

#include "cp/private/FileDescriptor.h"

namespace Corvaldine::CP::Private {

/// Opens a file or folder for reading its flags, by a name relative to a folder's descriptor.
/// Closed when it can't be opened, or is neither a regular file nor a folder.
[[nodiscard]] FileDescriptor open_node(int folder, const char* name, bool followLinks);

/// `locked` := the flag; false when it can't be read. A file system without such a flag has no
/// locked nodes.
[[nodiscard]] bool read_locked(const FileDescriptor& node, bool& locked);

/// Sets or clears the flag and keeps all others. True at once when the node is as wanted.
[[nodiscard]] bool set_locked(const FileDescriptor& node, bool locked);

/// The system's part of the two: the flags as the system has them, with the bit that locks.
[[nodiscard]] bool read_flags(int node, unsigned& flags);
[[nodiscard]] bool write_flags(int node, unsigned flags);
extern const unsigned kLockFlag;

} // namespace Corvaldine::CP::Private
