// The real program in a little system of its own: a copy of the built disk image, a root folder, a
// home, a temporary folder; all gone when the test is over. Runs it unattended and reads back what
// it said and what it left.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/prctl.h>
#include <unistd.h>

#include "platform/posix/SpawnedTools.h"
#include "tests/support/TreeOf.h"

namespace tests {

namespace fs = std::filesystem;
using Json = nlohmann::json;

class InstallerRun : public testing::Test {
  protected:
    fs::path folder;
    fs::path bundle;
    fs::path root;
    fs::path home;
    fs::path temporary;
    fs::path destination;
    std::string environment; ///< further assignments, as a shell takes them

    struct Result {
        int exit = -1;
        std::string output;
        std::string error;
        std::vector<Json> events; ///< of a run with --events

        std::vector<Json> of(const std::string& event) const {
            std::vector<Json> found;
            for (const Json& each : events)
                if (each.at("event") == event)
                    found.push_back(each);
            return found;
        }
    };

    static bool isRoot() { return ::geteuid() == 0; }

    void SetUp() override {
        if (!isRoot()) { // nobody is asked for a password, and nothing belongs to root in the end
            ASSERT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
        }
        std::string name = (fs::temp_directory_path() / "scrivel-run-XXXXXX").string();
        folder = mkdtemp(name.data());
        bundle = folder / "Installer.app";
        root = folder / "root";
        home = folder / "home";
        temporary = folder / "temporary";
        destination = root / "Applications/Scrivel 21";
        fs::create_directories(root / "Applications");
        fs::create_directories(home / "Library/Logs");
        fs::create_directories(temporary);
        const auto options = fs::copy_options::recursive | fs::copy_options::copy_symlinks;
        const fs::path build(SCRIVEL_BUILD);
        fs::copy(build / "Scrivel 21 Installer.app", bundle, options);
        for (const char* item : {"Penmark", "Services", "Product-Support", "Read Me.txt"})
            fs::copy(build / item, folder / item, options);
    }
    void TearDown() override {
        EXPECT_TRUE(fs::is_empty(temporary)) << "the temporary folder was not put away";
        fs::permissions(root, fs::perms::owner_all, fs::perm_options::add);
        fs::remove_all(folder);
    }

    /// The exit status of a run that needs administrator rights and leaves it to the host to grant
    /// them: root has them, and an ordinary user is refused where nobody can be asked.
    static int exitNeedingRights() { return isRoot() ? 0 : 5; }

    fs::path archive() const { return bundle / "Contents/Resources/Scrivel.zip"; }
    fs::path sample() const { return fs::path(SCRIVEL_BUILD) / "sample/Scrivel"; }
    fs::path log() const { return home / "Library/Logs/Scrivel 21 Stub Install.log"; }

    /// From now on the program is an ordinary user's, also where the tests are root's: folders that
    /// are closed are closed to it. All of the little system belongs to that user.
    void runAsOrdinaryUser() { m_isOrdinaryUser = true; }

    /// Runs with these words after the program's name; root, home and the temporary folder are set.
    Result run(const std::string& words) {
        std::string user;
        if (m_isOrdinaryUser && isRoot()) {
            handOver(folder);
            user = " setpriv --reuid=" + std::to_string(kNobody) + " --clear-groups";
        }
        const std::string command =
            "TMPDIR='" + temporary.string() + "' " + environment + user + " '" +
            (bundle / "Contents/MacOS/Scrivel 21 Installer").string() + "' --root '" +
            root.string() + "' --home '" + home.string() + "' " + words + " >'" +
            (folder / "output").string() + "' 2>'" + (folder / "error").string() + "'";
        posix::SpawnedTools shell({});
        Result result;
        result.exit = shell.run({"/bin/sh", {"-c", command}});
        result.output = contentsOf(folder / "output");
        result.error = contentsOf(folder / "error");
        if (words.find("--events") == std::string::npos)
            return result;
        std::istringstream lines(result.output);
        for (std::string line; std::getline(lines, line);)
            result.events.push_back(Json::parse(line));
        return result;
    }
    Result runWith(const std::string& answers, const std::string& words = "") {
        std::ofstream(folder / "answers.json") << answers;
        return run("install --events --no-launch --answers '" + (folder / "answers.json").string() +
                   "' " + words);
    }

    /// The log without its dates.
    std::vector<std::string> logged() const {
        constexpr std::size_t kDate = sizeof "2001-02-03 04:05:06 +0000 " - 1;
        std::vector<std::string> lines;
        std::istringstream text(contentsOf(log()));
        // a message of several lines has its date on the first alone
        for (std::string line; std::getline(text, line);)
            lines.push_back(line.find(" +0000 ") == kDate - 7 ? line.substr(kDate) : line);
        return lines;
    }

    /// Packs a small product in the archive's place and answers its folder.
    fs::path useSmallProduct() {
        const fs::path product = folder / "Scrivel";
        fs::create_directories(product / "Scrivel 21.app/Contents");
        std::ofstream(product / "Read Me.txt") << "read me";
        pack(product);
        return product;
    }
    void pack(const fs::path& product) {
        posix::SpawnedTools tools({});
        ASSERT_EQ(tools.run({std::string(SCRIVEL_BUILD) + "/tools/makeArchive",
                             {product.string(), "-o", archive().string()}}),
                  0);
    }
    /// A tool of the bundle replaced by a shell script.
    void replaceTool(const std::string& name, const std::string& script) {
        const fs::path tool = bundle / "Contents/MacOS" / name;
        fs::remove(tool);
        std::ofstream(tool) << "#!/bin/sh\n" << script << "\n";
        fs::permissions(tool, static_cast<fs::perms>(0755));
    }

  private:
    static constexpr uid_t kNobody = 65534;

    static void handOver(const fs::path& top) {
        EXPECT_EQ(::lchown(top.c_str(), kNobody, static_cast<gid_t>(-1)), 0);
        for (const auto& item : fs::recursive_directory_iterator(top))
            EXPECT_EQ(::lchown(item.path().c_str(), kNobody, static_cast<gid_t>(-1)), 0);
    }

    bool m_isOrdinaryUser = false;
};

} // namespace tests
