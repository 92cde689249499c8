#include "tools/makeSampleProduct/SampleComponents.h"

#include "tools/makeSampleProduct/SampleContent.h"
#include "tools/makeSampleProduct/SampleFile.h"

namespace tools {

namespace fs = std::filesystem;

namespace {

constexpr SampleBundle kServices{"Services/SVService.app", "SVService", "SVService", "APPL"};
constexpr SampleBundle kImporter{"Scrivel.mdimporter", "Scrivel", "SpotlightImporter", "BNDL"};

} // namespace

void makeSampleComponents(const SampleComponents& components) {
    for (const char* folder : {"Penmark", "Services", "Product-Support"})
        fs::remove_all(components.disk / folder);
    fs::remove_all(components.importers);
    makeAddIns(components.disk, components.executable, components.version);
    makeSampleBundle(kServices, components.disk, components.executable, components.version);
    makeSampleBundle(kImporter, components.importers, components.executable, components.version);
    makeContentBundle(components.disk, releaseOf(components.version));
    writeSample(
        components.disk / "Read Me.txt",
        "Scrivel 21\n\nOpen \"Scrivel 21 Installer\" to install Scrivel 21 and what belongs "
        "to it.\n");
}

} // namespace tools
