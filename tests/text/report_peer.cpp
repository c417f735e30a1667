// The program that ends in the tests of fatal_error.
//
// usage: lvx_report_peer [LENGTH]
//
// Stops with "bad 7", or with a text of that many characters.
#include <cstdlib>
#include <string>

#include "lvx/text/report.h"

int main(int argc, char** argv) {
    if (argc > 1) {
        fatal_error("%s", std::string(std::strtoul(argv[1], nullptr, 10), 'x').c_str());
    }
    fatal_error("bad %d", 7);
}
