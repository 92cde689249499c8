#include "ui/Keys.h"

#include <QKeyEvent>

namespace ui {

namespace {

const QKeyEvent* keyPress(const QEvent& event) {
    return event.type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(&event) : nullptr;
}

} // namespace

bool isHeldReturn(const QEvent& event) {
    const QKeyEvent* key = keyPress(event);
    return key && key->isAutoRepeat() &&
           (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
}

bool isEscape(const QEvent& event) {
    const QKeyEvent* key = keyPress(event);
    return key && key->matches(QKeySequence::Cancel);
}

bool isCloseKey(const QEvent& event) {
    const QKeyEvent* key = keyPress(event);
    return key && key->matches(QKeySequence::Close);
}

} // namespace ui
