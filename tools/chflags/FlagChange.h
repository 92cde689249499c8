// Sets or clears the immutable flag of files and folders, as chflags does the user's flag of that
// meaning. Linux has one flag for user and system, which the administrator alone may change.
//
// Symbolic links are never followed. A file system or a kind of file without flags counts as having
// none set. A path that fails is complained about and the others go on.
#pragma once

#include <string>

#include "tools/files/Complaints.h"

namespace tools {

class FlagChange {
  public:
    enum class To { immutable, changeable };

    FlagChange(To to, Complaints& complaints) : m_to(to), m_complaints(complaints) {}

    void apply(const std::string& path);

    /// The path and, when it is a folder, all below it.
    void applyToTree(const std::string& path);

  private:
    /// Throws std::system_error. Answers whether the item is a folder.
    bool change(int folder, const char* name);
    void walk(const std::string& path);

    To m_to;
    Complaints& m_complaints;
};

} // namespace tools
