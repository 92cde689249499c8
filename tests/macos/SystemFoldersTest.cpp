#include "cp/private/SystemFolders.h"

#include <CoreServices/CoreServices.h>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <pwd.h>
#include <string>
#include <tuple>
#include <unistd.h>
#include <vector>

#include "cp/CSystemPath.h"
#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace Corvaldine::CP;
using Private::folder_type;
using Private::FolderDomain;

// The Folder Manager: what it was asked, and what it answers.
struct FolderManager {
    using Question = std::tuple<int, UInt32, bool>; ///< domain, type, is it to be made?
    std::vector<Question> questions;
    std::vector<std::size_t> buffers;
    std::map<std::pair<int, UInt32>, std::string> folders;
    OSErr error = 0;
    std::optional<OSStatus> pathError;
    std::map<UInt8, std::string> references; ///< by the first byte of the reference
};

FolderManager& manager() {
    static FolderManager one;
    return one;
}

constexpr Private::FolderType operator""_type(const char* text, std::size_t) {
    return folder_type({text[0], text[1], text[2], text[3], '\0'});
}

} // namespace

extern "C" OSErr FSFindFolder(FSVolumeRefNum domain, OSType type, Boolean create, FSRef* found) {
    FolderManager& folders = manager();
    folders.questions.emplace_back(domain, type, create != 0);
    const auto folder = folders.folders.find({domain, type});
    if (folders.error != 0 || folder == folders.folders.end())
        return folders.error != 0 ? folders.error : OSErr{-43};
    std::memset(found, 0, sizeof *found);
    found->hidden[0] = static_cast<UInt8>(folders.references.size() + 1);
    folders.references[found->hidden[0]] = folder->second;
    return 0;
}

extern "C" OSStatus FSRefMakePath(const FSRef* folder, UInt8* path, UInt32 size) {
    FolderManager& folders = manager();
    folders.buffers.push_back(size);
    if (folders.pathError)
        return *folders.pathError;
    const std::string& found = folders.references.at(folder->hidden[0]);
    if (found.size() + 1 > size)
        return pathTooLongErr;
    std::memcpy(path, found.c_str(), found.size() + 1);
    return 0;
}

namespace {

// The system's own bases, said before anything asks for them and then remembered for the process.
class OwnBases : public testing::Environment {
  public:
    void SetUp() override {
        m_folder.emplace();
        bases() = {.root = "", .home = m_folder->path("ada"), .temporary = m_folder->path("T")};
        manager().folders = {{{kUserDomain, "cusr"_type}, bases().home},
                             {{kUserDomain, "temp"_type}, bases().temporary}};
        ASSERT_EQ(Private::system_folder_bases().home, bases().home);
        ASSERT_EQ(Private::system_folder_bases().temporary, bases().temporary);
        ASSERT_EQ(Private::system_folder_bases().root, "");
    }
    void TearDown() override { m_folder.reset(); }

    static Private::SystemFolderBases& bases() {
        static Private::SystemFolderBases own;
        return own;
    }

  private:
    std::optional<tests::TemporaryFolder> m_folder;
};
const testing::Environment* const kOwnBases =
    testing::AddGlobalTestEnvironment(new OwnBases); // which owns it

class SystemFoldersOfMacOs : public testing::Test {
  protected:
    SystemFoldersOfMacOs() {
        manager() = {};
        fakes::darwin() = {};
        if (const char* home = std::getenv("HOME"))
            m_home = home;
        if (const char* temporary = std::getenv("TMPDIR"))
            m_temporary = temporary;
        Private::set_system_folder_bases(own);
    }
    ~SystemFoldersOfMacOs() override {
        Private::set_system_folder_bases(own);
        setVariable("HOME", m_home);
        setVariable("TMPDIR", m_temporary);
    }
    static void setVariable(const char* name, const std::optional<std::string>& value) {
        if (value)
            ::setenv(name, value->c_str(), 1);
        else
            ::unsetenv(name);
    }
    static std::optional<std::string> found(FolderDomain domain, Private::FolderType type) {
        std::string path;
        return Private::find_folder(domain, type, path) ? std::optional(path) : std::nullopt;
    }

    const Private::SystemFolderBases own = OwnBases::bases();
    tests::TemporaryFolder folder;

  private:
    std::optional<std::string> m_home;
    std::optional<std::string> m_temporary;
};

TEST_F(SystemFoldersOfMacOs, EachOneIsAskedForInItsDomainAndMadeIfItIsMissing) {
    const std::vector<std::tuple<CSystemPath::pathType, int, UInt32>> expected{
        {CSystemPath::user_preferences, -32763, "pref"_type},
        {CSystemPath::user_app_support, -32763, "asup"_type},
        {CSystemPath::user_documents, -32763, "docs"_type},
        {CSystemPath::user_temporary, -32763, "temp"_type},
        {CSystemPath::local_applications, -32765, "apps"_type},
        {CSystemPath::local_app_support, -32765, "asup"_type},
        {CSystemPath::user_documents_alt, -32763, "docs"_type},
        {CSystemPath::user_shared_data, -32763, "sdat"_type},
        {CSystemPath::user_desktop, -32763, "desk"_type},
    };
    for (const auto& [type, domain, code] : expected) {
        manager() = {};
        manager().folders[{domain, code}] = folder.path();
        EXPECT_EQ(CSystemPath(type), CPath(folder.path())) << type;
        EXPECT_EQ(manager().questions, (std::vector{FolderManager::Question{domain, code, true}}))
            << type;
    }
}

TEST_F(SystemFoldersOfMacOs, ATypeThatNobodyKnowsIsNotAskedFor) {
    EXPECT_EQ(CSystemPath(static_cast<CSystemPath::pathType>(11)), CPath());
    EXPECT_FALSE(found(FolderDomain::local, "pref"_type));
    EXPECT_TRUE(manager().questions.empty());
}

TEST_F(SystemFoldersOfMacOs, TheBufferGrowsBy256BytesUntilThePathFits) {
    for (const auto& [length, buffers] : std::map<std::size_t, std::vector<std::size_t>>{
             {255, {256}}, {256, {256, 512}}, {1000, {256, 512, 768, 1024}}}) {
        manager() = {};
        const std::string path = "/" + std::string(length - 1, 'x');
        manager().folders[{kLocalDomain, "apps"_type}] = path;
        EXPECT_EQ(found(FolderDomain::local, "apps"_type), path);
        EXPECT_EQ(manager().buffers, buffers);
    }
}

TEST_F(SystemFoldersOfMacOs, ABufferThatIsNeverLongEnoughEndsTheSearch) {
    manager().folders[{kUserDomain, "desk"_type}] = "/x";
    manager().pathError = pathTooLongErr;
    std::string path = "as before";
    EXPECT_FALSE(Private::ask_for_folder(FolderDomain::user, "desk"_type, path));
    EXPECT_EQ(path, "as before");
    EXPECT_EQ(manager().buffers.size(), 256u);
}

TEST_F(SystemFoldersOfMacOs, AfterAnErrorTheTableCounts) {
    const auto desk = std::pair{int{kUserDomain}, "desk"_type};
    std::string path = "as before";
    for (const OSErr error : {OSErr{-43}, OSErr{-35}, OSErr{-120}, OSErr{-5000}}) {
        manager() = {};
        manager().folders[desk] = "/x";
        manager().error = error;
        EXPECT_FALSE(Private::ask_for_folder(FolderDomain::user, "desk"_type, path)) << error;
        EXPECT_TRUE(manager().buffers.empty());
    }
    for (const OSStatus error : {-43, -50, -1407}) {
        manager() = {};
        manager().folders[desk] = "/x";
        manager().pathError = error;
        EXPECT_FALSE(Private::ask_for_folder(FolderDomain::user, "desk"_type, path)) << error;
        EXPECT_EQ(manager().buffers.size(), 1u);
    }
    manager() = {};
    manager().folders[desk] = "";
    EXPECT_FALSE(Private::ask_for_folder(FolderDomain::user, "desk"_type, path));
    EXPECT_EQ(path, "as before");

    manager() = {};
    manager().error = -43;
    EXPECT_EQ(found(FolderDomain::user, "temp"_type), own.temporary);
    EXPECT_EQ(found(FolderDomain::user, "docs"_type), own.home + "/Documents");
    EXPECT_TRUE(std::filesystem::is_directory(own.home + "/Documents"));
}

TEST_F(SystemFoldersOfMacOs, WithAnotherHomeItsFoldersComeFromTheTable) {
    Private::set_system_folder_bases(
        {.root = "", .home = folder.path(), .temporary = own.temporary});
    manager().folders = {{{kUserDomain, "desk"_type}, "/wrong"},
                         {{kUserDomain, "sdat"_type}, "/Users/Shared"},
                         {{kLocalDomain, "apps"_type}, "/Applications"}};
    EXPECT_EQ(found(FolderDomain::user, "desk"_type), folder.path("Desktop"));
    EXPECT_TRUE(manager().questions.empty());
    EXPECT_EQ(found(FolderDomain::user, "sdat"_type), "/Users/Shared");
    EXPECT_EQ(found(FolderDomain::local, "apps"_type), "/Applications");
}

TEST_F(SystemFoldersOfMacOs, UnderAnotherRootItsFoldersComeFromTheTable) {
    Private::set_system_folder_bases(
        {.root = folder.path(), .home = own.home, .temporary = own.temporary});
    manager().folders = {{{kUserDomain, "desk"_type}, own.home + "/Desktop"},
                         {{kUserDomain, "sdat"_type}, "/wrong"},
                         {{kLocalDomain, "asup"_type}, "/wrong"},
                         {{kLocalDomain, "apps"_type}, "/wrong"}};
    EXPECT_EQ(found(FolderDomain::local, "apps"_type), folder.path("Applications"));
    EXPECT_EQ(found(FolderDomain::local, "asup"_type), folder.path("Library/Application Support"));
    EXPECT_EQ(found(FolderDomain::user, "sdat"_type), folder.path("Users/Shared"));
    EXPECT_TRUE(manager().questions.empty());
    EXPECT_EQ(found(FolderDomain::user, "desk"_type), own.home + "/Desktop");
}

TEST_F(SystemFoldersOfMacOs, AnotherTemporaryFolderIsTakenAsItIs) {
    Private::set_system_folder_bases(
        {.root = "", .home = own.home, .temporary = folder.path("temporary")});
    EXPECT_EQ(found(FolderDomain::user, "temp"_type), folder.path("temporary"));
    EXPECT_TRUE(manager().questions.empty());
}

TEST_F(SystemFoldersOfMacOs, TheHomeFolderIsAskedForOnceAndNotMade) {
    manager().folders[{kUserDomain, "cusr"_type}] = "/Users/grace";
    EXPECT_EQ(Private::user_home_folder(), "/Users/grace");
    EXPECT_EQ(manager().questions,
              (std::vector{FolderManager::Question{-32763, "cusr"_type, false}}));
    EXPECT_EQ(manager().buffers, std::vector<std::size_t>{1025});
}

TEST_F(SystemFoldersOfMacOs, AHomeFolderOf1024BytesIsTheLongest) {
    setVariable("HOME", "/from/the/environment");
    const std::string longest = "/" + std::string(1023, 'h');
    manager().folders[{kUserDomain, "cusr"_type}] = longest;
    EXPECT_EQ(Private::user_home_folder(), longest);
    manager().folders[{kUserDomain, "cusr"_type}] = longest + "h";
    EXPECT_EQ(Private::user_home_folder(), "/from/the/environment");
    EXPECT_EQ(manager().buffers, (std::vector<std::size_t>{1025, 1025}));
}

TEST_F(SystemFoldersOfMacOs, AHomeFolderThatIsNotSaidComesFromTheEnvironmentThenTheUsers) {
    setVariable("HOME", "/from/the/environment/");
    EXPECT_EQ(Private::user_home_folder(), "/from/the/environment");
    setVariable("HOME", "");
    const passwd* user = ::getpwuid(::getuid());
    ASSERT_NE(user, nullptr);
    EXPECT_EQ(Private::user_home_folder(), user->pw_dir);
    setVariable("HOME", std::nullopt);
    EXPECT_EQ(Private::user_home_folder(), user->pw_dir);
}

TEST_F(SystemFoldersOfMacOs, TheTemporaryFolderIsTheFirstThatAnyoneSays) {
    setVariable("TMPDIR", "/from/the/environment/");
    fakes::darwin().temporaryFolder = "/var/folders/x/T/";
    manager().folders[{kUserDomain, "temp"_type}] = "/private/var/folders/x/T/TemporaryItems";
    EXPECT_EQ(Private::user_temporary_folder(), "/private/var/folders/x/T/TemporaryItems");
    manager().error = -43;
    EXPECT_EQ(Private::user_temporary_folder(), "/var/folders/x/T");
    fakes::darwin().temporaryFolder = "";
    EXPECT_EQ(Private::user_temporary_folder(), "/from/the/environment");
    setVariable("TMPDIR", std::nullopt);
    EXPECT_EQ(Private::user_temporary_folder(), "/tmp");
}

} // namespace
