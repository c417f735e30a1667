// tools/lvxdoc/command_line.h
//
// The words of a command line held against a table of what a command takes, and the help made from the same
// table.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/lvxdoc/console.h"

namespace lvxdoc {

struct Option {
    /// Without its dashes.
    const char* name;
    /// One letter for short, or 0.
    char letter;
    /// What its argument is called; null for a switch.
    const char* argument;
    const char* help;
};

class Arguments {
public:
    std::vector<std::string> words;
    std::map<std::string, std::string> options;

    bool Has(const std::string& option) const { return options.count(option) != 0; }
    /// The argument of an option, or "".
    std::string Get(const std::string& option) const;
};

struct Command {
    const char* name;
    /// As the usage line shows them: "FILE [STREAM]".
    const char* arguments;
    std::size_t fewest;
    std::size_t most;
    const char* summary;
    const char* details;
    std::vector<Option> options;
    int (*run)(const Arguments& arguments, Console& console);
};

/// Sorts `words`, which stand behind the command's name. `--` ends the options, `-h` and `--help` make
/// Has("help") true whatever else is wrong or missing. Throws Usage for an unknown option, one without its
/// argument or with one that it does not take, and for too few or too many words.
Arguments parse_arguments(const Command& command, const std::vector<std::string>& words);

/// What `lvxdoc COMMAND --help` prints.
std::string help_text(const Command& command);

}  // namespace lvxdoc
