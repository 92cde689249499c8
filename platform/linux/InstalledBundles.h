// The application bundles in the folders for applications, as a registry of applications would know
// them. Used by ProcApplications. Keeps what it knows in memory, and asks the folders each time
// whether they have changed: an answer is never old.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "cp/FolderWalk.h"

namespace linuxhost {

class InstalledBundles {
  public:
    explicit InstalledBundles(const std::vector<std::string>& folders);

    /// The paths of all items "X.app" below the folders, in whatever letter case, in the order of
    /// the folders and in each in that of FolderWalk. What is no bundle, but only called so, is
    /// among them. Bundles are never looked into and links to folders not followed, but one called
    /// "X.app" counts. Folders that can't be read are passed over.
    std::vector<std::string> paths();

  private:
    std::vector<std::pair<std::string, Corvaldine::CP::FolderWalk>> m_walks;
};

/// Of those paths that lead to the same bundle only one, in its place: the first that is no link,
/// else the first. What leads nowhere is left out.
std::vector<std::string> eachOnce(const std::vector<std::string>& bundles);

} // namespace linuxhost
