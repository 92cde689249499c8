// What the toolkit itself has to know of the language that the program speaks: its own texts, the
// direction of reading and the form of numbers. Made with the application object; undoes it all in
// the end. Main thread only.
#pragma once

#include <string>

#include <QLocale>
#include <QTranslator>

namespace ui {

class SpokenLanguage {
  public:
    /// `tag` as ports::LocalizedTexts has it. The toolkit's own texts stay English where it has no
    /// translation.
    explicit SpokenLanguage(const std::string& tag);
    ~SpokenLanguage();
    SpokenLanguage(const SpokenLanguage&) = delete;
    SpokenLanguage& operator=(const SpokenLanguage&) = delete;

    /// The locale for numbers: the user's own (`system`) when it is of that language, as
    /// countries differ ("1'000" in Zürich); else the language's usual one.
    static QLocale localeFor(const std::string& tag, const QLocale& system);

  private:
    QLocale m_localeBefore;
    Qt::LayoutDirection m_directionBefore;
    QTranslator m_toolkitTexts;
};

} // namespace ui
