// The installer window: the first window that the program shows, and the flow behind its one
// button. A click checks that neither the product nor Word is open, asks before it overwrites, then
// unpacks the archive, moves the product into place, gives its folder an icon and launches it.
//
// myAppDelegate makes it and runs its window; it ends the modal session itself. It knows no
// toolkit: it works control models, and a front end shows them. Its own ecController runs the
// commands.
//
// Threads: everything on the main thread, but for the installation block, which runs on the
// background queue and reaches the window only through synchronous hops to the main queue. The
// object must outlive the block.
#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <string>

#include "platform/controls/Interface.h"
#include "platform/ports/Host.h"
#include "wizard/ecController.h"

namespace app {

class ScrivelInstaller {
  public:
    using Completion = std::function<void()>;
    using AlertHandler = std::function<void(int)>;

    /// How the window's session came to its end.
    enum class Ending {
        open,     ///< it has not ended
        closed,   ///< the user closed the window
        quit,     ///< "Quit Installer" at the question about running applications
        kept,     ///< "No": the installed copy stays
        finished, ///< the installation block is done, cancelled or not
    };

    /// `init`: loads the window "ScrivelInstaller" and prepares it.
    explicit ScrivelInstaller(const ports::Host& host);
    ScrivelInstaller(const ScrivelInstaller&) = delete;
    ScrivelInstaller& operator=(const ScrivelInstaller&) = delete;

    /// False when the interface file could not be loaded: there is no window to run.
    bool isWindowLoaded() const { return m_loaded; }
    controls::Window& window() { return m_window; }
    controls::Interface& outlets() { return m_outlets; }
    ec::ecController& controller() { return m_ecController; }
    Ending ending() const { return m_ending; }
    const std::string& archive() const { return m_svZipFile; }
    const std::string& destination() const { return m_destFolder; }

    /// `awakeFromNib`: the window's title, and a button title that stays legible in the dark
    /// appearance where the toolkit has one (version 1671 and later).
    void awakeFromNib();
    /// `windowShouldClose:` ends the session with 0 for the own window; always yes.
    bool windowShouldClose(controls::Window& sender);

    /// `isScrivelOrWordRunning`: the product is asked for first.
    bool isScrivelOrWordRunning() const;
    /// `checkForRunningApps:` calls the completion when both are closed; else asks in a sheet until
    /// they are or the user quits.
    void checkForRunningApps(Completion completion);
    /// `checkForInstalledApp:` calls the completion when no folder stands at the destination, or
    /// when the user agreed to overwrite and it was removed.
    void checkForInstalledApp(Completion completion);

    /// `installScrivel` turns the window busy and starts the installation block.
    void installScrivel();
    /// `beginInstallingApp` turns the window into its busy form.
    void beginInstallingApp();
    /// `shouldInstallApp`, `shouldLaunchApp`: the block's two checkpoints. Each shows its status
    /// text unless the user cancelled, and answers whether to go on.
    bool shouldInstallApp();
    bool shouldLaunchApp();
    /// `finishedInstallingApp` ends the session with 1 when the user cancelled, else 0.
    void finishedInstallingApp();

    /// `onClickInstallButton:` starts the chain of checks that ends in `installScrivel`.
    void onClickInstallButton();
    /// `onClickCancelButton:` asks the block to stop at its next checkpoint.
    void onClickCancelButton();

    bool cancelled() const { return m_cancelled; }
    void setCancelled(bool cancelled) { m_cancelled = cancelled; }

    /// The three sheets. The handler gets 1000 for the first button, 1001 for the second.
    void _show_unable_to_retrieve_alertSheet(AlertHandler handler);
    void _show_SV_or_Word_is_Running_alertSheet(AlertHandler handler);
    void _show_overwrite_alertSheet(AlertHandler handler);

    /// Shows what the tools report of their work; anything before the next status text.
    void showProgress(const ports::ToolProgress& progress);

    /// The window's outlets.
    controls::Progress m_progressIndicator;
    controls::TextField m_statusTextField;
    controls::Button m_button;

  private:
    void setButtonTitle(const std::string& title);
    void setStatus(ports::TextKey status);
    bool checkpoint(ports::TextKey status);
    void endSession(Ending ending, int code);
    std::string localized(ports::TextKey key) const { return m_host.texts.lookUp(key); }

    void runInstallationBlock();
    std::string makeTemporaryFolder() const;
    void install(const std::string& temporaryFolder);

    ports::Host m_host;
    ec::ecController m_ecController;

    controls::Window m_window;
    controls::Interface m_outlets;

    std::string m_resourcePath;
    std::string m_svZipFile;
    std::string m_destFolder;
    std::string m_bundledVersion;
    std::atomic<bool> m_cancelled = false;
    Ending m_ending = Ending::open;
    bool m_loaded = false;
};

} // namespace app
