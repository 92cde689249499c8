#include "ui/TranslationFile.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace ui {

namespace {

constexpr std::string_view kMagic =
    "\x3C\xB8\x64\x18\xCA\xEF\x9C\x95\xCD\x21\x1C\xBF\x60\xA1\xBD\xDD";
constexpr std::size_t kMostBytes = 64 * 1024 * 1024;
/// A message has a translation for each of at most six numbers, three texts to find it by, its end.
constexpr int kMostParts = 16;

enum class Section : std::uint8_t {
    hashes = 0x42,
    messages = 0x69,
    numerusRules = 0x88,
    language = 0xA7,
};
enum class Part : std::uint8_t {
    end = 1,
    translation = 3,
    sourceText = 6,
    context = 7,
    comment = 8,
};

/// Takes from the front of the bytes; none where they don't suffice.
class Cursor {
  public:
    explicit Cursor(std::string_view bytes) : m_rest(bytes) {}

    bool atEnd() const { return m_rest.empty(); }
    std::optional<std::uint8_t> byte() {
        const auto taken = take(1);
        return taken ? std::optional(static_cast<std::uint8_t>(taken->front())) : std::nullopt;
    }
    std::optional<std::uint32_t> number() {
        const auto taken = take(4);
        if (!taken)
            return std::nullopt;
        std::uint32_t value = 0;
        for (const char c : *taken)
            value = value << 8 | static_cast<std::uint8_t>(c);
        return value;
    }
    /// A length and so many bytes.
    std::optional<std::string_view> block() {
        const auto length = number();
        return length ? take(*length) : std::nullopt;
    }

  private:
    std::optional<std::string_view> take(std::size_t count) {
        if (count > m_rest.size())
            return std::nullopt;
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }

    std::string_view m_rest;
};

bool isMessage(std::string_view bytes) {
    Cursor cursor(bytes);
    for (int parts = 0; parts < kMostParts; ++parts) {
        const auto part = cursor.byte();
        if (!part)
            return false;
        switch (static_cast<Part>(*part)) {
        case Part::end:
            return true;
        case Part::translation:
        case Part::sourceText:
        case Part::context:
        case Part::comment:
            if (!cursor.block())
                return false;
            break;
        default:
            return false;
        }
    }
    return false;
}

/// Each entry: the hash of a text, and where its message begins.
bool agree(std::string_view hashes, std::string_view messages) {
    Cursor cursor(hashes);
    while (!cursor.atEnd()) {
        const auto hash = cursor.number();
        const auto offset = cursor.number();
        if (!hash || !offset || *offset >= messages.size() || !isMessage(messages.substr(*offset)))
            return false;
    }
    return true;
}

} // namespace

bool isTranslationFile(std::string_view bytes) {
    if (bytes.size() > kMostBytes || !bytes.starts_with(kMagic))
        return false;
    std::optional<std::string_view> hashes, messages;
    Cursor cursor(bytes.substr(kMagic.size()));
    while (!cursor.atEnd()) {
        const auto section = cursor.byte();
        const auto block = cursor.block();
        if (!block)
            return false;
        switch (static_cast<Section>(*section)) {
        case Section::hashes:
            hashes = block;
            break;
        case Section::messages:
            messages = block;
            break;
        case Section::numerusRules:
        case Section::language:
            break;
        default:
            return false;
        }
    }
    return hashes && messages && agree(*hashes, *messages);
}

} // namespace ui
