// A program that runs for the length of a test.
#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/posix/ChildProcess.h"

namespace tests {

/// Starts the program, by default to sleep for a minute, and kills it when the test is over.
class RunningProgram {
  public:
    explicit RunningProgram(const std::string& program,
                            std::vector<std::string> arguments = {"60"}) {
        EXPECT_EQ(m_child.start({.program = program, .arguments = std::move(arguments)}), 0);
    }
    ~RunningProgram() { ::kill(m_child.pid(), SIGKILL); }
    pid_t pid() const { return m_child.pid(); }

  private:
    posix::ChildProcess m_child;
};

} // namespace tests
