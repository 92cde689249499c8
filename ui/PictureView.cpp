#include "ui/PictureView.h"

#include <QPainter>

#include "ui/Pictures.h"

namespace ui {

void PictureView::showFrom(Pictures& pictures) {
    m_pictures = &pictures;
    if (m_pictures->square(m_file, width(), devicePixelRatioF()).isNull())
        hide();
}

void PictureView::show(const QString& file, Pictures& pictures) {
    m_pictures = &pictures;
    if (m_file == file)
        return;
    m_file = file;
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    if (m_pictures && !m_file.isEmpty())
        QPainter(this).drawPixmap(0, 0, m_pictures->square(m_file, width(), devicePixelRatioF()));
}

} // namespace ui
