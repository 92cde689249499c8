// Localised texts for widgets: the texts of the interface files, and formats with "%@" or "%1$@".
#pragma once

#include <QStringList>
#include <QTranslator>

#include "platform/ports/LocalizedTexts.h"

namespace ui {

/// The translation of `key` with each "%@" replaced, in order, by one of `values`, and "%2$@" by
/// the second one. A place without a value stays as it stands.
QString localized(const ports::LocalizedTexts& texts, ports::TextKey key,
                  const QStringList& values = {});

/// Makes the texts of interface files come from our translations; has none for any other text, so
/// that the toolkit's own are left to its own translations.
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
