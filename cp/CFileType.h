// A four-character file type code, and a process-wide registry that maps type codes to file-name
// extensions and back. CPath asks it for the type of a file. The registry is filled with common
// types on first use; callers can add to it. It isn't locked: add before other threads look up.
#pragma once

#include <cstdint>
#include <string>

namespace Corvaldine::CP {

class CFileType {
  public:
    /// '????': the four characters packed big-endian.
    static constexpr std::uint32_t kUnknownType = 0x3F3F3F3F;

    CFileType() = default;
    explicit CFileType(std::uint32_t code) : m_code(code) {}
    /// The first type registered for the extension, which may have a leading "." and counts in
    /// either case of letters; the unknown type for one that isn't registered, can't be read or is
    /// null. Narrow text is Windows Latin-1.
    explicit CFileType(const char* extension);
    explicit CFileType(const wchar_t* extension);

    void set_type(std::uint32_t code) { m_code = code; }
    [[nodiscard]] std::uint32_t get_type() const { return m_code; }
    [[nodiscard]] bool is_unknown_type() const { return m_code == kUnknownType; }
    [[nodiscard]] bool operator==(const CFileType&) const = default;

    /// `extension` := the first extension registered for this type, without a dot; "???" for a type
    /// without one. Narrow text is Windows Latin-1.
    void copy_main_extension(std::wstring& extension) const;
    void copy_main_extension(std::string& extension) const;

    /// Adds a pairing behind those that exist; adding one again changes no look-up. True for
    /// success; false when narrow text (Windows Latin-1) can't be read. A null extension throws
    /// CException code 3.
    static bool register_type(std::uint32_t code, const char* extension);
    static bool register_type(std::uint32_t code, const wchar_t* extension);

    /// Whether a type is registered for the extension (leading "." and case as above). For CPath.
    [[nodiscard]] static bool _is_registered(const std::wstring& extension);

  private:
    std::uint32_t m_code = kUnknownType;
};

} // namespace Corvaldine::CP
