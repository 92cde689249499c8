// The pictures in the bundle's resources and elsewhere, each size decoded once.
#pragma once

#include <map>
#include <utility>

#include <QPixmap>
#include <QString>

namespace ui {

class Pictures {
  public:
    explicit Pictures(QString resourceFolder) : m_resourceFolder(std::move(resourceFolder)) {}

    /// The picture `file` (an .icns; a path that is not absolute lies in the resources) for a
    /// square of `points`, at the density `ratio` of the screen. Null when there is no such
    /// picture.
    QPixmap square(const QString& file, int points, qreal ratio);

  private:
    QString m_resourceFolder;
    std::map<std::pair<QString, int>, QPixmap> m_byPixels;
};

} // namespace ui
