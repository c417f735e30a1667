// lvx/platform/posix/compound_reader.h
//
// A compound file open for reading.
#pragma once

#include "lvx/platform/posix/storage_file.h"

namespace lvx::platform {

/// Makes a storage on `file`, with one reference for the caller, that owns it from then on. On failure, as
/// CompoundLayout::Load tells it, the file is closed and `storage` left as it is.
HRESULT read_compound(StorageFile file, IStorage*& storage);

}  // namespace lvx::platform
