// The pages of a window and their stacked widget: the model's page is the one in sight.
#pragma once

#include <QObject>
#include <QStackedWidget>

#include "platform/controls/TabView.h"
#include "ui/bind/Binding.h"

namespace ui {

class TabBinding final : public QObject, public Binding<controls::TabView> {
  public:
    /// The model takes enabling and visibility from the widget; later the widget follows the model.
    /// The widget outlives the binding.
    TabBinding(controls::TabView& tabs, QStackedWidget& widget);

    /// Are there as many pages as the model counts? Page 0 is the first one in the file.
    static bool suits(const controls::TabView& tabs, const QStackedWidget& widget) {
        return widget.count() == tabs.count();
    }

  private:
    /// Where the keyboard was on the page that goes, it comes to the first widget of the new page
    /// that takes it, or to the window's default button.
    void mirror(const controls::TabView& tabs) override;
    void drawNow() override { m_widget.repaint(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// To the first control of the page, else to the window's default button.
    void takeKeyboard();

    QStackedWidget& m_widget;
};

} // namespace ui
