#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include "tests/ui/Stage.h"
#include "ui/Colours.h"
#include "ui/IcnsFile.h"
#include "ui/Indicators.h"
#include "ui/Pictures.h"
#include "ui/Theme.h"

using stage::front;
using ui::contrast;
using ui::kLegible;

namespace {

std::vector<QColor> facesOf(const ui::ButtonFaces& faces) {
    return {faces.rest, faces.hover, faces.pressed};
}

QColor faceOnScreen(QPushButton& button) {
    const QImage image = button.grab().toImage();
    return image.pixelColor(image.width() / 2, 5 * image.height() / button.height());
}

} // namespace

TEST(Contrast, IsThatOfTheKnownPairs) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.001);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

class EveryAppearance : public testing::TestWithParam<bool> {
  protected:
    QPalette palette = ui::paletteFor(GetParam());
    QColor colour(QPalette::ColorRole role) const { return palette.color(QPalette::Active, role); }
};

TEST_P(EveryAppearance, HasLegibleTexts) {
    for (const auto ground : {QPalette::Window, QPalette::Base})
        for (const auto text : {QPalette::WindowText, QPalette::Text, QPalette::PlaceholderText})
            EXPECT_GE(contrast(colour(text), colour(ground)), kLegible)
                << int(text) << " on " << int(ground);
}

TEST_P(EveryAppearance, HasLegibleButtonTitles) {
    for (const QColor& face : facesOf(ui::buttonFaces(palette, false)))
        EXPECT_GE(contrast(colour(QPalette::ButtonText), face), kLegible)
            << face.name().toStdString();
    for (const QColor& face : facesOf(ui::buttonFaces(palette, true)))
        EXPECT_GE(contrast(Qt::white, face), kLegible) << face.name().toStdString();
}

TEST_P(EveryAppearance, PutsATitleOfItsOwnColourOnAFaceThatSuitsIt) {
    const QColor white(Qt::white);
    for (const bool isDefault : {false, true})
        for (const QColor& title :
             {QColor(Qt::black), QColor(0x80, 0, 0), QColor(0, 0x40, 0x80), white})
            for (const QColor& face : facesOf(ui::buttonFacesUnder(title, palette, isDefault))) {
                EXPECT_GE(contrast(title, face), kLegible)
                    << title.name().toStdString() << " on " << face.name().toStdString();
                EXPECT_EQ(face.lightness() > 128, title != white);
            }
}

TEST_P(EveryAppearance, ShowsProgressThatStandsOut) {
    EXPECT_GE(contrast(colour(QPalette::Link), colour(QPalette::Window)), 3);
}

TEST_P(EveryAppearance, ShowsBoxesRingsAndSlidersThatStandOut) {
    for (const auto ground : {QPalette::Window, QPalette::Base}) {
        EXPECT_GE(contrast(ui::outline(palette), colour(ground)), ui::kVisible) << int(ground);
        EXPECT_GE(contrast(colour(QPalette::Link), colour(ground)), ui::kVisible) << int(ground);
        EXPECT_GE(contrast(colour(QPalette::Highlight), colour(ground)), ui::kVisible)
            << int(ground);
    }
    // a mark on the accent, and the box of a selected row
    EXPECT_GE(contrast(Qt::white, colour(QPalette::Highlight)), kLegible);
    EXPECT_GE(contrast(colour(QPalette::HighlightedText), colour(QPalette::Highlight)), kLegible);
}

TEST_P(EveryAppearance, HasLinksInTextsThatAreLegible) {
    EXPECT_GE(contrast(ui::linkColour(palette), colour(QPalette::Base)), kLegible);
}

TEST_P(EveryAppearance, DrawsEveryStateOfABoxDifferently) {
    std::vector<QImage> pictures;
    for (const auto state : {QStyle::State_Off, QStyle::State_On, QStyle::State_NoChange})
        for (const auto selected : {QStyle::State_None, QStyle::State_Selected})
            for (const auto enabled : {QStyle::State_None, QStyle::State_Enabled}) {
                QImage picture(20, 20, QImage::Format_ARGB32_Premultiplied);
                picture.fill(colour(selected ? QPalette::Highlight : QPalette::Base));
                QStyleOption option;
                option.rect = picture.rect();
                option.palette = palette;
                option.state = state | selected | enabled;
                QPainter painter(&picture);
                ui::drawIndicator(ui::Indicator::checkBox, option, painter);
                painter.end();
                EXPECT_THAT(pictures, testing::Not(testing::Contains(picture)));
                pictures.push_back(picture);
            }
}

TEST_P(EveryAppearance, DrawsABlackTitleLegibly) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette);
    {
        stage::InstallerModels models;
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
        models.setBlackTitle("Install");
        models.window.orderFront();
        auto* button = stage::dialogOnScreen()->findChild<QPushButton*>("m_button");
        EXPECT_GE(contrast(Qt::black, faceOnScreen(*button)), kLegible);
        models.m_progressIndicator.startAnimation();
        EXPECT_GE(contrast(Qt::black, faceOnScreen(*button)), kLegible);
    }
    QApplication::setPalette(before);
}

INSTANTIATE_TEST_SUITE_P(Look, EveryAppearance, testing::Bool(),
                         [](const auto& instance) { return instance.param ? "Dark" : "Light"; });

TEST(Look, PrefersItsOwnFonts) {
    EXPECT_EQ(QApplication::font().families().first(), "Inter");
    EXPECT_EQ(QApplication::font().families().mid(1, 3),
              QStringList({"Noto Sans", "Cantarell", "DejaVu Sans"}));
}

TEST(PictureFiles, GiveTheSmallestPictureThatIsLargeEnough) {
    const QString path = SCRIVEL_PICTURES "/Scrivel.icns";
    for (const auto& [wanted, given] : {std::pair{16, 32},
                                        {32, 32},
                                        {100, 128},
                                        {128, 128},
                                        {129, 256},
                                        {256, 256},
                                        {700, 1024},
                                        {4000, 1024}}) {
        const auto image = ui::icns::read(path, wanted);
        ASSERT_TRUE(image);
        EXPECT_EQ(image->size(), QSize(given, given));
    }
}

TEST(Pictures, ServeTheSamePixelsAtEveryDensity) {
    ui::Pictures pictures(SCRIVEL_PICTURES);
    EXPECT_EQ(pictures.square("Scrivel.icns", 128, 1).deviceIndependentSize(), QSizeF(128, 128));
    const QPixmap dense = pictures.square("Scrivel.icns", 64, 2);
    EXPECT_EQ(dense.size(), QSize(128, 128));
    EXPECT_EQ(dense.deviceIndependentSize(), QSizeF(64, 64));
    EXPECT_EQ(pictures.square("Scrivel.icns", 100, 1).size(), QSize(100, 100));
    EXPECT_TRUE(pictures.square("Missing.icns", 64, 1).isNull());
}

TEST(PictureFiles, HoldEveryPictureOfTheProduct) {
    for (const char* name : {"Scrivel", "Scrivel_Folder", "Customizer"})
        EXPECT_TRUE(ui::icns::read(QString(SCRIVEL_PICTURES "/%1.icns").arg(name), 512)) << name;
}

TEST(PictureFiles, AreNoneWhenMissingOrBroken) {
    const auto read = [](const QByteArray& content) {
        front().resources.write("Broken.icns", content);
        return ui::icns::read(QString::fromStdString(front().resources.folder()) + "/Broken.icns",
                              128);
    };
    EXPECT_FALSE(ui::icns::read("/no/such/picture.icns", 128));
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read("not a picture file"));
    EXPECT_FALSE(read(QByteArray::fromHex("69636e7300000008")));
    // an entry longer than the file, one shorter than its own header, one that is no picture
    EXPECT_FALSE(read(QByteArray("icns\0\0\0\x20ic07\xff\xff\xff\xffxxxxxxxx", 24)));
    EXPECT_FALSE(read(QByteArray("icns\0\0\0\x20ic07\0\0\0\x01xxxxxxxx", 24)));
    EXPECT_FALSE(read(QByteArray("icns\0\0\0\x18ic07\0\0\0\x10xxxxxxxx", 24)));
}
