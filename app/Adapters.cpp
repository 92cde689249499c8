#include "app/Adapters.h"

#include "app/SystemParts.h"
#include "app/WindowFrontEnd.h"
#include "cp/private/SystemFolders.h"
#include "platform/posix/DecidedAdministrator.h"
#include "platform/posix/EnglishTexts.h"

namespace app {

namespace {

ports::SystemPlaces placesOf(const CommandLine& options) {
    auto bases = Corvaldine::CP::Private::system_folder_bases();
    bases.root = options.root;
    bases.home = options.home;
    Corvaldine::CP::Private::set_system_folder_bases(bases);
    return {.root = bases.root, .home = bases.home, .temporary = bases.temporary};
}

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

/// Finds what runs, launches nothing: for --no-launch.
class NoLaunches final : public ports::Applications {
  public:
    explicit NoLaunches(std::unique_ptr<ports::Applications> inner) : m_inner(std::move(inner)) {}
    bool isRunning(std::string_view identifier) override { return m_inner->isRunning(identifier); }
    std::vector<std::string> pathsFor(std::string_view identifier) override {
        return m_inner->pathsFor(identifier);
    }
    std::optional<std::vector<std::string>> pathsForDocument(std::string_view document) override {
        return m_inner->pathsForDocument(document);
    }
    bool launch(const std::string&) override { return true; }

  private:
    std::unique_ptr<ports::Applications> m_inner;
};

} // namespace

Adapters::Adapters(const CommandLine& options, std::optional<bool> authorize)
    : places(placesOf(options)), systemLog(makeSystemLog()), bundles(makeBundles()),
      texts(options.unattended
                ? std::make_unique<posix::EnglishTexts>(bundles->mainResourceFolder())
                : makeTexts(bundles->mainResourceFolder(), preferredLanguages())),
      events(clock, mainQueue), spawnedTools({.ownToolsFolder = folderOf(bundles->mainExecutable()),
                                              .progress =
                                                  [this](const ports::ToolProgress& progress) {
                                                      mainQueue.post([this, progress] {
                                                          if (showProgress)
                                                              showProgress(progress);
                                                      });
                                                  },
                                              .whileWaiting = whileWaiting(options),
                                              .outputToError = options.events}),
      tools(spawnedTools, events),
      systemAdministrator(makeAdministrator(folderOf(bundles->mainExecutable()),
                                            options.unattended ? "" : "scrivel-askpass",
                                            whileWaiting(options))),
      decidedAdministrator(
          authorize
              ? std::make_unique<posix::DecidedAdministrator>(posix::DecidedAdministrator::Needs{
                    .inner = *systemAdministrator, .authorize = *authorize})
              : nullptr),
      administrator(decidedAdministrator ? *decidedAdministrator : *systemAdministrator, events),
      applications(makeApplications(places, *bundles)), finderFiles(makeFinderFiles()),
      backgroundQueue(makeBackgroundQueue()) {
    if (options.noLaunch)
        applications = std::make_unique<NoLaunches>(std::move(applications));
}

/// Keeps the window alive, where there is one.
std::function<void()> Adapters::whileWaiting(const CommandLine& options) {
    if (options.unattended)
        return nullptr;
    return [this] {
        if (keepAlive)
            keepAlive();
    };
}

} // namespace app
