// Compiled translations from anywhere: whatever the bytes of the file, every text can be looked up,
// in English where the file is refused.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/support/TemporaryFolder.h"
#include "ui/TranslatedTexts.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const tests::TemporaryFolder folder;
    folder.write("translations/scrivel_de.qm", {reinterpret_cast<const char*>(data), size});
    const ui::TranslatedTexts texts({.resourceFolder = folder.path(), .languages = {"de"}});
    for (const char* key : {"Yes", "No", "Cancel", "Next", "Help", "", "no such text"}) {
        const std::string text = texts.translated(key);
        if (texts.languageTag() != "de" && text != key)
            std::abort();
    }
    return 0;
}
