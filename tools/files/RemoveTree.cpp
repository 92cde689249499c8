#include "tools/files/RemoveTree.h"

#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/files/FileError.h"
#include "tools/files/FolderChain.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/Workers.h"

namespace tools {

namespace {

// More than there are cores: what takes long is the disk, file by file, when it is told at once of
// the room that became free.
constexpr std::size_t kThreads = 8;

class Removal {
  public:
    Removal(int top, std::string name)
        : m_top(top), m_folders(top), m_name(std::move(name)), m_device(statusOf(top).st_dev) {}

    void empty() {
        collect({});
        onThreads(kThreads, m_files.size(), [this](const auto& next) {
            FolderChain folders(m_top);
            for (std::size_t i = next(); i < m_files.size(); i = next())
                remove(folders, m_files[i], 0);
        });
        // What is in a folder was found after it.
        for (auto folder = m_found.rbegin(); folder != m_found.rend(); ++folder)
            remove(m_folders, *folder, AT_REMOVEDIR);
    }

  private:
    static struct stat statusOf(int folder) {
        struct stat status{};
        checked(::fstat(folder, &status));
        return status;
    }

    void collect(const std::string& path) {
        std::vector<std::string> inner;
        naming(fullName(path), [&] {
            const int folder = m_folders.of(path);
            const struct stat status = statusOf(folder);
            if (status.st_dev != m_device)
                throw std::system_error(EXDEV, std::generic_category());
            if ((status.st_mode & S_IRWXU) != S_IRWXU)
                ::fchmod(folder, S_IRWXU);
            FolderEntries entries(folder);
            while (const auto entry = entries.next()) {
                std::string full = path.empty() ? entry->name : path + '/' + entry->name;
                (entry->kind == DT_DIR ? inner : m_files).push_back(std::move(full));
            }
        });
        for (std::string& folder : inner) {
            m_found.push_back(folder);
            collect(folder);
        }
    }

    void remove(FolderChain& folders, const std::string& path, int how) const {
        naming(fullName(path), [&] {
            checked(
                ::unlinkat(folders.of(parentPath(path)), std::string(leafName(path)).c_str(), how));
        });
    }

    std::string fullName(const std::string& path) const {
        return path.empty() ? m_name : m_name + '/' + path;
    }

    int m_top;
    FolderChain m_folders;
    std::string m_name;
    dev_t m_device;
    std::vector<std::string> m_files;
    std::vector<std::string> m_found; // folders
};

} // namespace

void removeTree(int parent, const std::string& name, int folder) {
    Removal(folder, name).empty();
    naming(name, [&] {
        struct stat own{};
        struct stat named{};
        checked(::fstat(folder, &own));
        checked(::fstatat(parent, name.c_str(), &named, AT_SYMLINK_NOFOLLOW));
        if (own.st_ino != named.st_ino || own.st_dev != named.st_dev)
            throw std::system_error(ESTALE, std::generic_category());
        checked(::unlinkat(parent, name.c_str(), AT_REMOVEDIR));
    });
}

} // namespace tools
