// Builds the new version of a copy in an empty folder, by an UpdatePlan, on all cores. The copy is
// only read: what stays is a further name of the copy's own file where the file system has such,
// and nothing that is written is a file of the copy. Used by Update.
//
// What was hashed is what is taken: a file of the copy that is not the very one that was checked,
// or changed since, ends the run. What comes of a block is hashed while it is written.
#pragma once

#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "patcher/format/PatchFile.h"
#include "tools/applyPatch/UpdatePlan.h"
#include "tools/files/ContentCopier.h"
#include "tools/files/Descriptor.h"
#include "tools/files/FolderChain.h"
#include "tools/files/Progress.h"

namespace tools {

class TreeBuilder {
  public:
    struct Needs {
        const UpdatePlan& plan;
        const patch::PatchReader& patch;
        int copy;         ///< the copy's folder
        int top;          ///< the folder that is built in
        std::string path; ///< of that folder, for messages
        Progress& progress;
    };

    explicit TreeBuilder(Needs needs) : m_needs(std::move(needs)) {}

    /// Call once. Throws FileError, named from the top on; ApplyError for a patch that does not
    /// make what it says; Interrupted. What was built then stays for the caller to remove.
    void build();

  private:
    /// Each core's own.
    struct Worker {
        explicit Worker(const Needs& needs) : from(needs.copy), to(needs.top) {}
        FolderChain from;
        FolderChain to;
    };
    template <typename Work>
    void forEach(const std::vector<const PlannedEntry*>& entries, Work work);

    std::vector<const PlannedEntry*> entriesOf(bool (*isChosen)(Step)) const;
    void makeFolders();
    void make(const PlannedEntry& entry, Worker& worker);
    void makeContent(const PlannedEntry& entry, int file, Worker& worker);
    void copyContent(std::uint32_t base, int file, Worker& worker);
    void makeLink(const patch::Entry& entry, const Metadata& metadata, Worker& worker);
    void keep(const PlannedEntry& entry, Worker& worker);
    void findShared();
    /// When the file's status changed by it; none when the file system gives no further name.
    std::optional<timespec> nameOnceMore(const PlannedEntry& entry, const timespec& changed,
                                         Worker& worker);
    void copyKept(const PlannedEntry& entry, Worker& worker);
    Descriptor newFile(const std::string& path, Worker& worker);
    void finish(int file, const Metadata& metadata);
    void finishFolders();
    Descriptor openBase(std::uint32_t base, Worker& worker);
    void checkBase(std::uint32_t base, int file) const;
    const EntryStatus& baseStatus(const PlannedEntry& entry) const;
    const std::string& basePath(const PlannedEntry& entry) const;
    bool isSpecial(const PlannedEntry& entry) const;

    Needs m_needs;
    ContentCopier m_copier;
    std::mutex m_mutex; // for all below while names are given
    /// When the status of a file changed last that gets several names here.
    std::map<std::pair<dev_t, ino_t>, timespec> m_changed;
    std::vector<const PlannedEntry*> m_refused; // by the file system, one more name
};

} // namespace tools
