// tools/lvxdoc/console.h
//
// What a command talks to.
#pragma once

#include "tools/lvxdoc/output.h"

namespace lvxdoc {

struct Console {
    /// Results.
    Output& out;
    /// Messages, and the progress bar.
    Output& err;
    bool out_is_terminal = false;
    bool err_is_terminal = false;
};

}  // namespace lvxdoc
