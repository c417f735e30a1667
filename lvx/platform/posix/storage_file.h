// lvx/platform/posix/storage_file.h
//
// The disk file behind a compound file: opened, locked against other openers, closed with it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using StorageFile = std::unique_ptr<std::FILE, FileCloser>;

/// Opens an existing file for reading; others may read it too, as long as they keep writers away.
/// On failure `file` is null and the result tells why.
HRESULT open_to_read(const wchar_t* name, StorageFile& file);

/// Makes an empty file, in place of what is there, that nobody else has open.
HRESULT open_to_replace(const wchar_t* name, StorageFile& file);

/// The length of the file; 0 if it cannot be asked.
std::uint64_t file_length(std::FILE* file);

}  // namespace lvx::platform
