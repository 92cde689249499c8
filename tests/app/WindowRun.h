// The real program with its real window on the X server of DISPLAY, in the little system of
// InstallerRun. A test opens it, does with mouse and keyboard what a person does, and waits for
// what the program tells or shows; nothing waits for a length of time.
//
// What does not come within the patience of `waitUntil` throws, with what the program said.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/ChildProcess.h"
#include "tests/app/InstallerRun.h"

namespace tests {

class WindowRun : public InstallerRun {
  protected:
    /// A window's number, as xdotool writes it.
    using WindowId = std::string;

    /// Where the middle of a button is, in pixels from its window's right and lower edge.
    struct Spot {
        int fromRight;
        int fromBottom;
    };
    static constexpr Spot kButton{84, 52};        ///< the window's one button
    static constexpr Spot kDefaultAnswer{72, 38}; ///< a sheet's first button
    static constexpr Spot kSecondAnswer{176, 38}; ///< the one to the left of it

    /// Further entries of the program's environment.
    std::vector<std::string> variables;

    void TearDown() override;

    /// Starts the program, with events and without launching what it installs, and does not wait.
    void start(const std::string& command = "install");
    /// The same, and waits for its window.
    void open(const std::string& command = "install");
    WindowId window() const { return m_window; }
    /// Waits for a sheet, other than `before`.
    WindowId sheet(const WindowId& before = {});
    /// What the program has in sight.
    std::vector<WindowId> windows() const;
    static std::string titleOf(const WindowId& window);

    static void click(const WindowId& window, Spot spot);
    static void press(const WindowId& window, const std::string& key);
    /// One key after the other.
    static void pressAll(const WindowId& window, const std::vector<std::string>& keys);
    /// What a window manager does at a click on a title bar's close button.
    static void requestClose(const WindowId& window);
    void send(int signal) const;

    /// Waits for an event, and for its member of that name and value when one is given.
    void awaitEvent(const std::string& event, const std::string& member = {},
                    const std::string& value = {});
    /// Waits until the wizard shows the page, counted from the run's beginning: the `time`th event.
    void awaitPage(int page, std::size_t time = 1);
    /// Waits until the program has ended.
    Result end();
    bool hasEnded() { return m_program->hasEnded(); }

    void waitUntil(std::string_view what, const std::function<bool()>& condition) const;

    /// Makes ditto wait for `openGate` before it does its work.
    void holdDitto();
    void waitForDitto() const;
    void openGate() const;

    /// The events of a run but for progress, in order, without times and with the temporary
    /// folder's name made the same for every run.
    static std::vector<std::string> storyOf(const Result& result);

  private:
    std::vector<Json> eventsSoFar() const;

    std::unique_ptr<posix::ChildProcess> m_program;
    WindowId m_window;
};

} // namespace tests
