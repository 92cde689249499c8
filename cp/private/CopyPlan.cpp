#include "cp/private/CopyPlan.h"

#include "cp/private/Catalogue.h"
#include "cp/private/CopyFile.h"

namespace Corvaldine::CP::Private {

namespace {

bool liesInside(const std::string& folder, const std::string& tree) {
    return (folder + "/").starts_with(tree == "/" ? tree : tree + "/");
}

} // namespace

std::optional<CopyPlan> plan_copy(const std::string& from, const std::string& to,
                                  std::uint32_t flags) {
    std::string target = to;
    while (target.size() > 1 && target.back() == '/')
        target.pop_back();
    const std::size_t separator = target.rfind('/');
    const bool hasFolder = separator != std::string::npos;
    FSRef source;
    FSRef parent;
    CatalogueInfo info;
    if (path_make_ref(from, source) != kNoError ||
        path_make_ref(hasFolder ? target.substr(0, separator + 1) : ".", parent) != kNoError ||
        !catalogue_info(source.path, info))
        return std::nullopt;
    const bool isFolder = (info.nodeFlags & kNodeIsDirectory) != 0;
    if (isFolder && ((flags & kCopyRecursive) == 0 || liesInside(parent.path, source.path)))
        return std::nullopt;
    return CopyPlan{.source = source.path,
                    .isFolder = isFolder,
                    .folder = parent.path,
                    .name = hasFolder ? target.substr(separator + 1) : target};
}

} // namespace Corvaldine::CP::Private
