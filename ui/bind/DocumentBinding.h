// A text for reading and its browser.
#pragma once

#include "platform/controls/DocumentView.h"
#include "ui/DocumentBrowser.h"
#include "ui/bind/Binding.h"

namespace ui {

class DocumentBinding final : public Binding<controls::DocumentView> {
  public:
    /// The model takes enabling and visibility from the widget; what is shown the model says. The
    /// widget and `texts` outlive the binding.
    DocumentBinding(controls::DocumentView& document, DocumentBrowser& widget,
                    const ports::LocalizedTexts& texts);

  private:
    void mirror(const controls::DocumentView& document) override;
    void drawNow() override { m_widget.repaint(); }

    DocumentBrowser& m_widget;
};

} // namespace ui
