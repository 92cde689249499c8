// Folders "before", "after" and "copy" with the patch between the first two, for the tests of
// applyPatch. Each test changes before and after as it likes, then calls makePatch() and
// makeCopy().
#pragma once

#include <string>
#include <vector>

#include <sys/stat.h>

#include "tests/support/PatchMaker.h"
#include "tests/tools/ProgramsInTests.h"

namespace tools::testing {

/// Exit statuses.
constexpr int kDone = 0;
constexpr int kDiffers = 1;
constexpr int kUsage = 2;
constexpr int kNotAPatch = 3;
constexpr int kRefused = 4;
constexpr int kOtherRun = 5;
constexpr int kCurrent = 6;

class PatchTest : public AdministratorToolTest {
  protected:
    /// Two small versions that differ in something of each kind.
    PatchTest();
    void SetUp() override {} // most of it needs no administrator

    /// The patch between "before" and "after" as they are now.
    void makePatch() const;
    tests::UnsignedPatch between() const;
    void writePatch(const tests::UnsignedPatch& patch) const;
    /// "copy" as "before" is now, with times and attributes.
    void makeCopy(const std::string& name = "copy") const;

    std::vector<std::string> command(const std::vector<std::string>& more = {}) const;
    Outcome apply(const std::vector<std::string>& more = {}) const { return run(command(more)); }
    /// With one system call that fails with the error, or kills the program for "kill".
    Outcome applyRefusing(const std::string& call, const std::string& answer) const;
    Outcome applyAsOrdinaryUser(const std::vector<std::string>& more = {}) const;

    /// Nothing but the copy and what the test made is in the folder.
    std::vector<std::string> leftovers() const;
    /// Paths with kinds and contents; not times, modes and attributes.
    std::vector<std::string> contents(const std::string& folder) const;
    /// All that a run could change of the copy, inode and status time included.
    std::vector<std::string> everything(const std::string& folder) const;

    struct stat statusOf(const std::string& path) const;
    void setAttribute(const std::string& path, const std::string& name,
                      const std::string& value) const;
    /// "none" without one.
    std::string attribute(const std::string& path, const std::string& name) const;
    void setTime(const std::string& path, long seconds) const;
    void setMode(const std::string& path, unsigned mode) const;

    /// The two names beside the copy.
    std::string building(const std::string& copy = "copy") const;
    std::string aside() const { return building() + ".old"; }
};

} // namespace tools::testing
