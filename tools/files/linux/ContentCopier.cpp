#include "tools/files/ContentCopier.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "tools/files/Descriptor.h"

namespace tools {

namespace {

constexpr std::uint64_t kPieceInKernel = std::uint64_t{8} << 20;
constexpr std::size_t kBuffer = 64 * 1024;

// Below this the kernel's copying costs more than reading and writing.
constexpr std::uint64_t kLeastInKernel = kBuffer;

/// Errors by which a call says that it does not work for these two files at all.
bool isUnsupported(int error) {
    return error == EXDEV || error == EOPNOTSUPP || error == ENOSYS || error == EINVAL ||
           error == ENOTTY || error == EPERM || error == EBADF || error == ETXTBSY;
}

/// Where the next stretch of data begins at or after `at`, and where it ends.
struct Stretch {
    std::uint64_t start;
    std::uint64_t end;
};

Stretch nextData(int file, std::uint64_t at, std::uint64_t size) {
    const off_t start = ::lseek(file, static_cast<off_t>(at), SEEK_DATA);
    if (start < 0)
        return errno == ENXIO ? Stretch{size, size} : Stretch{at, size};
    const off_t end = ::lseek(file, start, SEEK_HOLE);
    return {static_cast<std::uint64_t>(start), end < 0 ? size : static_cast<std::uint64_t>(end)};
}

} // namespace

void ContentCopier::copy(int from, const struct stat& status, int to, const Told& told) {
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size == 0)
        return;
    if (clone(from, to)) {
        told(size);
        return;
    }
    constexpr blkcnt_t kBlock = 512; // the unit of st_blocks
    if (status.st_blocks * kBlock >= status.st_size) {
        copyRange(from, to, 0, size, told);
        return;
    }
    std::uint64_t at = 0;
    while (at < size) {
        const Stretch data = nextData(from, at, size);
        told(std::min(data.start, size) - at);
        if (data.start >= size)
            break;
        copyRange(from, to, data.start, std::min(data.end, size) - data.start, told);
        at = data.end;
    }
    checked(::ftruncate(to, status.st_size));
}

bool ContentCopier::clone(int from, int to) {
    if (!m_canClone)
        return false;
    if (::ioctl(to, FICLONE, from) == 0)
        return true;
    if (isUnsupported(errno))
        m_canClone = false;
    return false;
}

// A file that shrinks meanwhile is copied as far as it goes.
void ContentCopier::copyRange(int from, int to, std::uint64_t at, std::uint64_t length,
                              const Told& told) {
    while (length >= (at == 0 ? kLeastInKernel : 1) && m_canCopyInKernel) {
        auto in = static_cast<off_t>(at);
        auto out = static_cast<off_t>(at);
        const auto piece = static_cast<std::size_t>(std::min(length, kPieceInKernel));
        const ssize_t copied = ::copy_file_range(from, &in, to, &out, piece, 0);
        if (copied < 0 && errno == EINTR)
            continue;
        if (copied < 0 && isUnsupported(errno)) {
            m_canCopyInKernel = false;
            break;
        }
        if (checked(copied) == 0)
            break; // some file systems answer so for what they can't copy: read it
        at += static_cast<std::uint64_t>(copied);
        length -= static_cast<std::uint64_t>(copied);
        told(static_cast<std::uint64_t>(copied));
    }
    if (length == 0)
        return;
    std::array<std::byte, kBuffer> buffer;
    while (length > 0) {
        const auto piece = static_cast<std::size_t>(std::min<std::uint64_t>(length, kBuffer));
        const ssize_t got = ::pread(from, buffer.data(), piece, static_cast<off_t>(at));
        if (got < 0 && errno == EINTR)
            continue;
        if (checked(got) == 0)
            return;
        for (ssize_t put = 0; put < got;) {
            const ssize_t written =
                ::pwrite(to, buffer.data() + put, static_cast<std::size_t>(got - put),
                         static_cast<off_t>(at) + put);
            if (written < 0 && errno == EINTR)
                continue;
            put += checked(written);
        }
        at += static_cast<std::uint64_t>(got);
        length -= static_cast<std::uint64_t>(got);
        told(static_cast<std::uint64_t>(got));
    }
}

} // namespace tools
