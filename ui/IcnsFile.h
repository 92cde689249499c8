// The picture file of the platform, `.icns`: a container of PNG pictures, one for each size. Read
// by the front end, which wants one size and pays for that one only; written by makeIcons.
//
// Layout, all numbers big-endian: "icns", the file's length in four bytes, then entries of a
// four-character type, the entry's length with these eight bytes, and the data.
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QImage>
#include <QString>

namespace ui::icns {

/// Edge lengths in pixels of the entries that `container` wants, in file order.
std::vector<int> entrySizes();

/// A container of these PNG pictures, one for each size of `entrySizes` and in its order.
QByteArray container(const std::vector<QByteArray>& pngs);

/// The smallest picture in the file that is at least `pixels` wide, else the largest. None when the
/// file is missing or broken or holds no PNG picture.
std::optional<QImage> read(const QString& path, int pixels);

} // namespace ui::icns
