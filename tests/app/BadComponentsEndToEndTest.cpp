// The built program's components among broken, hostile and vanishing things: whatever lies there,
// the run ends clearly, tells what failed in one line, leaves no process and no temporary file, and
// nothing half-written is told to be installed.
#include <sys/stat.h>

#include <gmock/gmock.h>

#include "tests/app/ClassicFile.h"
#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct BadComponentsEndToEnd : ComponentsRun {
    void TearDown() override {
        EXPECT_THAT(processesOfThisRun(), IsEmpty());
        for (const auto& each : fs::recursive_directory_iterator(root))
            EXPECT_THAT(each.path().filename().string(), Not(HasSubstr(".new")));
        ComponentsRun::TearDown();
    }
    /// What still runs of this run: programs and scripts below its folder.
    std::vector<std::string> processesOfThisRun() const {
        std::vector<std::string> found;
        for (const auto& process : fs::directory_iterator("/proc")) {
            const std::string words = contentsOf(process.path() / "cmdline");
            if (words.find(folder.string()) != std::string::npos)
                found.push_back(words);
        }
        return found;
    }
    static void expectClearFailure(const Result& result, int exit, const std::string& about) {
        EXPECT_EQ(result.exit, exit) << result.error;
        const std::vector<std::string> errors = ownErrors(result);
        ASSERT_THAT(errors, SizeIs(1)) << result.error;
        EXPECT_THAT(errors.front(), HasSubstr(about));
    }
    std::string infoPlist(const std::string& word) const { return word + "/Contents/Info.plist"; }
    /// Replaces the bundle's tool by a script that does so first, and then what the tool does.
    void beforeTool(const std::string& tool, const std::string& script) {
        const fs::path real = folder / (tool + ".real");
        fs::rename(bundle / "Contents/MacOS" / tool, real);
        replaceTool(tool, script + "\nexec '" + real.string() + "' \"$@\"");
    }
    Json listed() { return Json::parse(run("list --json").output); }
    std::vector<std::string> wordsInLog() {
        std::vector<std::string> words;
        for (const std::string& line : logged())
            if (line.starts_with("Word Startup Folder(s) for: "))
                words.push_back(named(line));
        return words;
    }
};

// --- Words that are none

TEST_F(BadComponentsEndToEnd, AWordWithABrokenListIsPassedOver) {
    for (const std::string& broken :
         {std::string("<plist><dict><key>"), std::string(), std::string("bplist00\xFF\xFF", 10),
          std::string(4096, '\0'), std::string("<plist version=\"1.0\"><array/></plist>")}) {
        std::ofstream(infoPlist(addWord("Microsoft Word", "16")), std::ios::binary) << broken;
        EXPECT_EQ(listed().at(1)["state"], -1);
        const Result result = customize("--select Law");
        EXPECT_EQ(result.exit, 0) << result.error;
        EXPECT_EQ(resultOf(result, "Penmark add-in"), "unchanged");
    }
    EXPECT_FALSE(fs::exists(root / "Library"));
}

TEST_F(BadComponentsEndToEnd, AWordWithAHugeListIsPassedOverAndTheOtherIsServed) {
    addWord("Microsoft Word", "16.78");
    std::ofstream(infoPlist(addWord("Microsoft Word 2016", "15.41")), std::ios::app)
        << "<!--" << std::string(64 << 20, 'x') << "-->";
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k16));
    EXPECT_FALSE(fs::exists(shared() / k2016)) << "nobody reads 64 MB for a version";
}

TEST_F(BadComponentsEndToEnd, ABundleThatIsAFileIsNoWord) {
    fs::create_directories(applications());
    std::ofstream(applications() / "Microsoft Word.app") << "no folder";
    EXPECT_EQ(listed().at(1)["state"], -1);
    EXPECT_EQ(customize("").exit, 0);
}

TEST_F(BadComponentsEndToEnd, AListThatIsAFolderAPipeOrALinkInACircleIsNoWord) {
    const fs::path list = infoPlist(addWord("Microsoft Word", "16"));
    fs::remove(list);
    fs::create_directories(list);
    EXPECT_EQ(listed().at(1)["state"], -1);
    fs::remove(list);
    ASSERT_EQ(::mkfifo(list.c_str(), 0600), 0);
    EXPECT_EQ(listed().at(1)["state"], -1) << "and it does not wait for a writer";
    fs::remove(list);
    fs::create_symlink(list.filename(), list);
    EXPECT_EQ(listed().at(1)["state"], -1);
}

TEST_F(BadComponentsEndToEnd, AnAgelessSingleFileIsNoWord) {
    const fs::path word = applications() / "Old/Microsoft Word";
    const std::string whole = forkWithVersion({0x16, 0x01, 0x20, 0x11});
    for (const std::string& fork :
         {forkWithVersion({0x11}), forkWithVersion(""), forkWithVersion({0x11, 0x11, 0x11}),
          withField(whole, ForkField::mapAt, 0xFFFFFFF0),
          withField(whole, ForkField::mapAt, static_cast<std::uint32_t>(whole.size())),
          withField(whole, ForkField::mapLength, 0x7FFFFFFF),
          withField(whole, ForkField::dataAt, 0x80000000),
          withField(whole, ForkField::dataLength, 0xFFFFFFFF), whole.substr(0, whole.size() / 2),
          whole.substr(0, 15), std::string("x"), std::string(1 << 20, '\xFF')}) {
        writeClassicFile(word, fork);
        EXPECT_EQ(listed().at(1)["state"], -1) << fork.size();
        fs::remove_all(word.parent_path());
        if (!writeClassicFileWithAttribute(word, fork.substr(0, 4000)))
            continue;
        EXPECT_EQ(listed().at(1)["state"], -1) << fork.size();
        fs::remove_all(word.parent_path());
    }
    writeClassicFile(word, whole);
    EXPECT_EQ(listed().at(1)["state"], 0) << "the whole fork is one";
}

TEST_F(BadComponentsEndToEnd, NamesWithLineEndsAndSeparatorsAreNames) {
    const std::string lines = addWord("Two\nlines/Microsoft Word", "16");
    const std::string bars = addWord("Bars ||| here/Microsoft Word", "15");
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k16));
    EXPECT_FALSE(fs::exists(shared() / k2016))
        << "what stands before the bars leads to no Word, and no record can say otherwise";
    std::string shownLines = named(lines);
    shownLines.replace(shownLines.find('\n'), 1, "\\n");
    EXPECT_THAT(wholeLog(), HasSubstr("    \"ROOT/Applications/Bars \""));
    EXPECT_THAT(wholeLog(), HasSubstr("    \"" + shownLines + "\""));
}

// --- breadcrumbs that are none

TEST_F(BadComponentsEndToEnd, BreadcrumbsOfTheWrongTypeAreNone) {
    addWord("Microsoft Word", "16");
    for (const char* elements :
         {"<string>/Microsoft Word.app|||/Startup|||16</string>", "<integer>3</integer>",
          "<array><integer>3</integer><true/><array/></array>", "<dict/>", "<array/>",
          "<array><string></string><string>|||</string><string>||||||</string></array>"}) {
        writeCrumbs(elements);
        const std::string before = contentsOf(crumbsFile());
        const Result result = customize(R"(--select "Penmark add-in")");
        EXPECT_EQ(result.exit, 0) << elements << result.error;
        EXPECT_TRUE(fs::exists(shared() / k16)) << elements;
        EXPECT_EQ(contentsOf(crumbsFile()), before);
        EXPECT_EQ(customize(R"(--deselect "Penmark add-in")").exit, 0);
        EXPECT_FALSE(fs::exists(shared() / k16));
    }
}

TEST_F(BadComponentsEndToEnd, APreferencesFileThatIsAFolderIsNoneAndStaysSo) {
    addWord("Microsoft Word", "16");
    made(crumbsFile() / "inside");
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k16));
    EXPECT_TRUE(fs::exists(crumbsFile() / "inside"));
}

TEST_F(BadComponentsEndToEnd, ARememberedStartupFolderWithALineEndIsUsedAsItIs) {
    const std::string startup = made(home / "Two\nlines");
    rememberWords({addWord("Microsoft Word", "16") + "|||" + startup + "|||16"});
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(fs::path(startup) / k16), treeOf(folder / "Penmark" / k16));
}

// --- places that are something else

TEST_F(BadComponentsEndToEnd, ARememberedStartupFolderThatIsAFileFailsAndStaysAFile) {
    std::ofstream(home / "Startup") << "no folder";
    rememberWords(
        {addWord("Microsoft Word", "16") + "|||" + (home / "Startup").string() + "|||16"});
    const Result result = customize(R"(--select "Penmark add-in")");
    expectClearFailure(result, isRoot() ? 4 : 5, "Penmark add-in: ");
    EXPECT_EQ(resultOf(result, "Penmark add-in"), isRoot() ? "failed" : "refused");
    EXPECT_EQ(contentsOf(home / "Startup"), "no folder");
    EXPECT_TRUE(fs::exists(shared() / k16)) << "the second folder of that Word";
}

TEST_F(BadComponentsEndToEnd, AnExtensionThatIsAFolderIsNeitherInstalledNorRemoved) {
    made(extension() / "inside");
    EXPECT_THAT(installed(), Not(Contains("Browser extension")));
    Result result = customize(R"(--deselect "Browser extension")");
    EXPECT_EQ(resultOf(result, "Browser extension"), "failed");
    expectClearFailure(result, 4, "“" + extension().string() + "” is still there.");
    EXPECT_THAT(result.of("authorize"), IsEmpty()) << "no tool is run for it";

    result = customize(R"(--select "Browser extension")");
    expectClearFailure(result, isRoot() ? 4 : 5, "Browser extension: ");
    EXPECT_TRUE(fs::is_directory(extension() / "inside"));
    EXPECT_THAT(installed(), Not(Contains("Browser extension")));
}

// --- things that vanish

TEST_F(BadComponentsEndToEnd, AnAddInThatVanishesAfterTheCheckFailsByName) {
    addWord("Microsoft Word", "16");
    // the first tool that the change runs is the one for the flags: there is an old add-in
    made(shared() / k2016 / "Contents");
    beforeTool("chflags", "rm -rf '" + (folder / "Penmark").string() + "'");
    const Result result = customize("");
    const std::string missing = (folder / "Penmark" / k16).string();
    expectClearFailure(result, 4, "Penmark add-in: “" + missing + "” is missing from this copy");
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "failed");
    EXPECT_TRUE(fs::is_empty(shared()));
    EXPECT_THAT(logged(), Contains(" Result= No"));
    EXPECT_THAT(installed(), Not(Contains("Penmark add-in")));
}

TEST_F(BadComponentsEndToEnd, AnAddInThatVanishesUnderTheCopyFailsByName) {
    addWord("Microsoft Word", "16");
    beforeTool("ditto", "rm -rf '" + (folder / "Penmark").string() + "'");
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_THAT(result.exit, AnyOf(4, 5)); // as an ordinary user there was also a refusal
    ASSERT_THAT(ownErrors(result), SizeIs(1));
    EXPECT_THAT(ownErrors(result).front(), HasSubstr((folder / "Penmark" / k16).string()));
    EXPECT_FALSE(fs::exists(shared() / k16));
    EXPECT_THAT(installed(), Not(Contains("Penmark add-in")));
}

TEST_F(BadComponentsEndToEnd, AWordThatVanishesUnderTheChangeGetsNothingMore) {
    addTwoWords();
    beforeTool("ditto", "rm -rf '" + (applications() / "Microsoft Word.app").string() + "'");
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k2016)) << "the Word of 2016 comes first";
    EXPECT_FALSE(fs::exists(shared() / k16));
}

TEST_F(BadComponentsEndToEnd, AllContentThatVanishesFailsForEachThatWasWanted) {
    beforeTool("ditto", "rm -rf '" + (folder / "Product-Support").string() + "'");
    const Result result = customize("--select Law --select History");
    EXPECT_THAT(result.exit, AnyOf(4, 5));
    ASSERT_THAT(ownErrors(result), SizeIs(1));
    EXPECT_THAT(ownErrors(result).front(), AllOf(HasSubstr("Law: "), HasSubstr("History: ")));
    EXPECT_THAT(installed(), ElementsAre("Read Me.txt"));
}

// --- tools that fail

TEST_F(BadComponentsEndToEnd, AToolThatHidesItsFailureIsFoundOut) {
    addWord("Microsoft Word", "16");
    replaceTool("ditto", "mkdir -p \"$3/Contents\"; : >\"$3/Contents/Info.plist\"; exit 0");
    const Result result = customize(R"(--select "Penmark add-in")");
    expectClearFailure(result, 4, "“" + (shared() / k16).string() + "” could not be written.");
    EXPECT_THAT(logged(), Contains(" Result= Yes")) << "as the log always said";
}

TEST_F(BadComponentsEndToEnd, AToolThatIsKilledFailsAndTheRestGoesOn) {
    addWord("Microsoft Word", "16");
    beforeTool("ditto", "case \"$3\" in *Penmark*|*PMRK*) kill -9 $$;; esac");
    const Result result =
        customize(R"(--select "Penmark add-in" --select Law)", R"({"authorize": false})");
    expectClearFailure(result, 5, "Penmark add-in: ");
    EXPECT_EQ(resultOf(result, "Law"), "installed");
    EXPECT_FALSE(fs::exists(shared() / k16));
}

TEST_F(BadComponentsEndToEnd, MissingToolsFailTruthfully) {
    addWord("Microsoft Word", "16");
    fs::remove(bundle / "Contents/MacOS/ditto");
    if (fs::exists("/usr/bin/ditto"))
        GTEST_SKIP() << "the system's own serves";
    const Result result = customize(R"(--select "Penmark add-in")", R"({"authorize": false})");
    expectClearFailure(result, 5, "Penmark add-in: ");
    EXPECT_FALSE(fs::exists(shared() / k16));
}

TEST_F(BadComponentsEndToEnd, ARunAsAdministratorThatFailsIsFoundOutThoughItCountsAsStarted) {
    if (!isRoot())
        GTEST_SKIP() << "only root is granted rights without being asked";
    made(extension().parent_path());
    std::ofstream(extension().parent_path() / "mine.json") << "mine";
    posix::SpawnedTools tools({});
    if (tools.run({"/usr/bin/chattr", {"+i", extension().parent_path().string()}}) != 0)
        GTEST_SKIP() << "the file system of the temporary folder knows no immutable folders";
    const Result result = customize(R"(--select "Browser extension")");
    EXPECT_EQ(tools.run({"/usr/bin/chattr", {"-i", extension().parent_path().string()}}), 0);
    expectClearFailure(result, 4, "“" + extension().string() + "” could not be written.");
    EXPECT_EQ(contentsOf(extension().parent_path() / "mine.json"), "mine");
    EXPECT_THAT(wholeLog(), HasSubstr("CHROME/kmhdpbnaogjcfelipamcbkdgonhejlfa.json Result: 0"));
    EXPECT_THAT(installed(), Not(Contains("Browser extension")));
}

// --- the end in the middle

struct KilledEndToEnd : BadComponentsEndToEnd {
    /// Runs the customizer and tells it to end once its copy of the add-in is at work.
    Result killedDuringTheCopy(const std::string& ditto) {
        addTwoWords();
        beforeTool("ditto", ditto);
        std::ofstream(folder / "answers.json") << R"({"authorize": false})";
        return run("customize --select 'Penmark add-in' --select Law --events --answers '" +
                   (folder / "answers.json").string() + "'");
    }
};

TEST_F(KilledEndToEnd, APoliteKillDuringAChangeLetsTheChangeEndAndTellsTheTruth) {
    const Result result = killedDuringTheCopy("kill -TERM $PPID; sleep 0.2");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(shared()), treeOf(folder / "Penmark")) << "nothing is cut off";
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "installed");
    EXPECT_EQ(resultOf(result, "Law"), "installed");
    EXPECT_EQ(result.of("finished").at(0)["exit"], 0);
}

TEST_F(KilledEndToEnd, AHardKillLeavesNothingThatTheNextRunCannotMend) {
    killedDuringTheCopy("kill -KILL $PPID; exit 1");
    fs::rename(folder / "ditto.real", bundle / "Contents/MacOS/ditto");
    const Result result = customize(R"(--select "Penmark add-in")", R"({"authorize": false})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(treeOf(shared()), treeOf(folder / "Penmark"));
}

// --- a disk that is full

TEST_F(BadComponentsEndToEnd, AFullDiskInTheMiddleOfAChangeFailsWhatDidNotFit) {
    posix::SpawnedTools tools({});
    if (!isRoot() ||
        tools.run({"/bin/mount", {"-t", "tmpfs", "-o", "size=256k", "tmpfs", root.string()}}) != 0)
        GTEST_SKIP() << "only root can mount a small file system";
    addTwoWords();
    // the add-in for 2016 fits, the one for 16 does not
    std::ofstream(folder / "Penmark" / k16 / "Contents/big") << std::string(1 << 20, 'x');
    const Result result = customize(R"(--select "Penmark add-in" --select Law)");
    expectClearFailure(result, 4, "“" + (shared() / k16).string() + "” could not be written.");
    EXPECT_EQ(resultOf(result, "Law"), "installed") << "on another disk";
    EXPECT_EQ(treeOf(shared() / k2016), treeOf(folder / "Penmark" / k2016));
    EXPECT_FALSE(fs::exists(shared() / k16 / "Contents/big")) << "no file by halves";
    EXPECT_EQ(tools.run({"/bin/umount", {root.string()}}), 0);
}

} // namespace
