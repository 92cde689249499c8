// Where the well-known folders lie. The composition root may set their bases once at start, before
// anything asks; without that they are the system's own. A file of this name in each system's own
// folder asks the system.
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
/// As set; until then an empty root and what the two functions below say.
[[nodiscard]] const SystemFolderBases& system_folder_bases();

/// The user's home folder, which need not exist; empty when it isn't known. On Linux $HOME; macOS
/// is asked for it first, and the list of users last.
[[nodiscard]] std::string user_home_folder();
/// The user's temporary folder, without a "/" at its end. On Linux $TMPDIR or "/tmp"; macOS is
/// asked for it first.
[[nodiscard]] std::string user_temporary_folder();
/// A folder that the environment names, without a "/" at its end; `otherwise` when it names none.
[[nodiscard]] std::string environment_folder(const char* name, const char* otherwise);

/// The domains and types by which a folder is asked for.
enum class FolderDomain : std::int16_t { user = -32763, local = -32765 };
using FolderType = std::uint32_t;
[[nodiscard]] constexpr FolderType folder_type(const char (&name)[5]) {
    FolderType type = 0;
    for (int i = 0; i < 4; ++i)
        type = type << 8 | static_cast<unsigned char>(name[i]);
    return type;
}

/// `path` := the folder, made if it is missing; false when it isn't known or can't be made. Where
/// its base is the system's own the system is asked; the table of SystemFolders.cpp counts for all
/// other bases, and where the system gives no answer.
[[nodiscard]] bool find_folder(FolderDomain domain, FolderType type, std::string& path);

/// `path` := where the system says that the folder lies; it makes it if it is missing. False when
/// it says nothing, or has no such answers.
[[nodiscard]] bool ask_for_folder(FolderDomain domain, FolderType type, std::string& path);

} // namespace Corvaldine::CP::Private
