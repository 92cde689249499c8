// The real program's components in a little system of their own: Words to find, breadcrumbs to
// remember, and what the program says and logs of each component. See InstallerRun.
#pragma once

#include <algorithm>
#include <utility>

#include "tests/app/InstallerRun.h"

namespace tests {

inline const std::string k2016 = "Scrivel PMRK Word 2016.bundle";
inline const std::string k16 = "Scrivel PMRK Word 16.bundle";

class ComponentsRun : public InstallerRun {
  protected:
    fs::path applications() const { return root / "Applications"; }
    fs::path shared() const {
        return root / "Library/Application Support/Microsoft/Office365/User Content.localized/"
                      "Startup.localized/Word";
    }
    fs::path extension() const {
        return root / "Library/Application Support/Google/Chrome/External Extensions/"
                      "kmhdpbnaogjcfelipamcbkdgonhejlfa.json";
    }
    fs::path crumbsFile() const {
        return home / "Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist";
    }

    /// `name` may lead through folders of the Applications folder. Answers the bundle's path.
    std::string addWord(const std::string& name, const std::string& version) const {
        const fs::path word = applications() / (name + ".app");
        fs::create_directories(word / "Contents");
        std::ofstream(word / "Contents/Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>"
               "com.microsoft.Word</string><key>CFBundleShortVersionString</key><string>"
            << version << "</string></dict></plist>";
        return word.string();
    }
    void addTwoWords() const {
        addWord("Microsoft Word", "16.78");
        addWord("Microsoft Word 2016", "15.41");
    }
    /// The preferences file with these elements under "Word", each as it stands in the list.
    void writeCrumbs(const std::string& elements) const {
        fs::create_directories(crumbsFile().parent_path());
        std::ofstream(crumbsFile())
            << "<plist version=\"1.0\"><dict><key>Word</key>" << elements << "</dict></plist>";
    }
    void rememberWords(const std::vector<std::string>& records) const {
        std::string elements = "<array>";
        for (const std::string& record : records)
            elements += "<string>" + record + "</string>";
        writeCrumbs(elements + "</array>");
    }
    std::string made(const fs::path& path) const {
        fs::create_directories(path);
        return path.string();
    }

    /// Runs the command with an answers file of this content.
    Result runAnswering(const std::string& command, const std::string& answers,
                        const std::string& words = "") {
        std::ofstream(folder / "answers.json") << answers;
        return run(command + " --events --answers '" + (folder / "answers.json").string() + "' " +
                   words);
    }
    Result customize(const std::string& words, const std::string& answers = "") {
        return runAnswering("customize", answers.empty() ? R"({"authorize": true})" : answers,
                            words);
    }

    static std::string memberOf(const Result& result, const std::string& name,
                                const std::string& member) {
        for (const Json& component : result.of("component"))
            if (component["name"] == name)
                return component[member];
        return "none";
    }
    static std::string resultOf(const Result& result, const std::string& name) {
        return memberOf(result, name, "result");
    }
    static std::string reasonOf(const Result& result, const std::string& name) {
        return memberOf(result, name, "reason");
    }
    /// The names of those that `list` counts as installed.
    std::vector<std::string> installed() {
        std::vector<std::string> names;
        for (const Json& component : Json::parse(run("list --json").output))
            if (component["state"] == 1)
                names.push_back(component["name"]);
        return names;
    }

    /// The lines that the program itself, and none of its tools, wrote to its standard error.
    static std::vector<std::string> ownErrors(const Result& result) {
        std::vector<std::string> own;
        std::istringstream lines(result.error);
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("scrivel-installer: "))
                own.push_back(line);
        return own;
    }

    /// With this run's folders named.
    std::string named(std::string text) const {
        for (const auto& [path, name] :
             {std::pair(shared().string(), "SHARED"),
              std::pair(extension().parent_path().string(), "CHROME"),
              std::pair(root.string(), "ROOT"), std::pair(home.string(), "HOME"),
              std::pair(temporary.string(), "TMP"), std::pair(bundle.string(), "APP"),
              std::pair(folder.string(), "DISK")})
            for (std::size_t found; (found = text.find(path)) != std::string::npos;)
                text.replace(found, path.size(), name);
        return text;
    }
    /// What the log says after the line.
    std::vector<std::string> loggedAfter(const std::string& line) const {
        std::vector<std::string> lines = logged();
        const auto at = std::find(lines.rbegin(), lines.rend(), line).base();
        lines.erase(lines.begin(), at);
        for (std::string& each : lines)
            each = named(each);
        return lines;
    }
    /// The log from its first line to its last, without its dates.
    std::string wholeLog() const {
        std::string text;
        for (const std::string& line : logged())
            text += named(line) + "\n";
        return text;
    }
};

} // namespace tests
