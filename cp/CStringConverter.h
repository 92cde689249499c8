// One text in two forms, narrow (in a chosen encoding) and wide (UTF-32); the form that is missing
// is made when it is asked for. Used by the paths and file types for every narrow string that they
// take or give. It never guesses an encoding and holds no locale. Not for use from two threads.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Corvaldine::CP {

class CStringConverter {
  public:
    /// What the narrow form is written in. Any other value counts as `none`.
    enum encoding : int {
        windows_latin1 = 0, ///< code page 1252
        utf8 = 1,
        mac_roman = 2,
        mac_symbol = 3,
        windows_codepage = 4, ///< the code page given with it
        none = 5,             ///< no conversion possible
    };

    /// The code page that goes with every encoding but `windows_codepage` in this library.
    static constexpr std::uint32_t kWindowsLatin1CodePage = 1252;
    /// Stands for a character that the narrow encoding can't hold.
    static constexpr std::uint8_t kDefaultLossByte = '?';

    /// From either form; the other is absent until asked for. `codePage` counts only with
    /// `windows_codepage`. A `lossByte` of 0 means none: a conversion into a narrow encoding then
    /// stops short of the first character that can't be converted. UTF-8 loses nothing.
    CStringConverter(std::string narrow, encoding, std::uint32_t codePage,
                     std::uint8_t lossByte = kDefaultLossByte);
    CStringConverter(std::wstring wide, encoding, std::uint32_t codePage,
                     std::uint8_t lossByte = kDefaultLossByte);
    CStringConverter(const CStringConverter&) = default;
    CStringConverter(CStringConverter&&) = default;
    CStringConverter& operator=(const CStringConverter&) = default;
    CStringConverter& operator=(CStringConverter&&) = default;
    virtual ~CStringConverter();

    /// The narrow or the wide form, made from the other if needed. Throws CException code 0 when it
    /// can't be made: the encoding is `none` or not offered by the system, or the text is not valid
    /// in it. The reference lives until the next change of this object.
    operator const std::string&();
    operator const std::wstring&();

    /// Chooses the encoding of the narrow form. Nothing happens when the encoding stays the same
    /// and the code page is 0 or stays the same; otherwise the wide form is made, the narrow form
    /// is dropped and made again when it is next asked for.
    void _update_translation(encoding, std::uint32_t codePage);

  protected:
    /// One conversion; true for success. An empty text succeeds with an empty result, in every
    /// encoding; `none` fails otherwise.
    [[nodiscard]] virtual bool _translate(const std::string& narrow, std::wstring& wide);
    [[nodiscard]] virtual bool _translate(const std::wstring& wide, std::string& narrow);

  private:
    bool _make_cstr();
    bool _make_wstr();

    std::uint8_t m_lossByte;
    std::uint32_t m_codePage;
    std::optional<std::string> m_narrow;
    std::optional<std::wstring> m_wide;
    encoding m_encoding;
};

} // namespace Corvaldine::CP
