#include "ui/IcnsFile.h"

#include <array>
#include <cstdint>
#include <cstring>

#include <QFile>
#include <QtEndian>

namespace ui::icns {

namespace {

struct EntryType {
    char type[5];
    int pixels;
};

// The types whose data is a PNG; ic11 to ic14 are for screens of double density.
constexpr std::array<EntryType, 8> kTypes{{{"ic11", 32},
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
        if (std::memcmp(type, entry.type, 4) == 0)
            return entry.pixels;
    return 0;
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

QByteArray container(const std::vector<QByteArray>& pngs) {
    QByteArray entries;
    for (std::size_t i = 0; i < kTypes.size() && i < pngs.size(); ++i) {
        appendHeader(entries, kTypes[i].type, pngs[i].size() + kHeader);
        entries.append(pngs[i]);
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
