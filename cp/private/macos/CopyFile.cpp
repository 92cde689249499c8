#include "cp/private/CopyFile.h"

#include <copyfile.h>
#include <unistd.h>

#include "cp/private/Catalogue.h"
#include "cp/private/TreeWalk.h"

namespace Corvaldine::CP::Private {

static_assert(kCopyAll == COPYFILE_ALL && kCopyRecursive == COPYFILE_RECURSIVE);

bool copy_file(const std::string& from, const std::string& to, std::uint32_t flags) {
    const bool isTree = (flags & kCopyRecursive) != 0;
    FSRef source;
    FSRef parent;
    const std::size_t separator = to.find_last_of('/');
    const std::string folder = separator == std::string::npos ? "." : to.substr(0, separator + 1);
    if (path_make_ref(from, source) != kNoError || path_make_ref(folder, parent) != kNoError ||
        (isTree && (parent.path + "/").starts_with(source.path + "/")))
        return false;
    // Exclusively: what someone else puts there meanwhile is not ours to clear away.
    if (::copyfile(source.path.c_str(), to.c_str(), nullptr, flags | COPYFILE_EXCL) == 0)
        return true;
    CatalogueInfo info;
    if (catalogue_info(source.path, info) && (info.nodeFlags & kNodeIsDirectory) != 0)
        discard_tree(to);
    else
        ::unlink(to.c_str());
    return false;
}

} // namespace Corvaldine::CP::Private
