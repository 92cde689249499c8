#include "tools/files/Folders.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace tools {

namespace {

constexpr std::size_t kMostOpen = 32;
constexpr int kOpenFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

std::string parentOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string withoutSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

} // namespace

std::string Folder::pathOf(std::string_view leaf) const {
    std::vector<const Folder*> chain;
    for (const Folder* at = this; at->parent != nullptr; at = at->parent)
        chain.push_back(at);
    std::string path;
    for (auto at = chain.rbegin(); at != chain.rend(); ++at)
        path.append((*at)->name).append("/");
    return path.append(leaf);
}

int FolderDescriptors::of(const Folder& folder) {
    m_missing.clear();
    auto known = m_open.end();
    const Folder* at = &folder;
    for (; at->parent != nullptr; at = at->parent) {
        known = std::ranges::find(m_open, at, &Open::folder);
        if (known != m_open.end())
            break;
        m_missing.push_back(at);
    }
    int number = m_top;
    if (known != m_open.end()) {
        known->used = ++m_clock;
        number = known->descriptor.number();
    }
    // Those on the way are kept, too: a tree is mostly walked from a folder to one nearby.
    for (auto next = m_missing.rbegin(); next != m_missing.rend(); ++next) {
        Descriptor opened(
            checked(::openat(number, (*next)->name.c_str(), kOpenFolder | O_NOFOLLOW)));
        number = opened.number();
        if (m_open.size() < kMostOpen)
            m_open.push_back({*next, std::move(opened), ++m_clock});
        else
            *std::ranges::min_element(m_open, {}, &Open::used) =
                Open{*next, std::move(opened), ++m_clock};
    }
    return number;
}

std::string nearestExisting(const std::string& path) {
    std::string at = withoutSlashes(path);
    struct stat status{};
    while (::lstat(at.c_str(), &status) != 0 && at != "/" && at != ".")
        at = withoutSlashes(parentOf(at));
    return at;
}

Descriptor openOrMakeFolder(const std::string& path, mode_t mode) {
    std::vector<std::string> missing;
    std::string at = withoutSlashes(path);
    int number = ::open(at.c_str(), kOpenFolder);
    while (number < 0 && errno == ENOENT && at != "/" && at != ".") {
        missing.push_back(at);
        at = withoutSlashes(parentOf(at));
        number = ::open(at.c_str(), kOpenFolder);
    }
    Descriptor folder(checked(number));
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
        if (::mkdir(next->c_str(), mode) != 0 && errno != EEXIST)
            throwErrno();
        folder = Descriptor(checked(::open(next->c_str(), kOpenFolder)));
    }
    return folder;
}

} // namespace tools
