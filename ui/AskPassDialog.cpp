#include "ui/AskPassDialog.h"

#include <cstdio>

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/PictureView.h"
#include "ui/Theme.h"
#include "ui/ThemedApplication.h"

namespace ui {

namespace {

constexpr int kMargin = 24;
constexpr int kPictureSize = 64;
constexpr int kTextWidth = 348;

class AskPassDialog final : public QDialog {
  public:
    AskPassDialog(const QString& question, const ports::LocalizedTexts& texts, Pictures& pictures)
        : m_password(new QLineEdit(this)) {
        setObjectName("askPass");
        setWindowTitle(localized(texts, "Install %@", {"Scrivel 21"}));

        auto* picture = new PictureView(this);
        picture->setFixedSize(kPictureSize, kPictureSize);
        picture->setProperty("file", "Scrivel.icns");
        picture->setAccessibleName("Scrivel 21");
        picture->showFrom(pictures);

        auto* message = new QLabel(
            localized(texts, "The installer of %@ needs administrator rights.", {"Scrivel 21"}));
        message->setProperty(kLook, "strong");
        message->setWordWrap(true);
        message->setFixedWidth(kTextWidth);
        auto* prompt = new QLabel(question.trimmed());
        prompt->setProperty(kLook, "secondary");
        prompt->setTextFormat(Qt::PlainText);
        prompt->setWordWrap(true);
        prompt->setFixedWidth(kTextWidth);
        m_password->setObjectName("password");
        m_password->setEchoMode(QLineEdit::Password);
        m_password->setAccessibleName(question.trimmed());

        auto* column = new QVBoxLayout;
        column->setSpacing(8);
        column->addWidget(message);
        column->addWidget(prompt);
        column->addWidget(m_password);
        auto* content = new QHBoxLayout;
        content->setSpacing(20);
        content->addWidget(picture, 0, Qt::AlignTop);
        content->addLayout(column);

        auto* ok = new QPushButton(localized(texts, "OK"));
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        auto* cancel = new QPushButton(localized(texts, "Cancel"));
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        auto* buttons = new QHBoxLayout;
        buttons->setSpacing(8);
        buttons->addStretch();
        buttons->addWidget(cancel);
        buttons->addWidget(ok);

        auto* page = new QVBoxLayout(this);
        page->setContentsMargins(kMargin, kMargin, kMargin, kMargin - 4);
        page->setSpacing(20);
        page->setSizeConstraint(QLayout::SetFixedSize);
        page->addLayout(content);
        page->addLayout(buttons);
        setTabOrder(m_password, ok);
        setTabOrder(ok, cancel);
        m_password->setFocus();
    }

    QByteArray password() const { return m_password->text().toUtf8(); }

  private:
    QLineEdit* m_password;
};

} // namespace

int runAskPass(const AskPassNeeds& needs) {
    ThemedApplication application({.argc = needs.argc,
                                   .argv = needs.argv,
                                   .resourceFolder = needs.resourceFolder,
                                   .texts = needs.texts,
                                   .dark = needs.dark,
                                   .onNoDisplay = needs.onNoDisplay});
    const QString question = needs.argc > 1 ? QString::fromLocal8Bit(needs.argv[1])
                                            : localized(needs.texts, "Password:");
    AskPassDialog dialog(question, needs.texts, application.pictures());
    if (dialog.exec() != QDialog::Accepted)
        return 1;
    QByteArray line = dialog.password() + '\n';
    // unbuffered, so that no copy of the password stays behind in a buffer
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const bool written = std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()),
                                     stdout) == static_cast<std::size_t>(line.size());
    line.fill('\0');
    return written ? 0 : 1;
}

} // namespace ui
