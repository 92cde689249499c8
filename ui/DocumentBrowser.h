// A text for reading: scrolled with the page keys, selected, copied and searched. Interface files
// name it as the class "ui::DocumentBrowser". Reads local files only; links to the web open in the
// system's browser.
#pragma once

#include <QTextBrowser>

#include "platform/controls/StyledText.h"
#include "platform/ports/LocalizedTexts.h"

class QShortcut;

namespace ui {

class FindBar;

class DocumentBrowser final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit DocumentBrowser(QWidget* parent = nullptr);

    /// The words of the find bar and of what is said about a file that can't be read. Called once,
    /// before anything is shown; `texts` outlives the widget.
    void speak(const ports::LocalizedTexts& texts);

    /// The HTML file at `path`, from its anchor of that name on; pictures in it may come from its
    /// own folder. Where it can't be read, a text that says so and how to go on. What is in sight
    /// already stays where the reader has scrolled it.
    void showFile(const QString& path, const QString& anchor = {});
    void showText(const controls::StyledText& text);
    /// Scrolls to the anchor again, for a text whose lines had no width yet.
    void goToAnchor();

    /// Opens the bar for finding, or puts the keyboard into it.
    void beginFind();
    /// Closes the bar; the keyboard goes back to the text.
    void endFind();
    bool isFinding() const;
    /// Selects the next place where `words` stand, from the selection on and on from the other end;
    /// false when they stand nowhere.
    bool findNext(const QString& words, QTextDocument::FindFlags direction = {});

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// The text has no frame that could show that the keyboard is here: a ring is drawn over it.
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void showAgain();
    void open(const QUrl& link);
    void layOutFindBar();

    const ports::LocalizedTexts* m_texts = nullptr;
    QString m_file; // empty: the text below
    QString m_anchor;
    controls::StyledText m_text;
    FindBar* m_findBar = nullptr;
    QShortcut* m_escape = nullptr;
};

} // namespace ui
