// What makes a manifest valid; see Manifest.h.
#include <algorithm>
#include <string>

#include "patcher/format/Manifest.h"

namespace patch {

namespace {

constexpr std::uint16_t kMostMode = 07777;
constexpr std::uint32_t kNanosecondsOfSecond = 1'000'000'000;

[[noreturn]] void refuse(std::string_view path, std::string_view what) {
    std::string shown(path.substr(0, 200));
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; }, '?');
    throw FormatError("The manifest's entry \"" + shown + "\" " + std::string(what) + ".");
}

bool hasNul(std::string_view text) {
    return text.find('\0') != std::string_view::npos;
}

bool isPath(std::string_view path) {
    if (path.empty() || path.size() > kLongestPath || hasNul(path))
        return false;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name.empty() || name.size() > kLongestName || name == "." || name == "..")
            return false;
        begin = end + 1;
    }
    return true;
}

void checkContent(const Entry& entry) {
    switch (entry.kind) {
    case Kind::folder:
        if (entry.size != 0 || entry.digest != Digest{} || !entry.target.empty())
            refuse(entry.path, "is a folder with content");
        return;
    case Kind::file:
        if (entry.size > kLargestFile)
            refuse(entry.path, "is larger than a file may be");
        if (!entry.target.empty())
            refuse(entry.path, "is a file with a target");
        return;
    case Kind::link:
        if (entry.target.empty() || entry.target.size() >= kLongestPath || hasNul(entry.target))
            refuse(entry.path, "is a link without a proper target");
        if (entry.size != 0 || entry.digest != Digest{} || entry.mode != 0 ||
            !entry.attributes.empty())
            refuse(entry.path, "is a link with more than a target");
        return;
    }
    refuse(entry.path, "is of an unknown kind");
}

void checkAttributes(const Entry& entry) {
    const Attribute* before = nullptr;
    for (const Attribute& attribute : entry.attributes) {
        if (attribute.name.empty() || attribute.name.size() > kLongestName ||
            hasNul(attribute.name) || (before && before->name >= attribute.name))
            refuse(entry.path, "has attributes without proper names");
        before = &attribute;
    }
}

// Follows a list in its order and knows the folders that are open at each place.
class TreeOrder {
  public:
    void check(const Entry& entry) {
        if (!isPath(entry.path))
            refuse(entry.path, "has no proper path");
        if (m_last && !pathOrder(m_last->path, entry.path))
            refuse(entry.path, "stands out of order");
        while (!m_open.empty() && !isIn(entry.path, *m_open.back()))
            m_open.pop_back();
        const std::size_t slash = entry.path.rfind('/');
        const std::size_t parentLength = slash == std::string::npos ? 0 : slash;
        if (parentLength != (m_open.empty() ? 0 : m_open.back()->size()))
            refuse(entry.path, "lies in no folder of the list");
        if (entry.kind == Kind::folder)
            m_open.push_back(&entry.path);
        m_last = &entry;
    }

  private:
    static bool isIn(std::string_view path, const std::string& folder) {
        return path.size() > folder.size() && path.starts_with(folder) &&
               path[folder.size()] == '/';
    }

    const Entry* m_last = nullptr;
    std::vector<const std::string*> m_open;
};

void checkEntry(const Entry& entry, TreeOrder& order) {
    order.check(entry);
    if (entry.mode > kMostMode)
        refuse(entry.path, "has no proper mode");
    checkContent(entry);
    checkAttributes(entry);
}

// Follows the blocks, which must lie one after another.
class BlockOrder {
  public:
    explicit BlockOrder(std::uint64_t dataLength) : m_dataLength(dataLength) {}

    void check(const NewEntry& fresh) {
        if (!hasBlock(fresh.method)) {
            if (fresh.offset != 0 || fresh.length != 0)
                refuse(fresh.entry.path, "has a block and needs none");
            return;
        }
        if (fresh.length == 0 || fresh.offset != m_end || fresh.length > m_dataLength - m_end)
            refuse(fresh.entry.path, "has no proper block");
        m_end += fresh.length;
    }
    void checkEnd() const {
        if (m_end != m_dataLength)
            throw FormatError("The patch's data do not end with the last block.");
    }

  private:
    std::uint64_t m_dataLength;
    std::uint64_t m_end = 0;
};

void checkMethod(const NewEntry& fresh, const std::vector<Entry>& oldEntries) {
    static const Digest kOfNothing = digestOf(View{});
    const Entry& entry = fresh.entry;
    if (fresh.method > Method::delta)
        refuse(entry.path, "comes about in an unknown way");
    const bool hasContent = entry.kind == Kind::file && entry.size > 0;
    if (hasContent != (fresh.method != Method::nothing))
        refuse(entry.path, hasContent ? "comes from nowhere" : "has no content and a method");
    if (entry.kind == Kind::file && !hasContent && entry.digest != kOfNothing)
        refuse(entry.path, "is empty and has another digest");
    if (!hasBase(fresh.method)) {
        if (fresh.base != 0)
            refuse(entry.path, "has a base and needs none");
        return;
    }
    if (fresh.base >= oldEntries.size() || oldEntries[fresh.base].kind != Kind::file)
        refuse(entry.path, "has no proper base");
    const Entry& base = oldEntries[fresh.base];
    if (fresh.method == Method::old && (base.size != entry.size || base.digest != entry.digest))
        refuse(entry.path, "has a base of other content");
}

void checkUnchanged(const NewEntry& fresh, const std::vector<Entry>& oldEntries) {
    if (!fresh.unchanged)
        return;
    if (*fresh.unchanged >= oldEntries.size() || oldEntries[*fresh.unchanged] != fresh.entry ||
        (fresh.method == Method::old ? fresh.base != *fresh.unchanged
                                     : fresh.method != Method::nothing) ||
        fresh.modified != Time{})
        refuse(fresh.entry.path, "is not what it was");
}

} // namespace

void validate(const Manifest& manifest, std::uint64_t dataLength) {
    if (std::max(manifest.oldEntries.size(), manifest.newEntries.size()) > kMostEntries)
        throw FormatError("The trees have more entries than a patch may have.");
    TreeOrder oldOrder;
    for (const Entry& entry : manifest.oldEntries)
        checkEntry(entry, oldOrder);
    TreeOrder newOrder;
    BlockOrder blocks(dataLength);
    for (const NewEntry& fresh : manifest.newEntries) {
        checkEntry(fresh.entry, newOrder);
        if (fresh.modified.nanoseconds >= kNanosecondsOfSecond)
            refuse(fresh.entry.path, "has no proper time");
        checkMethod(fresh, manifest.oldEntries);
        checkUnchanged(fresh, manifest.oldEntries);
        blocks.check(fresh);
    }
    blocks.checkEnd();
    for (const CategoryItem& item : manifest.categoryItems)
        if (item.item.empty() || hasNul(item.item) || !isPath(item.path))
            refuse(item.path, "is no proper category item");
}

} // namespace patch
