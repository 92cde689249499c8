#include "app/WindowFrontEnd.h"

#include "platform/posix/EnglishTexts.h"

namespace app {

bool hasWindowFrontEnd() {
    return false;
}

std::unique_ptr<ports::LocalizedTexts> makeTexts(const std::string& resourceFolder,
                                                 std::vector<std::string>) {
    return std::make_unique<posix::EnglishTexts>(resourceFolder);
}

std::unique_ptr<WindowFrontEnd> makeWindowFrontEnd(WindowFrontEnd::Needs) {
    return nullptr;
}

int runPasswordDialog(int&, char**, const std::string&, const ports::LocalizedTexts&) {
    return 1;
}

} // namespace app
