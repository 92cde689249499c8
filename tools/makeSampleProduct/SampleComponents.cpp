#include "tools/makeSampleProduct/SampleComponents.h"

#include <array>
#include <string_view>

#include "tools/makeSampleProduct/SampleFile.h"

namespace tools {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kInfo = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>CFBundleExecutable</key><string>@NAME@</string>
    <key>CFBundleIdentifier</key><string>com.BrackleyCorvaldine.@IDENTIFIER@</string>
    <key>CFBundleName</key><string>@NAME@</string>
    <key>CFBundlePackageType</key><string>@TYPE@</string>
    <key>CFBundleShortVersionString</key><string>@VERSION@</string>
    <key>CFBundleVersion</key><string>@VERSION@</string>
</dict>
</plist>
)";

struct Bundle {
    std::string_view path; ///< relative to the disk, or to the folder of the importers
    std::string_view name; ///< of its program
    std::string_view identifier;
    std::string_view type;
};
constexpr std::array kBundles{
    Bundle{"Penmark/Scrivel PMRK Word 2016.bundle", "Scrivel PMRK Word 2016", "PenmarkWord2016",
           "BNDL"},
    Bundle{"Penmark/Scrivel PMRK Word 16.bundle", "Scrivel PMRK Word 16", "PenmarkWord16", "BNDL"},
    Bundle{"Services/SVService.app", "SVService", "SVService", "APPL"},
};
constexpr Bundle kImporter{"Scrivel.mdimporter", "Scrivel", "SpotlightImporter", "BNDL"};

/// What a category holds, and how many of its files are among the most popular.
struct Category {
    std::string_view collection;
    std::string_view name;
    std::string_view extension;
    int files;
    int popular;
};
constexpr std::array kCategories{
    Category{"Filters", "Chemistry", "svfilter", 4, 1},
    Category{"Filters", "Economics", "svfilter", 3, 0},
    Category{"Filters", "History", "svfilter", 3, 0},
    Category{"Filters", "Law", "svfilter", 5, 0},
    Category{"Filters", "Medicine", "svfilter", 6, 2},
    Category{"Filters", "Physics", "svfilter", 4, 1},
    Category{"Styles", "Engineering", "svstyle", 4, 1},
    Category{"Styles", "Humanities", "svstyle", 5, 2},
    Category{"Styles", "Sciences", "svstyle", 6, 2},
};

void makeBundle(const Bundle& bundle, const fs::path& folder, const SampleComponents& components) {
    const fs::path contents = folder / bundle.path / "Contents";
    std::string info = replaced(kInfo, "@NAME@", bundle.name);
    info = replaced(info, "@IDENTIFIER@", bundle.identifier);
    info = replaced(info, "@TYPE@", bundle.type);
    writeSample(contents / "Info.plist", replaced(info, "@VERSION@", components.version));
    writeSample(contents / "Resources/en.lproj/InfoPlist.strings",
                "\"CFBundleName\" = \"" + std::string(bundle.name) + "\";\n");
    const fs::path program = contents / "MacOS" / bundle.name;
    fs::create_directories(program.parent_path());
    fs::copy_file(components.executable, program);
    fs::permissions(program, static_cast<fs::perms>(0755));
}

void makeCategory(const Category& category, const fs::path& content) {
    for (int number = 1; number <= category.files; ++number) {
        const std::string name = std::string(category.name) + " " + std::to_string(number) + "." +
                                 std::string(category.extension);
        const std::string text = citationStyle(category.name, number);
        writeSample(content / category.collection / category.name / name, text);
        if (number <= category.popular)
            writeSample(content / "Most Popular" / category.collection / name, text);
    }
}

} // namespace

void makeSampleComponents(const SampleComponents& components) {
    const fs::path content = components.disk / "Product-Support/Content.bundle";
    for (const char* folder : {"Penmark", "Services", "Product-Support"})
        fs::remove_all(components.disk / folder);
    fs::remove_all(components.importers);
    for (const Bundle& bundle : kBundles)
        makeBundle(bundle, components.disk, components);
    makeBundle(kImporter, components.importers, components);
    for (const Category& category : kCategories)
        makeCategory(category, content);
    writeSample(
        components.disk / "Read Me.txt",
        "Scrivel 21\n\nOpen \"Scrivel 21 Installer\" to install Scrivel 21 and what belongs "
        "to it.\n");
}

} // namespace tools
