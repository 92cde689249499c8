#include "platform/linux/InstalledBundles.h"

#include <cstdint>
#include <filesystem>
#include <iterator>
#include <map>
#include <system_error>

#include "cp/CaseFolding.h"
#include "cp/FileStamp.h"

namespace linuxhost {

using Corvaldine::CP::FolderWalk;

namespace {

bool isLink(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_symlink(path, error);
}

/// Letter case does not count in the extension, as on the platform.
bool isBundleName(std::string_view name) {
    constexpr std::string_view kExtension = ".app";
    return name.size() >= kExtension.size() &&
           Corvaldine::CP::equal_ignoring_case(name.substr(name.size() - kExtension.size()),
                                               kExtension);
}

} // namespace

InstalledBundles::InstalledBundles(const std::vector<std::string>& folders) {
    for (const std::string& folder : folders)
        m_walks.emplace_back(folder,
                             FolderWalk([](std::string_view name) { return isBundleName(name); },
                                        FolderWalk::Memory::folders));
}

std::vector<std::string> InstalledBundles::paths() {
    std::vector<std::string> all;
    for (auto& [folder, walk] : m_walks)
        std::ranges::move(walk.find(folder), std::back_inserter(all));
    return all;
}

std::vector<std::string> eachOnce(const std::vector<std::string>& bundles) {
    std::map<std::pair<std::uint64_t, std::uint64_t>, std::size_t> chosen;
    for (std::size_t i = 0; i < bundles.size(); ++i) {
        const auto stamp = Corvaldine::CP::stamp_of(bundles[i]);
        if (!stamp)
            continue;
        const auto [entry, isNew] = chosen.try_emplace({stamp->device, stamp->inode}, i);
        if (!isNew && isLink(bundles[entry->second]) && !isLink(bundles[i]))
            entry->second = i;
    }
    std::vector<bool> stays(bundles.size());
    for (const auto& [bundle, index] : chosen)
        stays[index] = true;
    std::vector<std::string> once;
    for (std::size_t i = 0; i < bundles.size(); ++i)
        if (stays[i])
            once.push_back(bundles[i]);
    return once;
}

} // namespace linuxhost
