#include "lvx/text/function_parser.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "lvx/text/character_class.h"
#include "lvx/text/strings.h"

namespace {

using lvx::text::is_of;
using lvx::text::is_space;

// A walk over the text of a call.
class Reader {
public:
    explicit Reader(const std::string& text) : m_text(text) {}

    bool AtEnd() const { return m_next >= m_text.size(); }

    void SkipSpace() {
        while (!AtEnd() && is_of(m_text[m_next], is_space)) {
            ++m_next;
        }
    }

    /// Whether the next character was `character`, which is then taken.
    bool Take(char character) {
        if (AtEnd() || m_text[m_next] != character) {
            return false;
        }
        ++m_next;
        return true;
    }

    /// What stands before white space, one of `ends`, or the end.
    std::string TakeUpTo(std::string_view ends) {
        const std::size_t start = m_next;
        while (!AtEnd() && !is_of(m_text[m_next], is_space) &&
               ends.find(m_text[m_next]) == std::string_view::npos) {
            ++m_next;
        }
        return m_text.substr(start, m_next - start);
    }

    std::string TakeArgument() {
        const bool quoted =
            !AtEnd() && std::string_view("\"'`").find(m_text[m_next]) != std::string_view::npos;
        return quoted ? TakeQuoted() : TakeUpTo(",)");
    }

private:
    std::string TakeQuoted() {
        const std::size_t start = m_next + 1;
        // Positions beyond 32 bits are not searched. The walk goes forward also there.
        const std::size_t end = std::max<std::size_t>(
            start, lvx::find_matching(m_text, m_text[m_next], static_cast<unsigned int>(start)));
        m_next = end + 1;
        return m_text.substr(start, end - start);
    }

    const std::string& m_text;
    std::size_t m_next = 0;
};

// From behind the "(". There is always one argument.
void read_arguments(Reader& reader, std::vector<std::string>& arguments) {
    do {
        reader.SkipSpace();
        arguments.push_back(reader.TakeArgument());
        reader.SkipSpace();
        if (reader.Take(')')) {
            return;
        }
        reader.Take(',');
    } while (!reader.AtEnd());
}

}  // namespace

FunctionParser::FunctionParser(const std::string& text) {
    Reader reader(text);
    reader.SkipSpace();
    m_name = reader.TakeUpTo("(");
    if (m_name.empty()) {
        throw MissingFunction();
    }
    m_arguments = std::make_unique<std::vector<std::string>>();
    reader.SkipSpace();
    if (reader.AtEnd()) {
        return;
    }
    if (!reader.Take('(')) {
        throw MissingOpenBracket();
    }
    read_arguments(reader, *m_arguments);
}

FunctionParser::FunctionParser(const FunctionParser& other)
    : m_name(other.m_name), m_arguments(std::make_unique<std::vector<std::string>>(*other.m_arguments)) {}

FunctionParser& FunctionParser::operator=(const FunctionParser& other) {
    FunctionParser copy(other);
    m_name.swap(copy.m_name);
    m_arguments.swap(copy.m_arguments);
    return *this;
}

FunctionParser::~FunctionParser() = default;

const std::string& FunctionParser::FunctionName() const {
    return m_name;
}

std::string FunctionParser::Argument(unsigned int index) const {
    return index < m_arguments->size() ? (*m_arguments)[index] : std::string();
}

int FunctionParser::ArgCount() const {
    return static_cast<int>(m_arguments->size());
}
