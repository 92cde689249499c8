// The front end without a window: it shows nothing, runs the same modal loops and sheets as a
// window does, and lets the answers driver act wherever a person would. Several windows may be
// open, one session inside the other; the driver always works the one whose session is the
// innermost. No display is needed. Main thread only.
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
                                 public ports::Beeper,
                                 private controls::Control::Observer {
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
    /// The windows of the interfaces that it loaded are gone by now.
    ~UnattendedFrontEnd() override = default;

    bool load(std::string_view name, controls::Interface& outlets) override;
    void beginSheet(const ports::Alert& alert, controls::Window& window,
                    std::function<void(int)> completion) override;
    int runModalForWindow(controls::Window& window) override;
    void stopModalWithCode(int code) override;
    Session beginModalSession(controls::Window& window) override;
    int runModalSession(Session session) override;
    void endModalSession(Session session) override;
    void beginSheet(controls::Window& sheet, controls::Window&) override { sheet.orderFront(); }
    void endSheet(controls::Window& sheet) override { sheet.orderOut(); }
    void terminate() override { m_terminated = true; }
    std::optional<std::string> choose(const ports::Chooser&) override {
        return m_needs.driver.choose();
    }
    void read(const ports::ReadingMatter&, controls::Window&) override {}
    void beep() override {}
    bool isDark() const override { return false; }
    double toolkitVersion() const override { return kOwnToolkitVersion; }

  private:
    struct Sheet {
        ports::Alert alert;
        std::function<void(int)> completion;
    };
    struct Loaded {
        const controls::Control* window; ///< compared only: it may be on its way out
        controls::Interface* outlets;
        bool isQuestion;
    };
    void controlChanged(controls::Control&) override {}
    void controlDestroyed(controls::Control& window) override;
    void answer(const Sheet& sheet);
    void answerQuestion(controls::Interface& outlets);
    void act(const Loaded& loaded);

    Needs m_needs;
    std::vector<Loaded> m_interfaces;
    std::optional<Sheet> m_sheet;
    struct OpenSession {
        controls::Window* window;
        std::optional<int> code; ///< the one that ended it
    };
    std::vector<OpenSession> m_sessions; ///< the innermost last
    bool m_terminated = false;
};

} // namespace app
