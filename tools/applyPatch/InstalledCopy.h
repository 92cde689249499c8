// Where the copy is that a patch is applied to: its folder, the folder that holds it, and the two
// names beside it under which its new version is built and its old one is set aside. Used by
// Update. Everything from here on goes by the descriptors it has opened.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <sys/types.h>

#include "tools/applyPatch/ApplyError.h"
#include "tools/files/Descriptor.h"

namespace tools {

/// A folder that is open, and the lock on it.
class HeldFolder {
  public:
    /// Opens the folder `name` of `parent`; none when nothing has that name. Throws
    /// std::system_error, ELOOP or ENOTDIR for what is no folder.
    static std::optional<HeldFolder> opened(int parent, const std::string& name);
    /// Takes over an open folder.
    explicit HeldFolder(Descriptor folder);

    int number() const { return m_folder.number(); }
    uid_t owner() const { return m_owner; }
    dev_t device() const { return m_device; }

    /// Keeps other runs away until this is gone; false when one is at work. A file system without
    /// locks keeps none away.
    [[nodiscard]] bool lock() const;
    /// Whether another run has it; changes nothing.
    bool isLocked() const;
    /// Whether `name` in `parent` is this very folder.
    bool isAt(int parent, const std::string& name) const;
    /// Whether it is not, where that can be told.
    bool isSurelyNotAt(int parent, const std::string& name) const;

  private:
    Descriptor m_folder;
    uid_t m_owner = 0;
    dev_t m_device = 0;
    ino_t m_inode = 0;
};

class InstalledCopy {
  public:
    /// `folder` as the user gave it; links in it are followed, this once. Throws ApplyError when
    /// there is no such place or an update can't be put there. The copy itself may be missing, as
    /// it is when an update was broken off between its two last steps.
    explicit InstalledCopy(const std::string& folder);

    /// Without links.
    const std::string& path() const { return m_path; }
    const std::string& name() const { return m_name; }
    int parent() const { return m_parent.number(); }
    std::string parentPath() const;

    /// Names in the parent, always the same for a copy, so that a later run finds what an earlier
    /// one left.
    const std::string& buildingName() const { return m_buildingName; }
    const std::string& asideName() const { return m_asideName; }
    /// Its path, for messages.
    std::string beside(const std::string& name) const;

    /// The folder that has the copy's name now; none when nothing has. Throws ApplyError when it is
    /// no folder or one that can't be exchanged, as where a volume is mounted.
    std::optional<HeldFolder> open() const;
    /// The folder under one of the two other names. Throws ApplyError when it is none.
    std::optional<HeldFolder> openBeside(const std::string& name) const;
    /// What stands under one of the two other names can't be an earlier run's.
    ApplyError isInTheWay(const std::string& name) const;

  private:
    std::string m_path;
    std::string m_name;
    std::string m_buildingName;
    std::string m_asideName;
    Descriptor m_parent;
};

} // namespace tools
