#include "ui/IcnsFile.h"

#include <array>
#include <cstdint>
#include <cstring>

#include <QBuffer>
#include <QFile>
#include <QtEndian>

namespace ui::icns {

namespace {

enum class Encoding { argb, png };

struct EntryType {
    char type[5];
    int pixels;
    Encoding encoding = Encoding::png;
};

// 16 to 512 points; ic11 to ic14 and ic10 are for screens of double density. A PNG of 16 or 32
// points ("icp4", "icp5") is not shown for every application, so these two are as the system's own
// tool for such files makes them.
constexpr std::array<EntryType, 10> kTypes{{{"ic04", 16, Encoding::argb},
                                            {"ic05", 32, Encoding::argb},
                                            {"ic11", 32},
                                            {"ic12", 64},
                                            {"ic07", 128},
                                            {"ic13", 256},
                                            {"ic08", 256},
                                            {"ic14", 512},
                                            {"ic09", 512},
                                            {"ic10", 1024}}};

constexpr qsizetype kHeader = 8;

int pixelsOf(const char* type) {
    for (const EntryType& entry : kTypes)
        if (entry.encoding == Encoding::png && std::memcmp(type, entry.type, 4) == 0)
            return entry.pixels;
    return 0;
}

qsizetype runAt(const QByteArray& bytes, qsizetype at) {
    qsizetype end = at;
    while (end < bytes.size() && end < at + 130 && bytes[end] == bytes[at])
        ++end;
    return end - at;
}

QByteArray packed(const QByteArray& bytes) {
    QByteArray result;
    for (qsizetype at = 0; at < bytes.size();) {
        if (const qsizetype run = runAt(bytes, at); run >= 3) {
            result.append(static_cast<char>(run + 125)).append(bytes[at]);
            at += run;
            continue;
        }
        qsizetype end = at;
        while (end < bytes.size() && end < at + 128 && runAt(bytes, end) < 3)
            ++end;
        result.append(static_cast<char>(end - at - 1)).append(bytes.mid(at, end - at));
        at = end;
    }
    return result;
}

QByteArray argb(const QImage& picture) {
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    QByteArray data("ARGB");
    for (const int shift : {24, 16, 8, 0}) {
        QByteArray channel;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                channel.append(static_cast<char>(image.pixel(x, y) >> shift & 0xff));
        data.append(packed(channel));
    }
    return data;
}

QByteArray png(const QImage& picture) {
    QByteArray data;
    QBuffer buffer(&data);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return {};
    return data;
}

void appendHeader(QByteArray& to, const char* type, qsizetype length) {
    char bytes[4];
    qToBigEndian(static_cast<std::uint32_t>(length), bytes);
    to.append(type, 4).append(bytes, 4);
}

struct Entry {
    qint64 at = 0;
    qint64 length = 0;
    int pixels = 0;
};

bool isBetter(const Entry& candidate, const Entry& best, int wanted) {
    if (best.pixels == 0)
        return true;
    if (best.pixels < wanted)
        return candidate.pixels > best.pixels;
    return candidate.pixels >= wanted && candidate.pixels < best.pixels;
}

} // namespace

std::vector<int> entrySizes() {
    std::vector<int> sizes;
    sizes.reserve(kTypes.size());
    for (const EntryType& entry : kTypes)
        sizes.push_back(entry.pixels);
    return sizes;
}

QByteArray container(const std::vector<QImage>& pictures) {
    if (pictures.size() != kTypes.size())
        return {};
    QByteArray entries;
    for (std::size_t i = 0; i < kTypes.size(); ++i) {
        const bool isRight = pictures[i].size() == QSize(kTypes[i].pixels, kTypes[i].pixels);
        const QByteArray data = !isRight                               ? QByteArray()
                                : kTypes[i].encoding == Encoding::argb ? argb(pictures[i])
                                                                       : png(pictures[i]);
        if (data.isEmpty())
            return {};
        appendHeader(entries, kTypes[i].type, data.size() + kHeader);
        entries.append(data);
    }
    QByteArray file;
    appendHeader(file, "icns", entries.size() + kHeader);
    return file.append(entries);
}

std::optional<QImage> read(const QString& path, int pixels) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.read(kHeader).startsWith("icns"))
        return {};
    Entry best;
    for (qint64 at = kHeader; at + kHeader <= file.size();) {
        file.seek(at);
        const QByteArray header = file.read(kHeader);
        if (header.size() < kHeader)
            break;
        const qint64 length = qFromBigEndian<std::uint32_t>(header.constData() + 4);
        if (length < kHeader || at + length > file.size())
            break;
        const Entry entry{at + kHeader, length - kHeader, pixelsOf(header.constData())};
        if (entry.pixels > 0 && isBetter(entry, best, pixels))
            best = entry;
        at += length;
    }
    if (best.pixels == 0)
        return {};
    file.seek(best.at);
    QImage image = QImage::fromData(file.read(best.length), "PNG");
    if (image.isNull())
        return {};
    return image;
}

} // namespace ui::icns
