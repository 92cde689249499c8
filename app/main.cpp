// The process entry: reads the command line and hands over. Started as "scrivel-askpass" the
// program is the window in which sudo asks for the password.
#include <csignal>
#include <iostream>
#include <string_view>

#include "app/CommandLine.h"
#include "app/CompositionRoot.h"
#include "app/SystemParts.h"
#include "app/WindowFrontEnd.h"
#include "cp/private/SystemFolders.h"
#include "platform/ports/Bundles.h"

namespace {

int askPassword(int& argc, char** argv) {
    const auto bundles = app::makeBundles();
    const auto texts = app::makeTexts(bundles->mainResourceFolder(), app::preferredLanguages());
    return app::runPasswordDialog(argc, argv, bundles->mainResourceFolder(), *texts);
}

} // namespace

int main(int argc, char** argv) {
    // A reader of the events that goes away must not end the work half-way.
    std::signal(SIGPIPE, SIG_IGN);
    if (std::string_view(argv[0]).ends_with("scrivel-askpass"))
        return askPassword(argc, argv);
    const auto parsed =
        app::parseCommandLine({argv + 1, argv + argc}, Corvaldine::CP::Private::user_home_folder());
    std::cout << parsed.output << std::flush;
    std::cerr << parsed.error << std::flush;
    if (!parsed.options)
        return parsed.exitStatus;
    return app::runProgram(*parsed.options, argc, argv);
}
