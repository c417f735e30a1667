#include "lvx/text/report.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <memory>

namespace {

constexpr const char* log_name = "LOGFILE.LOG";

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using LogFile = std::unique_ptr<std::FILE, CloseFile>;

// The flag is set whether the file opens or not: a host that could not write its first record must not throw
// away, with the second, a log that another process made meanwhile.
LogFile open_log() {
    static std::atomic<bool> has_logged = false;
    return LogFile(std::fopen(log_name, has_logged.exchange(true) ? "a" : "w"));
}

}  // namespace

void write_log(const char* format, ...) {
    const LogFile file = open_log();
    if (!file) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file.get(), format, arguments);
    va_end(arguments);
}
