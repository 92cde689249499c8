#include "tests/wizardwindow/AccessibleWindow.h"

#include <algorithm>
#include <array>
#include <vector>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>

namespace tests {

namespace {

constexpr std::size_t kMostControls = 30;
constexpr int kRing = 4; ///< how far round a control its ring may be drawn

constexpr std::array kRoles{
    QAccessible::Button,       QAccessible::PushButton, QAccessible::RadioButton,
    QAccessible::CheckBox,     QAccessible::Tree,       QAccessible::TreeItem,
    QAccessible::Table,        QAccessible::Cell,       QAccessible::ColumnHeader,
    QAccessible::EditableText, QAccessible::StaticText, QAccessible::ProgressBar,
    QAccessible::Document,     QAccessible::ScrollBar,  QAccessible::Dialog,
};

std::string nameOf(const QWidget* widget) {
    return widget
               ? widget->objectName().toStdString() + " (" + widget->metaObject()->className() + ")"
               : "nothing";
}

std::string objectOf(QAccessibleInterface& part) {
    for (QAccessibleInterface* at = &part; at; at = at->parent())
        if (const auto* widget = qobject_cast<const QWidget*>(at->object()))
            return nameOf(widget);
    return "nothing";
}

/// The control and those below it; answers how many can take the keyboard.
int examine(QAccessibleInterface& part) {
    const QAccessible::State state = part.state();
    if (state.invisible)
        return 0;
    int focusable = state.focusable && !state.disabled;
    if (focusable) {
        EXPECT_NE(part.text(QAccessible::Name).trimmed().toStdString(), "")
            << objectOf(part) << " has no name; role " << part.role();
        EXPECT_NE(std::ranges::find(kRoles, part.role()), kRoles.end())
            << objectOf(part) << " says that it is " << part.role();
    }
    for (int i = 0; i < part.childCount(); ++i)
        if (QAccessibleInterface* child = part.child(i))
            focusable += examine(*child);
    return focusable;
}

/// Can a person work it, so that the keyboard has to lead there?
bool isWorked(const QWidget& widget) {
    if (const auto* radio = qobject_cast<const QRadioButton*>(&widget))
        return radio->isChecked();
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QTextBrowser*>(&widget) || qobject_cast<const QLineEdit*>(&widget);
}

/// Parts of other widgets, which work them: a header of its table, the cross of its text field.
bool isPart(const QWidget& widget) {
    return widget.inherits("QHeaderView") || widget.inherits("QLineEditIconButton") ||
           widget.inherits("QTableCornerButton");
}

std::vector<QWidget*> workedIn(const QWidget& window) {
    std::vector<QWidget*> all;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &window &&
            !isPart(*widget) && isWorked(*widget))
            all.push_back(widget);
    return all;
}

void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

/// Where the keyboard is, and how the window looks then.
struct Stop {
    QWidget* widget;
    QImage look;
};

std::vector<QWidget*> widgetsOf(const std::vector<Stop>& stops) {
    std::vector<QWidget*> widgets;
    for (const Stop& stop : stops)
        widgets.push_back(stop.widget);
    return widgets;
}

/// From where the keyboard is until it is there again.
std::vector<Stop> round(QWidget& window, Qt::KeyboardModifiers modifiers) {
    std::vector<Stop> stops;
    QWidget* const first = QApplication::focusWidget();
    do {
        stops.push_back({QApplication::focusWidget(), window.grab().toImage()});
        press(window, Qt::Key_Tab, modifiers);
    } while (QApplication::focusWidget() != first && stops.size() < kMostControls);
    return stops;
}

/// The part of the picture where the widget and a ring round it are.
QImage cut(const QImage& look, const QWidget& widget) {
    const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
    return look.copy(place.adjusted(-kRing, -kRing, kRing, kRing));
}

} // namespace

void expectAccessible(QWidget& window) {
    QAccessibleInterface* top = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->role(), QAccessible::Dialog);
    EXPECT_NE(top->text(QAccessible::Name).toStdString(), "");
    EXPECT_GT(examine(*top), 0);
}

void expectTabGoesRound(QWidget& window) {
    QWidget* const before = QApplication::focusWidget();
    ASSERT_NE(before, nullptr) << "the keyboard is nowhere, the window's at "
                               << nameOf(window.focusWidget());
    ASSERT_TRUE(window.isAncestorOf(before)) << nameOf(before);
    press(window, Qt::Key_Tab); // a window shows where the keyboard is from the first Tab on
    press(window, Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), before) << "Shift-Tab does not lead back";

    std::vector<Stop> stops = round(window, {});
    std::vector<QWidget*> visited = widgetsOf(stops);
    for (QWidget* widget : visited) {
        ASSERT_NE(widget, nullptr);
        EXPECT_TRUE(window.isAncestorOf(widget)) << nameOf(widget);
        EXPECT_TRUE(widget->isVisible() && widget->isEnabled()) << nameOf(widget);
        EXPECT_TRUE(window.rect().contains(
            QRect(widget->mapTo(&window, QPoint()), widget->size()).center()))
            << nameOf(widget);
    }
    EXPECT_EQ(QApplication::focusWidget(), before) << "the Tab key does not come round";
    for (QWidget* widget : workedIn(window))
        EXPECT_EQ(std::ranges::count(visited, widget), 1)
            << "the Tab key's visits to " << nameOf(widget);
    EXPECT_EQ(visited.size(), workedIn(window).size()) << [&] {
        std::string all;
        for (QWidget* widget : visited)
            all += nameOf(widget) + " ";
        return all;
    }();

    std::vector<QWidget*> back = widgetsOf(round(window, Qt::ShiftModifier));
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, visited) << "Shift-Tab goes another way";

    if (stops.size() == 1) {
        before->clearFocus();
        stops.push_back({nullptr, window.grab().toImage()});
        before->setFocus(Qt::TabFocusReason);
    }
    for (std::size_t i = 0; i < stops.size(); ++i) {
        QWidget* widget = stops[i].widget;
        if (!widget)
            continue;
        EXPECT_NE(cut(stops[i].look, *widget), cut(stops[(i + 1) % stops.size()].look, *widget))
            << nameOf(widget) << " does not show that it has the keyboard";
    }
}

} // namespace tests
