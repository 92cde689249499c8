#include "cp/private/CopyFile.h"

#include <sys/stat.h>
#include <utility>
#include <vector>

#include "cp/private/CopyPlan.h"
#include "cp/private/TreeWalk.h"
#include "cp/private/linux/CopyNode.h"

namespace Corvaldine::CP::Private {

namespace {

FileDescriptor makeFolder(int parent, const char* name) {
    if (::mkdirat(parent, name, S_IRWXU) != 0)
        return {};
    return open_folder(parent, name);
}

// Follows the walk over the source with a descriptor on the folder of the copy.
class TreeCopy : public TreeVisitor {
  public:
    explicit TreeCopy(FileDescriptor target) : m_target(std::move(target)) {}

    bool enter(int, const char* name, int) override {
        NodeIdentity above;
        if (!identify(m_target.number(), above))
            return false;
        m_above.push_back(above);
        m_target = makeFolder(m_target.number(), name);
        return m_target.isOpen();
    }

    bool entry(int parent, const char* name) override {
        return copy_node(parent, name, m_target.number(), name);
    }

    // Only now: the permissions may forbid writing, and each new entry changes the times.
    bool leave(int folder) override {
        if (m_above.empty())
            return copy_metadata(folder, m_target.number());
        FileDescriptor above = open_parent(m_target.number(), m_above.back());
        m_above.pop_back();
        if (!above.isOpen() || !copy_metadata(folder, m_target.number()))
            return false;
        m_target = std::move(above);
        return true;
    }

  private:
    FileDescriptor m_target;
    std::vector<NodeIdentity> m_above;
};

bool copyTree(const std::string& from, int toFolder, const std::string& name,
              const std::string& to) {
    FileDescriptor source = open_folder(AT_FDCWD, from.c_str());
    if (!source.isOpen())
        return false;
    if (::mkdirat(toFolder, name.c_str(), S_IRWXU) != 0)
        return false;
    FileDescriptor target = open_folder(toFolder, name.c_str());
    if (target.isOpen()) {
        TreeCopy copy(std::move(target));
        if (walk_tree(std::move(source), copy))
            return true;
    }
    discard_tree(to);
    return false;
}

} // namespace

bool copy_file(const std::string& from, const std::string& to, std::uint32_t flags) {
    const auto plan = plan_copy(from, to, flags);
    if (!plan)
        return false;
    const FileDescriptor folder(::open(plan->folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return false;
    if (plan->isFolder)
        return copyTree(plan->source, folder.number(), plan->name, plan->target());
    return copy_node(AT_FDCWD, plan->source.c_str(), folder.number(), plan->name.c_str());
}

} // namespace Corvaldine::CP::Private
