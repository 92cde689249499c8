#include "ui/PictureView.h"

#include <QPainter>

#include "ui/Pictures.h"

namespace ui {

void PictureView::showFrom(Pictures& pictures) {
    m_pictures = &pictures;
    if (m_pictures->square(m_file, width(), devicePixelRatioF()).isNull())
        hide();
}

void PictureView::paintEvent(QPaintEvent*) {
    if (m_pictures)
        QPainter(this).drawPixmap(0, 0, m_pictures->square(m_file, width(), devicePixelRatioF()));
}

} // namespace ui
