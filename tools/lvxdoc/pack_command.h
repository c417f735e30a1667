// tools/lvxdoc/pack_command.h
#pragma once

#include "tools/lvxdoc/command_line.h"

namespace lvxdoc {

/// `lvxdoc pack`; its help is in the table.
extern const Command pack_command;

}  // namespace lvxdoc
