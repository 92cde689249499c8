// makeManual FOLDER: writes the manual page and the shell completions into FOLDER (share/man,
// share/bash-completion, share/zsh, share/fish), all from the option table. A build tool.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "app/OptionTable.h"
#include "engine/Product.h"

namespace {

namespace fs = std::filesystem;
using app::kCommands;
using app::kOptions;
using app::OptionRow;

const std::string kName(app::kProgramName);

bool isRepeatable(const OptionRow& option) {
    return option.kind == OptionRow::Kind::text;
}

bool isPath(const OptionRow& option) {
    return option.kind == OptionRow::Kind::folder || option.kind == OptionRow::Kind::file;
}

/// A text for troff: hyphens that are typed, quotes and backslashes as they stand.
std::string troff(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '-')
            escaped += "\\-";
        else if (c == '\\')
            escaped += "\\e";
        else
            escaped += c;
    }
    return escaped;
}

/// A text for a shell's single quotes.
std::string quoted(std::string_view text) {
    std::string escaped = "'";
    for (const char c : text)
        escaped += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return escaped + "'";
}

void manualPage(std::ostream& out) {
    out << ".TH SCRIVEL-INSTALLER 1 \"\" \"" << ec::product::kVersion << "\"\n"
        << ".SH NAME\n"
        << troff(kName) << " \\- " << troff(app::kProgramSummary) << "\n"
        << ".SH SYNOPSIS\n.B " << troff(kName) << "\n[\\fIOPTIONS\\fR] [\\fICOMMAND\\fR]\n"
        << ".SH DESCRIPTION\nUnpacks the product from the program's own resources and puts it into "
           "the Applications folder, after checking that neither the product nor Microsoft Word is "
           "running and asking before it overwrites an installed copy. A wizard installs and "
           "removes the product's components and updates installed copies. Every step is written "
           "to the log.\n.SH COMMANDS\n";
    for (const auto& command : kCommands)
        out << ".TP\n.B " << troff(command.name) << "\n" << troff(command.help) << ".\n";
    out << ".SH OPTIONS\n";
    for (const OptionRow& option : kOptions) {
        out << ".TP\n.BR " << troff(option.name);
        if (!option.argument.empty())
            out << " \" \" \\fI" << troff(option.argument) << "\\fR";
        out << "\n" << troff(option.help) << ".\n";
    }
    out << ".SH EXIT STATUS\n";
    constexpr std::string_view kCodes[] = {
        "what was asked for is done",
        "the user cancelled or declined",
        "wrong usage, an unreadable answers file or an unknown component; nothing was started",
        "the answers file could not be followed",
        "something failed, or an accepted copy is not updated: standard error says what, and the "
        "log holds the tools' lines",
        "administrator rights were needed and refused",
        "the session ended at the question about running applications",
    };
    for (int code = 0; const std::string_view meaning : kCodes)
        out << ".TP\n.B " << code++ << "\n" << troff(meaning) << ".\n";
    out << ".SH UPDATING COPIES\nThe command\n.B update\nlooks for the applications that open the "
           "product's documents and offers each copy of the product that the update fits. "
           "Unattended it updates them all, unless an answers file presses\n.I backBtn\n(No) "
           "where a copy is offered, instead of\n.I nextBtn\n(Yes). What became of each copy is "
           "told by an event \"copy\", and what is said of it is read back from the disk.\n";
    out << ".SH FILES\n.TP\n.I ~/Library/Logs/Scrivel 21 Stub Install.log\nThe log. Not written "
           "where the folder is missing.\n.SH ENVIRONMENT\n.TP\n.B HOME\nWhere \"~\" leads without "
        << troff("--home")
        << ".\n.TP\n.B SCRIVEL_APPEARANCE\n\"dark\" or \"light\"; without it the window looks as "
           "the desktop does.\n.TP\n.B TMPDIR\nThe folder for temporary files; without it /tmp.\n";
}

void bashCompletion(std::ostream& out) {
    out << "_scrivel_installer() {\n    local word=${COMP_WORDS[COMP_CWORD]}\n"
           "    case ${COMP_WORDS[COMP_CWORD - 1]} in\n";
    for (const OptionRow& option : kOptions) {
        if (option.kind == OptionRow::Kind::folder)
            out << "    " << option.name << ") COMPREPLY=($(compgen -d -- \"$word\")); return ;;\n";
        else if (option.kind == OptionRow::Kind::file)
            out << "    " << option.name << ") COMPREPLY=($(compgen -f -- \"$word\")); return ;;\n";
        else if (!option.argument.empty())
            out << "    " << option.name << ") return ;;\n";
    }
    out << "    esac\n    COMPREPLY=($(compgen -W \"";
    for (const OptionRow& option : kOptions)
        out << option.name << ' ';
    for (const auto& command : kCommands)
        out << command.name << ' ';
    out << "\" -- \"$word\"))\n}\ncomplete -o filenames -F _scrivel_installer " << kName << "\n";
}

void zshCompletion(std::ostream& out) {
    out << "#compdef " << kName << "\n_arguments \\\n";
    for (const OptionRow& option : kOptions) {
        std::string row = isRepeatable(option) ? "*" : "";
        row += std::string(option.name) + "[" + std::string(option.help) + "]";
        if (!option.argument.empty()) {
            row += ":" + std::string(option.argument) + ":";
            if (option.kind == OptionRow::Kind::folder)
                row += "_files -/";
            else if (option.kind == OptionRow::Kind::file)
                row += "_files";
        }
        out << "    " << quoted(row) << " \\\n";
    }
    std::string commands = ":command:((";
    for (const auto& command : kCommands)
        commands += std::string(command.name) + "\\:\"" + std::string(command.help) + "\" ";
    out << "    " << quoted(commands + "))") << "\n";
}

void fishCompletion(std::ostream& out) {
    for (const auto& command : kCommands)
        out << "complete -c " << kName << " -f -n __fish_use_subcommand -a " << command.name
            << " -d " << quoted(command.help) << "\n";
    for (const OptionRow& option : kOptions)
        out << "complete -c " << kName << " -l " << option.name.substr(2)
            << (option.argument.empty() ? ""
                : isPath(option)        ? " -r"
                                        : " -x")
            << " -d " << quoted(option.help) << "\n";
}

struct Document {
    std::string path;
    void (*write)(std::ostream&);
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: makeManual FOLDER\n", stderr);
        return 2;
    }
    const Document documents[] = {
        {"man/man1/" + kName + ".1", manualPage},
        {"bash-completion/completions/" + kName, bashCompletion},
        {"zsh/site-functions/_" + kName, zshCompletion},
        {"fish/vendor_completions.d/" + kName + ".fish", fishCompletion},
    };
    for (const auto& [path, write] : documents) {
        const fs::path file = fs::path(argv[1]) / path;
        fs::create_directories(file.parent_path());
        std::ofstream out(file);
        write(out);
        if (!out.flush()) {
            std::cerr << "makeManual: " << file.string() << " can't be written\n";
            return 1;
        }
    }
    return 0;
}
