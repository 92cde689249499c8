// What every ports::Administrator promises, for the test program of each adapter: its host has the
// adapter as `administrator` and the `streams` that its readers read with, makes a tool that prints
// a text and exits with a status (`toolThatPrints`) and names one that is not there
// (`missingTool`). The rights are granted when they are asked for.
#pragma once

#include <array>
#include <gtest/gtest.h>
#include <string>

#include "platform/ports/Administrator.h"
#include "platform/ports/TextStreams.h"

namespace tests {

inline std::string readAll(ports::TextStreams& streams, int descriptor) {
    std::string text;
    std::array<char, 128> buffer;
    while (const std::size_t count = streams.read(descriptor, buffer))
        text.append(buffer.data(), count);
    return text;
}

template <class Host>
class AdministratorContract : public testing::Test {
  protected:
    void SetUp() override {
        if constexpr (requires { Host::reasonToSkip(); })
            if (const char* reason = Host::reasonToSkip())
                GTEST_SKIP() << reason;
    }

    Host host;
    ports::Administrator& administrator = host.administrator;
};
TYPED_TEST_SUITE_P(AdministratorContract);

TYPED_TEST_P(AdministratorContract, AStartedToolIsASuccessWhateverBecomesOfIt) {
    ASSERT_EQ(this->administrator.createSession(), 0);
    ASSERT_EQ(this->administrator.requestRights(), 0);
    for (const int exits : {0, 1, 7}) {
        std::string output;
        EXPECT_EQ(this->administrator.start(
                      this->host.toolThatPrints("some text", exits),
                      [&](int descriptor) { output = readAll(this->host.streams, descriptor); }),
                  0);
        EXPECT_EQ(output, "some text");
    }
    this->administrator.freeSession();
}

TYPED_TEST_P(AdministratorContract, AToolThatIsNotThereIsAnErrorAndNothingIsRead) {
    ASSERT_EQ(this->administrator.createSession(), 0);
    ASSERT_EQ(this->administrator.requestRights(), 0);
    bool read = false;
    EXPECT_EQ(this->administrator.start(this->host.missingTool(), [&](int) { read = true; }),
              ports::Administrator::kToolExecuteFailure);
    EXPECT_FALSE(read);
}

TYPED_TEST_P(AdministratorContract, WithoutRightsNothingIsStarted) {
    ASSERT_EQ(this->administrator.createSession(), 0);
    bool read = false;
    const auto reader = [&](int) { read = true; };
    const ports::ToolCall call = this->host.toolThatPrints("", 0);
    EXPECT_EQ(this->administrator.start(call, reader), ports::Administrator::kDenied);
    ASSERT_EQ(this->administrator.requestRights(), 0);
    this->administrator.freeSession();
    EXPECT_EQ(this->administrator.start(call, reader), ports::Administrator::kDenied);
    EXPECT_FALSE(read);
}

REGISTER_TYPED_TEST_SUITE_P(AdministratorContract, AStartedToolIsASuccessWhateverBecomesOfIt,
                            AToolThatIsNotThereIsAnErrorAndNothingIsRead,
                            WithoutRightsNothingIsStarted);

} // namespace tests
