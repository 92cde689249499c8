#include "platform/posix/AliasFiles.h"

#include <sys/stat.h>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/ResourceFork.h"
#include "platform/posix/FinderItems.h"

namespace posix {

namespace {

constexpr std::uint32_t kAliasType = formats::fourCharacters("alis");
constexpr std::int16_t kAliasNumber = 0;

} // namespace

std::vector<std::byte> aliasRecordOf(const std::string& target, const AliasQuestions& ask) {
    const auto real = realPath(target);
    struct stat facts{};
    struct stat parent{};
    if (!real || ::stat(real->c_str(), &facts) != 0 ||
        ::stat(itemFolder(*real).c_str(), &parent) != 0)
        return {};
    const AliasVolume volume = ask.volume(*real);
    const bool isVolume = volume.mountPoint == *real;
    const ports::FinderInformation information = ask.information(*real);
    return formats::writeAliasRecord(
        {.kind = S_ISDIR(facts.st_mode) ? formats::AliasTarget::Kind::folder
                                        : formats::AliasTarget::Kind::file,
         .volumeName = volume.name,
         .volumeCreated = formats::secondsSince1904(ask.creationTime(volume.mountPoint)),
         .folderNumber = static_cast<std::uint32_t>(parent.st_ino),
         .name = isVolume ? volume.name : std::string(itemName(*real)),
         .number = static_cast<std::uint32_t>(facts.st_ino),
         .created = formats::secondsSince1904(ask.creationTime(*real)),
         .type = information.type,
         .creator = information.creator,
         .folderName = std::string(itemName(itemFolder(*real))),
         .path = isVolume ? "/" : real->substr(volume.mountPoint.size()),
         .mountPoint = volume.mountPoint});
}

std::vector<std::byte> aliasFork(const std::vector<std::byte>& record) {
    return formats::writeResourceFork({{kAliasType, kAliasNumber, "", record}});
}

} // namespace posix
