// Reads what stands in an open folder, entry by entry and in no order, as fast as the system gives
// it: the same reader serves folder after folder. A file of this name in each system's own folder
// implements it. Used by FolderWalk; list_children (TreeWalk.h) answers a sorted list instead.
#pragma once

#include <memory>
#include <string_view>

namespace Corvaldine::CP::Private {

class FolderReader {
  public:
    struct Entry {
        std::string_view name; ///< ended by a zero; good until the next call
        bool isFolder = false; ///< a link to a folder is none
    };

    FolderReader();
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    /// From here on `next` reads this folder, which nobody has read from since it was opened and
    /// which stays open meanwhile.
    void start(int folder);

    /// Sets `entry` to the next one; "." and ".." are left out. False at the end, also when the
    /// folder can't be read on.
    [[nodiscard]] bool next(Entry& entry);

    /// Was the end the folder's own?
    [[nodiscard]] bool isComplete() const;

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Corvaldine::CP::Private
