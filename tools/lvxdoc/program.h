// tools/lvxdoc/program.h
//
// The program behind main: chooses the command, and turns what it throws into a message and an exit status.
#pragma once

#include <string>
#include <vector>

#include "tools/lvxdoc/console.h"

namespace lvxdoc {

enum ExitStatus : int {
    good = 0,
    /// Damage was found, or something could not be done.
    failed = 1,
    wrong_usage = 2,
    /// Nobody reads the output any longer: what a shell shows for a program that a broken pipe ended.
    output_gone = 141,
};

/// `words` are those behind the program's name. Returns the exit status; throws nothing.
int run_program(const std::vector<std::string>& words, Console& console);

}  // namespace lvxdoc
