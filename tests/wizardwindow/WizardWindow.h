// The wizard in its real window over fakes of the system, with the shipped interface files, rules,
// documents and texts, and a person at its keyboard who does one thing whenever the window or a
// sheet waits. Nothing outside a temporary folder is touched. One front end a test.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QDialog>
#include <QKeySequence>

#include "tests/fakes/FakeHost.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/Stage.h"
#include "ui/GuiFrontEnd.h"
#include "ui/TranslatedTexts.h"
#include "wizard/ecController.h"

namespace tests {

/// A way to open the wizard.
struct WizardMode {
    const char* name;
    std::int32_t (*open)(ec::ecController&);
};
namespace modes {
extern const WizardMode kFull, kShort, kCustomize, kPenmark, kUpdate;
} // namespace modes

/// A row of the wizard's steps as text, with all that is told of it.
std::string described(const ports::RowShown& row);

/// Fakes with the folders of a run below a temporary one, and the resources of the built bundle.
struct WizardSystem {
    WizardSystem();
    ~WizardSystem();
    WizardSystem(const WizardSystem&) = delete;
    WizardSystem& operator=(const WizardSystem&) = delete;

    /// The fakes, but for what a front end brings with it.
    struct FrontEnd {
        ports::LocalizedTexts& texts;
        ports::MainQueue& mainQueue;
        ports::InterfaceFiles& interfaceFiles;
        ports::AlertSheets& alertSheets;
        ports::ModalLoop& modalLoop;
        ports::Appearance& appearance;
        ports::Reader& reader;
        ports::Beeper& beeper;
    };
    ports::Host host(const FrontEnd& frontEnd);

    TemporaryFolder folder;
    fakes::FakeHost fakes;
    ec::ecRules rules{SCRIVEL_BUNDLE_RESOURCES};
    ec::ecItem root{rules, ec::ecItem::kRootItem, nullptr};
    std::vector<std::string> rows; ///< those that came into sight
    std::vector<ports::QuestionAnswered> questions;
};

/// The rows of the same mode without a window, by the answers file `answers`.
std::vector<std::string> rowsUnattended(const WizardMode& mode, const std::string& answers = "{}");

class WizardWindow : public testing::Test {
  protected:
    using Deed = std::function<void()>;

    explicit WizardWindow(const std::string& language = "en",
                          const std::string& translations = SCRIVEL_BUNDLE_RESOURCES);
    ~WizardWindow() override;

    /// Opens the wizard and has the person do all this; answers the wizard's result.
    std::int32_t walk(const WizardMode& mode, std::deque<Deed> deeds);

    // What the person sees.
    static QDialog* dialog();
    /// What takes the keyboard: the sheet in sight, else the wizard's window.
    static QWidget* front();
    static QWidget* focus();
    /// The object name of the widget that has the keyboard, or of the first named one round it.
    static std::string focusName();
    /// Of several the one in sight: each document has a find bar.
    template <class Widget = QWidget>
    static Widget* find(const char* name) {
        Widget* found = nullptr;
        if (front())
            for (Widget* widget : front()->findChildren<Widget*>(name))
                if (!found || widget->isVisible())
                    found = widget;
        if (!found)
            ADD_FAILURE() << "no " << name;
        return found;
    }

    // What the person does.
    static void press(int key, Qt::KeyboardModifiers modifiers = {});
    static void press(const QKeySequence& keys);
    static void type(const char* text);
    /// Presses Tab until the keyboard is at that widget.
    static void tabTo(const std::string& name);
    static void click(const char* name);
    /// In the middle, as the mouse does it, so that what is modal counts.
    static void clickAt(QWidget& widget);
    static Deed key(int key, Qt::KeyboardModifiers modifiers = {}) {
        return [=] { press(key, modifiers); };
    }
    static Deed clicking(const char* name) {
        return [=] { click(name); };
    }
    /// Looks at a page with everything on it (see AccessibleWindow.h), which is to be this one.
    Deed page(int number);

    WizardSystem system;
    ui::TranslatedTexts texts;
    stage::PipeQueue queue;
    ui::GuiFrontEnd frontEnd;
    ec::ecController wizard;

  private:
    void loopWaits();
    void actNext();

    QObject m_context;
    std::deque<Deed> m_deeds;
    bool m_isDue = false;
    bool m_wasActivated = false;
};

} // namespace tests
