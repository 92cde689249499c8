#include "ui/Colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ui {

namespace {

struct Appearance {
    QRgb window, base, alternate, text, secondary, disabled, button, line, accent, light, outline;
};

constexpr Appearance kLight{0xfff4f5f7, 0xffffffff, 0xfff7f8fa, 0xff1d1f23, 0xff5c616a, 0xff9a9ea6,
                            0xffffffff, 0xffc9ccd2, 0xff0071b3, 0xff0a84cc, 0xff858a93};
constexpr Appearance kDark{0xff26282c, 0xff1e2023, 0xff24262a, 0xffe6e7ea, 0xffa3a8b1, 0xff7b7f87,
                           0xff383b41, 0xff4a4e56, 0xff2478bd, 0xff4aa6e8, 0xff7b7f87};

// Rest, hover, pressed, border.
using FaceRow = std::array<QRgb, 4>;
constexpr FaceRow kAccentTint{0xff80c6f5, 0xff97d1f8, 0xff68b4e8, 0xff4398cf};
constexpr FaceRow kWhite{0xffffffff, 0xfff3f4f6, 0xffe4e6ea, 0xffc9ccd2};
constexpr FaceRow kSilver{0xffd3d6db, 0xffdfe2e6, 0xffbfc3c9, 0xffd3d6db};
constexpr FaceRow kNearBlack{0xff17191c, 0xff24272b, 0xff0e0f11, 0xff4a4e56};

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

bool isLegible(const QColor& title, const FaceRow& row) {
    return std::all_of(row.begin(), row.begin() + 3,
                       [&](QRgb face) { return contrast(title, QColor(face)) >= kLegible; });
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette paletteFor(bool dark) {
    const Appearance& c = dark ? kDark : kLight;
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {
        {QPalette::Window, c.window},    {QPalette::WindowText, c.text},
        {QPalette::Base, c.base},        {QPalette::AlternateBase, c.alternate},
        {QPalette::Text, c.text},        {QPalette::Button, c.button},
        {QPalette::ButtonText, c.text},  {QPalette::BrightText, 0xffffffff},
        {QPalette::Highlight, c.accent}, {QPalette::HighlightedText, 0xffffffff},
        {QPalette::Mid, c.line},         {QPalette::Dark, c.line},
        {QPalette::Midlight, c.button},  {QPalette::Light, c.button},
        {QPalette::Shadow, 0xff000000},  {QPalette::ToolTipBase, c.base},
        {QPalette::ToolTipText, c.text}, {QPalette::PlaceholderText, c.secondary},
        {QPalette::Link, c.light},
    };
    QPalette palette;
    for (const auto& [role, colour] : roles)
        palette.setColor(role, QColor(colour));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(c.disabled));
    return palette;
}

QColor toQColor(const controls::Colour& colour) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(colour.alpha));
}

QColor linkColour(const QPalette& palette) {
    // the accent that stands alone is too light for words on white
    return palette.color(QPalette::Active, isDark(palette) ? QPalette::Link : QPalette::Highlight);
}

QColor outline(const QPalette& palette) {
    return QColor(isDark(palette) ? kDark.outline : kLight.outline);
}

ButtonFaces buttonFaces(const QPalette& palette, bool isDefault) {
    if (isDefault) {
        // Darker, never lighter: white text must stay legible on all of them.
        const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
        return {accent, accent.darker(106), accent.darker(120), accent.darker(112)};
    }
    const bool dark = isDark(palette);
    const QColor button = palette.color(QPalette::Active, QPalette::Button);
    return {button, dark ? button.lighter(112) : button.darker(103),
            dark ? button.darker(118) : button.darker(109), palette.color(QPalette::Mid)};
}

ButtonFaces buttonFacesUnder(const QColor& title, const QPalette& palette, bool isDefault) {
    const FaceRow& plain = isDark(palette) ? kSilver : kWhite;
    const FaceRow& wanted = isDefault ? kAccentTint : plain;
    // a middle grey, which no face suits, gets the dark one
    const FaceRow& row = isLegible(title, wanted)   ? wanted
                         : isLegible(title, kWhite) ? kWhite
                                                    : kNearBlack;
    return {QColor(row[0]), QColor(row[1]), QColor(row[2]), QColor(row[3])};
}

} // namespace ui
