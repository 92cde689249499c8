// The built program updates installed copies of the sample product with the tool and the patch that
// are in its bundle, and what lies there afterwards is compared with the next version.
#include <gmock/gmock.h>

#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::ElementsAre;
using testing::IsEmpty;

struct RealUpdate : ComponentsRun {
    fs::path update() const { return fs::path(SCRIVEL_BUILD) / "sample/update/Scrivel"; }
    fs::path inApplications(const std::string& name) const { return applications() / name; }

    /// A copy of a version in the Applications folder, with the attributes that files have.
    fs::path addCopy(const std::string& name, const fs::path& version) {
        const fs::path copy = inApplications(name);
        copyTree(version, copy);
        return copy;
    }
    static void copyTree(const fs::path& from, const fs::path& to) {
        posix::SpawnedTools tools({});
        EXPECT_EQ(tools.run({std::string(SCRIVEL_BUILD) + "/tools/ditto",
                             {"-rsrcFork", from.string(), to.string()}}),
                  0);
    }
    Result updateAll() { return run("update --unattended --events"); }

    /// What the copy has that differs from the version, and what it lacks of it.
    static std::vector<std::string> differences(const fs::path& copy, const fs::path& version) {
        const Tree is = treeOf(copy);
        std::vector<std::string> names;
        for (const auto& [path, item] : treeOf(version))
            if (const auto found = is.find(path); found == is.end() || found->second != item)
                names.push_back(path);
        return names;
    }
    static std::vector<std::string> namesBeyond(const fs::path& copy, const fs::path& version) {
        const Tree known = treeOf(version);
        std::vector<std::string> names;
        for (const auto& [path, item] : treeOf(copy))
            if (!known.contains(path))
                names.push_back(path);
        return names;
    }
    std::vector<std::string> foundLines() const {
        std::vector<std::string> lines;
        for (const std::string& line : logged())
            if (line.starts_with("Found "))
                lines.push_back(line);
        return lines;
    }
};

TEST_F(RealUpdate, AnInstalledCopyBecomesTheNextVersionByteForByte) {
    if (!isRoot())
        GTEST_SKIP() << "an ordinary user is refused the rights to update";
    ASSERT_EQ(run("install --unattended --no-launch").exit, 0);
    const auto added = namesBeyond(destination, sample());
    const Result result = updateAll();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(differences(destination, update()), IsEmpty());
    EXPECT_EQ(namesBeyond(destination, update()), added) << "what the installer added stays";
    EXPECT_THAT(foundLines(),
                ElementsAre("Found patchable candidate: " + destination.string() + "."));
    const std::string patch = (bundle / "Contents/Resources/Patchfile.patch").string();
    const Json base = {"-d", destination.string(), "-i", patch};
    std::vector<std::string> requests;
    for (const Json& call : result.of("tool")) {
        Json arguments = call["arguments"];
        ASSERT_GE(arguments.size(), base.size());
        requests.push_back(call["as"].get<std::string>() +
                           (arguments.size() > base.size()
                                ? " " + arguments.back().get<std::string>()
                                : std::string()));
        arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(base.size()),
                        arguments.end());
        EXPECT_EQ(arguments, base);
    }
    EXPECT_THAT(requests, ElementsAre("user -n", "admin", "user -C"));
}

TEST_F(RealUpdate, OfThreeCopiesTheOneThatFitsIsUpdatedAndTheOthersStay) {
    if (!isRoot())
        GTEST_SKIP() << "an ordinary user is refused the rights to update";
    const fs::path fits = addCopy("A", sample());
    const fs::path modified = addCopy("B", sample());
    const fs::path already = addCopy("C", update());
    std::ofstream(modified / "Styles/Botany/Botany 3.svstyle", std::ios::app) << "mine\n";
    const Tree before = treeOf(modified);
    const Result result = updateAll();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(fits), treeOf(update()));
    EXPECT_EQ(treeOf(modified), before);
    EXPECT_EQ(treeOf(already), treeOf(update()));
    EXPECT_THAT(foundLines(), ElementsAre("Found patchable candidate: " + fits.string() + ".",
                                          "Found unpatchable instance: " + modified.string() + ".",
                                          "Found unpatchable instance: " + already.string() + "."));
    EXPECT_EQ(std::distance(fs::directory_iterator(applications()), {}), 3) << "left behind";
}

TEST_F(RealUpdate, WhatTheUserAddedStaysAndContentThatWasCopiedOutIsBroughtUpToDate) {
    if (!isRoot())
        GTEST_SKIP() << "an ordinary user is refused the rights to update";
    const fs::path copy = addCopy("Scrivel 21", sample());
    const fs::path medicine = "Product-Support/Content.bundle/Filters/Medicine";
    fs::create_directories(copy / "Filters");
    for (const auto& filter : fs::directory_iterator(copy / medicine))
        fs::copy_file(filter, copy / "Filters" / filter.path().filename());
    std::ofstream(copy / "Filters/Mine.svfilter") << "mine";
    std::ofstream(copy / "Styles/Botany/Mine.svstyle") << "mine";
    const Result result = updateAll();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(differences(copy, update()), IsEmpty());
    EXPECT_EQ(contentsOf(copy / "Styles/Botany/Mine.svstyle"), "mine");
    Tree filters = treeOf(copy / "Filters");
    EXPECT_EQ(filters.erase("Mine.svfilter"), 1u);
    EXPECT_EQ(filters, treeOf(update() / medicine));
}

TEST_F(RealUpdate, TheAddInOfThePatchedCopyTakesThePlaceOfTheOldOne) {
    if (!isRoot())
        GTEST_SKIP() << "an ordinary user is refused the rights to update";
    addTwoWords();
    const fs::path copy = addCopy("Scrivel 21", sample());
    fs::create_directories(shared());
    copyTree(copy / "Penmark" / k16, shared() / k16);
    const Result result = updateAll();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(shared() / k16), treeOf(update() / "Penmark" / k16));
}

TEST_F(RealUpdate, WithoutAPatchInTheBundleNoCopyIsOffered) {
    const fs::path copy = addCopy("Scrivel 21", sample());
    fs::remove(bundle / "Contents/Resources/Patchfile.patch");
    const Result result = updateAll();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(copy), treeOf(sample()));
    EXPECT_THAT(foundLines(), ElementsAre("Found unpatchable instance: " + copy.string() + "."));
}

} // namespace
