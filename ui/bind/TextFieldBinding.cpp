#include "ui/bind/TextFieldBinding.h"

#include "ui/StyledHtml.h"
#include "ui/bind/FirstState.h"

namespace ui {

TextFieldBinding::TextFieldBinding(controls::TextField& field, QLabel& widget)
    : Binding(field), m_widget(widget) {
    takeFirstState(field, widget);
    field.setText(widget.text().toStdString());
    mirror(field);
}

void TextFieldBinding::mirror(const controls::TextField& field) {
    const bool plain = isPlain(field.styledText());
    m_widget.setTextFormat(plain ? Qt::PlainText : Qt::RichText);
    m_widget.setText(plain ? QString::fromStdString(field.text()) : asHtml(field.styledText()));
    m_widget.setEnabled(field.isEnabled());
    m_widget.setVisible(!field.isHidden());
}

} // namespace ui
