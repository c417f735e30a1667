// flex_rules PREFIX
//
// Writes the patterns of bench/c_tokens.h as a scanner for flex, with a function scan_PREFIX that goes
// through a buffer.
#include <iostream>
#include <string>

#include "bench/c_tokens.h"

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: flex_rules PREFIX\n";
        return 2;
    }
    const std::string prefix = arguments[1];
    std::cout << "%option 8bit noyywrap nounput noinput nodefault never-interactive prefix=\"" << prefix
              << "_\"\n"
              << "%{\n#include \"bench/c_scanners.h\"\n#include \"bench/c_tokens.h\"\n%}\n%%\n";
    std::size_t token = 0;
    for (const char* const pattern : lvx_bench::c_token_patterns) {
        std::cout << pattern << " { return " << ++token << "; }\n";
    }
    std::cout << ".|\\n { return " << ++token << "; }\n%%\n"
              << "std::uint64_t lvx_bench::scan_with_" << prefix << "(std::string& text) {\n"
              << "    TokenSum sum;\n"
              << "    YY_BUFFER_STATE buffer = yy_scan_buffer(text.data(), text.size());\n"
              << "    while (int token = yylex()) {\n"
              << "        sum.Add(static_cast<std::size_t>(token - 1), static_cast<std::size_t>(yyleng));\n"
              << "    }\n"
              << "    yy_delete_buffer(buffer);\n"
              << "    return sum.Sum();\n"
              << "}\n";
}
