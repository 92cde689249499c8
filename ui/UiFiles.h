// Interface files in Qt Designer's format, read at run time from the bundle's resources, and the
// bindings between their widgets and the models. Main thread only.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"

class QDialog;

namespace ui {

class Pictures;

class UiFiles final : public ports::InterfaceFiles {
  public:
    struct Needs {
        std::string resourceFolder;
        const ports::LocalizedTexts& texts;
        Pictures& pictures;
    };
    explicit UiFiles(Needs needs);
    ~UiFiles() override;

    /// Reads `<resources>/<name>.ui`. Its top widget is a dialog; an outlet is the widget of that
    /// name: a push button, a label or a ui::ProgressBar, whose caption is the label named
    /// "<outlet>Caption". A window that is loaded again shows the new widgets.
    bool load(std::string_view name, controls::Interface& outlets) override;

    /// The dialog that shows `window`; null when none was loaded.
    QDialog* dialogOf(const controls::Window& window) const;

  private:
    class Loaded;

    Needs m_needs;
    std::vector<std::unique_ptr<Loaded>> m_loaded;
};

} // namespace ui
