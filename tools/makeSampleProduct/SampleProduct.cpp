#include "tools/makeSampleProduct/SampleProduct.h"

#include <array>
#include <string_view>

#include "tools/makeSampleProduct/SampleContent.h"
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
    const std::string current = releaseOf(product.version) == 0 ? "A" : "B";
    writeSample(engine / "Versions" / current / "Citations", citationStyle("engine", 39));
    fs::permissions(engine / "Versions" / current / "Citations", static_cast<fs::perms>(0755));
    writeSample(engine / "Versions" / current / "Resources" / "rules.txt",
                citationStyle("rules", 17));
    fs::create_directory_symlink(current, engine / "Versions" / "Current");
    fs::create_symlink("Versions/Current/Citations", engine / "Citations");
    fs::create_directory_symlink("Versions/Current/Resources", engine / "Resources");
}

// An update edits each style whose number ends so, and drops the last of each field.
constexpr int kEditedEvery = 20;
constexpr int kEdition = 7;

void makeStyles(const fs::path& styles, int release) {
    const int files = kFilesOfEachField - (release > 0);
    for (const std::string_view field : kFields)
        for (int number = 1; number <= files; ++number) {
            const bool isEdited = release > 0 && number % kEditedEvery == 0;
            writeSample(styles / field /
                            (std::string(field) + " " + std::to_string(number) + ".svstyle"),
                        citationStyle(field, number + (isEdited ? kEdition : 0)));
        }
    if (release > 0)
        for (int number = 1; number <= kEditedEvery; ++number)
            writeSample(styles / "Informatics" /
                            ("Informatics " + std::to_string(number) + ".svstyle"),
                        citationStyle("Informatics", number));
}

// In an update the library has moved, a folder has gone and attributes are others.
void makeExamples(const fs::path& top, int release) {
    const fs::path examples = top / "Examples";
    writeSample(examples / (release == 0 ? "" : "Libraries") / "Sample Library.enl",
                citationStyle("library", 30));
    writeSample(examples / "empty.txt", "");
    if (release == 0)
        fs::create_directories(examples / "Attachments");
    setUserAttribute(examples, "com.BrackleyCorvaldine.purpose", "examples");
}

void makeReadMe(const fs::path& top, int release) {
    writeSample(top / "Read Me.txt",
                "Scrivel 21\n\nOpen \"Scrivel 21\" to begin. Your libraries stay "
                "where you keep them.\n");
    setUserAttribute(top / "Read Me.txt", "com.BrackleyCorvaldine.origin",
                     release == 0 ? "installer" : "update");
    if (release > 0)
        writeSample(top / "What Is New.txt", "Styles for informatics, and better filters.\n");
}

} // namespace

void makeSampleProduct(const SampleProduct& product, const fs::path& top) {
    fs::remove_all(top);
    makeApplication(product, top / "Scrivel 21.app");
    const int release = releaseOf(product.version);
    makeStyles(top / "Styles", release);
    makeExamples(top, release);
    makeReadMe(top, release);
    makeAddIns(top, product.executable, product.version);
    makeContentBundle(top, release);
}

} // namespace tools
