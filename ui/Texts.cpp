#include "ui/Texts.h"

namespace ui {

QString localized(const ports::LocalizedTexts& texts, std::string_view key,
                  const QStringList& values) {
    QString text = QString::fromStdString(texts.translated(key));
    qsizetype at = 0;
    for (const QString& value : values) {
        at = text.indexOf(QLatin1String("%@"), at);
        if (at < 0)
            break;
        text.replace(at, 2, value);
        at += value.size();
    }
    return text;
}

QString TextsTranslator::translate(const char*, const char* source, const char*, int) const {
    return source ? QString::fromStdString(m_texts.translated(source)) : QString();
}

} // namespace ui
