#include "ui/StyledHtml.h"

#include <algorithm>
#include <vector>

#include <QStringList>

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

QString span(const QString& style, const QString& words) {
    return words.isEmpty() ? words
                           : "<span style=\"" + style + "\">" + words.toHtmlEscaped() + "</span>";
}

QString styleOf(const controls::TextRun& run, bool bold) {
    return (run.colour ? "color:" + cssColour(*run.colour) + ';' : QString()) +
           (bold ? "font-weight:600;" : "");
}

/// One line of a text, piece by piece. A bullet at its beginning and the blanks after it look alike
/// in every line, so that what they lead to begins at the same place all the way down: one weight,
/// and blanks of a format of their own, because the toolkit rounds the width of what has one
/// format.
class Paragraph {
  public:
    void add(const controls::TextRun& run, const QString& piece) {
        qsizetype at = 0;
        if (m_html.isEmpty() && piece.startsWith(kBullet)) {
            m_html += span(styleOf(run, true), piece.left(++at));
            m_isInLead = true;
        }
        const qsizetype blanks = at;
        while (m_isInLead && at < piece.size() && piece[at] == ' ')
            ++at;
        m_isInLead = m_isInLead && at == piece.size();
        m_html += span("color:transparent", piece.mid(blanks, at - blanks));
        m_html += span(styleOf(run, run.bold), piece.mid(at));
    }
    bool isEmpty() const { return m_html.isEmpty(); }
    QString html(double spacing) const {
        return QStringLiteral("<p style=\"%1margin:0 0 %2px 0;white-space:pre-wrap\">%3</p>")
            .arg(m_html.isEmpty() ? "-qt-paragraph-type:empty;" : "")
            .arg(spacing)
            .arg(m_html);
    }

  private:
    static constexpr QChar kBullet = u'\u2022';

    QString m_html;
    bool m_isInLead = false;
};

} // namespace

bool isPlain(const controls::StyledText& text) {
    return text.paragraphSpacing == 0 &&
           std::ranges::none_of(text.runs, [](const controls::TextRun& run) {
               return run.colour.has_value() || run.bold;
           });
}

QString asHtml(const controls::StyledText& text) {
    std::vector<Paragraph> paragraphs(1);
    for (const controls::TextRun& run : text.runs) {
        const QStringList lines = QString::fromStdString(run.text).split('\n');
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (i > 0)
                paragraphs.emplace_back();
            paragraphs.back().add(run, lines[i]);
        }
    }
    if (paragraphs.back().isEmpty())
        paragraphs.pop_back();
    QString html;
    for (const Paragraph& paragraph : paragraphs)
        html += paragraph.html(text.paragraphSpacing);
    return html;
}

} // namespace ui
