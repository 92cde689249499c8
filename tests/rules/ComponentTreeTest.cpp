// The nodes of the component tree.
#include <gtest/gtest.h>

#include "rules/ecItem.h"

namespace {

using ec::ecItem;
using ec::ecRules;

class ComponentTree : public testing::Test {
  protected:
    ecRules rules = ecRules::fromText("Early|1|\n"
                                      "Word|0|For writing\n"
                                      "Add-in|1|Cites|inst_Word\n"
                                      "Styles|1|Formats|inst_Category|s\n"
                                      "Browser|0|Collects|inst_Tessaron\n");
    ecItem root{rules, ecItem::kRootItem, nullptr};
};

TEST_F(ComponentTree, HasTheGroupsUnderTheRootAndTheMembersUnderTheGroups) {
    ASSERT_EQ(root.numberOfChildren(), 2);
    const ecItem* word = root.childAtIndex(0);
    EXPECT_EQ(word->itemNum(), 1u);
    EXPECT_EQ(word->parent(), &root);
    ASSERT_EQ(word->numberOfChildren(), 2);
    EXPECT_EQ(word->childAtIndex(1)->itemNum(), 3u);
    EXPECT_EQ(word->childAtIndex(1)->parent(), word);
    EXPECT_EQ(word->childAtIndex(1)->numberOfChildren(), 0);
    EXPECT_EQ(root.childAtIndex(1)->getItemName(), "Browser");
}

TEST_F(ComponentTree, KeepsTheNodesThatItHasMade) {
    const ecItem* member = root.childAtIndex(0)->childAtIndex(1);
    EXPECT_EQ(root.childAtIndex(0)->childAtIndex(1), member);
    EXPECT_EQ(root.children()[0]->children()[1].get(), member);
}

TEST_F(ComponentTree, AGroupWithoutMembersIsALeaf) {
    EXPECT_EQ(root.childAtIndex(1)->numberOfChildren(), 0);
    EXPECT_TRUE(root.childAtIndex(1)->children().empty());
}

TEST_F(ComponentTree, HasNoChildBeforeTheFirstOrBehindTheLast) {
    EXPECT_EQ(root.childAtIndex(-1), nullptr);
    EXPECT_EQ(root.childAtIndex(2), nullptr);
    EXPECT_EQ(root.childAtIndex(1)->childAtIndex(0), nullptr);
}

TEST_F(ComponentTree, TheRootHasNoParentNameOrState) {
    EXPECT_EQ(root.itemNum(), 4294967295u);
    EXPECT_TRUE(root.isRoot());
    EXPECT_EQ(root.parent(), nullptr);
    EXPECT_EQ(root.getItemName(), std::nullopt);
    EXPECT_EQ(root.getItemDescription(), std::nullopt);
    root.setItemState(1);
    EXPECT_EQ(root.getItemState(), 0);
}

TEST_F(ComponentTree, ReadsAndWritesTheRules) {
    const ecItem* addIn = root.childAtIndex(0)->childAtIndex(0);
    EXPECT_EQ(addIn->getItemName(), "Add-in");
    EXPECT_EQ(addIn->getItemDescription(), "Cites");
    rules.setInitialItemState(2, -1);
    EXPECT_EQ(addIn->getItemState(), -1);
    addIn->setItemState(1);
    EXPECT_EQ(rules.getItemState(2), 1);
    EXPECT_EQ(addIn->getItemInitialState(), -1);
}

TEST_F(ComponentTree, AGroupsStateIsWhatItsMembersHaveInCommon) {
    const ecItem* word = root.childAtIndex(0);
    for (const std::int32_t state : {0, 1, -1}) {
        rules.setItemState(2, state);
        rules.setItemState(3, state);
        EXPECT_EQ(word->determineState(), state);
    }
    rules.setItemState(2, 0);
    EXPECT_EQ(word->determineState(), -2);
    rules.setItemState(3, 1);
    EXPECT_EQ(word->determineState(), -2);
    EXPECT_EQ(word->getItemState(), 0) << "to determine is not to set";
}

TEST_F(ComponentTree, TheStateOfALeafIsItsOwn) {
    rules.setItemState(4, 1);
    EXPECT_EQ(root.childAtIndex(1)->determineState(), 1);
}

TEST_F(ComponentTree, TheSharedRootIsMadeOnce) {
    static ecRules shared = ecRules::fromText("A|0|\n");
    ecItem& first = ecItem::rootItem(shared);
    EXPECT_EQ(&ecItem::rootItem(rules), &first);
    EXPECT_TRUE(first.isRoot());
    EXPECT_EQ(first.childAtIndex(0)->getItemName(), "A");
}

TEST(ComponentTreeOfNothing, HasALeafForItsRoot) {
    for (const char* text : {"", "\n", "A|1|", "no item\nA|0|"}) {
        auto rules = ecRules::fromText(text);
        const ecItem root(rules, ecItem::kRootItem, nullptr);
        EXPECT_EQ(root.numberOfChildren(), 0) << text;
        EXPECT_EQ(root.childAtIndex(0), nullptr) << text;
    }
}

} // namespace
