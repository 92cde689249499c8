// Our own tools' calls on open files, and those of the library that only Darwin has: each call, its
// flags and its errors.
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <vector>

#include "cp/private/RenameExclusively.h"
#include "cp/private/RunningProcess.h"
#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/files/AtomicExchange.h"
#include "tools/files/ContentCopier.h"
#include "tools/files/ExtendedAttributes.h"
#include "tools/files/Flush.h"

namespace {

using fakes::darwin;
using Names = std::vector<std::string>;

int failWith(int error) {
    errno = error;
    return -1;
}

class ToolFilesOfMacOs : public testing::Test {
  protected:
    ToolFilesOfMacOs() { darwin() = {}; }

    tests::TemporaryFolder folder;
};

TEST_F(ToolFilesOfMacOs, TwoNamesOfAFolderAreExchangedInOneStep) {
    Names calls;
    darwin().rename = [&](int one, const std::string& from, int other, const std::string& to,
                          unsigned flags) {
        calls.push_back(std::to_string(one) + from + "," + std::to_string(other) + to + "," +
                        std::to_string(flags));
        return 0;
    };
    EXPECT_EQ(tools::exchangeNames(7, "a", "b"), 0);
    EXPECT_EQ(calls, Names{"7a,7b,2"});
}

TEST_F(ToolFilesOfMacOs, WhereNamesCannotBeExchangedThatIsSaidAndOtherErrorsAreTheirNumber) {
    for (const auto& [error, answer] : std::map<int, int>{{ENOTSUP, tools::kNoExchange},
                                                          {EINVAL, tools::kNoExchange},
                                                          {ENOSYS, tools::kNoExchange},
                                                          {ENOENT, ENOENT},
                                                          {EACCES, EACCES}}) {
        darwin().rename = [error](auto&&...) { return failWith(error); };
        EXPECT_EQ(tools::exchangeNames(7, "a", "b"), answer) << error;
    }
}

TEST_F(ToolFilesOfMacOs, ARenamingOfTheLibraryReplacesNothing) {
    darwin().rename = [](int, const std::string& from, int, const std::string& to, unsigned flags) {
        EXPECT_EQ(from + to, "/a/b");
        EXPECT_EQ(flags, 4u);
        return failWith(EEXIST);
    };
    EXPECT_EQ(Corvaldine::CP::Private::rename_unless_taken("/a", "/b"), EEXIST);
    darwin().rename = [](auto&&...) { return 0; };
    EXPECT_EQ(Corvaldine::CP::Private::rename_unless_taken("/a", "/b"), 0);
}

TEST_F(ToolFilesOfMacOs, ContentIsCopiedWithItsHolesAndNothingElseOfTheFile) {
    std::vector<unsigned> flags;
    darwin().fcopyfile = [&](int from, int to, unsigned given) {
        EXPECT_EQ(from * 100 + to, 708);
        flags.push_back(given);
        return 0;
    };
    std::uint64_t told = 0;
    struct ::stat status{};
    status.st_size = 4096;
    tools::ContentCopier copier;
    copier.copy(7, status, 8, [&](std::uint64_t bytes) { told += bytes; });
    EXPECT_EQ(flags, std::vector{1u << 3 | 1u << 27});
    EXPECT_EQ(told, 4096u);
    status.st_size = 0; // of which the system says that it can't be copied
    copier.copy(7, status, 8, [&](std::uint64_t bytes) { told += bytes; });
    EXPECT_EQ(flags.size(), 1u);
    EXPECT_EQ(told, 4096u);
    darwin().fcopyfile = [](auto&&...) { return failWith(ENOSPC); };
    status.st_size = 1;
    EXPECT_THROW(copier.copy(7, status, 8, [](std::uint64_t) {}), std::system_error);
}

TEST_F(ToolFilesOfMacOs, WhatWasWrittenIsFirstGivenToTheDriveAndInTheEndToTheDisk) {
    tools::flushSoon(7);
    EXPECT_EQ(darwin().flushed, Names{"fsync 7"});
    tools::flushFolder(8);
    tools::flushAll(9);
    EXPECT_EQ(darwin().flushed, (Names{"fsync 7", "full 8", "full 9"}));
}

TEST_F(ToolFilesOfMacOs, WhereTheDriveCannotBeEmptiedItIsGivenWhatWasWritten) {
    darwin().refusesFullFlush = true;
    tools::flushAll(9);
    EXPECT_EQ(darwin().flushed, (Names{"full 9", "fsync 9"}));
    darwin().refusesFlush = true;
    EXPECT_THROW(tools::flushAll(9), std::system_error);
    EXPECT_THROW(tools::flushSoon(9), std::system_error);
}

// --- Extended attributes

class AttributesOfMacOs : public ToolFilesOfMacOs {
  protected:
    AttributesOfMacOs() {
        darwin().flistxattr = [this](char* names, std::size_t size) {
            return give(all, names, size);
        };
        darwin().fgetxattr = [this](const std::string& name, void* value, std::size_t size) {
            const auto found = values.find(name);
            return found == values.end() ? failWith(ENODATA) : give(found->second, value, size);
        };
    }
    ssize_t give(const std::string& bytes, void* to, std::size_t size) const {
        if (error != 0)
            return failWith(error);
        if (to == nullptr)
            return static_cast<ssize_t>(bytes.size());
        if (size < bytes.size())
            return failWith(ERANGE);
        bytes.copy(static_cast<char*>(to), size);
        return static_cast<ssize_t>(bytes.size());
    }

    std::string all;
    std::map<std::string, std::string> values;
    int error = 0;
};

TEST_F(AttributesOfMacOs, AreListedByTheirNames) {
    EXPECT_EQ(tools::attributeNames(7), Names());
    all = std::string("com.apple.FinderInfo\0a\0", 23);
    EXPECT_EQ(tools::attributeNames(7), (Names{"com.apple.FinderInfo", "a"}));
}

TEST_F(AttributesOfMacOs, AreNoneWhereThereAreNoneOrNoneForThisUser) {
    for (const int none : {ENOTSUP, EACCES, EPERM}) {
        error = none;
        values["a"] = "b";
        EXPECT_EQ(tools::attributeNames(7), Names());
        EXPECT_EQ(tools::attributeValue(7, "a"), std::nullopt);
    }
    error = EIO;
    EXPECT_THROW(tools::attributeNames(7), std::system_error);
    EXPECT_THROW(tools::attributeValue(7, "a"), std::system_error);
}

TEST_F(AttributesOfMacOs, AreReadWholeAndMayBeEmpty) {
    values = {{"long", std::string(200'000, 'x')}, {"empty", ""}};
    EXPECT_EQ(tools::attributeValue(7, "long"), formats::Bytes(200'000, std::byte{'x'}));
    EXPECT_EQ(tools::attributeValue(7, "empty"), formats::Bytes());
    EXPECT_EQ(tools::attributeValue(7, "none"), std::nullopt);
}

TEST_F(AttributesOfMacOs, ThatHaveBecomeShorterMeanwhileAreAsShort) {
    darwin().fgetxattr = [](const std::string&, void* value, std::size_t size) {
        if (value != nullptr)
            std::string(size, 'x').copy(static_cast<char*>(value), 2);
        return ssize_t{value == nullptr ? 5 : 2};
    };
    EXPECT_EQ(tools::attributeValue(7, "a"), formats::Bytes(2, std::byte{'x'}));
}

TEST_F(AttributesOfMacOs, ThatComeAfterTheQuestionForTheirSizeAreAsTheyWereThen) {
    int calls = 0;
    darwin().fgetxattr = [&](const std::string&, void*, std::size_t) {
        return ssize_t{++calls == 1 ? 0 : 5};
    };
    EXPECT_EQ(tools::attributeValue(7, "a"), formats::Bytes());
    calls = 0;
    darwin().flistxattr = [&](char*, std::size_t) { return ssize_t{++calls == 1 ? 0 : 5}; };
    EXPECT_EQ(tools::attributeNames(7), Names());
}

TEST_F(AttributesOfMacOs, AreWrittenAndTakenAwayUnderTheirOwnNames) {
    Names calls;
    darwin().setxattr = [&](const std::string& where, const std::string& name,
                            const std::string& value, std::uint32_t position, int options) {
        calls.push_back(where + name + "=" + value);
        EXPECT_EQ(position, 0u);
        EXPECT_EQ(options, 0);
        return error == 0 ? 0 : failWith(error);
    };
    darwin().fremovexattr = [&](int file, const std::string& name, int options) {
        calls.push_back("#" + std::to_string(file) + name);
        EXPECT_EQ(options, 0);
        return 0;
    };
    const std::string value = "value";
    EXPECT_EQ(tools::putAttribute(7, "com.example.a", std::as_bytes(std::span(value))), 0);
    tools::removeAttribute(7, "com.example.a");
    EXPECT_EQ(calls, (Names{"#7com.example.a=value", "#7com.example.a"}));
    error = EPERM;
    EXPECT_EQ(tools::putAttribute(7, "com.example.a", {}), EPERM);
    EXPECT_EQ(tools::systemAttributeName("com.example.a"), "com.example.a");
    EXPECT_EQ(tools::macAttributeName("com.example.a"), "com.example.a");
}

// --- The running process

TEST_F(ToolFilesOfMacOs, AProcessesExecutableIsWhereItsLinksLead) {
    folder.write("X.app/Contents/MacOS/X", "");
    std::filesystem::create_directory_symlink("X.app", folder.path("link"));
    std::string path = folder.path("link/Contents/MacOS/X");
    darwin().procPidpath = [&](int pid, char* buffer, std::uint32_t size) {
        EXPECT_EQ(pid, 4711);
        EXPECT_GE(size, 4096u);
        path.copy(buffer, size);
        return static_cast<int>(path.size()); // without a zero at the end
    };
    const Corvaldine::CP::ProcessSerialNumber process{.highLongOfPSN = 0, .lowLongOfPSN = 4711};
    using Corvaldine::CP::Private::process_executable;
    EXPECT_EQ(process_executable(process), folder.path("X.app/Contents/MacOS/X"));
    path = folder.path("none");
    EXPECT_EQ(process_executable(process), "");
    for (const int answer : {0, -1}) {
        darwin().procPidpath = [answer](auto&&...) { return answer; };
        EXPECT_EQ(process_executable(process), "");
    }
}

} // namespace
