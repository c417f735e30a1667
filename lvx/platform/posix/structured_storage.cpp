#include "lvx/platform/structured_storage.h"

#include <new>
#include <utility>

#include "lvx/platform/posix/compound_reader.h"
#include "lvx/platform/posix/compound_writer.h"
#include "lvx/platform/posix/storage_file.h"

namespace {

using lvx::platform::StorageFile;

constexpr DWORD reading = STGM_READ | STGM_SHARE_DENY_WRITE;

bool is_replacing(DWORD mode) {
    constexpr DWORD needed = STGM_SHARE_EXCLUSIVE | STGM_CREATE;
    return mode == (needed | STGM_WRITE) || mode == (needed | STGM_READWRITE);
}

}  // namespace

HRESULT StgOpenStorage(const OLECHAR* name, IStorage*, DWORD mode, SNB, DWORD, IStorage** storage) try {
    if (storage == nullptr) {
        return STG_E_INVALIDPOINTER;
    }
    *storage = nullptr;
    if (mode != reading) {
        return STG_E_INVALIDFLAG;
    }
    if (name == nullptr) {
        return STG_E_INVALIDNAME;
    }
    StorageFile file;
    const HRESULT result = lvx::platform::open_to_read(name, file);
    return SUCCEEDED(result) ? lvx::platform::read_compound(std::move(file), *storage) : result;
} catch (const std::bad_alloc&) {
    return STG_E_INSUFFICIENTMEMORY;
}

HRESULT StgCreateDocfile(const OLECHAR* name, DWORD mode, DWORD, IStorage** storage) try {
    if (storage == nullptr) {
        return STG_E_INVALIDPOINTER;
    }
    *storage = nullptr;
    if (!is_replacing(mode)) {
        return STG_E_INVALIDFLAG;
    }
    if (name == nullptr) {
        return STG_E_INVALIDNAME;
    }
    StorageFile file;
    const HRESULT result = lvx::platform::open_to_replace(name, file);
    if (SUCCEEDED(result)) {
        *storage = lvx::platform::write_compound(std::move(file));
    }
    return result;
} catch (const std::bad_alloc&) {
    return STG_E_INSUFFICIENTMEMORY;
}
