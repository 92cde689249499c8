#include "tools/makeSampleProduct/SampleContent.h"

#include <algorithm>
#include <array>
#include <cstdlib>

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

constexpr std::array kAddIns{
    SampleBundle{"Penmark/Scrivel PMRK Word 2016.bundle", "Scrivel PMRK Word 2016",
                 "PenmarkWord2016", "BNDL"},
    SampleBundle{"Penmark/Scrivel PMRK Word 16.bundle", "Scrivel PMRK Word 16", "PenmarkWord16",
                 "BNDL"},
};

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

// The category that an update touches, and how: its first file goes, its second is another, and
// there is one more.
constexpr std::string_view kUpdatedCategory = "Medicine";
constexpr int kEdition = 30;

void makeCategory(const Category& category, const fs::path& content, int release) {
    const bool isUpdated = release > 0 && category.name == kUpdatedCategory;
    for (int number = 1 + isUpdated; number <= category.files + isUpdated; ++number) {
        const std::string name = std::string(category.name) + " " + std::to_string(number) + "." +
                                 std::string(category.extension);
        const std::string text =
            citationStyle(category.name, isUpdated && number == 2 ? number + kEdition : number);
        writeSample(content / category.collection / category.name / name, text);
        if (number <= category.popular)
            writeSample(content / "Most Popular" / category.collection / name, text);
    }
}

} // namespace

void makeSampleBundle(const SampleBundle& bundle, const fs::path& folder,
                      const fs::path& executable, std::string_view version) {
    const fs::path contents = folder / bundle.path / "Contents";
    std::string info = replaced(kInfo, "@NAME@", bundle.name);
    info = replaced(info, "@IDENTIFIER@", bundle.identifier);
    info = replaced(info, "@TYPE@", bundle.type);
    writeSample(contents / "Info.plist", replaced(info, "@VERSION@", version));
    writeSample(contents / "Resources/en.lproj/InfoPlist.strings",
                "\"CFBundleName\" = \"" + std::string(bundle.name) + "\";\n");
    const fs::path program = contents / "MacOS" / bundle.name;
    fs::create_directories(program.parent_path());
    fs::copy_file(executable, program);
    fs::permissions(program, static_cast<fs::perms>(0755));
}

void makeAddIns(const fs::path& folder, const fs::path& executable, std::string_view version) {
    for (const SampleBundle& addIn : kAddIns)
        makeSampleBundle(addIn, folder, executable, version);
}

void makeContentBundle(const fs::path& folder, int release) {
    for (const Category& category : kCategories)
        makeCategory(category, folder / "Product-Support/Content.bundle", release);
}

int releaseOf(std::string_view version) {
    for (int points = 0; points < 2; ++points)
        version.remove_prefix(std::min(version.find('.'), version.size() - 1) + 1);
    return std::atoi(std::string(version).c_str());
}

} // namespace tools
