#include "ui/Sheets.h"

#include <utility>

#include <QMetaObject>

#include "ui/SheetDialog.h"
#include "ui/UiFiles.h"

namespace ui {

Sheets::Sheets(const UiFiles& files) : m_files(files) {}

Sheets::~Sheets() {
    for (const auto& sheet : m_open)
        delete sheet;
}

void Sheets::beginSheet(const ports::Alert& alert, controls::Window& window,
                        std::function<void(int)> completion) {
    std::erase_if(m_open, [](const auto& sheet) { return !sheet; });
    auto* sheet = new SheetDialog(
        alert, m_files.dialogOf(window), [this, completion = std::move(completion)](int index) {
            // Queued: we are inside the button's click, and the completion may ask again.
            QMetaObject::invokeMethod(
                &m_context, [this, index, completion] { finish(index, completion); },
                Qt::QueuedConnection);
        });
    m_open.emplace_back(sheet);
    sheet->show();
    sheet->activateWindow();
}

void Sheets::finish(int index, const std::function<void(int)>& completion) {
    for (const auto& sheet : m_open)
        if (sheet && sheet->isAnswered())
            delete sheet;
    if (completion)
        completion(kFirstButton + index);
}

} // namespace ui
