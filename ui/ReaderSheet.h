// Longer texts, shown in a sheet until the user closes it. Main thread only.
#pragma once

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"

namespace ui {

class SessionLoop;
class UiFiles;

class ReaderSheet final : public ports::Reader {
  public:
    struct Needs {
        const UiFiles& files;
        SessionLoop& loop;
        const ports::LocalizedTexts& texts;
    };
    explicit ReaderSheet(Needs needs) : m_needs(needs) {}

    /// On a window that no interface file has given a dialog the text has a window of its own.
    void read(const ports::ReadingMatter& matter, controls::Window& window) override;

  private:
    Needs m_needs;
};

} // namespace ui
