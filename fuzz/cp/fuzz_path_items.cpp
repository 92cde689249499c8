// Any text as a path: its items are always there to be taken, and appending and splitting undo each
// other. Nothing on the disk is changed.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "cp/CPath.h"
#include "cp/private/FileUrl.h"

using namespace Corvaldine::CP;

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

std::wstring item(const CPath& path, CPath::pathItem which) {
    std::wstring out;
    path.copy_unicode_item(which, out);
    return out;
}

void items(const CPath& path) {
    const std::wstring& text = path;
    demand(item(path, CPath::item_path) == text);
    const std::wstring name = item(path, CPath::item_name);
    const std::wstring extension = item(path, CPath::item_extension);
    const std::wstring dotted = item(path, CPath::item_dot_extension);
    demand(name.empty() == item(path, CPath::item_parent).empty());
    demand(name.size() == 1 || name.find(L'/') == std::wstring::npos);
    demand(name.ends_with(dotted));
    demand(extension.empty() ? dotted.empty() : dotted == L"." + extension);
    for (const wchar_t c : item(path, CPath::item_url))
        demand(c > L' ' && c < 0x7F);
    static_cast<void>(item(path, CPath::item_volume));
}

void appending(const CPath& base) {
    CPath joined = base;
    joined.append("name.ext");
    // Text that isn't valid stays as it was.
    if (joined == base)
        return;
    demand(item(joined, CPath::item_name) == L"name.ext");
    const std::wstring parent = item(joined, CPath::item_parent);
    CPath trimmed = base;
    trimmed.append("");
    demand(parent == (base == CPath() ? L"." : static_cast<const std::wstring&>(trimmed)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CPath path(std::string(reinterpret_cast<const char*>(data), size));
    items(path);
    appending(path);
    std::string pascal(1, static_cast<char>(size < 255 ? size : 255));
    pascal.append(reinterpret_cast<const char*>(data), size < 255 ? size : 255);
    items(CPath(reinterpret_cast<const unsigned char*>(pascal.data()), true));
    const auto url =
        Private::FileUrl::fromHfs(static_cast<const std::wstring&>(path), size % 2 == 0, L"Boot");
    demand(static_cast<const std::wstring&>(path).empty() || !url.posixPath().empty());
    return 0;
}
