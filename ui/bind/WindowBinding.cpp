#include "ui/bind/WindowBinding.h"

#include <algorithm>

#include <QEvent>
#include <QScreen>

#include "ui/Keys.h"
#include "ui/ProgressBar.h"

namespace ui {

WindowBinding::WindowBinding(controls::Window& window, QDialog& widget)
    : Binding(window), m_widget(widget) {
    window.setTitle(widget.windowTitle().toStdString());
    window.setEnabled(widget.isEnabled());
    for (QPushButton* button : widget.findChildren<QPushButton*>()) {
        if (button->autoDefault()) {
            m_defaults.emplace_back(button);
            button->installEventFilter(this);
        }
        if (button->property("takesEscape").toBool())
            m_escape = button;
    }
    for (ProgressBar* bar : widget.findChildren<ProgressBar*>()) {
        connect(bar, &ProgressBar::runningChanged, this, [this] { chooseDefault(); });
        bar->installEventFilter(this);
    }
    // the one that came last takes the input; those below it wait until it is gone
    widget.setWindowModality(Qt::ApplicationModal);
    widget.installEventFilter(this);
    mirror(window);
}

void WindowBinding::mirror(const controls::Window& window) {
    m_widget.setWindowTitle(QString::fromStdString(window.title()));
    m_widget.setEnabled(window.isEnabled());
    if (window.isVisible() != m_widget.isVisible())
        window.isVisible() ? show() : m_widget.hide();
}

void WindowBinding::show() {
    if (!m_placed) {
        // only the first time: later the window stays where the user has put it
        m_placed = true;
        // one that the user can resize opens as the interface file has it
        if (m_widget.minimumSize() == m_widget.maximumSize())
            m_widget.adjustSize();
        QRect frame(QPoint(), m_widget.size());
        frame.moveCenter(m_widget.screen()->availableGeometry().center());
        m_widget.move(frame.topLeft());
    }
    m_widget.show();
    m_widget.activateWindow();
}

bool WindowBinding::isBusy() const {
    return std::ranges::any_of(
        m_widget.findChildren<ProgressBar*>(),
        [this](const ProgressBar* bar) { return bar->isRunning() && bar->isVisibleTo(&m_widget); });
}

void WindowBinding::chooseDefault() {
    bool mayBe = !isBusy();
    for (const auto& button : m_defaults) {
        if (!button)
            continue;
        const bool is = mayBe && button->isVisibleTo(&m_widget);
        button->setAutoDefault(is);
        button->setDefault(is);
        mayBe = mayBe && !is;
    }
}

void WindowBinding::escape() {
    if (m_escape && m_escape->isVisibleTo(&m_widget))
        m_escape->click();
    else
        model()->performClose();
}

bool WindowBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &m_widget) { // a bar, or a button that may be the default one
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            chooseDefault();
        return QObject::eventFilter(watched, event);
    }
    if (!model())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Close) {
        event->ignore();
        model()->performClose();
        return true;
    }
    if (isHeldReturn(*event))
        return true;
    if (isCloseKey(*event)) {
        model()->performClose();
        return true;
    }
    if (isEscape(*event)) {
        if (!isBusy())
            escape();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ui
