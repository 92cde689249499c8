#include "cp/private/CopyFile.h"

#include <cerrno>
#include <copyfile.h>
#include <memory>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

#include "cp/private/CopyPlan.h"
#include "cp/private/NodeLock.h"
#include "cp/private/TreeWalk.h"

namespace Corvaldine::CP::Private {

namespace {

static_assert(kCopyAll == COPYFILE_ALL && kCopyRecursive == COPYFILE_RECURSIVE);

// Exclusively, so that nothing is ever replaced; and links as links, which in a tree the system
// would follow. The source's own path has none any more.
constexpr std::uint32_t kAlways = COPYFILE_EXCL | COPYFILE_NOFOLLOW;

struct Outcome {
    bool hasBegun = false; ///< something of the copy is there, and it is ours
    int error = 0;         ///< why it stopped

    bool isOurs() const { return hasBegun || error != EEXIST; }
};

/// What the target's file system can't hold, or the user may not set.
bool isLeftOut(int error) {
    return error == ENOTSUP || error == EPERM || error == EACCES;
}

// Where nobody is asked an attribute that is refused ends the copy, and there are some that the
// system keeps to itself.
int note(int what, int stage, copyfile_state_t, const char*, const char*, void* context) {
    auto& outcome = *static_cast<Outcome*>(context);
    const bool isAttribute = what == COPYFILE_COPY_XATTR;
    if (isAttribute || stage == COPYFILE_FINISH)
        outcome.hasBegun = true;
    if (stage != COPYFILE_ERR || (isAttribute && isLeftOut(errno)))
        return COPYFILE_CONTINUE;
    outcome.error = errno;
    return COPYFILE_QUIT;
}

struct FreeState {
    void operator()(copyfile_state_t state) const { ::copyfile_state_free(state); }
};

bool copyAll(const CopyPlan& plan, std::uint32_t flags, Outcome& outcome) {
    const std::unique_ptr<std::remove_pointer_t<copyfile_state_t>, FreeState> state(
        ::copyfile_state_alloc());
    if (!state ||
        ::copyfile_state_set(state.get(), COPYFILE_STATE_STATUS_CB,
                             reinterpret_cast<const void*>(&note)) != 0 ||
        ::copyfile_state_set(state.get(), COPYFILE_STATE_STATUS_CTX, &outcome) != 0) {
        outcome.error = EEXIST; // nothing has been done
        return false;
    }
    if (::copyfile(plan.source.c_str(), plan.target().c_str(), state.get(), flags | kAlways) == 0)
        return true;
    if (outcome.error == 0)
        outcome.error = errno;
    return false;
}

// A copy is locked as soon as it is whole, where its source is.
void discardSingle(const std::string& path) {
    if (::unlink(path.c_str()) == 0 || !set_locked(open_node(AT_FDCWD, path.c_str(), false), false))
        return;
    ::unlink(path.c_str());
}

} // namespace

bool copy_file(const std::string& from, const std::string& to, std::uint32_t flags) {
    const auto plan = plan_copy(from, to, flags);
    struct stat status{};
    // A tree would go into a folder that is there already.
    if (!plan || ::lstat(plan->target().c_str(), &status) == 0)
        return false;
    Outcome outcome;
    if (copyAll(*plan, plan->isFolder ? flags : flags & ~kCopyRecursive, outcome))
        return true;
    // What someone else has put there meanwhile is not ours to clear away.
    if (outcome.isOurs())
        plan->isFolder ? discard_tree(plan->target()) : discardSingle(plan->target());
    return false;
}

} // namespace Corvaldine::CP::Private
