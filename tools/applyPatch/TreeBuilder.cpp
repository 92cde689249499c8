#include "tools/applyPatch/TreeBuilder.h"

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <sys/stat.h>

#include "patcher/format/Block.h"
#include "tools/applyPatch/ApplyError.h"
#include "tools/applyPatch/FreeRoom.h"
#include "tools/applyPatch/Interruption.h"
#include "tools/applyPatch/NewMetadata.h"
#include "tools/files/FileError.h"
#include "tools/files/Flush.h"
#include "tools/files/Workers.h"
#include "tools/patchTree/FileSource.h"

namespace tools {

using patch::Entry;
using patch::Kind;

namespace {

// Files beyond this are begun first, so that no core begins one when the others are done.
constexpr std::uint64_t kLarge = std::uint64_t{1} << 18;

/// Errors by which a file system or the system says that a file gets no further name.
constexpr std::array kNoFurtherName{EPERM, EMLINK, EXDEV, ENOTSUP, EOPNOTSUPP, ENOSYS, EACCES};

/// Writes a new file's content and hashes it on the way.
class ContentSink : public patch::Sink {
  public:
    ContentSink(int file, Progress& progress) : m_file(file), m_progress(progress) {}

    void write(patch::View bytes) override {
        leaveIfInterrupted();
        m_hasher.add(bytes);
        m_progress.add(bytes.size(), 0);
        while (!bytes.empty()) {
            const ssize_t written = ::write(m_file, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            bytes = bytes.subspan(static_cast<std::size_t>(checked(written)));
        }
    }
    patch::Digest digest() { return m_hasher.finish(); }

  private:
    int m_file;
    Progress& m_progress;
    patch::Hasher m_hasher;
};

/// What a method reads that has no base.
class NoSource : public patch::Source {
  public:
    std::uint64_t size() const override { return 0; }
    void read(std::uint64_t, std::span<std::byte>) const override {
        throw patch::FormatError("The block reads a file that it has not named.");
    }
};

bool isNewFile(Step step) {
    return step == Step::content || step == Step::copy || step == Step::link;
}

bool isKept(Step step) {
    return step == Step::keep;
}

bool isFolder(Step step) {
    return step == Step::folder;
}

} // namespace

// All that reads the copy's content comes before the further names, as a further name changes a
// file's status, by which it is known again.
void TreeBuilder::build() {
    makeFolders();
    const auto files =
        largeOnesFirst(entriesOf(isNewFile), kLarge, [this](const PlannedEntry* entry) {
            const patch::NewEntry* wanted = m_needs.plan.wanted(*entry);
            return wanted == nullptr ? 0 : wanted->entry.size;
        });
    forEach(files, [this](const PlannedEntry& entry, Worker& worker) { make(entry, worker); });
    findShared();
    forEach(entriesOf(isKept),
            [this](const PlannedEntry& entry, Worker& worker) { keep(entry, worker); });
    std::uint64_t room = 0;
    for (const PlannedEntry* entry : m_refused)
        room += inBlocks(baseStatus(*entry).room, blockSize(m_needs.top));
    if (room > 0)
        requireRoom(m_needs.top, m_needs.path, room, m_refused.size());
    forEach(m_refused,
            [this](const PlannedEntry& entry, Worker& worker) { copyKept(entry, worker); });
    finishFolders();
}

template <typename Work>
void TreeBuilder::forEach(const std::vector<const PlannedEntry*>& entries, Work work) {
    onAllCores(entries.size(), [&](const auto& next) {
        Worker worker(m_needs);
        for (std::size_t i = next(); i < entries.size(); i = next()) {
            leaveIfInterrupted();
            naming(std::string(m_needs.plan.path(*entries[i])), [&] { work(*entries[i], worker); });
        }
    });
}

std::vector<const PlannedEntry*> TreeBuilder::entriesOf(bool (*isChosen)(Step)) const {
    std::vector<const PlannedEntry*> chosen;
    for (const PlannedEntry& entry : m_needs.plan.entries())
        if (isChosen(entry.step))
            chosen.push_back(&entry);
    return chosen;
}

void TreeBuilder::makeFolders() {
    FolderChain folders(m_needs.top);
    for (const PlannedEntry* entry : entriesOf(isFolder)) {
        leaveIfInterrupted();
        const std::string path(m_needs.plan.path(*entry));
        naming(path, [&] {
            checked(::mkdirat(folders.of(parentPath(path)), std::string(leafName(path)).c_str(),
                              S_IRWXU));
        });
    }
}

// From the last to the first: a folder that may not be entered any more has nothing left to do in
// it.
void TreeBuilder::finishFolders() {
    FolderChain folders(m_needs.top);
    auto all = entriesOf(isFolder);
    std::ranges::reverse(all);
    for (const PlannedEntry* entry : all) {
        leaveIfInterrupted();
        const std::string path(m_needs.plan.path(*entry));
        naming(path, [&] {
            const int folder = folders.of(path);
            giveMetadata(folder, m_needs.plan.metadata(*entry));
            flushSoon(folder);
        });
    }
}

void TreeBuilder::make(const PlannedEntry& entry, Worker& worker) {
    const std::string path(m_needs.plan.path(entry));
    const Metadata metadata = m_needs.plan.metadata(entry);
    if (entry.step == Step::link) {
        makeLink(m_needs.plan.wanted(entry)->entry, metadata, worker);
        return;
    }
    const Descriptor file = newFile(path, worker);
    if (entry.step == Step::copy)
        copyContent(static_cast<std::uint32_t>(entry.base), file.number(), worker);
    else
        makeContent(entry, file.number(), worker);
    finish(file.number(), metadata);
}

void TreeBuilder::makeContent(const PlannedEntry& entry, int file, Worker& worker) {
    const patch::NewEntry& wanted = *m_needs.plan.wanted(entry);
    ContentSink sink(file, m_needs.progress);
    const patch::BlockPlace block{.patch = m_needs.patch.file(),
                                  .offset = m_needs.patch.blockOffset(wanted),
                                  .length = wanted.length};
    try {
        if (patch::hasBase(wanted.method)) {
            const Descriptor base = openBase(m_needs.plan.fileOf(wanted.base), worker);
            patch::makeContent(wanted.method, block, FileSource(base.number()), wanted.entry.size,
                               sink);
        } else if (patch::hasBlock(wanted.method)) {
            patch::makeContent(wanted.method, block, NoSource(), wanted.entry.size, sink);
        }
    } catch (const patch::FormatError& error) {
        throw ApplyError(Ending::notAPatch, wanted.entry.path + ": " + error.what() +
                                                " The patch is broken; get it anew");
    }
    if (sink.digest() != wanted.entry.digest)
        throw ApplyError(Ending::notAPatch, wanted.entry.path +
                                                ": what the patch makes of it is not what it says; "
                                                "the patch is broken, get it anew");
}

void TreeBuilder::copyContent(std::uint32_t base, int file, Worker& worker) {
    const Descriptor from = openBase(base, worker);
    struct stat status{};
    checked(::fstat(from.number(), &status));
    m_copier.copy(from.number(), status, file, [this](std::uint64_t bytes) {
        leaveIfInterrupted();
        m_needs.progress.add(bytes, 0);
    });
    checkBase(base, from.number());
}

void TreeBuilder::makeLink(const Entry& entry, const Metadata& metadata, Worker& worker) {
    const int folder = worker.to.of(parentPath(entry.path));
    const std::string name(leafName(entry.path));
    checked(::symlinkat(entry.target.c_str(), folder, name.c_str()));
    giveLinkMetadata(folder, name, metadata);
    m_needs.progress.add(0, 1);
}

// Files that get more than one name here: the first changes the status by which the others know
// them.
void TreeBuilder::findShared() {
    for (const PlannedEntry* entry : entriesOf(isKept)) {
        const EntryStatus& status = baseStatus(*entry);
        if (status.names > 1 || basePath(*entry) != m_needs.plan.path(*entry))
            m_changed.try_emplace({status.device, status.inode}, status.changed);
    }
}

void TreeBuilder::keep(const PlannedEntry& entry, Worker& worker) {
    const EntryStatus& expected = baseStatus(entry);
    const auto shared = m_changed.find({expected.device, expected.inode});
    std::unique_lock lock(m_mutex, std::defer_lock);
    if (shared != m_changed.end())
        lock.lock();
    const auto changed =
        nameOnceMore(entry, shared == m_changed.end() ? expected.changed : shared->second, worker);
    if (!changed) {
        if (!lock.owns_lock())
            lock.lock();
        m_refused.push_back(&entry);
        return;
    }
    if (shared != m_changed.end())
        shared->second = *changed;
    m_needs.progress.add(0, 1);
}

std::optional<timespec> TreeBuilder::nameOnceMore(const PlannedEntry& entry,
                                                  const timespec& changed, Worker& worker) {
    const EntryStatus& expected = baseStatus(entry);
    const std::string& base = basePath(entry);
    const std::string_view path = m_needs.plan.path(entry);
    const int from = worker.from.of(parentPath(base));
    const int to = worker.to.of(parentPath(path));
    const std::string fromName(leafName(base));
    const std::string toName(leafName(path));
    const auto look = [&](int folder, const std::string& name) {
        struct stat status{};
        checked(::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW));
        const EntryStatus now = entryStatus(status);
        if (now.device != expected.device || now.inode != expected.inode ||
            !isSameTime(now.modified, expected.modified))
            throw std::system_error(ESTALE, std::generic_category());
        return now.changed;
    };
    if (!isSameTime(look(from, fromName), changed))
        throw std::system_error(ESTALE, std::generic_category());
    if (::linkat(from, fromName.c_str(), to, toName.c_str(), 0) != 0) {
        if (std::ranges::find(kNoFurtherName, errno) == kNoFurtherName.end())
            throwErrno();
        return std::nullopt;
    }
    // Between the look and the naming something else may have come to stand there.
    return look(to, toName);
}

// A file system without further names, a file with as many as it can have, or one that this user
// may give none.
void TreeBuilder::copyKept(const PlannedEntry& entry, Worker& worker) {
    const std::string path(m_needs.plan.path(entry));
    if (isSpecial(entry))
        throw std::system_error(EPERM, std::generic_category());
    const auto base = static_cast<std::uint32_t>(entry.base);
    const Entry& own = m_needs.plan.join().tree().entries[base];
    const EntryStatus& status = baseStatus(entry);
    Metadata metadata{.owner = status.owner,
                      .group = status.group,
                      .mode = own.mode,
                      .modified = status.modified,
                      .attributes = {}};
    if (own.kind == Kind::link) {
        Entry link = own;
        link.path = path;
        makeLink(link, metadata, worker);
        return;
    }
    metadata.attributes = treeAttributes(openBase(base, worker).number());
    const Descriptor file = newFile(path, worker);
    copyContent(base, file.number(), worker);
    finish(file.number(), metadata);
}

Descriptor TreeBuilder::newFile(const std::string& path, Worker& worker) {
    // Nobody else reads or runs it before it is complete and has its owner.
    return Descriptor(
        checked(::openat(worker.to.of(parentPath(path)), std::string(leafName(path)).c_str(),
                         O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR)));
}

void TreeBuilder::finish(int file, const Metadata& metadata) {
    giveMetadata(file, metadata);
    flushSoon(file);
    m_needs.progress.add(0, 1);
}

Descriptor TreeBuilder::openBase(std::uint32_t base, Worker& worker) {
    const std::string& path = m_needs.plan.join().tree().entries[base].path;
    Descriptor file(
        checked(::openat(worker.from.of(parentPath(path)), std::string(leafName(path)).c_str(),
                         O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)));
    checkBase(base, file.number());
    return file;
}

void TreeBuilder::checkBase(std::uint32_t base, int file) const {
    const Tree& tree = m_needs.plan.join().tree();
    const EntryStatus& expected = tree.statuses[base];
    struct stat status{};
    checked(::fstat(file, &status));
    const EntryStatus now = entryStatus(status);
    const auto shared = m_changed.find({expected.device, expected.inode});
    if (now.device != expected.device || now.inode != expected.inode ||
        static_cast<std::uint64_t>(status.st_size) != tree.entries[base].size ||
        !isSameTime(now.changed, shared == m_changed.end() ? expected.changed : shared->second))
        throw FileError(tree.entries[base].path, ESTALE);
}

bool TreeBuilder::isSpecial(const PlannedEntry& entry) const {
    return m_needs.plan.join().rows()[entry.row].special >= 0;
}

const EntryStatus& TreeBuilder::baseStatus(const PlannedEntry& entry) const {
    const Tree& tree = m_needs.plan.join().tree();
    const auto base = static_cast<std::size_t>(entry.base);
    return isSpecial(entry) ? tree.specials[base].status : tree.statuses[base];
}

const std::string& TreeBuilder::basePath(const PlannedEntry& entry) const {
    const Tree& tree = m_needs.plan.join().tree();
    const auto base = static_cast<std::size_t>(entry.base);
    return isSpecial(entry) ? tree.specials[base].path : tree.entries[base].path;
}

} // namespace tools
