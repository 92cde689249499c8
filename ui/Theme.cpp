#include "ui/Theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

#include "ui/Colours.h"
#include "ui/Indicators.h"
#include "ui/StandardIcons.h"

namespace ui {

namespace {

constexpr qreal kRadius = 6;
constexpr int kButtonHeight = 32;
constexpr int kButtonWidth = 96;
constexpr int kRowHeight = 26;

struct Look {
    const char* name = nullptr;
    /// What the widget's text and ground take their colour from.
    QPalette::ColorRole text = QPalette::WindowText;
    QPalette::ColorRole ground = QPalette::Window;
    qreal pointSize = 10;
    QFont::Weight weight = QFont::Normal;
};

constexpr Look kLooks[] = {
    {"title", QPalette::WindowText, QPalette::Window, 22, QFont::DemiBold},
    {"body", QPalette::WindowText, QPalette::Window, 10.5},
    {"strong", QPalette::WindowText, QPalette::Window, 10.5, QFont::DemiBold},
    {"status", QPalette::WindowText, QPalette::Window, 10.5},
    {"secondary", QPalette::PlaceholderText, QPalette::Window},
    {"raised", QPalette::WindowText, QPalette::Base},
    {"line", QPalette::Mid, QPalette::Window},
};

QColor titleColour(const QWidget* widget) {
    return widget ? widget->property(kTitleColour).value<QColor>() : QColor();
}

bool isDefault(const QStyleOption* option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button && (button->features & QStyleOptionButton::DefaultButton);
}

ButtonFaces facesFor(const QStyleOption* option, const QWidget* widget) {
    if (!(option->state & QStyle::State_Enabled)) {
        const QColor window = option->palette.color(QPalette::Window);
        const QColor face = window.lightness() < 128 ? window.lighter(118) : window.darker(102);
        return {face, face, face, option->palette.color(QPalette::Mid)};
    }
    const QColor colour = titleColour(widget);
    return colour.isValid() ? buttonFacesUnder(colour, option->palette, isDefault(option))
                            : buttonFaces(option->palette, isDefault(option));
}

void drawButtonFace(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    const ButtonFaces faces = facesFor(option, widget);
    const bool down = option->state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hover = option->state & QStyle::State_MouseOver;
    const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(faces.border, 1));
    painter->setBrush(down ? faces.pressed : hover ? faces.hover : faces.rest);
    painter->drawRoundedRect(frame, kRadius, kRadius);
    const auto byKeyboard = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((option->state & byKeyboard) == byKeyboard) {
        const bool light = faces.rest.lightness() >= 128;
        painter->setPen(QPen(light ? QColor(0x00, 0x4b, 0x80) : QColor(255, 255, 255, 200), 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(frame.adjusted(2.5, 2.5, -2.5, -2.5), kRadius - 2, kRadius - 2);
    }
    painter->restore();
}

void drawField(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(option->palette.color(QPalette::Base));
    painter->drawRoundedRect(QRectF(option->rect), kRadius - 1, kRadius - 1);
    painter->restore();
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (frame && frame->lineWidth > 0)
        QApplication::style()->drawPrimitive(QStyle::PE_FrameLineEdit, option, painter, widget);
}

/// Flat, with a line below that stands for the whole header.
void drawHeaderGround(const QStyleOption* option, QPainter* painter) {
    painter->save();
    painter->fillRect(option->rect, option->palette.color(QPalette::AlternateBase));
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
    painter->restore();
}

/// The ground of a menu bar with the line below it that parts it from the window.
void drawMenuBarGround(const QStyleOption* option, QPainter* painter) {
    painter->save();
    painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
    painter->restore();
}

/// An open menu: raised above a dark window by a lighter ground, above a light one by its edge.
void drawMenuGround(const QStyleOption* option, QPainter* painter) {
    painter->save();
    painter->setPen(outline(option->palette));
    painter->setBrush(option->palette.color(QPalette::Active, QPalette::Button));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

/// A menu's name in the bar, on the accent while its menu is open.
void drawMenuBarItem(const QStyleOptionMenuItem& item, QPainter* painter) {
    drawMenuBarGround(&item, painter);
    const bool open = item.state & (QStyle::State_Sunken | QStyle::State_Selected);
    painter->save();
    if (open) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(item.palette.color(QPalette::Active, QPalette::Highlight));
        painter->drawRoundedRect(QRectF(item.rect).adjusted(2, 3, -2, -4), kRadius - 2,
                                 kRadius - 2);
    }
    const bool enabled = item.state & QStyle::State_Enabled;
    QApplication::style()->drawItemText(
        painter, item.rect, Qt::AlignCenter | Qt::TextHideMnemonic | Qt::TextSingleLine,
        item.palette, enabled, item.text, open ? QPalette::HighlightedText : QPalette::WindowText);
    painter->restore();
}

} // namespace

Theme::Theme() : QProxyStyle("fusion") {}

void Theme::install(QApplication& application, bool dark) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setFamilies(QStringList{"Inter", "Noto Sans", "Cantarell", "DejaVu Sans"} +
                     font.families());
    font.setPointSizeF(10);
    QApplication::setFont(font);
    QApplication::setPalette(paletteFor(dark));
    application.setStyle(new Theme);
}

void Theme::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QPushButton*>(widget))
        widget->setAttribute(Qt::WA_Hover);
    const QString name = widget->property(kLook).toString();
    for (const Look& look : kLooks) {
        if (name != QLatin1String(look.name))
            continue;
        QFont font = QApplication::font();
        font.setPointSizeF(look.pointSize);
        font.setWeight(look.weight);
        widget->setFont(font);
        const QPalette appearance = QApplication::palette();
        QPalette palette = widget->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::WindowText, appearance.color(group, look.text));
        palette.setColor(QPalette::Disabled, QPalette::WindowText,
                         appearance.color(QPalette::Disabled, QPalette::WindowText));
        palette.setColor(QPalette::Window, appearance.color(look.ground));
        widget->setPalette(palette);
    }
}

int Theme::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kIndicatorSize;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
    case PM_HeaderMargin:
        return 8;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QAbstractScrollArea*>(widget) ||
                       qobject_cast<const QLineEdit*>(widget)
                   ? kFrameWidth
                   : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ScrollBarExtent:
        return kScrollBarExtent;
    case PM_FocusFrameHMargin:
        return 5; // in lists: between the cell's edge and its text
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Theme::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* answer) const {
    switch (hint) {
    case SH_UnderlineShortcut:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_DialogButtonLayout:
        return QDialogButtonBox::MacLayout; // the same order on every desktop
    case SH_ItemView_ArrowKeysNavigateIntoChildren:
    case SH_ItemView_ShowDecorationSelected:
        return 1; // arrows go to a row's parent; a selected row is marked from edge to edge
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QSize Theme::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    const QSize plain = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton)
        return plain.expandedTo({plain.width() + 20, kButtonHeight}).expandedTo({kButtonWidth, 0});
    if (type == CT_LineEdit)
        return plain.expandedTo({0, kButtonHeight});
    if (type == CT_ItemViewItem)
        return plain.expandedTo({0, kRowHeight});
    if (type == CT_HeaderSection)
        return plain.expandedTo({0, kRowHeight + 2});
    if (type == CT_MenuItem || type == CT_MenuBarItem)
        return plain + QSize(4, 6);
    return plain;
}

void Theme::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element == PE_PanelButtonCommand)
        return drawButtonFace(option, painter, widget);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawIndicator(Indicator::checkBox, *option, *painter);
    case PE_IndicatorRadioButton:
        return drawIndicator(Indicator::radioButton, *option, *painter);
    case PE_Frame:
    case PE_FrameLineEdit:
        return drawFrame(*option, *painter);
    case PE_PanelMenu:
        return drawMenuGround(option, painter);
    case PE_IndicatorBranch:
        return drawBranch(*option, *painter);
    case PE_PanelLineEdit:
        return drawField(option, painter, widget);
    case PE_FrameFocusRect:
        if (qobject_cast<const QPushButton*>(widget))
            return; // the face has its own ring
        if (const auto* ring = qstyleoption_cast<const QStyleOptionFocusRect*>(option))
            return drawFocusRing(*ring, *painter);
        return;
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QRect Theme::subElementRect(SubElement element, const QStyleOption* option,
                            const QWidget* widget) const {
    const QRect plain = QProxyStyle::subElementRect(element, option, widget);
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element != SE_ItemViewItemCheckIndicator || !item || !item->text.isEmpty())
        return plain;
    // a box that is alone in its cell stands in the middle
    return alignedRect(option->direction, Qt::AlignCenter, plain.size(), option->rect);
}

QRect Theme::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect slider = scrollBarSlider(*bar);
    const bool upright = bar->orientation == Qt::Vertical;
    QRect rect;
    switch (part) {
    case SC_ScrollBarSlider:
        rect = slider;
        break;
    case SC_ScrollBarGroove:
        rect = bar->rect;
        break;
    case SC_ScrollBarSubPage:
        rect = bar->rect;
        upright ? rect.setBottom(slider.top() - 1) : rect.setRight(slider.left() - 1);
        break;
    case SC_ScrollBarAddPage:
        rect = bar->rect;
        upright ? rect.setTop(slider.bottom() + 1) : rect.setLeft(slider.right() + 1);
        break;
    default:
        return {}; // no buttons
    }
    return visualRect(bar->direction, bar->rect, rect);
}

QIcon Theme::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
    const QIcon own = standardIconOf(icon, QApplication::palette());
    return own.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : own;
}

void Theme::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar)
        return drawScrollBar(*bar, subControlRect(control, option, SC_ScrollBarSlider, widget),
                             *painter);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void Theme::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button && (button->state & State_Enabled)) {
        const QColor own = titleColour(widget);
        QStyleOptionButton coloured = *button;
        if (own.isValid())
            coloured.palette.setColor(QPalette::ButtonText, own);
        else if (isDefault(option))
            coloured.palette.setColor(QPalette::ButtonText, Qt::white);
        return QProxyStyle::drawControl(element, &coloured, painter, widget);
    }
    if (element == CE_MenuBarEmptyArea)
        return drawMenuBarGround(option, painter);
    if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        element == CE_MenuBarItem && item)
        return drawMenuBarItem(*item, painter);
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea)
        return drawHeaderGround(option, painter);
    QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace ui
