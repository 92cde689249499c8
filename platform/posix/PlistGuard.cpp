#include "platform/posix/PlistGuard.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace posix {

namespace {

/// Follows the tags of an XML list closely enough never to count fewer open elements than the
/// library does: what it can't place exactly counts as one more, or makes the list unsafe.
class XmlOutline {
  public:
    explicit XmlOutline(std::string_view text) : m_text(text) {}

    bool isSafe() {
        while (const auto tag = nextTag())
            if (!count(*tag))
                return false;
        return !m_broken;
    }

  private:
    /// The next tag without its angle brackets; comments, instructions and character data are
    /// passed over.
    std::optional<std::string_view> nextTag() {
        for (;;) {
            const std::size_t begin = m_at;
            m_at = std::min(m_text.find('<', m_at), m_text.size());
            if (!moves(m_text.substr(begin, m_at - begin)) || m_at == m_text.size())
                return std::nullopt;
            if (skip("<!--", "-->") || skip("<![CDATA[", "]]>") || skip("<?", "?>"))
                continue;
            if (m_broken)
                return std::nullopt;
            const std::size_t end = m_text.find('>', m_at);
            if (end == std::string_view::npos)
                return std::nullopt;
            const std::string_view tag = m_text.substr(m_at + 1, end - m_at - 1);
            m_at = end + 1;
            return tag;
        }
    }

    bool moves(std::string_view text) {
        m_moves += static_cast<std::uint64_t>(std::ranges::count(text, '&')) * text.size();
        m_broken = m_broken || m_moves > PlistLimits::kCharacterMoves;
        return !m_broken;
    }

    bool skip(std::string_view opening, std::string_view closing) {
        if (m_text.substr(m_at, opening.size()) != opening)
            return false;
        const std::size_t end = m_text.find(closing, m_at + opening.size());
        m_broken = m_broken || end == std::string_view::npos;
        m_at = m_broken ? m_text.size() : end + closing.size();
        return !m_broken;
    }

    bool count(std::string_view tag) {
        if (tag.starts_with("!")) // a document type; one with declarations of its own is refused
            return tag.starts_with("!DOCTYPE") && tag.find('[') == std::string_view::npos;
        if (tag.starts_with("/"))
            m_depth = std::max(m_depth - 1, 0);
        else if (!tag.ends_with("/") || tag.find_first_of("\"'") != std::string_view::npos)
            ++m_depth;
        // The outermost "plist" element is no level of the list.
        return m_depth <= PlistLimits::kDepth + 1;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
    std::uint64_t m_moves = 0;
    bool m_broken = false;
};

/// A binary list's objects as a graph (the format is described in the comments of CoreFoundation's
/// CFBinaryPList.c: "bplist00", objects, table of their offsets, 32 bytes of trailer).
class BinaryOutline {
  public:
    explicit BinaryOutline(std::string_view bytes) : m_bytes(bytes) {}

    bool isSafe() {
        constexpr std::size_t kTrailer = 32;
        if (m_bytes.size() < kHeader + kTrailer)
            return false;
        const std::size_t trailer = m_bytes.size() - kTrailer;
        const std::uint64_t offsetWidth = number(trailer + 6, 1);
        m_referenceWidth = number(trailer + 7, 1);
        const std::uint64_t count = number(trailer + 8, 8);
        const std::uint64_t top = number(trailer + 16, 8);
        const std::uint64_t table = number(trailer + 24, 8);
        if (offsetWidth < 1 || offsetWidth > 8 || m_referenceWidth < 1 || m_referenceWidth > 8 ||
            table < kHeader || table > trailer || count > (trailer - table) / offsetWidth ||
            top >= count)
            return false;
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::uint64_t offset = number(table + i * offsetWidth, offsetWidth);
            if (offset < kHeader || offset >= table)
                return false;
            m_offsets.push_back(offset);
        }
        m_end = table;
        m_measured.resize(m_offsets.size());
        return measure(top, 0);
    }

  private:
    static constexpr std::size_t kHeader = 8;
    /// What an object or a reference to it costs at least, in the library's own bookkeeping.
    static constexpr std::uint64_t kOverhead = 16;

    struct Measure {
        std::uint64_t cost = 0; ///< bytes when every reference is followed; 0: not measured yet
        int height = 0;         ///< levels below it
        bool isOpen = false;    ///< on the way down from the top: a reference to it is a circle
    };

    /// `width` bytes, big-endian, which the caller knows to be there.
    std::uint64_t number(std::uint64_t at, std::uint64_t width) const {
        std::uint64_t value = 0;
        for (std::uint64_t i = 0; i < width; ++i)
            value = value << 8 | static_cast<unsigned char>(m_bytes[at + i]);
        return value;
    }

    /// The element count of the object at `at`, which is moved to what follows it.
    std::optional<std::uint64_t> length(std::uint64_t& at) const {
        const std::uint64_t nibble = number(at++, 1) & 0xF;
        if (nibble != 0xF)
            return nibble;
        if (at >= m_end || number(at, 1) > 0x13 || number(at, 1) < 0x10)
            return std::nullopt;
        const std::uint64_t width = std::uint64_t{1} << (number(at++, 1) & 0xF);
        if (width > m_end - at)
            return std::nullopt;
        at += width;
        return number(at - width, width);
    }

    /// Measures the object and all below it. False when that is too much, or runs in a circle or
    /// out of the list.
    bool measure(std::uint64_t index, int depth) {
        Measure& own = m_measured[index];
        if (own.cost != 0)
            return true;
        if (depth > PlistLimits::kDepth || own.isOpen)
            return false;
        own.isOpen = true;
        std::uint64_t at = m_offsets[index];
        const std::uint64_t kind = number(at, 1) >> 4;
        const bool hasLength = kind >= 4 && kind != 8;
        const auto count = hasLength ? length(at) : std::optional(number(at, 1) & 0xF);
        if (!count || *count > PlistLimits::kBytes)
            return false;
        own.cost = kOverhead;
        const bool isArray = kind == 0xA || kind == 0xB || kind == 0xC;
        const bool isDictionary = kind == 0xD;
        if (isArray || isDictionary) {
            if (!measureBelow(own, at, isArray ? *count : 2 * *count, depth) ||
                (isDictionary && !haveGoodKeys(at, *count)))
                return false;
        } else {
            own.cost += hasLength ? 2 * *count : 0;
        }
        own.isOpen = false;
        return own.cost <= PlistLimits::kBytes && own.height <= PlistLimits::kDepth;
    }

    bool measureBelow(Measure& own, std::uint64_t at, std::uint64_t references, int depth) {
        if (references > (m_end - at) / m_referenceWidth)
            return false;
        std::uint64_t cost = own.cost;
        own.cost = 0;
        for (std::uint64_t i = 0; i < references; ++i) {
            const std::uint64_t below = number(at + i * m_referenceWidth, m_referenceWidth);
            if (++m_followed > PlistLimits::kBytes / kOverhead || below >= m_measured.size() ||
                !measure(below, depth + 1))
                return false;
            cost += m_measured[below].cost;
            own.height = std::max(own.height, m_measured[below].height + 1);
            if (cost > PlistLimits::kBytes)
                return false;
        }
        own.cost = cost;
        return true;
    }

    /// Are the references at `at` strings without a zero in them? The library takes a key with
    /// one for a fault of its own and ends the program.
    bool haveGoodKeys(std::uint64_t at, std::uint64_t count) const {
        for (std::uint64_t i = 0; i < count; ++i)
            if (!isGoodKey(m_offsets[number(at + i * m_referenceWidth, m_referenceWidth)]))
                return false;
        return true;
    }

    bool isGoodKey(std::uint64_t at) const {
        const std::uint64_t kind = number(at, 1) >> 4;
        const std::uint64_t width = kind == 5 ? 1 : 2;
        const auto count = length(at);
        if ((kind != 5 && kind != 6) || !count || *count > (m_end - at) / width)
            return false;
        for (std::uint64_t i = 0; i < *count; ++i)
            if (number(at + i * width, width) == 0)
                return false;
        return true;
    }

    std::string_view m_bytes;
    std::vector<std::uint64_t> m_offsets;
    std::vector<Measure> m_measured;
    std::uint64_t m_referenceWidth = 1;
    std::uint64_t m_end = 0;
    std::uint64_t m_followed = 0;
};

} // namespace

bool isSafePlist(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > PlistLimits::kBytes)
        return false;
    if (bytes.starts_with("bplist00"))
        return BinaryOutline(bytes).isSafe();
    // XML has no zeros; the library takes one in a key or a text for its end, but not its length.
    return !bytes.starts_with("bplist") && bytes.find('\0') == std::string_view::npos &&
           XmlOutline(bytes).isSafe();
}

} // namespace posix
