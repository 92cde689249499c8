// The names that rules may give their methods, in the order in which they are compared.
#include "engine/InstallMethods.h"

#include <span>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

std::vector<std::string> names(std::span<const ec::InstallMethod> table) {
    std::vector<std::string> all;
    for (const ec::InstallMethod& method : table)
        all.emplace_back(method.name);
    return all;
}

TEST(InstallMethods, ChecksKnowNineNamesInThisOrder) {
    EXPECT_THAT(names(ec::kCheckMethods),
                ElementsAre("inst_Word", "inst_File", "inst_Dir", "inst_Services", "inst_Spotlight",
                            "inst_Tessaron", "inst_Uninst", "inst_Category", "inst_allCategories"));
}

TEST(InstallMethods, ChangesKnowEightInAnotherOrderAndWantedlyNotTheUninstaller) {
    EXPECT_THAT(names(ec::kChangeMethods),
                ElementsAre("inst_Word", "inst_File", "inst_Dir", "inst_Services", "inst_Spotlight",
                            "inst_Tessaron", "inst_allCategories", "inst_Category"));
}

TEST(InstallMethods, OnlyTheFileIsPassedTheInstallFolder) {
    for (const auto table : {std::span<const ec::InstallMethod>(ec::kCheckMethods),
                             std::span<const ec::InstallMethod>(ec::kChangeMethods)})
        for (const ec::InstallMethod& method : table)
            EXPECT_EQ(method.takesInstallFolder, method.name == "inst_File") << method.name;
}

} // namespace
