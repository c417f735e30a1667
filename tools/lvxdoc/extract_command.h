// tools/lvxdoc/extract_command.h
#pragma once

#include "tools/lvxdoc/command_line.h"

namespace lvxdoc {

/// `lvxdoc extract`; its help is in the table.
extern const Command extract_command;

}  // namespace lvxdoc
