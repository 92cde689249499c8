// The window front end: owns the toolkit's application object and implements the front-end ports.
// Made once by the composition root, before the objects whose windows it shows; those may die
// first. This header shows no toolkit. Main thread only.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"

namespace ui {

class GuiFrontEnd {
  public:
    struct Needs {
        /// The toolkit takes its own options out of them. Both outlive the front end.
        int& argc;
        char** argv;
        /// Where interface files and pictures are.
        std::string resourceFolder;
        const ports::LocalizedTexts& texts;
        /// Readable when the main queue has work; `runPending` does that work and makes it
        /// unreadable again before it runs the first piece, which may start a loop of its own.
        int mainQueueDescriptor;
        std::function<void()> runPending;
        /// None: as the desktop has it.
        std::optional<bool> dark = std::nullopt;
        /// Called when no display can be opened: says so and ends the process. Without it the
        /// toolkit's own message and abort stand.
        std::function<void()> onNoDisplay = nullptr;
        /// The four-character type of the file at a path, empty for none: what a file chooser goes
        /// by besides extensions.
        std::function<std::string(const std::string&)> typeOfFile = nullptr;
        /// Has the desktop a dark appearance? Asked once the toolkit's application is there, where
        /// `dark` is none. None, or without it: as the toolkit sees it.
        std::function<std::optional<bool>()> desktopIsDark = nullptr;
        double toolkitVersion = ports::Appearance::kOwnToolkitVersion;
    };
    explicit GuiFrontEnd(const Needs& needs);
    ~GuiFrontEnd();
    GuiFrontEnd(const GuiFrontEnd&) = delete;
    GuiFrontEnd& operator=(const GuiFrontEnd&) = delete;

    ports::InterfaceFiles& interfaceFiles();
    ports::AlertSheets& alertSheets();
    ports::ModalLoop& modalLoop();
    ports::Appearance& appearance();
    ports::FileChoosers& fileChoosers();
    ports::Reader& reader();
    ports::Beeper& beeper();

    /// What to call every 15 ms or so while the main thread waits for a tool, and once more when
    /// the tool has ended: paints the windows and drops what the user presses. Does nothing on
    /// other threads. Not longer than the front end lives.
    std::function<void()> keepAlive();

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace ui
