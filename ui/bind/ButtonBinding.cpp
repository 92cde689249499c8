#include "ui/bind/ButtonBinding.h"

#include <QEvent>

#include "ui/Colours.h"
#include "ui/Keys.h"
#include "ui/Theme.h"
#include "ui/bind/FirstState.h"

namespace ui {

ButtonBinding::ButtonBinding(controls::Button& button, QPushButton& widget)
    : Binding(button), m_widget(widget) {
    // read first: the state may be told at once, and the widget mirrors the model's empty title
    // then
    const std::string title = widget.text().toStdString();
    takeFirstState(button, widget);
    button.setTitle(title);
    mirror(button);
    connect(&widget, &QPushButton::clicked, this, [this] {
        if (model())
            model()->press();
    });
    widget.installEventFilter(this);
}

void ButtonBinding::mirror(const controls::Button& button) {
    const auto& runs = button.attributedTitle().runs;
    const auto first = runs.empty() ? controls::TextRun{} : runs.front();
    const QVariant colour = first.colour ? QVariant(toQColor(*first.colour)) : QVariant();
    if (m_widget.property(kTitleColour) != colour) {
        m_widget.setProperty(kTitleColour, colour);
        m_widget.update();
    }
    QFont font = m_widget.font();
    font.setBold(first.bold);
    if (font != m_widget.font())
        m_widget.setFont(font);
    // "&" marks a shortcut in a widget's text; a model's title has none
    m_widget.setText(QString::fromStdString(button.title()).replace('&', "&&"));
    m_widget.setEnabled(button.isEnabled());
    m_widget.setVisible(!button.isHidden());
}

bool ButtonBinding::eventFilter(QObject* watched, QEvent* event) {
    return isHeldReturn(*event) || QObject::eventFilter(watched, event);
}

} // namespace ui
