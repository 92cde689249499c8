// Copies a folder's contents into another folder, or one file, with everything that the system
// keeps about them. Used by ditto's -rsrcFork.
//
// One thread walks the source, makes folders and hands out files in batches; the others copy. What
// stands at the destination is merged with: folders stay, files are replaced, and a symbolic link
// is never followed. An item that fails is complained about and the others go on.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include "tools/files/Complaints.h"
#include "tools/files/ContentCopier.h"
#include "tools/files/Folders.h"
#include "tools/files/NewFile.h"
#include "tools/files/Progress.h"
#include "tools/files/WorkQueue.h"

namespace tools {

class TreeCopy {
  public:
    struct Needs {
        mode_t umask; ///< for parents of the destination that have to be made
        Progress& progress;
        Complaints& complaints;
    };

    explicit TreeCopy(Needs needs) : m_needs(needs) {}

    /// Call once. A symbolic link as `source` itself is followed. What failed is with the
    /// complaints.
    void copy(const std::string& source, const std::string& destination);

  private:
    /// What a folder gets when all that is in it is there.
    struct Finish {
        const Folder* folder;
        struct stat status;
    };
    /// Names of one folder, each with the kind that the folder told before it and a NUL behind.
    struct Batch {
        explicit Batch(const Folder& of) : folder(&of) {}
        const Folder* folder;
        std::string names;
        std::size_t count = 0;
    };
    /// Each thread's own.
    struct Worker {
        Worker(int source, int destination) : from(source), to(destination) {}
        FolderDescriptors from;
        FolderDescriptors to;
    };
    struct Item {
        int fromFolder;
        int toFolder;
        const char* fromName;
        const char* toName;
        const Folder* folder; ///< null when a single file is copied
    };
    /// A file of several names: the first is copied, the others become its links.
    struct OtherName {
        const Folder* folder;
        std::string name;
        const Folder* firstFolder;
        std::string firstName;
    };

    void copyFolder(const std::string& source, const std::string& destination);
    void copySingle(const std::string& source, std::string destination);
    void walk(Worker& worker, WorkQueue<Batch>& queue);
    void enter(const Folder& folder, Worker& worker, WorkQueue<Batch>& queue);
    void makeFolder(const Folder& folder, Worker& worker);
    void copyBatch(const Batch& batch, Worker& worker);
    void copyItem(const Item& item, char kind);
    void copyFile(const Item& item);
    void copyLink(const Item& item, const struct stat& status);
    void copySpecial(const Item& item, const struct stat& status);
    bool isOtherName(const Item& item, const struct stat& status);
    void linkOtherNames(Worker& worker);
    void finishFolder(const Finish& finish, Worker& worker);
    void copyAttributes(int from, int to, const std::vector<std::string>& names, const Item& item);
    void setOwner(int file, const struct stat& status, const struct stat& now, mode_t& mode) const;
    std::string pathOf(const Folder* folder, std::string_view name) const;

    Needs m_needs;
    const uid_t m_user = ::geteuid();
    const gid_t m_group = ::getegid();
    const bool m_isRoot = m_user == 0;
    ContentCopier m_contents;
    std::string m_destination;
    std::deque<Folder> m_folders; // addresses stay
    std::vector<const Folder*> m_pending;
    std::vector<Finish> m_finishes;
    std::mutex m_namesMutex;
    std::map<std::pair<dev_t, ino_t>, std::pair<const Folder*, std::string>> m_firstNames;
    std::vector<OtherName> m_otherNames;
};

} // namespace tools
