#include "ui/bind/ControlBindings.h"

#include "ui/bind/ButtonBinding.h"
#include "ui/bind/DocumentBinding.h"
#include "ui/bind/ImageBinding.h"
#include "ui/bind/MenuItemBinding.h"
#include "ui/bind/OutlineBinding.h"
#include "ui/bind/ProgressBinding.h"
#include "ui/bind/RadioBinding.h"
#include "ui/bind/TabBinding.h"
#include "ui/bind/TableBinding.h"
#include "ui/bind/TextFieldBinding.h"

namespace ui {

namespace {

using std::make_unique;

QString nameOf(const controls::NamedOutlet& outlet) {
    return QString::fromUtf8(outlet.name.data(), static_cast<qsizetype>(outlet.name.size()));
}

/// The widget of a model by its kind; null when it is missing or does not suit the model.
struct Finder {
    const QDialog& dialog;
    QString name;

    auto* operator()(const controls::Button&) const { return find<QPushButton>(); }
    auto* operator()(const controls::TextField&) const { return find<QLabel>(); }
    auto* operator()(const controls::Progress&) const { return find<ProgressBar>(); }
    auto* operator()(const controls::ImageView&) const { return find<PictureView>(); }
    auto* operator()(const controls::DocumentView&) const { return find<DocumentBrowser>(); }
    auto* operator()(const controls::MenuItem&) const { return find<QAction>(); }
    auto* operator()(const controls::TabView& model) const {
        return suited<TabBinding, QStackedWidget>(model);
    }
    auto* operator()(const controls::RadioMatrix& model) const {
        return suited<RadioBinding, QWidget>(model);
    }
    auto* operator()(const controls::OutlineView& model) const {
        return suited<OutlineBinding, ComponentTree>(model);
    }
    auto* operator()(const controls::TableView& model) const {
        return suited<TableBinding, QTableView>(model);
    }

  private:
    template <class Widget>
    Widget* find() const {
        return dialog.findChild<Widget*>(name);
    }
    template <class BindingKind, class Widget, class Model>
    Widget* suited(const Model& model) const {
        auto* widget = find<Widget>();
        return widget && BindingKind::suits(model, *widget) ? widget : nullptr;
    }
};

struct Binder {
    QDialog& dialog;
    QString name;
    const BindingNeeds& needs;

    using Bound = std::unique_ptr<AnyBinding>;

    Bound operator()(controls::Button& model, QPushButton& widget) const {
        return make_unique<ButtonBinding>(model, widget);
    }
    Bound operator()(controls::TextField& model, QLabel& widget) const {
        return make_unique<TextFieldBinding>(model, widget);
    }
    Bound operator()(controls::Progress& model, ProgressBar& widget) const {
        return make_unique<ProgressBinding>(
            model, ProgressBinding::Needs{.bar = widget,
                                          .caption = dialog.findChild<QLabel*>(name + "Caption"),
                                          .texts = needs.texts});
    }
    Bound operator()(controls::TabView& model, QStackedWidget& widget) const {
        return make_unique<TabBinding>(model, widget);
    }
    Bound operator()(controls::RadioMatrix& model, QWidget& widget) const {
        return make_unique<RadioBinding>(model, widget);
    }
    Bound operator()(controls::ImageView& model, PictureView& widget) const {
        return make_unique<ImageBinding>(model, widget, needs.pictures);
    }
    Bound operator()(controls::DocumentView& model, DocumentBrowser& widget) const {
        return make_unique<DocumentBinding>(model, widget, needs.texts);
    }
    Bound operator()(controls::OutlineView& model, ComponentTree& widget) const {
        return make_unique<OutlineBinding>(model, widget, needs.texts);
    }
    Bound operator()(controls::TableView& model, QTableView& widget) const {
        return make_unique<TableBinding>(model, widget, needs.texts);
    }
    Bound operator()(controls::MenuItem& model, QAction& action) const {
        return make_unique<MenuItemBinding>(model, action, dialog);
    }
};

} // namespace

bool hasWidgetFor(const controls::NamedOutlet& outlet, const QDialog& dialog) {
    const Finder find{dialog, nameOf(outlet)};
    return std::visit([&](const auto* model) { return find(*model) != nullptr; }, outlet.control);
}

std::unique_ptr<AnyBinding> bind(const controls::NamedOutlet& outlet, QDialog& dialog,
                                 const BindingNeeds& needs) {
    const Finder find{dialog, nameOf(outlet)};
    const Binder binder{dialog, find.name, needs};
    return std::visit([&](auto* model) { return binder(*model, *find(*model)); }, outlet.control);
}

} // namespace ui
