#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <unistd.h>

#include "platform/posix/EnglishTexts.h"
#include "platform/posix/ProcessSystem.h"
#include "platform/posix/StandardSystemLog.h"
#include "tests/support/TemporaryFolder.h"

namespace {

// Sorted, so that looking a key up may halve the list.
static_assert(std::ranges::is_sorted(ports::kTextKeys));
static_assert(std::ranges::all_of(ports::kTextKeys, ports::TextKey::isInCatalogue));
static_assert(!ports::TextKey::isInCatalogue(""));
static_assert(!ports::TextKey::isInCatalogue("cancel"));
static_assert(!ports::TextKey::isInCatalogue("\U0010FFFF"));
static_assert(ports::TextKey("Cancel").english() == "Cancel");

TEST(EnglishTexts, AreTheirOwnKeys) {
    const posix::EnglishTexts texts("/nowhere");
    for (const std::string_view key : ports::kTextKeys)
        EXPECT_EQ(texts.translated(key), key);
    EXPECT_EQ(texts.languageTag(), "en");
}

TEST(LocalizedFiles, AreTheLanguagesOwnElseTheEnglishOnes) {
    const tests::TemporaryFolder folder;
    const std::string german = folder.write("de.lproj/ReadMe.html", "Lies mich");
    const std::string english = folder.write("en.lproj/ReadMe.html", "Read me");
    EXPECT_EQ(posix::localizedFile(folder.path(), "de", "ReadMe.html"), german);
    EXPECT_EQ(posix::localizedFile(folder.path(), "fr", "ReadMe.html"), english);
    EXPECT_EQ(posix::localizedFile(folder.path(), "de", "Other.html"), std::nullopt);
    EXPECT_EQ(posix::localizedFile(folder.path(), "de", ""), std::nullopt) << "a folder";
}

TEST(StandardSystemLog, ALineGoesToStandardErrorAsOneLineAndAsItStands) {
    posix::Pipe pipe = posix::makePipe();
    const posix::Descriptor before(::dup(STDERR_FILENO));
    ::dup2(pipe.writing.number(), STDERR_FILENO);
    {
        posix::StandardSystemLog log;
        log.write("100%s done\nand\tmore");
    }
    ::dup2(before.number(), STDERR_FILENO);
    pipe.writing.close();
    std::array<char, 512> buffer;
    const ssize_t count = ::read(pipe.reading.number(), buffer.data(), buffer.size());
    const std::string line(buffer.data(), static_cast<std::size_t>(count > 0 ? count : 0));
    EXPECT_TRUE(line.starts_with("Scrivel 21 Installer[")) << line;
    EXPECT_TRUE(line.ends_with("]: 100%s done and more\n")) << line;
}

} // namespace
