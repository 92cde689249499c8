// The file dialog of OpenPanels: knows that a folder whose extension is offered ("Scrivel.app") is
// chosen and never entered.
#pragma once

#include <QFileDialog>

#include "platform/ports/FrontEnd.h"
#include "ui/OpenPanels.h"

namespace ui {

class OpenPanel final : public QFileDialog {
    Q_OBJECT

  public:
    /// `start` is the folder that it opens; empty: where the program was started.
    OpenPanel(const ports::Chooser& chooser, const QString& start, QWidget* parent,
              const OpenPanels::Needs& needs);

    /// The file or folder that was chosen, absolute; empty when the user has cancelled.
    const QString& chosen() const { return m_chosen; }

    void accept() override;

  private:
    bool isOffered(const QFileInfo& file) const;
    void choose(const QString& path);

    QStringList m_types;
    bool m_wantsFolder;
    OpenPanels::TypeOf m_typeOf;
    QString m_chosen;
};

} // namespace ui
