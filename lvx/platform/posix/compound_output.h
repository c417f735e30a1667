// lvx/platform/posix/compound_output.h
//
// Streams put onto disk as a compound file.
#pragma once

#include <span>
#include <string>

#include "lvx/platform/posix/storage_file.h"
#include "lvx/platform/posix/stream_bytes.h"

namespace lvx::platform {

struct OutputStream {
    std::wstring name;
    const StreamBytes* bytes;
};

/// Writes `streams`, in no particular order and with names that differ, to the empty `file` and closes it.
/// False unless every byte went to the file system, as with a full disk; what the file holds then is no
/// compound file.
bool write_compound_file(StorageFile file, std::span<const OutputStream> streams);

}  // namespace lvx::platform
