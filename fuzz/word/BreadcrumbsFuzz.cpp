// The preferences file may hold anything: whatever the bytes, a record that is added is saved and
// found by the next run together with the installer's path, what was readable before is still
// there, and what was not is kept under its second name.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/EnglishTexts.h"
#include "platform/posix/FilePropertyLists.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/PlistBundles.h"
#include "platform/posix/SystemClock.h"
#include "word/Breadcrumbs.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kRecord = "/Applications/Word.app|||/Startup|||16";

void demand(bool fact) {
    if (!fact)
        std::abort();
}

/// A home folder that is gone when the program ends.
class Home {
  public:
    Home() {
        std::string name = (fs::temp_directory_path() / "scrivel-fuzz-XXXXXX").string();
        demand(::mkdtemp(name.data()) != nullptr);
        m_path = name;
        fs::create_directories(m_path / "Library/Preferences");
    }
    ~Home() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    std::string path() const { return m_path.string(); }

  private:
    fs::path m_path;
};

/// A string as XML can hold it.
std::optional<std::string> upToZero(std::optional<std::string> text) {
    return text ? std::optional(std::string(text->c_str())) : std::nullopt;
}

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Home home;
    static const ports::SystemPlaces places{.root = "", .home = home.path(), .temporary = "/tmp"};
    static posix::PlistBundles bundles("/bin/true");
    static posix::SystemClock clock;
    static posix::FileTextStreams streams;
    static posix::FilePropertyLists lists;
    static const posix::EnglishTexts texts(home.path());
    static controls::TextField text;
    static const ec::WizardSession session(bundles, places);
    static ec::InstallLog log({.places = places, // there is no folder for a log
                               .clock = clock,
                               .streams = streams,
                               .texts = texts,
                               .processingText = text,
                               .written = {}});
    const std::string path = places.expandTilde(ec::kBreadcrumbsFile);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::ofstream(path, std::ios::binary) << bytes;

    const auto before = lists.readFile(path);
    const bool wasBroken = before.outcome == ports::ReadDictionary::Outcome::broken;
    ec::Breadcrumbs crumbs({.log = log, .session = session, .lists = lists});
    crumbs.readBreadcrumbs();
    crumbs.addWordCrumb(kRecord);

    const auto after = lists.readFile(path);
    demand(after.outcome == ports::ReadDictionary::Outcome::read);
    demand(after.dictionary->string("Scrivel") == session.m_execPath);
    const auto records = after.dictionary->strings("Word");
    demand(records && records == crumbs.wordCrumbs());
    bool isThere = false;
    for (const std::string& record : *records)
        isThere = isThere || record == kRecord;
    demand(isThere);
    if (wasBroken)
        demand(contents(path + ".damaged") == bytes);
    if (before.dictionary)
        for (const char* key : {"a", "k", "Other"})
            demand(after.dictionary->string(key) == upToZero(before.dictionary->string(key)));
    fs::remove(path);
    fs::remove(path + ".damaged");
    return 0;
}
