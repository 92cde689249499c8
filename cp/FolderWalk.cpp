#include "cp/FolderWalk.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <unordered_map>
#include <utility>

#include "cp/private/FileStatus.h"
#include "cp/private/FolderReader.h"
#include "cp/private/TreeWalk.h"

namespace Corvaldine::CP {

namespace {

using Private::FileDescriptor;
using Private::FolderReader;
using Private::NodeIdentity;

/// So many folders on the way down stay open; a deeper one is reached again from below.
constexpr std::size_t kMostOpen = 32;

/// What matters of a folder. Names stand one after another, each ended by a zero: most folders have
/// none of either kind and then cost no memory.
struct Listing {
    std::string wanted;
    std::string folders;
};

void addName(std::string& names, std::string_view name) {
    names.append(name).push_back('\0');
}

bool hasExtension(std::string_view name, std::string_view extension) {
    return name.size() > extension.size() && name.ends_with(extension);
}

bool isBundle(std::string_view name) {
    return hasExtension(name, ".app") || hasExtension(name, ".bundle");
}

/// Paths in the order of a walk: what is below an item comes before the next item, whatever
/// character its name goes on with.
bool comesBefore(const std::string& a, const std::string& b) {
    const auto place = [](char character) {
        return character == '/' ? 0 : static_cast<int>(static_cast<unsigned char>(character));
    };
    return std::ranges::lexicographical_compare(a, b, {}, place, place);
}

struct HashOfIdentity {
    std::size_t operator()(const NodeIdentity& node) const {
        return std::hash<std::uint64_t>()(node.inode * 31 + node.device);
    }
};

} // namespace

/// The folders of the last walk, each known by what it is and not by where it was found.
struct FolderWalk::Remembered {
    struct Folder {
        FileStamp stamp;
        Listing listing;
        std::uint64_t walk = 0;
    };
    std::unordered_map<NodeIdentity, Folder, HashOfIdentity> folders;
    std::uint64_t walk = 0;

    /// What stands in the folder that is called so, unless it must be read.
    const Listing* recall(int parent, const char* name) {
        struct stat status{};
        if (folders.empty() || ::fstatat(parent, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return nullptr;
        const FileStamp now = Private::stamp_from(status);
        const auto known = folders.find({.device = now.device, .inode = now.inode});
        if (known == folders.end() || !known->second.stamp.holds(now))
            return nullptr;
        known->second.walk = walk;
        return &known->second.listing;
    }
    void keep(const FileStamp& stamp, const Listing& listing) {
        folders.insert_or_assign({.device = stamp.device, .inode = stamp.inode},
                                 Folder{.stamp = stamp, .listing = listing, .walk = walk});
    }
    void forgetOthers() {
        std::erase_if(folders, [this](const auto& known) { return known.second.walk != walk; });
    }
};

/// One walk: keeps the way to where it is, and what it has found.
class FolderWalk::Walk {
  public:
    Walk(const Wanted& wanted, Remembered* remembered)
        : m_wanted(wanted), m_remembered(remembered) {}

    std::vector<std::string> find(const std::string& folder) {
        m_path = folder;
        FileDescriptor top(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (top.isOpen()) {
            const Listing* known = recall(top.number(), ".");
            enter(std::move(top), known);
        }
        while (!m_levels.empty()) {
            Level& level = m_levels.back();
            if (level.next == level.folders.size()) {
                leave();
                continue;
            }
            const char* name = level.folders.c_str() + level.next;
            level.next += std::strlen(name) + 1;
            m_path.resize(level.pathLength);
            addToPath(m_path, name);
            visit(level.folder.number(), name);
        }
        std::ranges::sort(m_found, comesBefore);
        return std::move(m_found);
    }

  private:
    struct Level {
        FileDescriptor folder;
        NodeIdentity identity;
        std::string folders;
        std::size_t next = 0;
        std::size_t pathLength = 0;
    };

    static void addToPath(std::string& path, std::string_view name) {
        if (!path.ends_with('/'))
            path += '/';
        path += name;
    }

    const Listing* recall(int parent, const char* name) {
        return m_remembered ? m_remembered->recall(parent, name) : nullptr;
    }

    void visit(int parent, const char* name) {
        const Listing* known = recall(parent, name);
        if (known && known->folders.empty())
            collect(*known);
        else if (FileDescriptor folder = Private::open_folder(parent, name); folder.isOpen())
            enter(std::move(folder), known);
    }

    void enter(FileDescriptor folder, const Listing* known) {
        if (!known)
            read(folder.number());
        const Listing& listing = known ? *known : m_listing;
        collect(listing);
        if (!listing.folders.empty())
            descend(std::move(folder), listing.folders);
    }

    void read(int folder) {
        m_listing.wanted.clear();
        m_listing.folders.clear();
        // Before the first entry is read: a change while it is being read then shows later.
        struct stat status{};
        const bool isKept = m_remembered && ::fstat(folder, &status) == 0;
        const FileStamp stamp = isKept ? Private::stamp_from(status) : FileStamp();
        m_reader.start(folder);
        for (FolderReader::Entry entry; m_reader.next(entry);) {
            if (m_wanted(entry.name))
                addName(m_listing.wanted, entry.name);
            if (entry.isFolder && !isBundle(entry.name))
                addName(m_listing.folders, entry.name);
        }
        if (isKept && m_reader.isComplete())
            m_remembered->keep(stamp, m_listing);
    }

    void collect(const Listing& listing) {
        for (std::size_t at = 0; at < listing.wanted.size();) {
            const std::string_view name(listing.wanted.c_str() + at);
            at += name.size() + 1;
            addToPath(m_found.emplace_back(m_path), name);
        }
    }

    void descend(FileDescriptor folder, std::string folders) {
        if (m_levels.size() > kMostOpen) {
            Level& above = m_levels.back();
            if (Private::identify(above.folder.number(), above.identity))
                above.folder = FileDescriptor();
        }
        m_levels.push_back({.folder = std::move(folder),
                            .identity = {},
                            .folders = std::move(folders),
                            .next = 0,
                            .pathLength = m_path.size()});
    }

    void leave() {
        const FileDescriptor left = std::move(m_levels.back().folder);
        m_levels.pop_back();
        if (m_levels.empty() || m_levels.back().folder.isOpen())
            return;
        Level& level = m_levels.back();
        level.folder = Private::open_parent(left.number(), level.identity);
        if (!level.folder.isOpen()) // moved away meanwhile
            level.next = level.folders.size();
    }

    const Wanted& m_wanted;
    Remembered* m_remembered;
    FolderReader m_reader;
    Listing m_listing;
    std::string m_path;
    std::vector<Level> m_levels;
    std::vector<std::string> m_found;
};

FolderWalk::FolderWalk(Wanted wanted, Memory memory)
    : m_wanted(std::move(wanted)),
      m_remembered(memory == Memory::none ? nullptr : std::make_unique<Remembered>()) {}

FolderWalk::FolderWalk(FolderWalk&&) noexcept = default;
FolderWalk& FolderWalk::operator=(FolderWalk&&) noexcept = default;
FolderWalk::~FolderWalk() = default;

std::vector<std::string> FolderWalk::find(const std::string& folder) {
    if (m_remembered)
        ++m_remembered->walk;
    auto found = Walk(m_wanted, m_remembered.get()).find(folder);
    if (m_remembered)
        m_remembered->forgetOthers();
    return found;
}

} // namespace Corvaldine::CP
