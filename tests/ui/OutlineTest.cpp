// The component tree and its model.
#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "tests/ui/ControlsStage.h"
#include "ui/ComponentTree.h"
#include "ui/models/OutlineModel.h"

using stage::front;
using ui::ComponentTree;

namespace {

constexpr int kName = 0;
constexpr int kCheck = 1;
constexpr int kInfo = 2;

struct ComponentTrees : testing::Test {
    void SetUp() override {
        categories = &components.add("Content categories", {.state = -2, .allowsMixed = true});
        arts = &components.add("Arts", {.state = 1}, categories);
        law = &components.add("Law", {.enabled = false}, categories);
        word = &components.add("Word integration", {.state = 1});
        penmark = &components.add("Penmark", {.state = 1}, word);
        browser = &components.add("Browser extension");
        show();
    }
    void show() {
        components.view = &models.outline;
        models.outline.setDataSource(&components);
        models.outline.setDelegate(&components);
        ASSERT_TRUE(stage::loadControls(models));
        models.pages.select(1);
        models.window.orderFront();
        dialog = stage::controlsDialog();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        tree = dialog->findChild<ComponentTree*>("outline");
        tree->setFocus();
    }
    QModelIndex at(int row, int column = kName, const QModelIndex& group = {}) const {
        return tree->model()->index(row, column, group);
    }
    void clickBox(const QModelIndex& row) const {
        const QRect cell = tree->visualRect(row.siblingAtColumn(kCheck));
        stage::clickOn(*tree->viewport(), cell.center());
    }
    void press(int key) const { QTest::keyClick(tree, static_cast<Qt::Key>(key)); }
    QString nameAtCurrent() const {
        return tree->currentIndex().siblingAtColumn(kName).data().toString();
    }

    stage::Components components;
    stage::Component* categories = nullptr;
    stage::Component* arts = nullptr;
    stage::Component* law = nullptr;
    stage::Component* word = nullptr;
    stage::Component* penmark = nullptr;
    stage::Component* browser = nullptr;
    stage::ControlModels models;
    QDialog* dialog = nullptr;
    ComponentTree* tree = nullptr;
};

struct GermanNames final : ports::LocalizedTexts {
    std::string translated(std::string_view english) const override {
        ++asked;
        return english == "Arts" ? "Kunst" : std::string(english);
    }
    std::optional<std::string> file(std::string_view) const override { return std::nullopt; }
    std::string languageTag() const override { return "de"; }
    mutable int asked = 0;
};

} // namespace

TEST_F(ComponentTrees, ShowNamesBoxesAndDescriptionsWithEveryGroupOpen) {
    EXPECT_EQ(at(0).data(), "Content categories");
    EXPECT_EQ(at(0, kInfo).data(), "What Content categories is for");
    EXPECT_EQ(at(0, kCheck).data(Qt::CheckStateRole), Qt::PartiallyChecked);
    EXPECT_EQ(at(0, kCheck, at(0)).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(at(2, kCheck).data(Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_FALSE(at(0, kCheck).data().isValid());
    EXPECT_FALSE(at(0, kName).data(Qt::CheckStateRole).isValid());
    EXPECT_TRUE(tree->isExpanded(at(0)));
    EXPECT_TRUE(tree->isExpanded(at(1)));
    EXPECT_FALSE(tree->model()->hasChildren(at(2)));
    EXPECT_EQ(tree->header()->model()->headerData(kInfo, Qt::Horizontal), "Description");
    QAbstractItemModelTester tester(tree->model());
}

TEST_F(ComponentTrees, SetTheBoxThatIsClicked) {
    clickBox(at(2));
    EXPECT_EQ(browser->cell.state, 1);
    EXPECT_EQ(at(2, kCheck).data(Qt::CheckStateRole), Qt::Checked);
    clickBox(at(2));
    EXPECT_EQ(browser->cell.state, 0);
    clickBox(at(0));
    EXPECT_EQ(categories->cell.state, 1) << "a mixed group is switched on";
}

TEST_F(ComponentTrees, SetNoBoxByAClickBesideIt) {
    stage::clickOn(*tree->viewport(), tree->visualRect(at(2, kInfo)).center());
    stage::clickOn(*tree->viewport(), tree->visualRect(at(2, kName)).center());
    EXPECT_EQ(browser->cell.state, 0);
    EXPECT_EQ(models.outline.selectedItem(), browser);
}

TEST_F(ComponentTrees, PutTheBoxInTheMiddleOfItsColumn) {
    const QImage picture = tree->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    QRect cell = tree->visualRect(at(0, kCheck, at(0)));
    cell.moveTopLeft(tree->viewport()->mapTo(tree, cell.topLeft()));
    const QColor accent = tree->palette().color(QPalette::Active, QPalette::Highlight);
    int left = -1;
    int right = -1;
    for (int x = cell.left(); x <= cell.right(); ++x)
        if (picture.pixelColor(int(x * ratio), int((cell.center().y() - 5) * ratio)) == accent) {
            left = left < 0 ? x : left;
            right = x;
        }
    ASSERT_GE(left, 0);
    EXPECT_LE(std::abs((left - cell.left()) - (cell.right() - right)), 2);
}

TEST_F(ComponentTrees, TickTheCurrentRowWithTheSpaceBarWhateverTheColumn) {
    for (const int column : {kName, kCheck, kInfo}) {
        const int before = browser->cell.state;
        tree->setCurrentIndex(at(2, column));
        press(Qt::Key_Space);
        EXPECT_NE(browser->cell.state, before) << column;
    }
}

TEST_F(ComponentTrees, LeaveARowThatIsNotAvailableAsItIs) {
    const QModelIndex row = at(1, kName, at(0));
    clickBox(row);
    tree->setCurrentIndex(row);
    press(Qt::Key_Space);
    EXPECT_EQ(law->cell, controls::CheckCell{.enabled = false});
    EXPECT_FALSE(row.data(ui::OutlineModel::kIsAvailable).toBool());
    EXPECT_FALSE(row.siblingAtColumn(kCheck).flags() & Qt::ItemIsUserCheckable);
}

TEST_F(ComponentTrees, DoNothingWhileDisabled) {
    models.outline.setEnabled(false);
    EXPECT_FALSE(tree->isEnabled());
    clickBox(at(2));
    tree->model()->setData(at(2, kCheck), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(browser->cell.state, 0);
}

TEST_F(ComponentTrees, MoveWithTheArrowsAndOpenAndCloseGroups) {
    tree->setCurrentIndex(at(0));
    press(Qt::Key_Down);
    EXPECT_EQ(nameAtCurrent(), "Arts");
    press(Qt::Key_Left);
    EXPECT_EQ(nameAtCurrent(), "Content categories");
    press(Qt::Key_Left);
    EXPECT_FALSE(tree->isExpanded(at(0)));
    press(Qt::Key_Right);
    EXPECT_TRUE(tree->isExpanded(at(0)));
    press(Qt::Key_End);
    EXPECT_EQ(nameAtCurrent(), "Browser extension");
    press(Qt::Key_Home);
    EXPECT_EQ(nameAtCurrent(), "Content categories");
}

TEST_F(ComponentTrees, FindARowByTypingItsName) {
    tree->setCurrentIndex(at(0));
    QTest::keyClicks(tree, "pen");
    EXPECT_EQ(nameAtCurrent(), "Penmark");
    EXPECT_EQ(models.outline.selectedItem(), penmark);
}

TEST_F(ComponentTrees, PassTheSelectionOnBothWays) {
    int changes = 0;
    models.outline.setSelectionDidChange([&] { ++changes; });
    tree->setCurrentIndex(at(0));
    press(Qt::Key_Down);
    EXPECT_EQ(models.outline.selectedItem(), arts);
    EXPECT_EQ(changes, 2);
    models.outline.select(browser);
    EXPECT_EQ(tree->currentIndex(), at(2));
    EXPECT_TRUE(tree->selectionModel()->isRowSelected(2));
    models.outline.select(nullptr);
    EXPECT_TRUE(tree->selectionModel()->selectedRows().isEmpty());
}

TEST_F(ComponentTrees, StayAsTheyAreOpenedWhenOnlyStatesChange) {
    tree->collapse(at(1));
    models.outline.select(arts);
    QSignalSpy resets(tree->model(), &QAbstractItemModel::modelReset);
    QSignalSpy changes(tree->model(), &QAbstractItemModel::dataChanged);
    arts->cell.state = 0;
    arts->name = "Fine arts";
    models.outline.reloadData();
    EXPECT_EQ(resets.count(), 0);
    EXPECT_GT(changes.count(), 0);
    EXPECT_FALSE(tree->isExpanded(at(1)));
    EXPECT_EQ(models.outline.selectedItem(), arts);
    EXPECT_EQ(nameAtCurrent(), "Fine arts");
}

TEST_F(ComponentTrees, BeginAnewWhenTheRowsAreOthers) {
    tree->collapse(at(1));
    models.outline.select(browser);
    stage::Component& added = components.add("Services", {}, word);
    models.outline.reloadData();
    EXPECT_TRUE(tree->isExpanded(at(1)));
    EXPECT_EQ(at(1, kName, at(1)).data(), "Services");
    EXPECT_EQ(models.outline.selectedItem(), browser);
    EXPECT_EQ(tree->currentIndex(), at(2));
    std::ignore = added;
}

TEST_F(ComponentTrees, SelectNothingWhenTheSelectedRowHasGone) {
    models.outline.select(browser);
    stage::Components others;
    others.add("Alone");
    models.outline.setDataSource(&others);
    models.outline.setDelegate(&others);
    models.outline.reloadData();
    EXPECT_EQ(tree->model()->rowCount(), 1);
    EXPECT_EQ(models.outline.selectedItem(), nullptr);
    models.outline.setDataSource(nullptr);
    models.outline.reloadData();
    EXPECT_EQ(tree->model()->rowCount(), 0);
}

TEST_F(ComponentTrees, TellAssistiveToolsNameStateAndDescription) {
    auto* accessible = QAccessible::queryAccessibleInterface(tree);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Components");
    EXPECT_EQ(accessible->role(), QAccessible::Tree);
    const auto said = [&](int row, int column, QAccessible::Text what = QAccessible::Name) {
        auto* cell = accessible->tableInterface()->cellAt(row, column);
        return cell ? cell->text(what).toStdString() : "no cell";
    };
    EXPECT_EQ(said(0, kName), "Content categories, partly selected");
    EXPECT_EQ(said(1, kName), "Arts, selected");
    EXPECT_EQ(said(2, kName), "Law, not available");
    EXPECT_EQ(said(5, kName), "Browser extension, not selected");
    EXPECT_EQ(said(1, kCheck), "Arts, selected");
    EXPECT_EQ(said(1, kInfo), "What Arts is for");
    EXPECT_EQ(said(1, kName, QAccessible::Description), "What Arts is for");
    auto* box = accessible->tableInterface()->cellAt(1, kCheck);
    EXPECT_TRUE(box->state().checked);
    EXPECT_TRUE(box->state().checkable);
    EXPECT_FALSE(accessible->tableInterface()->cellAt(2, kCheck)->state().checkable);
}

TEST_F(ComponentTrees, OutliveTheirModel) {
    auto* widget = tree;
    models.window.orderOut();
    {
        stage::ControlModels others;
        others.outline.setDataSource(&components);
        others.outline.setDelegate(&components);
        ASSERT_TRUE(stage::loadControls(others));
        others.window.orderFront();
        widget = stage::controlsDialog()->findChild<ComponentTree*>("outline");
        EXPECT_EQ(widget->model()->rowCount(), 3);
    }
    EXPECT_EQ(widget->model()->rowCount(), 0);
}

TEST(OutlineModels, ConvertEachTextOnceAndInTheUsersLanguage) {
    stage::Components components;
    auto& group = components.add("Group");
    components.add("Arts", {}, &group);
    controls::OutlineView view;
    view.setDataSource(&components);
    view.setDelegate(&components);
    const GermanNames texts;
    ui::OutlineModel model({.view = view,
                            .columns = {{"component", "installed", "info"}, {"C", "I", "D"}},
                            .texts = texts});
    const QModelIndex arts = model.index(0, 0, model.index(0, 0));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(model.data(arts, Qt::DisplayRole), "Kunst");
    EXPECT_EQ(texts.asked, 1);
    EXPECT_EQ(components.textsAsked, 1);
    view.reloadData();
    EXPECT_TRUE(model.reload());
    EXPECT_EQ(model.data(arts, Qt::DisplayRole), "Kunst");
    EXPECT_EQ(components.textsAsked, 2);
}

TEST(ComponentTreesOfTenThousandRows, AskOnlyForTheRowsInSight) {
    stage::Components components;
    for (int group = 0; group < 100; ++group) {
        auto& item = components.add("Group " + std::to_string(group));
        for (int i = 0; i < 99; ++i)
            components.add("Item " + std::to_string(i), {}, &item);
    }
    stage::ControlModels models;
    models.outline.setDataSource(&components);
    models.outline.setDelegate(&components);
    components.view = &models.outline;
    ASSERT_TRUE(stage::loadControls(models));
    models.pages.select(1);
    models.window.orderFront();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(stage::controlsDialog()));
    auto* tree = stage::controlsDialog()->findChild<ComponentTree*>("outline");
    tree->grab();
    // a row may be in sight by a part of it at both ends, and one row is the measure for all
    const int rowHeight = tree->visualRect(tree->model()->index(0, 0)).height();
    const int inSight = tree->viewport()->height() / rowHeight + 3;
    EXPECT_LE(components.textsAsked, 2 * inSight);
    // once at most for each row of the tree, however often it is laid out
    EXPECT_LE(components.childrenAsked, 10'000);

    const int texts = components.textsAsked;
    const int children = components.childrenAsked;
    tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum() / 2);
    tree->grab();
    EXPECT_LE(components.textsAsked - texts, 2 * inSight);
    EXPECT_EQ(components.childrenAsked, children);

    const int before = components.textsAsked;
    components.view->reloadData();
    tree->grab();
    EXPECT_LE(components.textsAsked - before, 2 * inSight);
    EXPECT_GT(tree->verticalScrollBar()->value(), 0) << "a tick does not scroll";
}
