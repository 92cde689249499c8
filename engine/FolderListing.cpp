#include "engine/FolderListing.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>

namespace ec {

namespace fs = std::filesystem;

namespace {

/// What lies at the path itself; a link counts as a link.
fs::file_type kindOf(const std::string& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type();
}

bool filesAreEqual(const std::string& one, const std::string& other) {
    std::error_code error;
    if (fs::file_size(one, error) != fs::file_size(other, error) || error)
        return false;
    std::ifstream first(one, std::ios::binary);
    std::ifstream second(other, std::ios::binary);
    std::array<char, 16384> here{};
    std::array<char, 16384> there{};
    while (first && second) {
        first.read(here.data(), here.size());
        second.read(there.data(), there.size());
        if (first.gcount() != second.gcount() ||
            std::memcmp(here.data(), there.data(), static_cast<std::size_t>(first.gcount())) != 0)
            return false;
    }
    return first.eof() && second.eof();
}

bool linksAreEqual(const std::string& one, const std::string& other) {
    std::error_code error;
    const fs::path target = fs::read_symlink(one, error);
    return !error && target == fs::read_symlink(other, error) && !error;
}

/// Goes through `part` and looks for each entry in `whole`; with `exactly`, folders must hold the
/// same names. Folders wait in a list, so depth costs no stack.
bool compare(const std::string& part, const std::string& whole, bool exactly) {
    std::vector<std::pair<std::string, std::string>> pending{{part, whole}};
    while (!pending.empty()) {
        const auto [here, there] = std::move(pending.back());
        pending.pop_back();
        const fs::file_type kind = kindOf(here);
        if (kind != kindOf(there))
            return false;
        if (kind == fs::file_type::directory) {
            const std::vector<std::string> names = namesIn(here);
            if (exactly && names != namesIn(there))
                return false;
            for (const std::string& name : names)
                pending.emplace_back(inFolder(here, name), inFolder(there, name));
        } else if (!(kind == fs::file_type::regular   ? filesAreEqual(here, there)
                     : kind == fs::file_type::symlink ? linksAreEqual(here, there)
                                                      : false)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::vector<std::string> unsortedNamesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        names.push_back(at->path().filename().native());
    if (error)
        names.clear();
    return names;
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names = unsortedNamesIn(folder);
    std::ranges::sort(names);
    return names;
}

bool hasEntries(const std::string& folder) {
    std::error_code error;
    return fs::directory_iterator(folder, error) != fs::directory_iterator() && !error;
}

std::string inFolder(const std::string& folder, const std::string& name) {
    return name.empty() ? folder : folder + "/" + name;
}

std::string joinedPath(std::string_view folder, std::string_view component) {
    std::string path(folder);
    if (!component.empty())
        path.append(path.empty() ? "" : "/").append(component);
    const auto both = [](char one, char next) { return one == '/' && next == '/'; };
    path.erase(std::unique(path.begin(), path.end(), both), path.end());
    if (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

bool leadsSomewhere(const std::string& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

bool isFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool contentsAreEqual(const std::string& one, const std::string& other) {
    return compare(one, other, true);
}

bool contains(const std::string& whole, const std::string& part) {
    return compare(part, whole, false);
}

} // namespace ec
