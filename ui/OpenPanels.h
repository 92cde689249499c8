// Asks for an application or a folder in the toolkit's own file dialog, in our look. An application
// is one thing to choose, whether the platform keeps it as a folder or as a single file. Main
// thread only.
#pragma once

#include <functional>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"

namespace ui {

class SessionLoop;

class OpenPanels final : public ports::FileChoosers {
  public:
    /// The four-character type of a file; empty: none, or not known.
    using TypeOf = std::function<std::string(const std::string& path)>;

    struct Needs {
        SessionLoop& loop;
        const ports::LocalizedTexts& texts;
        /// Without it only extensions count.
        TypeOf typeOf = nullptr;
    };
    explicit OpenPanels(Needs needs) : m_needs(std::move(needs)) {}

    std::optional<std::string> choose(const ports::Chooser& chooser) override;

  private:
    Needs m_needs;
};

} // namespace ui
