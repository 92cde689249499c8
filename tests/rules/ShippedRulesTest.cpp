// The rules file that ships with the program.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rules/ComponentOutline.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using ec::ecItem;
using ec::ecRules;
using testing::AnyOf;
using testing::ElementsAre;
using testing::Optional;

class ShippedRules : public testing::Test {
  protected:
    ecRules rules{SCRIVEL_RESOURCES};
    ecItem root{rules, ecItem::kRootItem, nullptr};
    controls::OutlineView view;
    ec::ComponentOutline outline{{.root = root, .ecOutlineView = view}};
};

TEST_F(ShippedRules, ShowExactlyTheseComponents) {
    std::vector<std::string> lines;
    for (const ec::Component& component : outline.components())
        lines.push_back((component.group ? "  " : "") + std::string(component.name) + " " +
                        std::string(rules.getItemMethod(component.item).value_or("-")));
    EXPECT_THAT(lines, ElementsAre("Microsoft Word integration -", "  Penmark add-in inst_Word",
                                   "Content categories inst_allCategories",
                                   "  Chemistry inst_Category", "  Economics inst_Category",
                                   "  History inst_Category", "  Law inst_Category",
                                   "  Medicine inst_Category", "  Physics inst_Category",
                                   "System integration -", "  Spotlight importer inst_Spotlight",
                                   "  Services inst_Services", "Browser extension inst_Tessaron"));
}

TEST_F(ShippedRules, HaveNoItemsThatAreNotShownButTheEmptyLastLine) {
    ASSERT_EQ(rules.count(), outline.components().size() + 1);
    EXPECT_EQ(rules.getItemName(rules.count() - 1), "");
}

TEST_F(ShippedRules, NameOnlyMethodsThatExist) {
    for (const ec::Component& component : outline.components())
        EXPECT_THAT(rules.getItemMethod(component.item).value_or("none"),
                    AnyOf("none", "inst_File", "inst_Dir", "inst_Word", "inst_Services",
                          "inst_Spotlight", "inst_Tessaron", "inst_Uninst", "inst_Category",
                          "inst_allCategories"))
            << component.name;
}

TEST_F(ShippedRules, GiveEachMemberAMethodAndEachComponentADescription) {
    for (const ec::Component& component : outline.components()) {
        EXPECT_TRUE(!component.group || rules.getItemMethod(component.item)) << component.name;
        EXPECT_NE(rules.getItemDesc(component.item).value_or(""), "") << component.name;
    }
}

TEST_F(ShippedRules, GiveTheCategoriesFoldersInTheFolderOfThemAll) {
    const auto all = outline.find("Content categories");
    ASSERT_NE(all.item, nullptr);
    EXPECT_THAT(rules.getItemFiles(all.item->itemNum()), Optional(ElementsAre("Filters")));
    for (const auto& member : all.item->children())
        EXPECT_THAT(rules.getItemFiles(member->itemNum()),
                    Optional(ElementsAre("Filters/" + std::string(*member->getItemName()))));
}

TEST_F(ShippedRules, GiveEachComponentANameOfItsOwn) {
    for (const ec::Component& component : outline.components()) {
        const auto found = outline.find(component.name);
        ASSERT_NE(found.item, nullptr) << component.name;
        EXPECT_EQ(found.item->itemNum(), component.item);
    }
}

TEST_F(ShippedRules, HaveUnixLineEnds) {
    const std::string text = tests::contentsOf(SCRIVEL_RESOURCES "/Customizer.rules.txt");
    EXPECT_TRUE(text.ends_with('\n'));
    EXPECT_EQ(text.find('\r'), std::string::npos);
}

} // namespace
