#include "tools/applyPatch/CopyCheck.h"

namespace tools {

using patch::Entry;
using patch::Kind;
using Row = TreeJoin::Row;

namespace {

constexpr const char* kKinds[] = {"a folder", "a file", "a symbolic link"};

std::string kindText(Kind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

/// What is wrong with an entry of the old version; empty when nothing is.
std::string fault(const TreeJoin& join, const Row& row) {
    const Entry& expected = *join.before(row);
    if (row.special >= 0)
        return "is a pipe, socket or device instead of " + kindText(expected.kind);
    const Entry* found = join.copy(row);
    if (found == nullptr)
        return "is missing";
    if (found->kind != expected.kind)
        return "is " + kindText(found->kind) + " instead of " + kindText(expected.kind);
    if (hasSameContent(*found, expected))
        return {};
    return expected.kind == Kind::link ? "leads elsewhere" : "has other content";
}

/// What becomes of no folder any more, so that nothing can be left in it.
bool ceasesToBeAFolder(const TreeJoin& join, const Row& row) {
    return join.after(row) != nullptr && join.after(row)->entry.kind != Kind::folder &&
           join.copy(row) != nullptr && join.copy(row)->kind == Kind::folder;
}

std::vector<Difference> differences(const TreeJoin& join) {
    std::vector<Difference> found;
    const auto report = [&](const Row& row, std::string text) {
        found.push_back({std::string(join.path(row)), std::move(text)});
    };
    std::string closedTo; // the folder that ceases to be one, with a slash behind
    for (const Row& row : join.rows()) {
        const std::string_view path = join.path(row);
        if (row.before >= 0) {
            if (std::string text = fault(join, row); !text.empty())
                report(row, std::move(text));
        } else if (!closedTo.empty() && path.starts_with(closedTo)) {
            report(row, "was put where the new version has no folder");
        } else if (row.after >= 0 && join.status(row) != nullptr &&
                   (row.special >= 0 || !hasSameContent(*join.copy(row), join.after(row)->entry))) {
            report(row, "was put where the new version has " +
                            kindText(join.after(row)->entry.kind) + " of its own");
        }
        if (row.before >= 0 && ceasesToBeAFolder(join, row))
            closedTo = std::string(path) + '/';
    }
    return found;
}

bool hasNewContent(const TreeJoin& join) {
    for (const Row& row : join.rows()) {
        const Entry* found = join.copy(row);
        if (const patch::NewEntry* wanted = join.after(row)) {
            if (found == nullptr || !hasSameContent(*found, wanted->entry))
                return false;
        } else if (row.isDropped() && found != nullptr &&
                   hasSameContent(*found, *join.before(row)) && !join.staysForExtras(row)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool hasSameContent(const Entry& one, const Entry& other) {
    return one.kind == other.kind && one.size == other.size && one.digest == other.digest &&
           one.target == other.target;
}

CopyCheck checkCopy(const TreeJoin& join) {
    return {.differences = differences(join), .hasNewContent = hasNewContent(join)};
}

} // namespace tools
