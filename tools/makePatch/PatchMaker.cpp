#include "tools/makePatch/PatchMaker.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

#include "patcher/format/PatchFile.h"
#include "tools/files/FileError.h"
#include "tools/files/FolderChain.h"
#include "tools/files/Workers.h"
#include "tools/makePatch/BlockMaker.h"
#include "tools/makePatch/Likeness.h"
#include "tools/makePatch/PartialFile.h"
#include "tools/patchTree/FileSource.h"

namespace tools {

using patch::Method;
using patch::NewEntry;

namespace {

/// What all blocks at work may take together, unless one alone takes more.
constexpr std::uint64_t kMostMemory = std::uint64_t{512} << 20;

/// One of the two folders.
struct Version {
    explicit Version(const std::string& folder)
        : path(folder), top(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (!top.isOpen())
            throw FileError(folder, errno);
    }

    template <typename Work>
    auto inside(Work work) const {
        try {
            return work();
        } catch (const FileError& error) {
            const std::string inner = error.path().empty() ? path : path + '/' + error.path();
            switch (error.code().value()) {
            case ENAMETOOLONG:
                throw NoPatch(inner + ": its path is too long for a patch");
            case EFBIG:
                throw NoPatch(inner + ": more than a patch can describe");
            case ESTALE:
                throw NoPatch(inner + ": was changed while it was being read");
            default:
                throw FileError(inner, error.code().value());
            }
        }
    }

    void list() {
        inside([&] {
            tree = TreeReader(top.number()).list();
            if (!tree.closed.empty())
                throw FileError(tree.entries[tree.closed.front().entry].path,
                                tree.closed.front().error);
        });
        if (!tree.specials.empty())
            throw NoPatch(path + '/' + tree.specials.front().path +
                          ": neither file, folder nor link, which no patch can describe");
        if (tree.entries.size() > patch::kMostEntries)
            throw NoPatch(path + ": more entries than a patch can describe");
    }
    void addDigests(Progress& progress) {
        inside([&] {
            TreeReader(top.number()).addDigests(tree, [&](std::uint64_t bytes) {
                progress.add(bytes, 0);
            });
        });
    }
    std::uint64_t bytes() const {
        std::uint64_t sum = 0;
        for (const patch::Entry& entry : tree.entries)
            sum += entry.size;
        return sum;
    }

    std::string path;
    Descriptor top;
    Tree tree;
};

/// A file of a version, open. It must still be the one that the tree has.
class VersionFile {
  public:
    VersionFile(const Version& version, FolderChain& folders, std::uint32_t index)
        : m_file(version.inside([&] {
              const std::string& path = version.tree.entries[index].path;
              return naming(path, [&] {
                  Descriptor file(checked(
                      ::openat(folders.of(parentPath(path)), std::string(leafName(path)).c_str(),
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)));
                  struct stat status{};
                  checked(::fstat(file.number(), &status));
                  const EntryStatus now = entryStatus(status);
                  const EntryStatus& known = version.tree.statuses[index];
                  if (now.inode != known.inode || now.device != known.device ||
                      now.changed.tv_sec != known.changed.tv_sec ||
                      now.changed.tv_nsec != known.changed.tv_nsec)
                      throw FileError(path, ESTALE);
                  return file;
              });
          })),
          m_source(m_file.number()) {}

    const FileSource& source() const { return m_source; }

  private:
    Descriptor m_file;
    FileSource m_source;
};

/// Lets work begin while there is memory for it.
class MemoryBudget {
  public:
    void take(std::uint64_t bytes) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_taken == 0 || m_taken + bytes <= kMostMemory; });
        m_taken += bytes;
    }
    void giveBack(std::uint64_t bytes) {
        {
            const std::lock_guard lock(m_mutex);
            m_taken -= bytes;
        }
        m_changed.notify_all();
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::uint64_t m_taken = 0;
};

/// Memory that is taken while this is there.
class MemoryShare {
  public:
    MemoryShare(MemoryBudget& budget, std::uint64_t bytes) : m_budget(budget), m_bytes(bytes) {
        budget.take(bytes);
    }
    ~MemoryShare() { m_budget.giveBack(m_bytes); }
    MemoryShare(const MemoryShare&) = delete;
    MemoryShare& operator=(const MemoryShare&) = delete;

  private:
    MemoryBudget& m_budget;
    std::uint64_t m_bytes;
};

class Making {
  public:
    Making(const Version& before, const Version& after, PatchPlan& plan, Spool& spool, int level,
           Progress& progress)
        : m_before(before), m_after(after), m_plan(plan), m_spool(spool), m_level(level),
          m_progress(progress), m_places(plan.blocks.size()) {}

    /// Finds bases for the files that have no old one at their path.
    void findBases() {
        std::vector<std::uint32_t> lonely;
        std::ranges::copy_if(m_plan.blocks, std::back_inserter(lonely),
                             [&](std::uint32_t index) { return fresh(index).base == kNoBase; });
        std::vector<std::uint32_t> gone;
        if (!lonely.empty())
            for (std::uint32_t index = 0; index < m_before.tree.entries.size(); ++index)
                if (const patch::Entry& old = m_before.tree.entries[index];
                    old.size > 0 && !patch::entryAt(m_plan.manifest.newEntries, old.path))
                    gone.push_back(index);
        if (gone.empty())
            return;
        const auto goneSketches = sketches(m_before, gone);
        const auto freshSketches = sketches(m_after, lonely);
        GoneFiles files;
        for (std::size_t i = 0; i < gone.size(); ++i)
            files.add(gone[i], m_before.tree.entries[gone[i]].path, goneSketches[i]);
        for (std::size_t i = 0; i < lonely.size(); ++i)
            fresh(lonely[i]).base =
                files.mostLike(fresh(lonely[i]).entry.path, freshSketches[i], kNoBase);
    }

    void makeBlocks() {
        // The longest first, so that no core begins one when the others are done.
        std::vector<std::uint32_t> order(m_plan.blocks.size());
        for (std::uint32_t place = 0; place < order.size(); ++place)
            order[place] = place;
        std::ranges::stable_sort(order, std::greater{}, [&](std::uint32_t place) {
            return fresh(m_plan.blocks[place]).entry.size;
        });
        onAllCores(order.size(), [&](auto next) {
            FolderChain before(m_before.top.number());
            FolderChain after(m_after.top.number());
            for (std::size_t i = next(); i < order.size(); i = next())
                makeBlock(order[i], before, after);
        });
    }

    /// Writes the blocks behind one another and answers the digest of all.
    patch::Digest writeBlocks(PartialFile& file, std::uint64_t& length) {
        patch::Hasher hasher;
        const FileSource spool(m_spool.descriptor());
        patch::Bytes piece(std::size_t{1} << 18);
        length = 0;
        for (std::size_t place = 0; place < m_plan.blocks.size(); ++place) {
            NewEntry& entry = fresh(m_plan.blocks[place]);
            entry.offset = length;
            for (std::uint64_t done = 0; done < entry.length;) {
                const auto now = std::span(piece).first(static_cast<std::size_t>(
                    std::min<std::uint64_t>(piece.size(), entry.length - done)));
                spool.read(m_places[place] + done, now);
                hasher.add(now);
                file.write(patch::kHeaderLength + length + done, now);
                done += now.size();
            }
            length += entry.length;
        }
        return hasher.finish();
    }

  private:
    NewEntry& fresh(std::uint32_t index) { return m_plan.manifest.newEntries[index]; }

    std::vector<std::vector<std::uint64_t>> sketches(const Version& version,
                                                     const std::vector<std::uint32_t>& files) {
        std::vector<std::vector<std::uint64_t>> all(files.size());
        onAllCores(files.size(), [&](auto next) {
            FolderChain folders(version.top.number());
            for (std::size_t i = next(); i < files.size(); i = next())
                all[i] = sketchOf(VersionFile(version, folders, files[i]).source());
        });
        return all;
    }

    void makeBlock(std::uint32_t place, FolderChain& before, FolderChain& after) {
        const std::uint32_t index = m_plan.blocks[place];
        NewEntry& entry = fresh(index);
        const VersionFile file(m_after, after, index);
        std::optional<VersionFile> base;
        if (entry.base != kNoBase)
            base.emplace(m_before, before, entry.base);
        MadeBlock block;
        {
            const MemoryShare share(
                m_memory, memoryFor(base ? base->source().size() : 0, file.source().size()));
            block = smallestBlock(base ? &base->source() : nullptr, file.source(), m_level);
        }
        entry.method = block.method;
        if (!patch::hasBase(block.method))
            entry.base = 0;
        entry.length = block.bytes.size();
        m_places[place] = m_spool.add(block.bytes);
        m_progress.add(entry.entry.size, 1);
    }

    const Version& m_before;
    const Version& m_after;
    PatchPlan& m_plan;
    Spool& m_spool;
    const int m_level;
    Progress& m_progress;
    MemoryBudget m_memory;
    std::vector<std::uint64_t> m_places; ///< of the blocks in the spool
};

std::uint64_t sizeOfContent(const PatchPlan& plan) {
    std::uint64_t sum = 0;
    for (const std::uint32_t index : plan.blocks)
        sum += plan.manifest.newEntries[index].entry.size;
    return sum;
}

} // namespace

MadePatch PatchMaker::make() {
    Version before(m_needs.before);
    Version after(m_needs.after);
    before.list();
    after.list();
    PartialFile file(m_needs.patch);
    Spool spool(m_needs.patch);
    m_needs.progress.setTotal(before.bytes() + 2 * after.bytes());
    before.addDigests(m_needs.progress);
    after.addDigests(m_needs.progress);

    PatchPlan plan = planOf(before.tree, after.tree);
    if (!plan.differences.any())
        throw NoPatch(m_needs.before + " and " + m_needs.after + ": there is no difference");
    plan.manifest.product = m_needs.product;
    plan.manifest.oldVersion = m_needs.oldVersion;
    plan.manifest.newVersion = m_needs.newVersion;
    const std::uint64_t contentSize = sizeOfContent(plan);
    m_needs.progress.setTotal(before.bytes() + after.bytes() + contentSize);

    Making making(before, after, plan, spool, m_needs.level, m_needs.progress);
    making.findBases();
    making.makeBlocks();
    patch::Header header;
    header.dataDigest = making.writeBlocks(file, header.dataLength);
    patch::validate(plan.manifest, header.dataLength);
    const patch::Bytes manifest = patch::storedManifest(plan.manifest, header);
    file.write(patch::kHeaderLength + header.dataLength, manifest);
    file.write(0, patch::signedHeader(header, m_needs.seed));
    file.keep();
    m_needs.progress.finish();
    return {.differences = plan.differences,
            .size = patch::kHeaderLength + header.dataLength + manifest.size(),
            .contentSize = contentSize};
}

} // namespace tools
