#include "tools/lvxdoc/command_line.h"

#include <algorithm>

#include "tools/lvxdoc/errors.h"

namespace lvxdoc {
namespace {

class Parser {
public:
    Parser(const Command& command, const std::vector<std::string>& words)
        : m_command(command), m_words(words) {}
    Arguments Parse();

private:
    void TakeLong(const std::string& word);
    void TakeShort(const std::string& word);
    void Take(const Option* option, const std::string& shown, const std::string* attached);
    void CheckCount() const;

    const Command& m_command;
    const std::vector<std::string>& m_words;
    std::size_t m_next = 0;
    Arguments m_result;
};

const Option help_option{"help", 'h', nullptr, "print this and do nothing else"};

const Option* find_option(const Command& command, const std::string& name, char letter) {
    const auto matches = [&](const Option& o) { return letter != 0 ? o.letter == letter : name == o.name; };
    const auto found = std::find_if(command.options.begin(), command.options.end(), matches);
    return found == command.options.end() ? (matches(help_option) ? &help_option : nullptr) : &*found;
}

Arguments Parser::Parse() {
    bool options_ended = false;
    while (m_next < m_words.size()) {
        const std::string& word = m_words[m_next++];
        if (options_ended || word.size() < 2 || word[0] != '-') {
            m_result.words.push_back(word);
        } else if (word == "--") {
            options_ended = true;
        } else if (word[1] == '-') {
            TakeLong(word);
        } else {
            TakeShort(word);
        }
    }
    CheckCount();
    return m_result;
}

void Parser::TakeLong(const std::string& word) {
    const auto equals = word.find('=');
    const std::string shown = word.substr(0, equals);
    const std::string attached = equals == std::string::npos ? "" : word.substr(equals + 1);
    Take(find_option(m_command, shown.substr(2), 0), shown,
         equals == std::string::npos ? nullptr : &attached);
}

// One letter, with its argument right behind it or in the next word.
void Parser::TakeShort(const std::string& word) {
    const std::string attached = word.substr(2);
    Take(find_option(m_command, "", word[1]), word.substr(0, 2), attached.empty() ? nullptr : &attached);
}

void Parser::Take(const Option* option, const std::string& shown, const std::string* attached) {
    if (option == nullptr) {
        throw Usage("'" + std::string(m_command.name) + "' has no option " + shown);
    }
    if (option->argument == nullptr && attached != nullptr) {
        throw Usage("the option " + shown + " takes no argument");
    }
    if (option->argument == nullptr) {
        m_result.options[option->name] = "";
        return;
    }
    if (attached == nullptr && m_next == m_words.size()) {
        throw Usage("the option " + shown + " needs its " + option->argument);
    }
    m_result.options[option->name] = attached != nullptr ? *attached : m_words[m_next++];
}

void Parser::CheckCount() const {
    if (m_result.words.size() < m_command.fewest) {
        throw Usage("'" + std::string(m_command.name) + "' needs " + m_command.arguments);
    }
    if (m_result.words.size() > m_command.most) {
        throw Usage("'" + m_result.words[m_command.most] + "' is one too many for '" + m_command.name +
                    "', which takes " + m_command.arguments);
    }
}

std::string option_line(const Option& option) {
    constexpr std::size_t column = 22;
    std::string line =
        option.letter != 0 ? std::string("  -") + option.letter + ", --" : std::string("      --");
    line += option.name;
    line += option.argument != nullptr ? std::string(" ") + option.argument : "";
    line.resize(std::max(line.size() + 2, column), ' ');
    return line + option.help + '\n';
}

}  // namespace

std::string Arguments::Get(const std::string& option) const {
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second;
}

Arguments parse_arguments(const Command& command, const std::vector<std::string>& words) {
    if (std::any_of(words.begin(), std::find(words.begin(), words.end(), "--"),
                    [](const std::string& word) { return word == "-h" || word == "--help"; })) {
        Arguments help;
        help.options["help"] = "";
        return help;
    }
    return Parser(command, words).Parse();
}

std::string help_text(const Command& command) {
    std::string text = std::string("Usage: lvxdoc ") + command.name + " [OPTION...] " + command.arguments +
                       "\n\n" + command.summary + ".\n\n" + command.details + "\nOptions:\n";
    for (const Option& option : command.options) {
        text += option_line(option);
    }
    return text + option_line(help_option);
}

}  // namespace lvxdoc
