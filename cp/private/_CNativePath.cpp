#include "cp/private/_CNativePath.h"

#include "cp/private/Catalogue.h"
#include "cp/private/FinderInformation.h"
#include "cp/private/NativeTranslation.h"
#include "cp/private/PathConversion.h"
#include "cp/private/Volume.h"

namespace Corvaldine::CP::Private {

bool _CNativePath::_append(const std::wstring& component, std::wstring& out) const {
    const auto base = _string_to_url(text(), true, false);
    if (!base || !system_path(component))
        return false;
    return _url_to_string(base->appendingComponent(component), out);
}

void _CNativePath::_get_item(CPath::pathItem item, std::wstring& out) const {
    out.clear();
    if (text().empty())
        return;
    if (item == CPath::item_path) {
        out = text();
        return;
    }
    const auto posix = _string_to_url(text(), false, false);
    if (!posix)
        return;
    switch (item) {
    case CPath::item_name:
        out = posix->lastComponent();
        break;
    case CPath::item_parent:
        _url_to_string(posix->deletingLastComponent(), out);
        break;
    case CPath::item_volume:
        out = volume();
        break;
    case CPath::item_dot_extension:
        out = posix->pathExtension();
        if (!out.empty())
            out.insert(0, 1, L'.');
        break;
    case CPath::item_extension:
        out = posix->pathExtension();
        break;
    case CPath::item_url:
        out = url();
        break;
    case CPath::item_path:
        break;
    }
}

void _CNativePath::convert(std::wstring& out) const {
    out.clear();
    if (const auto hfs = _string_to_url(text(), false, true))
        _url_to_string(*hfs, out);
}

bool _CNativePath::exists() const {
    const auto path = system_path(text());
    CatalogueInfo info;
    return path && catalogue_info(*path, info);
}

bool _CNativePath::is_directory() const {
    const auto path = system_path(text());
    CatalogueInfo info;
    return path && catalogue_info(*path, info) && (info.nodeFlags & kNodeIsDirectory) != 0;
}

bool _CNativePath::finder_type(std::uint32_t& code) const {
    const auto path = system_path(text());
    return path && finder_file_type(*path, code);
}

std::optional<FileUrl> _CNativePath::_string_to_url(const std::wstring& path, bool isDirectory,
                                                    bool hfsStyle) {
    if (!system_path(path))
        return std::nullopt;
    if (!hfsStyle)
        return FileUrl::fromPosix(path, isDirectory);
    const CPath bootVolume(volume_name("/"));
    return FileUrl::fromHfs(path, isDirectory, static_cast<const std::wstring&>(bootVolume));
}

bool _CNativePath::_url_to_string(const FileUrl& url, std::wstring& out) {
    out = url.posixPath();
    return !out.empty();
}

// Deliberately read in HFS style: a POSIX path has no ":", so all of it counts as one volume name.
std::wstring _CNativePath::url() const {
    const auto hfs = _string_to_url(text(), is_directory(), true);
    std::wstring wide;
    if (hfs) {
        const std::string bytes = hfs->data();
        // The bytes are ASCII.
        static_cast<void>(_utf8_to_wstring(bytes.data(), bytes.size(), wide));
    }
    return wide;
}

std::wstring _CNativePath::volume() const {
    if (const auto path = system_path(text())) {
        const CPath name(volume_name(*path));
        if (name != CPath())
            return name;
    }
    return text().substr(0, text().find_first_of(L":/"));
}

} // namespace Corvaldine::CP::Private
