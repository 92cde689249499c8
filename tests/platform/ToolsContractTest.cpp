// What every ports::Tools promises, on real processes and on the fake.
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <type_traits>

#include "platform/ports/PlatformError.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/SpawnedTools.h"
#include "tests/fakes/FakeTools.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using ports::ToolCall;

class RealTools {
  public:
    ToolCall toolThat(const std::string& prints, int exits) {
        folder.write("text", prints);
        return {folder.writeProgram("tool",
                                    "#!/bin/sh\ncat \"$1\"\nexit " + std::to_string(exits) + "\n"),
                {folder.path("text")}};
    }
    ToolCall toolThatCannotStart() { return {folder.path("no tool"), {}}; }

    tests::TemporaryFolder folder;
    posix::FileTextStreams streams;
    posix::SpawnedTools tools{{}};
};

class PretendedTools {
  public:
    ToolCall toolThat(const std::string& prints, int exits) {
        tools.handler = [=](const ToolCall&) { return fakes::FakeTools::Answer{exits, prints}; };
        return {"/tool", {}};
    }
    ToolCall toolThatCannotStart() {
        tools.handler = [](const ToolCall&) {
            return fakes::FakeTools::Answer{.cannotStart = true};
        };
        return {"/no tool", {}};
    }

    fakes::FakeTextStreams streams;
    fakes::FakeTools tools{streams};
};

template <class Host>
class ToolsContract : public testing::Test {
  protected:
    std::string readAll(int descriptor) {
        std::string text;
        char buffer[128];
        while (const std::size_t count = host.streams.read(descriptor, buffer))
            text.append(buffer, count);
        return text;
    }
    Host host;
    ports::Tools& tools = host.tools;
};

using Hosts = testing::Types<RealTools, PretendedTools>;
TYPED_TEST_SUITE(ToolsContract, Hosts);

TYPED_TEST(ToolsContract, RunAnswersTheToolsStatus) {
    EXPECT_EQ(this->tools.run(this->host.toolThat("", 0)), 0);
    EXPECT_EQ(this->tools.run(this->host.toolThat("", 1)), 1);
    EXPECT_EQ(this->tools.run(this->host.toolThat("", 255)), 255);
}

TYPED_TEST(ToolsContract, CaptureGivesTheOutputWhateverTheStatus) {
    const auto captured = this->tools.capture(this->host.toolThat("one\ntwo", 3));
    EXPECT_EQ(captured.status, 3);
    EXPECT_EQ(captured.output, "one\ntwo");
}

TYPED_TEST(ToolsContract, TheReaderGetsTheOutputAndTheCallTheStatus) {
    const std::string text(1000, 'x');
    std::string read;
    const auto reader = [&](int descriptor) { read = this->readAll(descriptor); };
    EXPECT_EQ(this->tools.runThroughPipe(this->host.toolThat(text, 4), reader), 4);
    EXPECT_EQ(read, text);
}

TYPED_TEST(ToolsContract, AToolThatCannotStartIsToldApart) {
    const ToolCall call = this->host.toolThatCannotStart();
    bool called = false;
    EXPECT_EQ(this->tools.run(call), ports::Tools::kCannotStart);
    EXPECT_THROW((void)this->tools.capture(call), ports::PlatformError);
    EXPECT_EQ(this->tools.runThroughPipe(call, [&](int) { called = true; }),
              ports::Tools::kCannotStart);
    EXPECT_FALSE(called);
}

} // namespace
