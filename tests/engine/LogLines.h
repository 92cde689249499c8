// The log lines of the file operations and tool runs that went well, as the tests of the install
// methods expect them.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace lines {

using Lines = std::vector<std::string>;

inline Lines all(std::initializer_list<Lines> parts) {
    Lines whole;
    for (const Lines& part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

inline std::string user(const std::string& command, int status = 0) {
    return "Running as user: " + command + " Result: " + std::to_string(status);
}
inline std::string administrator(const std::string& command) {
    return "Running as admin: " + command + " Result: 0";
}
inline Lines authenticated(bool granted = true) {
    return {"Authenticate",
            std::string("Authentication status :") + (granted ? "Succeeded" : "Failed")};
}

inline Lines copied(const std::string& from, const std::string& to) {
    return {"Copy: " + from + " -> " + to, user("/usr/bin/ditto -rsrcFork " + from + " " + to)};
}
inline Lines notCopied(const std::string& from, const std::string& to) {
    return {"Copy: " + from + " -> " + to, "Copy: source path does not exist: " + from};
}
inline Lines nothingToRemove(const std::string& path) {
    return {"Remove File: " + path};
}
inline Lines removedFile(const std::string& path) {
    return {"Remove File: " + path, "Unlock File: " + path, user("/usr/bin/chflags nouchg " + path),
            user("/bin/rm -f " + path)};
}
inline Lines removedFolder(const std::string& path) {
    return {"Remove File: " + path, "Unlock Dir: " + path,
            user("/usr/bin/chflags -R nouchg " + path), user("/bin/rm -rf " + path)};
}
inline Lines madeFolder(const std::string& path) {
    return {"Make Dir: " + path, user("/bin/mkdir -p " + path), "chmod: " + path + " mode:777",
            user("/bin/chmod 777 " + path)};
}
inline Lines renamed(const std::string& from, const std::string& to) {
    return {"Rename File: " + from + " -> " + to, user("/bin/mv " + from + " " + to)};
}

} // namespace lines
