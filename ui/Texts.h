// Localised texts for widgets: the texts of the interface files, and formats with "%@".
#pragma once

#include <string_view>

#include <QStringList>
#include <QTranslator>

#include "platform/ports/LocalizedTexts.h"

namespace ui {

/// The translation of `key` with each "%@" replaced, in order, by one of `values`.
QString localized(const ports::LocalizedTexts& texts, std::string_view key,
                  const QStringList& values = {});

/// Makes the texts of interface files come from the localized-string table.
class TextsTranslator final : public QTranslator {
  public:
    explicit TextsTranslator(const ports::LocalizedTexts& texts) : m_texts(texts) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;

  private:
    const ports::LocalizedTexts& m_texts;
};

} // namespace ui
