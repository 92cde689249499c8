#include "ui/SheetDialog.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

#include "ui/AlertIcon.h"
#include "ui/HangingSheet.h"
#include "ui/Keys.h"
#include "ui/Theme.h"

namespace ui {

namespace {

constexpr int kMargin = 24;
constexpr int kSignSize = 52;
constexpr int kTextWidth = 440; // the sheet covers the picture and the words below it whole
constexpr int kGap = 8;

/// A line must not break inside a path, as long as the rest of it fits into a line, nor between a
/// name and its number ("Scrivel 21").
QString withWholeNames(QString text) {
    static const QRegularExpression slash("/(?=\\S{1,40}(?!\\S))");
    static const QRegularExpression beforeNumber("(?<=\\S) (?=\\d)");
    return text.replace(slash, QStringLiteral("/\u2060"))
        .replace(beforeNumber, QStringLiteral("\u00a0"));
}

QLabel* paragraph(const std::string& text, const char* style) {
    auto* label = new QLabel(withWholeNames(QString::fromStdString(text)));
    label->setAccessibleName(QString::fromStdString(text));
    label->setProperty(kLook, style);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(kTextWidth);
    return label;
}

} // namespace

SheetDialog::SheetDialog(const ports::Alert& alert, QWidget* parent,
                         std::function<void(int)> answered)
    : QDialog(parent, Qt::Dialog), m_answered(std::move(answered)),
      m_escapeButton(static_cast<int>(
          alert.escapeButton.value_or(std::max<std::size_t>(alert.buttons.size(), 1) - 1))) {
    setWindowModality(Qt::ApplicationModal);
    if (parent) {
        setWindowTitle(parent->windowTitle());
        m_hanging = std::make_unique<HangingSheet>(HangingSheet::Needs{
            .dialog = *this, .window = *parent, .windowGone = [this] { goUnanswered(); }});
    }
    setAccessibleName(QString::fromStdString(alert.message));
    setAccessibleDescription(QString::fromStdString(alert.informative));

    auto* sign = new QLabel;
    sign->setPixmap(alertIcon(alert.style, kSignSize, devicePixelRatioF()));
    sign->setAccessibleName(QString::fromStdString(alert.message));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(kGap);
    texts->addWidget(paragraph(alert.message, "strong"));
    if (!alert.informative.empty())
        texts->addWidget(paragraph(alert.informative, "body"));
    texts->addStretch();
    auto* content = new QHBoxLayout;
    content->setSpacing(20);
    content->addWidget(sign, 0, Qt::AlignTop);
    content->addLayout(texts);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    addButtons(alert, *buttons);

    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin - 4);
    page->setSpacing(20);
    page->setSizeConstraint(QLayout::SetFixedSize);
    page->addLayout(content);
    page->addLayout(buttons);
}

SheetDialog::~SheetDialog() = default;

void SheetDialog::addButtons(const ports::Alert& alert, QBoxLayout& row) {
    // the default button stands last in the row and comes first with the Tab key
    row.addStretch();
    QWidget* before = nullptr;
    for (int i = 0; i < static_cast<int>(alert.buttons.size()); ++i) {
        auto* button = new QPushButton(
            QString::fromStdString(alert.buttons[static_cast<std::size_t>(i)]).replace('&', "&&"),
            this);
        button->setDefault(i == 0);
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, i] { answer(i); });
        row.insertWidget(1, button);
        if (before)
            setTabOrder(before, button);
        else
            button->setFocus();
        before = button;
    }
}

void SheetDialog::answer(int index) {
    const auto answered = std::exchange(m_answered, nullptr);
    if (!answered)
        return;
    hide();
    answered(index);
}

void SheetDialog::goUnanswered() {
    m_answered = nullptr;
    hide();
    deleteLater();
}

void SheetDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

bool SheetDialog::eventFilter(QObject* watched, QEvent* event) {
    return isHeldReturn(*event) || QDialog::eventFilter(watched, event);
}

} // namespace ui
