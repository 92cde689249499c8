// A picture model and its view.
#pragma once

#include "platform/controls/ImageView.h"
#include "ui/PictureView.h"
#include "ui/bind/Binding.h"

namespace ui {

class ImageBinding final : public Binding<controls::ImageView> {
  public:
    /// The model takes enabling and visibility from the widget, which shows the model's picture
    /// from now on, nothing while there is none. The widget and `pictures` outlive the binding.
    ImageBinding(controls::ImageView& image, PictureView& widget, Pictures& pictures);

  private:
    void mirror(const controls::ImageView& image) override;
    void drawNow() override { m_widget.repaint(); }

    PictureView& m_widget;
    Pictures& m_pictures;
};

} // namespace ui
