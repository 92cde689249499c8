// The version of a single-file application, from whatever its resource fork holds: the bytes are
// the fork, and again the AppleDouble file that the fork comes from. Both questions about the
// version must give the same answer, and one that two decimal digits can hold.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <utility>

#include "platform/formats/AppleDouble.h"
#include "tests/fakes/FakeHost.h"
#include "word/AppDiscovery.h"

namespace {

void demand(bool fact) {
    if (!fact)
        std::abort();
}

/// Discovery over a file with a pretended fork.
class Application {
  public:
    void check(formats::Bytes fork) {
        m_host.finderFiles.forks[kPath] = std::move(fork);
        constexpr std::uint32_t kUntouched = 1000;
        std::uint32_t major = kUntouched;
        std::uint32_t minor = kUntouched;
        std::uint32_t patch = kUntouched;
        std::uint32_t build = kUntouched;
        const int version = m_discovery.getMajorVersion(kPath);
        demand(m_discovery.getFileVersion(kPath, major, minor, patch, build) == 0);
        demand(patch == kUntouched);
        if (version == ec::AppDiscovery::kUnknownVersion)
            demand(major == kUntouched && minor == kUntouched && build == kUntouched);
        else
            demand(version >= 0 && version <= 99 && major == static_cast<std::uint32_t>(version) &&
                   minor <= 99 && build <= 99);
    }

  private:
    static constexpr const char* kPath = "/dev/null"; // is there, and no folder

    fakes::FakeHost m_host;
    controls::TextField m_text;
    ec::WizardSession m_session{m_host.bundles, m_host.places};
    ec::InstallLog m_log{{.places = m_host.places,
                          .clock = m_host.clock,
                          .streams = m_host.streams,
                          .texts = m_host.texts,
                          .processingText = m_text,
                          .written = {}}};
    ec::Breadcrumbs m_crumbs{{.log = m_log, .session = m_session, .lists = m_host.propertyLists}};
    ec::AppDiscovery m_discovery{{.log = m_log,
                                  .session = m_session,
                                  .breadcrumbs = m_crumbs,
                                  .applications = m_host.applications,
                                  .bundles = m_host.bundles,
                                  .finderFiles = m_host.finderFiles}};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Application application;
    const auto bytes = std::as_bytes(std::span(data, size));
    application.check({bytes.begin(), bytes.end()});
    if (const auto beside = formats::readAppleDouble(bytes))
        application.check(beside->resourceFork);
    return 0;
}
