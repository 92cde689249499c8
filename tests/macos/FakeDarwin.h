// What only Darwin's C library has (tests/macos/darwin), played for the tests of the files that
// call it: each function does what the test has put there. Not for more than one thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/macos/darwin/copyfile.h"
#include "tests/macos/darwin/fcntl.h"
#include "tests/macos/darwin/libproc.h"
#include "tests/macos/darwin/spawn.h"
#include "tests/macos/darwin/stdio.h"
#include "tests/macos/darwin/sys/attr.h"
#include "tests/macos/darwin/sys/event.h"
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
    std::function<ssize_t(const std::string& name, void* value, std::size_t size)> fgetxattr;
    std::function<ssize_t(char* names, std::size_t size)> flistxattr;
    std::function<int(int file, const std::string& name, int options)> fremovexattr;
    /// Of paths the folders are AT_FDCWD.
    std::function<int(int fromFolder, const std::string& from, int toFolder, const std::string& to,
                      unsigned flags)>
        rename;
    std::function<int(int from, int to, std::uint32_t flags)> fcopyfile;
    std::vector<std::string> flushed; ///< "fsync 7", "full 7"
    bool refusesFlush = false;
    bool refusesFullFlush = false;
    std::function<int(int pid, char* path, std::uint32_t size)> procPidpath;
    bool refusesQueue = false;
    std::function<int(int queue, const struct kevent& change)> kevent;
    std::vector<int> inherited; ///< what a tool is to inherit
    int spawnFlags = 0;
};

/// The one that the functions work on. A test that uses it begins with a fresh one.
Darwin& darwin();

} // namespace fakes
