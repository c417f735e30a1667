// lvx/platform/posix/compound_writer.h
//
// A compound file open for writing: its streams in memory until it is released, then the file in one go.
#pragma once

#include "lvx/platform/posix/storage_file.h"

namespace lvx::platform {

/// Makes an empty storage on `file`, with one reference for the caller, that owns it from then on.
IStorage* write_compound(StorageFile file);

}  // namespace lvx::platform
