// Finding components by the names that people write into command lines and answers files.
#include <string>

#include <gtest/gtest.h>

#include "rules/ComponentOutline.h"

namespace {

using ec::ecItem;
using ec::ecRules;

class ComponentNames : public testing::Test {
  protected:
    /// The number of the item found, or why there is none.
    std::string find(std::string_view name) const {
        const auto found = outline.find(name);
        if (found.item)
            return found.ambiguous ? "both" : std::to_string(found.item->itemNum());
        return found.ambiguous ? "ambiguous" : "none";
    }

    ecRules rules = ecRules::fromText("Early|1|\n"       // 0
                                      "Styles|0|\n"      // 1
                                      "Chemistry|1|\n"   // 2
                                      "Law|1|\n"         // 3
                                      "Filters|0|\n"     // 4
                                      "Chemistry|1|\n"   // 5
                                      "Twice|1|\n"       // 6
                                      "Twice|1|\n"       // 7
                                      "In/Out|1|\n"      // 8
                                      "Styles/Law|0|\n"  // 9
                                      "Gr\u00FCn|0|\n\n" // 10
                                      "Behind the end|0|");
    ecItem root{rules, ecItem::kRootItem, nullptr};
    controls::OutlineView view;
    ec::ComponentOutline outline{{.root = root, .ecOutlineView = view}};
};

TEST_F(ComponentNames, FindGroupsAndMembers) {
    EXPECT_EQ(find("Styles"), "1");
    EXPECT_EQ(find("Law"), "3");
    EXPECT_EQ(find("Gr\u00FCn"), "10");
}

TEST_F(ComponentNames, TellMembersOfTheSameNameApartByTheirGroups) {
    EXPECT_EQ(find("Chemistry"), "ambiguous");
    EXPECT_EQ(find("Styles/Chemistry"), "2");
    EXPECT_EQ(find("Filters/Chemistry"), "5");
}

TEST_F(ComponentNames, AreAmbiguousWhereNothingTellsTheComponentsApart) {
    EXPECT_EQ(find("Twice"), "ambiguous");
    EXPECT_EQ(find("Filters/Twice"), "ambiguous");
    EXPECT_EQ(find("Styles/Law"), "ambiguous") << "a group of that name, and a member by its path";
}

TEST_F(ComponentNames, MayHoldASlash) {
    EXPECT_EQ(find("In/Out"), "8");
    EXPECT_EQ(find("Filters/In/Out"), "8");
}

TEST_F(ComponentNames, AreTakenToTheLetter) {
    for (const char* name :
         {"", "/", "styles", "Styles ", "Styles/", "/Law", "Law/Styles", "Filters/Law",
          "Stylesx/Law", "Styles:Law", "Styles/Lax", "styles/Law", "Styles/Chemistry/Law", "Chem"})
        EXPECT_EQ(find(name), "none") << name;
}

TEST_F(ComponentNames, OfItemsThatAreNotShownFindNothing) {
    EXPECT_EQ(find("Early"), "none");
    EXPECT_EQ(find("Behind the end"), "none");
}

} // namespace
