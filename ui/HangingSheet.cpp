#include "ui/HangingSheet.h"

#include <utility>

#include <QAccessible>
#include <QEvent>
#include <QPainter>

namespace ui {

namespace {

/// Lies over the window's content while a sheet hangs there, and takes the sheet's shadow.
class Shade final : public QWidget {
  public:
    explicit Shade(QWidget& window) : QWidget(&window) {
        show();
        raise();
    }
    void lieUnder(const QRect& sheet) {
        m_sheet = sheet;
        setGeometry(parentWidget()->rect());
        update();
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

void drawGround(QWidget& sheet) {
    // two grounds rather than a drawn line, which leaves a gap at the edge where the screen is
    // dense; a sheet comes out from below the title bar and has no line there
    QPainter painter(&sheet);
    painter.fillRect(sheet.rect(), sheet.palette().color(QPalette::Mid));
    painter.fillRect(sheet.rect().adjusted(1, 0, -1, -1), sheet.palette().color(QPalette::Window));
}

} // namespace

HangingSheet::HangingSheet(Needs needs)
    : m_dialog(&needs.dialog), m_window(&needs.window), m_windowGone(std::move(needs.windowGone)) {
    m_dialog->setParent(m_window, Qt::Sheet | Qt::FramelessWindowHint);
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->installEventFilter(this);
    m_window->installEventFilter(this);
}

HangingSheet::~HangingSheet() {
    delete m_shade;
}

void HangingSheet::takeOff() {
    delete m_shade;
    if (!m_dialog)
        return;
    m_dialog->removeEventFilter(this);
    m_dialog->setParent(nullptr, Qt::Dialog);
    m_dialog->setWindowModality(Qt::ApplicationModal);
}

void HangingSheet::place() {
    const QRect sheet(QPoint((m_window->width() - m_dialog->width()) / 2, 0), m_dialog->size());
    m_dialog->move(m_window->mapToGlobal(sheet.topLeft()));
    if (m_shade)
        static_cast<Shade*>(m_shade.data())->lieUnder(sheet);
}

void HangingSheet::announce() {
    QAccessibleEvent said(m_dialog.data(), QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

bool HangingSheet::eventFilter(QObject* watched, QEvent* event) {
    if (!m_dialog || !m_window)
        return false;
    const bool isWindow = watched == m_window;
    switch (event->type()) {
    case QEvent::Show:
        if (!isWindow) {
            m_shade = new Shade(*m_window);
            place();
            announce();
        }
        return false;
    case QEvent::Hide:
        if (!isWindow) {
            delete m_shade;
        } else if (!event->spontaneous() && m_windowGone) {
            const auto gone = m_windowGone;
            gone(); // may end this object
        }
        return false;
    case QEvent::Move:
        if (isWindow && m_dialog->isVisible())
            place();
        return false;
    case QEvent::Resize:
        if (m_dialog->isVisible())
            place();
        return false;
    case QEvent::Paint:
        if (isWindow)
            return false;
        drawGround(*m_dialog);
        return true;
    default:
        return false;
    }
}

} // namespace ui
