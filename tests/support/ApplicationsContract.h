// What every ports::Applications promises, for the test program of each adapter, and the host of
// the fake. A host has the adapter as `applications`; it runs "com.example.Run" (`run`), installs
// "com.example.Installed" and an application that opens ".enl" (`install`, `installOpener`, which
// answer the bundles' paths), has a document of some name (`document`), and names one bundle that
// can be launched and one that is absent. It says whether letter case counts in identifiers.
#pragma once

#include <cerrno>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <vector>

#include "platform/ports/Applications.h"
#include "tests/fakes/FakeApplications.h"
#include "tests/support/ComesTrue.h"

namespace tests {

struct PretendedApplications {
    static constexpr bool kLetterCaseCounts = true;

    PretendedApplications() {
        applications.launchesAll = false;
        applications.launchable = {launchable()};
    }
    std::string launchable() { return "/X.app"; }
    std::string absent() { return "/absent.app"; }
    std::string document(const std::string& name) { return "/tmp/" + name; }
    std::string install() {
        return applications.installed["com.example.Installed"].emplace_back("/I.app");
    }
    std::string installOpener() { return applications.openers["enl"].emplace_back("/O.app"); }
    void run() { applications.running.insert("com.example.Run"); }
    fakes::FakeApplications applications;
};

template <class Host>
class ApplicationsContract : public testing::Test {
  protected:
    Host host;
    ports::Applications& applications = host.applications;
};
TYPED_TEST_SUITE_P(ApplicationsContract);

TYPED_TEST_P(ApplicationsContract, OnlyWhatRunsIsRunning) {
    EXPECT_FALSE(this->applications.isRunning("com.example.Run"));
    this->host.run();
    EXPECT_TRUE(this->applications.isRunning("com.example.Run"));
    EXPECT_FALSE(this->applications.isRunning("com.example.Ru"));
    if (TypeParam::kLetterCaseCounts) {
        EXPECT_FALSE(this->applications.isRunning("com.example.run"));
    }
}

TYPED_TEST_P(ApplicationsContract, WhatIsInstalledIsKnownByItsIdentifier) {
    using Paths = std::vector<std::string>;
    EXPECT_EQ(this->applications.pathsFor("com.example.Installed"), Paths());
    const std::string path = this->host.install();
    EXPECT_EQ(this->applications.pathsFor("com.example.Installed"), Paths({path}));
    EXPECT_EQ(this->applications.pathsFor("com.example.Other"), Paths());
    EXPECT_EQ(this->applications.pathsFor(""), Paths());
    if (TypeParam::kLetterCaseCounts) {
        EXPECT_EQ(this->applications.pathsFor("com.example.installed"), Paths());
    }
}

TYPED_TEST_P(ApplicationsContract, WithoutAnApplicationForADocumentThereIsNoListAtAll) {
    using Paths = std::vector<std::string>;
    const auto pathsFor = [this](const std::string& name) {
        return this->applications.pathsForDocument(this->host.document(name));
    };
    EXPECT_EQ(pathsFor("x.enl"), std::nullopt);
    const std::string path = this->host.installOpener();
    EXPECT_EQ(pathsFor("x.enl"), Paths({path}));
    EXPECT_EQ(pathsFor("Y.ENL"), Paths({path}));
    EXPECT_EQ(pathsFor("x.txt"), std::nullopt);
    EXPECT_EQ(pathsFor("enl"), std::nullopt);
}

TYPED_TEST_P(ApplicationsContract, OnlyABundleThatIsThereCanBeLaunched) {
    EXPECT_TRUE(this->applications.launch(this->host.launchable()));
    EXPECT_FALSE(this->applications.launch(this->host.absent()));
    EXPECT_TRUE(comesTrue([] { return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD; }));
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationsContract, OnlyWhatRunsIsRunning,
                            WhatIsInstalledIsKnownByItsIdentifier,
                            WithoutAnApplicationForADocumentThereIsNoListAtAll,
                            OnlyABundleThatIsThereCanBeLaunched);

} // namespace tests
