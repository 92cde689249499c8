#include "tools/patchTree/TreeReader.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>

#include "tools/files/Descriptor.h"
#include "tools/files/ExtendedAttributes.h"
#include "tools/files/FileError.h"
#include "tools/files/FolderChain.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/Workers.h"
#include "tools/patchTree/FileSource.h"

namespace tools {

namespace {

constexpr std::size_t kPiece = std::size_t{256} << 10;

// Files beyond this are taken first.
constexpr std::uint64_t kLarge = std::uint64_t{1} << 20;

std::string linkTarget(int folder, const char* name, off_t size) {
    // One more than is needed tells whether it grew.
    std::string target(static_cast<std::size_t>(std::max<off_t>(size, 255)) + 1, '\0');
    for (;;) {
        const ssize_t length = checked(::readlinkat(folder, name, target.data(), target.size()));
        if (static_cast<std::size_t>(length) < target.size()) {
            target.resize(static_cast<std::size_t>(length));
            return target;
        }
        target.resize(2 * target.size());
    }
}

/// One walk through a tree, a folder's names in order, so that the list comes out sorted.
class Walk {
  public:
    explicit Walk(int top) : m_folders(top) {}

    void enter(const std::string& path) {
        std::vector<std::string> names;
        const bool isOpen = naming(path, [&] { return readNames(path, names); });
        if (!isOpen)
            return;
        std::ranges::sort(names);
        for (const std::string& name : names) {
            std::string full = path.empty() ? name : path + '/' + name;
            if (full.size() > patch::kLongestPath)
                throw FileError(std::move(full), ENAMETOOLONG);
            if (naming(full, [&] { return add(full, path, name); }))
                enter(full);
        }
    }

    Tree tree;

  private:
    /// False when this user can't look into the folder, which is then known as closed.
    bool readNames(const std::string& path, std::vector<std::string>& names) {
        try {
            const int folder = m_folders.of(path);
            FolderEntries entries(folder);
            while (const auto entry = entries.next())
                names.emplace_back(entry->name);
            if (!path.empty())
                tree.entries.back().attributes = treeAttributes(folder);
            return true;
        } catch (const std::system_error& error) {
            const int number = error.code().value();
            if (path.empty() || (number != EACCES && number != EPERM))
                throw;
            tree.closed.push_back({static_cast<std::uint32_t>(tree.entries.size() - 1), number});
            return false;
        }
    }

    /// True for a folder, which is to be entered.
    bool add(const std::string& path, const std::string& parent, const std::string& name) {
        const int folder = m_folders.of(parent);
        struct stat status{};
        checked(::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW));
        patch::Entry entry;
        entry.path = path;
        switch (status.st_mode & S_IFMT) {
        case S_IFDIR:
            entry.kind = patch::Kind::folder;
            break;
        case S_IFREG:
            entry.kind = patch::Kind::file;
            entry.size = static_cast<std::uint64_t>(status.st_size);
            break;
        case S_IFLNK:
            entry.kind = patch::Kind::link;
            entry.target = linkTarget(folder, name.c_str(), status.st_size);
            break;
        default:
            tree.specials.push_back({path, entryStatus(status)});
            return false;
        }
        if (entry.kind != patch::Kind::link)
            entry.mode = static_cast<std::uint16_t>(status.st_mode & 07777);
        if (entry.size > patch::kLargestFile || tree.entries.size() == patch::kMostEntries)
            throw std::system_error(EFBIG, std::generic_category());
        tree.entries.push_back(std::move(entry));
        tree.statuses.push_back(entryStatus(status));
        return S_ISDIR(status.st_mode);
    }

    FolderChain m_folders;
};

bool isSame(const struct stat& now, const EntryStatus& then, std::uint64_t size) {
    const EntryStatus status = entryStatus(now);
    return S_ISREG(now.st_mode) && status.device == then.device && status.inode == then.inode &&
           static_cast<std::uint64_t>(now.st_size) == size &&
           isSameTime(status.changed, then.changed);
}

/// Each core's own.
class DigestMaker {
  public:
    DigestMaker(int top, const TreeReader::Told& told) : m_folders(top), m_told(told) {}

    void add(patch::Entry& entry, const EntryStatus& status) {
        const int folder = m_folders.of(parentPath(entry.path));
        const std::string name(leafName(entry.path));
        // Something else may stand there by now; a pipe would block the opening for ever.
        const Descriptor file(checked(::openat(
            folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)));
        checkUnchanged(file.number(), entry, status);
        entry.attributes = treeAttributes(file.number());
        entry.digest = digest(file.number(), entry.size);
        checkUnchanged(file.number(), entry, status);
    }

  private:
    static void checkUnchanged(int file, const patch::Entry& entry, const EntryStatus& status) {
        struct stat now{};
        checked(::fstat(file, &now));
        if (!isSame(now, status, entry.size))
            throw std::system_error(ESTALE, std::generic_category());
    }

    patch::Digest digest(int file, std::uint64_t size) {
        const FileSource source(file);
        for (std::uint64_t at = 0; at < size;) {
            const auto piece = std::span(m_buffer).first(
                static_cast<std::size_t>(std::min<std::uint64_t>(size - at, kPiece)));
            try {
                source.read(at, piece);
            } catch (const patch::FormatError&) {
                throw std::system_error(ESTALE, std::generic_category());
            }
            m_hasher.add(piece);
            at += piece.size();
            if (m_told)
                m_told(piece.size());
        }
        return m_hasher.finish();
    }

    FolderChain m_folders;
    const TreeReader::Told& m_told;
    patch::Hasher m_hasher;
    patch::Bytes m_buffer = patch::Bytes(kPiece);
};

} // namespace

EntryStatus entryStatus(const struct stat& status) {
    constexpr std::uint64_t kBlock = 512; // the unit of st_blocks
    return {.device = status.st_dev,
            .inode = status.st_ino,
            .names = status.st_nlink,
            .owner = status.st_uid,
            .group = status.st_gid,
            .modified = modifiedTime(status),
            .changed = changedTime(status),
            .room = static_cast<std::uint64_t>(status.st_blocks) * kBlock};
}

patch::Time patchTime(const timespec& time) {
    return {.seconds = time.tv_sec, .nanoseconds = static_cast<std::uint32_t>(time.tv_nsec)};
}

std::vector<patch::Attribute> treeAttributes(int file) {
    std::vector<patch::Attribute> attributes;
    for (std::string& name : attributeNames(file)) {
        if (!isCopiedAttribute(name))
            continue;
        // Copied: what is read comes with room for the largest that there can be.
        if (const auto value = attributeValue(file, name))
            attributes.push_back({std::move(name), patch::Bytes(value->begin(), value->end())});
    }
    std::ranges::sort(attributes, {}, &patch::Attribute::name);
    return attributes;
}

Tree TreeReader::list() const {
    Walk walk(m_top);
    walk.enter({});
    return std::move(walk.tree);
}

void TreeReader::addDigests(Tree& tree, const std::vector<std::uint32_t>& chosen,
                            const Told& told) const {
    const auto order = largeOnesFirst(
        chosen, kLarge, [&](std::uint32_t entry) { return tree.entries[entry].size; });
    onAllCores(order.size(), [&](const auto& next) {
        DigestMaker maker(m_top, told);
        for (std::size_t i = next(); i < order.size(); i = next()) {
            patch::Entry& entry = tree.entries[order[i]];
            naming(entry.path, [&] { maker.add(entry, tree.statuses[order[i]]); });
        }
    });
}

void TreeReader::addDigests(Tree& tree, const Told& told) const {
    std::vector<std::uint32_t> files;
    for (std::uint32_t i = 0; i < tree.entries.size(); ++i)
        if (tree.entries[i].kind == patch::Kind::file)
            files.push_back(i);
    addDigests(tree, files, told);
}

} // namespace tools
