#include "tools/applyPatch/ApplyError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace tools {

namespace {

struct Remedy {
    int error;
    std::string_view sentence;
};

constexpr std::array kRemedies{
    Remedy{ENOSPC, "no space is left on the volume; free some and start again"},
    Remedy{EDQUOT, "this user's share of the volume is used up; free some and start again"},
    Remedy{EACCES, "this user has not the rights for it; start as administrator"},
    Remedy{EPERM, "the system does not permit it; unlock it or start as administrator"},
    Remedy{EROFS, "the volume can only be read; make it writable and start again"},
    Remedy{EIO, "the disk gave an error; check the disk before you start again"},
    Remedy{ESTALE, "it was changed while it was worked on; start again when nothing uses it"},
    Remedy{ENOENT, "it was taken away while it was worked on; start again when nothing uses it"},
    Remedy{ELOOP, "a symbolic link stands where none may; remove it and start again"},
    Remedy{ENOTDIR, "something stands where a folder must; remove it and start again"},
    Remedy{EBUSY, "the system is using it, as a place where a volume is mounted for one; "
                  "free it and start again"},
    Remedy{EXDEV, "another volume is mounted there; take it away and start again"},
    Remedy{ENAMETOOLONG, "the name is longer than the system takes; shorten it and start again"},
    Remedy{EFBIG, "it is larger than the system or a patch allows"},
    Remedy{EMFILE, "too many files are open; raise the limit and start again"},
};

} // namespace

ApplyError refusal(const std::string& path, int error) {
    const auto* remedy = std::ranges::find(kRemedies, error, &Remedy::error);
    const std::string sentence = remedy == kRemedies.end()
                                     ? std::error_code(error, std::generic_category()).message()
                                     : std::string(remedy->sentence);
    return ApplyError(Ending::refused, path + ": " + sentence);
}

} // namespace tools
