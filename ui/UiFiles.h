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
    /// name and of the class that its kind needs:
    ///
    ///   Button       QPushButton
    ///   TextField    QLabel
    ///   Progress     ui::ProgressBar; its caption is the label named "<outlet>Caption", if any
    ///   TabView      QStackedWidget with as many pages, page 0 first
    ///   RadioMatrix  QWidget whose direct children hold as many QRadioButtons, row 0 first
    ///   ImageView    ui::PictureView
    ///   DocumentView ui::DocumentBrowser
    ///   OutlineView  ui::ComponentTree with the outline's columns (ui/models/Columns.h)
    ///   TableView    QTableView with the table's columns
    ///   MenuItem     QAction of a menu in the dialog's QMenuBar, which stands at the top
    ///
    /// A window that is loaded again shows the new widgets.
    bool load(std::string_view name, controls::Interface& outlets) override;

    /// The dialog that shows `window`; null when none was loaded.
    QDialog* dialogOf(const controls::Window& window) const;

  private:
    class Loaded;

    template <class Condition>
    void release(Condition goes);

    Needs m_needs;
    std::vector<std::unique_ptr<Loaded>> m_loaded;
};

} // namespace ui
