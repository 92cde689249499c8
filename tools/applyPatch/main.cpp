// applyPatch brings an installed copy from one version to the next. The installer starts it for
// each copy that its user wants updated, as administrator; docs/reliability.md has its contract.
#include <exception>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>
#include <fcntl.h>

#include "patcher/format/PatchFile.h"
#include "patcher/format/Signature.h"
#include "tools/applyPatch/ApplyError.h"
#include "tools/applyPatch/CategoryList.h"
#include "tools/applyPatch/InstalledCopy.h"
#include "tools/applyPatch/Interruption.h"
#include "tools/applyPatch/Update.h"
#include "tools/files/Complaints.h"
#include "tools/files/FileError.h"
#include "tools/files/Progress.h"
#include "tools/patchTree/FileSource.h"

namespace {

using namespace tools;

constexpr int kSignalBase = 128;

constexpr const char* kStatuses =
    "Exit status: 0 done, applies, or is as asked; 1 the copy differs; "
    "2 wrong usage; 3 no valid patch; 4 the system refused something, as for want of space or "
    "rights; 5 another run is at work; 6 with -n, the copy is the new "
    "version already; 128 + N ended by signal N. But for 0 after an update the "
    "copy "
    "is as it was.";

struct Arguments {
    std::string folder;
    std::string patch;
    bool triesOut = false;
    bool verifies = false;
    bool listsCategories = false;
};

Descriptor openPatch(const std::string& path) {
    // A pipe without a writer would block the opening for ever.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        throw ApplyError(Ending::usage, path + ": no such file; name the patch file with -i");
    if (!file.isOpen())
        throw refusal(path, errno);
    return file;
}

FileSource sourceOf(int file, const std::string& path) {
    try {
        return FileSource(file);
    } catch (const std::system_error&) {
        throw ApplyError(Ending::notAPatch, path + ": is no file; name the patch file with -i");
    }
}

patch::PatchReader readerOf(const FileSource& source, const std::string& path) {
    try {
        return patch::PatchReader(source, patch::builtInKey());
    } catch (const patch::FormatError& error) {
        throw ApplyError(Ending::notAPatch,
                         path + ": " + error.what() + " Nothing was changed; get the patch anew");
    } catch (const std::system_error& error) {
        throw refusal(path, error.code().value());
    }
}

Ending run(const Arguments& arguments, Complaints& complaints) {
    const Descriptor file = openPatch(arguments.patch);
    const FileSource source = sourceOf(file.number(), arguments.patch);
    const patch::PatchReader patch = readerOf(source, arguments.patch);
    if (arguments.listsCategories) {
        listCategories(patch.manifest(), arguments.folder, std::cout, complaints);
        if (!std::cout.flush())
            throw ApplyError(Ending::refused, "standard output: can't be written to");
        return Ending::done;
    }
    const InstalledCopy copy(arguments.folder);
    Progress progress;
    Update update({.patch = patch, .copy = copy, .progress = progress, .complaints = complaints});
    if (arguments.triesOut)
        return update.tryOut();
    return arguments.verifies ? update.verify() : update.apply();
}

int runGuarded(const Arguments& arguments) {
    Complaints complaints("applyPatch");
    try {
        return static_cast<int>(run(arguments, complaints));
    } catch (const Interrupted& interrupted) {
        complaints.about(arguments.folder, "interrupted; the copy is as it was");
        return kSignalBase + interrupted.signal;
    } catch (const ApplyError& error) {
        complaints.say(error.what());
        return static_cast<int>(error.ending());
    } catch (const std::exception& error) {
        complaints.about(arguments.folder, error);
        return static_cast<int>(Ending::refused);
    }
}

} // namespace

int main(int argc, char** argv) {
    Arguments arguments;
    CLI::App app("Brings an installed copy from one version to the next, or leaves it as it is.");
    app.set_version_flag("--version", "applyPatch " SCRIVEL_VERSION ", patch format " +
                                          std::to_string(patch::kVersion));
    app.footer(kStatuses);
    app.add_option("-d", arguments.folder, "The folder of the installed copy")
        ->required()
        ->type_name("FOLDER");
    app.add_option("-i", arguments.patch, "The patch file")->required()->type_name("PATCHFILE");
    CLI::Option* triesOut =
        app.add_flag("-n", arguments.triesOut, "Only tells whether the patch applies to the copy");
    CLI::Option* verifies = app.add_flag("--verify", arguments.verifies,
                                         "Only tells whether the copy is the new version");
    app.add_flag("-C", arguments.listsCategories,
                 "Only lists the category items, one \"ITEM,PATH\" a line; looks at no copy")
        ->excludes(triesOut)
        ->excludes(verifies);
    triesOut->excludes(verifies);
    try {
        app.parse(argc, argv);
        for (const auto& [name, value] :
             {std::pair("-d", &arguments.folder), std::pair("-i", &arguments.patch)})
            if (value->empty())
                throw CLI::ValidationError(name, "must not be empty");
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(Ending::usage);
    }
    rememberSignals();
    ::umask(0);
    return runGuarded(arguments);
}
