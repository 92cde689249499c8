#include "tools/ditto/TreeCopy.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>

#include "tools/ditto/TreeQuestions.h"
#include "tools/files/ExtendedAttributes.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/MacAttributes.h"

namespace tools {

namespace {

constexpr std::size_t kNamesOfABatch = 128;
constexpr std::size_t kWaitingBatches = 32;

constexpr mode_t kPermissions = 07777;

std::string resolved(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    if (!real)
        throwErrno();
    return real.get();
}

/// After the mode, which would change them. A file system without access lists loses nothing but
/// those.
void copyAccessLists(int from, int to, const std::vector<std::string>& names) {
    for (const std::string& name : names)
        if (isAccessList(name))
            if (const auto value = attributeValue(from, name))
                setAttribute(to, name, *value);
}

} // namespace

void TreeCopy::copy(const std::string& source, const std::string& destination) {
    struct stat status{};
    if (::stat(source.c_str(), &status) != 0) {
        m_needs.complaints.about(source, std::generic_category().message(errno));
        return;
    }
    try {
        if (S_ISDIR(status.st_mode)) {
            if (isInside(destination, status))
                m_needs.complaints.about(destination, "a folder can't be copied into itself");
            else
                copyFolder(source, destination);
        } else {
            copySingle(source, destination);
        }
    } catch (const std::exception& error) {
        m_needs.complaints.about(destination, error);
    }
    m_needs.progress.finish();
}

void TreeCopy::copyFolder(const std::string& source, const std::string& destination) {
    const Descriptor from(::open(source.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!from.isOpen()) {
        m_needs.complaints.about(source, std::generic_category().message(errno));
        return;
    }
    if (m_needs.progress.isWanted())
        m_needs.progress.setTotal(sizeOfTree(from.number()));
    m_destination = destination;
    const Descriptor to = openOrMakeFolder(destination, 0777 & ~m_needs.umask);
    m_folders.emplace_back();
    m_pending.push_back(&m_folders.front());

    WorkQueue<Batch> queue(kWaitingBatches);
    const auto work = [&] {
        Worker worker(from.number(), to.number());
        while (const std::optional<Batch> batch = queue.take())
            copyBatch(*batch, worker);
    };
    std::vector<std::thread> threads;
    for (std::size_t i = 1; i < workerCount(); ++i)
        threads.emplace_back(work);
    Worker worker(from.number(), to.number());
    walk(worker, queue);
    queue.close();
    work();
    for (std::thread& thread : threads)
        thread.join();

    linkOtherNames(worker);
    // From the leaves up: what a folder gets may close it to ourselves, and each change inside
    // would move its time.
    for (auto finish = m_finishes.rbegin(); finish != m_finishes.rend(); ++finish)
        finishFolder(*finish, worker);
}

void TreeCopy::copySingle(const std::string& source, std::string destination) {
    struct stat status{};
    const std::string real = resolved(source);
    const std::size_t slash = real.find_last_of('/');
    const std::string name = real.substr(slash + 1);
    if (::stat(destination.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        destination += '/' + source.substr(source.find_last_of('/') + 1);
    const std::size_t toSlash = destination.find_last_of('/');
    const std::string toName = destination.substr(toSlash + 1);
    const std::string parent = toSlash == std::string::npos ? "."
                               : toSlash == 0               ? "/"
                                                            : destination.substr(0, toSlash);
    const Descriptor from(
        checked(::open(real.substr(0, slash + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    const Descriptor to = openOrMakeFolder(parent, 0777 & ~m_needs.umask);
    struct stat there{};
    checked(::fstatat(from.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW));
    if (::fstatat(to.number(), toName.c_str(), &there, AT_SYMLINK_NOFOLLOW) == 0 &&
        areSame(status, there)) {
        m_needs.complaints.about(destination, "a file can't be copied onto itself");
        return;
    }
    m_needs.progress.setTotal(static_cast<std::uint64_t>(status.st_size));
    m_destination = parent;
    copyItem({from.number(), to.number(), name.c_str(), toName.c_str(), nullptr},
             static_cast<char>(IFTODT(status.st_mode)));
}

void TreeCopy::walk(Worker& worker, WorkQueue<Batch>& queue) {
    while (!m_pending.empty()) {
        const Folder& folder = *m_pending.back();
        m_pending.pop_back();
        try {
            if (folder.parent != nullptr)
                makeFolder(folder, worker);
            enter(folder, worker, queue);
        } catch (const std::exception& error) {
            m_needs.complaints.about(folder.parent == nullptr ? m_destination
                                                              : pathOf(folder.parent, folder.name),
                                     error);
        }
    }
}

// Open to ourselves until everything is in it.
void TreeCopy::makeFolder(const Folder& folder, Worker& worker) {
    if (::mkdirat(worker.to.of(*folder.parent), folder.name.c_str(), S_IRWXU) == 0)
        return;
    if (errno != EEXIST)
        throwErrno();
    worker.to.of(folder);
}

void TreeCopy::enter(const Folder& folder, Worker& worker, WorkQueue<Batch>& queue) {
    FolderEntries entries(worker.from.of(folder));
    struct stat status{};
    checked(::fstat(entries.descriptor(), &status));
    m_finishes.push_back({&folder, status});
    Batch batch(folder);
    const auto handOut = [&] {
        if (batch.count == 0)
            return;
        if (const auto own = queue.offer(std::exchange(batch, Batch(folder))))
            copyBatch(*own, worker);
    };
    while (const auto entry = entries.next()) {
        if (entry->kind == DT_DIR) {
            m_folders.push_back({&folder, entry->name});
            m_pending.push_back(&m_folders.back());
            continue;
        }
        batch.names += static_cast<char>(entry->kind);
        batch.names.append(entry->name, std::strlen(entry->name) + 1);
        if (++batch.count == kNamesOfABatch)
            handOut();
    }
    handOut();
}

void TreeCopy::copyBatch(const Batch& batch, Worker& worker) {
    std::string_view rest = batch.names;
    try {
        const int from = worker.from.of(*batch.folder);
        const int to = worker.to.of(*batch.folder);
        while (!rest.empty()) {
            const char* name = rest.data() + 1;
            const char kind = rest.front();
            rest.remove_prefix(std::strlen(name) + 2);
            copyItem({from, to, name, name, batch.folder}, kind);
        }
    } catch (const std::exception& error) { // the folder was taken away meanwhile
        m_needs.complaints.about(pathOf(batch.folder, ""), error);
    }
}

void TreeCopy::copyItem(const Item& item, char kind) {
    try {
        if (kind == DT_REG) {
            copyFile(item);
            return;
        }
        struct stat status{};
        checked(::fstatat(item.fromFolder, item.fromName, &status, AT_SYMLINK_NOFOLLOW));
        if (isOtherName(item, status))
            return;
        if (kind == DT_LNK)
            copyLink(item, status);
        else
            copySpecial(item, status);
    } catch (const std::exception& error) {
        m_needs.complaints.about(pathOf(item.folder, item.toName), error);
    }
}

void TreeCopy::copyFile(const Item& item) {
    const Descriptor from(checked(
        ::openat(item.fromFolder, item.fromName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)));
    struct stat status{};
    checked(::fstat(from.number(), &status));
    if (!S_ISREG(status.st_mode))
        throw std::runtime_error("it became something else meanwhile");
    if (isOtherName(item, status))
        return;
    mode_t mode = status.st_mode & kPermissions;
    // Nobody else reads or runs it before it has its owner.
    const bool isOurs = status.st_uid == m_user && status.st_gid == m_group;
    NewFile file(item.toFolder, item.toName, mode & (isOurs ? 0777 : S_IRWXU));
    m_contents.copy(from.number(), status, file.descriptor(),
                    [this](std::uint64_t bytes) { m_needs.progress.add(bytes, 0); });
    const std::vector<std::string> attributes = attributeNames(from.number());
    copyAttributes(from.number(), file.descriptor(), attributes, item);
    struct stat now{};
    checked(::fstat(file.descriptor(), &now));
    setOwner(file.descriptor(), status, now, mode);
    // A change of owner takes rights away.
    if ((now.st_mode & kPermissions) != mode || !isOurs)
        checked(::fchmod(file.descriptor(), mode));
    copyAccessLists(from.number(), file.descriptor(), attributes);
    file.setTimes(status.st_atim, status.st_mtim);
    file.keep();
    m_needs.progress.add(0, 1);
}

void TreeCopy::copyLink(const Item& item, const struct stat& status) {
    std::array<char, PATH_MAX> target;
    const ssize_t length =
        checked(::readlinkat(item.fromFolder, item.fromName, target.data(), target.size() - 1));
    target[static_cast<std::size_t>(length)] = '\0';
    makeReplacing(item.toFolder, item.toName, [&](const char* name) {
        return ::symlinkat(target.data(), item.toFolder, name);
    });
    if (m_isRoot)
        checked(::fchownat(item.toFolder, item.toName, status.st_uid, status.st_gid,
                           AT_SYMLINK_NOFOLLOW));
    const timespec times[2] = {status.st_atim, status.st_mtim};
    checked(::utimensat(item.toFolder, item.toName, times, AT_SYMLINK_NOFOLLOW));
    m_needs.progress.add(0, 1);
}

void TreeCopy::copySpecial(const Item& item, const struct stat& status) {
    makeReplacing(item.toFolder, item.toName, [&](const char* name) {
        return ::mknodat(item.toFolder, name, status.st_mode, status.st_rdev);
    });
    if (m_isRoot) {
        checked(::fchownat(item.toFolder, item.toName, status.st_uid, status.st_gid,
                           AT_SYMLINK_NOFOLLOW));
        checked(::fchmodat(item.toFolder, item.toName, status.st_mode & kPermissions, 0));
    }
    const timespec times[2] = {status.st_atim, status.st_mtim};
    checked(::utimensat(item.toFolder, item.toName, times, AT_SYMLINK_NOFOLLOW));
    m_needs.progress.add(0, 1);
}

bool TreeCopy::isOtherName(const Item& item, const struct stat& status) {
    if (status.st_nlink < 2 || item.folder == nullptr)
        return false;
    const std::lock_guard lock(m_namesMutex);
    const auto [first, isNew] =
        m_firstNames.try_emplace({status.st_dev, status.st_ino}, item.folder, item.fromName);
    if (!isNew)
        m_otherNames.push_back(
            {item.folder, item.fromName, first->second.first, first->second.second});
    return !isNew;
}

void TreeCopy::linkOtherNames(Worker& worker) {
    for (const OtherName& other : m_otherNames) {
        try {
            const Descriptor first(
                checked(::fcntl(worker.to.of(*other.firstFolder), F_DUPFD_CLOEXEC, 0)));
            const int folder = worker.to.of(*other.folder);
            makeReplacing(folder, other.name.c_str(), [&](const char* name) {
                return ::linkat(first.number(), other.firstName.c_str(), folder, name, 0);
            });
            m_needs.progress.add(0, 1);
        } catch (const std::exception& error) {
            m_needs.complaints.about(pathOf(other.folder, other.name), error);
        }
    }
}

void TreeCopy::finishFolder(const Finish& finish, Worker& worker) {
    const Folder* folder = finish.folder;
    try {
        const int from = worker.from.of(*folder);
        const int to = worker.to.of(*folder);
        mode_t mode = finish.status.st_mode & kPermissions;
        const std::vector<std::string> attributes = attributeNames(from);
        copyAttributes(from, to, attributes, {from, to, nullptr, nullptr, nullptr});
        struct stat now{};
        checked(::fstat(to, &now));
        setOwner(to, finish.status, now, mode);
        checked(::fchmod(to, mode));
        copyAccessLists(from, to, attributes);
        const timespec times[2] = {finish.status.st_atim, finish.status.st_mtim};
        checked(::futimens(to, times));
    } catch (const std::exception& error) {
        m_needs.complaints.about(folder->parent == nullptr ? m_destination
                                                           : pathOf(folder->parent, folder->name),
                                 error);
    }
}

// Where the destination takes no attributes, they go into an AppleDouble file beside a file; a
// folder's are lost then, with a complaint.
void TreeCopy::copyAttributes(int from, int to, const std::vector<std::string>& names,
                              const Item& item) {
    for (const std::string& name : names) {
        if (!isCopiedAttribute(name) || isAccessList(name))
            continue;
        const auto value = attributeValue(from, name);
        if (!value)
            continue;
        const int error = setAttribute(to, name, *value);
        if (error == 0)
            continue;
        if (item.toName == nullptr)
            throw std::system_error(error, std::generic_category());
        const std::string beside = sidecarName(item.toName);
        NewFile sidecar(item.toFolder, beside.c_str(), 0666 & ~m_needs.umask);
        sidecar.write(formats::writeAppleDouble(readMacAttributes(from)));
        sidecar.keep();
        return;
    }
}

// Without the right to give files away, the right to run as their owner is not given either.
void TreeCopy::setOwner(int file, const struct stat& status, const struct stat& now,
                        mode_t& mode) const {
    const bool sameUser = now.st_uid == status.st_uid;
    const bool sameGroup = now.st_gid == status.st_gid;
    if (sameUser && sameGroup)
        return;
    if (m_isRoot) {
        checked(::fchown(file, status.st_uid, status.st_gid));
        return;
    }
    if (!sameUser)
        mode &= ~static_cast<mode_t>(S_ISUID);
    if (!sameGroup)
        mode &= ~static_cast<mode_t>(S_ISGID);
}

std::string TreeCopy::pathOf(const Folder* folder, std::string_view name) const {
    return m_destination + '/' + (folder == nullptr ? std::string(name) : folder->pathOf(name));
}

} // namespace tools
