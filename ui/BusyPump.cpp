#include "ui/BusyPump.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace ui {

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
    case QEvent::Quit:
        return true;
    default:
        return false;
    }
}

} // namespace

void BusyPump::pump() {
    QCoreApplication* application = QCoreApplication::instance();
    if (m_pumps || !application || QThread::currentThread() != application->thread())
        return;
    m_pumps = true;
    application->installEventFilter(this);
    // The toolkit could leave input out by itself, but it would keep it: a click would land on
    // whatever is in sight when the work is done.
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    application->removeEventFilter(this);
    m_pumps = false;
}

bool BusyPump::eventFilter(QObject* watched, QEvent* event) {
    if (!isInput(event->type()))
        return QObject::eventFilter(watched, event);
    event->ignore(); // an event that is not ignored would close the window all the same
    return true;
}

} // namespace ui
