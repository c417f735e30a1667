// The tokens of a drawing command, found by patterns.
//
// usage: pattern_tokens TEXT     prints a line for each token; exits with 1 at a character that begins none
#include <iostream>
#include <string>

#include "lvx/text/lexer.h"

namespace {

enum Token : unsigned short { Blank, Keyword, Name, Number, Text, Sign };

constexpr const char* token_names[] = {"blank", "keyword", "name", "number", "text", "sign"};

void add_patterns(Lexer& lexer) {
    constexpr int usual = 0;
    constexpr int above_names = 1;
    lexer.addPattern(R"(\s+)", Blank, usual);
    lexer.addPattern(R"((?i:move|line|label)\b)", Keyword, above_names);
    lexer.addPattern(R"([A-Za-z_]\w*)", Name, usual);
    lexer.addPattern(R"([0-9]+(\.[0-9]*)?|\.[0-9]+)", Number, usual);
    lexer.addPattern(R"("([^"\\]|\\.)*")", Text, usual);
    lexer.addPattern("[-+*/(),=]", Sign, usual);
}

bool print_tokens(const std::string& text) {
    Lexer lexer;
    add_patterns(lexer);
    unsigned int length = 0;
    for (unsigned int place = 0; place < text.size(); place += length) {
        const long token = lexer.getToken(text, place, length);
        if (length == 0) {  // nothing matches, or only the empty text
            std::cerr << "pattern_tokens: no token at character " << place << '\n';
            return false;
        }
        if (token != Blank) {
            std::cout << token_names[token] << '\t' << text.substr(place, length) << '\n';
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: pattern_tokens TEXT\n";
        return 2;
    }
    return print_tokens(argv[1]) ? 0 : 1;
}
