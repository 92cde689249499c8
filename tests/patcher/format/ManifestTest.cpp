#include "patcher/format/Manifest.h"

#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "tests/patcher/format/SampleManifest.h"

namespace patch {
namespace {

std::string refusal(const std::function<void(Manifest&)>& change) {
    Manifest manifest = sampleManifest();
    change(manifest);
    try {
        validate(manifest, kSampleDataLength);
    } catch (const FormatError& error) {
        return error.what();
    }
    return "valid";
}

Manifest withPath(std::string path) {
    Manifest manifest;
    manifest.oldEntries = {fileEntry(std::move(path), "x")};
    return manifest;
}

TEST(PathOrder, AFolderIsFollowedByWhatIsInItBeforeNamesThatGoOn) {
    EXPECT_TRUE(pathOrder("a", "a/b"));
    EXPECT_TRUE(pathOrder("a/b", "a.c"));
    EXPECT_TRUE(pathOrder("a/z/z", "a b"));
    EXPECT_FALSE(pathOrder("a.c", "a/b"));
    EXPECT_FALSE(pathOrder("a", "a"));
    EXPECT_TRUE(pathOrder("a\x7f", "a\xc3\xa9"));
}

TEST(EntryAt, FindsEveryEntryAndNothingElse) {
    const Manifest manifest = sampleManifest();
    for (const Entry& entry : manifest.oldEntries)
        EXPECT_EQ(entryAt(manifest.oldEntries, entry.path), &entry);
    for (const NewEntry& fresh : manifest.newEntries)
        EXPECT_EQ(entryAt(manifest.newEntries, fresh.entry.path), &fresh);
    EXPECT_EQ(entryAt(manifest.oldEntries, "a/none"), nullptr);
    EXPECT_EQ(entryAt(manifest.oldEntries, ""), nullptr);
}

TEST(Manifests, AManifestWithSomethingOfEverythingIsValidAndComesBackAsItWas) {
    const Manifest manifest = sampleManifest();
    ASSERT_NO_THROW(validate(manifest, kSampleDataLength));
    EXPECT_EQ(decodedManifest(encoded(manifest), kSampleDataLength), manifest);
}

TEST(Manifests, AnEmptyManifestComesBackAsItWas) {
    EXPECT_EQ(decodedManifest(encoded(Manifest{}), 0), Manifest{});
}

TEST(Manifests, WhatStaysAsItIsTakesNextToNoRoom) {
    Manifest few = sampleManifest();
    Manifest manifest;
    for (int at = 1000; at < 9000; ++at)
        manifest.oldEntries.push_back(fileEntry("f" + std::to_string(at), std::to_string(at)));
    Manifest none = manifest;
    for (std::uint32_t at = 0; at < manifest.oldEntries.size(); ++at)
        manifest.newEntries.push_back(kept(manifest.oldEntries[at], at));
    ASSERT_NO_THROW(validate(manifest, 0));
    EXPECT_LT(encoded(manifest).size(), encoded(none).size() + 10);
    EXPECT_EQ(decodedManifest(encoded(manifest), 0), manifest);
}

TEST(Manifests, PathsThatCouldLeaveTheTreeAreRefused) {
    for (const std::string& path :
         {std::string(""), std::string("/"), std::string("/a"), std::string("a/"),
          std::string(".."), std::string("../a"), std::string("a/../b"), std::string("."),
          std::string("./a"), std::string("a//b"), std::string("a\0b", 3),
          std::string(kLongestName + 1, 'n'), std::string(kLongestPath + 1, 'p')})
        EXPECT_THROW(validate(withPath(path), 0), FormatError) << path;
    EXPECT_NO_THROW(validate(withPath(std::string(kLongestName, 'n')), 0));
    EXPECT_NO_THROW(validate(withPath("..a"), 0));
}

TEST(Manifests, EntriesOutsideTheirFoldersOrOutOfOrderAreRefused) {
    EXPECT_THROW(validate(withPath("a/b"), 0), FormatError);
    Manifest manifest;
    manifest.oldEntries = {fileEntry("a", "x"), fileEntry("a/b", "x")};
    EXPECT_THROW(validate(manifest, 0), FormatError);
    manifest.oldEntries = {linkEntry("a", "/etc"), fileEntry("a/b", "x")};
    EXPECT_THROW(validate(manifest, 0), FormatError);
    manifest.oldEntries = {fileEntry("b", "x"), fileEntry("a", "x")};
    EXPECT_THROW(validate(manifest, 0), FormatError);
    manifest.oldEntries = {fileEntry("a", "x"), fileEntry("a", "x")};
    EXPECT_THROW(validate(manifest, 0), FormatError);
    manifest.oldEntries = {folderEntry("a"), folderEntry("a/b"), fileEntry("a/c", "x"),
                           fileEntry("a/b/d", "x")};
    EXPECT_THROW(validate(manifest, 0), FormatError);
}

TEST(Manifests, ARefusalNamesTheEntry) {
    EXPECT_EQ(refusal([](Manifest& m) { m.newEntries[4].base = 3; }),
              "The manifest's entry \"a.c\" has a base and needs none.");
}

TEST(Manifests, EntriesThatContradictThemselvesAreRefused) {
    const std::vector<std::function<void(Entry&)>> changes{
        [](Entry& e) { e.kind = static_cast<Kind>(3); },
        [](Entry& e) { e.mode = 010000; },
        [](Entry& e) { e.size = kLargestFile + 1; },
        [](Entry& e) { e.target = "x"; },
        [](Entry& e) { e.attributes = {{"b", {}}, {"a", {}}}; },
        [](Entry& e) { e.attributes = {{"a", {}}, {"a", {}}}; },
        [](Entry& e) { e.attributes = {{"", {}}}; },
        [](Entry& e) { e.kind = Kind::link; },
        [](Entry& e) { e.kind = Kind::folder; },
    };
    for (std::size_t at = 0; at < changes.size(); ++at)
        EXPECT_NE(refusal([&](Manifest& m) { changes[at](m.oldEntries[7]); }), "valid") << at;
    EXPECT_NE(refusal([](Manifest& m) { m.oldEntries[6].target.clear(); }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.oldEntries[6].mode = 0777; }), "valid");
}

TEST(Manifests, ContentThatComesFromNowhereIsRefused) {
    const std::vector<std::function<void(Manifest&)>> changes{
        [](Manifest& m) { m.newEntries[3].base = 100; },
        [](Manifest& m) { m.newEntries[3].base = 0; }, // a folder
        [](Manifest& m) { m.newEntries[3].base = 6; }, // a link
        [](Manifest& m) { m.newEntries[3].base = 5; }, // another content
        [](Manifest& m) { m.newEntries[4].method = Method::nothing; },
        [](Manifest& m) { m.newEntries[4].method = static_cast<Method>(5); },
        [](Manifest& m) { m.newEntries[8].entry.digest = {}; },
        [](Manifest& m) { m.newEntries[8].method = Method::whole; },
        [](Manifest& m) { m.newEntries[0].unchanged = 3; },
        [](Manifest& m) { m.newEntries[1].entry.mode = 0600; },
        [](Manifest& m) { m.newEntries[2].base = 4; },
        [](Manifest& m) { m.newEntries[2].modified.seconds = 1; },
        [](Manifest& m) { m.newEntries[2].unchanged = 400; },
        [](Manifest& m) { m.newEntries[4].modified.nanoseconds = 1'000'000'000; },
    };
    for (std::size_t at = 0; at < changes.size(); ++at)
        EXPECT_NE(refusal(changes[at]), "valid") << at;
}

TEST(Manifests, BlocksThatOverlapLeaveAGapOrGoBeyondTheDataAreRefused) {
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[5].offset = 19; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[5].offset = 21; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[7].length = 11; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[7].length = 9; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[7].length = 0; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[7].length = ~std::uint64_t{0}; }), "valid");
    EXPECT_NE(refusal([](Manifest& m) { m.newEntries[8].length = 1; }), "valid");
}

TEST(Manifests, EveryManifestThatIsCutIsRefused) {
    const Bytes bytes = encoded(sampleManifest());
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(decodedManifest(View(bytes).first(length), kSampleDataLength), FormatError)
            << length;
    Bytes longer = bytes;
    longer.push_back(std::byte{0});
    EXPECT_THROW(decodedManifest(longer, kSampleDataLength), FormatError);
}

// Whatever comes out of broken bytes is a valid manifest or a refusal, never anything else.
TEST(Manifests, BytesChangedAtRandomAreRefusedOrStillAValidManifest) {
    std::mt19937 random(21);
    const Bytes bytes = encoded(sampleManifest());
    int refused = 0;
    for (int round = 0; round < 20'000; ++round) {
        Bytes changed = bytes;
        for (unsigned flips = 1 + random() % 3; flips > 0; --flips)
            changed[random() % changed.size()] = static_cast<std::byte>(random());
        try {
            const Manifest manifest = decodedManifest(changed, kSampleDataLength);
            EXPECT_NO_THROW(validate(manifest, kSampleDataLength));
            EXPECT_EQ(decodedManifest(encoded(manifest), kSampleDataLength), manifest);
        } catch (const FormatError&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 20'000);
}

TEST(Manifests, MoreEntriesThanAPatchMayHaveAreRefused) {
    Manifest manifest;
    for (std::size_t at = 0; at <= kMostEntries; ++at)
        manifest.oldEntries.push_back(folderEntry(std::to_string(10'000'000 + at)));
    EXPECT_THROW(validate(manifest, 0), FormatError);
    manifest.oldEntries.pop_back();
    EXPECT_NO_THROW(validate(manifest, 0));
}

} // namespace
} // namespace patch
