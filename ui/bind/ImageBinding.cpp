#include "ui/bind/ImageBinding.h"

#include "ui/bind/FirstState.h"

namespace ui {

ImageBinding::ImageBinding(controls::ImageView& image, PictureView& widget, Pictures& pictures)
    : Binding(image), m_widget(widget), m_pictures(pictures) {
    FirstState(widget).giveTo(image);
    mirror(image);
}

void ImageBinding::mirror(const controls::ImageView& image) {
    m_widget.show(QString::fromStdString(image.picture().path), m_pictures);
    m_widget.setEnabled(image.isEnabled());
    m_widget.setVisible(!image.isHidden());
}

} // namespace ui
