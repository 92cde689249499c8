#include "word/WordAddIn.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "cp/private/SystemFolders.h"
#include "platform/ports/PlatformError.h"
#include "tests/word/WordStage.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string k2016 = "Scrivel PMRK Word 2016.bundle";
const std::string k16 = "Scrivel PMRK Word 16.bundle";

struct WordAddInTest : tests::WordStage {
    int install(OpMode mode, ec::OptionalText source = std::nullopt) {
        const int result = controller->installWordMode(mode, 1, source, std::nullopt).value();
        lines = logged();
        return result;
    }
    /// The folders that the last call has looked into.
    Texts visited() const {
        constexpr std::string_view kLine = "Processing Startup Folder: ";
        Texts folders;
        for (const std::string& line : lines)
            if (line.starts_with(kLine))
                folders.push_back(line.substr(kLine.size()));
        return folders;
    }
    /// The two add-ins in "PLACE/Penmark".
    std::string addIns(const std::string& place) {
        made(place + "/Penmark/" + k2016);
        made(place + "/Penmark/" + k16);
        return folder.path(place);
    }
    static std::string copying(const std::string& from, const std::string& to) {
        return "/usr/bin/ditto -rsrcFork " + from + " " + to;
    }
    /// What removing a folder runs.
    static Texts removing(const std::string& path) {
        return {"/usr/bin/chflags -R nouchg " + path, "/bin/rm -rf " + path};
    }

    Texts lines; ///< of the last call
};

// --- without a Word, and the launch modes

TEST_F(WordAddInTest, WithoutAWordTheAnswerIsMinusOneInEveryMode) {
    for (const OpMode mode : {OpMode::check, OpMode::copy, OpMode::remove, OpMode(7)})
        EXPECT_EQ(install(mode), -1);
    EXPECT_EQ(lines.front(), "State: Penmark Mode: mode_invalid");
    EXPECT_EQ(lines.back(), " Result= Disable");
    controller->m_mode = 36;
    EXPECT_EQ(install(OpMode::check), -1) << "also where it would be installed whatever is there";
}

TEST_F(WordAddInTest, ACheckInTheLaunchModes32And36FindsTheAddInWithoutLooking) {
    word("Word.app", "16");
    for (const std::uint32_t mode : {32u, 36u}) {
        controller->m_mode = mode;
        EXPECT_EQ(install(OpMode::check), 1);
        EXPECT_THAT(visited(), IsEmpty());
        EXPECT_EQ(lines.back(), " Result= Yes");
    }
    for (const std::uint32_t mode : {0u, 4u, 34u, 35u, 37u, 40u, 68u}) {
        controller->m_mode = mode;
        EXPECT_EQ(install(OpMode::check), 0) << mode;
    }
    controller->m_mode = 36;
    EXPECT_EQ(install(OpMode::remove), 0) << "only a check";
}

TEST_F(WordAddInTest, EachCallLogsItsModeItsFoldersAndItsResult) {
    const std::string path = word("Word.app", "16");
    controller->wordPaths();
    logged();
    EXPECT_EQ(install(OpMode::check), 0);
    EXPECT_THAT(lines, ElementsAre("State: Penmark Mode: mode_check",
                                   "Word Startup Folder(s) for: \"" + path + "\", Version: 16.",
                                   "    --> \"" + shared + "\"",
                                   "Processing Startup Folder: " + shared, " Result= No"));
    EXPECT_EQ(controller->processingText.text(), "Processing: Penmark");
}

// --- check

TEST_F(WordAddInTest, ACheckFindsTheAddInInTheSecondFolderAfterBothWereListed) {
    const std::string path = word("Word.app", "16");
    const std::string mine = made("Mine");
    remember({path + "|||" + mine + "|||16"});
    made(fs::relative(shared, folder.path()) / fs::path(k16));
    EXPECT_EQ(install(OpMode::check), 1);
    EXPECT_THAT(visited(), ElementsAre(mine, shared));
}

TEST_F(WordAddInTest, ACheckThatFindsTheAddInLeavesTheOtherFoldersOfThatWordAlone) {
    const std::string first = word("Word.app", "16");
    const std::string second = word("Word 2.app", "14");
    const std::string mine = made("Mine");
    const std::string others = made("Others");
    remember({first + "|||" + mine + "|||16", second + "|||" + others + "|||14"});
    made("Mine/" + k2016);
    EXPECT_EQ(install(OpMode::check), 1);
    EXPECT_THAT(visited(), ElementsAre(mine, others)) << "not the shared one of the first Word";
}

TEST_F(WordAddInTest, ACheckComparesWholeNamesWithTheirLetterCase) {
    word("Word.app", "16");
    const fs::path startup = fs::relative(shared, folder.path());
    made(startup / "scrivel pmrk word 16.bundle");
    made(startup / (k16 + " copy"));
    made(startup / "inner" / k16);
    EXPECT_EQ(install(OpMode::check), 0);
    made(startup / k16);
    EXPECT_EQ(install(OpMode::check), 1);
}

TEST_F(WordAddInTest, AFolderThatIsMissingOrAFileListsNothing) {
    const std::string path = word("Word.app", "14");
    remember({path + "|||/no/such/folder|||14", path + "|||" + folder.write("file", "") + "|||14"});
    for (const OpMode mode : {OpMode::check, OpMode::remove}) {
        EXPECT_EQ(install(mode), 0);
        EXPECT_THAT(visited(), ElementsAre("/no/such/folder", folder.path("file")));
    }
    EXPECT_THAT(toolCalls(), IsEmpty());
}

// --- remove

TEST_F(WordAddInTest, RemovingTakesBothAddInsFromEveryFolderOfEveryWordWhateverItsVersion) {
    const std::string old = word("Word 2008.app", "12");
    const std::string current = word("Word.app", "16");
    const std::string mine = made("Mine");
    remember({old + "|||" + mine + "|||12"});
    const fs::path startup = fs::relative(shared, folder.path());
    Texts expected;
    for (const fs::path& place : {fs::path("Mine"), startup})
        for (const std::string& name : {k16, k2016})
            for (const std::string& call : removing(made(place / name)))
                expected.push_back(call);
    made("Mine/Another.bundle");
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_EQ(toolCalls(), expected);
    EXPECT_THAT(visited(), ElementsAre(mine, shared));
}

TEST_F(WordAddInTest, RemovingALinkThatLeadsNowhereAnswersOneAsIsWantedAndLeavesIt) {
    word("Word.app", "16");
    fs::create_directories(shared);
    fs::create_symlink("nowhere", fs::path(shared) / k16);
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(WordAddInTest, RemovingWhatIsNotThereAnswersNothing) {
    word("Word.app", "16");
    EXPECT_EQ(install(OpMode::remove), 0);
    EXPECT_EQ(lines.back(), " Result= No");
}

TEST_F(WordAddInTest, ARemovalThatFailsAnswersOneAllTheSame) {
    word("Word.app", "16");
    fs::create_directories(fs::path(shared) / k16);
    host.administrator.rightsError = 1;
    host.tools.handler = [](const auto&) { return fakes::FakeTools::Answer{.status = 1}; };
    EXPECT_EQ(install(OpMode::remove), 1);
}

// --- copy

TEST_F(WordAddInTest, ACopyTakesTheAddInOfTheWordsVersionFromTheSource) {
    const std::string source = addIns("source");
    fs::create_directories(shared);
    for (const auto& [version, name] : {std::pair("15.9", k2016), std::pair("16.0", k16)}) {
        host.applications.installed.clear();
        controller.emplace(host.host(), components.rules, components.root);
        word("Word.app", version);
        EXPECT_EQ(install(OpMode::copy, source), 1);
        EXPECT_THAT(toolCalls(),
                    ElementsAre(copying(source + "/Penmark/" + name, shared + "/" + name)));
    }
}

TEST_F(WordAddInTest, ACopyGoesIntoEachFolderAndMakesThoseThatAreMissing) {
    const std::string path = word("Word.app", "16");
    const std::string mine = made("Mine");
    remember({path + "|||" + mine + "|||16"});
    const std::string from = addIns("source") + "/Penmark/" + k16;
    EXPECT_EQ(install(OpMode::copy, folder.path("source")), 1);
    EXPECT_THAT(toolCalls(),
                ElementsAre(copying(from, mine + "/" + k16), "/bin/mkdir -p " + shared,
                            "/bin/chmod 777 " + shared, copying(from, shared + "/" + k16)));
}

TEST_F(WordAddInTest, ACopyForWord16LeavesTheAddInOf2016WhereItIs) {
    word("Word.app", "16");
    fs::create_directories(fs::path(shared) / k2016);
    const std::string source = addIns("source");
    EXPECT_EQ(install(OpMode::copy, source), 1);
    EXPECT_THAT(toolCalls(), ElementsAre(copying(source + "/Penmark/" + k16, shared + "/" + k16)));
}

TEST_F(WordAddInTest, WithoutASourceFolderTheAddInComesFromBesideTheInstaller) {
    word("Word.app", "16");
    fs::create_directories(shared);
    addIns("disk");
    const std::string expected = copying(folder.path("disk/Penmark/" + k16), shared + "/" + k16);
    const std::string file = folder.write("file", "");
    for (const ec::OptionalText source : {ec::OptionalText(), ec::OptionalText("/no/such/folder"),
                                          ec::OptionalText(file), ec::OptionalText("")}) {
        EXPECT_EQ(install(OpMode::copy, source), 1);
        EXPECT_THAT(toolCalls(), ElementsAre(expected));
    }
}

TEST_F(WordAddInTest, ASourceFolderWithoutTheAddInIsNotReplacedByTheInstallers) {
    word("Word.app", "16");
    addIns("disk");
    EXPECT_EQ(install(OpMode::copy, made("source")), 0);
    EXPECT_THAT(visited(), ElementsAre(shared)) << "the folders are gone through all the same";
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(WordAddInTest, AWordOfAnotherVersionGetsNothing) {
    const std::string source = addIns("source");
    for (const auto* version : {"12", "14.7", "17", "98"}) {
        const std::string path = word("Word " + std::string(version) + ".app", version);
        remember({path + "|||" + made("Mine") + "|||16"}); // whatever the breadcrumb says
    }
    EXPECT_EQ(install(OpMode::copy, source), 0);
    EXPECT_THAT(visited(), ElementsAre(folder.path("Mine")));
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(WordAddInTest, AWordThatIsGoneGetsNothingThoughItsFolderIsGoneThrough) {
    addIns("disk");
    remember({"/no/such/Word.app|||" + made("Mine") + "|||16"});
    EXPECT_EQ(install(OpMode::copy), 0);
    EXPECT_THAT(visited(), ElementsAre(folder.path("Mine")));
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(WordAddInTest, ACopyThatFailsAnswersOneAllTheSame) {
    word("Word.app", "16");
    addIns("disk");
    host.administrator.rightsError = 1;
    host.tools.handler = [](const auto&) { return fakes::FakeTools::Answer{.status = 1}; };
    EXPECT_EQ(install(OpMode::copy), 1);
}

TEST_F(WordAddInTest, AnyOtherModeGoesThroughTheFoldersAndDoesNothing) {
    word("Word.app", "16");
    addIns("disk");
    fs::create_directories(fs::path(shared) / k16);
    for (const int mode : {0, 4, -1}) {
        EXPECT_EQ(install(OpMode(mode)), 0);
        EXPECT_EQ(lines.front(), "State: Penmark Mode: mode_invalid");
        EXPECT_THAT(visited(), ElementsAre(shared));
    }
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(WordAddInTest, AFailureOfThePlatformIsLoggedAndTheAnswerIsWhatWasGathered) {
    const std::string path = word("Word.app", "16");
    remember({path + "|||" + made("Mine") + "|||16"});
    addIns("disk");
    fs::create_directories(shared);
    int copies = 0;
    host.tools.handler = [&](const ports::ToolCall& call) -> fakes::FakeTools::Answer {
        if (++copies == 2)
            throw ports::PlatformError(call.tool);
        return {};
    };
    EXPECT_EQ(install(OpMode::copy), 1) << "the first folder was acted on";
    EXPECT_THAT(lines, testing::IsSupersetOf({"Exception Raised ", " Result= Yes"}));
    host.tools.handler = [](const ports::ToolCall& call) -> fakes::FakeTools::Answer {
        throw ports::PlatformError(call.tool);
    };
    EXPECT_EQ(install(OpMode::copy), 0);
}

// --- the staged folder

struct StagedPenmark : WordAddInTest {
    void SetUp() override {
        WordAddInTest::SetUp();
        Corvaldine::CP::Private::set_system_folder_bases(
            {.root = folder.path(), .home = "", .temporary = made("temporary")});
        made("disk/Installer.app/Contents/Resources");
    }
    void TearDown() override { Corvaldine::CP::Private::set_system_folder_bases({}); }

    /// The only folder that was made in the temporary one.
    std::string madeFolder() const {
        const auto names = folder.names("temporary");
        return names.size() == 1 ? folder.path("temporary/" + names.front()) : "";
    }
    std::string place() const { return folder.path("Applications/Scrivel Penmark"); }
    std::string installer() const { return host.bundles.bundle; }
};

TEST_F(StagedPenmark, IsUnpackedGetsTheInstallerAndReplacesTheOneThatIsThere) {
    const std::string zip = folder.write("disk/Installer.app/Contents/Resources/Scrivel.zip", "");
    const std::string icon =
        folder.write("disk/Installer.app/Contents/Resources/Scrivel_Folder.icns", "");
    made("Applications/Scrivel Penmark/Scrivel Penmark");
    host.tools.handler = [&](const ports::ToolCall& call) {
        if (call.arguments.front() == "-xk")
            fs::create_directories(madeFolder() + "/Scrivel");
        return fakes::FakeTools::Answer{};
    };
    controller->preparePmrkFolder();
    const std::string temporary = madeFolder();
    EXPECT_THAT(fs::path(temporary).filename().string(), StartsWith("SV"));
    Texts expected{"/usr/bin/ditto -xk --noqtn " + zip + " " + temporary,
                   copying(installer(), temporary + "/Scrivel/Installer.app")};
    for (const std::string& call : removing(place()))
        expected.push_back(call);
    expected.push_back(copying(temporary + "/Scrivel", place()));
    for (const std::string& call : removing(place() + "/Scrivel Penmark"))
        expected.push_back(call);
    EXPECT_EQ(toolCalls(), expected);
    EXPECT_THAT(host.finderFiles.icons, ElementsAre(testing::Pair(place(), icon)));
}

TEST_F(StagedPenmark, WithoutArchiveAndIconHoldsTheInstallerAlone) {
    controller->preparePmrkFolder();
    EXPECT_THAT(toolCalls(),
                ElementsAre(copying(installer(), madeFolder() + "/Scrivel/Installer.app")))
        << "nothing was unpacked, so that there is nothing to copy on";
    EXPECT_THAT(host.finderFiles.icons, IsEmpty());
    EXPECT_THAT(logged(), testing::Contains("Copy: source path does not exist: " + madeFolder() +
                                            "/Scrivel"));
}

TEST_F(StagedPenmark, WithoutAPlaceForATemporaryFolderIsNotTouched) {
    Corvaldine::CP::Private::set_system_folder_bases(
        {.root = folder.path(), .home = "", .temporary = folder.write("file", "") + "/inside"});
    controller->preparePmrkFolder();
    EXPECT_THAT(logged(), ElementsAre("Exception Raised "));
    EXPECT_THAT(toolCalls(), IsEmpty());
    controller->cleanupPmrkFolder();
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(StagedPenmark, IsLeftAloneWhenTheInstallerRunsFromThere) {
    host.bundles.bundle = folder.path("applications/SCRIVEL Penmark/Installer.app");
    controller->preparePmrkFolder();
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(StagedPenmark, IsCleanedUpOnceAndOnlyAfterItWasPrepared) {
    controller->cleanupPmrkFolder();
    EXPECT_THAT(logged(), IsEmpty());
    controller->preparePmrkFolder();
    const std::string staged = made("temporary/" + folder.names("temporary").front() + "/Scrivel");
    toolCalls();
    logged();
    controller->cleanupPmrkFolder();
    EXPECT_EQ(toolCalls(), removing(staged));
    controller->cleanupPmrkFolder();
    EXPECT_THAT(toolCalls(), IsEmpty());
}

TEST_F(StagedPenmark, ItIsWantedThatCleaningUpRemovesTheBareNameFromTheCurrentFolderToo) {
    controller->preparePmrkFolder();
    const std::string staged = made("temporary/" + folder.names("temporary").front() + "/Scrivel");
    logged();
    controller->cleanupPmrkFolder();
    EXPECT_THAT(logged(), testing::IsSupersetOf(
                              {"Remove File: " + staged, std::string("Remove File: Scrivel")}));
    controller->preparePmrkFolder();
    logged();
    controller->cleanupPmrkFolder();
    EXPECT_THAT(logged(), IsEmpty()) << "only where something was unpacked";
}

} // namespace
