// Where the system's places lie for this run: under which root, whose home, which temporary folder.
// Made once from the command line and handed to everything that forms a path. Holds facts only; it
// never touches the disk.
#pragma once

#include <string>
#include <string_view>

namespace ports {

struct SystemPlaces {
    /// Prefix of the system's own folders ("/Applications", "/Library", "/Volumes"), without a
    /// trailing "/". Empty: this machine.
    std::string root;
    /// The user's home folder, where a leading "~" leads. Not under `root` unless given so.
    std::string home;
    /// The temporary folder, without a trailing "/".
    std::string temporary;

    /// A system place such as "/Applications/Scrivel 21" as the path it has in this run.
    std::string system(std::string_view path) const { return root + std::string(path); }

    /// `path` with a leading "~" replaced by the home folder, where there is one; any other path
    /// unchanged.
    std::string expandTilde(std::string_view path) const {
        if (!home.empty() && (path == "~" || path.starts_with("~/")))
            return home + std::string(path.substr(1));
        return std::string(path);
    }
};

} // namespace ports
