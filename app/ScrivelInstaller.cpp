#include "app/ScrivelInstaller.h"

#include <cmath>
#include <filesystem>

#include "cp/CDir.h"
#include "cp/CException.h"
#include "cp/CFileUtils.h"
#include "cp/CPath.h"
#include "cp/StringHelpers.h"
#include "engine/LogText.h"
#include "engine/Product.h"
#include "platform/ports/PlatformError.h"

namespace app {

namespace fs = std::filesystem;
namespace product = ec::product;
using ec::formatted;

namespace {

constexpr ports::TextKey kExtracting = "Extracting %@…";
constexpr ports::TextKey kInstalling = "Installing %@ to the Applications folder…";
constexpr ports::TextKey kLaunching = "Launching %@ for the first time…";
constexpr ports::TextKey kCanceling = "Canceling…";

/// The toolkit version that came with a dark appearance.
constexpr double kFirstDarkToolkit = 1671;

constexpr std::string_view kTemporaryPrefix = "SV";
constexpr int kTemporaryFolderAttempts = 16;

bool isFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool exists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// Removes a folder of our own, also one whose folders came out of the archive write-protected.
void removeTree(const std::string& path) {
    std::error_code failure;
    fs::remove_all(path, failure);
    if (!failure)
        return;
    const auto options = fs::directory_options::skip_permission_denied;
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add, failure);
    for (fs::recursive_directory_iterator item(path, options, failure), end;
         !failure && item != end; item.increment(failure))
        if (item->is_directory(failure) && !item->is_symlink(failure))
            fs::permissions(item->path(), fs::perms::owner_all, fs::perm_options::add, failure);
    fs::remove_all(path, failure);
}

} // namespace

ScrivelInstaller::ScrivelInstaller(const ports::Host& host)
    : m_host(host), m_ecController(host),
      m_outlets{m_window,
                {{"m_button", &m_button},
                 {"m_statusTextField", &m_statusTextField},
                 {"m_progressIndicator", &m_progressIndicator}}},
      m_resourcePath(host.bundles.mainResourceFolder()),
      m_svZipFile(m_resourcePath + std::string(product::kArchiveName)),
      m_destFolder(host.places.system(product::kDestinationFolder)),
      m_bundledVersion(product::kVersion) {
    m_progressIndicator.setHidden(true);
    m_button.setAction([this] { onClickInstallButton(); });
    m_window.setShouldClose([this](controls::Window& sender) { return windowShouldClose(sender); });
    m_loaded = m_host.interfaceFiles.load("ScrivelInstaller", m_outlets);
    if (m_loaded)
        awakeFromNib();
}

void ScrivelInstaller::setButtonTitle(const std::string& title) {
    if (std::floor(m_host.appearance.toolkitVersion()) >= kFirstDarkToolkit)
        m_button.setAttributedTitle(
            controls::StyledText::coloured(title, controls::Colour::black()));
    else
        m_button.setTitle(title);
}

void ScrivelInstaller::setStatus(ports::TextKey status) {
    m_statusTextField.setText(formatted(localized(status), {product::kDisplayName}));
}

void ScrivelInstaller::awakeFromNib() {
    m_window.setTitle(formatted(localized("Install %@"), {product::kDisplayName}));
    setButtonTitle(m_button.title());
}

void ScrivelInstaller::endSession(Ending ending, int code) {
    m_ending = ending;
    m_host.modalLoop.stopModalWithCode(code);
}

bool ScrivelInstaller::windowShouldClose(controls::Window& sender) {
    if (&sender == &m_window)
        endSession(Ending::closed, 0);
    return true;
}

bool ScrivelInstaller::isScrivelOrWordRunning() const {
    return m_ecController.isAppWithBundleIDRunning(product::kBundleIdentifier) ||
           m_ecController.isWordRunning();
}

void ScrivelInstaller::checkForRunningApps(Completion completion) {
    if (!isScrivelOrWordRunning())
        return completion();
    _show_SV_or_Word_is_Running_alertSheet([this, completion = std::move(completion)](int answer) {
        if (answer == ports::AlertSheets::kSecondButton)
            return endSession(Ending::quit, 0);
        m_host.mainQueue.post([this, completion] { checkForRunningApps(completion); });
    });
}

void ScrivelInstaller::checkForInstalledApp(Completion completion) {
    if (!isFolder(m_destFolder))
        return completion();
    _show_overwrite_alertSheet([this, completion = std::move(completion)](int answer) {
        if (answer != ports::AlertSheets::kSecondButton)
            return endSession(Ending::kept, 0);
        (void)m_ecController.removeFile(m_destFolder);
        completion();
    });
}

void ScrivelInstaller::onClickInstallButton() {
    checkForRunningApps([this] { checkForInstalledApp([this] { installScrivel(); }); });
}

void ScrivelInstaller::onClickCancelButton() {
    setCancelled(true);
    setStatus(kCanceling);
    m_button.setEnabled(false);
}

void ScrivelInstaller::beginInstallingApp() {
    m_button.setAction([this] { onClickCancelButton(); });
    setButtonTitle(localized("Cancel"));
    m_progressIndicator.setHidden(false);
    m_progressIndicator.startAnimation();
    setStatus(kExtracting);
}

void ScrivelInstaller::showProgress(const ports::ToolProgress& progress) {
    m_progressIndicator.setAmount({progress.done, progress.total, progress.files});
}

bool ScrivelInstaller::checkpoint(ports::TextKey status) {
    bool goOn = false;
    m_host.mainQueue.sync([&] {
        if (!cancelled()) {
            setStatus(status);
            m_progressIndicator.setAmount({}); // the next work counts anew
        }
        // Read on the main thread too, so that a click between the two can't fall through.
        goOn = !cancelled();
    });
    return goOn;
}

bool ScrivelInstaller::shouldInstallApp() {
    return checkpoint(kInstalling);
}

bool ScrivelInstaller::shouldLaunchApp() {
    return checkpoint(kLaunching);
}

void ScrivelInstaller::finishedInstallingApp() {
    m_host.mainQueue.sync([this] {
        if (m_ending == Ending::open)
            endSession(Ending::finished, cancelled() ? 1 : 0);
    });
}

void ScrivelInstaller::installScrivel() {
    beginInstallingApp();
    m_host.backgroundQueue.async([this] { runInstallationBlock(); });
}

void ScrivelInstaller::runInstallationBlock() {
    const auto report = [this](std::string_view what) {
        m_host.systemLog.write("Error installing Scrivel:" + std::string(what));
    };
    std::string temporaryFolder;
    try {
        if (exists(m_svZipFile)) {
            temporaryFolder = makeTemporaryFolder();
            install(temporaryFolder);
        }
    } catch (const ports::PlatformError& error) {
        report(error.what());
    } catch (const Corvaldine::CP::CException& error) {
        report(error.what()); // no temporary folder could be made; nothing was started
    } catch (const std::exception& error) {
        report(error.what());
    }
    if (!temporaryFolder.empty() && exists(temporaryFolder))
        removeTree(temporaryFolder);
    finishedInstallingApp();
}

std::string ScrivelInstaller::makeTemporaryFolder() const {
    using namespace Corvaldine::CP;
    for (int attempt = 0; attempt < kTemporaryFolderAttempts; ++attempt) {
        CPath path;
        if (CFileUtils::temp_file(path, std::string(kTemporaryPrefix).c_str(), 0))
            CFileUtils::remove(path);
        const bool made = CDir::create(path, false);
        const std::wstring& wide = path;
        const std::string folder = SVCommon_NSStringConversionHelpers::to_utf8_std_string(
            SVCommon_NSStringConversionHelpers::stringWith_std_wstring(wide));
        if (made || !exists(folder))
            return folder;
        // The names can be guessed: a folder that somebody else made meanwhile is not ours to use.
    }
    throw ports::PlatformError("no temporary folder of one's own can be made");
}

void ScrivelInstaller::install(const std::string& temporaryFolder) {
    // What the tool says is not looked at: the log has it, and a missing folder fails the copy.
    (void)m_ecController.execCmdLineApp(
        "/usr/bin/ditto",
        ec::Params{{std::string("-xk"), "--noqtn", m_svZipFile, temporaryFolder}});
    if (!shouldInstallApp())
        return;
    const std::string product = temporaryFolder + "/" + std::string(product::kArchiveTopFolder);
    (void)m_ecController.copyPath(product, m_destFolder);
    (void)m_ecController.removeFile(product);
    const std::string icon = m_resourcePath + "/" + std::string(product::kFolderIconName);
    if (exists(icon))
        (void)m_host.finderFiles.setFolderIcon(m_destFolder, icon);
    if (shouldLaunchApp())
        (void)m_host.applications.launch(m_destFolder + "/" + std::string(product::kDisplayName) +
                                         ".app");
}

void ScrivelInstaller::_show_unable_to_retrieve_alertSheet(AlertHandler handler) {
    m_host.alertSheets.beginSheet(
        {ports::AlertStyle::critical,
         formatted(localized("Unable to retreived required files for %@ installation."),
                   {product::kDisplayName}),
         localized("Please try again later."),
         {localized("OK")}},
        m_window, std::move(handler));
}

void ScrivelInstaller::_show_SV_or_Word_is_Running_alertSheet(AlertHandler handler) {
    m_host.alertSheets.beginSheet(
        {ports::AlertStyle::critical,
         formatted(localized("Scrivel and Microsoft Word cannot be open during %@ installation."),
                   {product::kDisplayName}),
         localized("Please quit Scrivel and Microsoft Word and click the OK button to continue, "
                   "or click the Quit Installer button to quit this installer."),
         {localized("OK"), localized("Quit Installer")}},
        m_window, std::move(handler));
}

void ScrivelInstaller::_show_overwrite_alertSheet(AlertHandler handler) {
    const auto installed = m_ecController.getBundleStringForPath(
        m_destFolder + "/" + std::string(product::kDisplayName) + ".app",
        "CFBundleShortVersionString");
    const std::string informative =
        installed ? formatted(localized("You are about to install %@ version %@, but version %@ is "
                                        "already installed.  This cannot be undone."),
                              {product::kDisplayName, m_bundledVersion, *installed})
                  : "This cannot be undone.";
    m_host.alertSheets.beginSheet(
        {ports::AlertStyle::warning,
         formatted(localized("Would you like to overwrite the %@ at /Applications/%@?"),
                   {product::kDisplayName, product::kDisplayName}),
         informative,
         {localized("No"), localized("Yes")},
         /*escapeButton=*/0},
        m_window, std::move(handler));
}

} // namespace app
