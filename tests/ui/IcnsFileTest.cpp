// The product's picture files as the build makes them: every size that the desktop asks for, all of
// one drawing.
#include <algorithm>
#include <cstring>
#include <map>
#include <string>

#include <QFile>
#include <QImage>
#include <QtEndian>
#include <gtest/gtest.h>

#include "ui/IcnsFile.h"

namespace {

using Entries = std::map<std::string, QByteArray>;

/// The entries of a picture file by their types; fails the test where the file is not as long as it
/// says, or has a type twice.
Entries entriesOf(const QByteArray& file) {
    Entries entries;
    EXPECT_TRUE(file.startsWith("icns"));
    EXPECT_EQ(qFromBigEndian<quint32>(file.constData() + 4), file.size());
    qsizetype at = 8;
    while (at + 8 <= file.size()) {
        const qsizetype length = qFromBigEndian<quint32>(file.constData() + at + 4);
        if (length <= 8 || at + length > file.size())
            break;
        const bool isNew =
            entries.emplace(file.mid(at, 4).toStdString(), file.mid(at + 8, length - 8)).second;
        EXPECT_TRUE(isNew) << "a type stands there twice";
        at += length;
    }
    EXPECT_EQ(at, file.size()) << "a broken entry";
    return entries;
}

/// Each channel's bytes, unpacked as the format says; empty when the data is broken.
QByteArray unpacked(const QByteArray& data) {
    QByteArray bytes;
    for (qsizetype at = 4; at < data.size();) {
        const int mark = static_cast<unsigned char>(data[at++]);
        if (mark < 128 && at + mark + 1 <= data.size()) {
            bytes.append(data.mid(at, mark + 1));
            at += mark + 1;
        } else if (mark >= 128 && at < data.size()) {
            bytes.append(QByteArray(mark - 125, data[at++]));
        } else {
            return {};
        }
    }
    return bytes;
}

QImage argbPicture(const QByteArray& data, int pixels) {
    const QByteArray bytes = unpacked(data);
    const qsizetype plane = qsizetype{pixels} * pixels;
    if (!data.startsWith("ARGB") || bytes.size() != 4 * plane)
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32);
    const auto channel = [&](int number, qsizetype at) {
        return static_cast<int>(static_cast<unsigned char>(bytes[number * plane + at]));
    };
    for (qsizetype at = 0; at < plane; ++at)
        image.setPixel(static_cast<int>(at % pixels), static_cast<int>(at / pixels),
                       qRgba(channel(1, at), channel(2, at), channel(3, at), channel(0, at)));
    return image;
}

class EveryPictureFile : public testing::TestWithParam<const char*> {
  protected:
    EveryPictureFile() {
        QFile file(QString(SCRIVEL_PICTURES "/%1.icns").arg(GetParam()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        entries = entriesOf(file.readAll());
    }
    Entries entries;
};

TEST_P(EveryPictureFile, HasAPictureOfEachSizeFrom16To1024) {
    const std::map<std::string, int> sizes{{"ic11", 32},  {"ic12", 64},  {"ic07", 128},
                                           {"ic13", 256}, {"ic08", 256}, {"ic14", 512},
                                           {"ic09", 512}, {"ic10", 1024}};
    for (const auto& [type, pixels] : sizes) {
        const QImage picture = QImage::fromData(entries[type], "PNG");
        EXPECT_EQ(picture.size(), QSize(pixels, pixels)) << type;
        EXPECT_TRUE(picture.hasAlphaChannel()) << type;
    }
    EXPECT_EQ(argbPicture(entries["ic04"], 16).size(), QSize(16, 16));
    EXPECT_EQ(argbPicture(entries["ic05"], 32).size(), QSize(32, 32));
    EXPECT_EQ(entries.size(), sizes.size() + 2);
}

TEST_P(EveryPictureFile, HasTheSamePixelsInBothWaysOfWritingOneSize) {
    EXPECT_EQ(argbPicture(entries["ic05"], 32),
              QImage::fromData(entries["ic11"], "PNG").convertToFormat(QImage::Format_ARGB32));
    EXPECT_EQ(entries["ic13"], entries["ic08"]);
    EXPECT_EQ(entries["ic14"], entries["ic09"]);
}

TEST_P(EveryPictureFile, ShowsTheSameDrawingInEverySize) {
    const QImage large = QImage::fromData(entries["ic10"], "PNG");
    const QImage small = argbPicture(entries["ic04"], 16);
    const QImage shrunk = large.scaled(16, 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(small.size(), shrunk.size());
    int difference = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            difference += std::abs(qAlpha(small.pixel(x, y)) - qAlpha(shrunk.pixel(x, y)));
    EXPECT_LT(difference / 256, 24);
}

INSTANTIATE_TEST_SUITE_P(PictureFiles, EveryPictureFile,
                         testing::Values("Scrivel", "Scrivel_Folder", "Customizer"),
                         [](const auto& instance) { return instance.param; });

std::vector<QImage> pictures() {
    std::vector<QImage> result;
    for (const int pixels : ui::icns::entrySizes()) {
        result.emplace_back(pixels, pixels, QImage::Format_ARGB32);
        result.back().fill(Qt::transparent);
    }
    return result;
}

TEST(PictureFiles, PackRunsAndWhatIsNoRun) {
    auto made = pictures();
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y)
            made[0].setPixel(x, y, y < 3 ? qRgba(x, 255 - x, x % 2, 255) : qRgba(1, 2, 3, 4));
    const auto entries = entriesOf(ui::icns::container(made));
    EXPECT_EQ(argbPicture(entries.at("ic04"), 16), made[0]);
    EXPECT_EQ(argbPicture(entries.at("ic05"), 32), made[1]);
    // 1024 bytes of nothing are seven runs of 130 and one of 114, in each of the four channels
    EXPECT_EQ(entries.at("ic05").size(), 4 + 4 * 8 * 2);
}

TEST(PictureFiles, AreNotMadeOfPicturesOfOtherSizes) {
    auto wrong = pictures();
    wrong[3] = wrong[2];
    EXPECT_TRUE(ui::icns::container(wrong).isEmpty());
    auto few = pictures();
    few.pop_back();
    EXPECT_TRUE(ui::icns::container(few).isEmpty());
}

} // namespace
