#include "tools/makeArchive/TreePacker.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/files/Descriptor.h"
#include "tools/files/MacAttributes.h"

namespace tools {

namespace fs = std::filesystem;

using formats::ZipEntry;
using formats::ZipKind;

namespace {

formats::Bytes contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    formats::Bytes contents(size < 0 ? 0 : static_cast<std::size_t>(size));
    file.seekg(0);
    file.read(reinterpret_cast<char*>(contents.data()),
              static_cast<std::streamsize>(contents.size()));
    if (!file)
        throw std::runtime_error(path.string() + ": can't be read");
    return contents;
}

/// What an AppleDouble file beside `path` keeps for it; none without such a file.
std::optional<formats::AppleDouble> sidecarOf(const fs::path& path) {
    const fs::path sidecar = path.parent_path() / sidecarName(path.filename().string());
    if (!fs::is_regular_file(fs::symlink_status(sidecar)))
        return std::nullopt;
    return formats::readAppleDouble(contentsOf(sidecar));
}

bool isSidecar(const fs::path& path) {
    const std::string name = path.filename().string();
    return name.starts_with("._") && name.size() > 2 &&
           fs::exists(fs::symlink_status(path.parent_path() / name.substr(2))) &&
           sidecarOf(path.parent_path() / name.substr(2)).has_value();
}

std::span<const std::byte> bytesOf(const std::string& text) {
    return std::as_bytes(std::span(text));
}

} // namespace

void TreePacker::add(const fs::path& folder) {
    const fs::path real = fs::canonical(folder);
    addItem(real, real.filename().string());
}

void TreePacker::addItem(const fs::path& path, const std::string& member) {
    struct stat status{};
    if (::lstat(path.c_str(), &status) != 0)
        throw fs::filesystem_error("can't be read", path,
                                   std::error_code(errno, std::generic_category()));
    ZipEntry entry{.path = member,
                   .mode = static_cast<std::uint16_t>(status.st_mode & 0777),
                   .modified = m_time.value_or(status.st_mtime)};
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        m_archive.add(entry, contentsOf(path));
        addAttributes(path, member, entry);
        break;
    case S_IFLNK:
        entry.kind = ZipKind::link;
        m_archive.add(entry, bytesOf(fs::read_symlink(path).string()));
        addAttributes(path, member, entry);
        break;
    case S_IFDIR:
        entry.kind = ZipKind::folder;
        m_archive.add(entry);
        addAttributes(path, member, entry);
        addFolder(path, member);
        break;
    default:
        throw std::runtime_error(path.string() + ": neither file, folder nor link");
    }
}

void TreePacker::addFolder(const fs::path& path, const std::string& member) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(path))
        if (!isSidecar(entry.path()))
            names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    for (const std::string& name : names)
        addItem(path / name, member + '/' + name);
}

// What the file itself has goes before what stands beside it.
void TreePacker::addAttributes(const fs::path& path, const std::string& member,
                               const ZipEntry& entry) {
    formats::AppleDouble attributes = sidecarOf(path).value_or(formats::AppleDouble{});
    if (entry.kind != ZipKind::link) {
        const Descriptor file(checked(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)));
        formats::AppleDouble own = readMacAttributes(file.number());
        if (own.hasFinderInformation())
            attributes.finderInformation = own.finderInformation;
        if (!own.resourceFork.empty())
            attributes.resourceFork = std::move(own.resourceFork);
        for (formats::ExtendedAttribute& attribute : own.attributes) {
            std::erase_if(attributes.attributes,
                          [&](const auto& other) { return other.name == attribute.name; });
            attributes.attributes.push_back(std::move(attribute));
        }
    }
    if (isEmpty(attributes))
        return;
    const std::size_t name = member.rfind('/') + 1;
    m_archive.add({.path = "__MACOSX/" + member.substr(0, name) + sidecarName(member.substr(name)),
                   .mode = static_cast<std::uint16_t>(entry.mode & 0666),
                   .modified = entry.modified},
                  formats::writeAppleDouble(attributes));
}

} // namespace tools
