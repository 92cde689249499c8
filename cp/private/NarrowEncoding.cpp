#include "cp/private/NarrowEncoding.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <iconv.h>

#include "cp/private/MacTables.h"
#include "cp/private/SingleByteTable.h"
#include "cp/private/Utf.h"

namespace Corvaldine::CP::Private {

namespace {

constexpr const char* kWide = "UTF-32LE";
constexpr std::size_t kFailed = static_cast<std::size_t>(-1);

class Iconv {
  public:
    Iconv(const std::string& to, const std::string& from)
        : m_handle(iconv_open(to.c_str(), from.c_str())) {}
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;
    ~Iconv() {
        if (isOffered())
            iconv_close(m_handle);
    }

    // iconv_open answers -1 as a pointer for an encoding it doesn't know.
    bool isOffered() const { return reinterpret_cast<std::intptr_t>(m_handle) != -1; }

    // Converts as far as it goes, drops what was converted from `in` and adds to `out`; answers the
    // error that stopped it, 0 for none.
    template <class Out>
    int convert(std::string_view& in, Out& out) {
        std::array<char, 4096> block; // NOLINT(*-member-init): iconv fills what is read
        for (;;) {
            char* from = const_cast<char*>(in.data());
            std::size_t left = in.size();
            char* to = block.data();
            std::size_t room = block.size();
            // Without input: what a stateful encoding still holds back is written.
            const std::size_t result = in.empty() ? iconv(m_handle, nullptr, nullptr, &to, &room)
                                                  : iconv(m_handle, &from, &left, &to, &room);
            const int error = result == kFailed ? errno : 0;
            const bool flushed = in.empty();
            out(std::string_view(block.data(), block.size() - room));
            in.remove_prefix(in.size() - left);
            if (error != 0 && error != E2BIG)
                return error;
            if (error == 0 && flushed)
                return 0;
        }
    }

  private:
    iconv_t m_handle;
};

bool iconvToWide(const std::string& encoding, std::string_view bytes, std::wstring& out) {
    Iconv converter(kWide, encoding);
    if (!converter.isOffered())
        return false;
    std::string wide;
    auto append = [&wide](std::string_view part) { wide.append(part); };
    if (converter.convert(bytes, append) != 0)
        return false;
    out.resize(wide.size() / sizeof(wchar_t));
    std::copy_n(wide.data(), out.size() * sizeof(wchar_t), reinterpret_cast<char*>(out.data()));
    return true;
}

// glibc drops tag characters without a word; no narrow encoding holds them, so they are counted
// among the characters that can't be converted.
bool isTag(wchar_t c) {
    return c >= 0xE0000 && c <= 0xE007F;
}

bool iconvToNarrow(const std::string& encoding, std::uint8_t lossByte, std::wstring_view text,
                   std::string& out) {
    Iconv converter(encoding, kWide);
    if (!converter.isOffered())
        return false;
    auto append = [&out](std::string_view part) { out.append(part); };
    while (!text.empty()) {
        const auto tag =
            static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isTag) - text.begin());
        std::string_view bytes(reinterpret_cast<const char*>(text.data()), tag * sizeof(wchar_t));
        const int error = converter.convert(bytes, append);
        if (error != 0 && error != EILSEQ)
            return false;
        text.remove_prefix(tag - bytes.size() / sizeof(wchar_t));
        if (text.empty())
            break;
        if (lossByte == 0)
            break;
        text.remove_prefix(1);
        out.push_back(static_cast<char>(lossByte));
    }
    return true;
}

const SingleByteTable* tableOf(std::string_view encoding) {
    static const SingleByteTable roman(kMacRomanCharacters);
    static const SingleByteTable symbol(kMacSymbolCharacters, {0xE2, 0xE3, 0xE4});
    if (encoding == kMacRoman)
        return &roman;
    return encoding == kMacSymbol ? &symbol : nullptr;
}

bool isValid(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](wchar_t c) { return is_scalar_value(static_cast<char32_t>(c)); });
}

} // namespace

bool narrow_to_wide(std::string_view encoding, std::string_view bytes, std::wstring& out) {
    out.clear();
    if (encoding == kUtf8)
        return utf8_to_utf32(bytes, out);
    if (const SingleByteTable* table = tableOf(encoding))
        return table->toWide(bytes, out);
    return !encoding.empty() && iconvToWide(std::string(encoding), bytes, out);
}

bool wide_to_narrow(std::string_view encoding, std::uint8_t lossByte, std::wstring_view text,
                    std::string& out) {
    out.clear();
    if (encoding == kUtf8)
        return utf32_to_utf8(text, out);
    if (encoding.empty() || !isValid(text))
        return false;
    if (const SingleByteTable* table = tableOf(encoding)) {
        table->toNarrow(text, lossByte, out);
        return true;
    }
    if (!iconvToNarrow(std::string(encoding), lossByte, text, out)) {
        out.clear();
        return false;
    }
    return true;
}

} // namespace Corvaldine::CP::Private
