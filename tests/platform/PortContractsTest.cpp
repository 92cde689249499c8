// What the small ports promise, on the real adapters and on the fakes.
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/FileTextStreams.h"
#include "platform/posix/PlistBundles.h"
#include "platform/posix/ProcessSystem.h"
#include "platform/posix/SystemClock.h"
#include "platform/posix/ThreadQueues.h"
#include "tests/fakes/FakeBundles.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeQueues.h"
#include "tests/fakes/FakeTextStreams.h"
#include "tests/support/QueuesContract.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

namespace {

std::string dictionary(const std::string& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" + body +
           "</dict></plist>";
}

// --- Text streams

struct RealStreams {
    std::string contents(const std::string& path) { return tests::contentsOf(path); }
    std::string goodPath() { return folder.path("log"); }
    std::string badPath() { return folder.path("missing/log"); }
    int feed(const std::string& bytes) {
        pipe = posix::makePipe();
        EXPECT_EQ(::write(pipe.writing.number(), bytes.data(), bytes.size()),
                  static_cast<ssize_t>(bytes.size()));
        pipe.writing.close();
        return pipe.reading.number();
    }
    tests::TemporaryFolder folder;
    posix::Pipe pipe;
    posix::FileTextStreams streams;
};

struct PretendedStreams {
    PretendedStreams() { streams.refused.insert(badPath()); }
    std::string contents(const std::string& path) { return streams.files[path]; }
    std::string goodPath() { return "/log"; }
    std::string badPath() { return "/missing/log"; }
    int feed(const std::string& bytes) { return streams.feed(bytes); }
    fakes::FakeTextStreams streams;
};

template <class Host>
class TextStreamsContract : public testing::Test {
  protected:
    Host host;
    ports::TextStreams& streams = host.streams;
};
using StreamHosts = testing::Types<RealStreams, PretendedStreams>;
TYPED_TEST_SUITE(TextStreamsContract, StreamHosts);

TYPED_TEST(TextStreamsContract, WhatIsAppendedFollowsWhatStoodThere) {
    const std::string path = this->host.goodPath();
    EXPECT_TRUE(this->streams.append(path, "one\n"));
    EXPECT_TRUE(this->streams.append(path, "two\n"));
    EXPECT_EQ(this->host.contents(path), "one\ntwo\n");
}

TYPED_TEST(TextStreamsContract, AFileThatCannotBeOpenedIsToldAndNothingIsKept) {
    EXPECT_FALSE(this->streams.append(this->host.badPath(), "one\n"));
    EXPECT_EQ(this->host.contents(this->host.badPath()), "");
}

TYPED_TEST(TextStreamsContract, ReadingFillsTheBufferAndThenGivesTheRestAndTheEnd) {
    const int descriptor = this->host.feed("abcdef");
    char buffer[4];
    EXPECT_EQ(this->streams.read(descriptor, buffer), 4u);
    EXPECT_EQ(std::string(buffer, 4), "abcd");
    EXPECT_EQ(this->streams.read(descriptor, buffer), 2u);
    EXPECT_EQ(std::string(buffer, 2), "ef");
    EXPECT_EQ(this->streams.read(descriptor, buffer), 0u);
    EXPECT_EQ(this->streams.read(descriptor, buffer), 0u);
}

// --- Bundles

struct RealBundles {
    void give(const std::string& name, const std::string& key, const std::string& value) {
        folder.write(name + "/Contents/Info.plist",
                     dictionary("<key>" + key + "</key><string>" + value + "</string>"));
    }
    void giveArray(const std::string& name, const std::vector<std::string>& values) {
        std::string body;
        for (const std::string& value : values)
            body += "<string>" + value + "</string>";
        folder.write(
            name + "/Contents/Info.plist",
            dictionary("<key>Data</key><dict><key>Parts</key><array>" + body + "</array></dict>"));
    }
    void giveListOfArrays(const std::string& name,
                          const std::vector<std::vector<std::string>>& arrays) {
        std::string body;
        for (const auto& values : arrays) {
            body += "<dict><key>Other</key><string>x</string><key>Parts</key><array>";
            for (const std::string& value : values)
                body += "<string>" + value + "</string>";
            body += "</array></dict>";
        }
        folder.write(name + "/Contents/Info.plist",
                     dictionary("<key>List</key><array>" + body + "</array>"));
    }
    std::string path(const std::string& name) { return folder.path(name); }
    tests::TemporaryFolder folder;
    posix::PlistBundles bundles{folder.writeProgram("I.app/Contents/MacOS/I", "")};
};

struct PretendedBundles {
    void give(const std::string& name, const std::string& key, const std::string& value) {
        bundles.strings[{path(name), key}] = value;
    }
    void giveArray(const std::string& name, const std::vector<std::string>& values) {
        bundles.arrays[{path(name), "Data", "Parts"}] = values;
    }
    void giveListOfArrays(const std::string& name,
                          const std::vector<std::vector<std::string>>& arrays) {
        for (const auto& values : arrays)
            std::ranges::copy(values,
                              std::back_inserter(bundles.arrays[{path(name), "List", "Parts"}]));
    }
    std::string path(const std::string& name) { return "/" + name; }
    fakes::FakeBundles bundles;
};

template <class Host>
class BundlesContract : public testing::Test {
  protected:
    Host host;
    ports::Bundles& bundles = host.bundles;
};
using BundleHosts = testing::Types<RealBundles, PretendedBundles>;
TYPED_TEST_SUITE(BundlesContract, BundleHosts);

TYPED_TEST(BundlesContract, AStringOfTheInformationDictionaryIsGivenAsItStands) {
    this->host.give("X.app", "CFBundleShortVersionString", "16.89.1");
    EXPECT_EQ(this->bundles.infoString(this->host.path("X.app"), "CFBundleShortVersionString"),
              "16.89.1");
}

TYPED_TEST(BundlesContract, AbsentKeysAndAbsentBundlesGiveNone) {
    this->host.give("X.app", "a", "b");
    EXPECT_EQ(this->bundles.infoString(this->host.path("X.app"), "A"), std::nullopt);
    EXPECT_EQ(this->bundles.infoString(this->host.path("X.app"), ""), std::nullopt);
    EXPECT_EQ(this->bundles.infoString(this->host.path("Y.app"), "a"), std::nullopt);
    EXPECT_EQ(this->bundles.infoString("", "a"), std::nullopt);
}

TYPED_TEST(BundlesContract, TheMainBundlesPathsAreAbsoluteAndHaveNoSlashAtTheirEnd) {
    for (const std::string& path :
         {this->bundles.mainExecutable(), this->bundles.mainResourceFolder(),
          this->bundles.mainBundle()}) {
        EXPECT_TRUE(path.starts_with('/'));
        EXPECT_FALSE(path.ends_with('/'));
    }
}

TYPED_TEST(BundlesContract, TheMainBundleHoldsItsExecutableAndItsResources) {
    const std::string bundle = this->bundles.mainBundle();
    EXPECT_TRUE(bundle.ends_with(".app"));
    EXPECT_TRUE(this->bundles.mainExecutable().starts_with(bundle + "/"));
    EXPECT_TRUE(this->bundles.mainResourceFolder().starts_with(bundle + "/"));
}

TYPED_TEST(BundlesContract, TheStringsOfAnArrayAreGivenInTheirOrder) {
    using Texts = std::vector<std::string>;
    this->host.giveArray("X.app", {"b", "", "a"});
    const std::string path = this->host.path("X.app");
    EXPECT_EQ(this->bundles.infoStrings(path, "Data", "Parts"), Texts({"b", "", "a"}));
    EXPECT_EQ(this->bundles.infoStrings(path, "Data", "parts"), Texts());
    EXPECT_EQ(this->bundles.infoStrings(path, "Other", "Parts"), Texts());
    EXPECT_EQ(this->bundles.infoStrings(path, "", ""), Texts());
    EXPECT_EQ(this->bundles.infoStrings(this->host.path("Y.app"), "Data", "Parts"), Texts());
}

TYPED_TEST(BundlesContract, TheArraysOfAListOfDictionariesAreGivenOneAfterAnother) {
    using Texts = std::vector<std::string>;
    this->host.giveListOfArrays("X.app", {{"b", "a"}, {}, {"a", "c"}});
    const std::string path = this->host.path("X.app");
    EXPECT_EQ(this->bundles.infoStringsOfEach(path, "List", "Parts"), Texts({"b", "a", "a", "c"}));
    EXPECT_EQ(this->bundles.infoStringsOfEach(path, "List", "parts"), Texts());
    EXPECT_EQ(this->bundles.infoStringsOfEach(path, "Other", "Parts"), Texts());
    EXPECT_EQ(this->bundles.infoStringsOfEach(this->host.path("Y.app"), "List", "Parts"), Texts());
}

// --- Queues

struct RealQueues {
    void runUntilIdle() { tests::runUntilIdle(main, background); }
    posix::MainQueue main;
    posix::BackgroundQueue background;
};

struct PretendedQueues {
    void runUntilIdle() {
        background.run();
        main.runPending();
    }
    fakes::FakeMainQueue main;
    fakes::FakeBackgroundQueue background;
};

using QueueHosts = testing::Types<RealQueues, PretendedQueues>;
INSTANTIATE_TYPED_TEST_SUITE_P(Queues, QueuesContract, QueueHosts);

// --- Clock

template <class Clock>
class ClockContract : public testing::Test {};
using Clocks = testing::Types<posix::SystemClock, fakes::FakeClock>;
TYPED_TEST_SUITE(ClockContract, Clocks);

TYPED_TEST(ClockContract, TheTimeIsOneAfterThisProgramWasBegunAndNeverFarFromTheLast) {
    const TypeParam clock;
    const auto first = clock.now();
    EXPECT_GT(first.time_since_epoch(), std::chrono::seconds(1'700'000'000));
    EXPECT_LT(clock.now() - first, std::chrono::hours(1));
}

} // namespace

} // namespace tests
