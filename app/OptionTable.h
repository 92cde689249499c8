// Every command and option of the command line, once: the parser, --help, the manual page and the
// shell completions are all made from this table.
#pragma once

#include <array>
#include <string_view>

namespace app {

struct CommandRow {
    std::string_view name;
    std::string_view help;
};

struct OptionRow {
    std::string_view name;     ///< with its two hyphens
    std::string_view argument; ///< what the argument stands for; empty for a flag
    std::string_view help;
    /// Which completion fits the argument.
    enum class Kind { flag, folder, file, number, text } kind = Kind::flag;
    /// The one command that the option goes with; empty: any.
    std::string_view command = {};
    /// Only without a window?
    enum class Front { any, unattended } front = Front::any;
};

inline constexpr std::string_view kProgramName = "scrivel-installer";
inline constexpr std::string_view kProgramSummary = "installs the reference manager Scrivel 21";

inline constexpr std::array kCommands{
    CommandRow{"install", "Install Scrivel 21 (the default): the installer window and its flow"},
    CommandRow{"customize", "Choose the components of Scrivel 21 and install or remove them"},
    CommandRow{"penmark", "Install or uninstall Penmark for Microsoft Word"},
    CommandRow{"first-install", "Run the wizard's full sequence for a first installation"},
    CommandRow{"update", "Look for installed copies of Scrivel 21 and update them"},
    CommandRow{"list", "List the components with their states; changes nothing"},
};

inline constexpr std::array kOptions{
    OptionRow{"--root", "DIR",
              "Prefix of the system's folders (\"/Applications\", \"/Library\", \"/Volumes\"); "
              "default: none, this machine",
              OptionRow::Kind::folder},
    OptionRow{"--home", "DIR", "The user's home folder, where \"~\" leads; default: $HOME",
              OptionRow::Kind::folder},
    OptionRow{"--unattended", "", "No window and no display needed; questions answer themselves"},
    OptionRow{"--answers", "FILE", "A file of answers and steps; implies --unattended",
              OptionRow::Kind::file},
    OptionRow{"--yes", "",
              "Unattended: agree to overwrite an installed copy, to uninstall and to the licence"},
    OptionRow{"--select", "NAME",
              "Unattended customize: turn the component on; \"Group/Member\" where a name stands "
              "twice; may be repeated",
              OptionRow::Kind::text, "customize", OptionRow::Front::unattended},
    OptionRow{"--deselect", "NAME", "Unattended customize: turn the component off; may be repeated",
              OptionRow::Kind::text, "customize", OptionRow::Front::unattended},
    OptionRow{"--short", "", "first-install: the short sequence", OptionRow::Kind::flag,
              "first-install"},
    OptionRow{"--launch-mode", "N",
              "first-install: another launch mode, for support; a number from 0 to 4294967295",
              OptionRow::Kind::number, "first-install"},
    OptionRow{"--json", "", "list: a JSON array instead of a table", OptionRow::Kind::flag, "list"},
    OptionRow{
        "--wait-for-apps", "SECONDS",
        "Unattended install: how long to wait for running applications to quit before giving up; "
        "default: 0",
        OptionRow::Kind::number},
    OptionRow{"--no-launch", "", "Unattended install: do not start the installed application"},
    OptionRow{"--events", "",
              "Tell what happens on standard output, one JSON object a line, and nothing else "
              "there"},
    OptionRow{"--version", "", "Print the version and leave"},
    OptionRow{"--help", "", "Print this help and leave"},
};

} // namespace app
