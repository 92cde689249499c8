#include "cp/private/FileUrl.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "cp/private/NativeTranslation.h"

namespace Corvaldine::CP::Private {

namespace {

constexpr wchar_t kSeparator = L'/';

std::wstring withoutTrailingSeparators(std::wstring path) {
    const std::size_t last = path.find_last_not_of(kSeparator);
    if (last != std::wstring::npos)
        path.resize(last + 1);
    else if (!path.empty())
        path.resize(1);
    return path;
}

// The names of an HFS-style path in POSIX terms: a "/" in a name is stored as ":", and an empty
// name, which two ":" enclose, goes up one folder.
std::vector<std::wstring> posixNames(std::wstring_view hfs) {
    std::vector<std::wstring> names;
    std::size_t start = 0;
    while (start <= hfs.size()) {
        const std::size_t end = std::min(hfs.find(L':', start), hfs.size());
        std::wstring name(hfs.substr(start, end - start));
        std::replace(name.begin(), name.end(), kSeparator, L':');
        const bool isLast = end == hfs.size();
        if (!name.empty())
            names.push_back(std::move(name));
        else if (!isLast)
            names.emplace_back(L"..");
        start = end + 1;
    }
    return names;
}

std::wstring joined(const std::vector<std::wstring>& names) {
    std::wstring path;
    for (const std::wstring& name : names) {
        if (!path.empty())
            path += kSeparator;
        path += name;
    }
    return path;
}

bool isPlain(char c) {
    constexpr std::string_view kPunctuation = "-_.!~*'():@&=+$,/";
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           kPunctuation.find(c) != std::string_view::npos;
}

std::string escaped(const std::string& text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string out;
    for (const char c : text) {
        if (isPlain(c)) {
            out += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        out += '%';
        out += kDigits[byte >> 4];
        out += kDigits[byte & 15];
    }
    return out;
}

} // namespace

FileUrl::FileUrl(std::wstring path, bool isDirectory)
    : m_path(withoutTrailingSeparators(std::move(path))), m_isDirectory(isDirectory) {}

FileUrl FileUrl::fromPosix(std::wstring_view path, bool isDirectory) {
    return {std::wstring(path), isDirectory};
}

FileUrl FileUrl::fromHfs(std::wstring_view path, bool isDirectory, std::wstring_view bootVolume) {
    if (path.empty())
        return {std::wstring(), isDirectory};
    if (path.front() == L':') {
        const std::wstring names = joined(posixNames(path.substr(1)));
        return {names.empty() ? L"." : names, isDirectory};
    }
    const std::size_t end = std::min(path.find(L':'), path.size());
    std::vector<std::wstring> names;
    if (end < path.size())
        names = posixNames(path.substr(end + 1));
    if (path.substr(0, end) != bootVolume) {
        names.insert(names.begin(), posixNames(path.substr(0, end)).front());
        names.insert(names.begin(), L"Volumes");
    }
    return {kSeparator + joined(names), isDirectory};
}

FileUrl FileUrl::appendingComponent(std::wstring_view component) const {
    if (m_path.empty())
        return {std::wstring(component), false};
    const std::size_t start = std::min(component.find_first_not_of(kSeparator), component.size());
    std::wstring path = m_path;
    if (path.back() != kSeparator)
        path += kSeparator;
    path += component.substr(start);
    return {std::move(path), false};
}

FileUrl FileUrl::deletingLastComponent() const {
    const std::wstring name = lastComponent();
    if (m_path.empty() || name == L"/")
        return *this;
    if (name == L"." || name == L"..")
        return {m_path + L"/..", true};
    const std::wstring parent = m_path.substr(0, m_path.size() - name.size());
    return {parent.empty() ? L"." : parent, true};
}

std::wstring FileUrl::lastComponent() const {
    const std::size_t separator = m_path.rfind(kSeparator);
    if (separator == std::wstring::npos || m_path.size() == 1)
        return m_path;
    return m_path.substr(separator + 1);
}

std::wstring FileUrl::pathExtension() const {
    const std::wstring name = lastComponent();
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring::npos ? std::wstring() : name.substr(dot + 1);
}

std::string FileUrl::data() const {
    std::string path;
    if (!_wstring_to_utf8(m_path, path))
        return {};
    std::string out = path.starts_with('/') ? "file://" : "";
    out += escaped(path);
    if (m_isDirectory && !out.empty() && out.back() != '/')
        out += '/';
    return out;
}

} // namespace Corvaldine::CP::Private
