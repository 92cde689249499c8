#include "platform/macos/LaunchServices.h"

#include <CoreServices/CoreServices.h>
#include <functional>
#include <gtest/gtest.h>

#include "tests/macos/FakeCoreFoundation.h"

namespace {

using fakes::coreFoundation;
using Paths = std::vector<std::string>;

/// What the registry answers with, and what it was asked for, in order.
struct Registry {
    std::function<CFArrayRef()> answer = [] { return nullptr; };
    Paths asked;
};
Registry registry;

} // namespace

extern "C" {

CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef bundleId, CFErrorRef* outError) {
    EXPECT_EQ(outError, nullptr);
    registry.asked.push_back("identifier " + coreFoundation().textOf(bundleId));
    return registry.answer();
}

CFArrayRef LSCopyApplicationURLsForURL(CFURLRef url, LSRolesMask roles) {
    EXPECT_EQ(roles, 0xFFFFFFFFu);
    registry.asked.push_back("document " + coreFoundation().pathOf(url));
    return registry.answer();
}

} // extern "C"

namespace {

using Question = macoshost::ApplicationPaths (*)(std::string_view);

/// Both questions take the answer in the same way.
class LaunchServicesTest : public testing::TestWithParam<Question> {
  protected:
    LaunchServicesTest() {
        coreFoundation() = {};
        registry = {};
    }
    ~LaunchServicesTest() override {
        EXPECT_EQ(coreFoundation().living, 0) << "something is left, or released too often";
    }

    /// The registry's answer, from URLs with these paths.
    void answerWith(std::vector<std::optional<std::string>> paths) {
        registry.answer = [=] {
            std::vector<CFURLRef> urls;
            for (const auto& path : paths)
                urls.push_back(coreFoundation().newUrl(path));
            return coreFoundation().newList(urls);
        };
    }
    macoshost::ApplicationPaths ask(std::string_view about = "/x") { return GetParam()(about); }
};
INSTANTIATE_TEST_SUITE_P(Both, LaunchServicesTest,
                         testing::Values(&macoshost::applicationsWithIdentifier,
                                         &macoshost::applicationsForDocument));

TEST_P(LaunchServicesTest, NoListIsNone) {
    EXPECT_EQ(ask(), std::nullopt);
    EXPECT_EQ(registry.asked.size(), 1u);
}

TEST_P(LaunchServicesTest, AnEmptyListIsAList) {
    answerWith({});
    EXPECT_EQ(ask(), Paths());
}

TEST_P(LaunchServicesTest, OnePathIsGivenAsItStands) {
    answerWith({"/Applications/Übung \xF0\x9F\x93\x96.app"});
    EXPECT_EQ(ask(), Paths({"/Applications/Übung \xF0\x9F\x93\x96.app"}));
}

TEST_P(LaunchServicesTest, ManyPathsComeInTheRegistrysOrderEvenTwice) {
    answerWith({"/b.app", "/a.app", "/b.app"});
    EXPECT_EQ(ask(), Paths({"/b.app", "/a.app", "/b.app"}));
}

TEST_P(LaunchServicesTest, AnApplicationThatHasVanishedIsPassedOn) {
    answerWith({"/there is no such folder/x.app"});
    EXPECT_EQ(ask(), Paths({"/there is no such folder/x.app"}));
}

TEST_P(LaunchServicesTest, AUrlWithoutAPathIsPassedOver) {
    answerWith({"/a.app", std::nullopt, "/b.app"});
    EXPECT_EQ(ask(), Paths({"/a.app", "/b.app"}));
}

TEST_P(LaunchServicesTest, APathThatHasNoFormInUtf8IsPassedOver) {
    registry.answer = [] {
        return coreFoundation().newList(
            {coreFoundation().newUrl("/broken.app", true), coreFoundation().newUrl("/whole.app")});
    };
    EXPECT_EQ(ask(), Paths({"/whole.app"}));
}

TEST_P(LaunchServicesTest, APathOfAnyLengthIsGivenWhole) {
    const std::string path = "/" + std::string(100'000, 'x') + ".app";
    answerWith({path});
    EXPECT_EQ(ask(), Paths({path}));
}

TEST_P(LaunchServicesTest, WhatTheRegistryHoldsItselfStaysItsOwn) {
    const CFURLRef kept = coreFoundation().newUrl("/a.app");
    registry.answer = [=] {
        CFRetain(kept);
        return coreFoundation().newList({kept});
    };
    EXPECT_EQ(ask(), Paths({"/a.app"}));
    EXPECT_EQ(ask(), Paths({"/a.app"}));
    EXPECT_EQ(coreFoundation().living, 1);
    CFRelease(kept);
}

TEST_F(LaunchServicesTest, TheRegistryIsAskedForTheIdentifierAsItStands) {
    (void)macoshost::applicationsWithIdentifier("com.example.Ä");
    (void)macoshost::applicationsWithIdentifier("");
    EXPECT_EQ(registry.asked, Paths({"identifier com.example.Ä", "identifier "}));
}

TEST_F(LaunchServicesTest, AnIdentifierThatIsNotTextIsNotAskedFor) {
    EXPECT_EQ(macoshost::applicationsWithIdentifier("\xFF"), std::nullopt);
    EXPECT_EQ(registry.asked, Paths());
}

TEST_F(LaunchServicesTest, TheRegistryIsAskedForEveryRoleOfTheDocumentsOpeners) {
    (void)macoshost::applicationsForDocument("/tmp/a b.enl");
    EXPECT_EQ(registry.asked, Paths({"document /tmp/a b.enl"}));
}

TEST_F(LaunchServicesTest, ADocumentThatNoUrlCanBeMadeOfIsNotAskedFor) {
    EXPECT_EQ(macoshost::applicationsForDocument(""), std::nullopt);
    EXPECT_EQ(registry.asked, Paths());
}

} // namespace
