// What CPath's string means on this system: joining and splitting by the rules of file URLs, and
// the questions that only the disk can answer. Built on the stack around a path for one operation.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cp/CPath.h"
#include "cp/private/FileUrl.h"

namespace Corvaldine::CP::Private {

class _CNativePath {
  public:
    /// `path` must outlive this object; it is only read.
    explicit _CNativePath(const CPath* path) : m_path(path) {}
    virtual ~_CNativePath() = default;

    /// `out` := the path with the component appended; true when that gave a path.
    [[nodiscard]] bool _append(const std::wstring& component, std::wstring& out) const;
    /// `out` := the item; empty when there is none.
    void _get_item(CPath::pathItem item, std::wstring& out) const;
    /// `out` := the POSIX form of the path read as an HFS-style one that is not a folder.
    void convert(std::wstring& out) const;

    [[nodiscard]] bool exists() const;
    [[nodiscard]] bool is_directory() const;
    /// `code` := the file type in the Finder information of what the path leads to (0 for none);
    /// false when the path leads nowhere or there is no such information.
    [[nodiscard]] bool finder_type(std::uint32_t& code) const;

  private:
    /// A URL of the path; none when it isn't valid text.
    [[nodiscard]] static std::optional<FileUrl> _string_to_url(const std::wstring& path,
                                                               bool isDirectory, bool hfsStyle);
    /// `out` := the URL's POSIX path; true when that is not empty.
    static bool _url_to_string(const FileUrl& url, std::wstring& out);

    [[nodiscard]] std::wstring url() const;
    [[nodiscard]] std::wstring volume() const;
    const std::wstring& text() const { return *m_path; }

    const CPath* m_path;
};

} // namespace Corvaldine::CP::Private
