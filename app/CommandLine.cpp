#include "app/CommandLine.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>

#include <CLI/CLI.hpp>

#include "app/ExitCode.h"
#include "app/OptionTable.h"
#include "engine/Product.h"

namespace app {

namespace {

/// An absolute path without a trailing "/"; the empty text for "/" itself, as for none.
std::string folderPrefix(const std::string& path) {
    if (path.empty())
        return {};
    std::string text = std::filesystem::absolute(path).lexically_normal().string();
    while (!text.empty() && text.back() == '/')
        text.pop_back();
    return text;
}

} // namespace

ParsedCommandLine parseCommandLine(std::vector<std::string> arguments,
                                   const std::string& homeDefault) {
    CLI::App parser{std::string(kProgramName) + " " + std::string(kProgramSummary)};
    parser.name(std::string(kProgramName));
    parser.set_help_flag();
    parser.get_formatter()->label("SUBCOMMAND", "COMMAND");
    parser.require_subcommand(0, 1);

    CommandLine options;
    bool help = false;
    bool version = false;
    int seconds = 0;
    std::string home = homeDefault;
    const std::map<std::string_view, std::function<CLI::Option*(const std::string&)>> targets{
        {"--root", [&](auto& name) { return parser.add_option(name, options.root); }},
        {"--home", [&](auto& name) { return parser.add_option(name, home); }},
        {"--unattended", [&](auto& name) { return parser.add_flag(name, options.unattended); }},
        {"--answers", [&](auto& name) { return parser.add_option(name, options.answers); }},
        {"--yes", [&](auto& name) { return parser.add_flag(name, options.yes); }},
        {"--wait-for-apps",
         [&](auto& name) {
             CLI::Validator notNegative = CLI::NonNegativeNumber;
             notNegative.description(""); // the help says it in words
             return parser.add_option(name, seconds)->check(notNegative);
         }},
        {"--no-launch", [&](auto& name) { return parser.add_flag(name, options.noLaunch); }},
        {"--events", [&](auto& name) { return parser.add_flag(name, options.events); }},
        {"--version", [&](auto& name) { return parser.add_flag(name, version); }},
        {"--help", [&](auto& name) { return parser.add_flag(name, help); }},
    };
    for (const OptionRow& row : kOptions) {
        CLI::Option* option = targets.at(row.name)(std::string(row.name));
        option->description(std::string(row.help));
        option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        if (!row.argument.empty())
            option->type_name(std::string(row.argument));
    }
    for (const CommandRow& row : kCommands)
        parser.add_subcommand(std::string(row.name), std::string(row.help))
            ->group("Commands")
            ->fallthrough();

    try {
        std::ranges::reverse(arguments); // as the parser wants them
        parser.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return {{},
                {},
                std::string(error.what()) + "\nTry '" + std::string(kProgramName) +
                    " --help' for the commands and options.\n",
                static_cast<int>(ExitCode::usage)};
    }
    if (help)
        return {{}, parser.help(), {}, 0};
    if (version)
        return {
            {}, std::string(kProgramName) + " " + std::string(ec::product::kVersion) + "\n", {}, 0};
    if (const auto chosen = parser.get_subcommands(); !chosen.empty())
        options.command = chosen.front()->get_name();
    options.unattended = options.unattended || options.answers.has_value();
    options.waitForApps = std::chrono::seconds(seconds);
    options.root = folderPrefix(options.root);
    options.home = folderPrefix(home);
    return {std::move(options), {}, {}, 0};
}

} // namespace app
