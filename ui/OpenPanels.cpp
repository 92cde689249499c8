#include "ui/OpenPanels.h"

#include <QApplication>

#include "ui/OpenPanel.h"
#include "ui/SessionLoop.h"

namespace ui {

std::optional<std::string> OpenPanels::choose(const ports::Chooser& chooser) {
    QWidget* above = QApplication::activeModalWidget();
    OpenPanel panel(chooser, QString::fromStdString(chooser.folder),
                    above ? above : QApplication::activeWindow(), m_needs);
    m_needs.loop.runDialog(panel);
    if (panel.chosen().isEmpty())
        return std::nullopt;
    return panel.chosen().toStdString();
}

} // namespace ui
