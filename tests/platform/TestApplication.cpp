// Asks whether an application runs, from within a process of its own that may belong to it.
// Exit status 1 when it does, 0 when not.
//
//   ROOT IDENTIFIER
#include "platform/linux/OwnExecutable.h"
#include "platform/linux/ProcApplications.h"
#include "platform/posix/PlistBundles.h"

int main(int argc, char** argv) {
    if (argc != 3)
        return 64;
    posix::PlistBundles bundles(linuxhost::ownExecutable());
    linuxhost::ProcApplications applications({.bundles = bundles, .root = argv[1], .home = "/"});
    return applications.isRunning(argv[2]) ? 1 : 0;
}
