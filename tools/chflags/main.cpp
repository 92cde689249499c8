// chflags for systems without one: the immutable flag, as the installer sets and clears it.
#include <iostream>
#include <string>
#include <vector>

#include "tools/chflags/FlagChange.h"
#include "tools/files/Complaints.h"

int main(int argc, char** argv) {
    using tools::FlagChange;
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool wholeTree = !arguments.empty() && arguments.front() == "-R";
    if (wholeTree)
        arguments.erase(arguments.begin());
    if (arguments.size() < 2 || (arguments[0] != "uchg" && arguments[0] != "nouchg")) {
        std::cerr << "usage: chflags [-R] uchg|nouchg PATH...\n";
        return 1;
    }
    tools::Complaints complaints("chflags");
    FlagChange change(arguments[0] == "uchg" ? FlagChange::To::immutable
                                             : FlagChange::To::changeable,
                      complaints);
    for (auto path = arguments.begin() + 1; path != arguments.end(); ++path)
        if (wholeTree)
            change.applyToTree(*path);
        else
            change.apply(*path);
    return complaints.status();
}
