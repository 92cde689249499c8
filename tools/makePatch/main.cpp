// makePatch makes the patch from one version of an application's folder to another. Developers run
// it; what it makes is shipped with the installer and applied by applyPatch.
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <CLI/CLI.hpp>
#include <fcntl.h>
#include <sys/stat.h>

#include "patcher/format/PatchFile.h"
#include "tools/files/Complaints.h"
#include "tools/files/Descriptor.h"
#include "tools/files/FileError.h"
#include "tools/files/Progress.h"
#include "tools/makePatch/PatchMaker.h"

namespace {

using namespace tools;

constexpr int kUsage = 2;
/// The seed that signs for this build's applyPatch; empty where that accepts another than the test
/// key.
constexpr std::string_view kTestSeed = SCRIVEL_TEST_SEED;

struct Arguments {
    std::string before;
    std::string after;
    std::string patch;
    std::string key;
    std::string newKey;
    std::string product;
    std::string oldVersion;
    std::string newVersion;
    int level = 19;
};

void makeKey(const std::string& path) {
    const patch::Seed seed = patch::newSeed();
    const std::string text = patch::hexadecimal(seed) + '\n';
    // Never over a key that is there: patches signed with it could not be followed by others.
    const Descriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        throw FileError(path, errno);
    if (::write(file.number(), text.data(), text.size()) != static_cast<ssize_t>(text.size()) ||
        ::fsync(file.number()) != 0) {
        const int error = errno;
        ::unlink(path.c_str());
        throw FileError(path, error);
    }
    std::cout << patch::hexadecimal(patch::publicKeyOf(seed)) << '\n';
}

patch::Seed seedOf(const std::string& path) {
    if (path.empty())
        return patch::fromHexadecimal(kTestSeed);
    std::ifstream file(path);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file)
        throw FileError(path, errno);
    try {
        return patch::fromHexadecimal(text);
    } catch (const patch::FormatError&) {
        throw NoPatch(path + ": a key file has 64 hexadecimal digits");
    }
}

void makePatch(const Arguments& arguments) {
    const patch::Seed seed = seedOf(arguments.key);
    Progress progress;
    const MadePatch made = PatchMaker({.before = arguments.before,
                                       .after = arguments.after,
                                       .patch = arguments.patch,
                                       .product = arguments.product,
                                       .oldVersion = arguments.oldVersion,
                                       .newVersion = arguments.newVersion,
                                       .level = arguments.level,
                                       .seed = seed,
                                       .progress = progress})
                               .make();
    const Differences& differences = made.differences;
    std::cout << arguments.patch << ": " << made.size << " bytes for " << made.contentSize
              << " bytes of new content; " << differences.changed << " changed, "
              << differences.added << " new (" << differences.renamed << " renamed), "
              << differences.gone << " gone\n";
}

} // namespace

int main(int argc, char** argv) {
    Arguments arguments;
    CLI::App app("Makes the patch that turns the folder OLD into the folder NEW.");
    app.set_version_flag("--version", "makePatch " SCRIVEL_VERSION ", patch format " +
                                          std::to_string(patch::kVersion));
    app.add_option("OLD", arguments.before, "The old version's folder");
    app.add_option("NEW", arguments.after, "The new version's folder");
    app.add_option("-o", arguments.patch, "The patch file to write");
    app.add_option("--key", arguments.key,
                   "File with the secret key to sign with, 64 hexadecimal digits" +
                       std::string(kTestSeed.empty() ? "" : "; else the test key"));
    app.add_option("--name", arguments.product, "The product's name, for messages");
    app.add_option("--from", arguments.oldVersion, "The old version, for messages");
    app.add_option("--to", arguments.newVersion, "The new version, for messages");
    app.add_option("--level", arguments.level, "How hard to pack, 1 to 22")
        ->check(CLI::Range(1, 22));
    app.add_option("--new-key", arguments.newKey,
                   "Only makes a key: its secret half into this new file, its public half, for the "
                   "build's setting SCRIVEL_PATCH_KEY, to standard output");
    app.footer("Exit status: 0 done; 1 there is no patch, for a reason given; 2 wrong usage.");
    try {
        app.parse(argc, argv);
        if (arguments.newKey.empty())
            for (const auto& [name, value] :
                 {std::pair("OLD", &arguments.before), std::pair("NEW", &arguments.after),
                  std::pair("-o", &arguments.patch)})
                if (value->empty())
                    throw CLI::RequiredError(name);
        if (arguments.newKey.empty() && arguments.key.empty() && kTestSeed.empty())
            throw CLI::RequiredError("--key");
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kUsage;
    }
    Complaints complaints("makePatch");
    try {
        if (arguments.newKey.empty())
            makePatch(arguments);
        else
            makeKey(arguments.newKey);
        if (!std::cout.flush())
            throw NoPatch("standard output: can't be written to");
    } catch (const FileError& error) {
        complaints.about(error.path(), error);
    } catch (const std::exception& error) {
        complaints.say(error.what());
    }
    return complaints.status();
}
