#include "ui/SheetDialog.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>

#include "ui/AlertIcon.h"
#include "ui/Keys.h"
#include "ui/Theme.h"

namespace ui {

namespace {

constexpr int kMargin = 24;
constexpr int kSignSize = 52;
constexpr int kTextWidth = 440; // the sheet covers the picture and the words below it whole
constexpr int kGap = 8;

/// Lies over the window's content while a sheet hangs there, and takes the sheet's shadow.
class Shade final : public QWidget {
  public:
    Shade(QWidget& window, const QRect& sheet) : QWidget(&window), m_sheet(sheet) {
        setGeometry(window.rect());
        show();
        raise();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), QColor(0, 0, 0, kShade));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, kShadow));
        for (int reach = kShadowReach; reach > 0; reach -= 2)
            painter.drawRoundedRect(QRect(m_sheet.left() - reach, -kShadowReach,
                                          m_sheet.width() + 2 * reach,
                                          m_sheet.height() + kShadowReach + kShadowDrop + reach),
                                    reach + 2, reach + 2);
    }

  private:
    static constexpr int kShade = 72; // opacity, of 255
    static constexpr int kShadow = 7;
    static constexpr int kShadowReach = 18;
    static constexpr int kShadowDrop = 4;

    QRect m_sheet;
};

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
    : QDialog(parent, parent ? Qt::Sheet | Qt::FramelessWindowHint : Qt::Dialog),
      m_answered(std::move(answered)), m_escapeButton(static_cast<int>(alert.escapeButton.value_or(
                                           std::max<std::size_t>(alert.buttons.size(), 1) - 1))) {
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    if (parent) {
        setWindowTitle(parent->windowTitle());
        parent->installEventFilter(this);
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

SheetDialog::~SheetDialog() {
    delete m_shade;
}

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
    delete m_shade;
    answered(index);
}

void SheetDialog::showEvent(QShowEvent* event) {
    adjustSize();
    if (parentWidget()) {
        QWidget& window = *parentWidget();
        const QPoint topLeft((window.width() - width()) / 2, 0);
        move(window.mapToGlobal(topLeft));
        m_shade = new Shade(window, QRect(topLeft, size()));
    }
    QDialog::showEvent(event);
}

void SheetDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

void SheetDialog::paintEvent(QPaintEvent*) {
    // two grounds rather than a drawn line, which leaves a gap at the edge where the screen is
    // dense; a sheet comes out from below the title bar and has no line there
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.fillRect(rect().adjusted(1, parentWidget() ? 0 : 1, -1, -1),
                     palette().color(QPalette::Window));
}

bool SheetDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent()) {
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            m_answered = nullptr;
            hide();
            deleteLater();
        }
        return false;
    }
    return isHeldReturn(*event) || QDialog::eventFilter(watched, event);
}

} // namespace ui
