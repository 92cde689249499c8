// Folders compared by the names of their direct entries: whether a set of content files is there,
// in part or whole, and taking it away. Used by the category modes and by the updater. Comparing
// costs time in proportion to the number of names, not to their product.
//
// Where a path is missing, a folder can't be listed or has no entry, every answer is false and
// nothing is done. Names are compared byte for byte. Main thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "engine/FileOperations.h"

namespace ec {

class FolderComparison {
  public:
    struct Needs {
        FileOperations& files;
    };
    explicit FolderComparison(Needs needs) : m_needs(needs) {}
    FolderComparison(const FolderComparison&) = delete;
    FolderComparison& operator=(const FolderComparison&) = delete;

    /// `someItemsAtPath:existAtPath:`: is at least one name of `folder` in `other`?
    bool someItemsAtPath(OptionalText folder, OptionalText other) const;

    /// `itemsAtPath:existAtPath:`: is every name of `folder` in `other`?
    bool itemsAtPath(OptionalText folder, OptionalText other) const;

    /// The same against a folder whose names are at hand, for many questions about one folder.
    using Names = std::unordered_set<std::string>;
    std::shared_ptr<const Names> namesOf(const std::string& folder) const;
    bool itemsAtPath(const std::string& folder, const Names& names) const;

    /// While one lives, the names of a folder are read once, however many questions there are: for
    /// a pass over all components that changes no folder that is asked about.
    class OneLook {
      public:
        explicit OneLook(FolderComparison& folders) : m_folders(folders) {
            m_folders.m_remembered.emplace();
        }
        ~OneLook() { m_folders.m_remembered.reset(); }
        OneLook(const OneLook&) = delete;
        OneLook& operator=(const OneLook&) = delete;

      private:
        FolderComparison& m_folders;
    };

    /// `removeItemsAtPath:fromPath:` removes from `other` what has a name that is in `folder`,
    /// whether or not it is there, in the order of the names. Stops with false at the first that
    /// can't be removed.
    bool removeItemsAtPath(OptionalText folder, OptionalText other);

    /// `installPatchCategoriesItems:path:` brings content up to date after an update. Each source
    /// is ".../CATEGORY FOLDER/SET/ITEM"; its target is the folder of the category's name in
    /// `path`. A source that exists is copied into the target, where that holds something of the
    /// same set; of one that does not, the target's item of its name is removed. What the copies
    /// and removals come to is not looked at. Nothing happens without a path.
    void installPatchCategoriesItems(const std::vector<std::string>& sources, OptionalText path);

  private:
    Needs m_needs;
    /// The folders that were read in the pass that is on; none while there is no pass.
    mutable std::optional<std::unordered_map<std::string, std::shared_ptr<const Names>>>
        m_remembered;
};

} // namespace ec
