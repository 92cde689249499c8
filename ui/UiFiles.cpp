#include "ui/UiFiles.h"

#include <algorithm>

#include <QDialog>
#include <QLabel>

#include "ui/InterfaceLoader.h"
#include "ui/PictureView.h"
#include "ui/bind/ControlBindings.h"
#include "ui/bind/WindowBinding.h"

namespace ui {

/// One interface file with its bindings; they die before the widgets.
class UiFiles::Loaded {
  public:
    Loaded(std::unique_ptr<QDialog> dialog, const controls::Interface& outlets,
           const BindingNeeds& needs)
        : m_dialog(std::move(dialog)), m_window(outlets.window, *m_dialog) {
        m_bindings.reserve(outlets.outlets.size());
        for (const controls::NamedOutlet& outlet : outlets.outlets)
            m_bindings.push_back(bind(outlet, *m_dialog, needs));
    }

    QDialog* dialog() const { return m_dialog.get(); }
    /// Null once the models have died.
    const controls::Window* window() const { return m_window.model(); }

  private:
    std::unique_ptr<QDialog> m_dialog;
    WindowBinding m_window;
    std::vector<std::unique_ptr<AnyBinding>> m_bindings;
};

UiFiles::UiFiles(Needs needs) : m_needs(std::move(needs)) {}

UiFiles::~UiFiles() {
    release([](const Loaded&) { return true; });
}

template <class Condition>
void UiFiles::release(Condition goes) {
    // a sheet is a child of the dialog that it hangs on, but belongs to its own file
    for (const auto& sheet : m_loaded)
        for (const auto& loaded : m_loaded)
            if (goes(*loaded) && sheet->dialog()->parentWidget() == loaded->dialog())
                sheet->dialog()->setParent(nullptr, Qt::Dialog);
    std::erase_if(m_loaded, [&](const auto& loaded) { return goes(*loaded); });
}

bool UiFiles::load(std::string_view name, controls::Interface& outlets) {
    const std::string path = m_needs.resourceFolder + '/' + std::string(name) + ".ui";
    auto dialog = dialogFrom(QString::fromStdString(path));
    if (!dialog || !std::ranges::all_of(outlets.outlets, [&](const auto& outlet) {
            return hasWidgetFor(outlet, *dialog);
        }))
        return false;

    for (PictureView* view : dialog->findChildren<PictureView*>())
        if (!outlets.find(view->objectName().toStdString()))
            view->showFrom(m_needs.pictures);
    release([&](const Loaded& loaded) {
        return !loaded.window() || loaded.window() == &outlets.window;
    });
    m_loaded.push_back(std::make_unique<Loaded>(
        std::move(dialog), outlets,
        BindingNeeds{.texts = m_needs.texts, .pictures = m_needs.pictures}));
    return true;
}

QDialog* UiFiles::dialogOf(const controls::Window& window) const {
    for (const auto& loaded : m_loaded)
        if (loaded->window() == &window)
            return loaded->dialog();
    return nullptr;
}

} // namespace ui
