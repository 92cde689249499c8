// The look: a thin style over Fusion with the palettes of Colours and our own fonts, the same on
// every desktop. Installed once by the front end; knows no window.
#pragma once

#include <QProxyStyle>

class QApplication;

namespace ui {

/// Dynamic property of a button: the colour that its title carries (QColor). Without it the title
/// has the appearance's colour.
inline constexpr char kTitleColour[] = "titleColour";

/// Dynamic property of a widget, also in interface files: the name of a row in Theme's table of
/// looks ("title", "body", "strong", "status", "secondary", "raised", "line").
inline constexpr char kLook[] = "look";

class Theme final : public QProxyStyle {
  public:
    /// Style, palette and font for the whole program.
    static void install(QApplication& application, bool dark);

    Theme();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace ui
