#include "tools/applyPatch/UpdatePlan.h"

#include <algorithm>

#include "tools/applyPatch/CopyCheck.h"
#include "tools/applyPatch/FreeRoom.h"
#include "tools/files/FolderChain.h"

namespace tools {

using patch::Attribute;
using patch::Entry;
using patch::Kind;
using patch::Method;
using Row = TreeJoin::Row;

namespace {

const Attribute* named(const std::vector<Attribute>& attributes, const std::string& name) {
    const auto found = std::ranges::lower_bound(attributes, name, {}, &Attribute::name);
    return found != attributes.end() && found->name == name ? &*found : nullptr;
}

std::vector<Attribute> merged(const std::vector<Attribute>& own, const Entry& before,
                              const Entry& after) {
    std::vector<Attribute> result;
    for (const Attribute& attribute : own) {
        const Attribute* was = named(before.attributes, attribute.name);
        const Attribute* becomes = named(after.attributes, attribute.name);
        const bool goes = was != nullptr && becomes == nullptr;
        const bool changes = becomes != nullptr && (was == nullptr || *was != *becomes);
        if (!goes && !changes)
            result.push_back(attribute);
    }
    for (const Attribute& attribute : after.attributes) {
        const Attribute* was = named(before.attributes, attribute.name);
        if (was == nullptr || *was != attribute)
            result.push_back(attribute);
    }
    std::ranges::sort(result, {}, &Attribute::name);
    return result;
}

bool areSame(const Metadata& one, const Metadata& other) {
    return one.owner == other.owner && one.group == other.group && one.mode == other.mode &&
           isSameTime(one.modified, other.modified) && one.attributes == other.attributes;
}

} // namespace

UpdatePlan::UpdatePlan(const TreeJoin& join, const EntryStatus& top)
    : m_join(join), m_top(top), m_copyOfOld(join.manifest().oldEntries.size()) {
    for (const Row& row : join.rows())
        if (row.before >= 0)
            m_copyOfOld[static_cast<std::size_t>(row.before)] =
                static_cast<std::uint32_t>(row.copy);
    m_entries.reserve(join.rows().size());
    for (const Row& row : join.rows()) {
        if (row.isDropped() && !join.staysForExtras(row)) {
            m_changesNothing = false;
            continue;
        }
        m_entries.push_back(planned(row));
        const PlannedEntry& entry = m_entries.back();
        if (entry.step == Step::folder)
            m_changesNothing = m_changesNothing && row.copy >= 0 &&
                               join.copy(row)->kind == Kind::folder &&
                               areSame(metadata(row), ofCopy(row.copy));
        else
            m_changesNothing = m_changesNothing && entry.step == Step::keep &&
                               (row.special >= 0 || entry.base == row.copy);
    }
}

PlannedEntry UpdatePlan::planned(const Row& row) const {
    const auto number = static_cast<std::uint32_t>(&row - m_join.rows().data());
    const patch::NewEntry* wanted = m_join.after(row);
    const Entry* own = m_join.copy(row);
    if (row.special >= 0)
        return {number, Step::keep, row.special};
    if (wanted == nullptr)
        return {number, own->kind == Kind::folder ? Step::folder : Step::keep, row.copy};
    if (wanted->entry.kind == Kind::folder)
        return {number, Step::folder, row.copy};
    if (own != nullptr && (wanted->unchanged || hasSameContent(*own, wanted->entry)))
        return fromCopy(row, row.copy);
    if (wanted->entry.kind == Kind::link)
        return {number, Step::link};
    if (wanted->method == Method::old)
        return fromCopy(row, static_cast<std::int32_t>(fileOf(wanted->base)));
    return {number, Step::content};
}

// What would come out other than the base in anything is a file of its own: the copy's must stay as
// it is until it is replaced as a whole.
PlannedEntry UpdatePlan::fromCopy(const Row& row, std::int32_t base) const {
    const auto number = static_cast<std::uint32_t>(&row - m_join.rows().data());
    const bool isLink = m_join.tree().entries[static_cast<std::size_t>(base)].kind == Kind::link;
    if (isLink || (base == row.copy && m_join.after(row)->unchanged) ||
        areSame(metadata(row), ofCopy(base)))
        return {number, Step::keep, base};
    return {number, Step::copy, base};
}

Metadata UpdatePlan::ofCopy(std::int32_t entry) const {
    const auto index = static_cast<std::size_t>(entry);
    const Entry& own = m_join.tree().entries[index];
    const EntryStatus& status = m_join.tree().statuses[index];
    return {.owner = status.owner,
            .group = status.group,
            .mode = own.mode,
            .modified = status.modified,
            .attributes = own.attributes};
}

Metadata UpdatePlan::metadata(const Row& row) const {
    const patch::NewEntry* wanted = m_join.after(row);
    const Entry* own = m_join.copy(row);
    const Entry* before = m_join.before(row);
    if (own != nullptr && (wanted == nullptr || wanted->unchanged || before == nullptr))
        return ofCopy(row.copy);
    const Entry& after = wanted->entry;
    Metadata result;
    result.modified = {.tv_sec = static_cast<time_t>(wanted->modified.seconds),
                       .tv_nsec = static_cast<long>(wanted->modified.nanoseconds)};
    const EntryStatus& like = own != nullptr ? *m_join.status(row) : folderAbove(after.path);
    result.owner = like.owner;
    result.group = like.group;
    if (own == nullptr || own->kind != after.kind || before->kind != after.kind) {
        result.mode = after.mode;
        result.attributes = after.attributes;
        return result;
    }
    result.mode = own->mode == before->mode ? after.mode : own->mode;
    result.attributes = merged(own->attributes, *before, after);
    if (isAsBefore(row, result))
        result.modified = m_join.status(row)->modified;
    return result;
}

bool UpdatePlan::isAsBefore(const Row& row, const Metadata& metadata) const {
    const Entry& own = *m_join.copy(row);
    return hasSameContent(own, m_join.after(row)->entry) && metadata.mode == own.mode &&
           metadata.attributes == own.attributes;
}

const EntryStatus& UpdatePlan::folderAbove(std::string_view path) const {
    for (path = parentPath(path); !path.empty(); path = parentPath(path)) {
        const Entry* folder = patch::entryAt(m_join.tree().entries, path);
        if (folder != nullptr)
            return m_join.tree()
                .statuses[static_cast<std::size_t>(folder - m_join.tree().entries.data())];
    }
    return m_top;
}

std::uint64_t UpdatePlan::sizeOf(const PlannedEntry& entry) const {
    if (entry.step == Step::copy)
        return m_join.tree().entries[static_cast<std::size_t>(entry.base)].size;
    return entry.step == Step::content ? wanted(entry)->entry.size : 0;
}

std::uint64_t UpdatePlan::bytesToMake() const {
    std::uint64_t bytes = 0;
    for (const PlannedEntry& entry : m_entries)
        bytes += sizeOf(entry);
    return bytes;
}

UpdatePlan::Room UpdatePlan::room(std::uint64_t block) const {
    Room room;
    for (const PlannedEntry& entry : m_entries) {
        if (entry.step == Step::keep)
            continue;
        ++room.entries;
        std::uint64_t size = sizeOf(entry);
        if (entry.step == Step::copy) // holes stay holes
            size =
                std::min(size, m_join.tree().statuses[static_cast<std::size_t>(entry.base)].room);
        else if (entry.step != Step::content)
            size = 1;
        room.bytes += inBlocks(size, block);
    }
    return room;
}

} // namespace tools
