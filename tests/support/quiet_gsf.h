// libgsf tells on standard error what it finds damaged, line after line. For programs that damage documents
// by the thousand.
#pragma once

#include <glib.h>

namespace lvx_test {

inline void keep_gsf_quiet() {
    const auto ignore = [](const char*, GLogLevelFlags, const char*, void*) {};
    for (const char* const domain : {static_cast<const char*>(nullptr), "libgsf", "libgsf:msole"}) {
        g_log_set_handler(domain, G_LOG_LEVEL_MASK, ignore, nullptr);
    }
}

}  // namespace lvx_test
