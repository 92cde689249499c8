// What only Darwin's C library has (tests/macos/darwin), played for the tests of the files that
// call it: each function does what the test has put there. Not for more than one thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "tests/macos/darwin/copyfile.h"
#include "tests/macos/darwin/sys/attr.h"
#include "tests/macos/darwin/sys/mount.h"
#include "tests/macos/darwin/sys/stat.h"
#include "tests/macos/darwin/sys/xattr.h"
#include "tests/macos/darwin/unistd.h"

/// What a copy was told to tell of itself.
struct DarwinCopyState {
    copyfile_callback_t callback = nullptr;
    void* context = nullptr;

    int tell(int what, int stage) { return callback(what, stage, this, "", "", context); }
};

namespace fakes {

struct Darwin {
    std::string temporaryFolder; ///< what confstr says; empty: nothing
    std::function<int(const std::string& path, struct statfs& status)> statfs;
    std::function<int(const std::string& path, const attrlist& wanted, void* answer,
                      std::size_t size)>
        getattrlist;
    /// Adds what this system's status lacks.
    std::function<void(DarwinStat& status)> addStatus;
    bool refusesStatus = false;
    std::function<int(int file, unsigned flags)> fchflags;
    std::function<int(const std::string& from, const std::string& to, DarwinCopyState* state,
                      std::uint32_t flags)>
        copyfile;
    bool refusesCopyState = false;
    int copyStates = 0; ///< that nobody has freed
    std::function<ssize_t(const std::string& path, const std::string& name, void* value,
                          std::size_t size, std::uint32_t position, int options)>
        getxattr;
    std::function<int(const std::string& where, const std::string& name, const std::string& value,
                      std::uint32_t position, int options)>
        setxattr; ///< of an open file `where` is "#" and its number
};

/// The one that the functions work on. A test that uses it begins with a fresh one.
Darwin& darwin();

} // namespace fakes
