#include "app/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <functional>
#include <map>
#include <utility>

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

constexpr std::string_view kSelect = "--select";
constexpr std::string_view kDeselect = "--deselect";

/// Options of which only one makes sense.
constexpr std::array kExclusive{
    std::pair<std::string_view, std::string_view>{"--short", "--launch-mode"},
};

const OptionRow& rowOf(const CLI::Option& option) {
    return *std::ranges::find_if(
        kOptions, [&](const OptionRow& row) { return option.check_name(std::string(row.name)); });
}

/// What is wrong with the options that were given, and how to go on; empty when nothing is.
std::string misfit(const std::vector<CLI::Option*>& given, const CommandLine& options) {
    const auto has = [&](std::string_view name) {
        return std::ranges::any_of(
            given, [&](const CLI::Option* option) { return rowOf(*option).name == name; });
    };
    for (const CLI::Option* option : given) {
        const OptionRow& row = rowOf(*option);
        const std::string name(row.name);
        if (!row.command.empty() && row.command != options.command)
            return name + " goes with the command \"" + std::string(row.command) +
                   "\" only; leave it out or use that command";
        if (row.front == OptionRow::Front::unattended && !options.unattended)
            return name + " goes with --unattended only; add that, or choose in the window";
    }
    for (const auto& [first, second] : kExclusive)
        if (has(first) && has(second))
            return std::string(first) + " and " + std::string(second) +
                   " exclude each other; leave one of them out";
    return {};
}

/// --select and --deselect in the order in which they stand: a group and then one of its members
/// is not the same as the other way round.
std::vector<ComponentChoice> choicesOf(const std::vector<CLI::Option*>& given) {
    std::map<const CLI::Option*, std::size_t> taken;
    std::vector<ComponentChoice> choices;
    for (const CLI::Option* option : given)
        if (const std::string_view name = rowOf(*option).name; name == kSelect || name == kDeselect)
            choices.push_back({option->results().at(taken[option]++), name == kSelect});
    return choices;
}

std::optional<std::uint32_t> unsignedNumber(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

std::string faultOfNumber(const std::string& text) {
    return unsignedNumber(text) ? std::string()
                                : "\"" + text + "\" is not a whole number from 0 to 4294967295";
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
    std::vector<std::string> chosen;
    std::string launchMode;
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
        {kSelect, [&](auto& name) { return parser.add_option(name, chosen); }},
        {kDeselect, [&](auto& name) { return parser.add_option(name, chosen); }},
        {"--short", [&](auto& name) { return parser.add_flag(name, options.shortSequence); }},
        {"--launch-mode",
         [&](auto& name) {
             return parser.add_option(name, launchMode)
                 ->check(CLI::Validator([](std::string& text) { return faultOfNumber(text); }, ""));
         }},
        {"--json", [&](auto& name) { return parser.add_flag(name, options.json); }},
        {"--version", [&](auto& name) { return parser.add_flag(name, version); }},
        {"--help", [&](auto& name) { return parser.add_flag(name, help); }},
    };
    for (const OptionRow& row : kOptions) {
        CLI::Option* option = targets.at(row.name)(std::string(row.name));
        option->description(std::string(row.help));
        option->multi_option_policy(row.kind == OptionRow::Kind::text
                                        ? CLI::MultiOptionPolicy::TakeAll
                                        : CLI::MultiOptionPolicy::TakeLast);
        if (row.kind == OptionRow::Kind::text)
            option->expected(1)->allow_extra_args(false);
        if (!row.argument.empty())
            option->type_name(std::string(row.argument));
    }
    for (const CommandRow& row : kCommands)
        parser.add_subcommand(std::string(row.name), std::string(row.help))
            ->group("Commands")
            ->fallthrough();

    const auto wrongUsage = [](const std::string& what) -> ParsedCommandLine {
        return {{},
                {},
                what + "\nTry '" + std::string(kProgramName) +
                    " --help' for the commands and options.\n",
                static_cast<int>(ExitCode::usage)};
    };
    try {
        std::ranges::reverse(arguments); // as the parser wants them
        parser.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return wrongUsage(error.what());
    }
    if (help)
        return {{}, parser.help(), {}, 0};
    if (version)
        return {
            {}, std::string(kProgramName) + " " + std::string(ec::product::kVersion) + "\n", {}, 0};
    if (const auto commands = parser.get_subcommands(); !commands.empty())
        options.command = commands.front()->get_name();
    options.unattended = options.unattended || options.answers.has_value();
    if (const std::string what = misfit(parser.parse_order(), options); !what.empty())
        return wrongUsage(what);
    options.unattended = options.unattended || options.command == "list"; // it has no window
    options.launchMode = unsignedNumber(launchMode);                      // none for the empty text
    options.choices = choicesOf(parser.parse_order());
    options.waitForApps = std::chrono::seconds(seconds);
    options.root = folderPrefix(options.root);
    options.home = folderPrefix(home);
    return {std::move(options), {}, {}, 0};
}

} // namespace app
