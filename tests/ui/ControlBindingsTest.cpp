// The bindings of the wizard's control kinds, on a window made up for them.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include "tests/ui/ControlsStage.h"
#include "ui/PictureView.h"
#include "ui/StyledHtml.h"

using stage::clickOn;
using stage::front;
using testing::ElementsAre;

namespace {

struct ControlBindings : testing::Test {
    void SetUp() override {
        paths.rows = {{"/Applications/Word.app", "16"}, {"/Old/Word.app", "14"}};
        models.table.setDataSource(&paths);
        ASSERT_TRUE(stage::loadControls(models));
        models.window.orderFront();
        dialog = stage::controlsDialog();
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    }
    template <class Widget>
    Widget& at(const char* name) {
        auto* widget = dialog->findChild<Widget*>(name);
        if (!widget)
            throw std::logic_error(name);
        return *widget;
    }
    QWidget* focus() const { return QApplication::focusWidget(); }

    stage::Paths paths;
    stage::ControlModels models;
    QDialog* dialog = nullptr;
};

struct Pages : ControlBindings {
    QStackedWidget& stack() { return at<QStackedWidget>("pages"); }
};

struct RadioCells : ControlBindings {
    QRadioButton& yes() { return at<QRadioButton>("yes"); }
    QRadioButton& no() { return at<QRadioButton>("no"); }
};

class UpdateCounter final : public QObject {
  public:
    explicit UpdateCounter(QWidget& window) { window.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        updates += event->type() == QEvent::UpdateRequest;

        return false;
    }
    int updates = 0;
};

QByteArray without(const char* text, const char* other) {
    QByteArray file = stage::controlsFile();
    EXPECT_TRUE(file.contains(text)) << text;
    return file.replace(text, other);
}

} // namespace

TEST_F(Pages, BeginWithTheModelsPageWhateverTheFileSays) {
    EXPECT_EQ(stack().currentIndex(), 0);
    EXPECT_EQ(stack().currentWidget()->objectName(), "page0");
}

TEST_F(Pages, AreThoseOfTheModelInTheOrderOfTheFile) {
    for (const int page : {2, 1, 0}) {
        models.pages.select(page);
        EXPECT_EQ(stack().currentIndex(), page);
    }
    models.pages.select(-1);
    EXPECT_EQ(stack().currentIndex(), 0);
}

TEST_F(Pages, ChangeInOneFrame) {
    models.pages.select(1); // the first time a tree lays out its columns as well
    QTest::qWait(20);
    models.pages.select(0);
    QTest::qWait(20);
    UpdateCounter counter(*dialog);
    models.pages.select(1);
    models.title.setText("Other");
    models.next.setTitle("Go on");
    EXPECT_EQ(counter.updates, 0);
    ASSERT_TRUE(stage::waitUntil([&] { return counter.updates > 0; }));
    QTest::qWait(20);
    EXPECT_EQ(counter.updates, 1);
}

TEST_F(Pages, TakeTheKeyboardFromAWidgetThatHasGone) {
    at<QWidget>("document").setFocus();
    models.pages.select(2);
    EXPECT_EQ(focus(), &at<QTableView>("table"));
}

TEST_F(Pages, LeaveTheKeyboardWithAWidgetThatStays) {
    at<QPushButton>("back").setFocus();
    models.pages.select(2);
    EXPECT_EQ(focus(), &at<QPushButton>("back"));
}

TEST_F(Pages, WithoutAWidgetForTheKeyboardGiveItToTheDefaultButton) {
    models.table.setEnabled(false);
    at<QWidget>("document").setFocus();
    models.pages.select(2);
    EXPECT_EQ(focus(), &at<QPushButton>("next"));
}

TEST_F(RadioCells, ShowWhatTheModelSaysFromTheBeginning) {
    EXPECT_FALSE(yes().isChecked());
    EXPECT_TRUE(no().isChecked());
    models.agree.select(0);
    EXPECT_TRUE(yes().isChecked());
    EXPECT_FALSE(no().isChecked());
}

TEST_F(RadioCells, TurnAClickIntoAPressOfTheRow) {
    std::vector<int> pressed;
    models.agree.setAction(0, [&] { pressed.push_back(0); });
    models.agree.setAction(1, [&] { pressed.push_back(1); });
    clickOn(yes(), QPoint(8, yes().height() / 2));
    clickOn(no(), QPoint(8, no().height() / 2));
    clickOn(no(), QPoint(8, no().height() / 2));
    EXPECT_THAT(pressed, ElementsAre(0, 1, 1));
    EXPECT_EQ(models.agree.selected(), 1);
}

TEST_F(RadioCells, TurnAnArrowKeyIntoAPress) {
    int presses = 0;
    models.agree.setAction(0, [&] { ++presses; });
    no().setFocus();
    QTest::keyClick(&no(), Qt::Key_Left);
    EXPECT_EQ(models.agree.selected(), 0);
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(yes().isChecked());
    EXPECT_EQ(focus(), &yes());
}

TEST_F(RadioCells, FollowAnActionThatChoosesAnotherRow) {
    models.agree.setAction(0, [&] { models.agree.select(1); });
    clickOn(yes(), QPoint(8, yes().height() / 2));
    EXPECT_TRUE(no().isChecked());
    EXPECT_FALSE(yes().isChecked());
}

TEST_F(RadioCells, DoNothingWhileDisabled) {
    models.agree.setEnabled(false);
    EXPECT_FALSE(yes().isEnabled());
    EXPECT_FALSE(no().isEnabled());
    clickOn(yes(), QPoint(8, yes().height() / 2));
    EXPECT_EQ(models.agree.selected(), 1);
    EXPECT_TRUE(no().isChecked());
    models.agree.setEnabled(true);
    EXPECT_TRUE(yes().isEnabled());
}

TEST_F(RadioCells, TellAssistiveToolsWhichOneIsOn) {
    auto* cell = QAccessible::queryAccessibleInterface(&no());
    EXPECT_EQ(cell->role(), QAccessible::RadioButton);
    EXPECT_EQ(cell->text(QAccessible::Name), "Disagree");
    EXPECT_TRUE(cell->state().checked);
}

TEST(RadioCellsWithoutASelection, AreAllOff) {
    controls::Window window;
    controls::RadioMatrix none{2, -1};
    controls::Interface outlets{window, {{"agree", &none}}};
    front().resources.write("Controls.ui", stage::controlsFile());
    ASSERT_TRUE(front().frontEnd.interfaceFiles().load("Controls", outlets));
    window.orderFront();
    auto* yes = stage::controlsDialog()->findChild<QRadioButton*>("yes");
    auto* no = stage::controlsDialog()->findChild<QRadioButton*>("no");
    EXPECT_FALSE(yes->isChecked());
    EXPECT_FALSE(no->isChecked());
    none.press(0);
    EXPECT_TRUE(yes->isChecked());
}

TEST_F(ControlBindings, ShowThePictureOfTheModel) {
    auto& view = at<ui::PictureView>("picture");
    const QImage empty = view.grab().toImage();
    models.picture.setPicture(
        {"/Customizer.icns", front().resources.folder() + "/Customizer.icns"});
    const QImage shown = view.grab().toImage();
    EXPECT_NE(shown, empty);
    EXPECT_TRUE(view.isVisible());
    models.picture.setPicture({"/Gone.icns", front().resources.folder() + "/Gone.icns"});
    EXPECT_EQ(view.grab().toImage(), empty);
    EXPECT_TRUE(view.isVisible());
    models.picture.setHidden(true);
    EXPECT_FALSE(view.isVisible());
    auto* accessible = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Scrivel");
}

TEST_F(ControlBindings, ShowAnOutlineOfNamesLineByLine) {
    models.names.setStyledText(stage::pageNames());
    auto& label = at<QLabel>("names");
    EXPECT_EQ(label.textFormat(), Qt::RichText);
    QTextDocument shown;
    shown.setHtml(label.text());
    EXPECT_EQ(shown.toPlainText(), QString::fromUtf8("•  Welcome\n•  Licence\n•  Summary"));
    EXPECT_EQ(shown.blockCount(), 3);
    EXPECT_EQ(shown.begin().blockFormat().bottomMargin(), 8);
    const auto weightOf = [](const QTextBlock& block) {
        auto at = block.begin();
        while (!at.atEnd() && !at.fragment().text().contains('c'))
            ++at;
        return at.fragment().charFormat().fontWeight();
    };
    EXPECT_EQ(weightOf(shown.begin().next()), QFont::DemiBold);
    const QColor later = shown.lastBlock().begin().fragment().charFormat().foreground().color();
    EXPECT_EQ(later, QColor(51, 51, 51, 204));
}

TEST(StyledHtml, BeginsTheWordsAfterABulletAtTheSamePlaceInEveryLine) {
    const controls::Colour blue{0, 0.5, 0.71, 1};
    controls::StyledText text;
    text.runs = {{"\u2022", blue, true},
                 {"  Hello\n", {}, false},
                 {"\u2022", blue, true},
                 {"  Hello\n", {}, true},
                 {"\u2022  Hello\n", controls::Colour{}, false}};
    QTextDocument shown;
    shown.setHtml(ui::asHtml(text));
    shown.setTextWidth(400);
    shown.size(); // lays it out
    std::vector<qreal> starts;
    for (QTextBlock line = shown.begin(); line.isValid(); line = line.next())
        starts.push_back(line.layout()->lineAt(0).cursorToX(3));
    ASSERT_EQ(starts.size(), 3u);
    EXPECT_GT(starts[0], 0);
    EXPECT_EQ(starts[1], starts[0]);
    EXPECT_EQ(starts[2], starts[0]);
}

TEST(StyledHtml, KeepsEmptyLinesAndBlanksAndTakesMarkupAsText) {
    controls::StyledText text;
    text.runs = {{"a <b>\n\n", {}, true}, {"  two  blanks", {}, false}};
    QTextDocument shown;
    shown.setHtml(ui::asHtml(text));
    EXPECT_EQ(shown.toPlainText(), "a <b>\n\n  two  blanks");
    EXPECT_EQ(ui::asHtml({}), "");
}

TEST_F(ControlBindings, LeaveATextSelectableAsTheFileSays) {
    EXPECT_EQ(at<QLabel>("title").textInteractionFlags(), Qt::TextSelectableByMouse);
    models.title.setText("Line one\nLine two");
    EXPECT_EQ(at<QLabel>("title").text(), "Line one\nLine two");
}

TEST_F(ControlBindings, PutTheMenuBarAtTheTop) {
    auto& bar = at<QMenuBar>("menuBar");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.pos(), QPoint(0, 0));
    EXPECT_EQ(bar.width(), dialog->width());
    EXPECT_GE(at<QWidget>("pages").y(), bar.height());
}

TEST_F(ControlBindings, TurnAMenuCommandIntoAPress) {
    int presses = 0;
    models.command.setAction([&] { ++presses; });
    auto& action = at<QAction>("command");
    action.trigger();
    EXPECT_EQ(presses, 1);
    QTest::keyClick(dialog, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(presses, 2);
    models.command.setEnabled(false);
    EXPECT_FALSE(action.isEnabled());
    QTest::keyClick(dialog, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(presses, 2);
    models.command.setEnabled(true);
    models.command.setHidden(true);
    EXPECT_FALSE(action.isVisible());
}

TEST_F(ControlBindings, TakeNoMenuCommandUnderASheet) {
    int presses = 0;
    bool answered = false;
    models.command.setAction([&] { ++presses; });
    front().frontEnd.alertSheets().beginSheet(
        {.message = "Well?", .informative = "", .buttons = {"OK"}}, models.window,
        [&](int) { answered = true; });
    at<QAction>("command").trigger();
    EXPECT_EQ(presses, 0);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    ASSERT_TRUE(stage::waitUntil([&] { return answered; }));
    at<QAction>("command").trigger();
    EXPECT_EQ(presses, 1);
}

TEST_F(ControlBindings, HaveOneDefaultButtonAndNoOtherThatTakesItsPlace) {
    for (const auto* button : dialog->findChildren<QPushButton*>())
        EXPECT_EQ(button->isDefault(), button->objectName() == "next");
    at<QPushButton>("back").setFocus();
    EXPECT_TRUE(at<QPushButton>("next").isDefault());
    models.next.setEnabled(false);
    EXPECT_FALSE(at<QPushButton>("back").isDefault());
}

TEST_F(ControlBindings, ShowTheTablesRowsAndTitles) {
    models.pages.select(2);
    const auto& rows = *at<QTableView>("table").model();
    EXPECT_EQ(rows.rowCount(), 2);
    EXPECT_EQ(rows.index(1, 0).data(), "/Old/Word.app");
    EXPECT_EQ(rows.index(1, 1).data(), "14");
    EXPECT_EQ(rows.headerData(0, Qt::Horizontal), "Path");
    paths.rows.push_back({"/New/Word.app", "17"});
    models.table.reloadData();
    EXPECT_EQ(rows.rowCount(), 3);
}

TEST_F(ControlBindings, PassTheTablesSelectionOnBothWays) {
    models.pages.select(2);
    auto& table = at<QTableView>("table");
    int changes = 0;
    models.table.setSelectionDidChange([&] { ++changes; });
    const QRect second = table.visualRect(table.model()->index(1, 1));
    clickOn(*table.viewport(), second.center());
    EXPECT_EQ(models.table.selectedRow(), 1);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(models.table.selectedRow(), 0);
    EXPECT_EQ(changes, 2);
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(models.table.rows(), 2);
    models.table.selectRow(-1);
    EXPECT_TRUE(table.selectionModel()->selectedRows().isEmpty());
    models.table.selectRow(1);
    EXPECT_TRUE(table.selectionModel()->isRowSelected(1));
    paths.rows.pop_back();
    models.table.reloadData();
    EXPECT_TRUE(table.selectionModel()->selectedRows().isEmpty());
    EXPECT_EQ(models.table.selectedRow(), -1);
}

TEST_F(ControlBindings, KeepTheTablesSelectionWhenItsRowsAreReadAgain) {
    models.table.selectRow(1);
    paths.rows[1][1] = "15";
    models.table.reloadData();
    EXPECT_EQ(models.table.selectedRow(), 1);
    EXPECT_TRUE(at<QTableView>("table").selectionModel()->isRowSelected(1));
    paths.rows.push_back({"/New/Word.app", "17"});
    models.table.reloadData();
    EXPECT_EQ(models.table.selectedRow(), 1);
    EXPECT_TRUE(at<QTableView>("table").selectionModel()->isRowSelected(1));
}

TEST_F(ControlBindings, SelectNothingInADisabledTable) {
    models.pages.select(2);
    models.table.setEnabled(false);
    auto& table = at<QTableView>("table");
    EXPECT_FALSE(table.isEnabled());
    clickOn(*table.viewport(), table.visualRect(table.model()->index(1, 0)).center());
    EXPECT_EQ(models.table.selectedRow(), -1);
}

TEST_F(ControlBindings, LetTheTabKeyLeaveTheTable) {
    models.pages.select(2);
    at<QTableView>("table").setFocus();
    QTest::keyClick(&at<QTableView>("table"), Qt::Key_Tab);
    EXPECT_EQ(focus(), &at<QPushButton>("back"));
}

TEST_F(ControlBindings, TellAssistiveToolsTheTablesCells) {
    auto* table = QAccessible::queryAccessibleInterface(&at<QTableView>("table"));
    EXPECT_EQ(table->text(QAccessible::Name), "Copies of Word");
    auto* cell = table->tableInterface()->cellAt(1, 0);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), "/Old/Word.app");
}

TEST_F(ControlBindings, SelectRowsAndKeepPathsInOrderInARightToLeftLanguage) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    models.pages.select(2);
    QApplication::processEvents();
    auto& table = at<QTableView>("table");
    models.table.selectRow(1);
    const auto selected = table.selectionModel()->selectedRows();
    const QString shown = qobject_cast<QStyledItemDelegate*>(table.itemDelegate())
                              ->displayText("/Old/Word.app", QLocale());
    QApplication::setLayoutDirection(Qt::LeftToRight);
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected.first().row(), 1);
    EXPECT_EQ(shown, QStringLiteral(u"\u2066/Old/Word.app\u2069"));
}

TEST_F(ControlBindings, MirrorInARightToLeftLanguage) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    const bool mirrored = at<QWidget>("picture").x() > at<QWidget>("pages").x();
    const auto& header = *at<QTableView>("table").horizontalHeader();
    models.pages.select(2);
    QApplication::processEvents();
    const bool columns = header.sectionViewportPosition(0) > header.sectionViewportPosition(1);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_TRUE(mirrored);
    EXPECT_TRUE(columns);
}

TEST(ControlFiles, AreFalseWhenTheWidgetOfAKindIsMissing) {
    for (const char* name :
         {"pages", "agree", "picture", "document", "outline", "table", "names"}) {
        stage::ControlModels models;
        const QByteArray named = QByteArray("\" name=\"") + name + '"';
        EXPECT_FALSE(stage::loadControls(models, without(named, "\" name=\"elsewhere\""))) << name;
    }
    stage::ControlModels models;
    EXPECT_FALSE(stage::loadControls(
        models, without("<action name=\"command\">", "<action name=\"elsewhere\">")));
    EXPECT_TRUE(stage::loadControls(models));
}

TEST(ControlFiles, AreFalseWhenAWidgetIsOfAnotherClass) {
    for (const char* other :
         {"QTabWidget\" name=\"pages", "QLabel\" name=\"picture", "QTextBrowser\" name=\"document",
          "QTreeView\" name=\"outline", "QListView\" name=\"table", "QLineEdit\" name=\"names"}) {
        QByteArray file = stage::controlsFile();
        const QByteArray wanted(other);
        const QByteArray name = wanted.mid(wanted.indexOf("name=\"") + 6);
        const qsizetype at = file.indexOf("name=\"" + name + '"');
        const qsizetype from = file.lastIndexOf("class=\"", at) + 7;
        file.replace(from, at + 6 + name.size() - from, wanted);
        stage::ControlModels models;
        EXPECT_FALSE(stage::loadControls(models, file)) << other;
    }
}

TEST(ControlFiles, AreFalseWhenPagesCellsOrColumnsAreNotAsMany) {
    stage::ControlModels models;
    EXPECT_FALSE(stage::loadControls(
        models, without("<item><widget class=\"QRadioButton\" name=\"yes\"><property "
                        "name=\"text\"><string>Agree</string></property></widget></item>",
                        "")));
    EXPECT_FALSE(stage::loadControls(models, without("<string>info</string>", "")));
    EXPECT_FALSE(
        stage::loadControls(models, without("<string>info</string>", "<string>other</string>")));
    EXPECT_FALSE(stage::loadControls(models, without("<string>Description</string>", "")));
    EXPECT_FALSE(stage::loadControls(models, without("<string>version</string>", "")));
    EXPECT_TRUE(stage::loadControls(models));
    controls::Window window;
    controls::TabView four{4};
    controls::Interface outlets{window, {{"pages", &four}}};
    EXPECT_FALSE(front().frontEnd.interfaceFiles().load("Controls", outlets));
}
