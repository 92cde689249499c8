// The picture file of the platform, `.icns`: a container of pictures, one for each size. Read by
// the front end, which wants one size and pays for that one only; written by makeIcons.
//
// Layout, all numbers big-endian: "icns", the file's length in four bytes, then entries of a
// four-character type, the entry's length with these eight bytes, and the data. The data is a PNG,
// but for the two smallest, "ic04" and "ic05": theirs is "ARGB" and the four channels one after the
// other, not multiplied by alpha, each packed by itself. A packed byte N below 128 stands before
// N + 1 bytes as they are, any other before the one byte that is there N - 125 times.
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QImage>
#include <QString>

namespace ui::icns {

/// Edge lengths in pixels of the entries that `container` wants, in file order.
std::vector<int> entrySizes();

/// A container of these pictures, one for each size of `entrySizes`, in its order and of that size;
/// empty when one of them can't be encoded.
QByteArray container(const std::vector<QImage>& pictures);

/// The smallest picture in the file that is at least `pixels` wide, else the largest. Looks only at
/// entries with a PNG. None when the file is missing or broken or holds no such picture.
std::optional<QImage> read(const QString& path, int pixels);

} // namespace ui::icns
