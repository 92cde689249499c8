// Makes a picture file of all sizes from one drawing; run by the build.
//
//   makeIcons DRAWING.svg -o PICTURE.icns
#include <cstdio>
#include <string_view>
#include <vector>

#include <QCoreApplication>
#include <QImageReader>
#include <QSaveFile>

#include "ui/IcnsFile.h"

namespace {

QImage pictureOf(const QString& drawing, int pixels) {
    QImageReader reader(drawing, "svg");
    reader.setScaledSize({pixels, pixels});
    QImage image = reader.read();
    if (image.isNull())
        std::fprintf(stderr, "makeIcons: %s: %s (drawings need Qt's SVG image plugin)\n",
                     qPrintable(drawing), qPrintable(reader.errorString()));
    return image;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 4 || std::string_view(argv[2]) != "-o") {
        std::fputs("usage: makeIcons DRAWING.svg -o PICTURE.icns\n", stderr);
        return 2;
    }
    std::vector<QImage> pictures;
    for (const int pixels : ui::icns::entrySizes()) {
        pictures.push_back(pictureOf(QString::fromLocal8Bit(argv[1]), pixels));
        if (pictures.back().isNull())
            return 1;
    }
    const QByteArray icon = ui::icns::container(pictures);
    if (icon.isEmpty()) {
        std::fprintf(stderr, "makeIcons: %s: no square pictures can be made of it\n", argv[1]);
        return 1;
    }
    QSaveFile file(QString::fromLocal8Bit(argv[3]));
    if (!file.open(QIODevice::WriteOnly) || file.write(icon) < 0 || !file.commit()) {
        std::fprintf(stderr, "makeIcons: %s: %s\n", argv[3], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
