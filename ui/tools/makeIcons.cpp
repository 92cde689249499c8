// Makes a picture file of all sizes from one drawing; run by the build.
//
//   makeIcons DRAWING.svg -o PICTURE.icns
#include <cstdio>
#include <string_view>
#include <vector>

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QSaveFile>

#include "ui/IcnsFile.h"

namespace {

QByteArray pngOf(const QString& drawing, int pixels) {
    QImageReader reader(drawing, "svg");
    reader.setScaledSize({pixels, pixels});
    const QImage image = reader.read();
    QByteArray png;
    QBuffer buffer(&png);
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
        std::fprintf(stderr, "makeIcons: %s: %s (drawings need Qt's SVG image plugin)\n",
                     qPrintable(drawing), qPrintable(reader.errorString()));
        return {};
    }
    return png;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 4 || std::string_view(argv[2]) != "-o") {
        std::fputs("usage: makeIcons DRAWING.svg -o PICTURE.icns\n", stderr);
        return 2;
    }
    std::vector<QByteArray> pngs;
    for (const int pixels : ui::icns::entrySizes()) {
        pngs.push_back(pngOf(QString::fromLocal8Bit(argv[1]), pixels));
        if (pngs.back().isEmpty())
            return 1;
    }
    QSaveFile file(QString::fromLocal8Bit(argv[3]));
    if (!file.open(QIODevice::WriteOnly) || file.write(ui::icns::container(pngs)) < 0 ||
        !file.commit()) {
        std::fprintf(stderr, "makeIcons: %s: %s\n", argv[3], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
