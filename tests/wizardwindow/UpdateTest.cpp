// The updater's pages as a person meets them: the question about a copy, the keys and buttons that
// answer it, what can be pressed meanwhile, and the summary.
#include <filesystem>

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QTextBrowser>
#include <gmock/gmock.h>

#include "tests/support/PretendedPatchTool.h"
#include "tests/wizardwindow/AccessibleWindow.h"
#include "tests/wizardwindow/WizardWindow.h"

namespace {

namespace fs = std::filesystem;
namespace modes = tests::modes;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using State = ec::CopyOutcome::State;

template <class Window>
struct UpdateIn : Window {
    using Copy = tests::PretendedPatchTool::Copy;
    using typename Window::Deed;

    tests::PretendedPatchTool tool{this->system.fakes,
                                   this->system.fakes.bundles.resourceFolder + "/applyPatch"};

    std::string add(const std::string& name, Copy copy = Copy::old) {
        std::string its = this->system.fakes.places.root + "/Applications/" + name;
        fs::create_directories(its + "/Scrivel 21.app");
        this->system.fakes.applications.openers["enl"].push_back(its + "/Scrivel 21.app");
        tool.copies[its] = copy;
        return its;
    }
    /// Opens the updater, goes to the page of the first copy by keys, and on with these deeds.
    void update(std::deque<Deed> deeds) {
        deeds.push_front(Window::key(Qt::Key_Return));
        deeds.push_front(Window::key(Qt::Key_Return));
        this->walk(modes::kUpdate, std::move(deeds));
    }
    std::vector<State> states() const {
        std::vector<State> all;
        for (const ec::CopyOutcome& copy : this->wizard.copies)
            all.push_back(copy.state);
        return all;
    }
    static std::string nameOf(const char* widget) {
        return QAccessible::queryAccessibleInterface(Window::find(widget))
            ->text(QAccessible::Name)
            .toStdString();
    }
    static std::string summary() {
        return Window::template find<QTextBrowser>("patchSummary")->toPlainText().toStdString();
    }
    /// The words of the question in sight, whatever a line ends with.
    static std::string question() {
        return Window::template find<QLabel>("patchFound")
            ->text()
            .remove(QChar(0x200B))
            .toStdString();
    }
    /// Nothing of the text is cut off at an edge.
    static void expectToFit(const char* label) {
        const auto* text = Window::template find<QLabel>(label);
        EXPECT_LE(text->minimumSizeHint().width(), text->width()) << label;
        EXPECT_LE(text->heightForWidth(text->width()), text->height()) << label;
        const QRect place(text->mapTo(Window::dialog(), QPoint()), text->size());
        EXPECT_TRUE(Window::dialog()->rect().contains(place)) << label;
    }
};
using UpdateInTheWindow = UpdateIn<tests::WizardWindow>;

TEST_F(UpdateInTheWindow, ReturnIsYesAndUpdatesTheCopyThatIsOffered) {
    const std::string first = add("A");
    const std::string second = add("B");
    update({page(16), [&] { EXPECT_THAT(question(), HasSubstr("\n" + first + "\n")); },
            key(Qt::Key_Return), page(16),
            [&] {
                EXPECT_THAT(question(), HasSubstr("\n" + second + "\n"));
                EXPECT_EQ(nameOf("nextBtn"), "Yes");
            },
            key(Qt::Key_Return), page(17),
            [&] {
                EXPECT_EQ(nameOf("nextBtn"), "Done");
                EXPECT_EQ(summary(), "“" + first + "” was updated.\n“" + second + "” was updated.");
            },
            key(Qt::Key_Return)});
    EXPECT_TRUE(wizard.isFinished());
    EXPECT_THAT(states(), ElementsAre(State::updated, State::updated));
}

TEST_F(UpdateInTheWindow, EscapeWhileACopyIsOfferedCancelsAndUpdatesNothing) {
    add("A");
    update({page(16), key(Qt::Key_Escape)});
    EXPECT_FALSE(wizard.isFinished());
    EXPECT_THAT(system.fakes.administrator.calls, IsEmpty());
    EXPECT_THAT(states(), ElementsAre(State::offered));
    EXPECT_THAT(system.fakes.logged().back(), HasSubstr("User Cancelled"));
}

TEST_F(UpdateInTheWindow, TheButtonsAreNamedNoAndYesAndTheKeyboardLeadsToBoth) {
    add("A");
    update({page(16),
            [] {
                EXPECT_EQ(nameOf("backBtn"), "No");
                EXPECT_EQ(nameOf("nextBtn"), "Yes");
                EXPECT_TRUE(find("nextBtn")->isEnabled() && find("backBtn")->isEnabled());
                tabTo("backBtn");
                press(Qt::Key_Space);
            },
            page(17),
            [this] {
                EXPECT_EQ(nameOf("backBtn"), "Back");
                EXPECT_THAT(summary(), HasSubstr("was left as it is."));
                EXPECT_EQ(wizard.titleText.text(), "Finish");
            },
            key(Qt::Key_Return)});
    EXPECT_THAT(system.fakes.administrator.calls, IsEmpty());
}

TEST_F(UpdateInTheWindow, TheButtonsCanNotBePressedWhileACopyIsUpdated) {
    add("A");
    int looks = 0;
    const auto look = [&] {
        ++looks;
        EXPECT_FALSE(find("nextBtn")->isEnabled());
        EXPECT_FALSE(find("backBtn")->isEnabled());
        press(Qt::Key_Return);
    };
    tool.whileTesting = look;
    tool.whileApplied = [&](const std::string& its) {
        look();
        EXPECT_EQ(find<QLabel>("processingText")->text().toStdString(), "Updating: " + its);
        EXPECT_TRUE(find("progress")->isVisible());
    };
    update({page(16), key(Qt::Key_Return), page(17), key(Qt::Key_Return)});
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(system.fakes.administrator.calls.size(), 1u);
}

TEST_F(UpdateInTheWindow, WithoutACopyTheLastPageLeadsToTheLog) {
    add("A", Copy::altered);
    update({page(18), clicking("logBtn"), key(Qt::Key_Escape), key(Qt::Key_Return)});
    ASSERT_TRUE(wizard.isFinished());
}

TEST_F(UpdateInTheWindow, LongPathsAreWrappedAlsoWhereANameHasNoBlank) {
    const std::string blanks = add("Departments of Comparative Literature and Linguistics/Shared "
                                   "Software for the Reading Room/Reference Management/Scrivel 21");
    const std::string none = add(std::string(200, 'W') + "/" + std::string(90, 'm'));
    update({[&] {
                EXPECT_THAT(question(), HasSubstr("\n" + blanks + "\n"));
                expectToFit("patchFound");
                press(Qt::Key_Return);
            },
            [&] {
                EXPECT_THAT(question(), HasSubstr("\n" + none + "\n"));
                expectToFit("patchFound");
            },
            page(16),
            [&] {
                tool.whileApplied = [&](auto&&...) { expectToFit("processingText"); };
                press(Qt::Key_Return);
            },
            [&] {
                EXPECT_THAT(summary(), HasSubstr("“" + none + "” was updated."));
                const auto* browser = find<QTextBrowser>("patchSummary");
                EXPECT_LE(browser->document()->idealWidth(), browser->viewport()->width());
                press(Qt::Key_Return);
            }});
}

TEST_F(UpdateInTheWindow, ALongNameCanNotBeCopiedWithWhatCanNotBeSeenInIt) {
    add("A");
    add(std::string(100, 'm'));
    update({[] {
                EXPECT_EQ(find<QLabel>("patchFound")->textInteractionFlags(),
                          Qt::TextSelectableByMouse);
                press(Qt::Key_Return);
            },
            [] {
                EXPECT_EQ(find<QLabel>("patchFound")->textInteractionFlags(),
                          Qt::NoTextInteraction);
                press(Qt::Key_Escape);
            }});
}

struct ArabicWindow : tests::WizardWindow {
    ArabicWindow() : WizardWindow("ar") {}
};
using UpdateInArabic = UpdateIn<ArabicWindow>;

TEST_F(UpdateInArabic, AsksAndTellsInTheLanguageAndKeepsThePathsAsTheyAre) {
    const std::string its = add("Scrivel 21");
    update({page(16),
            [&] {
                EXPECT_EQ(nameOf("nextBtn"), "نعم");
                EXPECT_EQ(nameOf("backBtn"), "لا");
                EXPECT_THAT(question(), HasSubstr("\u2066" + its + "\u2069"));
                expectToFit("patchFound");
                press(Qt::Key_Return);
            },
            page(17),
            [&] {
                EXPECT_THAT(summary(), HasSubstr("تم تحديث «\u2066" + its + "\u2069»."));
                press(Qt::Key_Return);
            }});
}

} // namespace
