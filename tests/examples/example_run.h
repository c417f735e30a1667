// An example program, run as a reader of the documentation runs it.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "support/bytes.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace lvx_test {

class ExampleRun : public ::testing::Test {
protected:
    /// Runs a program out of the folder of programs; what it printed is in `m_output`. True if it ended with
    /// 0.
    bool Run(const std::string& command) {
        const std::string output = m_folder.File("output");
        const std::string program = LVX_TEST_PROGRAM_PREFIX + command + " > " + output + " 2>&1";
        const bool good = std::system(program.c_str()) == 0;
        m_output = read_file(output);
        std::erase(m_output, '\r');
        return good;
    }

    TempFolder m_folder;
    std::string m_output;
};

/// What stands in a page of docs/ as the output of a program: the block that begins with "```text PROGRAM".
inline std::string output_in_page(const std::string& page, const std::string& program) {
    const std::string text = read_file(own_data() + "/../../docs/" + page);
    const std::string mark = "```text " + program + "\n";
    const std::size_t start = text.find(mark);
    if (start == std::string::npos) {
        return "no such block";
    }
    const std::size_t first = start + mark.size();
    return text.substr(first, text.find("```", first) - first);
}

}  // namespace lvx_test
