// What decides between light and dark when the front end starts; a program of its own, since each
// test starts one.
#include <QCoreApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

#include "tests/ui/Stage.h"
#include "ui/GuiFrontEnd.h"

namespace {

/// How the front end looks that was started so.
struct Look {
    bool isDark = false;
    double toolkitVersion = 0;
    bool toolkitWasThere = false; ///< when the desktop was asked
    int asked = 0;                ///< how often it was
};

Look lookOf(std::optional<bool> wanted, std::optional<bool> desktop, double toolkitVersion = 2000) {
    int argc = 1;
    char name[] = "ui_appearance_tests";
    char* argv[] = {name, nullptr};
    stage::Resources resources;
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    stage::PipeQueue queue;
    Look look;
    ui::GuiFrontEnd frontEnd({.argc = argc,
                              .argv = argv,
                              .resourceFolder = resources.folder(),
                              .texts = texts,
                              .mainQueueDescriptor = queue.descriptor(),
                              .runPending = [&queue] { queue.runPending(); },
                              .dark = wanted,
                              .desktopIsDark =
                                  [&] {
                                      look.toolkitWasThere =
                                          QCoreApplication::instance() != nullptr;
                                      ++look.asked;
                                      return desktop;
                                  },
                              .toolkitVersion = toolkitVersion});
    look.isDark = frontEnd.appearance().isDark();
    look.toolkitVersion = frontEnd.appearance().toolkitVersion();
    return look;
}

TEST(AppearanceAtTheStart, IsTheDesktopsWhenNobodyChoseOne) {
    for (const bool dark : {true, false}) {
        const Look look = lookOf(std::nullopt, dark);
        EXPECT_EQ(look.isDark, dark);
        EXPECT_EQ(look.asked, 1);
        EXPECT_TRUE(look.toolkitWasThere);
    }
}

TEST(AppearanceAtTheStart, IsTheChosenOneWhateverTheDesktopHas) {
    for (const bool dark : {true, false}) {
        const Look look = lookOf(dark, !dark);
        EXPECT_EQ(look.isDark, dark);
        EXPECT_EQ(look.asked, 0);
    }
}

TEST(AppearanceAtTheStart, IsTheToolkitsWhereTheDesktopDoesNotSay) {
    EXPECT_FALSE(lookOf(std::nullopt, std::nullopt).isDark); // off the screen it is light
}

TEST(AppearanceAtTheStart, TheToolkitsVersionIsTheOneThatWasGiven) {
    for (const double version : {1670.5, 1671.0})
        EXPECT_EQ(lookOf(std::nullopt, false, version).toolkitVersion, version);
}

} // namespace

int main(int argc, char** argv) {
    const stage::Surroundings surroundings;
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
