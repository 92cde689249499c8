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

class ModalLoop {
  public:
    virtual ~ModalLoop() = default;

    /// Shows the window and runs until `stopModalWithCode`; answers that code. The main queue is
    /// drained meanwhile. The window is out of sight when this returns.
    virtual int runModalForWindow(controls::Window& window) = 0;

    /// Ends the innermost modal session; it returns when the work under way on the main thread is
    /// done. Without a session nothing happens.
    virtual void stopModalWithCode(int code) = 0;
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
