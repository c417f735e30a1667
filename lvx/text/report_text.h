// lvx/text/report_text.h
//
// The text of a report: a printf format carried out into room of its own, and cut where that ends. Asks for
// no memory, because what is reported may be that there is none. Private to the library.
#pragma once

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>

namespace lvx::text {

class ReportText {
public:
    /// More than a screen shows in a box, and no burden for a stack.
    static constexpr std::size_t longest = 4095;

    ReportText(const char* format, std::va_list arguments) {
        std::vsnprintf(m_text.data(), m_text.size(), format, arguments);
    }

    const char* c_str() const { return m_text.data(); }

private:
    // Terminated whatever becomes of a format that cannot be carried out.
    std::array<char, longest + 1> m_text{};
};

}  // namespace lvx::text
