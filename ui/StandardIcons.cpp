#include "ui/StandardIcons.h"

#include <algorithm>
#include <iterator>

#include <QBuffer>
#include <QImageReader>
#include <QPalette>

namespace ui {

namespace {

// On a field of 24 by 24; lines take the ink.
struct Drawing {
    QStyle::StandardPixmap icon;
    const char* body;
};

constexpr char kFolder[] = "<path fill='#58a6d8' stroke='none' d='M2 6a2 2 0 0 1 2-2h5l2 2.5h9a2 2 "
                           "0 0 1 2 2V18a2 2 0 0 1-2 2H4a2 2 0 0 1-2-2z'/>";
constexpr char kComputer[] = "<path d='M3 4h18v12H3z M9 20h6 M12 16v4'/>";
constexpr char kToTheLeft[] = "<path d='M15 5l-7 7 7 7'/>";
constexpr char kToTheRight[] = "<path d='M9 5l7 7-7 7'/>";
constexpr char kCross[] = "<path d='M6 6l12 12 M18 6l-12 12'/>";
constexpr char kApplication[] =
    "<rect x='3' y='3' width='18' height='18' rx='4.5' fill='#2478bd' stroke='none'/>"
    "<path stroke='#fff' d='M8 16.5l4-9 4 9 M9.5 13.5h5'/>";

constexpr Drawing kDrawings[] = {
    {QStyle::SP_DirIcon, kFolder},
    {QStyle::SP_DirClosedIcon, kFolder},
    {QStyle::SP_DirOpenIcon, kFolder},
    {QStyle::SP_DirLinkIcon, kFolder},
    {QStyle::SP_DirHomeIcon, kFolder},
    {QStyle::SP_FileIcon, "<path d='M6 3h8l4 4v14H6z M14 3v4h4'/>"},
    {QStyle::SP_ComputerIcon, kComputer},
    {QStyle::SP_DriveHDIcon, kComputer},
    {QStyle::SP_DesktopIcon, kComputer},
    {QStyle::SP_ArrowBack, kToTheLeft},
    {QStyle::SP_ArrowLeft, kToTheLeft},
    {QStyle::SP_FileDialogBack, kToTheLeft},
    {QStyle::SP_ArrowForward, kToTheRight},
    {QStyle::SP_ArrowRight, kToTheRight},
    {QStyle::SP_ArrowUp, "<path d='M5 15l7-7 7 7'/>"},
    {QStyle::SP_ArrowDown, "<path d='M5 9l7 7 7-7'/>"},
    {QStyle::SP_FileDialogToParent, "<path d='M12 20V5 M5 12l7-7 7 7'/>"},
    {QStyle::SP_FileDialogNewFolder, "<path d='M3 6h6l2 2h10v11H3z M12 10.5v6 M9 13.5h6'/>"},
    {QStyle::SP_FileDialogListView,
     "<path d='M4 5h6v6H4z M14 5h6v6h-6z M4 14h6v6H4z M14 14h6v6h-6z'/>"},
    {QStyle::SP_FileDialogDetailedView, "<path d='M4 6h16 M4 12h16 M4 18h16'/>"},
    {QStyle::SP_TitleBarCloseButton, kCross},
    {QStyle::SP_LineEditClearButton, kCross},
};

QIcon drawn(const char* body, const QColor& ink) {
    QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24' fill='none' "
                     "stroke-width='1.8' stroke-linecap='round' stroke-linejoin='round' stroke='" +
                     ink.name().toLatin1() + "'>" + body + "</svg>";
    QIcon icon;
    for (const int pixels : {16, 24, 32, 48, 64}) {
        QBuffer buffer(&svg);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer, "svg");
        reader.setScaledSize({pixels, pixels});
        icon.addPixmap(QPixmap::fromImage(reader.read()));
    }
    return icon;
}

} // namespace

QIcon standardIconOf(QStyle::StandardPixmap icon, const QPalette& palette) {
    const auto* drawing = std::ranges::find(kDrawings, icon, &Drawing::icon);
    return drawing == std::end(kDrawings)
               ? QIcon()
               : drawn(drawing->body, palette.color(QPalette::PlaceholderText));
}

QIcon applicationIcon() {
    return drawn(kApplication, Qt::white);
}

} // namespace ui
