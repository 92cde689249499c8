#include "tests/reliability/CallReader.h"

#include <array>
#include <climits>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace sweep {

namespace {

/// Bytes of the process's memory; fewer than asked for where it ends.
std::size_t readMemory(pid_t process, std::uint64_t address, void* into, std::size_t length) {
    iovec here{into, length};
    iovec there{reinterpret_cast<void*>(address), length};
    const ssize_t got = ::process_vm_readv(process, &here, 1, &there, 1, 0);
    return got < 0 ? 0 : static_cast<std::size_t>(got);
}

/// A zero-terminated text; page by page, as the next may not exist.
std::string textIn(pid_t process, std::uint64_t address) {
    constexpr std::uint64_t kPage = 4096;
    std::string text;
    std::array<char, kPage> piece;
    while (text.size() < PATH_MAX) {
        const std::size_t got = readMemory(process, address, piece.data(), kPage - address % kPage);
        const std::string_view view(piece.data(), got);
        const auto end = view.find('\0');
        text.append(view.substr(0, end));
        if (got == 0 || end != std::string_view::npos)
            break;
        address += got;
    }
    return text;
}

std::string linkTarget(const std::string& link) {
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    return length < 0 ? std::string()
                      : std::string(target.data(), static_cast<std::size_t>(length));
}

std::string descriptorEntry(pid_t task, int descriptor) {
    return "/proc/" + std::to_string(task) + "/fd/" + std::to_string(descriptor);
}

std::string pathOf(pid_t task, int folder, std::uint64_t address) {
    std::string text = address == 0 ? std::string() : textIn(task, address);
    if (!text.starts_with("/")) {
        const std::string start =
            linkTarget(folder == AT_FDCWD ? "/proc/" + std::to_string(task) + "/cwd"
                                          : descriptorEntry(task, folder));
        text = text.empty() ? start : start + "/" + text;
    }
    std::string normal = std::filesystem::path(text).lexically_normal().native();
    while (normal.size() > 1 && normal.ends_with('/'))
        normal.pop_back();
    return normal;
}

bool opensForWriting(std::uint64_t flags) {
    return (flags & O_PATH) == 0 &&
           ((flags & (O_CREAT | O_TRUNC)) != 0 || (flags & O_ACCMODE) != O_RDONLY);
}

} // namespace

bool describe(pid_t task, const __ptrace_syscall_info& info, Call& call) {
    const CallShape& shape = *call.shape;
    const auto argument = [&](int index) { return info.seccomp.args[index]; };
    const auto folderAt = [&](int index) {
        return index < 0 ? AT_FDCWD : static_cast<int>(argument(index));
    };
    if (shape.effect == Effect::open) {
        std::uint64_t flags = argument(shape.flags);
        if (shape.name == "openat2") // there they stand first in a record
            readMemory(task, argument(shape.flags), &flags, sizeof flags);
        if (opensForWriting(flags))
            call.effect = Effect::create;
    }
    if (shape.name == "ioctl" && argument(1) != FICLONE && argument(1) != FICLONERANGE)
        return false;
    if (shape.name == "mmap" &&
        ((argument(3) & MAP_SHARED) == 0 || // the mapping is written to
         (argument(3) & MAP_ANONYMOUS) != 0 || (argument(2) & PROT_WRITE) == 0))
        return false;
    if (shape.file >= 0) {
        struct ::stat status{};
        const std::string entry = descriptorEntry(task, static_cast<int>(argument(shape.file)));
        if (::stat(entry.c_str(), &status) != 0 ||
            (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)))
            return false;
        call.path = linkTarget(entry);
    }
    if (shape.path >= 0)
        call.path = pathOf(task, folderAt(shape.folder), argument(shape.path));
    if (shape.secondPath >= 0)
        call.second = pathOf(task, folderAt(shape.secondFolder), argument(shape.secondPath));
    return true;
}

void noteInodes(Call& call) {
    const auto note = [&](const std::string& path) {
        struct ::stat status{};
        if (::lstat(path.c_str(), &status) == 0)
            call.changed.push_back({status.st_dev, status.st_ino});
    };
    const auto noteParent = [&](const std::string& path) {
        note(std::filesystem::path(path).parent_path().native());
    };
    switch (call.effect) {
    case Effect::create:
        noteParent(call.path);
        note(call.path);
        break;
    case Effect::write:
    case Effect::metadata:
    case Effect::flush:
        note(call.path);
        break;
    case Effect::rename:
        noteParent(call.path);
        noteParent(call.second);
        break;
    case Effect::remove:
        noteParent(call.path);
        break;
    case Effect::open:
    case Effect::read:
        break;
    }
}

} // namespace sweep
