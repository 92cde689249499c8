// The library's value type for a file-system path: one wide string in POSIX form, kept as it was
// given. Used by the file utilities, the installer and the add-in staging. A CPath holds no file
// open and remembers nothing about the disk: every question is asked afresh.
//
// Path components follow the platform's file URLs. What that means where it isn't obvious:
//   - Separators at the end of a path don't count; of a path of separators only, "/" is the name
//     and the parent. The parent of a name alone is "."; "." and ".." have the parents "./.." and
//     "../..", since going up from them can't be done by dropping them.
//   - Appending drops the separators at the start of the component; to the empty path it gives the
//     component. An empty component only drops the separators at the end of the path.
//   - The extension is what follows the last "." of the name, so ".hidden" has the extension
//     "hidden", and "a." and ".." have none.
//   - An HFS-style path is "Volume:folder:file". The name of the boot volume stands for "/", any
//     other for "/Volumes/" and the name; a leading ":" makes the path relative; each further ":"
//     goes up one folder; a "/" within a name becomes a ":".
#pragma once

#include <string>

#include "cp/CStringConverter.h"

namespace Corvaldine::CP {

class CFileType;

namespace Private {
class _CNativePath;
} // namespace Private

inline namespace v20 {

class CPath {
  public:
    /// The parts of a path that can be asked for. Any other value is an empty item.
    enum pathItem : int {
        item_path = 0,          ///< the whole path, unchanged
        item_name = 1,          ///< last path component
        item_parent = 2,        ///< path without its last component
        item_volume = 3,        ///< name of the volume that holds the path
        item_dot_extension = 4, ///< extension with a leading "."
        item_extension = 5,     ///< extension without the dot
        item_url = 6,           ///< the path as a file URL string
    };

    /// Narrow text is UTF-8; a null pointer and text that isn't valid give the empty path.
    CPath() = default;
    CPath(const char* path);
    CPath(const std::string& path);
    CPath(const wchar_t* path);
    CPath(const std::wstring& path);
    /// A length byte and that many bytes of UTF-8. With `hfs` the text is an HFS-style path and is
    /// replaced by its POSIX form.
    CPath(const unsigned char* pascal, bool hfs);

    CPath& operator=(const char* path);
    CPath& operator=(const std::string& path);
    CPath& operator=(const wchar_t* path);
    CPath& operator=(const std::wstring& path);

    /// Puts a component after the path with exactly one separator between; a separator at the end
    /// disappears. A component (or path) that isn't valid text leaves the path as it was.
    CPath& append(const char* component);
    CPath& append(const std::string& component);
    CPath& append(const wchar_t* component);
    CPath& append(const std::wstring& component);
    CPath& append(const CPath& component);
    template <class Component>
    CPath& operator+=(const Component& component) {
        return append(component);
    }

    /// Read-only views of the stored string, valid until the path changes.
    operator const std::wstring&() const { return m_path; }
    operator const wchar_t*() const { return m_path.c_str(); }
    operator const std::wstring*() const { return &m_path; }

    /// Replaces this path by the item; nothing for `item_path` and `item_url`.
    void as_item(pathItem item);
    /// `out` := the item, empty when there is none; nothing for `item_url`.
    void get_item(pathItem item, CPath& out) const;
    /// `out` := the item, the URL included.
    void copy_unicode_item(pathItem item, std::wstring& out) const;
    /// `out` := the item in the encoding (code page 1252), "?" for what it can't hold; empty when
    /// there is no item or it can't be converted.
    void copy_ansi_item(pathItem item, std::string& out, CStringConverter::encoding encoding) const;

    /// True exactly when the path leads to something. Links are followed, so a link that leads
    /// nowhere doesn't exist. False for the empty path.
    [[nodiscard]] bool exists() const;
    /// True when the path leads to a folder.
    [[nodiscard]] bool is_directory() const;

    /// `type` := what the registry knows of the path's extension, else what the platform tells
    /// about the file: the type in its Finder information. A path without an extension is not
    /// looked up. `type` stays as it was when nothing is found.
    void get_filetype(CFileType& type) const;

    /// Every character the same; case counts, nothing is normalised.
    [[nodiscard]] bool operator==(const CPath& other) const { return m_path == other.m_path; }

  private:
    std::wstring m_path;
};

} // namespace v20

} // namespace Corvaldine::CP
