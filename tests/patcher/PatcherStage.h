// The whole wizard over fakes, on a machine with copies of the application: folders below the
// stage's own, and a pretended patch tool that knows of each copy what the real one would find.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/wizard/WizardStage.h"

namespace tests {

class PatcherStage : public WizardStage {
  public:
    enum class Copy { old, altered, current };

    PatcherStage() {
        host.tools.handler = [this](const ports::ToolCall& call) { return run(call); };
        host.administrator.effect = [this](const ports::ToolCall& call) {
            if (call.tool == tool() && works && copies[call.arguments.at(1)] == Copy::old)
                copies[call.arguments.at(1)] = Copy::current;
        };
    }

    /// By their folders.
    std::map<std::string, Copy> copies;
    /// Does the tool that runs as administrator do what it is for?
    bool works = true;
    /// What the tool lists as content that goes with the update, as it prints it.
    std::string listing;
    /// Called while the tool runs to test a copy.
    std::function<void()> whileTesting;

    std::string tool() const { return folder.path() + "/applyPatch"; }
    std::string patch() const { return folder.path() + "/Patchfile.patch"; }
    std::string probe() const { return folder.path("tmp/do_not_use_testfile.enl"); }

    /// Makes an application that opens the product's documents; answers the folder it is in.
    std::string add(const std::string& name, Copy copy = Copy::old,
                    const std::string& application = "Scrivel 21.app") {
        std::string its = addUnknown(name, copy, application);
        host.applications.openers["enl"].push_back(its + "/" + application);
        return its;
    }
    /// The same for one that the host does not know.
    std::string addUnknown(const std::string& name, Copy copy = Copy::old,
                           const std::string& application = "Scrivel 21.app") {
        std::string its = folder.path(name);
        std::filesystem::create_directories(its + "/" + application);
        copies[its] = copy;
        host.bundles.strings[{its + "/" + application, "CFBundleShortVersionString"}] = "21.0";
        return its;
    }

    /// The calls of the patch tool, what it was asked for and the folder: "-n /Applications/X".
    /// "apply" is a run as administrator.
    std::vector<std::string> toolRuns() const {
        std::vector<std::string> runs;
        for (const ports::ToolCall& call : host.tools.calls)
            if (call.tool == tool())
                runs.push_back(call.arguments.at(4) + " " + call.arguments.at(1));
        for (const ports::ToolCall& call : host.administrator.calls)
            if (call.tool == tool())
                runs.push_back("apply " + call.arguments.at(1));
        return runs;
    }
    /// The log's lines since the last call.
    std::vector<std::string> logged() {
        std::vector<std::string> lines = host.logged();
        host.streams.appended.clear();
        return lines;
    }
    /// The arguments as the log shows them.
    std::string baseArguments(const std::string& its) const {
        return "-d " + its + " -i " + patch();
    }
    std::string testLine(const std::string& its, int status = 0) const {
        return "Running as user: " + tool() + " " + baseArguments(its) +
               " -n Result: " + std::to_string(status);
    }
    std::string question(const std::string& its) const {
        return "\nA copy of Scrivel was found at the following location:\n\n" + its +
               "\n\nWould you like to update this copy?\n";
    }

  private:
    fakes::FakeTools::Answer run(const ports::ToolCall& call) {
        if (call.tool != tool())
            return {};
        const Copy copy = copies[call.arguments.at(1)];
        const std::string& request = call.arguments.at(4);
        if (request == "-n" && whileTesting)
            whileTesting();
        if (request == "-n")
            return {.status = copy == Copy::old ? 0 : 1};
        if (request == "--verify")
            return {.status = copy == Copy::current ? 0 : 1};
        if (request == "-C")
            return {.output = listing};
        ADD_FAILURE() << "the tool has no " << request;
        return {.status = 64};
    }
};

} // namespace tests
