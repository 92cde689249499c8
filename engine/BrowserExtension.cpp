#include "engine/BrowserExtension.h"

#include <filesystem>

#include <nlohmann/json.hpp>

#include "engine/AtomicFile.h"
#include "engine/FileBytes.h"
#include "engine/FolderListing.h"
#include "engine/Guarded.h"
#include "wizard/LaunchModes.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

constexpr const char* kUpdateAddress = "external_update_url";
constexpr std::string_view kManifest =
    "https://" SCRIVEL_MANIFEST_HOST "/extensions/chrome/update-manifest.xml";
constexpr std::string_view kStoreHost = SCRIVEL_CHROME_STORE_HOST;
constexpr const char* kOwner = "root:wheel";

/// The file's one line. The writer leaves slashes as they are.
std::string content() {
    return nlohmann::json{{kUpdateAddress, kManifest}}.dump();
}

bool isThere(const std::string& file) {
    return leadsSomewhere(file) && !isFolder(file);
}

} // namespace

MethodAnswer BrowserExtension::installTessaronMode(OpMode mode, std::uint32_t, OptionalText,
                                                   OptionalText) {
    return guarded(m_needs.log, -1, [&] {
        m_needs.log.logInstall("Tessaron Extension", mode);
        bool answer = false;
        if (mode == OpMode::check)
            answer = check();
        else if (mode == OpMode::copy)
            answer = copy();
        else if (mode == OpMode::remove)
            answer = remove();
        return MethodAnswer::of(answer ? 1 : 0);
    });
}

bool BrowserExtension::check() const {
    switch (m_needs.session.m_mode) {
    case launch::kAssumedInstalled:
    case launch::kPenmark:
        return true;
    case launch::kCustomize:
        return isThere(file());
    default:
        return false;
    }
}

bool BrowserExtension::remove() {
    if (isThere(file()))
        (void)m_needs.runner.launchRootApp("/bin/rm", Params{{std::string("-f"), file()}});
    return !leadsSomewhere(file());
}

bool BrowserExtension::copy() {
    const fs::path target(file());
    const std::string folder = target.parent_path().native();
    const std::string staging =
        inFolder(m_needs.session.places.temporary, target.filename().native());
    if (!writeAtomically(staging, content()))
        return false;
    const auto asAdministrator = [&](const char* tool, std::vector<std::string> arguments) {
        (void)m_needs.runner.launchRootApp(tool, Params{std::move(arguments)});
    };
    asAdministrator("/bin/mkdir", {"-p", folder});
    asAdministrator("/bin/chown", {"-R", kOwner, folder});
    asAdministrator("/bin/cp", {staging, target.native()});
    asAdministrator("/bin/chown", {kOwner, target.native()});
    std::error_code ignored;
    fs::remove(staging, ignored);
    return isThere(target.native());
}

bool BrowserExtension::useChromeStore() const {
    if (!isThere(file()))
        return true;
    const auto object = nlohmann::json::parse(bytesOfFile(file()), nullptr, false);
    if (!object.is_object())
        return true;
    const auto address = object.find(kUpdateAddress);
    return address == object.end() || !address->is_string() ||
           address->get_ref<const std::string&>().find(kStoreHost) != std::string::npos;
}

ComponentParts BrowserExtension::extensionParts() const {
    return {.copies = {{.source = {}, .destination = file(), .text = content()}},
            .traces = {file()}};
}

} // namespace ec
