#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/formats/AppleDouble.h"
#include "platform/formats/ZipRecords.h"
#include "tests/formats/ZipInTests.h"
#include "tests/tools/ProgramsInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using namespace formats::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::string attribute(const fs::path& path, const char* name) {
    char value[256];
    const ssize_t length = ::lgetxattr(path.c_str(), name, value, sizeof value);
    return length < 0 ? "(none)" : std::string(value, static_cast<std::size_t>(length));
}

std::string appleDouble(const formats::AppleDouble& value) {
    const formats::Bytes bytes = formats::writeAppleDouble(value);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

formats::Bytes bytesOf(std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

class DittoExtraction : public ToolTest {
  protected:
    void archive(const std::vector<RawMember>& members) const { archive(rawArchive(members)); }
    void archive(const std::string& bytes) const { writeArchive(at("a.zip").string(), bytes); }
    Outcome unpack(const std::string& to = "out") const { return ToolTest::unpack("a.zip", to); }
    /// Refused with status 1, with these words, and before anything was made.
    void expectRefused(const std::string& words) const {
        const Outcome outcome = unpack();
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.output, StartsWith("ditto: a.zip: "));
        EXPECT_THAT(outcome.output, HasSubstr(words));
        EXPECT_FALSE(fs::exists(at("out")));
    }
};

TEST_F(DittoExtraction, GivesTheTreeThatUnzipGives) {
    write("in/Top/a.txt", "some text");
    write("in/Top/sub/empty", "");
    write("in/Top/sub/\u00E4\u4E2D.bin", std::string(3'000'000, 'x') + "end");
    write("in/Top/run", "#!/bin/sh\n");
    fs::permissions(at("in/Top/run"), fs::perms(0751));
    write("in/Top/closed/file", "x");
    fs::create_directories(at("in/Top/bare"));
    fs::create_symlink("../a.txt", at("in/Top/sub/link"));
    fs::create_symlink("/nowhere", at("in/Top/broken"));
    fs::permissions(at("in/Top/closed"), fs::perms(0555));
    ASSERT_EQ(run({"sh", "-c", "cd in && zip -qry ../a.zip Top"}).status, 0);
    ASSERT_EQ(run({"unzip", "-q", "a.zip", "-d", "expected"}).status, 0);
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    auto expected = listing(at("expected"), Times::seconds);
    auto got = listing(at("out"), Times::seconds);
    // unzip leaves a link the time of its making.
    const auto isLink = [](const std::string& line) { return line.find(" 12") != line.npos; };
    EXPECT_EQ(std::erase_if(expected, isLink), 2u);
    EXPECT_EQ(std::erase_if(got, isLink), 2u);
    EXPECT_EQ(got, expected);
    EXPECT_EQ(fs::read_symlink(at("out/Top/sub/link")), "../a.txt");
    EXPECT_EQ(fs::read_symlink(at("out/Top/broken")), "/nowhere");
}

TEST_F(DittoExtraction, MakesTheFolderWithItsParents) {
    archive({file("a", "text")});
    EXPECT_EQ(unpack("x/y/z").status, 0);
    EXPECT_EQ(contentsOf(at("x/y/z/a")), "text");
}

TEST_F(DittoExtraction, MergesFoldersAndReplacesFiles) {
    write("out/d/old", "old");
    write("out/d/other", "other");
    archive({file("d/old", "new")});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(contentsOf(at("out/d/old")), "new");
    EXPECT_EQ(contentsOf(at("out/d/other")), "other");
}

TEST_F(DittoExtraction, AnEmptyArchiveGivesAnEmptyFolder) {
    archive(rawArchive({}));
    EXPECT_EQ(unpack().status, 0);
    EXPECT_TRUE(fs::is_empty(at("out")));
}

TEST_F(DittoExtraction, AFileOfNoBytesIsRefused) {
    archive("");
    expectRefused("it is empty");
}

TEST_F(DittoExtraction, AMissingArchiveIsAnError) {
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: a.zip: No such file or directory\n");
    EXPECT_FALSE(fs::exists(at("out")));
}

TEST_F(DittoExtraction, APipeIsNoArchiveAndDoesNotBlock) {
    ASSERT_EQ(::mkfifo(at("a.zip").c_str(), 0600), 0);
    EXPECT_EQ(unpack().status, 1);
}

TEST_F(DittoExtraction, AnArchiveCutOffAnywhereIsRefusedBeforeAnythingIsMade) {
    const std::string whole =
        rawArchive({folder("d"), packedFile("d/f", "text"), linkTo("l", "d")});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        archive(whole.substr(0, length));
        EXPECT_EQ(unpack().status, 1) << length;
        EXPECT_FALSE(fs::exists(at("out"))) << length;
    }
}

TEST_F(DittoExtraction, EveryDamagedByteIsNoticedOrHarmless) {
    const std::string whole = rawArchive({packedFile("d/f", "some text, some text, some text")});
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
        archive(damaged);
        const Outcome outcome = unpack();
        ASSERT_LE(outcome.status, 1) << i << outcome.output;
        if (outcome.status == 0) {
            for (const auto& entry : fs::recursive_directory_iterator(at("out"))) {
                if (entry.is_regular_file()) {
                    EXPECT_EQ(contentsOf(entry.path()), "some text, some text, some text") << i;
                }
            }
        }
        run({"chmod", "-R", "u+rwx", "out"});
        fs::remove_all(at("out"));
    }
}

TEST_F(DittoExtraction, EncryptedArchivesFromZipAreRefusedByName) {
    write("secret", "text");
    ASSERT_EQ(run({"zip", "-q", "-P", "word", "a.zip", "secret"}).status, 0);
    expectRefused("secret: it is encrypted");
}

TEST_F(DittoExtraction, SplitArchivesAreRefused) {
    archive(rawArchive({file("a", "x")}, {.disk = 1, .comment = {}}));
    expectRefused("several files");
}

TEST_F(DittoExtraction, ADamagedMemberIsNamedAndTheOthersComeOut) {
    RawMember damaged = packedFile("d/bad", "text");
    damaged.crcIsWrong = true;
    RawMember large = packedFile("d/large", std::string(3'000'000, 'x'));
    large.crcIsWrong = true;
    archive({damaged, large, packedFile("d/good", "text")});
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("ditto: d/bad: "));
    EXPECT_THAT(outcome.output, HasSubstr("ditto: d/large: "));
    EXPECT_THAT(listing(at("out/d")), ElementsAre(StartsWith("good ")));
}

TEST_F(DittoExtraction, ADamagedMemberLeavesTheFileThatStoodThere) {
    RawMember large = packedFile("large", std::string(3'000'000, 'x'));
    large.crcIsWrong = true;
    archive({large});
    write("out/large", "old");
    EXPECT_EQ(unpack().status, 1);
    EXPECT_EQ(contentsOf(at("out/large")), "old");
    EXPECT_EQ(listing(at("out")).size(), 1u);
}

TEST_F(DittoExtraction, NeverMoreBytesAreWrittenThanTheMemberDeclares) {
    for (const std::size_t size : {5u, 2'000'000u}) {
        RawMember member = packedFile("f", std::string(3'000'000, 'x'));
        member.size = size;
        archive({member});
        const Outcome outcome = unpack();
        EXPECT_EQ(outcome.status, 1);
        EXPECT_FALSE(fs::exists(at("out/f")));
    }
}

TEST_F(DittoExtraction, ADamagedByteOfALargeMemberIsNoticed) {
    std::string text;
    for (std::uint32_t i = 0; text.size() < 2'000'000; ++i)
        text += std::to_string(i * 2654435761u) + ' ';
    const RawMember whole = packedFile("large", text);
    for (std::size_t part = 0; part < 12; ++part) {
        RawMember damaged = whole;
        char& byte = damaged.data[part * damaged.data.size() / 12];
        byte = static_cast<char>(byte ^ 0x10);
        archive({damaged});
        EXPECT_EQ(unpack().status, 1) << part;
        EXPECT_TRUE(fs::is_empty(at("out"))) << part;
    }
    archive({whole});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(contentsOf(at("out/large")), text);
}

TEST_F(DittoExtraction, AMemberThatEndsEarlyIsDamaged) {
    RawMember small = packedFile("small", "text");
    small.size = 5;
    RawMember large = packedFile("large", std::string(3'000'000, 'x'));
    large.size += 1;
    RawMember cut = packedFile("cut", std::string(3'000'000, 'x'));
    cut.data.resize(cut.data.size() - 10);
    archive({small, large, cut});
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(fs::is_empty(at("out"))) << outcome.output;
}

TEST_F(DittoExtraction, LargeStoredMembersComeOutAndAreChecked) {
    RawMember bad = file("bad", std::string(3'000'000, 'b'));
    bad.crcIsWrong = true;
    archive({file("good", std::string(3'000'000, 'g')), bad});
    EXPECT_EQ(unpack().status, 1);
    EXPECT_EQ(contentsOf(at("out/good")), std::string(3'000'000, 'g'));
    EXPECT_FALSE(fs::exists(at("out/bad")));
}

TEST_F(DittoExtraction, PathsThatLeadOutAreRefused) {
    for (const char* path : {"../escaped", "/tmp/escaped", "a/../../escaped", "..\\escaped"}) {
        archive({file("fine", "x"), file(path, "x")});
        expectRefused(path);
        EXPECT_FALSE(fs::exists(at("escaped")));
    }
}

TEST_F(DittoExtraction, NothingIsWrittenThroughALinkOfTheArchive) {
    archive({linkTo("l", ".."), file("l/escaped", "x")});
    expectRefused("would be the same");
    EXPECT_FALSE(fs::exists(at("escaped")));
}

TEST_F(DittoExtraction, NothingIsWrittenThroughALinkThatStandsThere) {
    fs::create_directories(at("outside"));
    fs::create_directories(at("out"));
    fs::create_symlink("../outside", at("out/d"));
    write("target", "old");
    fs::create_symlink("../target", at("out/f"));
    archive({file("d/x", "x"), file("f", "new"), file("g", "g")});
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, StartsWith("ditto: out/d: "));
    EXPECT_TRUE(fs::is_empty(at("outside")));
    EXPECT_EQ(contentsOf(at("target")), "old");
    EXPECT_FALSE(fs::is_symlink(at("out/f")));
    EXPECT_EQ(contentsOf(at("out/f")), "new");
    EXPECT_EQ(contentsOf(at("out/g")), "g");
}

TEST_F(DittoExtraction, LinksKeepTheirTargetWhereverItLeads) {
    archive({linkTo("out", "../../.."), linkTo("absolute", "/etc/passwd"), linkTo("self", "self")});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(fs::read_symlink(at("out/out")), "../../..");
    EXPECT_EQ(fs::read_symlink(at("out/absolute")), "/etc/passwd");
    EXPECT_EQ(fs::read_symlink(at("out/self")), "self");
}

TEST_F(DittoExtraction, ALinkReplacesAFileButNotAFolder) {
    write("out/file", "old");
    write("out/folder/x", "old");
    archive({linkTo("file", "target"), linkTo("folder", "target")});
    EXPECT_EQ(unpack().status, 1);
    EXPECT_EQ(fs::read_symlink(at("out/file")), "target");
    EXPECT_EQ(contentsOf(at("out/folder/x")), "old");
}

TEST_F(DittoExtraction, LinksWithoutATargetOrWithAnEndlessOneAreErrors) {
    archive({linkTo("empty", ""), linkTo("long", std::string(5000, 'x')), linkTo("good", "x")});
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("ditto: empty: "));
    EXPECT_THAT(outcome.output, HasSubstr("ditto: long: "));
    EXPECT_EQ(listing(at("out")).size(), 1u);
}

TEST_F(DittoExtraction, CollidingNamesAreRefused) {
    archive({file("Name", "1"), file("nAME", "2")});
    expectRefused("would be the same");
    archive({file("caf\u00E9", "1"), file("cafe\u0301", "2")});
    expectRefused("would be the same");
}

TEST_F(DittoExtraction, DevicesAndPipesAreDroppedWithAnError) {
    RawMember device = file("device", "");
    device.mode = 0020666;
    RawMember pipe = file("pipe", "");
    pipe.mode = 0010666;
    archive({device, pipe, file("good", "x")});
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("ditto: out/device: "));
    EXPECT_THAT(listing(at("out")), ElementsAre(StartsWith("good ")));
}

TEST_F(DittoExtraction, RightsToRunAsTheOwnerAreDropped) {
    RawMember member = file("f", "x");
    member.mode = 0107755;
    archive({member});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(fs::status(at("out/f")).permissions(), fs::perms(0755));
}

TEST_F(DittoExtraction, ModesThatTheArchiveDoesNotTellFollowTheUmask) {
    RawMember member = file("d/f", "x");
    member.system = 0;
    archive({member});
    EXPECT_EQ(run({"sh", "-c", "umask 027 && " DITTO " -xk --noqtn a.zip out"}).status, 0);
    EXPECT_EQ(fs::status(at("out/d/f")).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::status(at("out/d")).permissions(), fs::perms(0750));
    EXPECT_EQ(fs::status(at("out")).permissions(), fs::perms(0750));
}

TEST_F(DittoExtraction, DosTimesAreLocalTimes) {
    RawMember member = file("f", "x");
    member.dosDate = 46 << 9 | 7 << 5 | 21; // 21 July 2026
    member.dosTime = 12 << 11;
    archive({member});
    EXPECT_EQ(run({DITTO, "-xk", "--noqtn", "a.zip", "out"}, {"TZ=XST-3"}).status, 0);
    struct stat status{};
    ASSERT_EQ(::stat(at("out/f").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtim.tv_sec, 1784624400); // 09:00 UTC
}

TEST_F(DittoExtraction, DataDescriptorsAndZip64FromOtherPackersAreRead) {
    write("in/f", std::string(100000, 'x'));
    ASSERT_EQ(run({"bsdtar", "--format", "zip", "-cf", "a.zip", "in"}).status, 0);
    EXPECT_EQ(unpack("bsdtar").status, 0);
    EXPECT_EQ(contentsOf(at("bsdtar/in/f")), std::string(100000, 'x'));
    ASSERT_EQ(run({"sh", "-c", "rm a.zip && zip -q -fz a.zip in/f"}).status, 0);
    EXPECT_EQ(unpack("zip").status, 0);
    EXPECT_EQ(contentsOf(at("zip/in/f")), std::string(100000, 'x'));
}

TEST_F(DittoExtraction, ABombIsRefused) {
    RawMember member = packedFile("f", "");
    member.data = std::string(1000, '\0');
    member.size = 0xFFFFFFF0;
    archive({member});
    expectRefused("claims a size");
}

TEST_F(DittoExtraction, HonestZerosComeOut) {
    archive({packedFile("zeros", std::string(30'000'000, '\0'))});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(fs::file_size(at("out/zeros")), 30'000'000u);
}

TEST_F(DittoExtraction, ADestinationThatIsAFileIsAnError) {
    archive({file("f", "x")});
    write("out", "a file");
    const Outcome outcome = unpack();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: out: Not a directory\n");
    EXPECT_EQ(contentsOf(at("out")), "a file");
}

TEST_F(DittoExtraction, ADestinationWithoutRightsIsAnError) {
    archive({file("f", "x")});
    fs::create_directory(at("out"));
    fs::permissions(at("out"), fs::perms(0555));
    const Outcome outcome = runAsOrdinaryUser({DITTO, "-xk", "--noqtn", "a.zip", "out"});
    if (outcome.status == 127 || outcome.status == 126)
        GTEST_SKIP() << "another user can't run the tool here: " << outcome.output;
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: out/f: Permission denied\n");
}

TEST_F(DittoExtraction, WhatAnAppleDoubleMemberDescribesIsSet) {
    formats::AppleDouble value;
    value.finderInformation[0] = std::byte{'T'};
    value.attributes = {{"org.example.note", bytesOf("hello")},
                        {"com.apple.quarantine", bytesOf("0081")}};
    formats::AppleDouble fork;
    fork.resourceFork = bytesOf("fork");
    formats::AppleDouble ofFolder;
    ofFolder.attributes = {{"k", bytesOf("v")}};
    archive({folder("d"), file("d/f", "x"), file("d/g", "y"),
             file("__MACOSX/d/._f", appleDouble(value)), file("__MACOSX/d/._g", appleDouble(fork)),
             file("__MACOSX/._d", appleDouble(ofFolder))});
    ASSERT_EQ(unpack().status, 0);
    EXPECT_FALSE(fs::exists(at("out/__MACOSX")));
    EXPECT_FALSE(fs::exists(at("out/d/._f")));
    EXPECT_EQ(attribute(at("out/d/f"), "user.org.example.note"), "hello");
    EXPECT_EQ(attribute(at("out/d/f"), "user.com.apple.FinderInfo"), "T" + std::string(31, '\0'));
    EXPECT_EQ(attribute(at("out/d/f"), "user.com.apple.quarantine"), "(none)");
    EXPECT_EQ(contentsOf(at("out/d/._g")), appleDouble(fork));
    EXPECT_EQ(attribute(at("out/d"), "user.k"), "v");
}

TEST_F(DittoExtraction, AttributesOfALinkGoIntoAFileBeside) {
    formats::AppleDouble value;
    value.attributes = {{"k", bytesOf("v")}};
    archive({linkTo("l", "x"), file("__MACOSX/._l", appleDouble(value))});
    ASSERT_EQ(unpack().status, 0);
    EXPECT_EQ(contentsOf(at("out/._l")), appleDouble(value));
}

TEST_F(DittoExtraction, AttributesThatTheFileSystemRefusesGoIntoAFileBeside) {
    formats::AppleDouble value;
    value.attributes = {{"small", bytesOf("v")}, {"large", formats::Bytes(200'000)}};
    archive({file("f", "x"), file("__MACOSX/._f", appleDouble(value))});
    ASSERT_EQ(unpack().status, 0);
    EXPECT_EQ(attribute(at("out/f"), "user.small"), "(none)");
    const auto beside = formats::readAppleDouble(bytesOf(contentsOf(at("out/._f"))));
    ASSERT_TRUE(beside);
    EXPECT_EQ(beside->attributes.size(), 2u);
}

TEST_F(DittoExtraction, AMalformedAppleDoubleMemberIsThePlainFileItIs) {
    archive({file("f", "x"), folder("d"), linkTo("l", "f"), file("__MACOSX/._f", "nonsense"),
             file("__MACOSX/._d", ""), file("__MACOSX/._l", "no"), file("__MACOSX/._gone", "x"),
             file("__MACOSX/plain", "p")});
    ASSERT_EQ(unpack().status, 0);
    EXPECT_EQ(contentsOf(at("out/__MACOSX/._f")), "nonsense");
    EXPECT_TRUE(fs::exists(at("out/__MACOSX/._d")));
    EXPECT_EQ(contentsOf(at("out/__MACOSX/._l")), "no");
    EXPECT_EQ(contentsOf(at("out/__MACOSX/._gone")), "x");
    EXPECT_EQ(contentsOf(at("out/__MACOSX/plain")), "p");
}

TEST_F(DittoExtraction, ProgressIsToldOnTheDescriptorThatIsNamed) {
    archive({file("a", "12345"), packedFile("b", std::string(3'000'000, 'x'))});
    const Outcome outcome =
        run({"sh", "-c", "SCRIVEL_PROGRESS_FD=9 " DITTO " -xk --noqtn a.zip out 9> progress"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    const std::string lines = contentsOf(at("progress"));
    EXPECT_TRUE(lines.ends_with("3000005 3000005 2\n")) << lines;
}

TEST_F(DittoExtraction, AProgressDescriptorThatIsClosedFullOrNoneDisturbsNothing) {
    archive({file("a", "12345")});
    for (const char* how :
         {"SCRIVEL_PROGRESS_FD=9 ", "SCRIVEL_PROGRESS_FD=x ", "SCRIVEL_PROGRESS_FD=1 ",
          "SCRIVEL_PROGRESS_FD=99999999999 ", "SCRIVEL_PROGRESS_FD= "}) {
        const Outcome outcome =
            run({"sh", "-c", how + std::string(DITTO) + " -xk --noqtn a.zip out"});
        EXPECT_EQ(outcome.status, 0) << how;
        EXPECT_EQ(outcome.output, "") << how;
    }
    EXPECT_EQ(
        run({"sh", "-c", "SCRIVEL_PROGRESS_FD=9 " DITTO " -xk --noqtn a.zip out 9> /dev/full"})
            .status,
        0);
    // A pipe whose reader is gone.
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    EXPECT_EQ(run({DITTO, "-xk", "--noqtn", "a.zip", "out"},
                  {"SCRIVEL_PROGRESS_FD=" + std::to_string(ends[1])})
                  .status,
              0);
    ::close(ends[1]);
}

TEST_F(DittoExtraction, AnythingElseIsAnsweredWithTheUsage) {
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"-xk", "a.zip", "out"},
                                               {"-xk", "--noqtn", "a.zip"},
                                               {"a", "b"},
                                               {"-rsrcFork", "a"},
                                               {"-rsrcFork", "a", "b", "c"},
                                               {"-c", "-k", "a", "b"}}) {
        std::vector<std::string> command{DITTO};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const Outcome outcome = run(command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.output, StartsWith("usage: ditto"));
    }
}

TEST_F(DittoExtraction, ThousandsOfFilesInManyFoldersComeOutOnAllThreads) {
    std::vector<RawMember> members;
    for (int i = 0; i < 2000; ++i)
        members.push_back(packedFile("d" + std::to_string(i % 97) + "/e/f" + std::to_string(i),
                                     "text " + std::to_string(i)));
    archive(members);
    ASSERT_EQ(unpack().status, 0);
    for (int i = 0; i < 2000; ++i)
        ASSERT_EQ(contentsOf(at("out/d" + std::to_string(i % 97) + "/e/f" + std::to_string(i))),
                  "text " + std::to_string(i));
}

TEST_F(DittoExtraction, PathsAsDeepAsTheArchiveAllowsComeOut) {
    std::string path = "f";
    for (int i = 0; i < 1500; ++i)
        path = "d/" + path;
    archive({file(path, "deep")});
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(run({"sh", "-c", "find out -type f | wc -l"}).output, "1\n");
    EXPECT_EQ(run({"rm", "-rf", "out"}).status, 0);
}

class DittoExtractionAsAdministrator : public AdministratorToolTest {};

TEST_F(DittoExtractionAsAdministrator, ContentsLargerThanTheDiskAreRefusedBeforeAnythingIsMade) {
    if (!mountDisk(1024))
        GTEST_SKIP() << kNobodyMounts;
    writeArchive(at("a.zip").string(), rawArchive({packedFile("f", std::string(2'000'000, 'x'))}));
    const Outcome outcome = unpack("a.zip", "disk/out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("more space than is free"));
    EXPECT_FALSE(fs::exists(at("disk/out")));
}

TEST_F(DittoExtractionAsAdministrator, AFullDiskIsAnErrorForEachFileThatFindsNoRoom) {
    if (!mountDisk(400))
        GTEST_SKIP() << kNobodyMounts;
    std::vector<RawMember> members;
    for (int i = 0; i < 200; ++i)
        members.push_back(file("f" + std::to_string(i), "x"));
    writeArchive(at("a.zip").string(), rawArchive(members));
    const Outcome outcome = unpack("a.zip", "disk/out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("No space left on device"));
    for (const auto& entry : fs::directory_iterator(at("disk/out")))
        EXPECT_EQ(contentsOf(entry.path()), "x");
}

} // namespace
} // namespace tools::testing
