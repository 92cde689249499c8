// The front end without a window: it shows nothing, runs the same modal loops and sheets as a
// window does, and lets the answers driver act wherever a person would. No display is needed. Main
// thread only.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/unattended/AnswersDriver.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/Queues.h"

namespace app {

class UnattendedFrontEnd final : public ports::InterfaceFiles,
                                 public ports::AlertSheets,
                                 public ports::ModalLoop,
                                 public ports::Appearance,
                                 public ports::FileChoosers,
                                 public ports::Reader,
                                 public ports::Beeper {
  public:
    struct Needs {
        AnswersDriver& driver;
        const ports::BackgroundQueue& background;
        std::string resourceFolder;
        /// Runs what the main queue holds.
        std::function<void()> runPending;
        /// Waits until the main queue holds something, at most this long.
        std::function<void(std::chrono::milliseconds)> waitForWork;
    };
    explicit UnattendedFrontEnd(Needs needs) : m_needs(std::move(needs)) {}

    bool load(std::string_view name, controls::Interface& outlets) override;
    void beginSheet(const ports::Alert& alert, controls::Window& window,
                    std::function<void(int)> completion) override;
    int runModalForWindow(controls::Window& window) override;
    void stopModalWithCode(int code) override;
    Session beginModalSession(controls::Window& window) override;
    int runModalSession(Session session) override;
    void endModalSession(Session session) override;
    void beginSheet(controls::Window& sheet, controls::Window& parent) override;
    void endSheet(controls::Window& sheet) override;
    void terminate() override { m_terminated = true; }
    std::optional<std::string> choose(const ports::Chooser& chooser) override;
    void read(const ports::ReadingMatter&, controls::Window&) override {}
    void beep() override {}
    bool isDark() const override { return false; }
    double toolkitVersion() const override { return kOwnToolkitVersion; }

  private:
    struct Sheet {
        ports::Alert alert;
        std::function<void(int)> completion;
    };
    void answer(const Sheet& sheet);

    Needs m_needs;
    controls::Interface* m_outlets = nullptr;
    std::optional<Sheet> m_sheet;
    struct OpenSession {
        controls::Window* window;
        std::optional<int> code; ///< the one that ended it
    };
    std::vector<OpenSession> m_sessions; ///< the innermost last
    bool m_terminated = false;
};

} // namespace app
