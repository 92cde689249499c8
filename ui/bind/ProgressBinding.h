// A progress model, its bar, and the caption beside it that says how much is done.
#pragma once

#include <QLabel>

#include "platform/controls/Progress.h"
#include "platform/ports/LocalizedTexts.h"
#include "ui/ProgressBar.h"
#include "ui/bind/Binding.h"

namespace ui {

class ProgressBinding final : public Binding<controls::Progress> {
  public:
    struct Needs {
        ProgressBar& bar;
        /// May be missing.
        QLabel* caption;
        const ports::LocalizedTexts& texts;
    };
    /// The model takes enabling and visibility from the bar; later bar and caption follow the
    /// model. Both outlive the binding.
    ProgressBinding(controls::Progress& progress, Needs needs);

    /// "123 MB of 400 MB", in the user's language and both in the unit that suits the total. Empty
    /// when the total is not known.
    static QString captionFor(const controls::Progress::Amount& amount,
                              const ports::LocalizedTexts& texts);

  private:
    void mirror(const controls::Progress& progress) override;
    void drawNow() override { m_needs.bar.repaint(); }

    Needs m_needs;
};

} // namespace ui
