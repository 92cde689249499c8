// The install methods with the real tools: what is on disk after a change, and what is said of it.
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include "platform/posix/SpawnedTools.h"
#include "tests/engine/MethodsStage.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TreeOf.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using Result = ec::ComponentOutcome::Result;

struct RealMethods : testing::Test {
    enum Item : std::uint32_t { kAll, kLaw, kPhysics, kSpotlight, kServices, kTessaron };
    tests::MethodsStage stage{"Filters|0|All filters|inst_allCategories|Filters\n"
                              "Law|1|Filters for law|inst_Category|Filters/Law\n"
                              "Physics|1|Filters for physics|inst_Category|Filters/Physics\n"
                              "Spotlight|1|Importer|inst_Spotlight\n"
                              "Services|1|Services|inst_Services\n"
                              "Tessaron|1|Extension|inst_Tessaron"};
    posix::SpawnedTools tools{{.ownToolsFolder = SCRIVEL_TOOLS}};
    ec::ecController& controller = stage.controller;
    ec::ecRules& rules = stage.components.rules;
    const std::string userImporter = stage.home("Library/Spotlight/Scrivel.mdimporter");
    const std::string systemImporter = stage.system("Library/Spotlight/Scrivel.mdimporter");
    const std::string userService = stage.home("Library/Services/SVService.app");
    const std::string systemService = stage.system("Library/Services/SVService.app");
    const std::string extension = stage.system(std::string(ec::gTessaronFile).substr(1));

    void SetUp() override {
        stage.host.tools.handler = [this](const ports::ToolCall& call) {
            return fakes::FakeTools::Answer{.status = runAsUser(call)};
        };
        stage.host.administrator.effect = [this](const ports::ToolCall& call) {
            runAsAdministrator(call);
        };
        stage.writeImporter();
        stage.writeService();
        stage.writeContent("Filters/Law/law 1", "law");
        stage.writeContent("Filters/Law/law 2", "law");
        stage.writeContent("Filters/Physics/physics 1", "physics");
        stage.writeContent("Most Popular/Filters/law 1", "law");
        fs::create_directories(stage.bundle() + "/Contents/Resources");
        fs::copy_file(SCRIVEL_RESOURCES "/KillSVService.sh",
                      stage.bundle() + "/Contents/Resources/KillSVService.sh");
        leaveAlone();
    }
    void leaveAlone() {
        for (std::uint32_t item = 0; item < rules.count(); ++item)
            rules.setItemState(item, -1);
    }
    /// A test that is an ordinary user for a while has the tools be that user altogether, as a
    /// program is that a user starts.
    int runAsUser(const ports::ToolCall& call) {
        const uid_t user = ::geteuid();
        if (user == ::getuid())
            return tools.run(call);
        const std::string own =
            std::string(SCRIVEL_TOOLS) + "/" + fs::path(call.tool).filename().native();
        const std::string name = std::to_string(user);
        ports::ToolCall asUser{"/usr/bin/setpriv",
                               {"--reuid=" + name, "--regid=" + name, "--clear-groups",
                                fs::exists(call.tool) ? call.tool : own}};
        asUser.arguments.insert(asUser.arguments.end(), call.arguments.begin(),
                                call.arguments.end());
        EXPECT_EQ(::seteuid(0), 0);
        const int status = tools.run(asUser);
        EXPECT_EQ(::seteuid(user), 0);
        return status;
    }
    /// With the rights that the test itself was started with. The group of the extension's files is
    /// not one of this system's, so their owner stays.
    void runAsAdministrator(const ports::ToolCall& call) {
        const uid_t user = ::geteuid();
        if (::getuid() == 0) {
            EXPECT_EQ(::seteuid(0), 0);
        }
        if (call.tool != "/bin/chown")
            (void)tools.run(call);
        EXPECT_EQ(::seteuid(user), 0);
    }
    /// One change that sets these items to the state and leaves the others alone; what became of
    /// them.
    std::vector<Result> change(const std::vector<Item>& items, std::int32_t state) {
        leaveAlone();
        for (const Item item : items)
            rules.setItemState(item, state);
        controller.outcomes.clear();
        (void)controller.makeChange();
        std::vector<Result> results;
        for (const Item item : items)
            results.push_back(controller.outcomes.at(item).result);
        return results;
    }
    std::string reason(Item item) const {
        const auto& its = controller.outcomes.at(item).reason;
        return its ? ec::formatted(its->text.english(), {its->about}) : "";
    }
    std::vector<std::string> filters() const { return stage.folder.names("Scrivel 21/Filters"); }
    static bool isEqual(const std::string& copy, const std::string& shipped) {
        return fs::exists(copy) && tests::treeOf(copy) == tests::treeOf(shipped);
    }
    std::string shippedImporter() const {
        return stage.bundle() + "/Contents/Library/Spotlight/Scrivel.mdimporter";
    }
    std::string shippedService() const { return stage.beside("Services/SVService.app"); }
};

TEST_F(RealMethods, ImporterAndServiceAreInstalledAndRemovedAtTheUsersLevel) {
    EXPECT_THAT(change({kSpotlight, kServices}, 1),
                ElementsAre(Result::installed, Result::installed));
    EXPECT_TRUE(isEqual(userImporter, shippedImporter()));
    EXPECT_TRUE(isEqual(userService, shippedService()));
    EXPECT_FALSE(fs::exists(systemImporter) || fs::exists(systemService));
    EXPECT_THAT(change({kSpotlight, kServices}, 1),
                ElementsAre(Result::unchanged, Result::unchanged));
    EXPECT_THAT(change({kSpotlight, kServices}, 0), ElementsAre(Result::removed, Result::removed));
    EXPECT_FALSE(fs::exists(userImporter) || fs::exists(userService));
    EXPECT_EQ(stage.host.administrator.prompts, 0);
}

TEST_F(RealMethods, ImporterAndServiceAreInstalledAndRemovedAtTheSystemsLevel) {
    controller.spotBtns.select(1);
    controller.servBtns.select(1);
    EXPECT_THAT(change({kSpotlight, kServices}, 1),
                ElementsAre(Result::installed, Result::installed));
    EXPECT_TRUE(isEqual(systemImporter, shippedImporter()));
    EXPECT_TRUE(isEqual(systemService, shippedService()));
    EXPECT_FALSE(fs::exists(userImporter) || fs::exists(userService));
    controller.installCheck();
    EXPECT_EQ(rules.getItemState(kSpotlight), 1);
    EXPECT_EQ(rules.getItemState(kServices), 1);
    EXPECT_THAT(change({kSpotlight, kServices}, 0), ElementsAre(Result::removed, Result::removed));
    EXPECT_FALSE(fs::exists(systemImporter) || fs::exists(systemService));
}

TEST_F(RealMethods, AServiceThatIsPutAwayGetsItsNameBackInACheck) {
    fs::rename(shippedService(), shippedService() + ".disabled");
    controller.installCheck();
    EXPECT_TRUE(fs::exists(shippedService() + "/Info"));
    EXPECT_FALSE(fs::exists(shippedService() + ".disabled"));
}

TEST_F(RealMethods, AServiceThatIsPutAwayIsInstalledUnderItsOwnName) {
    fs::rename(shippedService(), shippedService() + ".disabled");
    EXPECT_THAT(change({kServices}, 1), ElementsAre(Result::installed));
    EXPECT_TRUE(isEqual(userService, shippedService()));
}

TEST_F(RealMethods, CategoriesComeAndGoOneByOne) {
    EXPECT_THAT(change({kLaw, kPhysics}, 1), ElementsAre(Result::installed, Result::installed));
    EXPECT_THAT(filters(), ElementsAre("law 1", "law 2", "physics 1"));
    stage.writeBeside("Filters/the user's own");
    EXPECT_THAT(change({kLaw}, 0), ElementsAre(Result::removed));
    EXPECT_THAT(filters(), ElementsAre("physics 1", "the user's own"));
    controller.installCheck();
    EXPECT_EQ(rules.getItemState(kAll), -2);
    EXPECT_EQ(rules.getItemState(kLaw), 0);
    EXPECT_EQ(rules.getItemState(kPhysics), 1);
}

TEST_F(RealMethods, ACollectionComesWholeAndGoesBackToTheMostPopular) {
    EXPECT_THAT(change({kAll}, 1), ElementsAre(Result::installed));
    EXPECT_THAT(filters(), ElementsAre("law 1", "law 2", "physics 1"));
    EXPECT_THAT(change({kAll}, 0), ElementsAre(Result::removed));
    EXPECT_THAT(filters(), ElementsAre("law 1"));
    EXPECT_EQ(tests::contentsOf(stage.beside("Filters/law 1")), "law");
}

TEST_F(RealMethods, ACategoryWithFoldersKeepsThemAndTheirModes) {
    stage.writeContent("Filters/Law/Courts/high", "x");
    fs::permissions(stage.content("Filters/Law/Courts"), fs::perms(0750));
    EXPECT_THAT(change({kLaw}, 1), ElementsAre(Result::installed));
    EXPECT_EQ(fs::status(stage.beside("Filters/Courts")).permissions(), fs::perms(0750));
    EXPECT_THAT(change({kLaw}, 0), ElementsAre(Result::removed));
    EXPECT_FALSE(fs::exists(stage.beside("Filters/Courts")));
}

TEST_F(RealMethods, TheExtensionsFileComesAndGoes) {
    EXPECT_THAT(change({kTessaron}, 1), ElementsAre(Result::installed));
    EXPECT_FALSE(controller.useChromeStore());
    EXPECT_THAT(stage.folder.names("tmp"), ElementsAre());
    EXPECT_THAT(change({kTessaron}, 0), ElementsAre(Result::removed));
    EXPECT_FALSE(fs::exists(extension));
    EXPECT_TRUE(fs::exists(fs::path(extension).parent_path()));
}

TEST_F(RealMethods, AFolderInTheExtensionsPlaceIsCopiedIntoAndFails) {
    fs::create_directories(extension);
    EXPECT_THAT(change({kTessaron}, 1), ElementsAre(Result::failed));
    EXPECT_TRUE(fs::exists(extension + "/" + fs::path(extension).filename().native()));
    EXPECT_TRUE(controller.useChromeStore());
    EXPECT_THAT(change({kTessaron}, 0), ElementsAre(Result::failed));
    EXPECT_TRUE(fs::exists(extension));
}

TEST_F(RealMethods, RightsThatAreRefusedHalfWayAreAskedForOnceAndTheRestGoesOn) {
    controller.servBtns.select(1);
    fs::create_directories(stage.system("Library"));
    fs::permissions(stage.system("Library"), fs::perms(0555));
    stage.refuseRights();
    const tests::AsOrdinaryUser user(stage.folder.path());
    EXPECT_THAT(
        change({kLaw, kSpotlight, kServices, kTessaron}, 1),
        ElementsAre(Result::installed, Result::installed, Result::refused, Result::refused));
    EXPECT_EQ(reason(kServices), "Administrator rights were refused.");
    EXPECT_EQ(stage.host.administrator.prompts, 1);
    EXPECT_FALSE(fs::exists(systemService) || fs::exists(extension));
    EXPECT_THAT(stage.folder.names("tmp"), ElementsAre());
}

TEST_F(RealMethods, WhatTheUserMayNotDoTheAdministratorDoes) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs the administrator's rights";
    controller.spotBtns.select(1);
    fs::create_directories(stage.system("Library/Spotlight"));
    fs::permissions(stage.system("Library/Spotlight"), fs::perms(0555));
    const tests::AsOrdinaryUser user(stage.folder.path());
    EXPECT_THAT(change({kSpotlight}, 1), ElementsAre(Result::installed));
    EXPECT_EQ(stage.host.administrator.prompts, 1);
    EXPECT_THAT(change({kSpotlight}, 0), ElementsAre(Result::removed));
    EXPECT_FALSE(fs::exists(systemImporter));
}

TEST_F(RealMethods, AReadOnlyCollectionFailsOrIsRefusedAndKeepsWhatItHas) {
    EXPECT_THAT(change({kLaw}, 1), ElementsAre(Result::installed));
    fs::permissions(stage.beside("Filters"), fs::perms(0555));
    stage.refuseRights();
    {
        const tests::AsOrdinaryUser user(stage.folder.path());
        EXPECT_THAT(change({kLaw}, 0), ElementsAre(Result::refused));
        EXPECT_THAT(change({kPhysics}, 1), ElementsAre(Result::refused));
    }
    EXPECT_THAT(filters(), ElementsAre("law 1", "law 2"));
}

TEST_F(RealMethods, ASourceThatVanishesBetweenCheckAndChangeIsTheReason) {
    controller.installCheck();
    fs::remove_all(shippedService());
    fs::remove_all(stage.content("Filters/Law"));
    EXPECT_THAT(change({kLaw, kPhysics, kServices}, 1),
                ElementsAre(Result::failed, Result::installed, Result::failed));
    EXPECT_EQ(reason(kServices),
              "“" + shippedService() + "” is missing from this copy of the installer.");
}

TEST_F(RealMethods, ADiskThatFillsUpInTheMiddleFailsThatComponentAlone) {
    const std::string place = stage.home("Library/Spotlight");
    fs::create_directories(place);
    struct Mounted {
        explicit Mounted(const std::string& path)
            : at(path), stands(::mount("tmpfs", at.c_str(), "tmpfs", 0, "size=64k") == 0) {}
        ~Mounted() {
            if (stands)
                ::umount2(at.c_str(), MNT_DETACH);
        }
        Mounted(const Mounted&) = delete;
        Mounted& operator=(const Mounted&) = delete;
        std::string at;
        bool stands;
    };
    const Mounted disk(place);
    if (!disk.stands)
        GTEST_SKIP() << "this machine lets nobody mount";
    const std::string large(200'000, 'x');
    stage.folder.write("Scrivel 21/Installer.app/Contents/Library/Spotlight/Scrivel.mdimporter/"
                       "Large",
                       large);
    EXPECT_THAT(change({kLaw, kSpotlight, kServices}, 1),
                ElementsAre(Result::installed, Result::failed, Result::installed));
    EXPECT_EQ(reason(kSpotlight), "“" + userImporter + "” could not be written.");
    EXPECT_THAT(change({kSpotlight}, 0), ElementsAre(Result::removed));
    EXPECT_FALSE(fs::exists(userImporter)) << "what was half copied can be removed";
}

TEST_F(RealMethods, AnUninstallTakesAllButTheMostPopularAndTheFolders) {
    EXPECT_THAT(change({kAll, kSpotlight, kServices, kTessaron}, 1),
                testing::Each(Result::installed));
    controller.m_bUninstall = true;
    EXPECT_THAT(change({kAll, kSpotlight, kServices, kTessaron}, -1),
                testing::Each(Result::removed));
    EXPECT_THAT(filters(), ElementsAre()) << "the category takes its most popular one as well";
    EXPECT_FALSE(fs::exists(userImporter) || fs::exists(userService) || fs::exists(extension));
}

TEST_F(RealMethods, AnUpdatePutsAFileIntoItsCollectionAndRemovesAnOldOne) {
    const std::string law = stage.content("Filters/Law");
    EXPECT_THAT(change({kLaw}, 1), ElementsAre(Result::installed));
    stage.writeContent("Filters/Law/law 3", "new");
    stage.writeContent("Filters/Law/Courts/court", "new");
    stage.writeBeside("Filters/old");
    stage.writeBeside("Filters/Old folder/inner");
    controller.installPatchCategoriesItems(
        {law + "/law 3", law + "/Courts", law + "/old", law + "/Old folder"}, stage.beside("."));
    EXPECT_THAT(filters(), ElementsAre("court", "law 1", "law 2", "law 3"))
        << "of a folder, what is in it is put into the collection";
    EXPECT_EQ(tests::contentsOf(stage.beside("Filters/law 3")), "new");
}

} // namespace
