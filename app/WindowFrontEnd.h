// The window front end as the composition root sees it, without its toolkit. A build without Qt has
// none: WindowFrontEnd.none.cpp stands in for WindowFrontEnd.qt.cpp.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "ui/GuiFrontEnd.h"

namespace app {

/// The ports that a front end implements.
struct FrontEndPorts {
    ports::InterfaceFiles& interfaceFiles;
    ports::AlertSheets& alertSheets;
    ports::ModalLoop& modalLoop;
    ports::Appearance& appearance;
    ports::FileChoosers& fileChoosers;
    ports::Reader& reader;
    ports::Beeper& beeper;
};

class WindowFrontEnd {
  public:
    using Needs = ui::GuiFrontEnd::Needs;

    virtual ~WindowFrontEnd() = default;
    virtual FrontEndPorts ports() = 0;
    /// To be called again and again while the main thread waits for a tool.
    virtual std::function<void()> keepAlive() = 0;
};

/// Said when there is nothing to show a window on, with how to go on.
inline constexpr std::string_view kNoDisplay =
    "there is no display for a window; use --unattended to install without one, or set DISPLAY";

/// Can this build show a window at all?
bool hasWindowFrontEnd();

/// The texts that go with the window, in the dearest of the user's languages (as
/// app::preferredLanguages gives them) that there is a translation for. Made before the front end.
std::unique_ptr<ports::LocalizedTexts> makeTexts(const std::string& resourceFolder,
                                                 std::vector<std::string> languages);

/// Null in a build without one. How the window looks and what happens when no display can be opened
/// is filled in here.
std::unique_ptr<WindowFrontEnd> makeWindowFrontEnd(WindowFrontEnd::Needs needs);

/// Asks for a password in a small window and prints it: what `sudo` starts as its helper. Answers
/// the exit status.
int runPasswordDialog(int& argc, char** argv, const std::string& resourceFolder,
                      const ports::LocalizedTexts& texts);

} // namespace app
