// Ticks, a change and the summary, as a person sees them: what is read there is what is on disk.
#include <filesystem>
#include <fstream>

#include <QAbstractButton>
#include <QTextBrowser>
#include <QTreeView>
#include <gmock/gmock.h>

#include "tests/engine/ToolsInProcess.h"
#include "tests/wizardwindow/WizardWindow.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
namespace fs = std::filesystem;
namespace modes = tests::modes;

struct WizardSummary : tests::WizardWindow {
    fs::path disk = fs::path(system.folder.path()) / "disk";

    void SetUp() override {
        system.fakes.bundles.bundle = (disk / "Installer.app").string();
        for (const char* name : {"Law/One.svfilter", "Law/Two.svfilter", "History/Old.svfilter"}) {
            const fs::path file = disk / "Product-Support/Content.bundle/Filters" / name;
            fs::create_directories(file.parent_path());
            std::ofstream(file) << name;
        }
        for (const char* folder : {"Installer.app/Contents/Library/Spotlight/Scrivel.mdimporter",
                                   "Services/SVService.app"})
            fs::create_directories(disk / folder);
        tests::serveInProcess(system.fakes);
    }
    static void tick(const QString& name) {
        tabTo("ecOutlineView");
        auto* tree = find<QTreeView>("ecOutlineView");
        press(Qt::Key_Home);
        for (int row = 0; row < 40 && tree->currentIndex().siblingAtColumn(0).data() != name; ++row)
            press(Qt::Key_Down);
        EXPECT_EQ(tree->currentIndex().siblingAtColumn(0).data().toString(), name);
        press(Qt::Key_Space);
    }
    static std::string shownIn(const char* summary) {
        return find<QTextBrowser>(summary)->toPlainText().toStdString();
    }
};

TEST_F(WizardSummary, TellsInItsFirstLinesWhatTheChangeDid) {
    walk(modes::kCustomize, {[] { tick("Law"); }, key(Qt::Key_Return),
                             [] {
                                 EXPECT_THAT(shownIn("changeSummary"),
                                             StartsWith("Law was installed.\n"));
                                 EXPECT_THAT(shownIn("changeSummary"),
                                             HasSubstr("History is not installed, as before."));
                             },
                             key(Qt::Key_Return)});
    EXPECT_TRUE(fs::exists(disk / "Filters/Two.svfilter"));
    EXPECT_FALSE(fs::exists(disk / "Filters/Old.svfilter"));
}

TEST_F(WizardSummary, TellsWhatWasRefused) {
    system.fakes.administrator.rightsError = ports::Administrator::kDenied;
    walk(modes::kCustomize,
         {[] { tick("Browser extension"); }, key(Qt::Key_Return),
          [] {
              EXPECT_THAT(shownIn("changeSummary"),
                          StartsWith("Browser extension could not be installed. Administrator "
                                     "rights were refused.\n"));
          },
          key(Qt::Key_Return)});
}

TEST_F(WizardSummary, TellsThatNobodyWasChosenToUseTheServices) {
    walk(modes::kCustomize,
         {[] { tick("Services"); }, key(Qt::Key_Return), [] { tabTo("servForMe"); },
          key(Qt::Key_Space, Qt::ControlModifier),
          [this] {
              EXPECT_EQ(wizard.servBtns.selected(), -1);
              EXPECT_FALSE(find<QAbstractButton>("servForMe")->isChecked());
          },
          key(Qt::Key_Return),
          [] {
              EXPECT_THAT(shownIn("changeSummary"),
                          StartsWith("Services could not be installed. It was not chosen who can "
                                     "use it.\n"));
          },
          key(Qt::Key_Return)});
}

} // namespace
