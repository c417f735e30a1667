#include "tools/lvxdoc/program.h"

#include <algorithm>
#include <new>

#include "tools/lvxdoc/check_command.h"
#include "tools/lvxdoc/dump_command.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/extract_command.h"
#include "tools/lvxdoc/list_command.h"
#include "tools/lvxdoc/pack_command.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

const Command* const commands[] = {&pack_command, &list_command, &dump_command, &extract_command,
                                   &check_command};

std::string overview() {
    constexpr std::size_t column = 30;
    std::string text =
        "Usage: lvxdoc COMMAND [OPTION...] ARGUMENT...\n\nLooks into documents, makes and checks them.\n\n";
    for (const Command* command : commands) {
        std::string line = std::string("  ") + command->name + ' ' + command->arguments;
        line.resize(std::max(line.size() + 2, column), ' ');
        text += line + command->summary + '\n';
    }
    return text +
           "\n'lvxdoc COMMAND --help' tells more about each, 'lvxdoc --version' the version.\n"
           "Exit status: 0 good; 1 damage was found, or something failed; 2 the command line or a schema is "
           "wrong;\n"
           "141 the reader of the output went away.\n";
}

int run_command(const std::vector<std::string>& words, Console& console) {
    const std::string& name = words.front();
    const auto found = std::find_if(std::begin(commands), std::end(commands),
                                    [&name](const Command* command) { return name == command->name; });
    if (found == std::end(commands)) {
        throw Usage("there is no command '" + name + "'");
    }
    const Arguments arguments = parse_arguments(**found, {words.begin() + 1, words.end()});
    if (arguments.Has("help")) {
        console.out.Write(help_text(**found));
        return good;
    }
    return (*found)->run(arguments, console);
}

int choose(std::vector<std::string> words, Console& console) {
    if (words.empty()) {
        throw Usage("a command is missing");
    }
    if (words.front() == "help" && words.size() > 1) {
        words = {words[1], "--help"};
    }
    if (words.front() == "--help" || words.front() == "-h" || words.front() == "help") {
        console.out.Write(overview());
        return good;
    }
    if (words.front() == "--version") {
        console.out.Line("lvxdoc " LVXDOC_VERSION);
        return good;
    }
    return run_command(words, console);
}

int complain(const std::string& why, int status, Console& console) {
    try {
        console.err.Line("lvxdoc: " + why);
    } catch (const lvx::runtime_error&) {
        // Nobody is left to be told.
    }
    return status;
}

}  // namespace

int run_program(const std::vector<std::string>& words, Console& console) {
    try {
        return choose(words, console);
    } catch (const OutputGone&) {
        return output_gone;
    } catch (const Usage& usage) {
        return complain(std::string(usage.what()) + "\nTry 'lvxdoc --help'.", wrong_usage, console);
    } catch (const Damage& damage) {
        return complain("damaged: " + tell_damage(damage), failed, console);
    } catch (const std::bad_alloc&) {
        return complain("there is not enough memory", failed, console);
    } catch (const std::exception& error) {
        return complain(error.what(), failed, console);
    }
}

}  // namespace lvxdoc
