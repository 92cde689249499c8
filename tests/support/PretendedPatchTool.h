// A patch tool without processes, for tests over fakes: it knows of each copy what the real tool
// would find on disk, and an administrator's run of it makes an old copy a current one.
#pragma once

#include <functional>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"

namespace tests {

class PretendedPatchTool {
  public:
    enum class Copy { old, altered, current };

    /// Answers the fakes' tools and their administrator from now on. `tool` is its absolute path.
    PretendedPatchTool(fakes::FakeHost& host, std::string tool) : m_tool(std::move(tool)) {
        host.tools.handler = [this](const ports::ToolCall& call) { return run(call); };
        host.administrator.effect = [this](const ports::ToolCall& call) { apply(call); };
    }
    PretendedPatchTool(const PretendedPatchTool&) = delete;
    PretendedPatchTool& operator=(const PretendedPatchTool&) = delete;

    /// By their folders.
    std::map<std::string, Copy> copies;
    /// Does an administrator's run do what it is for?
    bool works = true;
    /// What it lists as content that goes with the update, as it prints it.
    std::string listing;
    /// Called while it tests a copy, and while it is applied to the copy in that folder.
    std::function<void()> whileTesting;
    std::function<void(const std::string& folder)> whileApplied;

    const std::string& path() const { return m_tool; }

  private:
    fakes::FakeTools::Answer run(const ports::ToolCall& call) {
        if (call.tool != m_tool)
            return {};
        const Copy copy = copies[call.arguments.at(1)];
        const std::string& request = call.arguments.at(4);
        if (request == "-n" && whileTesting)
            whileTesting();
        if (request == "-n")
            return {.status = copy == Copy::old ? 0 : copy == Copy::altered ? 1 : 6};
        if (request == "--verify")
            return {.status = copy == Copy::current ? 0 : 1};
        if (request == "-C")
            return {.output = listing};
        ADD_FAILURE() << "the tool has no " << request;
        return {.status = 64};
    }
    void apply(const ports::ToolCall& call) {
        if (call.tool != m_tool)
            return;
        const std::string& folder = call.arguments.at(1);
        if (whileApplied)
            whileApplied(folder);
        if (works && copies[folder] == Copy::old)
            copies[folder] = Copy::current;
    }

    std::string m_tool;
};

} // namespace tests
