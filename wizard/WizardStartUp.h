// How the wizard starts: where it finds itself, and on what kind of volume. Part of ecController;
// needs no window.
#pragma once

#include <string>

#include "wizard/WizardSession.h"

namespace ec {

class WizardStartUp {
  public:
    struct Needs {
        const WizardSession& session;
    };
    explicit WizardStartUp(Needs needs) : m_session(needs.session) {}
    WizardStartUp(const WizardStartUp&) = delete;
    WizardStartUp& operator=(const WizardStartUp&) = delete;

    /// `readHomeDirectory` answers the current user's home folder; it is not made when missing.
    std::string readHomeDirectory() const { return m_session.places.home; }

    /// `isOnDiskImage`: does the running executable lie on the product's installation disk image,
    /// mounted read-only? Outside "/Volumes/Scrivel…" the answer is no and the disk is not touched;
    /// else a file is written into the resource folder and taken away again to find out.
    bool isOnDiskImage() const;

  private:
    const WizardSession& m_session;
};

} // namespace ec
