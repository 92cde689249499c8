#include "tools/applyPatch/TreeJoin.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_set>

#include "tools/files/FolderChain.h"

namespace tools {

using patch::Entry;
using patch::Kind;

TreeJoin::TreeJoin(const Tree& copy, const patch::Manifest& manifest)
    : m_copy(copy), m_manifest(manifest) {
    join();
    findFoldersOfExtras();
}

void TreeJoin::join() {
    const std::array<std::size_t, 4> sizes{m_copy.entries.size(), m_manifest.oldEntries.size(),
                                           m_manifest.newEntries.size(), m_copy.specials.size()};
    constexpr std::array kMembers{&Row::copy, &Row::before, &Row::after, &Row::special};
    std::array<std::size_t, 4> next{};
    const auto pathOf = [&](std::size_t list) -> std::string_view {
        switch (list) {
        case 0:
            return m_copy.entries[next[list]].path;
        case 1:
            return m_manifest.oldEntries[next[list]].path;
        case 2:
            return m_manifest.newEntries[next[list]].entry.path;
        default:
            return m_copy.specials[next[list]].path;
        }
    };
    m_rows.reserve(std::ranges::max(sizes));
    for (;;) {
        std::optional<std::string_view> first;
        for (std::size_t list = 0; list < sizes.size(); ++list)
            if (next[list] < sizes[list] && (!first || patch::pathOrder(pathOf(list), *first)))
                first = pathOf(list);
        if (!first)
            return;
        Row row;
        for (std::size_t list = 0; list < sizes.size(); ++list)
            if (next[list] < sizes[list] && pathOf(list) == *first)
                row.*kMembers[list] = static_cast<std::int32_t>(next[list]++);
        m_rows.push_back(row);
    }
}

// From the last to the first: what is in a folder comes before the folder.
void TreeJoin::findFoldersOfExtras() {
    m_holdsExtras.resize(m_rows.size());
    std::unordered_set<std::string_view> folders;
    for (std::size_t i = m_rows.size(); i-- > 0;) {
        const std::string_view own = path(m_rows[i]);
        m_holdsExtras[i] = folders.contains(own);
        if (m_rows[i].isExtra() || m_holdsExtras[i])
            folders.insert(parentPath(own));
    }
}

std::string_view TreeJoin::path(const Row& row) const {
    if (row.copy >= 0)
        return copy(row)->path;
    if (row.before >= 0)
        return before(row)->path;
    if (row.after >= 0)
        return after(row)->entry.path;
    return m_copy.specials[static_cast<std::size_t>(row.special)].path;
}

const Entry* TreeJoin::copy(const Row& row) const {
    return row.copy < 0 ? nullptr : &m_copy.entries[static_cast<std::size_t>(row.copy)];
}

const EntryStatus* TreeJoin::status(const Row& row) const {
    if (row.special >= 0)
        return &m_copy.specials[static_cast<std::size_t>(row.special)].status;
    return row.copy < 0 ? nullptr : &m_copy.statuses[static_cast<std::size_t>(row.copy)];
}

const Entry* TreeJoin::before(const Row& row) const {
    return row.before < 0 ? nullptr : &m_manifest.oldEntries[static_cast<std::size_t>(row.before)];
}

const patch::NewEntry* TreeJoin::after(const Row& row) const {
    return row.after < 0 ? nullptr : &m_manifest.newEntries[static_cast<std::size_t>(row.after)];
}

bool TreeJoin::staysForExtras(const Row& row) const {
    return row.isDropped() && m_holdsExtras[static_cast<std::size_t>(&row - m_rows.data())];
}

std::vector<std::uint32_t> TreeJoin::filesToRead() const {
    std::vector<std::uint32_t> files;
    for (const Row& row : m_rows) {
        const Entry* file = copy(row);
        if (file == nullptr || file->kind != Kind::file)
            continue;
        const auto isLike = [&](const Entry* other) {
            return other != nullptr && other->kind == Kind::file && other->size == file->size;
        };
        if (isLike(before(row)) || (after(row) != nullptr && isLike(&after(row)->entry)))
            files.push_back(static_cast<std::uint32_t>(row.copy));
    }
    return files;
}

} // namespace tools
