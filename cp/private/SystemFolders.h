// Where the well-known folders lie. The composition root may set their bases once at start, before
// anything asks; without that they are read from the environment.
#pragma once

#include <cstdint>
#include <string>

namespace Corvaldine::CP::Private {

struct SystemFolderBases {
    std::string root;      ///< put before the local folders; empty for the running system
    std::string home;      ///< of the user
    std::string temporary; ///< of the user
};

/// For the whole process, from now on. Not to be called once other threads run.
void set_system_folder_bases(const SystemFolderBases& chosen);
/// As set; until then an empty root, $HOME, and $TMPDIR or "/tmp".
[[nodiscard]] const SystemFolderBases& system_folder_bases();

/// The domains and types by which a folder is asked for.
enum class FolderDomain : std::int16_t { user = -32763, local = -32765 };
using FolderType = std::uint32_t;
[[nodiscard]] constexpr FolderType folder_type(const char (&name)[5]) {
    FolderType type = 0;
    for (int i = 0; i < 4; ++i)
        type = type << 8 | static_cast<unsigned char>(name[i]);
    return type;
}

/// `path` := the folder, made if it is missing; false when it isn't known or can't be made.
[[nodiscard]] bool find_folder(FolderDomain domain, FolderType type, std::string& path);

} // namespace Corvaldine::CP::Private
