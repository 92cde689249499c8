#include "tools/files/RemoveTree.h"

#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/files/FileError.h"
#include "tools/files/FolderChain.h"
#include "tools/files/FolderEntries.h"

namespace tools {

namespace {

class Removal {
  public:
    Removal(int top, std::string name)
        : m_folders(top), m_name(std::move(name)), m_device(statusOf(top).st_dev) {}

    void empty(const std::string& path) {
        for (const auto& [name, isFolder] : itemsOf(path)) {
            const std::string full = path.empty() ? name : path + '/' + name;
            if (isFolder)
                empty(full);
            naming(m_name + '/' + full, [&, &leaf = name, folder = isFolder] {
                checked(::unlinkat(m_folders.of(path), leaf.c_str(), folder ? AT_REMOVEDIR : 0));
            });
        }
    }

  private:
    struct Item {
        std::string name;
        bool isFolder;
    };

    static struct stat statusOf(int folder) {
        struct stat status{};
        checked(::fstat(folder, &status));
        return status;
    }

    std::vector<Item> itemsOf(const std::string& path) {
        return naming(path.empty() ? m_name : m_name + '/' + path, [&] {
            const int folder = m_folders.of(path);
            const struct stat status = statusOf(folder);
            if (status.st_dev != m_device)
                throw std::system_error(EXDEV, std::generic_category());
            if ((status.st_mode & S_IRWXU) != S_IRWXU)
                ::fchmod(folder, S_IRWXU);
            std::vector<Item> items;
            FolderEntries entries(folder);
            while (const auto entry = entries.next())
                items.push_back({entry->name, entry->kind == DT_DIR});
            return items;
        });
    }

    FolderChain m_folders;
    std::string m_name;
    dev_t m_device;
};

} // namespace

void removeTree(int parent, const std::string& name, int folder) {
    Removal(folder, name).empty({});
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
