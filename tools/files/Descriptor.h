// The open files of the programs in this folder, and calls whose failure is an exception.
#pragma once

#include <cerrno>
#include <system_error>

#include "platform/posix/Descriptor.h"

namespace tools {

using posix::Descriptor;

/// Throws what `errno` says.
[[noreturn]] inline void throwErrno() {
    throw std::system_error(errno, std::generic_category());
}

/// The result of a call that answers -1 for failure and then sets `errno`.
template <typename Result>
Result checked(Result result) {
    if (result < 0)
        throwErrno();
    return result;
}

} // namespace tools
