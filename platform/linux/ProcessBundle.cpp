#include "platform/linux/ProcessBundle.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

#include "platform/linux/OwnExecutable.h"

namespace linuxhost {

namespace {

constexpr std::string_view kExecutables = ".app/Contents/MacOS/";

/// The bundle around the executable at `path`; empty when there is none.
std::string bundleAround(const std::string& path) {
    const std::size_t at = path.rfind(kExecutables);
    if (!path.starts_with('/') || at == std::string::npos ||
        path.find('/', at + kExecutables.size()) != std::string::npos)
        return {};
    return path.substr(0, at + std::string_view(".app").size());
}

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

/// The first words of the command line; a script's path is among them.
std::vector<std::string> commandLine(const std::string& process) {
    constexpr std::size_t kEnough = 3;
    std::ifstream file(process + "/cmdline", std::ios::binary);
    std::vector<std::string> words;
    for (std::string word; words.size() < kEnough && std::getline(file, word, '\0');)
        words.push_back(word);
    return words;
}

/// Does the file's first line ask for the program that was called as `interpreter`? An editor or a
/// search that merely has the file among its arguments is no run of it.
bool asksFor(const std::string& script, std::string_view interpreter) {
    std::array<char, 256> head{};
    std::ifstream file(script, std::ios::binary);
    file.read(head.data(), head.size());
    const std::string start(head.data(), static_cast<std::size_t>(file.gcount()));
    const std::string first = start.substr(0, start.find('\n'));
    if (!first.starts_with("#!"))
        return false;
    std::istringstream words(first.substr(2));
    // "/usr/bin/env NAME" becomes NAME, so any word of the line may be the one.
    for (std::string word; words >> word;)
        if (lastComponent(word) == lastComponent(interpreter))
            return true;
    return false;
}

/// `path` as the process understood it; empty when that can't be known.
std::string absolute(const std::string& path, const std::string& process) {
    if (path.starts_with('/'))
        return std::filesystem::path(path).lexically_normal().string();
    const std::string folder = readProcessLink(process + "/cwd");
    return folder.empty() ? folder
                          : (std::filesystem::path(folder) / path).lexically_normal().string();
}

} // namespace

std::string bundleOfProcess(const std::string& process) {
    const std::string executable = readProcessLink(process + "/exe");
    if (std::string bundle = bundleAround(executable); !bundle.empty())
        return bundle;
    const std::vector<std::string> words = commandLine(process);
    if (words.empty())
        return {};
    // Another user's process keeps its executable to itself, but not its command line.
    if (executable.empty())
        if (std::string bundle = bundleAround(absolute(words.front(), process)); !bundle.empty())
            return bundle;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (words[i].starts_with('-'))
            continue;
        const std::string script = absolute(words[i], process);
        std::string bundle = bundleAround(script);
        return !bundle.empty() && asksFor(script, words.front()) ? bundle : std::string();
    }
    return {};
}

} // namespace linuxhost
