#include "ui/bind/TextFieldBinding.h"

#include "ui/StyledHtml.h"
#include "ui/bind/FirstState.h"

namespace ui {

TextFieldBinding::TextFieldBinding(controls::TextField& field, QLabel& widget)
    : Binding(field), m_widget(widget) {
    const FirstState state(widget);
    field.setText(widget.text().toStdString());
    state.giveTo(field);
    mirror(field);
}

void TextFieldBinding::mirror(const controls::TextField& field) {
    const bool plain = isPlain(field.styledText());
    m_widget.setTextFormat(plain ? Qt::PlainText : Qt::RichText);
    m_widget.setText(plain ? QString::fromStdString(field.text()) : asHtml(field.styledText()));
    m_widget.setEnabled(field.isEnabled());
    const bool collapses = m_widget.property(kCollapses).toBool();
    m_widget.setVisible(!field.isHidden() && !(collapses && field.text().empty()));
}

} // namespace ui
