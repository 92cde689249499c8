// The wizard's patcher mode as a person walks it: the copies offered one after another, the
// buttons that say No and Yes, and what is told of each copy in the end.
#include <gmock/gmock.h>

#include "tests/patcher/PatcherStage.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using State = ec::CopyOutcome::State;

struct PatcherMode : testing::Test, tests::PatcherStage {
    /// Opens the updater, walks to the first copy, and goes on with these deeds.
    void update(std::deque<Deed> deeds) {
        deeds.push_front(next());
        deeds.push_front(next());
        host.modalLoop.terminated = false;
        showPatcher(std::move(deeds));
    }
    Deed no() {
        return [this] {
            EXPECT_EQ(controller.backBtn.title(), "No");
            controller.backBtn.press();
        };
    }
    Deed yes() {
        return [this] {
            EXPECT_EQ(controller.nextBtn.title(), "Yes");
            controller.nextBtn.press();
        };
    }
    Deed expectOffered(const std::string& its) {
        return [this, its] { EXPECT_EQ(controller.patchFound.text(), question(its)); };
    }
    std::vector<State> states() const {
        std::vector<State> all;
        for (const ec::CopyOutcome& copy : controller.copies)
            all.push_back(copy.state);
        return all;
    }
    std::string summary() const { return controller.patchSummary.text().text(); }
};

constexpr const char* kFound = "16 : No Yes Cancel";
constexpr const char* kDone = "17 Finish: (Back) Done (Cancel)";

TEST_F(PatcherMode, WithoutACopyItEndsAtNothing) {
    addUnknown("Applications/Scrivel 21");
    update({[this] {
                EXPECT_EQ(currentName(), "Summary");
                EXPECT_FALSE(controller.logBtn.isHidden()) << "the page sends its reader there";
            },
            next()});
    EXPECT_THAT(looks, ElementsAre("14 Welcome to Scrivel 21 Update: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel", "18 : (Back) Done (Cancel)",
                                   "18 : (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 14, 4, 0, 0, 18, 18)) << "the last is the terminator";

    EXPECT_TRUE(host.modalLoop.terminated);
}

TEST_F(PatcherMode, WithoutACopyThatTheUpdateFitsItEndsAtNothing) {
    add("A", Copy::altered);
    add("B", Copy::current);
    update({next()});
    EXPECT_EQ(looks.back(), "18 : (Back) Done (Cancel)");
    EXPECT_THAT(states(), ElementsAre(State::unfit, State::current));
}

TEST_F(PatcherMode, NoOnTheFirstOffersTheSecondAndYesOnTheSecondIsTheLast) {
    const std::string first = add("A");
    const std::string second = add("B");
    update({expectOffered(first), no(), expectOffered(second), yes(), next()});
    EXPECT_THAT(looks,
                ElementsAre("14 Welcome to Scrivel 21 Update: (Back) Next Cancel",
                            "4 Read Me: Back Next Cancel", kFound, kFound, kFound, kFound, kDone));
    EXPECT_THAT(host.administrator.calls,
                ElementsAre(ports::ToolCall{tool(), {"-d", second, "-i", patch()}}));
    EXPECT_THAT(states(), ElementsAre(State::declined, State::updated));
}

TEST_F(PatcherMode, NoOnTheLastIsTheEndAndNothingWasUpdated) {
    add("A");
    add("B");
    update({no(), no(),
            [this] {
                EXPECT_EQ(controller.titleText.text(), "Finish");
                EXPECT_EQ(currentName(), "Summary");
            },
            next()});
    EXPECT_EQ(looks.back(), kDone);
    EXPECT_THAT(host.administrator.calls, IsEmpty());
    EXPECT_THAT(states(), ElementsAre(State::declined, State::declined));
    EXPECT_EQ(host.administrator.prompts, 0);
}

TEST_F(PatcherMode, YesOnAllAsksForTheRightsOnce) {
    add("A");
    add("B");
    add("C");
    update({yes(), yes(), yes(), next()});
    EXPECT_EQ(host.administrator.prompts, 1);
    EXPECT_THAT(states(), ElementsAre(State::updated, State::updated, State::updated));
    EXPECT_FALSE(host.administrator.sessionIsOpen);
}

TEST_F(PatcherMode, TheButtonsAreDisabledWhileTheCopiesAreSearchedAndWhileOneIsUpdated) {
    add("A");
    std::vector<std::string> during;
    patchTool.whileTesting = [&] { during.push_back(look()); };
    patchTool.whileApplied = [&](const std::string&) {
        during.push_back(look());
        EXPECT_TRUE(controller.progress.isRunning());
        EXPECT_EQ(controller.processingText.text(), "Updating: " + folder.path("A"));
    };
    update({yes(), next()});
    EXPECT_THAT(during, ElementsAre("0 : (Back) (Next) Cancel",
                                    "10 Updating System: (Back) (Next) Cancel"));
    EXPECT_THAT(drawn, testing::Contains("0 : (Back) (Next) Cancel scanning"));
    EXPECT_THAT(drawn, testing::Contains("10 Updating System: (Back) (Next) Cancel working"));
    EXPECT_FALSE(controller.progress.isRunning());
    EXPECT_FALSE(controller.custProgress.isRunning());
}

TEST_F(PatcherMode, ARunThatWentWellLeavesTheTextOfAnErrorWithoutAFolderAsIsWanted) {
    add("A");
    std::vector<std::string> shown;
    struct Watcher final : controls::Control::Observer {
        std::function<void()> look;
        void controlChanged(controls::Control&) override { look(); }
    } watcher;
    watcher.look = [&] { shown.push_back(controller.patchFound.text()); };
    controller.patchFound.addObserver(watcher);
    update({yes(), next()});
    controller.patchFound.removeObserver(watcher);
    EXPECT_THAT(shown, ElementsAre(question(folder.path("A")),
                                   "\nAn error occurred while attempting to update a copy of "
                                   "Scrivel at this location:\n\n\n\nWould you like to try "
                                   "again?\n"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 14, 4, 0, 0, 16, 10, 10, 16, 17, 17))
        << "the last is the terminator";
}

TEST_F(PatcherMode, ARunThatCouldNotBeStartedSimplyGoesOnAsIsWanted) {
    add("A");
    host.administrator.missing = {tool()};
    update({yes(), next()});
    EXPECT_EQ(controller.patchFound.text(), question(folder.path("A")));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 14, 4, 0, 0, 16, 10, 10, 17, 17));
    EXPECT_THAT(states(), ElementsAre(State::failed));
}

TEST_F(PatcherMode, EachCopyIsToldInTheEndAsItIsOnDisk) {
    add("New", Copy::current);
    add("Odd", Copy::altered);
    add("Well");
    add("Left");
    add("Bad");
    patchTool.whileApplied = [&](const std::string& its) {
        patchTool.works = !its.ends_with("Bad");
        if (patchTool.works)
            host.bundles.strings[{its + "/Scrivel 21.app", "CFBundleShortVersionString"}] = "21.1";
    };
    const auto at = [this](const char* name) { return "“" + folder.path(name) + "”"; };
    update({yes(), no(), yes(),
            [&] {
                EXPECT_EQ(summary(), at("Well") + " was updated.\n" + at("Bad") +
                                         " could not be updated. The update did not take effect.\n"
                                         "\n" +
                                         at("New") + " is up to date already.\n" +
                                         "This update does not fit " + at("Odd") + ".\n" +
                                         at("Left") + " was left as it is.\n");
            },
            next()});
    EXPECT_EQ(controller.copies.at(2).version, "21.1");
    EXPECT_EQ(controller.copies.at(4).version, "21.0");
}

TEST_F(PatcherMode, AFailureStandsOutInTheSummary) {
    add("A");
    patchTool.works = false;
    update(
        {yes(), [this] { EXPECT_TRUE(controller.patchSummary.text().runs.at(0).bold); }, next()});
}

TEST_F(PatcherMode, RefusedRightsAreToldAndAnsweredOnceForAllCopies) {
    add("A");
    add("B");
    host.administrator.rightsError = ports::Administrator::kDenied;
    update({yes(), yes(),
            [this] {
                EXPECT_THAT(summary(), HasSubstr("“" + folder.path("B") +
                                                 "” could not be updated. Administrator rights "
                                                 "were refused.\n"));
            },
            next()});
    EXPECT_EQ(host.administrator.prompts, 1);
    EXPECT_THAT(states(), ElementsAre(State::refused, State::refused));
    EXPECT_EQ(timesLogged("Executing applyPatch"), 0);
}

TEST_F(PatcherMode, TheQuestionWhetherACopyIsUpdatedIsNotInTheLog) {
    add("A");
    update({yes(), next()});
    EXPECT_THAT(host.tools.calls,
                testing::Contains(
                    ports::ToolCall{tool(), {"-d", folder.path("A"), "-i", patch(), "--verify"}}));
    for (const std::string& line : host.logged())
        EXPECT_THAT(line, Not(HasSubstr("--verify")));
}

TEST_F(PatcherMode, OfACopyThatHasAnotherVersionAfterwardsTheToolIsNotAsked) {
    add("A");
    patchTool.whileApplied = [this](const std::string& its) {
        host.bundles.strings[{its + "/Scrivel 21.app", "CFBundleShortVersionString"}] = "21.1";
    };
    update({yes(), next()});
    EXPECT_THAT(states(), ElementsAre(State::updated));
    EXPECT_THAT(toolRuns(), testing::Each(Not(HasSubstr("--verify"))));
}

TEST_F(PatcherMode, WordThatRunsIsWaitedForBeforeACopyIsUpdated) {
    add("A");
    update({[this] {
                host.applications.running.insert("com.microsoft.Word");
                controller.nextBtn.press();
                EXPECT_EQ(controller.ecTabView.selected(), ec::page::kQuitWord);
                EXPECT_THAT(host.administrator.calls, IsEmpty());
                host.applications.running.clear();
            },
            next(), next()});
    EXPECT_EQ(looks.back(), kDone);
    EXPECT_THAT(states(), ElementsAre(State::updated));
}

TEST_F(PatcherMode, NoButtonReadsPastTheLastCopy) {
    add("A");
    update({yes(),
            [this] {
                for (int i = 0; i < 3; ++i) {
                    controller.doPatchNo();
                    controller.doPatchYes();
                    controller.nextScrivel();
                }
                EXPECT_EQ(look(), kDone);
            },
            next()});
    EXPECT_EQ(host.administrator.calls.size(), 1u);
    EXPECT_THAT(states(), ElementsAre(State::updated));
}

// --- Opening it again

TEST_F(PatcherMode, ASecondOpeningSearchesAnewAndOffersNoCopyOfTheFirst) {
    const std::string first = add("A");
    update({expectOffered(first), cancel()});
    EXPECT_THAT(states(), ElementsAre(State::offered));
    patchTool.copies[first] = Copy::current;
    const std::string second = add("B");
    update({expectOffered(second), no(), next()});
    EXPECT_THAT(states(), ElementsAre(State::current, State::declined));
}

TEST_F(PatcherMode, AWizardThatIsOpenedAfterACopyWasOfferedHasItsOwnBackAgain) {
    add("A");
    update({cancel()});
    looks.clear();
    show(36, {next(), back(), cancel()});
    EXPECT_THAT(looks, ElementsAre("26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                                   "6 Select Components: Back Next Cancel",
                                   "26 Welcome to Scrivel Penmark: (Back) Next Cancel"));
    EXPECT_THAT(controller.copies, IsEmpty());
}

TEST_F(PatcherMode, AfterTheLastCopyBackIsItsOwnAgain) {
    add("A");
    update({no(),
            [this] {
                controller.backBtn.setEnabled(true);
                controller.backBtn.press();
            },
            next()});
    const std::vector<int> all = pages();
    EXPECT_THAT(std::vector(all.end() - 5, all.end()), ElementsAre(17, 10, 10, 17, 17));
    EXPECT_THAT(host.administrator.calls, IsEmpty());
}

} // namespace
