// What the outline shows and what clicks in it do, through the outline view's own verbs.
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "rules/ComponentOutline.h"

namespace {

using controls::CheckCell;
using controls::OutlineView;
using ec::ecItem;
using ec::ecRules;

constexpr auto kCheck = OutlineView::kCheckColumn;

class Outline : public testing::Test {
  protected:
    enum : std::uint32_t { kWord, kAddIn, kStyles, kSystem, kImporter, kServices, kBrowser };

    void SetUp() override { outline.attach(); }

    void setStates(std::int32_t state) {
        for (std::uint32_t item = 0; item < rules.count(); ++item)
            rules.setInitialItemState(item, state);
    }
    std::int32_t state(std::uint32_t item) const { return rules.getItemState(item); }
    ecItem* group(int index) const { return root.childAtIndex(index); }

    ecRules rules = ecRules::fromText("Word|0|For writing\n"
                                      "Add-in|1|Cites|inst_Word\n"
                                      "Styles|1|Formats|inst_Category|s\n"
                                      "System|0|\n"
                                      "Importer|1|Finds|inst_Spotlight\n"
                                      "Services|1|Serves|inst_Services\n"
                                      "Browser|0|Collects|inst_Tessaron\n");
    ecItem root{rules, ecItem::kRootItem, nullptr};
    OutlineView view;
    ec::ComponentOutline outline{{.root = root, .ecOutlineView = view}};
    ecItem* word = group(0);
    ecItem* addIn = word->childAtIndex(0);
    ecItem* styles = word->childAtIndex(1);
    ecItem* browser = group(2);
};

TEST_F(Outline, AttachesToTheViewAndReloadsIt) {
    EXPECT_EQ(view.dataSource(), &outline);
    EXPECT_EQ(view.delegate(), &outline);
    EXPECT_EQ(view.generation(), 1u);
}

TEST_F(Outline, ShowsTheTreeWithTheRootForNoItem) {
    EXPECT_EQ(outline.outlineViewNumberOfChildrenOfItem(nullptr), 3);
    EXPECT_EQ(outline.outlineViewChildOfItem(0, nullptr), word);
    EXPECT_EQ(outline.outlineViewNumberOfChildrenOfItem(word), 2);
    EXPECT_EQ(outline.outlineViewChildOfItem(1, word), styles);
    EXPECT_EQ(outline.outlineViewNumberOfChildrenOfItem(addIn), 0);
    EXPECT_EQ(outline.outlineViewChildOfItem(3, nullptr), nullptr);
    EXPECT_EQ(outline.outlineViewChildOfItem(-1, word), nullptr);
}

TEST_F(Outline, ExpandsWhatHasChildren) {
    EXPECT_TRUE(outline.outlineViewIsItemExpandable(word));
    EXPECT_FALSE(outline.outlineViewIsItemExpandable(addIn));
}

TEST_F(Outline, IsWantedToCallTheRootExpandableExactlyWhenItHasNoChildren) {
    EXPECT_FALSE(outline.outlineViewIsItemExpandable(nullptr));

    auto nothing = ecRules::fromText("");
    ecItem emptyRoot(nothing, ecItem::kRootItem, nullptr);
    ec::ComponentOutline empty({.root = emptyRoot, .ecOutlineView = view});
    EXPECT_EQ(empty.outlineViewNumberOfChildrenOfItem(nullptr), 0);
    EXPECT_TRUE(empty.outlineViewIsItemExpandable(nullptr));
}

TEST_F(Outline, AGroupWithoutMembersHasACheckBoxButNoTriangle) {
    EXPECT_FALSE(outline.outlineViewIsItemExpandable(browser));
    EXPECT_TRUE(outline.outlineViewShouldEdit(kCheck, browser));
    EXPECT_TRUE(view.press(browser));
    EXPECT_EQ(state(kBrowser), 1);
    EXPECT_TRUE(view.press(browser));
    EXPECT_EQ(state(kBrowser), 0);
}

TEST_F(Outline, ShowsNameStateAndDescriptionInTheirColumns) {
    EXPECT_EQ(outline.outlineViewObjectValue("component", addIn), "Add-in");
    EXPECT_EQ(outline.outlineViewObjectValue("info", addIn), "Cites");
    EXPECT_EQ(outline.outlineViewObjectValue("other", addIn), "");
    EXPECT_EQ(outline.outlineViewObjectValue("", addIn), "");
    EXPECT_EQ(outline.outlineViewObjectValue("component", nullptr), "");
    EXPECT_EQ(outline.outlineViewObjectValue("info", nullptr), "");
}

TEST_F(Outline, SaysOneForEveryStateButOff) {
    for (const std::int32_t some : {1, -1, -2}) {
        rules.setItemState(kAddIn, some);
        EXPECT_EQ(outline.outlineViewObjectValue("installed", addIn), "1");
    }
    rules.setItemState(kAddIn, 0);
    EXPECT_EQ(outline.outlineViewObjectValue("installed", addIn), "0");
    EXPECT_EQ(outline.outlineViewObjectValue("installed", nullptr), "0");
}

TEST_F(Outline, DrawsTheCheckBoxByTheState) {
    const auto cellFor = [this](std::int32_t some) {
        rules.setItemState(kWord, some);
        return view.checkCell(word);
    };
    EXPECT_EQ(cellFor(-2), (CheckCell{.state = -2, .allowsMixed = true, .enabled = true}));
    EXPECT_EQ(cellFor(-1), (CheckCell{.state = 0, .allowsMixed = false, .enabled = false}));
    EXPECT_EQ(cellFor(0), (CheckCell{.state = 0, .allowsMixed = false, .enabled = true}));
    EXPECT_EQ(cellFor(1), (CheckCell{.state = 1, .allowsMixed = false, .enabled = true}));
    EXPECT_EQ(cellFor(5), (CheckCell{.state = 5, .allowsMixed = false, .enabled = true}));
}

TEST_F(Outline, LetsOnlyTheCheckBoxOfAnItemBeEdited) {
    EXPECT_TRUE(outline.outlineViewShouldEdit("installed", addIn));
    EXPECT_FALSE(outline.outlineViewShouldEdit("component", addIn));
    EXPECT_FALSE(outline.outlineViewShouldEdit("info", addIn));
    EXPECT_FALSE(outline.outlineViewShouldEdit("installed", nullptr));
}

TEST_F(Outline, AMemberTurnedOffMakesItsGroupMixedAndTurnedOnAgainMakesItOn) {
    setStates(1);
    EXPECT_TRUE(view.press(addIn));
    EXPECT_EQ(state(kAddIn), 0);
    EXPECT_EQ(state(kWord), -2);
    EXPECT_EQ(state(kStyles), 1);
    EXPECT_TRUE(view.press(addIn));
    EXPECT_EQ(state(kAddIn), 1);
    EXPECT_EQ(state(kWord), 1);
    EXPECT_EQ(state(kSystem), 1) << "other groups are not touched";
}

TEST_F(Outline, AMixedGroupPressedIsOnWithEveryMemberEvenThoseThatWereUnavailable) {
    rules.setInitialItemState(kWord, -2);
    rules.setInitialItemState(kAddIn, -1);
    rules.setInitialItemState(kStyles, 0);
    EXPECT_FALSE(view.press(addIn));
    EXPECT_TRUE(view.press(word));
    EXPECT_EQ(state(kWord), 1);
    EXPECT_EQ(state(kAddIn), 1);
    EXPECT_EQ(state(kStyles), 1);
    EXPECT_TRUE(view.press(addIn)) << "it can be edited now";
    EXPECT_EQ(state(kAddIn), 0);
}

TEST_F(Outline, AMixedGroupCanBeSetOffAtOnce) {
    setStates(1);
    view.press(addIn);
    EXPECT_TRUE(view.set(word, false));
    EXPECT_EQ(state(kWord), 0);
    EXPECT_EQ(state(kAddIn), 0);
    EXPECT_EQ(state(kStyles), 0);
}

TEST_F(Outline, AMemberBesideAnUnavailableOneMakesItsGroupMixed) {
    rules.setInitialItemState(kAddIn, -1);
    EXPECT_TRUE(view.press(styles));
    EXPECT_EQ(state(kWord), -2);
    EXPECT_EQ(state(kAddIn), -1) << "the other members are not touched";
}

TEST_F(Outline, AnUnavailableItemIgnoresTheUser) {
    setStates(-1);
    const unsigned before = view.generation();
    for (ecItem* item : {word, addIn, browser}) {
        EXPECT_FALSE(view.press(item));
        EXPECT_FALSE(view.set(item, true));
        outline.outlineViewSetObjectValue(true, kCheck, item);
    }
    for (std::uint32_t item = 0; item < rules.count(); ++item)
        EXPECT_EQ(state(item), -1);
    EXPECT_EQ(view.generation(), before);
}

TEST_F(Outline, ReloadsTheViewAfterEachToggle) {
    const unsigned before = view.generation();
    view.press(addIn);
    EXPECT_EQ(view.generation(), before + 1);
    view.press(word);
    EXPECT_EQ(view.generation(), before + 2);
}

TEST_F(Outline, TheRootToggledChangesNothing) {
    const unsigned before = view.generation();
    outline.outlineViewSetObjectValue(true, kCheck, nullptr);
    EXPECT_FALSE(view.press(nullptr));
    for (std::uint32_t item = 0; item < rules.count(); ++item)
        EXPECT_EQ(state(item), 0);
    EXPECT_EQ(view.generation(), before);
}

TEST_F(Outline, LeavesTheInitialStatesAlone) {
    setStates(1);
    view.press(word);
    EXPECT_EQ(rules.getItemInitialState(kWord), 1);
    EXPECT_EQ(rules.getItemInitialState(kAddIn), 1);
}

TEST_F(Outline, ListsTheComponentsInTheOrderOfTheirNumbers) {
    rules.setInitialItemState(kAddIn, 1);
    rules.setItemState(kAddIn, 0);
    rules.setInitialItemState(kImporter, -1);
    const auto all = outline.components();
    ASSERT_EQ(all.size(), 7u);
    for (std::uint32_t item = 0; item < all.size(); ++item)
        EXPECT_EQ(all[item].item, item);
    EXPECT_EQ(all[kAddIn], (ec::Component{.item = kAddIn,
                                          .name = "Add-in",
                                          .group = kWord,
                                          .state = 0,
                                          .initial = 1,
                                          .enabled = true}));
    EXPECT_EQ(all[kImporter], (ec::Component{.item = kImporter,
                                             .name = "Importer",
                                             .group = kSystem,
                                             .state = -1,
                                             .initial = -1,
                                             .enabled = false}));
    EXPECT_EQ(all[kBrowser].group, std::nullopt);
}

/// A tree of random shape with random initial states, for sequences of random toggles.
class RandomOutline {
  public:
    explicit RandomOutline(unsigned seed) : m_random(seed) {
        static constexpr std::int32_t kStates[] = {1, 0, -1, -2};
        for (std::uint32_t item = 0; item < m_rules.count(); ++item)
            m_rules.setInitialItemState(item, kStates[below(4)]);
        m_outline.attach();
    }

    void toggleAny() {
        ecItem* group = m_root.childAtIndex(below(m_root.numberOfChildren()));
        const bool inside = group->numberOfChildren() > 0 && below(3) > 0;
        ecItem* item = inside ? group->childAtIndex(below(group->numberOfChildren())) : group;
        const std::int32_t before = item->getItemState();
        const bool pressed = below(2) == 0;
        const bool on = pressed ? before != 1 : below(2) == 0;
        const bool taken = pressed ? m_view.press(item) : m_view.set(item, on);
        EXPECT_EQ(taken, before != -1);
        EXPECT_EQ(item->getItemState(), taken ? on : -1);
        if (!taken)
            return;
        if (inside)
            EXPECT_EQ(group->getItemState(), group->determineState());
        else
            for (const auto& member : group->children())
                EXPECT_EQ(member->getItemState(), group->getItemState());
    }

  private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    std::string randomText() {
        std::string text = "A|0|\n";
        for (int line = below(40); line > 0; --line)
            text += below(4) == 0 ? "G|0|\n" : "m|1|\n";
        return text;
    }

    std::mt19937 m_random;
    ecRules m_rules = ecRules::fromText(randomText());
    ecItem m_root{m_rules, ecItem::kRootItem, nullptr};
    OutlineView m_view;
    ec::ComponentOutline m_outline{{.root = m_root, .ecOutlineView = m_view}};
};

TEST(OutlineProperties, GroupsAndMembersAgreeAfterAnySequenceOfToggles) {
    const unsigned first = std::random_device()();
    for (unsigned seed = first; seed != first + 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomOutline outline(seed);
        for (int toggle = 0; toggle < 100; ++toggle)
            outline.toggleAny();
        if (testing::Test::HasFailure())
            break;
    }
}

} // namespace
