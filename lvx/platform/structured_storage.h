// lvx/platform/structured_storage.h
//
// Compound files: one file on disk that holds named streams. On Windows these are the system's own calls.
// Elsewhere the same names stand here, for as much as this library uses, and the files are the same.
//
// Elsewhere: a storage is written in whole when its last reference goes, and until then lies in memory; a
// storage is open either for reading or for writing. One thread at a time per storage and its streams.
// Does not, elsewhere: transactions, sub-storages beyond their names, other modes than those named below.
#pragma once

#include <string>

#ifdef _WIN32

#include <windows.h>
// After the basic types.
#include <objbase.h>
#include <objidl.h>

#else

#include <cstdint>

using HRESULT = std::int32_t;
using DWORD = std::uint32_t;
using ULONG = std::uint32_t;
using OLECHAR = wchar_t;
using LPOLESTR = OLECHAR*;
using SNB = LPOLESTR*;

struct LARGE_INTEGER {
    std::int64_t QuadPart;
};
struct ULARGE_INTEGER {
    std::uint64_t QuadPart;
};

constexpr bool SUCCEEDED(HRESULT result) {
    return result >= 0;
}
constexpr bool FAILED(HRESULT result) {
    return result < 0;
}

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;

constexpr HRESULT storage_error(std::uint32_t number) {
    return static_cast<HRESULT>(0x80030000U | number);
}
constexpr HRESULT STG_E_INVALIDFUNCTION = storage_error(0x01);
constexpr HRESULT STG_E_FILENOTFOUND = storage_error(0x02);
constexpr HRESULT STG_E_PATHNOTFOUND = storage_error(0x03);
constexpr HRESULT STG_E_TOOMANYOPENFILES = storage_error(0x04);
constexpr HRESULT STG_E_ACCESSDENIED = storage_error(0x05);
constexpr HRESULT STG_E_INSUFFICIENTMEMORY = storage_error(0x08);
constexpr HRESULT STG_E_INVALIDPOINTER = storage_error(0x09);
constexpr HRESULT STG_E_DISKISWRITEPROTECTED = storage_error(0x13);
constexpr HRESULT STG_E_READFAULT = storage_error(0x1E);
constexpr HRESULT STG_E_SHAREVIOLATION = storage_error(0x20);
constexpr HRESULT STG_E_FILEALREADYEXISTS = storage_error(0x50);
constexpr HRESULT STG_E_MEDIUMFULL = storage_error(0x70);
constexpr HRESULT STG_E_INVALIDNAME = storage_error(0xFC);
constexpr HRESULT STG_E_UNKNOWN = storage_error(0xFD);
constexpr HRESULT STG_E_INVALIDFLAG = storage_error(0xFF);
constexpr HRESULT STG_E_REVERTED = storage_error(0x102);
constexpr HRESULT STG_E_DOCFILECORRUPT = storage_error(0x109);

constexpr DWORD STGM_READ = 0x0;
constexpr DWORD STGM_WRITE = 0x1;
constexpr DWORD STGM_READWRITE = 0x2;
constexpr DWORD STGM_SHARE_EXCLUSIVE = 0x10;
constexpr DWORD STGM_SHARE_DENY_WRITE = 0x20;
constexpr DWORD STGM_CREATE = 0x1000;

enum STREAM_SEEK : DWORD { STREAM_SEEK_SET = 0, STREAM_SEEK_CUR = 1, STREAM_SEEK_END = 2 };
enum STATFLAG : DWORD { STATFLAG_DEFAULT = 0, STATFLAG_NONAME = 1 };
enum STGTY : DWORD { STGTY_STORAGE = 1, STGTY_STREAM = 2 };

/// What an element of a storage is. `pwcsName` belongs to the caller, who frees it with CoTaskMemFree.
struct STATSTG {
    LPOLESTR pwcsName;
    DWORD type;
    ULARGE_INTEGER cbSize;
};

/// The elements of a storage, one after the other.
struct IEnumSTATSTG {
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;
    /// S_FALSE if fewer than `count` were left; `fetched` may be null.
    virtual HRESULT Next(ULONG count, STATSTG* elements, ULONG* fetched) = 0;

protected:
    ~IEnumSTATSTG() = default;
};

/// A stream of bytes with a position. Once its storage is gone every operation gives STG_E_REVERTED.
struct IStream {
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;
    /// Success with fewer than `size` bytes at the end; `count` may be null.
    virtual HRESULT Read(void* data, ULONG size, ULONG* count) = 0;
    /// Writing behind the end fills the gap with zeros.
    virtual HRESULT Write(const void* data, ULONG size, ULONG* count) = 0;
    /// STG_E_INVALIDFUNCTION before the beginning, the position staying as it was; behind the end is allowed.
    virtual HRESULT Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) = 0;
    virtual HRESULT Stat(STATSTG* status, DWORD flags) = 0;

protected:
    ~IStream() = default;
};

/// Named streams. Names have 1 to 31 UTF-16 units, none of them / \ : ! and are the same in either case.
struct IStorage {
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;
    /// STG_E_ACCESSDENIED while the same stream is open.
    virtual HRESULT OpenStream(const OLECHAR* name, void* reserved1, DWORD mode, DWORD reserved2,
                               IStream** stream) = 0;
    /// A stream of that name is replaced, and whoever has it open gets STG_E_REVERTED from then on.
    virtual HRESULT CreateStream(const OLECHAR* name, DWORD mode, DWORD reserved1, DWORD reserved2,
                                 IStream** stream) = 0;
    virtual HRESULT EnumElements(DWORD reserved1, void* reserved2, DWORD reserved3,
                                 IEnumSTATSTG** elements) = 0;

protected:
    ~IStorage() = default;
};

/// Opens an existing compound file with STGM_READ and STGM_SHARE_DENY_WRITE.
HRESULT StgOpenStorage(const OLECHAR* name, IStorage* priority, DWORD mode, SNB exclude, DWORD reserved,
                       IStorage** storage);

/// Makes an empty compound file in place of what is there, with STGM_WRITE or STGM_READWRITE,
/// STGM_SHARE_EXCLUSIVE and STGM_CREATE. The old content is gone at once.
HRESULT StgCreateDocfile(const OLECHAR* name, DWORD mode, DWORD reserved, IStorage** storage);

void CoTaskMemFree(void* memory);

#endif

namespace lvx::platform {

/// Drops a reference, the last one, to a storage open for writing, and tells whether the file is complete.
/// Windows has written it by then and tells nothing: always true there. Null is complete.
bool complete_storage(IStorage* storage);

/// `widened`, which is `name` widened byte by byte, made fit for a file name: bytes for which the locale has
/// no wide character are put into it in such a way that the calls above find them again. Off Windows a file
/// name is bytes whatever the locale, and one in UTF-8 has to open in the classic locale too. On Windows
/// `widened` comes back as it is.
std::wstring file_name_of(std::wstring widened, const std::string& name);

}  // namespace lvx::platform
