// The folder that an installation into another place is confined to. Used by the adapters that list
// applications: only what lies below it counts. Changes nothing.
#pragma once

#include <string>

namespace posix {

class RootFolder {
  public:
    /// Empty or "/": everything counts. Links are resolved now.
    explicit RootFolder(const std::string& path);

    /// Does the path lead to something below the folder, links resolved? The folder itself is not
    /// below. A path that leads nowhere is taken as it stands.
    bool holds(const std::string& path) const;

    bool isEverywhere() const { return m_prefix == "/"; }

  private:
    std::string m_prefix; ///< with a slash at its end
};

} // namespace posix
