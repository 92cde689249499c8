#include "tools/makeSampleProduct/SampleProduct.h"

#include <array>
#include <fstream>
#include <stdexcept>
#include <string_view>

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

void write(const fs::path& path, std::string_view text) {
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush())
        throw std::runtime_error(path.string() + ": can't be written");
}

std::string withVersion(std::string_view text, const std::string& version) {
    std::string filled(text);
    constexpr std::string_view kMark = "@VERSION@";
    for (std::size_t at; (at = filled.find(kMark)) != std::string::npos;)
        filled.replace(at, kMark.size(), version);
    return filled;
}

/// Text that packs as real content does: repetitive, but not all the same.
std::string citationStyle(std::string_view field, int number) {
    std::string text = "style: " + std::string(field) + " " + std::to_string(number) + "\n";
    unsigned state = 2166136261u;
    for (const char c : text)
        state = (state ^ static_cast<unsigned char>(c)) * 16777619u;
    static constexpr std::array<std::string_view, 8> kRules{
        "author, title. journal volume", "author (year) title",
        "title / author; year",          "author: title, in: journal",
        "journal volume:pages (year)",   "author. year. title. publisher",
        "abbreviate journal names",      "page range elided"};
    for (int line = 0; line < 12 + number % 40; ++line) {
        state = state * 1664525u + 1013904223u;
        text += "rule " + std::to_string(state % 9973) + ": " +
                std::string(kRules[state >> 16 & 7]) + "\n";
    }
    return text;
}

void makeApplication(const SampleProduct& product, const fs::path& bundle) {
    const fs::path contents = bundle / "Contents";
    write(contents / "Info.plist", withVersion(kInfo, product.version));
    write(contents / "PkgInfo", "APPL????");
    fs::create_directories(contents / "MacOS");
    const fs::path program = contents / "MacOS" / "Scrivel 21";
    fs::copy_file(product.executable, program, fs::copy_options::overwrite_existing);
    fs::permissions(program, static_cast<fs::perms>(0755));
    fs::create_directories(contents / "Resources");
    if (fs::exists(product.icon))
        fs::copy_file(product.icon, contents / "Resources" / "Scrivel.icns",
                      fs::copy_options::overwrite_existing);
    for (const std::string language : {"en", "de", "ja"})
        write(contents / "Resources" / (language + ".lproj") / "InfoPlist.strings",
              "/* " + language + " */\n\"CFBundleName\" = \"Scrivel 21\";\n");

    // A framework as the platform lays it out: versions behind links.
    const fs::path engine = contents / "Frameworks" / "Citations.framework";
    write(engine / "Versions" / "A" / "Citations", citationStyle("engine", 39));
    fs::permissions(engine / "Versions" / "A" / "Citations", static_cast<fs::perms>(0755));
    write(engine / "Versions" / "A" / "Resources" / "rules.txt", citationStyle("rules", 17));
    fs::create_directory_symlink("A", engine / "Versions" / "Current");
    fs::create_symlink("Versions/Current/Citations", engine / "Citations");
    fs::create_directory_symlink("Versions/Current/Resources", engine / "Resources");
}

void makeContent(const fs::path& top) {
    for (const std::string_view field : kFields)
        for (int number = 1; number <= kFilesOfEachField; ++number)
            write(top / "Styles" / field /
                      (std::string(field) + " " + std::to_string(number) + ".svstyle"),
                  citationStyle(field, number));
    write(top / "Read Me.txt", "Scrivel 21\n\nOpen \"Scrivel 21\" to begin. Your libraries stay "
                               "where you keep them.\n");
    write(top / "Examples" / "Sample Library.enl", citationStyle("library", 30));
    write(top / "Examples" / "empty.txt", "");
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
