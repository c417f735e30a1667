// tests/text/function_oracle.h
//
// A second coding of how the text of a call is taken apart, by an index and step by step.
#pragma once

#include <cctype>
#include <cstddef>
#include <string>
#include <vector>

#include "lvx/text/function_parser.h"
#include "lvx/text/strings.h"

namespace lvx_test {

/// What came of a text, in one comparable form: "name|argument|argument", or "!" and the exception.
inline std::string parsed(const std::string& text) {
    try {
        const FunctionParser call(text);
        std::string result = call.FunctionName();
        for (int i = 0; i < call.ArgCount(); ++i) {
            result += '|' + call.Argument(static_cast<unsigned int>(i));
        }
        return result;
    } catch (const FunctionParser::MissingFunction&) {
        return "!MissingFunction";
    } catch (const FunctionParser::MissingOpenBracket&) {
        return "!MissingOpenBracket";
    }
}

/// The same by the second coding.
inline std::string oracle_parsed(const std::string& text) {
    std::size_t i = 0;
    const auto ended = [&] { return i >= text.size(); };
    const auto at = [&] { return ended() ? '\0' : text[i]; };
    const auto white = [&] { return !ended() && std::isspace(static_cast<unsigned char>(text[i])) != 0; };
    const auto skip_white = [&] {
        while (white()) {
            ++i;
        }
    };
    skip_white();
    std::string name;
    while (!ended() && !white() && at() != '(') {
        name += text[i++];
    }
    if (name.empty()) {
        return "!MissingFunction";
    }
    skip_white();
    if (ended()) {
        return name;
    }
    if (text[i++] != '(') {
        return "!MissingOpenBracket";
    }
    std::vector<std::string> arguments;
    for (bool more = true; more;) {
        skip_white();
        const char c = at();
        std::string argument;
        if (c == '"' || c == '\'' || c == '`') {
            const std::size_t close = lvx::find_matching(text, c, static_cast<unsigned int>(i + 1));
            argument = text.substr(i + 1, close - (i + 1));
            i = close + 1;
        } else {
            while (!ended() && !white() && at() != ',' && at() != ')') {
                argument += text[i++];
            }
        }
        arguments.push_back(argument);
        skip_white();
        more = !ended() && at() != ')';
        if (more && at() == ',') {
            ++i;
        }
        more = more && !ended();
    }
    std::string result = name;
    for (const std::string& argument : arguments) {
        result += '|' + argument;
    }
    return result;
}

}  // namespace lvx_test
