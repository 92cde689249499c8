#include "ui/bind/TextFieldBinding.h"

#include <QTextBoundaryFinder>

#include "ui/StyledHtml.h"
#include "ui/bind/FirstState.h"

namespace ui {

namespace {

/// What is longer than this and can't be wrapped may not fit on a line: a folder's name.
constexpr qsizetype kLongestWord = 32;

/// The text with places in its long words where a line may end, which can't be seen.
QString withPlacesToWrap(const QString& text) {
    constexpr QChar kPlace(0x200B);
    QTextBoundaryFinder words(QTextBoundaryFinder::Line, text);
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    QString shown;
    qsizetype lineMayEnd = 0;
    for (qsizetype at = 0, next = 0; at < text.size(); at = next) {
        words.setPosition(at);
        if (words.isAtBoundary())
            lineMayEnd = at;
        if (at - lineMayEnd >= kLongestWord) {
            shown += kPlace;
            lineMayEnd = at;
        }
        characters.setPosition(at);
        next = characters.toNextBoundary();
        if (next < 0)
            next = text.size();
        shown += QStringView(text).mid(at, next - at);
    }
    return shown;
}

} // namespace

TextFieldBinding::TextFieldBinding(controls::TextField& field, QLabel& widget)
    : Binding(field), m_widget(widget), m_interaction(widget.textInteractionFlags()) {
    const FirstState state(widget);
    field.setText(widget.text().toStdString());
    state.giveTo(field);
    mirror(field);
}

void TextFieldBinding::mirror(const controls::TextField& field) {
    const bool plain = isPlain(field.styledText());
    m_widget.setTextFormat(plain ? Qt::PlainText : Qt::RichText);
    QString text = plain ? QString::fromStdString(field.text()) : asHtml(field.styledText());
    if (plain && m_widget.wordWrap()) {
        const QString wrapped = withPlacesToWrap(text);
        // nobody should copy what can't be seen
        m_widget.setTextInteractionFlags(wrapped == text ? m_interaction : Qt::NoTextInteraction);
        text = wrapped;
    }
    m_widget.setText(text);
    m_widget.setEnabled(field.isEnabled());
    const bool collapses = m_widget.property(kCollapses).toBool();
    m_widget.setVisible(!field.isHidden() && !(collapses && field.text().empty()));
}

} // namespace ui
