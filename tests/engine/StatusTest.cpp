#include "engine/Status.h"

#include <gtest/gtest.h>

namespace {

using ec::ExitStatus;
using ec::MethodAnswer;

TEST(Status, ZeroIsSuccessForRunsAndOneForMethods) {
    EXPECT_TRUE(ExitStatus::success().succeeded());
    EXPECT_FALSE(ExitStatus::failure().succeeded());
    EXPECT_FALSE(ExitStatus::of(127).succeeded());
    EXPECT_TRUE(MethodAnswer::of(1).succeeded());
    EXPECT_FALSE(MethodAnswer::of(0).succeeded());
    EXPECT_FALSE(MethodAnswer::of(-1).succeeded());
}

TEST(Status, AStatusPassedOnUnchangedIsWantedToInvertItsVerdict) {
    EXPECT_FALSE(MethodAnswer::unchanged(ExitStatus::success()).succeeded());
    EXPECT_TRUE(MethodAnswer::unchanged(ExitStatus::failure()).succeeded());
    EXPECT_EQ(MethodAnswer::unchanged(ExitStatus::of(127)).value(), 127);
}

} // namespace
