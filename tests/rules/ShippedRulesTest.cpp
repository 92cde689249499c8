// The rules file that ships with the program.
#include <string>
#include <vector>

#include <set>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rules/ComponentOutline.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using ec::ecItem;
using ec::ecRules;
using testing::ElementsAre;
using testing::Optional;
using testing::UnorderedElementsAre;

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
    EXPECT_THAT(lines,
                ElementsAre("Microsoft Word integration -", "  Penmark add-in inst_Word",
                            "Content categories inst_allCategories", "  Chemistry inst_Category",
                            "  Economics inst_Category", "  History inst_Category",
                            "  Law inst_Category", "  Medicine inst_Category",
                            "  Physics inst_Category", "Output styles inst_allCategories",
                            "  Engineering inst_Category", "  Humanities inst_Category",
                            "  Sciences inst_Category", "System integration -",
                            "  Spotlight importer inst_Spotlight", "  Services inst_Services",
                            "Browser extension inst_Tessaron", "More on this disk -",
                            "  Read Me.txt inst_File", "  Examples inst_Dir",
                            "  Uninstaller inst_Uninst", "  Handheld link inst_Handheld"));
}

TEST_F(ShippedRules, HaveNoItemsThatAreNotShownButTheEmptyLastLine) {
    ASSERT_EQ(rules.count(), outline.components().size() + 1);
    EXPECT_EQ(rules.getItemName(rules.count() - 1), "");
}

TEST_F(ShippedRules, NameEveryMethodThatExistsAndOneThatIsYetToCome) {
    std::set<std::string_view> methods;
    for (const ec::Component& component : outline.components())
        if (const auto method = rules.getItemMethod(component.item))
            methods.insert(*method);
    EXPECT_THAT(methods,
                UnorderedElementsAre("inst_File", "inst_Dir", "inst_Word", "inst_Services",
                                     "inst_Spotlight", "inst_Tessaron", "inst_Uninst",
                                     "inst_Category", "inst_allCategories", "inst_Handheld"));
}

TEST_F(ShippedRules, GiveEachMemberAMethodAndEachComponentADescription) {
    for (const ec::Component& component : outline.components()) {
        EXPECT_TRUE(!component.group || rules.getItemMethod(component.item)) << component.name;
        EXPECT_NE(rules.getItemDesc(component.item).value_or(""), "") << component.name;
    }
}

TEST_F(ShippedRules, GiveTheCategoriesFoldersInTheFolderOfThemAll) {
    for (const auto& [group, folder] :
         {std::pair("Content categories", "Filters"), std::pair("Output styles", "Styles")}) {
        const auto all = outline.find(group);
        ASSERT_NE(all.item, nullptr);
        EXPECT_THAT(rules.getItemFiles(all.item->itemNum()), Optional(ElementsAre(folder)));
        for (const auto& member : all.item->children())
            EXPECT_THAT(rules.getItemFiles(member->itemNum()),
                        Optional(ElementsAre(std::string(folder) + "/" +
                                             std::string(*member->getItemName()))));
    }
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
