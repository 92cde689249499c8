// Runs that are broken off, refused by the system or disturbed, and what the next run makes of it.
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/PatchesInTests.h"
#include "tools/files/Descriptor.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kKilledBySystem = 128 + SIGSYS;

class ApplyPatchRecovery : public PatchTest {
  protected:
    void SetUp() override {
        makePatch();
        makeCopy();
        write("outside/sentinel", "untouched");
    }
    void expectUpdated() const {
        EXPECT_EQ(contents("copy"), contents("after"));
        EXPECT_THAT(leftovers(), IsEmpty());
        EXPECT_THAT(contents("outside"), ElementsAre("sentinel: untouched"));
    }
    void expectAsBefore() const {
        EXPECT_EQ(contents("copy"), contents("before"));
        EXPECT_THAT(leftovers(), IsEmpty());
        EXPECT_THAT(contents("outside"), ElementsAre("sentinel: untouched"));
    }
    void copyTree(const std::string& from, const std::string& to) const {
        ASSERT_EQ(run({"cp", "-a", from, to}).status, 0);
    }
    /// The next run goes through as if nothing had been.
    void expectNextRunUpdates() const {
        EXPECT_EQ(apply({"-n"}).status, kDone);
        const Outcome outcome = apply();
        EXPECT_EQ(outcome.status, kDone) << outcome.output;
        expectUpdated();
    }
};

TEST_F(ApplyPatchRecovery, ARunThatIsKilledBeforeTheExchangeLeavesTheCopyAndTheNextOneCleansUp) {
    EXPECT_EQ(applyRefusing("renameat2", "kill").status, kKilledBySystem);
    EXPECT_EQ(contents("copy"), contents("before"));
    EXPECT_THAT(leftovers(), ElementsAre(building()));
    expectNextRunUpdates();
}

TEST_F(ApplyPatchRecovery, ARunThatIsKilledInItsMiddleLeavesTheCopyAndTheNextOneCleansUp) {
    for (const char* call : {"linkat", "symlinkat", "syncfs"}) {
        EXPECT_EQ(applyRefusing(call, "kill").status, kKilledBySystem) << call;
        EXPECT_EQ(contents("copy"), contents("before")) << call;
        EXPECT_THAT(leftovers(), ElementsAre(building())) << call;
        EXPECT_EQ(apply({"-n"}).status, kDone) << call;
    }
    expectNextRunUpdates();
}

TEST_F(ApplyPatchRecovery, ARunThatIsKilledBeforeTheOldVersionIsGoneHasUpdatedTheCopy) {
    EXPECT_EQ(applyRefusing("unlinkat", "kill").status, kKilledBySystem);
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_THAT(leftovers(), ElementsAre(building()));
    EXPECT_EQ(contents(building()), contents("before"));
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_THAT(outcome.output, HasSubstr("already"));
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, AnOldVersionThatCantBeRemovedIsAWarning) {
    const Outcome outcome = applyRefusing("unlinkat", std::to_string(EPERM));
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_THAT(outcome.output, HasSubstr("the next run does it"));
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(apply().status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, WithoutAnExchangeTwoRenamingsDoIt) {
    for (const int error : {EINVAL, ENOSYS}) {
        const Outcome outcome = applyRefusing("renameat2", std::to_string(error));
        EXPECT_EQ(outcome.status, kDone) << outcome.output;
        expectUpdated();
        fs::remove_all(at("copy"));
        makeCopy();
    }
}

TEST_F(ApplyPatchRecovery, ARunThatWasKilledBetweenTheTwoRenamingsIsFinishedByTheNext) {
    copyTree("after", building());
    fs::rename(at("copy"), at(aside()));
    EXPECT_EQ(apply({"-n"}).status, kDone);
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kDone) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("an update that was broken off was finished"));
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, WhatIsNotTheNewVersionBesideAMissingCopyIsNotPutInItsPlace) {
    copyTree("after", building());
    write(building() + "/changed", "cut off");
    fs::rename(at("copy"), at(aside()));
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kDone) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("was taken back"));
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, AnOldVersionAloneBesideAMissingCopyIsTakenBack) {
    fs::rename(at("copy"), at(aside()));
    EXPECT_EQ(apply().status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, ARunThatWasKilledAfterTheTwoRenamingsIsCleanedUpByTheNext) {
    fs::rename(at("copy"), at(aside()));
    copyTree("after", "copy");
    EXPECT_EQ(apply().status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, ACopyThatWasPutThereBetweenTheTwoRenamingsCostsNothing) {
    copyTree("after", building());
    copyTree("copy", aside());
    write(aside() + "/own", "mine");
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr(aside()));
    EXPECT_EQ(contentsOf(at(aside() + "/own")), "mine");
    EXPECT_EQ(contents("copy"), contents("before"));
}

TEST_F(ApplyPatchRecovery, ACopyThatIsMissingWithNothingBesideItIsWrongUsage) {
    fs::remove_all(at("copy"));
    copyTree("after", building());
    EXPECT_EQ(apply().status, kUsage);
    EXPECT_FALSE(fs::exists(at("copy")));
}

TEST_F(ApplyPatchRecovery, ErrorsBeforeTheExchangeLeaveTheCopyAndNothingBesideIt) {
    const auto before = everything("copy");
    for (const auto& [call, error] :
         {std::pair("renameat2", EACCES), std::pair("renameat2", EIO), std::pair("syncfs", EIO),
          std::pair("symlinkat", ENOSPC), std::pair("linkat", ENOSPC), std::pair("linkat", EIO)}) {
        const Outcome outcome = applyRefusing(call, std::to_string(error));
        EXPECT_EQ(outcome.status, kRefused) << call;
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: /")) << call;
        expectAsBefore();
    }
}

TEST_F(ApplyPatchRecovery, AFileThatGetsTooLargeWhileItIsWrittenLeavesTheCopyAndNothingBesideIt) {
    write("after/large", std::string(3'000'000, 'l'));
    makePatch();
    const Outcome outcome =
        run({"sh", "-c", "ulimit -f 1000; exec " APPLY_PATCH " -d copy -i patch"});
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("large: it is larger than the system"));
    expectAsBefore();
}

TEST_F(ApplyPatchRecovery, AFileSystemWithoutLocksIsUpdatedWithoutThem) {
    EXPECT_EQ(applyRefusing("flock", std::to_string(EOPNOTSUPP)).status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, AFileSystemWithoutAttributesIsUpdatedWithoutThem) {
    setAttribute("after/changed", "user.name", "value");
    makePatch();
    EXPECT_EQ(applyRefusing("fsetxattr", std::to_string(EOPNOTSUPP)).status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, ASecondRunAtTheSameTimeIsRefused) {
    const Descriptor copy(checked(::open(at("copy").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    ASSERT_EQ(::flock(copy.number(), LOCK_EX | LOCK_NB), 0);
    for (const std::vector<std::string>& more :
         std::vector<std::vector<std::string>>{{}, {"-n"}, {"--verify"}}) {
        const Outcome outcome = apply(more);
        EXPECT_EQ(outcome.status, kOtherRun);
        EXPECT_THAT(outcome.output, HasSubstr("another run is at work on it"));
    }
    expectAsBefore();
    // Listing what an update leaves is for everybody.
    EXPECT_EQ(apply({"-C"}).status, kDone);
}

TEST_F(ApplyPatchRecovery, WhatARunAtWorkIsBuildingIsNotTakenAway) {
    write(building() + "/half", "built");
    const Descriptor other(
        checked(::open(at(building()).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    ASSERT_EQ(::flock(other.number(), LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(apply().status, kOtherRun);
    EXPECT_EQ(contentsOf(at(building() + "/half")), "built");
    EXPECT_EQ(contents("copy"), contents("before"));
}

TEST_F(ApplyPatchRecovery, ManyRunsAtOnceUpdateTheCopyOnceAndSpoilNothing) {
    std::vector<int> statuses(6);
    std::vector<std::thread> runs;
    for (int& status : statuses)
        runs.emplace_back([&] { status = apply().status; });
    for (std::thread& each : runs)
        each.join();
    EXPECT_THAT(statuses, ::testing::Each(::testing::AnyOf(kDone, kOtherRun)));
    EXPECT_THAT(statuses, ::testing::Contains(kDone));
    EXPECT_EQ(apply().status, kDone);
    expectUpdated();
}

TEST_F(ApplyPatchRecovery, ALinkAtTheBuildingPlaceIsRefusedAndNotFollowed) {
    for (const std::string& name : {building(), aside()}) {
        fs::create_directory_symlink("outside", at(name));
        const Outcome outcome = apply();
        EXPECT_EQ(outcome.status, kRefused);
        EXPECT_THAT(outcome.output, HasSubstr("remove it and start again"));
        EXPECT_TRUE(fs::is_symlink(at(name)));
        fs::remove(at(name));
        expectAsBefore();
    }
    expectNextRunUpdates();
}

TEST_F(ApplyPatchRecovery, AFileAtTheBuildingPlaceIsRefused) {
    write(building(), "somebody's");
    EXPECT_EQ(apply().status, kRefused);
    EXPECT_EQ(contentsOf(at(building())), "somebody's");
    EXPECT_EQ(contents("copy"), contents("before"));
}

TEST_F(ApplyPatchRecovery, LinksInALeftoverAreRemovedAndNotFollowed) {
    fs::create_directory(at(building()));
    fs::create_directory_symlink(at("outside"), at(building() + "/way out"));
    fs::create_symlink(at("outside/sentinel"), at(building() + "/file"));
    write(building() + "/deep/er/file", "x");
    setMode(building() + "/deep/er", 0500);
    expectNextRunUpdates();
}

TEST_F(ApplyPatchRecovery, AFolderOfTheCopyThatIsALinkIsNotFollowed) {
    fs::rename(at("copy/sub"), at("outside/sub"));
    fs::create_directory_symlink(at("outside/sub"), at("copy/sub"));
    const auto before = everything("outside");
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kDiffers);
    EXPECT_THAT(outcome.output, HasSubstr("sub: is a symbolic link instead of a folder"));
    EXPECT_EQ(everything("outside"), before);
}

TEST_F(ApplyPatchRecovery, ASignalBeforeTheExchangeCleansUpAndEndsTheRun) {
    write("before/large", std::string(8'000'000, 'l'));
    write("after/large", std::string(8'000'000, 'm'));
    makePatch();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        fs::remove_all(at("copy"));
        makeCopy();
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const std::string copy = at("copy");
            const std::string patch = at("patch");
            ::close(STDERR_FILENO);
            ::execl(APPLY_PATCH, APPLY_PATCH, "-d", copy.c_str(), "-i", patch.c_str(), nullptr);
            ::_exit(127);
        }
        // It is at work when there is something beside the copy, or done before that was seen.
        int status = 0;
        bool isOver = false;
        while (!isOver && !fs::exists(at(building()) / "large"))
            isOver = ::waitpid(child, &status, WNOHANG) == child;
        if (!isOver) {
            ::kill(child, signal);
            ::waitpid(child, &status, 0);
        }
        ASSERT_TRUE(WIFEXITED(status));
        if (WEXITSTATUS(status) == kDone) {
            EXPECT_EQ(contents("copy"), contents("after"));
        } else {
            EXPECT_EQ(WEXITSTATUS(status), 128 + signal);
            EXPECT_EQ(contents("copy"), contents("before"));
        }
        EXPECT_THAT(leftovers(), IsEmpty());
    }
}

TEST_F(ApplyPatchRecovery, AnOrdinaryUserWhoMayNotWriteIsToldSo) {
    if (!isRoot())
        GTEST_SKIP() << "needs a folder of somebody else";
    fs::create_directory(at("closed"));
    fs::rename(at("copy"), at("closed/copy"));
    const std::vector<std::string> command{APPLY_PATCH, "-d", at("closed/copy"), "-i", at("patch")};
    const Outcome outcome = runAsOrdinaryUser(command);
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("start as administrator"));
    EXPECT_THAT(outcome.output, HasSubstr(at("closed").string()));
    std::vector<std::string> looking = command;
    looking.emplace_back("-n");
    EXPECT_EQ(runAsOrdinaryUser(looking).status, kDone);
    EXPECT_EQ(contents("closed/copy"), contents("before"));
    EXPECT_EQ(std::distance(fs::directory_iterator(at("closed")), {}), 1);
}

TEST_F(ApplyPatchRecovery, AFileThatMayNotBeReadIsNamed) {
    if (!isRoot())
        GTEST_SKIP() << "needs a file of somebody else";
    setMode("copy/same", 0);
    for (const char* mode : {"-n", "--verify"}) {
        const Outcome outcome = applyAsOrdinaryUser({mode});
        EXPECT_EQ(outcome.status, kRefused);
        EXPECT_THAT(outcome.output, HasSubstr("copy/same: this user has not the rights"));
    }
}

TEST_F(ApplyPatchRecovery, ADryRunPassesOverUsersFoldersThatAreClosedToIt) {
    if (!isRoot())
        GTEST_SKIP() << "needs a folder of somebody else";
    write("copy/own/private", "mine");
    setMode("copy/own", 0700);
    EXPECT_EQ(applyAsOrdinaryUser({"-n"}).status, kDone);
    EXPECT_EQ(applyAsOrdinaryUser().status, kRefused);
    EXPECT_EQ(apply().status, kDone);
    EXPECT_EQ(contentsOf(at("copy/own/private")), "mine");
}

class ApplyPatchOnVolumes : public ApplyPatchRecovery {
  protected:
    void SetUp() override {
        AdministratorToolTest::SetUp();
        if (!IsSkipped())
            ApplyPatchRecovery::SetUp();
    }
    /// The copy lies on a small volume of its own.
    [[nodiscard]] bool moveToDisk(int kilobytes) {
        return mountDisk(kilobytes) && run({"cp", "-a", "before", "disk/copy"}).status == 0;
    }
    Outcome applyOnDisk(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> all{APPLY_PATCH, "-d", "disk/copy", "-i", "patch"};
        all.insert(all.end(), more.begin(), more.end());
        return run(all);
    }
};

TEST_F(ApplyPatchOnVolumes, AFullVolumeIsRefusedBeforeAnythingIsWritten) {
    write("after/large", std::string(3'000'000, 'l'));
    makePatch();
    if (!moveToDisk(3000))
        GTEST_SKIP() << kNobodyMounts;
    const auto before = everything("disk");
    const Outcome outcome = applyOnDisk();
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("needs 5 MB on this volume, where 3 MB are free"));
    EXPECT_EQ(applyOnDisk({"-n"}).status, kDone);
    EXPECT_EQ(everything("disk"), before);
}

TEST_F(ApplyPatchOnVolumes, AVolumeWithoutRoomForMoreEntriesIsRefusedBeforeAnythingIsWritten) {
    for (int i = 0; i < 400; ++i)
        write("after/many/" + std::to_string(i), "x");
    makePatch();
    if (!mountDisk(8000))
        GTEST_SKIP() << kNobodyMounts;
    ASSERT_EQ(::mount(nullptr, at("disk").c_str(), nullptr, MS_REMOUNT, "size=8m,nr_inodes=60"), 0);
    ASSERT_EQ(run({"cp", "-a", "before", "disk/copy"}).status, 0);
    const auto before = everything("disk");
    const Outcome outcome = applyOnDisk();
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("no room for"));
    EXPECT_EQ(everything("disk"), before);
}

TEST_F(ApplyPatchOnVolumes, AReadOnlyVolumeIsRefused) {
    if (!moveToDisk(8000))
        GTEST_SKIP() << kNobodyMounts;
    ASSERT_EQ(::mount(nullptr, at("disk").c_str(), nullptr, MS_REMOUNT | MS_RDONLY, "size=8m"), 0);
    const Outcome outcome = applyOnDisk();
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("can only be read"));
    EXPECT_EQ(applyOnDisk({"-n"}).status, kDone);
    EXPECT_EQ(contents("disk/copy"), contents("before"));
}

TEST_F(ApplyPatchOnVolumes, ACopyThatIsAVolumeItselfIsRefused) {
    if (!mountDisk(8000))
        GTEST_SKIP() << kNobodyMounts;
    ASSERT_EQ(run({"cp", "-a", "before/.", "disk"}).status, 0);
    for (const char* mode : {"-n", "--verify"})
        EXPECT_EQ(run({APPLY_PATCH, "-d", "disk", "-i", "patch", mode}).status, kRefused);
    const Outcome outcome = run({APPLY_PATCH, "-d", "disk", "-i", "patch"});
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("a volume is mounted there"));
    EXPECT_EQ(contents("disk"), contents("before"));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ApplyPatchOnVolumes, AVolumeInTheCopyIsRefusedAndNothingOfItIsTouched) {
    if (!mountDisk(8000))
        GTEST_SKIP() << kNobodyMounts;
    write("disk/file", "on the volume");
    fs::create_directory(at("copy/mounted"));
    ASSERT_EQ(::mount(at("disk").c_str(), at("copy/mounted").c_str(), nullptr, MS_BIND, nullptr),
              0);
    const Outcome outcome = apply();
    EXPECT_EQ(::umount2(at("copy/mounted").c_str(), MNT_DETACH), 0);
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("another volume is mounted there"));
    EXPECT_EQ(contentsOf(at("disk/file")), "on the volume");
}

TEST_F(ApplyPatchOnVolumes, ALeftoverOfAStrangerIsNotRemoved) {
    write(building() + "/file", "a stranger's");
    ASSERT_EQ(::lchown(at(building()).c_str(), 4444, 4444), 0);
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_THAT(outcome.output, HasSubstr("not left by an earlier run"));
    EXPECT_EQ(contentsOf(at(building() + "/file")), "a stranger's");
    EXPECT_EQ(contents("copy"), contents("before"));
}

TEST_F(ApplyPatchOnVolumes, ALeftoverOfTheCopysOwnerIsRemoved) {
    ASSERT_EQ(run({"chown", "-R", "4444:4444", "copy"}).status, 0);
    write(building() + "/file", "an earlier run's");
    ASSERT_EQ(::lchown(at(building()).c_str(), 4444, 4444), 0);
    expectNextRunUpdates();
}

} // namespace
} // namespace tools::testing
