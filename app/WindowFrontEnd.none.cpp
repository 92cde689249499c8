#include "app/WindowFrontEnd.h"

namespace app {

bool hasWindowFrontEnd() {
    return false;
}

std::unique_ptr<WindowFrontEnd> makeWindowFrontEnd(WindowFrontEnd::Needs) {
    return nullptr;
}

int runPasswordDialog(int&, char**, const std::string&, const ports::LocalizedTexts&) {
    return 1;
}

} // namespace app
