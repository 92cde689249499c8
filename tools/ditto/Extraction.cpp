#include "tools/ditto/Extraction.h"

#include <algorithm>
#include <ctime>
#include <optional>
#include <thread>

#include <fcntl.h>

#include "platform/formats/AppleDouble.h"
#include "tools/files/MacAttributes.h"
#include "tools/files/WorkQueue.h"

namespace tools {

using formats::ZipKind;
using formats::ZipMember;

namespace {

// What a thread takes at a time: enough that taking costs nothing, little enough that all threads
// end together.
constexpr std::size_t kFilesOfABatch = 256;
constexpr std::uint64_t kBytesOfABatch = std::uint64_t{1} << 20;

// Attributes beyond this are nobody's; the file is kept as the plain file it is.
constexpr std::uint64_t kLargestAppleDouble = std::uint64_t{64} << 20;

constexpr std::uint64_t kLongestLinkTarget = 4095;

timespec modifiedTime(const ZipMember& member) {
    std::int64_t seconds = member.modified;
    if (member.timeIsLocal) {
        // The clock on the wall as UTC would read it, taken apart and put together as local time.
        const std::time_t wall = seconds;
        std::tm parts{};
        ::gmtime_r(&wall, &parts);
        parts.tm_isdst = -1;
        // The C library reads the time zone's settings again each time, behind a lock of its own
        // that no checker sees.
        static std::mutex mutex;
        const std::lock_guard lock(mutex);
        seconds = std::mktime(&parts);
    }
    return {.tv_sec = seconds, .tv_nsec = 0};
}

constexpr timespec kNow{.tv_sec = 0, .tv_nsec = UTIME_NOW};

} // namespace

Extraction::Extraction(Needs needs)
    : m_needs(std::move(needs)), m_members(m_needs.directory.members()) {}

void Extraction::run() {
    m_needs.progress.setTotal(m_needs.directory.totalSize());
    planFolders();
    planFiles();
    {
        FolderDescriptors folders(m_needs.top);
        for (std::uint32_t i = 1; i < m_folders.size(); ++i)
            if (m_states[i] == FolderState::needed)
                makeFolder(i, folders);
    }
    runWorkers();
    Worker worker(m_needs);
    for (std::uint32_t i = 1; i < m_folders.size(); ++i)
        applyFolderAttributes(i, worker);
    makeLinks(worker);
    for (const std::uint32_t index : m_misfits) {
        makeFoldersAbove(m_members[index].folder, worker.folders);
        extract(m_members[index], worker);
    }
    finishFolders(worker);
    m_needs.progress.finish();
}

void Extraction::planFolders() {
    const auto& folders = m_needs.directory.folders();
    m_folders.resize(folders.size());
    m_states.resize(folders.size(), FolderState::notNeeded);
    m_states[0] = FolderState::found;
    const auto attributes =
        std::ranges::find_if(folders, [](const auto& folder) { return folder.path == "__MACOSX"; });
    const auto attributesIndex = static_cast<std::uint32_t>(attributes - folders.begin());
    std::vector<bool> isForAttributes(folders.size());
    for (std::uint32_t i = 1; i < folders.size(); ++i) {
        m_folders[i] = {&m_folders[folders[i].parent], std::string(folders[i].name())};
        isForAttributes[i] = i == attributesIndex || isForAttributes[folders[i].parent];
        // Folders of attributes are made only for what turns out to be something else.
        m_states[i] = isForAttributes[i] ? FolderState::notNeeded : FolderState::needed;
    }
    for (const ZipMember& member : m_members)
        if (isForAttributes[member.folder] && member.kind != ZipKind::folder &&
            member.describes == ZipMember::kNone)
            for (std::uint32_t i = member.folder; m_states[i] == FolderState::notNeeded;
                 i = folders[i].parent)
                m_states[i] = FolderState::needed;
}

void Extraction::planFiles() {
    for (std::uint32_t i = 0; i < m_members.size(); ++i) {
        const ZipMember& member = m_members[i];
        if (member.describes != ZipMember::kNone)
            m_doubles.emplace(member.describes, i);
        else if (member.kind == ZipKind::file)
            m_files.push_back(i);
        else if (member.kind == ZipKind::other)
            m_needs.complaints.about(pathOf(member.path),
                                     "a device, pipe or socket, which is not unpacked");
    }
    // Large files first, so that no thread begins one when the others are done; then the small
    // ones as they stand in the archive.
    const auto firstSmall =
        std::stable_partition(m_files.begin(), m_files.end(), [this](std::uint32_t i) {
            return m_members[i].size > kBytesOfABatch;
        });
    std::sort(m_files.begin(), firstSmall, [this](std::uint32_t a, std::uint32_t b) {
        return m_members[a].size > m_members[b].size;
    });
    const auto byOffset = [this](std::uint32_t i) { return m_members[i].headerOffset; };
    const std::ranges::subrange small(firstSmall, m_files.end());
    if (!std::ranges::is_sorted(small, {}, byOffset))
        std::ranges::sort(small, {}, byOffset);
    for (std::size_t i = 0; i < m_files.size();) {
        const std::size_t first = i;
        for (std::uint64_t bytes = 0;
             i < m_files.size() && i - first < kFilesOfABatch && bytes < kBytesOfABatch; ++i)
            bytes += m_members[m_files[i]].size;
        m_batches.push_back({first, i});
    }
}

void Extraction::makeFolder(std::uint32_t index, FolderDescriptors& folders) {
    const formats::ZipFolder& folder = m_needs.directory.folders()[index];
    FolderState& state = m_states[index];
    if (m_states[folder.parent] == FolderState::failed) {
        state = FolderState::failed; // its parent was complained about
        return;
    }
    try {
        // Open to ourselves until everything is in it.
        if (::mkdirat(folders.of(*m_folders[index].parent), m_folders[index].name.c_str(),
                      S_IRWXU) == 0) {
            state = FolderState::made;
            return;
        }
        if (errno != EEXIST)
            throwErrno();
        folders.of(m_folders[index]);
        state = FolderState::found;
    } catch (const std::exception& error) {
        complain(folder.path, error);
        state = FolderState::failed;
    }
}

void Extraction::makeFoldersAbove(std::uint32_t index, FolderDescriptors& folders) {
    std::vector<std::uint32_t> missing;
    for (; m_states[index] == FolderState::notNeeded;
         index = m_needs.directory.folders()[index].parent)
        missing.push_back(index);
    for (auto next = missing.rbegin(); next != missing.rend(); ++next)
        makeFolder(*next, folders);
}

void Extraction::runWorkers() {
    std::vector<std::thread> threads;
    for (std::size_t i = 1; i < std::min(workerCount(), m_batches.size()); ++i)
        threads.emplace_back([this] { work(); });
    work();
    for (std::thread& thread : threads)
        thread.join();
}

void Extraction::work() {
    Worker worker(m_needs);
    for (std::size_t next = m_nextBatch++; next < m_batches.size(); next = m_nextBatch++)
        for (std::size_t i = m_batches[next].first; i < m_batches[next].end; ++i)
            extract(m_members[m_files[i]], worker);
}

void Extraction::extract(const ZipMember& member, Worker& worker) {
    if (m_states[member.folder] == FolderState::failed)
        return; // the folder was complained about
    try {
        extractFile(member, worker);
    } catch (const std::exception& error) {
        complain(member.path, error);
    }
}

void Extraction::extractFile(const ZipMember& member, Worker& worker) {
    const bool isSmall =
        member.size <= MemberReader::kSmall && member.packedSize <= 2 * MemberReader::kSmall;
    std::span<const std::byte> bytes;
    if (isSmall)
        bytes = worker.reader.read(member); // a damaged one is found before anything is made
    const int folder = worker.folders.of(m_folders[member.folder]);
    const mode_t mode = modeOf(member);
    NewFile file(folder, member.name().data(), mode);
    if (isSmall) {
        file.write(bytes);
        m_needs.progress.add(bytes.size(), 1);
    } else {
        worker.reader.stream(member, [&](std::span<const std::byte> piece) {
            file.write(piece);
            m_needs.progress.add(piece.size(), 0);
        });
        m_needs.progress.add(0, 1);
    }
    if (const std::uint32_t index = doubleOf(member); index != ZipMember::kNone)
        applyAttributes(index, file.descriptor(), folder, member, worker);
    file.setMode(mode);
    file.setTimes(kNow, modifiedTime(member));
    file.keep();
}

// `file` is -1 for a symbolic link, which can't have attributes.
void Extraction::applyAttributes(std::uint32_t doubleIndex, int file, int folder,
                                 const ZipMember& member, Worker& worker) {
    const ZipMember& attributes = m_members[doubleIndex];
    try {
        std::optional<formats::AppleDouble> parsed;
        if (attributes.size <= kLargestAppleDouble && attributes.packedSize <= kLargestAppleDouble)
            parsed = formats::readAppleDouble(worker.reader.read(attributes));
        if (!parsed) {
            const std::lock_guard lock(m_misfitsMutex);
            m_misfits.push_back(doubleIndex);
            return;
        }
        m_needs.progress.add(attributes.size, 0);
        const formats::AppleDouble rest =
            file < 0 ? std::move(*parsed) : applyMacAttributes(file, std::move(*parsed));
        if (isEmpty(rest))
            return;
        const std::string name = sidecarName(member.name());
        NewFile sidecar(folder, name.c_str(), modeOf(member) & 0666);
        sidecar.write(formats::writeAppleDouble(rest));
        sidecar.setTimes(kNow, modifiedTime(attributes));
        sidecar.keep();
    } catch (const std::exception& error) {
        complain(attributes.path, error);
    }
}

void Extraction::applyFolderAttributes(std::uint32_t index, Worker& worker) {
    const std::uint32_t own = m_needs.directory.folders()[index].member;
    if (own == ZipMember::kNone || doubleOf(m_members[own]) == ZipMember::kNone ||
        (m_states[index] != FolderState::made && m_states[index] != FolderState::found))
        return;
    try {
        // Two at a time, where the descriptors promise one.
        const Descriptor parent(
            checked(::fcntl(worker.folders.of(*m_folders[index].parent), F_DUPFD_CLOEXEC, 0)));
        applyAttributes(doubleOf(m_members[own]), worker.folders.of(m_folders[index]),
                        parent.number(), m_members[own], worker);
    } catch (const std::exception& error) {
        complain(m_members[own].path, error);
    }
}

void Extraction::makeLinks(Worker& worker) {
    for (const ZipMember& member : m_members) {
        if (member.kind != ZipKind::link || m_states[member.folder] == FolderState::failed)
            continue;
        try {
            makeLink(member, worker);
        } catch (const std::exception& error) {
            complain(member.path, error);
        }
    }
}

void Extraction::makeLink(const ZipMember& member, Worker& worker) {
    if (member.size == 0 || member.size > kLongestLinkTarget)
        throw DamagedMember("the target of the symbolic link is empty or too long");
    const auto bytes = worker.reader.read(member);
    const std::string target(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (target.find('\0') != std::string::npos)
        throw DamagedMember("the target of the symbolic link holds a NUL");
    const int folder = worker.folders.of(m_folders[member.folder]);
    const char* name = member.name().data();
    makeReplacing(folder, name,
                  [&](const char* at) { return ::symlinkat(target.c_str(), folder, at); });
    const timespec times[2] = {kNow, modifiedTime(member)};
    checked(::utimensat(folder, name, times, AT_SYMLINK_NOFOLLOW));
    m_needs.progress.add(bytes.size(), 1);
    if (const std::uint32_t index = doubleOf(member); index != ZipMember::kNone)
        applyAttributes(index, -1, folder, member, worker);
}

// From the leaves up: what a folder gets in the end may close it to ourselves, and each change
// inside would move its time.
void Extraction::finishFolders(Worker& worker) {
    const auto& folders = m_needs.directory.folders();
    for (std::size_t i = folders.size() - 1; i > 0; --i) {
        if (m_states[i] != FolderState::made && m_states[i] != FolderState::found)
            continue;
        const ZipMember* member =
            folders[i].member == ZipMember::kNone ? nullptr : &m_members[folders[i].member];
        if (member == nullptr && m_states[i] == FolderState::found)
            continue;
        try {
            const int folder = worker.folders.of(m_folders[i]);
            checked(::fchmod(folder, member != nullptr ? modeOf(*member) : 0777 & ~m_needs.umask));
            if (member != nullptr) {
                const timespec times[2] = {kNow, modifiedTime(*member)};
                checked(::futimens(folder, times));
            }
        } catch (const std::exception& error) {
            complain(folders[i].path, error);
        }
    }
}

std::uint32_t Extraction::doubleOf(const ZipMember& member) const {
    if (m_doubles.empty())
        return ZipMember::kNone;
    const auto found = m_doubles.find(static_cast<std::uint32_t>(&member - m_members.data()));
    return found == m_doubles.end() ? ZipMember::kNone : found->second;
}

mode_t Extraction::modeOf(const ZipMember& member) const {
    if (member.hasMode)
        return member.mode;
    return (member.kind == ZipKind::folder ? 0777 : 0666) & ~m_needs.umask;
}

std::string Extraction::pathOf(std::string_view path) const {
    return m_needs.topPath + '/' + std::string(path);
}

void Extraction::complain(std::string_view path, const std::exception& error) {
    const bool isDamage = dynamic_cast<const DamagedMember*>(&error) != nullptr;
    m_needs.complaints.about(isDamage ? std::string(path) : pathOf(path), error);
}

} // namespace tools
