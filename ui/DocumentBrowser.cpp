#include "ui/DocumentBrowser.h"

#include <optional>

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QStringDecoder>
#include <QStyleOptionFocusRect>

#include "ui/Colours.h"
#include "ui/FindBar.h"
#include "ui/StyledHtml.h"
#include "ui/Texts.h"

namespace ui {

namespace {

constexpr qreal kMargin = 16;
constexpr int kAirAboveAnchor = 8;

QString styleSheetFor(const QPalette& palette) {
    const QString text = palette.color(QPalette::Text).name();
    const QString line = palette.color(QPalette::Mid).name();
    const QString link = linkColour(palette).name();
    return QStringLiteral("body { color: %1; line-height: 130%; }"
                          "a { color: %2; text-decoration: underline; }"
                          "h1 { font-size: 17pt; font-weight: 600; margin: 4px 0 10px 0; }"
                          "h2 { font-size: 13pt; font-weight: 600; margin: 16px 0 6px 0; }"
                          "h3 { font-size: 11pt; font-weight: 600; margin: 12px 0 4px 0; }"
                          "p { margin: 0 0 8px 0; }"
                          "li { margin: 0 0 4px 0; }"
                          "hr { background-color: %3; }"
                          "code, pre { font-family: monospace; }")
        .arg(text, link, line);
}

std::optional<QString> htmlIn(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {};
    QStringDecoder decode = QStringDecoder::decoderForHtml(bytes);
    return QString(decode(bytes));
}

bool isForTheBrowser(const QUrl& link) {
    const QString scheme = link.scheme();
    return scheme == "https" || scheme == "http" || scheme == "mailto";
}

} // namespace

DocumentBrowser::DocumentBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(kMargin);
    connect(this, &QTextBrowser::anchorClicked, this, &DocumentBrowser::open);
}

void DocumentBrowser::speak(const ports::LocalizedTexts& texts) {
    m_texts = &texts;
    m_findBar = new FindBar({.texts = texts,
                             .find = [this](const QString& words,
                                            auto direction) { return findNext(words, direction); },
                             .close = [this] { endFind(); }},
                            *this);
    m_findBar->hide();
    // in the whole window while this is in sight, so that the keyboard may be at a button
    const auto addKey = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, action);
        connect(shortcut, &QShortcut::activatedAmbiguously, this, action);
        return shortcut;
    };
    const auto findIn = [this](QTextDocument::FindFlags direction) {
        isFinding() ? m_findBar->find(direction) : beginFind();
    };
    addKey(QKeySequence::Find, [this] { beginFind(); });
    addKey(QKeySequence::FindNext, [findIn] { findIn({}); });
    addKey(QKeySequence::FindPrevious, [findIn] { findIn(QTextDocument::FindBackward); });
    m_escape = addKey(QKeySequence::Cancel, [this] { endFind(); });
    m_escape->setEnabled(false);
}

void DocumentBrowser::showFile(const QString& path, const QString& anchor) {
    if (path == m_file && anchor == m_anchor)
        return;
    m_file = path;
    m_anchor = anchor;
    m_text = {};
    showAgain();
}

void DocumentBrowser::showText(const controls::StyledText& text) {
    if (m_file.isEmpty() && text == m_text)
        return;
    m_file.clear();
    m_anchor.clear();
    m_text = text;
    showAgain();
}

void DocumentBrowser::showAgain() {
    document()->setDefaultStyleSheet(styleSheetFor(palette()));
    if (m_file.isEmpty()) {
        document()->setBaseUrl({});
        isPlain(m_text) ? setPlainText(QString::fromStdString(m_text.text()))
                        : setHtml(asHtml(m_text));
        return;
    }
    document()->setBaseUrl(QUrl::fromLocalFile(m_file));
    if (const auto html = htmlIn(m_file))
        setHtml(*html);
    else
        setPlainText(m_texts ? localized(*m_texts,
                                         "The text at %@ can’t be read. Download the installer "
                                         "again and start it from there.",
                                         {m_file})
                             : m_file);
    goToAnchor();
}

void DocumentBrowser::goToAnchor() {
    if (m_anchor.isEmpty())
        return;
    scrollToAnchor(m_anchor);
    // with some air above, so that the heading does not look cut
    verticalScrollBar()->setValue(verticalScrollBar()->value() - kAirAboveAnchor);
}

QVariant DocumentBrowser::loadResource(int type, const QUrl& name) {
    const QString folder = QFileInfo(m_file).absolutePath() + '/';
    const QString path = QDir::cleanPath(name.toLocalFile());
    if (m_file.isEmpty() || !name.isLocalFile() || !path.startsWith(folder))
        return QByteArray(); // where there is nothing at all, the document would read it by itself
    return QTextBrowser::loadResource(type, QUrl::fromLocalFile(path));
}

void DocumentBrowser::open(const QUrl& link) {
    if (isForTheBrowser(link))
        QDesktopServices::openUrl(link);
    else if (link.hasFragment())
        scrollToAnchor(link.fragment());
}

bool DocumentBrowser::findNext(const QString& words, QTextDocument::FindFlags direction) {
    // while the words are being typed the place that is selected stays a candidate
    const QTextCursor before = textCursor();
    QTextCursor from = before;
    const bool grows = direction == QTextDocument::FindFlags() &&
                       words.compare(before.selectedText(), Qt::CaseInsensitive) != 0;
    if (grows)
        from.setPosition(before.selectionStart());
    QTextCursor found = document()->find(words, from, direction);
    if (found.isNull()) {
        from.movePosition(direction & QTextDocument::FindBackward ? QTextCursor::End
                                                                  : QTextCursor::Start);
        found = document()->find(words, from, direction);
    }
    if (found.isNull())
        return false;
    setTextCursor(found);
    ensureCursorVisible();
    return true;
}

void DocumentBrowser::beginFind() {
    if (!m_findBar)
        return;
    m_findBar->show();
    m_escape->setEnabled(true);
    layOutFindBar();
    m_findBar->takeKeyboard();
}

void DocumentBrowser::endFind() {
    if (!isFinding())
        return;
    m_findBar->hide();
    m_escape->setEnabled(false);
    layOutFindBar();
    setFocus(Qt::OtherFocusReason);
}

bool DocumentBrowser::isFinding() const {
    return m_findBar && m_findBar->isVisibleTo(this);
}

void DocumentBrowser::layOutFindBar() {
    const int height = isFinding() ? m_findBar->sizeHint().height() : 0;
    setViewportMargins(0, 0, 0, height);
    if (height > 0) {
        const QRect inside = contentsRect();
        m_findBar->setGeometry(inside.left(), inside.bottom() + 1 - height, inside.width(), height);
        m_findBar->raise();
    }
}

void DocumentBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    layOutFindBar();
}

void DocumentBrowser::paintEvent(QPaintEvent* event) {
    QTextBrowser::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    ring.rect = viewport()->rect();
    ring.backgroundColor = palette().color(QPalette::Base);
    QPainter painter(viewport());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}

void DocumentBrowser::focusInEvent(QFocusEvent* event) {
    QTextBrowser::focusInEvent(event);
    viewport()->update();
}

void DocumentBrowser::focusOutEvent(QFocusEvent* event) {
    QTextBrowser::focusOutEvent(event);
    viewport()->update();
}

void DocumentBrowser::scrollContentsBy(int dx, int dy) {
    QTextBrowser::scrollContentsBy(dx, dy);
    if (hasFocus())
        viewport()->update(); // the ring must not go with the text
}

void DocumentBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_texts) {
        const int at = verticalScrollBar()->value();
        showAgain();
        verticalScrollBar()->setValue(at);
    }
}

} // namespace ui
