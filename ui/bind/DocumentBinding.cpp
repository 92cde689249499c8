#include "ui/bind/DocumentBinding.h"

#include "ui/bind/FirstState.h"

namespace ui {

DocumentBinding::DocumentBinding(controls::DocumentView& document, DocumentBrowser& widget,
                                 const ports::LocalizedTexts& texts)
    : Binding(document), m_widget(widget) {
    widget.speak(texts);
    FirstState(widget).giveTo(document);
    mirror(document);
}

void DocumentBinding::mirror(const controls::DocumentView& document) {
    if (document.file().empty())
        m_widget.showText(document.text());
    else
        m_widget.showFile(QString::fromStdString(document.file()));
    m_widget.setEnabled(document.isEnabled());
    m_widget.setVisible(!document.isHidden());
}

} // namespace ui
