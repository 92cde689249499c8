// The Word applications that are known, each once: a list of paths in the order in which they were
// found. Held by AppDiscovery. Letter case does not count; the first spelling stays. No disk.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace ec {

class WordPathList {
  public:
    /// Appends the Word path of each entry, a pair record or a plain path, that is not there yet.
    void add(const std::vector<std::string>& recordsOrPaths);

    const std::vector<std::string>& paths() const { return m_paths; }

  private:
    std::vector<std::string> m_paths;
    std::set<std::string> m_folded;
};

} // namespace ec
