// Starts programs and looks at trees of files, for the tests of the tools.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace tools::testing {

using tests::contentsOf;

struct Outcome {
    int status = 0;     ///< 128 + N after death by signal N
    std::string output; ///< standard output and error together
};

/// Runs the program found by its path or in PATH, in `folder`, and waits for it.
Outcome run(const std::vector<std::string>& command, const std::filesystem::path& folder,
            const std::vector<std::string>& environment = {});

/// One line for each item below `top` in order: kind, mode, size, time, path, and the target or a
/// sum of the contents. Times in nanoseconds or, from archives, in seconds.
enum class Times { nanoseconds, seconds };
std::vector<std::string> listing(const std::filesystem::path& top,
                                 Times times = Times::nanoseconds);

/// Gives each test a folder of its own, which is gone after it.
class ToolTest : public ::testing::Test {
  protected:
    /// Others may use the folder, too: a test may run a tool with fewer rights.
    ToolTest() { std::filesystem::permissions(m_folder.path(), std::filesystem::perms::all); }

    std::filesystem::path at(const std::string& path) const { return m_folder.path(path); }
    /// Writes a file, making its folders.
    void write(const std::string& path, const std::string& contents) const {
        m_folder.write(path, contents);
    }
    Outcome run(const std::vector<std::string>& command,
                const std::vector<std::string>& environment = {}) const {
        return testing::run(command, m_folder.path(), environment);
    }
    /// Without the administrator's rights, also where the test has them.
    Outcome runAsOrdinaryUser(std::vector<std::string> command) const;
    Outcome ditto(const std::string& from, const std::string& to) const;
    Outcome unpack(const std::string& archive, const std::string& to) const;
    static bool isRoot();

  private:
    const tests::TemporaryFolder m_folder;
};

/// What only the administrator can set up.
class AdministratorToolTest : public ToolTest {
  protected:
    void SetUp() override;
    void TearDown() override;
    /// An empty file system in memory of `kilobytes` at "disk"; false where nobody may mount.
    [[nodiscard]] bool mountDisk(int kilobytes);
    static constexpr const char* kNobodyMounts = "this machine lets nobody mount";

  private:
    bool m_isMounted = false;
};

} // namespace tools::testing
