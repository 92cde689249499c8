#include "ui/bind/TabBinding.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>

#include "ui/bind/FirstState.h"

namespace ui {

namespace {

/// The first widget on the page that the Tab key reaches; null when there is none.
QWidget* firstWithKeyboard(const QWidget& page) {
    const QWidget* at = &page;
    while ((at = at->nextInFocusChain()) != &page)
        if (page.isAncestorOf(at) && (at->focusPolicy() & Qt::TabFocus) && at->isEnabled() &&
            at->isVisibleTo(&page) && !at->focusProxy())
            return const_cast<QWidget*>(at);
    return nullptr;
}

QWidget* defaultButton(const QWidget& window) {
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->isDefault() && button->isEnabled() && button->isVisibleTo(&window))
            return button;
    return nullptr;
}

/// With a button that was disabled or a page that was left.
bool isLost(const QWidget* focus) {
    return !focus || !focus->isEnabled() || !focus->isVisible();
}

} // namespace

TabBinding::TabBinding(controls::TabView& tabs, QStackedWidget& widget)
    : Binding(tabs), m_widget(widget) {
    FirstState(widget).giveTo(tabs);
    mirror(tabs);
    // What had the keyboard may be disabled after its page came up. Queued: the page is still being
    // arranged.
    const auto lookAgain = [this] {
        if (m_widget.isVisible() && isLost(m_widget.window()->focusWidget()))
            takeKeyboard();
    };
    widget.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [=, this](const QWidget*, const QWidget* now) {
        if (!now)
            QMetaObject::invokeMethod(this, lookAgain, Qt::QueuedConnection);
    });
}

void TabBinding::mirror(const controls::TabView& tabs) {
    m_widget.setEnabled(tabs.isEnabled());
    m_widget.setVisible(!tabs.isHidden());
    if (m_widget.currentIndex() == tabs.selected())
        return;
    const QWidget* focus = m_widget.window()->focusWidget();
    const bool goes =
        m_widget.isVisible() && (isLost(focus) || m_widget.currentWidget()->isAncestorOf(focus));
    m_widget.setCurrentIndex(tabs.selected());
    if (goes)
        takeKeyboard();
}

bool TabBinding::eventFilter(QObject* watched, QEvent* event) {
    // Else the toolkit would begin at whatever button comes first. Queued: a window may come into
    // sight some pages before the one that it waits at.
    if (event->type() == QEvent::Show && !event->spontaneous())
        QMetaObject::invokeMethod(this, [this] { takeKeyboard(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void TabBinding::takeKeyboard() {
    QWidget* next = firstWithKeyboard(*m_widget.currentWidget());
    if (!next)
        next = defaultButton(*m_widget.window());
    if (next)
        next->setFocus(Qt::OtherFocusReason);
}

} // namespace ui
