#include "sketch/frame/commands.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>

#include "lvx/text/function_parser.h"
#include "lvx/text/strings.h"
#include "sketch/model/colour_text.h"
#include "sketch/model/coordinates.h"

namespace sketch {
namespace {

// The arguments of a call. Brackets with nothing between them are no argument.
class Arguments {
public:
    explicit Arguments(const FunctionParser& call) : m_call(call) {}

    int Count() const {
        const int count = m_call.ArgCount();
        return count == 1 && m_call.Argument(0).empty() ? 0 : count;
    }
    std::string Text(unsigned index) const { return m_call.Argument(index); }
    std::optional<int> Number(unsigned index) const {
        const std::string text = Text(index);
        const long number = std::strtol(text.c_str(), nullptr, 10);
        const bool isGood = lvx::is_int(text) && number >= -farthest && number <= farthest;
        return isGood ? std::optional(static_cast<int>(number)) : std::nullopt;
    }
    std::optional<owl::TPoint> Point(unsigned index) const {
        const std::optional<int> x = Number(index);
        const std::optional<int> y = Number(index + 1);
        return x && y ? std::optional(owl::TPoint(*x, *y)) : std::nullopt;
    }
    /// Left, top, width, height.
    std::optional<owl::TRect> Rect() const {
        const std::optional<owl::TPoint> corner = Point(0);
        const std::optional<owl::TPoint> size = Point(2);
        const bool isGood = corner && size && size->x > 0 && size->y > 0;
        return isGood ? std::optional(owl::TRect(*corner, owl::TSize(size->x, size->y))) : std::nullopt;
    }

private:
    const FunctionParser& m_call;
};

template <class Value, class Act>
bool With(const std::optional<Value>& value, const Act& act) {
    return value && act(*value);
}

bool Select(Commanded& commanded, const Arguments& arguments) {
    return With(arguments.Number(0), [&](int number) { return commanded.SelectNumber(number); });
}

bool DrawRectangle(Commanded& commanded, const Arguments& arguments) {
    return With(arguments.Rect(), [&](const owl::TRect& rect) { return commanded.AddRectangle(rect); });
}

bool DrawEllipse(Commanded& commanded, const Arguments& arguments) {
    return With(arguments.Rect(), [&](const owl::TRect& rect) { return commanded.AddEllipse(rect); });
}

bool WriteWords(Commanded& commanded, const Arguments& arguments) {
    return With(arguments.Point(1),
                [&](const owl::TPoint& place) { return commanded.AddWords(arguments.Text(0), place); });
}

bool SetLine(Commanded& commanded, const Arguments& arguments) {
    return With(ParseColour(arguments.Text(0)),
                [&](const owl::TColor& colour) { return commanded.SetLineColour(colour); });
}

bool SetFill(Commanded& commanded, const Arguments& arguments) {
    if (arguments.Count() == 0) {
        return commanded.ClearFill();
    }
    return With(ParseColour(arguments.Text(0)),
                [&](const owl::TColor& colour) { return commanded.SetFillColour(colour); });
}

struct Command {
    const char* name;
    int least;
    int most;
    bool (*run)(Commanded&, const Arguments&);
};

constexpr Command commands[] = {
    {"new", 0, 0, [](Commanded& who, const Arguments&) { return who.MakeNew(); }},
    {"open", 1, 1, [](Commanded& who, const Arguments& what) { return who.OpenFile(what.Text(0)); }},
    {"save", 0, 1, [](Commanded& who, const Arguments& what) { return who.SaveFile(what.Text(0)); }},
    {"print", 0, 0, [](Commanded& who, const Arguments&) { return who.PrintNow(); }},
    {"select", 1, 1, &Select},
    {"delete", 0, 0, [](Commanded& who, const Arguments&) { return who.DeleteSelected(); }},
    {"rectangle", 4, 4, &DrawRectangle},
    {"ellipse", 4, 4, &DrawEllipse},
    {"text", 3, 3, &WriteWords},
    {"line", 1, 1, &SetLine},
    {"fill", 0, 1, &SetFill},
};

std::string WithoutBlanksAround(const std::string& text) {
    constexpr const char* blanks = " \t\r\n";
    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

bool RunCommand(const std::string& text, Commanded& commanded) {
    try {
        const FunctionParser call(text);
        const Arguments arguments(call);
        const auto* const command =
            std::find_if(std::begin(commands), std::end(commands),
                         [&](const Command& known) { return call.FunctionName() == known.name; });
        return command != std::end(commands) && arguments.Count() >= command->least &&
               arguments.Count() <= command->most && command->run(commanded, arguments);
    } catch (const FunctionParser::Error&) {
        return false;
    }
}

}  // namespace

bool RunCommands(const std::string& text, Commanded& commanded) {
    std::string rest = WithoutBlanksAround(text);
    if (!rest.starts_with('[')) {
        return RunCommand(rest, commanded);
    }
    while (rest.starts_with('[')) {
        const std::size_t end = lvx::find_matching(rest, '[', 1);
        if (end >= rest.size() || rest[end] != ']' || !RunCommand(rest.substr(1, end - 1), commanded)) {
            return false;
        }
        rest = WithoutBlanksAround(rest.substr(end + 1));
    }
    return rest.empty();
}

}  // namespace sketch
