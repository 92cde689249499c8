#include "ui/bind/TextFieldBinding.h"

#include <algorithm>

#include "ui/Colours.h"
#include "ui/bind/FirstState.h"

namespace ui {

namespace {

bool isPlain(const controls::StyledText& text) {
    return std::ranges::none_of(
        text.runs, [](const controls::TextRun& run) { return run.colour.has_value() || run.bold; });
}

QString asHtml(const controls::StyledText& text) {
    QString html;
    for (const controls::TextRun& run : text.runs) {
        QString style;
        if (run.colour)
            style += "color:" + toQColor(*run.colour).name() + ';';
        if (run.bold)
            style += "font-weight:600;";
        html += "<span style=\"" + style + "\">" +
                QString::fromStdString(run.text).toHtmlEscaped().replace('\n', "<br>") + "</span>";
    }
    return html;
}

} // namespace

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
