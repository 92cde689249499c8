#include "app/InstalledProduct.h"

#include <filesystem>
#include <fstream>

#include "platform/formats/ZipDirectory.h"

namespace app {

namespace fs = std::filesystem;

namespace {

formats::ZipReading readArchive(const std::string& archive) {
    std::ifstream file(archive, std::ios::binary | std::ios::ate);
    if (!file)
        return {std::nullopt, "it can't be read"};
    const auto size = static_cast<std::uint64_t>(file.tellg());
    return formats::readZipDirectory(size, [&](std::uint64_t offset, std::span<std::byte> into) {
        file.clear();
        file.seekg(static_cast<std::streamoff>(offset));
        file.read(reinterpret_cast<char*>(into.data()), static_cast<std::streamsize>(into.size()));
        return static_cast<std::size_t>(file.gcount()) == into.size();
    });
}

bool standsAt(const fs::path& path, const formats::ZipMember& member) {
    std::error_code failure;
    const auto status = fs::symlink_status(path, failure);
    switch (member.kind) {
    case formats::ZipKind::file:
        return fs::is_regular_file(status) && fs::file_size(path, failure) == member.size;
    case formats::ZipKind::folder:
        return fs::is_directory(status);
    case formats::ZipKind::link:
        return fs::is_symlink(status);
    case formats::ZipKind::other:
        return true;
    }
    return true;
}

} // namespace

std::optional<std::string> faultOfInstalledProduct(const std::string& archive,
                                                   std::string_view topFolder,
                                                   const std::string& destination) {
    const std::string place = "the archive " + archive;
    std::error_code ignored;
    if (!fs::exists(archive, ignored))
        return place + " is missing; get a complete copy of the installer";
    const auto [directory, error] = readArchive(archive);
    if (!directory)
        return place + " is not usable (" + error + "); get a complete copy of the installer";

    const std::string prefix = std::string(topFolder) + "/";
    std::size_t members = 0;
    std::size_t missing = 0;
    std::string firstMissing;
    for (const formats::ZipMember& member : directory->members()) {
        if (!member.path.starts_with(prefix) || member.describes != formats::ZipMember::kNone)
            continue;
        ++members;
        const fs::path path = fs::path(destination) / member.path.substr(prefix.size());
        if (standsAt(path, member))
            continue;
        if (++missing == 1)
            firstMissing = path.string();
    }
    if (members == 0)
        return place + " holds no folder \"" + std::string(topFolder) + "\"";
    if (missing == 0)
        return std::nullopt;
    return std::to_string(missing) + " of " + std::to_string(members) +
           " items are not as the archive has them, the first of them " + firstMissing +
           "; the log tells what the tools said";
}

} // namespace app
