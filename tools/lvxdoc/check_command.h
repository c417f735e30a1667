// tools/lvxdoc/check_command.h
#pragma once

#include "tools/lvxdoc/command_line.h"

namespace lvxdoc {

/// `lvxdoc check`; its help is in the table.
extern const Command check_command;

}  // namespace lvxdoc
