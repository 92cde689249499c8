#include "ui/ReaderSheet.h"

#include <memory>

#include <QBoxLayout>
#include <QDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>

#include "ui/DocumentBrowser.h"
#include "ui/HangingSheet.h"
#include "ui/SessionLoop.h"
#include "ui/Texts.h"
#include "ui/Theme.h"
#include "ui/UiFiles.h"

namespace ui {

namespace {

constexpr int kMargin = 20;
constexpr QSize kSize(700, 480); // a line of the log has 80 letters and more
constexpr int kLeft = 40;        // of the window beside and below the sheet

/// Of a text without a file of its own: a log, whose lines are laid out for one width a letter.
QFont fontOfLines() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(9);
    return font;
}

class ReaderDialog final : public QDialog {
  public:
    ReaderDialog(const ports::ReadingMatter& matter, const ports::LocalizedTexts& texts)
        : m_text(new DocumentBrowser(this)) {
        const QString title = QString::fromStdString(matter.title);
        setObjectName("reader");
        setWindowTitle(title);
        setAccessibleName(title);
        setSizeGripEnabled(true);
        auto* heading = new QLabel(title);
        heading->setTextFormat(Qt::PlainText);
        heading->setProperty(kLook, "strong");
        heading->setVisible(!title.isEmpty());

        m_text->setAccessibleName(title);
        m_text->speak(texts);
        if (matter.file.empty()) {
            m_text->setFont(fontOfLines());
            m_text->showText(controls::StyledText::plain(matter.text));
        } else {
            m_text->showFile(QString::fromStdString(matter.file),
                             QString::fromStdString(matter.anchor));
        }

        auto* close = new QPushButton(localized(texts, "Close"));
        close->setObjectName("closeReader");
        close->setDefault(true);
        connect(close, &QPushButton::clicked, this, &QDialog::accept);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(close);

        auto* page = new QVBoxLayout(this);
        page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        page->setSpacing(12);
        page->addWidget(heading);
        page->addWidget(m_text, 1);
        page->addLayout(buttons);
    }

  protected:
    void showEvent(QShowEvent* event) override {
        QDialog::showEvent(event);
        m_text->setFocus();
        m_text->goToAnchor(); // now that the lines have their width
    }

  private:
    DocumentBrowser* m_text;
};

} // namespace

void ReaderSheet::read(const ports::ReadingMatter& matter, controls::Window& window) {
    ReaderDialog dialog(matter, m_needs.texts);
    QDialog* parent = m_needs.files.dialogOf(window);
    if (!parent || !parent->isVisible()) {
        dialog.resize(kSize);
        dialog.setWindowModality(Qt::ApplicationModal);
        return m_needs.loop.runDialog(dialog);
    }
    dialog.resize(kSize.boundedTo(parent->size() - QSize(kLeft, kLeft)));
    HangingSheet hanging(
        {.dialog = dialog, .window = *parent, .windowGone = [&dialog] { dialog.reject(); }});
    m_needs.loop.runDialog(dialog);
    hanging.takeOff();
}

} // namespace ui
