// The password question of `sudo -A`: the program is started again as its askpass helper, shows the
// question and prints the answer. This header shows no toolkit.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/ports/LocalizedTexts.h"

namespace ui {

struct AskPassNeeds {
    /// `argv[1]` is the question as sudo words it. The toolkit takes its own options out of them.
    int& argc;
    char** argv;
    /// Where the pictures are.
    std::string resourceFolder;
    const ports::LocalizedTexts& texts;
    /// None: as the desktop has it.
    std::optional<bool> dark = std::nullopt;
    /// As in GuiFrontEnd.
    std::function<void()> onNoDisplay = nullptr;
};

/// Asks. 0: the password and a line feed stand on standard output; 1: the user cancelled, and
/// nothing does. The answer is the helper's exit status.
int runAskPass(const AskPassNeeds& needs);

} // namespace ui
