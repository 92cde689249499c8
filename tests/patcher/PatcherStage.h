// The whole wizard over fakes, on a machine with copies of the application: folders below the
// stage's own, and a pretended patch tool.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/PretendedPatchTool.h"
#include "tests/wizard/WizardStage.h"

namespace tests {

class PatcherStage : public WizardStage {
  public:
    using Copy = PretendedPatchTool::Copy;

    PretendedPatchTool patchTool{host, folder.path() + "/applyPatch"};

    const std::string& tool() const { return patchTool.path(); }
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
        patchTool.copies[its] = copy;
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
};

} // namespace tests
