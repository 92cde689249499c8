// Choosing applications and folders.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "tests/ui/ControlsStage.h"
#include "ui/OpenPanel.h"
#include "ui/Pictures.h"
#include "ui/SessionLoop.h"
#include "ui/UiFiles.h"

using ports::Chooser;
using stage::front;

namespace {

struct OpenPanelTests : testing::Test {
    void SetUp() override {
        QDir(folder()).mkpath("Word.app/Contents");
        QDir(folder()).mkpath("Plain");
        for (const char* name : {"Old Word", "notes.txt", "Single.app.txt"}) {
            QFile file(folder() + '/' + name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    QString folder() const { return m_folder.path(); }
    Chooser application() const {
        return {.kind = Chooser::Kind::application,
                .title = "Where is Word?",
                .folder = folder().toStdString(),
                .types = {"app", "APPL"}};
    }
    Chooser anyFolder() const {
        return {.kind = Chooser::Kind::folder,
                .title = "Where?",
                .folder = folder().toStdString(),
                .types = {}};
    }
    static ui::OpenPanel* panel() {
        return qobject_cast<ui::OpenPanel*>(QApplication::activeModalWidget());
    }
    /// Asks, and plays the user's part while the panel is in sight.
    std::optional<std::string> ask(const Chooser& chooser, const std::function<void()>& play) {
        front().queue.post([&] {
            ASSERT_NE(panel(), nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
            play();
            if (panel())
                panel()->reject();
        });
        return front().frontEnd.fileChoosers().choose(chooser);
    }
    static void type(const QString& name) {
        auto* field = panel()->findChild<QLineEdit*>();
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
    }
    static QStringList names() {
        const auto* list = panel()->findChild<QTreeView*>("treeView");
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            names << list->model()->index(row, 0, list->rootIndex()).data().toString();
        names.sort();
        return names;
    }
    std::string at(const char* name) const { return (folder() + '/' + name).toStdString(); }

  private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(OpenPanelTests, ChooseAnApplicationByItsName) {
    EXPECT_EQ(ask(application(), [] { type("Word.app"); }), at("Word.app"));
}

TEST_F(OpenPanelTests, ChooseAnApplicationByADoubleClickAndDoNotEnterIt) {
    const auto chosen = ask(application(), [this] {
        auto* list = panel()->findChild<QTreeView*>("treeView");
        QPersistentModelIndex row; // the list is filled from another thread
        ASSERT_TRUE(stage::waitUntil([&] {
            for (int i = 0; i < list->model()->rowCount(list->rootIndex()); ++i)
                if (list->model()->index(i, 0, list->rootIndex()).data() == "Word.app")
                    row = list->model()->index(i, 0, list->rootIndex());
            return row.isValid() && list->visualRect(row).isValid() && names().size() == 2;
        }));
        const QPoint point = list->visualRect(row).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, point);
    });
    EXPECT_EQ(chosen, at("Word.app"));
}

TEST_F(OpenPanelTests, EnterAFolderThatIsNoApplication) {
    QString entered;
    EXPECT_EQ(ask(application(),
                  [&] {
                      type("Plain");
                      ASSERT_NE(panel(), nullptr);
                      entered = panel()->directory().absolutePath();
                  }),
              std::nullopt);
    EXPECT_EQ(entered.toStdString(), at("Plain"));
}

TEST_F(OpenPanelTests, OfferNoFileOfAnotherType) {
    EXPECT_EQ(ask(application(),
                  [] {
                      EXPECT_TRUE(stage::waitUntil([] { return names().size() >= 2; }));
                      EXPECT_EQ(names(), QStringList({"Plain", "Word.app"}));
                      type("notes.txt");
                      EXPECT_NE(panel(), nullptr);
                  }),
              std::nullopt);
}

TEST_F(OpenPanelTests, TakeASingleFileOfTheFourCharacterTypeThatIsOffered) {
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    ui::Pictures pictures({});
    const ui::UiFiles files({.resourceFolder = "", .texts = texts, .pictures = pictures});
    ui::SessionLoop loop(files);
    const auto typeOf = [](const std::string& path) {
        return path.ends_with("/Old Word") ? "APPL" : "";
    };
    ui::OpenPanel panel(application(), folder(), nullptr,
                        {.loop = loop, .texts = texts, .typeOf = typeOf});
    panel.show();
    panel.selectFile("Old Word");
    panel.accept();
    EXPECT_EQ(panel.chosen().toStdString(), at("Old Word"));
}

TEST_F(OpenPanelTests, ChooseAFolder) {
    EXPECT_EQ(ask(anyFolder(), [] { type("Plain"); }), at("Plain"));
}

TEST_F(OpenPanelTests, AnswerNothingWhenCancelled) {
    EXPECT_EQ(ask(application(), [] { QTest::keyClick(panel(), Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(ask(anyFolder(), [] { QTest::keyClick(panel(), Qt::Key_Escape); }), std::nullopt);
}

TEST_F(OpenPanelTests, OpenWhereTheyAreAskedToWithTheTitle) {
    ask(anyFolder(), [this] {
        EXPECT_EQ(panel()->windowTitle(), "Where?");
        EXPECT_EQ(panel()->directory().absolutePath(), folder());
    });
}

TEST_F(OpenPanelTests, KeepInputFromTheWindowBelow) {
    stage::ControlModels models;
    ASSERT_TRUE(stage::loadControls(models));
    models.window.orderFront();
    int presses = 0;
    models.next.setAction([&] { ++presses; });
    ask(application(), [&] {
        EXPECT_EQ(panel()->parentWidget(), stage::controlsDialog());
        stage::clickOn(*stage::controlsDialog()->findChild<QWidget*>("next"));
    });
    EXPECT_EQ(presses, 0);
}
