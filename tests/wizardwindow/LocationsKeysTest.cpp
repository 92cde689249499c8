// The page of the alternate locations by the keyboard alone: the way there and back, the table, its
// buttons and their questions.
#include <filesystem>

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "tests/wizardwindow/AccessibleWindow.h"
#include "tests/wizardwindow/WizardWindow.h"

namespace {

namespace fs = std::filesystem;
namespace modes = tests::modes;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

struct LocationsByKeys : tests::WizardWindow {
    /// A Word 16 that lies as an installation does, with "Office" beside it.
    std::string installation(const std::string& name) {
        const fs::path place = fs::path(system.fakes.places.root) / "Applications" / name;
        fs::create_directories(place / "Office");
        fs::create_directories(place / "Word.app");
        const std::string word = (place / "Word.app").string();
        system.fakes.bundles.strings[{word, "CFBundleShortVersionString"}] = "16.1";
        return word;
    }
    std::string found(const std::string& name) {
        std::string word = installation(name);
        system.fakes.applications.installed["com.microsoft.Word"].push_back(word);
        return word;
    }
    std::string folder(const std::string& name) {
        const fs::path path = fs::path(system.fakes.places.root) / name;
        fs::create_directories(path);
        return path.string();
    }
    void remember(const Texts& records) {
        system.fakes.propertyLists.files[crumbsFile()]["Word"] = fakes::arrayProperty(records);
    }
    Texts remembered() { return system.fakes.propertyLists.files[crumbsFile()]["Word"].texts; }
    std::string crumbsFile() const { return system.fakes.places.expandTilde(ec::kBreadcrumbsFile); }

    static Deed pressing(const std::string& name) {
        return [name] {
            tabTo(name);
            press(Qt::Key_Space);
        };
    }
    static Deed entering() { return pressing("locationsBtn"); }
    static std::string message() { return find<QLabel>("msgText")->text().toStdString(); }
    static bool isEnabled(const char* name) { return find(name)->isEnabled(); }
    static std::string cell(int row, int column) {
        const auto& rows = *find<QTableView>("acTbl")->model();
        return rows.index(row, column).data().toString().toStdString();
    }
    void expectTheOnlyRowToBeSelectedBy(int arrow) {
        found("Only");
        walk(modes::kCustomize, {entering(),
                                 [=, this] {
                                     EXPECT_EQ(focusName(), "acTbl");
                                     press(arrow);
                                     EXPECT_EQ(wizard.acTbl.selectedRow(), 0);
                                 },
                                 key(Qt::Key_Return), key(Qt::Key_Escape)});
    }
    Deed at(int number) {
        return [this, number] {
            EXPECT_EQ(wizard.ecTabView.selected(), number);
            EXPECT_TRUE(front() == dialog());
        };
    }
};

TEST_F(LocationsByKeys, ThePageIsEnteredAndLeftByReturnWithTheKeyboardOnIt) {
    walk(modes::kCustomize, {entering(),
                             [this] {
                                 at(25)();
                                 EXPECT_EQ(focusName(), "acTbl");
                                 EXPECT_FALSE(find("nextBtn")->isVisible());
                                 EXPECT_FALSE(find("backBtn")->isVisible());
                                 EXPECT_TRUE(find<QPushButton>("acDoneBtn")->isDefault());
                                 EXPECT_EQ(find<QLabel>("titleText")->text(),
                                           "Scrivel Penmark Configuration");
                             },
                             page(25), key(Qt::Key_Return),
                             [this] {
                                 at(6)();
                                 EXPECT_TRUE(find("nextBtn")->isVisible());
                                 EXPECT_TRUE(find("backBtn")->isVisible());
                                 EXPECT_TRUE(find("uninstallBtn")->isVisible());
                                 EXPECT_TRUE(find<QPushButton>("nextBtn")->isDefault());
                                 EXPECT_FALSE(find<QPushButton>("acDoneBtn")->isDefault());
                             },
                             page(6), key(Qt::Key_Return), page(8), key(Qt::Key_Return)});
}

TEST_F(LocationsByKeys, EscapeLeadsBackAndTheKeyThatClosesTheWindowCancels) {
    walk(modes::kCustomize, {entering(), at(25), key(Qt::Key_Escape), at(6), entering(), at(25),
                             [] { press(QKeySequence(QKeySequence::Close)); }});
    EXPECT_EQ(system.fakes.logged().back(), "Scrivel 21 Installer: User Cancelled");
}

TEST_F(LocationsByKeys, CancelOnThePageCancelsTheWizard) {
    walk(modes::kCustomize, {entering(), pressing("cancelBtn")});
    EXPECT_EQ(system.fakes.logged().back(), "Scrivel 21 Installer: User Cancelled");
}

TEST_F(LocationsByKeys, TheRowsAreGoneThroughByArrows) {
    const std::string first = installation("First");
    const std::string second = found("Second");
    remember({first + "|||/S1|||16"});
    walk(modes::kCustomize, {entering(),
                             [=, this] {
                                 EXPECT_EQ(cell(0, 0), first);
                                 EXPECT_EQ(cell(0, 1), "/S1");
                                 EXPECT_EQ(cell(0, 2), "2016");
                                 EXPECT_EQ(cell(1, 0), second);
                                 EXPECT_FALSE(isEnabled("acChange"));
                                 press(Qt::Key_Home);
                                 EXPECT_EQ(wizard.acTbl.selectedRow(), 0);
                                 EXPECT_TRUE(isEnabled("acMinusBtn"));
                                 EXPECT_TRUE(isEnabled("acChange"));
                                 EXPECT_TRUE(isEnabled("acResetBtn"));
                                 press(Qt::Key_Down);
                                 EXPECT_EQ(wizard.acTbl.selectedRow(), 1);
                                 EXPECT_FALSE(isEnabled("acMinusBtn"));
                                 EXPECT_TRUE(isEnabled("acChange"));
                                 EXPECT_FALSE(isEnabled("acResetBtn"));
                             },
                             page(25), key(Qt::Key_Return), key(Qt::Key_Escape)});
}

TEST_F(LocationsByKeys, TheOnlyRowIsSelectedByTheDownKey) {
    expectTheOnlyRowToBeSelectedBy(Qt::Key_Down);
}

TEST_F(LocationsByKeys, TheOnlyRowIsSelectedByTheUpKey) {
    expectTheOnlyRowToBeSelectedBy(Qt::Key_Up);
}

TEST_F(LocationsByKeys, TheOnlyRowIsSelectedByTheEndKey) {
    expectTheOnlyRowToBeSelectedBy(Qt::Key_End);
}

TEST_F(LocationsByKeys, PlusAddsAWordWithAStartupFolderThatIsSet) {
    const std::string word = installation("Office 16");
    system.fakes.fileChoosers.answers = {word, "/My Startup"};
    walk(modes::kCustomize, {entering(), pressing("acPlus"),
                             [] {
                                 ASSERT_TRUE(front() != dialog());
                                 EXPECT_THAT(message(),
                                             testing::StartsWith("If you have configured Word"));
                                 EXPECT_EQ(find<QPushButton>("defBtn")->text(), "No");
                                 EXPECT_EQ(find<QPushButton>("altBtn")->text(), "Set");
                                 tests::expectAccessible(*front());
                                 press(Qt::Key_Tab);
                                 press(Qt::Key_Space);
                             },
                             [=, this] {
                                 at(25)();
                                 EXPECT_EQ(cell(0, 0), word);
                                 EXPECT_EQ(cell(0, 1), "/My Startup");
                                 EXPECT_EQ(focusName(), "acPlus") << "the keyboard is where it was";
                             },
                             key(Qt::Key_Return), key(Qt::Key_Escape)});
    EXPECT_THAT(remembered(), ElementsAre(word + "|||/My Startup|||16"));
}

TEST_F(LocationsByKeys, PlusRefusesWhatIsNoInstallationAndEscapeDeclinesASet) {
    const std::string word = installation("Office 16");
    system.fakes.fileChoosers.answers = {folder("Elsewhere") + "/Word.app", word};
    walk(modes::kCustomize,
         {entering(), pressing("acPlus"),
          [] {
              EXPECT_THAT(message(), testing::StartsWith("The item you picked does not seem"));
              EXPECT_FALSE(find("altBtn")->isVisible());
              press(Qt::Key_Return);
          },
          pressing("acPlus"), key(Qt::Key_Escape), at(25), key(Qt::Key_Return),
          key(Qt::Key_Escape)});
    ASSERT_EQ(system.questions.size(), 2u);
    EXPECT_EQ(system.questions[1].answer, "No");
    EXPECT_TRUE(remembered().empty());
}

TEST_F(LocationsByKeys, MinusAsksAndAfterUninstallRemovesTheRow) {
    const std::string word = installation("Office 16");
    const std::string startup = folder("Startup");
    folder("Startup/Scrivel PMRK Word 16.bundle");
    remember({word + "|||" + startup + "|||16", "/gone/Word.app|||/S|||16"});
    walk(modes::kCustomize,
         {entering(), key(Qt::Key_Home), pressing("acMinusBtn"),
          [] {
              EXPECT_EQ(message(),
                        "Uninstall Penmark components from the selected folder, immediately?");
              EXPECT_EQ(focusName(), "defBtn");
              EXPECT_EQ(find<QPushButton>("defBtn")->text(), "Cancel");
              press(Qt::Key_Return);
          },
          [=, this] {
              EXPECT_EQ(remembered().size(), 2u);
              EXPECT_EQ(focusName(), "acMinusBtn");
              press(Qt::Key_Space);
          },
          [] {
              press(Qt::Key_Tab);
              press(Qt::Key_Space);
          },
          [=, this] {
              at(25)();
              EXPECT_FALSE(isEnabled("acMinusBtn"));
              EXPECT_FALSE(isEnabled("acResetBtn"));
              EXPECT_EQ(cell(0, 1), system.fakes.places.system(ec::kSharedStartupFolder));
              EXPECT_EQ(focusName(), "acChange") << "the next one that can be pressed";
          },
          page(25), key(Qt::Key_Return), key(Qt::Key_Escape)});
    EXPECT_THAT(remembered(), ElementsAre("/gone/Word.app|||/S|||16"));
    ASSERT_EQ(system.fakes.tools.calls.size(), 2u);
    EXPECT_EQ(system.fakes.tools.calls[1].tool, "/bin/rm");
}

TEST_F(LocationsByKeys, ChangeAndResetSetAndForgetAFolder) {
    const std::string word = found("Office 16");
    system.fakes.fileChoosers.answers = {"/Chosen"};
    walk(modes::kCustomize, {entering(), key(Qt::Key_Home), pressing("acChange"),
                             [=, this] {
                                 EXPECT_EQ(cell(0, 1), "/Chosen");
                                 EXPECT_EQ(wizard.acTbl.selectedRow(), 0);
                                 EXPECT_THAT(remembered(), ElementsAre(word + "|||/Chosen|||16"));
                             },
                             pressing("acResetBtn"),
                             [=, this] {
                                 EXPECT_EQ(cell(0, 1),
                                           system.fakes.places.system(ec::kSharedStartupFolder));
                                 EXPECT_FALSE(isEnabled("acResetBtn"));
                                 EXPECT_TRUE(isEnabled("acChange"));
                             },
                             key(Qt::Key_Return), key(Qt::Key_Escape)});
    EXPECT_TRUE(remembered().empty());
}

TEST_F(LocationsByKeys, HelpOpensAndTheKeyboardComesBackToThePage) {
    walk(modes::kPenmark, {key(Qt::Key_Return), entering(), pressing("helpBtn"),
                           [] {
                               ASSERT_EQ(front()->objectName(), "reader");
                               press(Qt::Key_Escape);
                           },
                           [this] {
                               at(25)();
                               EXPECT_EQ(focusName(), "helpBtn");
                               press(Qt::Key_Return); // Done is the default button from anywhere
                           },
                           at(6), key(Qt::Key_Escape)});
}

} // namespace
