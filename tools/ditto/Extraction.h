// Unpacks a zip archive into a folder: folders first, then files on as many threads as there are
// cores, then symbolic links, last the folders' modes and times. Used by ditto's -xk.
//
// The directory was checked when it was read; here every folder is opened component by component
// and links are made when nothing is opened any more, so nothing is written outside the top folder
// whatever stands there already. A member that fails is complained about and the others go on.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

#include <sys/stat.h>

#include "platform/formats/ZipDirectory.h"
#include "tools/ditto/ArchiveFile.h"
#include "tools/ditto/MemberReader.h"
#include "tools/files/Complaints.h"
#include "tools/files/Folders.h"
#include "tools/files/NewFile.h"
#include "tools/files/Progress.h"

namespace tools {

class Extraction {
  public:
    struct Needs {
        const ArchiveFile& archive;
        const formats::ZipDirectory& directory;
        int top;             ///< the open folder to unpack into
        std::string topPath; ///< its name in complaints
        mode_t umask;        ///< what modes that the archive does not tell go without
        Progress& progress;
        Complaints& complaints;
    };

    explicit Extraction(Needs needs);

    /// Call once. What failed is with the complaints.
    void run();

  private:
    /// Each thread's own.
    struct Worker {
        explicit Worker(const Needs& needs) : reader(needs.archive), folders(needs.top) {}
        MemberReader reader;
        FolderDescriptors folders;
    };
    struct Batch {
        std::size_t first;
        std::size_t end;
    };

    void planFolders();
    void planFiles();
    void makeFolder(std::uint32_t index, FolderDescriptors& folders);
    void makeFoldersAbove(std::uint32_t index, FolderDescriptors& folders);
    void runWorkers();
    void work();
    void extract(const formats::ZipMember& member, Worker& worker);
    void extractFile(const formats::ZipMember& member, Worker& worker);
    void applyAttributes(std::uint32_t doubleIndex, int file, int folder,
                         const formats::ZipMember& member, Worker& worker);
    void applyFolderAttributes(std::uint32_t index, Worker& worker);
    void makeLinks(Worker& worker);
    void makeLink(const formats::ZipMember& member, Worker& worker);
    void finishFolders(Worker& worker);

    std::uint32_t doubleOf(const formats::ZipMember& member) const;
    mode_t modeOf(const formats::ZipMember& member) const;
    std::string pathOf(std::string_view path) const;
    void complain(std::string_view path, const std::exception& error);

    enum class FolderState : std::uint8_t { notNeeded, needed, made, found, failed };

    Needs m_needs;
    const std::vector<formats::ZipMember>& m_members;
    std::vector<Folder> m_folders; // as the directory's
    std::vector<FolderState> m_states;
    std::unordered_map<std::uint32_t, std::uint32_t> m_doubles; // member to its AppleDouble file
    std::vector<std::uint32_t> m_files;
    std::vector<Batch> m_batches;
    std::atomic<std::size_t> m_nextBatch = 0;
    std::mutex m_misfitsMutex;
    std::vector<std::uint32_t> m_misfits; // "AppleDouble files" that are something else
};

} // namespace tools
