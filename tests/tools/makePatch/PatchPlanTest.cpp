#include "tools/makePatch/PatchPlan.h"

#include <gtest/gtest.h>

#include "tests/patcher/format/SampleManifest.h"
#include "tests/tools/makePatch/PairsOfFiles.h"
#include "tools/makePatch/Likeness.h"

namespace tools {
namespace {

using patch::Entry;
using patch::fileEntry;
using patch::folderEntry;
using patch::linkEntry;
using patch::MemoryFile;
using patch::Method;

Tree treeOf(std::vector<Entry> entries) {
    Tree tree;
    tree.statuses.resize(entries.size());
    for (EntryStatus& status : tree.statuses)
        status.modified.tv_sec = 1'700'000'000;
    tree.entries = std::move(entries);
    return tree;
}

const Tree kBefore = treeOf({folderEntry("a"), fileEntry("a/empty", ""), fileEntry("a/same", "s"),
                             fileEntry("edited", "old"), linkEntry("link", "a"),
                             fileEntry("mode", "m"), fileEntry("moved", "content")});

Tree after() {
    Tree tree =
        treeOf({folderEntry("a"), fileEntry("a/empty", ""), fileEntry("a/same", "s"),
                fileEntry("edited", "new"), fileEntry("fresh", "fresh"), linkEntry("link", "b"),
                fileEntry("mode", "m"), fileEntry("other", "content")});
    tree.entries[6].mode = 0755;
    return tree;
}

TEST(PatchPlan, WhatIsTheSameInEverythingIsUnchangedAndHasNoTime) {
    const PatchPlan plan = planOf(kBefore, after());
    for (const std::uint32_t index : {0u, 1u, 2u}) {
        EXPECT_EQ(plan.manifest.newEntries[index].unchanged, index);
        EXPECT_EQ(plan.manifest.newEntries[index].modified, patch::Time{});
    }
    EXPECT_EQ(plan.manifest.newEntries[2].method, Method::old);
    EXPECT_EQ(plan.manifest.newEntries[1].method, Method::nothing);
}

TEST(PatchPlan, AFileOfAnotherModeKeepsItsContent) {
    const patch::NewEntry entry = planOf(kBefore, after()).manifest.newEntries[6];
    EXPECT_FALSE(entry.unchanged);
    EXPECT_EQ(entry.method, Method::old);
    EXPECT_EQ(entry.base, 5u);
    EXPECT_EQ(entry.modified.seconds, 1'700'000'000);
}

TEST(PatchPlan, ContentThatIsThereUnderAnotherNameIsTakenFromThere) {
    const PatchPlan plan = planOf(kBefore, after());
    EXPECT_EQ(plan.manifest.newEntries[7].method, Method::old);
    EXPECT_EQ(plan.manifest.newEntries[7].base, 6u);
    EXPECT_EQ(plan.differences.renamed, 1u);
}

TEST(PatchPlan, OnlyNewContentNeedsBlocks) {
    const PatchPlan plan = planOf(kBefore, after());
    EXPECT_EQ(plan.blocks, (std::vector<std::uint32_t>{3, 4}));
    EXPECT_EQ(plan.manifest.newEntries[3].base, 3u);
    EXPECT_EQ(plan.manifest.newEntries[4].base, kNoBase);
}

TEST(PatchPlan, CountsWhatIsDifferent) {
    const Differences differences = planOf(kBefore, after()).differences;
    EXPECT_EQ(differences.changed, 3u);
    EXPECT_EQ(differences.added, 2u);
    EXPECT_EQ(differences.gone, 1u);
    EXPECT_FALSE(planOf(kBefore, kBefore).differences.any());
}

TEST(PatchPlan, CategoryItemsAreWhatChangedThreeLevelsBelowTheBundle) {
    const std::string bundle = "Product-Support/Content.bundle";
    const auto folders = [&](std::vector<Entry> more) {
        std::vector<Entry> entries{folderEntry("Product-Support"), folderEntry(bundle),
                                   folderEntry(bundle + "/Plants"),
                                   folderEntry(bundle + "/Plants/Set 1")};
        entries.insert(entries.end(), more.begin(), more.end());
        return treeOf(entries);
    };
    const std::string set = bundle + "/Plants/Set 1/";
    const Tree before = folders({fileEntry(set + "edited", "old"), fileEntry(set + "gone", "g"),
                                 folderEntry(set + "item"), fileEntry(set + "item/one", "1"),
                                 fileEntry(set + "item/two", "2"), fileEntry(set + "same", "s"),
                                 folderEntry(set + "still"), fileEntry(set + "still/one", "1"),
                                 fileEntry(bundle + "/Plants/short", "s")});
    const Tree now = folders(
        {fileEntry(set + "edited", "new"), fileEntry(set + "fresh", "f"), folderEntry(set + "item"),
         fileEntry(set + "item/one", "one"), fileEntry(set + "same", "s"),
         folderEntry(set + "still"), fileEntry(set + "still/one", "1"),
         fileEntry(bundle + "/Plants/short", "other"), fileEntry(bundle + "x", "elsewhere")});
    EXPECT_EQ(planOf(before, now).manifest.categoryItems,
              (std::vector<patch::CategoryItem>{{"edited", set + "edited"},
                                                {"fresh", set + "fresh"},
                                                {"gone", set + "gone"},
                                                {"item", set + "item"}}));
}

TEST(GoneFiles, ARenamedAndEditedFileIsKnownByWhatItHasInCommon) {
    const auto sketch = [](const patch::Bytes& bytes) { return sketchOf(MemoryFile(bytes)); };
    const patch::Bytes text = tests::randomBytes(50000, 1);
    const patch::Bytes large = tests::randomBytes(700000, 3);
    GoneFiles files;
    files.add(10, "a/report.txt", sketch(text));
    files.add(11, "a/other.txt", sketch(tests::randomBytes(50000, 2)));
    files.add(12, "a/large.bin", sketch(large));
    EXPECT_EQ(files.mostLike("b/new.txt", sketch(tests::edited(text, 30, 5)), 99), 10u);
    EXPECT_EQ(files.mostLike("b/new.bin", sketch(tests::edited(large, 30, 5)), 99), 12u);
    EXPECT_EQ(files.mostLike("b/new.png", sketch(text), 99), 99u) << "of another kind";
    EXPECT_EQ(files.mostLike("b/new.txt", sketch(tests::randomBytes(50000, 4)), 99), 99u);
    EXPECT_EQ(files.mostLike("b/new.txt", sketch({}), 99), 99u);
}

} // namespace
} // namespace tools
