#include <cstdarg>
#include <cstdlib>

#include "lvx/text/report.h"
#include "lvx/text/report_text.h"

void fatal_error(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const lvx::text::ReportText text(format, arguments);
    va_end(arguments);
    report_error(nullptr, "FATAL ERROR!\n%s", text.c_str());
    std::abort();
}
