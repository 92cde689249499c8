#include "ui/StyledHtml.h"

#include <algorithm>

#include "ui/Colours.h"

namespace ui {

namespace {

QString cssColour(const controls::Colour& colour) {
    const QColor c = toQColor(colour);
    if (c.alpha() == 255)
        return c.name();
    return QStringLiteral("rgba(%1,%2,%3,%4%)")
        .arg(c.red())
        .arg(c.green())
        .arg(c.blue())
        .arg(qRound(c.alphaF() * 100));
}

QString span(const controls::TextRun& run, const QString& line) {
    QString style;
    if (run.colour)
        style += "color:" + cssColour(*run.colour) + ';';
    if (run.bold)
        style += "font-weight:600;";
    return "<span style=\"" + style + "\">" + line.toHtmlEscaped() + "</span>";
}

} // namespace

bool isPlain(const controls::StyledText& text) {
    return text.paragraphSpacing == 0 &&
           std::ranges::none_of(text.runs, [](const controls::TextRun& run) {
               return run.colour.has_value() || run.bold;
           });
}

QString asHtml(const controls::StyledText& text) {
    QStringList paragraphs{QString()};
    for (const controls::TextRun& run : text.runs) {
        const QStringList lines = QString::fromStdString(run.text).split('\n');
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (i > 0)
                paragraphs.append(QString());
            if (!lines[i].isEmpty())
                paragraphs.last() += span(run, lines[i]);
        }
    }
    if (paragraphs.last().isEmpty())
        paragraphs.removeLast();
    QString html;
    for (const QString& paragraph : paragraphs)
        html += QStringLiteral("<p style=\"%1margin:0 0 %2px 0;white-space:pre-wrap\">%3</p>")
                    .arg(paragraph.isEmpty() ? "-qt-paragraph-type:empty;" : "")
                    .arg(text.paragraphSpacing)
                    .arg(paragraph);
    return html;
}

} // namespace ui
