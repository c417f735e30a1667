// lvx/text/function_parser.h
//
// A text of the form of a function call, such as a command of a macro or of another program, taken apart into
// its name and its arguments: move(10, 20) or open("my file.dat"). Parses when it is made and is a value
// afterwards, which several threads may read.
// Does not: give names or arguments a meaning, resolve escapes, nest calls.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lvx/platform/export.h"

class LVX_EXPORT FunctionParser {
public:
    /// What the constructor throws, by value. These are empty classes on no base, with no text: the class
    /// alone says what is wrong.
    class LVX_EXPORT Error {};
    /// There is no name: the text is blank, or begins with a "(".
    class LVX_EXPORT MissingFunction : public Error {};
    /// Something else than a "(" follows the name.
    class LVX_EXPORT MissingOpenBracket : public Error {};

    /// Takes `text` apart. A name alone is a call without arguments; with brackets there is at least one,
    /// which may be empty: "save()" has one. White space around names, arguments and brackets does not
    /// count. Commas separate arguments, and so does white space; a ")" ends them, and what stands behind it
    /// is ignored. It may be missing.
    ///
    /// An argument that begins with one of the quotes " ' ` goes to the quote that closes it by the rule of
    /// lvx::find_matching: a backslash protects a quote, and a quote of another kind inside has to be closed
    /// too. What stands between is the argument as it is, with its blanks, commas, brackets and backslashes.
    /// Without a closing quote it is all the rest of the text.
    ///
    /// A NUL is a character like others, except that a quote that is not closed ends at it.
    ///
    /// Throws MissingFunction and MissingOpenBracket. A null `const char*` in place of the text is
    /// std::string's own error.
    FunctionParser(const std::string& text);
    FunctionParser(const FunctionParser& other);
    /// If memory runs out, *this stays as it was.
    FunctionParser& operator=(const FunctionParser& other);
    ~FunctionParser();

    /// Never empty.
    const std::string& FunctionName() const;
    /// The argument of number `index`, from 0; empty if there are not so many.
    std::string Argument(unsigned int index) const;
    int ArgCount() const;

private:
    std::string m_name;
    std::unique_ptr<std::vector<std::string>> m_arguments;
};
