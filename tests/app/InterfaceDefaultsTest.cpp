// The titles that the build takes out of the interface files.
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/posix/SpawnedTools.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string headerFor(const std::string& interfaceFile) {
    const tests::TemporaryFolder own;
    std::ofstream(own.path() + "/Made.ui") << interfaceFile;
    const std::string header = own.path() + "/Made.h";
    posix::SpawnedTools tools({});
    EXPECT_EQ(tools.run({SCRIVEL_CMAKE,
                         {"-DFOLDER=" + own.path(), "-DOUTPUT=" + header, "-P",
                          SCRIVEL_SOURCE "/cmake/InterfaceDefaults.cmake"}}),
              0);
    return tests::contentsOf(header);
}

TEST(InterfaceDefaults, ClassesMayHaveANamespaceAndNamesDigits) {
    EXPECT_THAT(headerFor(R"(<widget class="ui::DocumentBrowser" name="page2Text">
                             <property name="text"><string>Two</string></property>)"),
                HasSubstr(R"|("Made", "page2Text", R"title(Two)title")|"));
}

TEST(InterfaceDefaults, TextsOfSeveralLinesAndEscapedOnesComeThroughUnescaped) {
    EXPECT_THAT(headerFor(R"(<widget class="QLabel" name="a"><property name="text">
          <string>First; [line]
second &lt;b&gt; &quot;R&amp;amp;D&quot; &apos;)&quot;</string></property></widget>)"),
                HasSubstr("R\"title(First; [line]\nsecond <b> \"R&amp;D\" ')\")title\""));
}

TEST(InterfaceDefaults, AnUnbalancedBracketHidesNoWidgetBehindIt) {
    EXPECT_THAT(
        headerFor(R"(<widget class="A" name="a"><property name="text"><string>[</string></property>
                     <widget class="B" name="b"><property name="text"><string>B</string>)"),
        AllOf(HasSubstr("title([)title"), HasSubstr("title(B)title")));
}

TEST(InterfaceDefaults, ATitleBelongsToTheWidgetThatHasIt) {
    EXPECT_THAT(
        headerFor(R"(<widget class="QMenu" name="menu"><property name="title"><string>M</string>
                     </property></widget><action name="item"><property name="text">
                     <string>Item</string></property></action>
                     <widget class="A" name="empty"><property name="text"><string notr="true"/>
                     </property></widget><widget class="A" name="b">
                     <property name="text"><string notr="true">B</string></property>)"),
        AllOf(HasSubstr(R"("b", R"title(B)title")"), Not(HasSubstr("menu")),
              Not(HasSubstr("empty"))));
}

} // namespace
