// The browser extension Tessaron, which Google Chrome fetches by itself once a small file tells it
// to: a file named after the extension, in a folder for all users, with the address of an update
// manifest. The driver calls the install method. Main thread.
//
// The mechanism is Chrome's documented one for external extensions. The hosts are set when the
// program is built (SCRIVEL_MANIFEST_HOST, SCRIVEL_CHROME_STORE_HOST).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/CommandRunner.h"
#include "engine/ComponentParts.h"
#include "engine/OpMode.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"

namespace ec {

/// The extension's file, under the root of the run.
inline constexpr std::string_view gTessaronFile =
    "/Library/Application Support/Google/Chrome/External Extensions/"
    "kmhdpbnaogjcfelipamcbkdgonhejlfa.json";

class BrowserExtension {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        CommandRunner& runner;
    };
    explicit BrowserExtension(Needs needs) : m_needs(needs) {}
    BrowserExtension(const BrowserExtension&) = delete;
    BrowserExtension& operator=(const BrowserExtension&) = delete;

    /// `installTessaronMode:itemNum:source:dest:`. Check: 1 in launch modes 32 and 36; in the
    /// Customizer whether the file is there; else 0. Copy writes the file, as administrator, owned
    /// by "root:wheel" with its folder; remove removes it, as administrator. Both answer by whether
    /// the file is there afterwards, whatever the tools said. A folder in the file's place is no
    /// file, and is not touched. An exception of the platform: -1.
    MethodAnswer installTessaronMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                     OptionalText dest);

    /// `useChromeStore`: false for a readable file whose address is a text that leads elsewhere
    /// than to Chrome's own store; true for any other, and for none.
    bool useChromeStore() const;

    /// What of it lies where.
    ComponentParts extensionParts() const;

  private:
    std::string file() const { return m_needs.session.places.system(gTessaronFile); }
    bool check() const;
    bool copy();
    bool remove();

    Needs m_needs;
};

} // namespace ec
