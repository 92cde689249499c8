#include "rules/ecRules.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <numeric>
#include <system_error>

#include <utf8proc.h>

namespace ec {

namespace {

constexpr std::string_view kFileName = "Customizer.rules.txt";
constexpr std::size_t kMostBytes = std::numeric_limits<std::int32_t>::max();
constexpr char kFieldEnd = '|';
enum FieldNumber : std::size_t { kName, kFlag, kDesc, kMethod, kFirstFile };

/// Calls `use` with each piece of `text` between separators; n separators make n + 1 pieces.
template <class Use>
void forEachPiece(std::string_view text, char separator, Use use) {
    for (std::size_t end; (end = text.find(separator)) != std::string_view::npos;) {
        use(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    use(text);
}

enum class LineKind { group, member, noItem };

/// What a line is in the tree. Looks no further than its flag, as whole files are scanned with it.
LineKind kindOf(std::string_view line) {
    const std::size_t name = line.find(kFieldEnd);
    if (name == std::string_view::npos)
        return LineKind::noItem;
    line.remove_prefix(name + 1);
    return line == "0" || line.starts_with("0|") ? LineKind::group : LineKind::member;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        if (static_cast<unsigned char>(text.front()) < 0x80) {
            text.remove_prefix(1);
            continue;
        }
        utf8proc_int32_t character = 0;
        const auto length =
            utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                             static_cast<utf8proc_ssize_t>(text.size()), &character);
        if (length <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
}

/// None where the constructor promises no lines.
std::optional<std::string> textOf(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               &std::fclose);
    if (error || size > kMostBytes || !file)
        return std::nullopt;
    std::string text;
    text.reserve(static_cast<std::size_t>(size));
    // To its end, not for its size: it may have changed since, and some files don't tell theirs.
    std::array<char, 64 * 1024> block{};
    while (const std::size_t got = std::fread(block.data(), 1, block.size(), file.get())) {
        text.append(block.data(), got);
        if (text.size() > kMostBytes)
            return std::nullopt;
    }
    if (std::ferror(file.get()) != 0 || !isUtf8(text))
        return std::nullopt;
    return text;
}

} // namespace

ecRules::ecRules(const std::string& resourceFolder) {
    auto text = textOf(std::filesystem::path(resourceFolder) / kFileName);
    if (!text)
        return;
    m_text = *std::move(text);
    splitLines();
}

ecRules::ecRules(FromText, std::string text) : m_text(std::move(text)) {
    splitLines();
}

ecRules& ecRules::mainRules(const std::string& resourceFolder) {
    static ecRules rules(resourceFolder);
    return rules;
}

void ecRules::splitLines() {
    m_rules.reserve(static_cast<std::size_t>(std::ranges::count(m_text, '\n')) + 1);
    forEachPiece(m_text, '\n', [this](std::string_view line) { m_rules.push_back(line); });
    m_preChecks.resize(m_rules.size());
    m_postChecks.resize(m_rules.size());
}

bool ecRules::_getRule(std::uint32_t item) const {
    if (item >= count())
        return false;
    if (m_lastItem != static_cast<std::int32_t>(item)) {
        m_lastItem = -1; // no half-filled cache is ever taken for whole
        m_array.clear();
        forEachPiece(m_rules[item], kFieldEnd,
                     [this](std::string_view field) { m_array.push_back(field); });
        m_lastItem = static_cast<std::int32_t>(item);
    }
    return true;
}

std::optional<std::string_view> ecRules::field(std::uint32_t item, std::size_t number) const {
    if (!_getRule(item) || number >= m_array.size())
        return std::nullopt;
    return m_array[number];
}

std::optional<std::string_view> ecRules::getItemName(std::uint32_t item) const {
    return field(item, kName);
}

std::optional<std::string_view> ecRules::getItemFlag(std::uint32_t item) const {
    return field(item, kFlag);
}

std::optional<std::string_view> ecRules::getItemDesc(std::uint32_t item) const {
    return field(item, kDesc);
}

std::optional<std::string_view> ecRules::getItemMethod(std::uint32_t item) const {
    return field(item, kMethod);
}

std::optional<std::vector<std::string>> ecRules::getItemFiles(std::uint32_t item) const {
    if (!_getRule(item) || m_array.size() <= kFirstFile)
        return std::nullopt;
    return std::vector<std::string>(m_array.begin() + kFirstFile, m_array.end());
}

std::optional<std::vector<std::uint32_t>> ecRules::getItemChildren(std::uint32_t item) const {
    if (item >= count() || kindOf(m_rules[item]) != LineKind::group)
        return std::nullopt;
    std::uint32_t end = item + 1;
    while (end < count() && kindOf(m_rules[end]) == LineKind::member)
        ++end;
    std::vector<std::uint32_t> members(end - item - 1);
    if (members.empty())
        return std::nullopt;
    std::iota(members.begin(), members.end(), item + 1);
    return members;
}

std::optional<std::vector<std::uint32_t>> ecRules::getRootItemChildren() const {
    std::vector<std::uint32_t> groups;
    for (std::uint32_t item = 0; item < count(); ++item) {
        const LineKind kind = kindOf(m_rules[item]);
        if (kind == LineKind::noItem)
            break;
        if (kind == LineKind::group)
            groups.push_back(item);
    }
    if (groups.empty())
        return std::nullopt;
    return groups;
}

void ecRules::setInitialItemState(std::uint32_t item, std::int32_t state) {
    if (item < m_preChecks.size())
        m_preChecks[item] = static_cast<std::uint32_t>(state);
    setItemState(item, state);
}

void ecRules::setItemState(std::uint32_t item, std::int32_t state) {
    if (item < m_postChecks.size())
        m_postChecks[item] = static_cast<std::uint32_t>(state);
}

std::int32_t ecRules::getItemState(std::uint32_t item) const {
    return item < m_postChecks.size() ? static_cast<std::int32_t>(m_postChecks[item]) : 0;
}

std::int32_t ecRules::getItemInitialState(std::uint32_t item) const {
    return item < m_preChecks.size() ? static_cast<std::int32_t>(m_preChecks[item]) : 0;
}

} // namespace ec
