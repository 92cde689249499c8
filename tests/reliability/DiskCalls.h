// The system calls that matter to a copy on disk, as a table: which of them change it, where their
// paths and descriptors stand, and which errors a disk may answer. Used by TracedCommand, which
// counts them; knows nothing of processes.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace sweep {

/// What a call does. Opening and reading change nothing, but may fail.
enum class Effect : std::uint8_t {
    create,   ///< makes a file, a folder or a link, or opens one for writing
    write,    ///< content or length of a file
    metadata, ///< mode, owner, times, attributes
    rename,
    remove,
    flush, ///< makes earlier changes last
    open,  ///< for reading
    read,
};

/// Where a call's arguments say what it is about; -1: nowhere.
struct CallShape {
    long number;
    std::string_view name;
    Effect effect;
    int folder = -1; ///< descriptor that `path` starts from; without it the working folder
    int path = -1;
    int secondFolder = -1;
    int secondPath = -1;
    int file = -1;  ///< descriptor of the file itself
    int flags = -1; ///< what tells two uses of the call apart
};

/// All that this machine's system has of them.
std::span<const CallShape> diskCalls();

/// Null for a call that is none of them.
const CallShape* diskCall(long number);

inline constexpr bool changesDisk(Effect effect) {
    return effect != Effect::open && effect != Effect::read;
}

/// Whether the call, used for that effect, may answer `error` on some disk: a full one has no
/// room for what is new, but lets everything be removed.
bool mayAnswer(std::string_view name, Effect effect, int error);

} // namespace sweep
