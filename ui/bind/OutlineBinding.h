// An outline and its tree.
#pragma once

#include "platform/controls/OutlineView.h"
#include "ui/ComponentTree.h"
#include "ui/bind/Binding.h"
#include "ui/models/OutlineModel.h"

namespace ui {

class OutlineBinding final : public QObject, public Binding<controls::OutlineView> {
  public:
    /// The model takes enabling and visibility from the widget; later the widget follows the model,
    /// and the user's ticks and selection go to the model. The widget and `texts` outlive the
    /// binding.
    OutlineBinding(controls::OutlineView& outline, ComponentTree& widget,
                   const ports::LocalizedTexts& texts);

    /// Has the widget the columns of an outline, each with a title?
    static bool suits(const controls::OutlineView& outline, const ComponentTree& widget);

  private:
    void mirror(const controls::OutlineView& outline) override;
    void drawNow() override { m_widget.repaint(); }
    void modelDied() override { m_rows.forget(); }
    void showSelection(const controls::OutlineView& outline);

    ComponentTree& m_widget;
    OutlineModel m_rows;
    unsigned m_generation;
};

} // namespace ui
