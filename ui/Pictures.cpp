#include "ui/Pictures.h"

#include <QDir>

#include "ui/IcnsFile.h"

namespace ui {

QPixmap Pictures::square(const QString& file, int points, qreal ratio) {
    const int pixels = qRound(points * ratio);
    QPixmap& pixmap = m_byPixels[{file, pixels}];
    if (pixmap.isNull()) {
        auto image = icns::read(QDir(m_resourceFolder).absoluteFilePath(file), pixels);
        if (!image)
            return {};
        if (image->width() != pixels)
            *image = image->scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        pixmap = QPixmap::fromImage(std::move(*image));
    }
    // the same pixels may be wanted at one density for the screen and at another for an icon
    QPixmap dense = pixmap;
    dense.setDevicePixelRatio(ratio);
    return dense;
}

} // namespace ui
