#include "platform/macos/ForkedFinderFiles.h"

#include <cerrno>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/FinderItems.h"

namespace macoshost {

ForkedFinderFiles::ForkedFinderFiles(Needs needs) : m_needs(std::move(needs)) {}

int ForkedFinderFiles::resolve(const std::string& path) {
    return posix::realPath(path) ? 0 : -43;
}

ports::FinderFiles::ReadInformation ForkedFinderFiles::finderInformation(const std::string& path) {
    const auto real = posix::realPath(path);
    if (!real)
        return {.error = -43, .information = {}};
    const auto bytes = m_needs.calls.readAttribute(*real);
    return {.error = 0, .information = posix::decoded(bytes.value_or(posix::FinderBytes{}))};
}

std::vector<std::byte> ForkedFinderFiles::resourceFork(const std::string& path) {
    const auto real = posix::realPath(path);
    return real ? m_needs.calls.readFork(*real) : std::vector<std::byte>();
}

std::vector<std::byte> ForkedFinderFiles::aliasRecord(const std::string& target) {
    return posix::aliasRecordOf(target, {.information =
                                             [this](const std::string& path) {
                                                 return finderInformation(path).information;
                                             },
                                         .volume = m_needs.volume,
                                         .creationTime = m_needs.calls.creationTime});
}

int ForkedFinderFiles::createAliasFile(const std::string& path,
                                       const std::vector<std::byte>& record) {
    const std::string name = posix::itemPath(path);
    const posix::Descriptor file = posix::createEmptyFile(name);
    if (!file.isOpen())
        return posix::classicError(errno);
    const int error = m_needs.writeFork(file.number(), posix::aliasFork(record));
    if (error != 0)
        ::unlink(name.c_str());
    return posix::classicError(error);
}

int ForkedFinderFiles::setFinderInformation(const std::string& path,
                                            const ports::FinderInformation& information) {
    const std::string item = posix::itemPath(path);
    if (const int error = posix::changeableItem(item))
        return posix::classicError(error);
    const posix::FinderBytes before =
        m_needs.calls.readAttribute(item).value_or(posix::FinderBytes{});
    return posix::classicError(
        m_needs.calls.writeAttribute(item, posix::encoded(information, before)));
}

bool ForkedFinderFiles::setFolderIcon(const std::string& folder, const std::string& icnsFile) {
    const std::string item = posix::itemPath(folder);
    struct stat facts{};
    return ::lstat(item.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) &&
           m_needs.setFolderIcon(item, icnsFile);
}

} // namespace macoshost
