#include "ui/Texts.h"

#include <QRegularExpression>

namespace ui {

QString localized(const ports::LocalizedTexts& texts, ports::TextKey key,
                  const QStringList& values) {
    static const QRegularExpression place("%(?:([0-9]+)\\$)?@");
    const QString text = QString::fromStdString(texts.lookUp(key));
    QString result;
    qsizetype from = 0, next = 0;
    for (auto places = place.globalMatch(text); places.hasNext();) {
        const QRegularExpressionMatch at = places.next();
        const qsizetype value = at.hasCaptured(1) ? at.capturedView(1).toLongLong() - 1 : next++;
        result += QStringView(text).mid(from, at.capturedStart() - from);
        result += values.value(value, at.captured());
        from = at.capturedEnd();
    }
    result += QStringView(text).mid(from);
    return result;
}

QString TextsTranslator::translate(const char*, const char* source, const char*, int) const {
    const QString english = QString::fromUtf8(source);
    const QString text = QString::fromStdString(m_texts.translated(english.toStdString()));
    return text == english ? QString() : text;
}

} // namespace ui
