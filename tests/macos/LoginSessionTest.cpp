#include "platform/macos/LoginSession.h"

#include <Security/AuthSession.h>
#include <gtest/gtest.h>

namespace {

OSStatus status = 0;
SessionAttributeBits bits = 0;

} // namespace

extern "C" OSStatus SessionGetInfo(SecuritySessionId session, SecuritySessionId*,
                                   SessionAttributeBits* attributes) {
    EXPECT_EQ(session, 0xFFFFFFFFu) << "the caller's own";
    *attributes = bits;
    return status;
}

namespace {

bool answerTo(OSStatus givenStatus, SessionAttributeBits givenBits) {
    status = givenStatus;
    bits = givenBits;
    return macoshost::hasGraphicSession();
}

TEST(LoginSession, GraphicAccessAloneDecides) {
    EXPECT_TRUE(answerTo(0, 0x0010));
    EXPECT_TRUE(answerTo(0, 0x0010 | 0x0020 | 0x1000));
    EXPECT_FALSE(answerTo(0, 0));
    EXPECT_FALSE(answerTo(0, 0x0001 | 0x0020 | 0x1000));
}

TEST(LoginSession, AnErrorMeansNo) {
    EXPECT_FALSE(answerTo(-60500, 0x0010));
}

} // namespace
