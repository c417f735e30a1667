// A small language for a plotter, cut into tokens by a table of its own, and commands in the form of calls.
//
// usage: plotter            says what it made of the program and the commands below
#include <iostream>
#include <string>
#include <vector>

#include "lvx/text/function_parser.h"
#include "lvx/text/token_stream.h"

namespace {

char program[] = R"(# A house.
pen 2;
line 0 0 -> 10.5 -4 -> .5 +7;
label <Main street; corner> 12;
circle 5;
)";

const char* const commands[] = {"save", "move(10, 20)", "open(\"my file.dat\" 'a,b',)", "zoom 200", "(1)"};

enum Kind { integer = 1, floating = 2, punctuation = 3, word = 4, pen = 100, line, label, arrow };

void fill(LVXTokens& tokens) {
    tokens.add(integer, floating, punctuation, word, ';', '#', 0);
    tokens.add(pen, "pen");
    tokens.add(line, "line");
    tokens.add(label, "label");
    tokens.add(arrow, "->");
}

// Takes numbers and arrows; what comes behind them is left for the caller.
void read_points(LVXTokenStream& stream) {
    std::string text;
    for (int kind = stream.getToken(text); kind != 0; kind = stream.getToken(text)) {
        if (kind == arrow) {
            std::cout << " to";
        } else if (kind == integer || kind == floating) {
            std::cout << ' ' << text;
        } else {
            stream.ungetToken();
            return;
        }
    }
}

void read_label(LVXTokenStream& stream) {
    std::string text;
    if (stream.tags('<', '>').getTag(text)) {
        std::cout << " '" << text << '\'';
    }
}

void read_statement(LVXTokenStream& stream, int kind, const std::string& text) {
    switch (kind) {
        case '#':
            stream.skipTo('\n');
            std::cout << "a comment\n";
            return;
        case label:
            std::cout << "label";
            read_label(stream);
            break;
        case pen:
        case line:
            std::cout << text;
            break;
        default:
            std::cout << "what is '" << text << "'?";
            stream.skipTo(';');
            std::cout << '\n';
            return;
    }
    read_points(stream);
    std::cout << (stream.getToken() == ';' ? ".\n" : ", and no end\n");
}

void read_program() {
    LVXTokens tokens;
    fill(tokens);
    LVXTokenStream stream(program, static_cast<int>(sizeof program - 1));
    stream.useTokens(&tokens);
    std::string text;
    while (const int kind = stream.getToken(text)) {
        read_statement(stream, kind, text);
    }
}

void read_command(const std::string& text) {
    std::cout << text << ": ";
    try {
        const FunctionParser call(text);
        std::cout << call.FunctionName() << " with " << call.ArgCount();
        for (int i = 0; i < call.ArgCount(); ++i) {
            std::cout << " [" << call.Argument(static_cast<unsigned int>(i)) << ']';
        }
        std::cout << '\n';
    } catch (const FunctionParser::MissingFunction&) {
        std::cout << "no name\n";
    } catch (const FunctionParser::MissingOpenBracket&) {
        std::cout << "no bracket\n";
    }
}

}  // namespace

int main() {
    read_program();
    for (const char* const command : commands) {
        read_command(command);
    }
    return 0;
}
