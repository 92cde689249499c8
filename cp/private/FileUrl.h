// A file URL, as far as paths need one: made from a POSIX or HFS-style path, taken apart into
// components, given back as a POSIX path or as the URL's bytes. Pure text; the disk is never asked.
// The rules stand in cp/CPath.h.
#pragma once

#include <string>
#include <string_view>

namespace Corvaldine::CP::Private {

class FileUrl {
  public:
    [[nodiscard]] static FileUrl fromPosix(std::wstring_view path, bool isDirectory);
    /// `bootVolume`: the name that stands for "/".
    [[nodiscard]] static FileUrl fromHfs(std::wstring_view path, bool isDirectory,
                                         std::wstring_view bootVolume);

    [[nodiscard]] FileUrl appendingComponent(std::wstring_view component) const;
    [[nodiscard]] FileUrl deletingLastComponent() const;
    [[nodiscard]] std::wstring lastComponent() const;
    [[nodiscard]] std::wstring pathExtension() const;

    /// The path without separators at its end ("/" alone stays).
    [[nodiscard]] const std::wstring& posixPath() const { return m_path; }
    /// "file://" and the path with everything escaped that a URL's path can't hold as it is: white
    /// space, everything outside ASCII (its UTF-8 bytes) and most punctuation. A folder's URL ends
    /// with "/". Of a relative path only the path.
    [[nodiscard]] std::string data() const;

  private:
    FileUrl(std::wstring path, bool isDirectory);

    std::wstring m_path;
    bool m_isDirectory;
};

} // namespace Corvaldine::CP::Private
