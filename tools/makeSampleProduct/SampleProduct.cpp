#include "tools/makeSampleProduct/SampleProduct.h"

#include <array>
#include <string_view>

#include "tools/makeSampleProduct/SampleFile.h"
#include "tools/makeSampleProduct/UserAttribute.h"

namespace tools {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kInfo = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>CFBundleExecutable</key><string>Scrivel 21</string>
    <key>CFBundleIconFile</key><string>Scrivel</string>
    <key>CFBundleIdentifier</key><string>com.BrackleyCorvaldine.Scrivel</string>
    <key>CFBundleName</key><string>Scrivel 21</string>
    <key>CFBundlePackageType</key><string>APPL</string>
    <key>CFBundleShortVersionString</key><string>@VERSION@</string>
    <key>CFBundleVersion</key><string>@VERSION@</string>
    <key>CFBundleDocumentTypes</key>
    <array>
        <dict>
            <key>CFBundleTypeName</key><string>Scrivel Library</string>
            <key>CFBundleTypeExtensions</key><array><string>enl</string></array>
            <key>CFBundleTypeRole</key><string>Editor</string>
        </dict>
    </array>
</dict>
</plist>
)";

/// Journals and their abbreviations, combined into the names of a few thousand content files.
constexpr std::array<std::string_view, 12> kFields{
    "Anatomy",   "Botany",  "Chemistry", "Dermatology", "Économie", "Füchse und Vögel",
    "Geography", "History", "数学",      "Médecine",    "Ελληνικά", "Zoölogy"};
constexpr int kFilesOfEachField = 220;

void makeApplication(const SampleProduct& product, const fs::path& bundle) {
    const fs::path contents = bundle / "Contents";
    writeSample(contents / "Info.plist", replaced(kInfo, "@VERSION@", product.version));
    writeSample(contents / "PkgInfo", "APPL????");
    fs::create_directories(contents / "MacOS");
    const fs::path program = contents / "MacOS" / "Scrivel 21";
    fs::copy_file(product.executable, program, fs::copy_options::overwrite_existing);
    fs::permissions(program, static_cast<fs::perms>(0755));
    fs::create_directories(contents / "Resources");
    if (fs::exists(product.icon))
        fs::copy_file(product.icon, contents / "Resources" / "Scrivel.icns",
                      fs::copy_options::overwrite_existing);
    for (const std::string language : {"en", "de", "ja"})
        writeSample(contents / "Resources" / (language + ".lproj") / "InfoPlist.strings",
                    "/* " + language + " */\n\"CFBundleName\" = \"Scrivel 21\";\n");

    // A framework as the platform lays it out: versions behind links.
    const fs::path engine = contents / "Frameworks" / "Citations.framework";
    writeSample(engine / "Versions" / "A" / "Citations", citationStyle("engine", 39));
    fs::permissions(engine / "Versions" / "A" / "Citations", static_cast<fs::perms>(0755));
    writeSample(engine / "Versions" / "A" / "Resources" / "rules.txt", citationStyle("rules", 17));
    fs::create_directory_symlink("A", engine / "Versions" / "Current");
    fs::create_symlink("Versions/Current/Citations", engine / "Citations");
    fs::create_directory_symlink("Versions/Current/Resources", engine / "Resources");
}

void makeContent(const fs::path& top) {
    for (const std::string_view field : kFields)
        for (int number = 1; number <= kFilesOfEachField; ++number)
            writeSample(top / "Styles" / field /
                            (std::string(field) + " " + std::to_string(number) + ".svstyle"),
                        citationStyle(field, number));
    writeSample(top / "Read Me.txt",
                "Scrivel 21\n\nOpen \"Scrivel 21\" to begin. Your libraries stay "
                "where you keep them.\n");
    writeSample(top / "Examples" / "Sample Library.enl", citationStyle("library", 30));
    writeSample(top / "Examples" / "empty.txt", "");
    fs::create_directories(top / "Examples" / "Attachments");
    setUserAttribute(top / "Read Me.txt", "com.BrackleyCorvaldine.origin", "installer");
    setUserAttribute(top / "Examples", "com.BrackleyCorvaldine.purpose", "examples");
}

} // namespace

void makeSampleProduct(const SampleProduct& product, const fs::path& top) {
    fs::remove_all(top);
    makeApplication(product, top / "Scrivel 21.app");
    makeContent(top);
}

} // namespace tools
