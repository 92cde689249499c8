#include "engine/FileModes.h"

#include <filesystem>

#include "cp/CDir.h"
#include "cp/CFileUtils.h"
#include "engine/FolderListing.h"
#include "engine/Guarded.h"
#include "platform/ports/PlatformError.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

constexpr MethodAnswer kDone = MethodAnswer::of(1);
constexpr MethodAnswer kNotDone = MethodAnswer::of(0);
constexpr MethodAnswer kDisabled = MethodAnswer::of(-1);

/// The path, where the platform's file manager demands one.
std::string needed(OptionalText path) {
    if (!path)
        throw ports::PlatformError("a file operation was given no path");
    return std::string(*path);
}

/// As the platform's file manager copies: links as links, all else whole with what belongs to it,
/// and never half.
MethodAnswer copied(const std::string& source, const std::string& destination) {
    std::error_code failure;
    if (fs::symlink_status(destination, failure).type() != fs::file_type::not_found)
        return kNotDone;
    const fs::file_type kind = fs::symlink_status(source, failure).type();
    if (kind == fs::file_type::symlink) {
        fs::copy_symlink(source, destination, failure);
        return failure ? kNotDone : kDone;
    }
    const bool isCopied = kind == fs::file_type::directory
                              ? Corvaldine::CP::CDir::copy(source, destination, false)
                              : Corvaldine::CP::CFileUtils::copy(source, destination, false);
    return isCopied ? kDone : kNotDone;
}

MethodAnswer removed(const std::string& path) {
    std::error_code failure;
    return fs::remove_all(path, failure) > 0 && !failure ? kDone : kNotDone;
}

/// The answer of `work`, with its line in the log.
template <class Work>
MethodAnswer logged(InstallLog& log, Work work) {
    return guarded(log, kDisabled.value(), [&] {
        const MethodAnswer answer = work();
        log.logResult(answer.value(), "");
        return answer;
    });
}

} // namespace

MethodAnswer FileModes::installFileMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                        OptionalText dest) {
    m_needs.log.logMessage("File: " + shown(source));
    return logged(m_needs.log, [&] {
        const auto target = [&] {
            return needed(dest) + "/" + shown(m_needs.rules.getItemName(itemNum));
        };
        switch (mode) {
        case OpMode::check:
            return leadsSomewhere(target()) ? kDone : kDisabled;
        case OpMode::copy:
            return copied(needed(source), target());
        case OpMode::remove: // whether source and destination differ would change nothing
        default:
            return kNotDone;
        }
    });
}

MethodAnswer FileModes::installDirMode(OpMode mode, std::uint32_t, OptionalText source,
                                       OptionalText dest) {
    m_needs.log.logMessage("Dir: " + shown(source));
    return logged(m_needs.log, [&] {
        switch (mode) {
        case OpMode::check:
            return leadsSomewhere(needed(dest)) ? kDone : kDisabled;
        case OpMode::copy:
            return copied(needed(source), needed(dest));
        case OpMode::remove:
            if (source && !contentsAreEqual(std::string(*source), needed(dest)))
                return kNotDone;
            return removed(needed(dest));
        default:
            return kNotDone;
        }
    });
}

MethodAnswer FileModes::installUninstMode(OpMode mode, std::uint32_t, OptionalText, OptionalText) {
    return mode == OpMode::check ? kNotDone : kDone;
}

} // namespace ec
