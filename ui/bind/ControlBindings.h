// Which widget and which binding each kind of control has. Used by UiFiles, which loads the widgets
// and keeps the bindings.
#pragma once

#include <memory>

#include <QDialog>

#include "platform/controls/Interface.h"
#include "platform/ports/LocalizedTexts.h"
#include "ui/bind/Binding.h"

namespace ui {

class Pictures;

/// What bindings need beside their models and their widgets; outlives them.
struct BindingNeeds {
    const ports::LocalizedTexts& texts;
    Pictures& pictures;
};

/// Is the outlet's widget in the dialog, of the class that the model needs, with as many pages,
/// cells or columns?
bool hasWidgetFor(const controls::NamedOutlet& outlet, const QDialog& dialog);

/// Binds an outlet that has its widget.
std::unique_ptr<AnyBinding> bind(const controls::NamedOutlet& outlet, QDialog& dialog,
                                 const BindingNeeds& needs);

} // namespace ui
