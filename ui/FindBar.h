// The slim bar at the foot of a document in which the user types what is looked for. Made by
// DocumentBrowser, which does the finding.
#pragma once

#include <functional>

#include <QTextDocument>
#include <QWidget>

#include "platform/ports/LocalizedTexts.h"

class QLabel;
class QLineEdit;

namespace ui {

class FindBar final : public QWidget {
  public:
    struct Needs {
        const ports::LocalizedTexts& texts;
        /// Goes to the next place of the words in that direction; false: they stand nowhere.
        std::function<bool(const QString&, QTextDocument::FindFlags)> find;
        std::function<void()> close;
    };
    FindBar(Needs needs, QWidget& parent);

    /// Puts the keyboard into the field, its words selected.
    void takeKeyboard();
    void find(QTextDocument::FindFlags direction);

  protected:
    /// Return in the field finds on and presses no button of the window.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Needs m_needs;
    QLineEdit* m_words;
    QLabel* m_notFound;
};

} // namespace ui
