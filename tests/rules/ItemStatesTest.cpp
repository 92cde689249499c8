// The states of the items, which the checks, the outline and the install driver share.
#include <limits>

#include <gtest/gtest.h>

#include "rules/ecRules.h"

namespace {

using ec::ecRules;

TEST(ItemStates, AreWantedToBeOffUntilTheyAreSet) {
    const auto rules = ecRules::fromText("A|0|\nB|1|\n");
    for (std::uint32_t item = 0; item < rules.count(); ++item) {
        EXPECT_EQ(rules.getItemState(item), 0);
        EXPECT_EQ(rules.getItemInitialState(item), 0);
    }
}

TEST(ItemStates, SettingTheInitialStateSetsTheCurrentOneToo) {
    auto rules = ecRules::fromText("A|0|\nB|1|");
    rules.setItemState(1, 0);
    rules.setInitialItemState(1, -1);
    EXPECT_EQ(rules.getItemInitialState(1), -1);
    EXPECT_EQ(rules.getItemState(1), -1);
    EXPECT_EQ(rules.getItemState(0), 0);
}

TEST(ItemStates, SettingTheCurrentStateLeavesTheInitialOne) {
    auto rules = ecRules::fromText("A|0|\nB|1|");
    rules.setInitialItemState(1, 1);
    rules.setItemState(1, 0);
    EXPECT_EQ(rules.getItemInitialState(1), 1);
    EXPECT_EQ(rules.getItemState(1), 0);
}

TEST(ItemStates, AreKeptWhateverTheirValue) {
    auto rules = ecRules::fromText("A|0|");
    for (const std::int32_t state : {1, 0, -1, -2, 7, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()}) {
        rules.setInitialItemState(0, state);
        EXPECT_EQ(rules.getItemState(0), state);
        EXPECT_EQ(rules.getItemInitialState(0), state);
    }
}

TEST(ItemStates, BelongToLinesThatAreNotShownAsWell) {
    auto rules = ecRules::fromText("\nA|0|");
    rules.setInitialItemState(1, 1);
    EXPECT_EQ(rules.getItemState(1), 1);
}

TEST(ItemStates, OfItemsThatDontExistAreOffAndCantBeSet) {
    auto rules = ecRules::fromText("A|0|");
    for (const std::uint32_t item : {1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        rules.setInitialItemState(item, 1);
        rules.setItemState(item, 1);
        EXPECT_EQ(rules.getItemState(item), 0);
        EXPECT_EQ(rules.getItemInitialState(item), 0);
    }
    EXPECT_EQ(rules.getItemState(0), 0);
}

} // namespace
