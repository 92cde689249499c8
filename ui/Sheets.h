// Alert sheets on the windows that UiFiles has loaded. Main thread only.
#pragma once

#include <vector>

#include <QObject>
#include <QPointer>

#include "platform/ports/FrontEnd.h"

namespace ui {

class SheetDialog;
class UiFiles;

class Sheets final : public ports::AlertSheets {
  public:
    explicit Sheets(const UiFiles& files);
    ~Sheets() override;

    /// A sheet that is still open when its window is ordered out goes with it and is never
    /// answered: the session that asked is over.
    void beginSheet(const ports::Alert& alert, controls::Window& window,
                    std::function<void(int)> completion) override;

  private:
    void finish(int index, const std::function<void(int)>& completion);

    const UiFiles& m_files;
    std::vector<QPointer<SheetDialog>> m_open; // their windows may take them along
    QObject m_context;                         // what is queued for us dies with it
};

} // namespace ui
