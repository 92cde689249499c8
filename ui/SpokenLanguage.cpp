#include "ui/SpokenLanguage.h"

#include <tuple>

#include <QApplication>
#include <QLibraryInfo>

namespace ui {

QLocale SpokenLanguage::localeFor(const std::string& tag, const QLocale& system) {
    const QLocale usual(QString::fromStdString(tag));
    const bool same = system.language() == usual.language() && system.script() == usual.script();
    return same ? QLocale(system.language(), system.script(), system.territory()) : usual;
}

SpokenLanguage::SpokenLanguage(const std::string& tag)
    : m_directionBefore(QApplication::layoutDirection()) {
    const QLocale locale = localeFor(tag, QLocale::system());
    QLocale::setDefault(locale);
    QApplication::setLayoutDirection(locale.textDirection());
    const QString file = "qtbase_" + QString::fromStdString(tag);
    if (m_toolkitTexts.load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&m_toolkitTexts);
}

SpokenLanguage::~SpokenLanguage() {
    QApplication::removeTranslator(&m_toolkitTexts);
    QApplication::setLayoutDirection(m_directionBefore);
    QLocale::setDefault(m_localeBefore);
}

} // namespace ui
