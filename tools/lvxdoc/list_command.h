// tools/lvxdoc/list_command.h
#pragma once

#include "tools/lvxdoc/command_line.h"

namespace lvxdoc {

/// `lvxdoc list`; its help is in the table.
extern const Command list_command;

}  // namespace lvxdoc
