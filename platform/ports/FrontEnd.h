// What the core asks of whoever shows it: a window system, or the unattended driver.
// All on the main thread.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/Interface.h"

namespace ports {

/// Interface files: the layouts in the bundle's resources that outlets are bound from.
class InterfaceFiles {
  public:
    virtual ~InterfaceFiles() = default;

    /// Loads the interface file `name` (without its extension) and binds its objects to the
    /// outlets: the models take the first title, visibility and enabling from the file, and from
    /// then on the front end shows what the models say. False when the file is missing or
    /// unreadable or an outlet is not in it; nothing is bound then.
    virtual bool load(std::string_view name, controls::Interface& outlets) = 0;
};

enum class AlertStyle { warning = 0, informational = 1, critical = 2 };

struct Alert {
    AlertStyle style = AlertStyle::warning;
    std::string message;
    std::string informative;
    /// Titles in their order; the first is the default button.
    std::vector<std::string> buttons;
    /// Index of the button that Escape and closing the sheet answer with; none: the last one.
    std::optional<std::size_t> escapeButton = std::nullopt;
};

class AlertSheets {
  public:
    virtual ~AlertSheets() = default;

    /// The answer's code is this plus the button's index.
    static constexpr int kFirstButton = 1000;
    static constexpr int kSecondButton = 1001;

    /// Shows `alert` as a sheet on `window` and returns at once. `completion` gets the code of the
    /// button, later and on the main thread, when the sheet is gone. Escape and closing the sheet
    /// answer with `Alert::escapeButton`.
    virtual void beginSheet(const Alert& alert, controls::Window& window,
                            std::function<void(int)> completion) = 0;
};

/// Modal sessions of windows, one inside the other. The main queue is drained while one runs.
class ModalLoop {
  public:
    virtual ~ModalLoop() = default;

    /// What `runModalSession` answers besides the codes of `stopModalWithCode`.
    static constexpr int kStopped = -1000;   ///< `stopModal` was called
    static constexpr int kAborted = -1001;   ///< nothing can end the session any more
    static constexpr int kContinues = -1002; ///< go on: run it again

    /// Shows the window and runs until `stopModalWithCode`; answers that code. The window is out of
    /// sight when this returns.
    virtual int runModalForWindow(controls::Window& window) = 0;

    /// Ends the innermost modal session; it returns when the work under way on the main thread is
    /// done. Without a session nothing happens.
    virtual void stopModalWithCode(int code) = 0;
    void stopModal() { stopModalWithCode(kStopped); }

    /// A session that its owner runs step by step. Sessions end in the reverse order of their
    /// beginnings.
    using Session = std::size_t;
    /// Shows the window, where it is not in sight yet, and begins its session.
    virtual Session beginModalSession(controls::Window& window) = 0;
    /// Serves what the user, the queues and the timers have brought, and waits for it where there
    /// is nothing yet. Answers `kContinues` while nothing has ended the session; `kAborted` when
    /// its window went out of sight.
    virtual int runModalSession(Session session) = 0;
    virtual void endModalSession(Session session) = 0;

    /// Hangs the window `sheet` on `parent`, which takes no input meanwhile, and shows it.
    virtual void beginSheet(controls::Window& sheet, controls::Window& parent) = 0;
    /// Takes it away again. A window that is no sheet stays as it is.
    virtual void endSheet(controls::Window& sheet) = 0;

    /// The program ends: every session answers `kAborted`, also those that begin later.
    virtual void terminate() = 0;
};

/// A question for a file.
struct Chooser {
    enum class Kind { application, folder };
    Kind kind = Kind::application;
    std::string title;
    std::string folder; ///< where it opens; empty: wherever the user was last
    /// The types that are offered: extensions and four-character types.
    std::vector<std::string> types;
};

class FileChoosers {
  public:
    virtual ~FileChoosers() = default;

    /// Asks for one file or folder in a modal session of its own. The path that was chosen,
    /// absolute; none when the user cancelled.
    virtual std::optional<std::string> choose(const Chooser& chooser) = 0;
};

/// A text to read: the HTML file at `file`, from its anchor of that name on, or the plain `text`
/// where no file is named.
struct ReadingMatter {
    std::string title;
    std::string file;
    std::string anchor;
    std::string text;
};

class Reader {
  public:
    virtual ~Reader() = default;

    /// Shows the text in a sheet on `window` until the user closes it; returns then.
    virtual void read(const ReadingMatter& matter, controls::Window& window) = 0;
};

class Beeper {
  public:
    virtual ~Beeper() = default;
    /// The system's sound for what can't be done.
    virtual void beep() = 0;
};

class Appearance {
  public:
    virtual ~Appearance() = default;
    virtual bool isDark() const = 0;

    /// What a front end answers that runs on no toolkit of the platform: it has a dark appearance.
    static constexpr double kOwnToolkitVersion = 2022;

    /// The version number of the platform's window toolkit, as it counts them (1671 is
    /// macOS 10.14).
    virtual double toolkitVersion() const = 0;
};

} // namespace ports
