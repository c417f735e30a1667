// tools/lvxdoc/dump_command.h
#pragma once

#include "tools/lvxdoc/command_line.h"

namespace lvxdoc {

/// `lvxdoc dump`; its help is in the table.
extern const Command dump_command;

}  // namespace lvxdoc
