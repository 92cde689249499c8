#include "platform/macos/CoreFoundationObject.h"

#include <gtest/gtest.h>
#include <utility>

#include "tests/macos/FakeCoreFoundation.h"

namespace {

using fakes::coreFoundation;
using String = macoshost::CoreFoundationObject<CFStringRef>;

class CoreFoundationObjectTest : public testing::Test {
  protected:
    CoreFoundationObjectTest() { coreFoundation() = {}; }
    ~CoreFoundationObjectTest() override { EXPECT_EQ(coreFoundation().living, 0); }
};

TEST_F(CoreFoundationObjectTest, WhatWasTakenOverIsReleasedOnce) {
    {
        const String text(coreFoundation().newString("a"));
        EXPECT_TRUE(text);
        EXPECT_EQ(coreFoundation().living, 1);
    }
    EXPECT_EQ(coreFoundation().releases, 1);
}

TEST_F(CoreFoundationObjectTest, NoneIsNeverReleased) {
    {
        const String none;
        const String null(nullptr);
        EXPECT_FALSE(none || null);
        EXPECT_EQ(null.get(), nullptr);
    }
    EXPECT_EQ(coreFoundation().releases, 0);
}

TEST_F(CoreFoundationObjectTest, AMoveHandsTheReferenceOn) {
    String first(coreFoundation().newString("a"));
    String second(std::move(first));
    EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move)
    String third(coreFoundation().newString("b"));
    third = std::move(second);
    EXPECT_EQ(coreFoundation().living, 1);
    String& itself = third;
    third = std::move(itself);
    EXPECT_TRUE(third);
    EXPECT_EQ(coreFoundation().living, 1);
}

} // namespace
