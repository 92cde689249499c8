#include "ui/FindBar.h"

#include <utility>

#include <QAccessible>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

#include "ui/Texts.h"
#include "ui/Theme.h"

namespace ui {

namespace {

QToolButton* button(QStyle::StandardPixmap icon, const QString& name, FindBar& bar) {
    auto* button = new QToolButton(&bar);
    button->setIcon(bar.style()->standardIcon(icon, nullptr, &bar));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

FindBar::FindBar(Needs needs, QWidget& parent)
    : QWidget(&parent), m_needs(std::move(needs)), m_words(new QLineEdit(this)),
      m_notFound(new QLabel(localized(m_needs.texts, "Not found"), this)) {
    setObjectName("findBar");
    setAutoFillBackground(true);
    m_words->setObjectName("findWords");
    m_words->setPlaceholderText(localized(m_needs.texts, "Find"));
    m_words->setAccessibleName(localized(m_needs.texts, "Find"));
    m_words->setClearButtonEnabled(true);
    m_notFound->setObjectName("notFound");
    m_notFound->setProperty(kLook, "secondary");
    QSizePolicy keepsItsPlace = m_notFound->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    m_notFound->setSizePolicy(keepsItsPlace);
    m_notFound->hide();

    auto* previous = button(QStyle::SP_ArrowUp, localized(m_needs.texts, "Find Previous"), *this);
    previous->setObjectName("findPrevious");
    auto* next = button(QStyle::SP_ArrowDown, localized(m_needs.texts, "Find Next"), *this);
    next->setObjectName("findNext");
    auto* close = button(QStyle::SP_TitleBarCloseButton, localized(m_needs.texts, "Close"), *this);
    close->setObjectName("findClose");

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(6);
    row->addWidget(m_words, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(m_notFound);
    row->addWidget(close);

    connect(previous, &QToolButton::clicked, this, [this] { find(QTextDocument::FindBackward); });
    connect(next, &QToolButton::clicked, this, [this] { find({}); });
    connect(close, &QToolButton::clicked, this, [this] { m_needs.close(); });
    connect(m_words, &QLineEdit::textEdited, this, [this] { find({}); });
    m_words->installEventFilter(this);
    setTabOrder(m_words, previous);
    setTabOrder(previous, next);
    setTabOrder(next, close);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    find(key->modifiers() & Qt::ShiftModifier ? QTextDocument::FindBackward
                                              : QTextDocument::FindFlags());
    return true;
}

void FindBar::takeKeyboard() {
    m_words->setFocus(Qt::ShortcutFocusReason);
    m_words->selectAll();
}

void FindBar::find(QTextDocument::FindFlags direction) {
    const QString words = m_words->text();
    const bool missing = !words.isEmpty() && !m_needs.find(words, direction);
    if (missing == m_notFound->isVisibleTo(this))
        return;
    m_notFound->setVisible(missing);
    m_words->setAccessibleDescription(missing ? m_notFound->text() : QString());
    if (missing) {
        QAccessibleEvent said(m_notFound, QAccessible::Alert);
        QAccessible::updateAccessibility(&said);
    }
}

} // namespace ui
