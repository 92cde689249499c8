#include "tools/applyPatch/Examination.h"

#include <algorithm>

#include <sys/stat.h>

#include "tools/applyPatch/ApplyError.h"
#include "tools/applyPatch/Interruption.h"
#include "tools/files/Descriptor.h"

namespace tools {

namespace {

struct stat statusOf(int folder) {
    struct stat status{};
    checked(::fstat(folder, &status));
    return status;
}

Metadata topMetadata(int folder) {
    const struct stat status = statusOf(folder);
    return {.owner = status.st_uid,
            .group = status.st_gid,
            .mode = static_cast<std::uint16_t>(status.st_mode & 07777),
            .modified = modifiedTime(status),
            .attributes = treeAttributes(folder)};
}

} // namespace

Examination::Examination(const Needs& needs)
    : m_top(entryStatus(statusOf(needs.folder))), m_topMetadata(topMetadata(needs.folder)),
      m_tree(TreeReader(needs.folder).list()), m_join(m_tree, needs.manifest) {
    refuseWhatCantBeRead(needs);
    read(needs);
    m_check = checkCopy(m_join);
    if (m_check.differences.empty())
        m_plan.emplace(m_join, m_top);
}

void Examination::refuseWhatCantBeRead(const Needs& needs) const {
    const auto pathOf = [&](const std::string& path) { return needs.path + '/' + path; };
    for (const Tree::Closed& closed : m_tree.closed) {
        const std::string& path = m_tree.entries[closed.entry].path;
        if (!needs.passesClosedFolders || patch::entryAt(needs.manifest.oldEntries, path) ||
            patch::entryAt(needs.manifest.newEntries, path))
            throw refusal(pathOf(path), closed.error);
    }
    for (std::size_t i = 0; i < m_tree.entries.size(); ++i)
        if (m_tree.statuses[i].device != m_top.device)
            throw refusal(pathOf(m_tree.entries[i].path), EXDEV);
}

void Examination::read(const Needs& needs) {
    const std::vector<std::uint32_t> files = m_join.filesToRead();
    for (const std::uint32_t file : files)
        m_bytesRead += m_tree.entries[file].size;
    std::uint64_t toMake = 0;
    for (const patch::NewEntry& entry : needs.manifest.newEntries)
        if (!entry.unchanged)
            toMake += entry.entry.size;
    needs.progress.setTotal(m_bytesRead + toMake);
    TreeReader(needs.folder).addDigests(m_tree, files, [&](std::uint64_t bytes) {
        leaveIfInterrupted();
        needs.progress.add(bytes, 0);
    });
}

} // namespace tools
