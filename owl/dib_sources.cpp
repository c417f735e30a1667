// Where pictures come from and go to: resources, files, global memory, the clipboard.
#include <cstring>
#include <memory>
#include <vector>

#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/last_error.h"
#include "owl/packed_dib.h"

namespace owl {
namespace {

DibParts ReadResource(HINSTANCE module, TResId id) {
    const HRSRC place =
        Require<TXGdi>("FindResource", [&] { return ::FindResourceA(module, id, MAKEINTRESOURCEA(2)); });
    const HGLOBAL loaded = Require<TXGdi>("LoadResource", [&] { return ::LoadResource(module, place); });
    const auto* data = static_cast<const std::uint8_t*>(::LockResource(loaded));
    return ReadPackedDib(data, data ? ::SizeofResource(module, place) : 0);
}

/// All of a file.
std::vector<std::uint8_t> Contents(const char* fileName) {
    const HANDLE handle = ::CreateFileA(fileName ? fileName : "", GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        ThrowLastError<TXGdi>("CreateFile");
    const std::unique_ptr<void, decltype(&::CloseHandle)> file(handle, &::CloseHandle);
    const DWORD size = ::GetFileSize(handle, nullptr);
    if (size == INVALID_FILE_SIZE)
        ThrowLastError<TXGdi>("GetFileSize");
    std::vector<std::uint8_t> bytes(size);
    DWORD read = 0;
    Require<TXGdi>("ReadFile", [&] { return ::ReadFile(handle, bytes.data(), size, &read, nullptr); });
    bytes.resize(read);
    return bytes;
}

DibParts ReadFileParts(const char* fileName) {
    const std::vector<std::uint8_t> bytes = Contents(fileName);
    return ReadDibFile(bytes.data(), bytes.size());
}

DibParts ReadBlock(HGLOBAL block) {
    const auto* data =
        Require<TXGdi>("GlobalLock", [&] { return static_cast<const std::uint8_t*>(::GlobalLock(block)); });
    const std::unique_ptr<void, decltype(&::GlobalUnlock)> lock(block, &::GlobalUnlock);
    return ReadPackedDib(data, ::GlobalSize(block));
}

}  // namespace

TDib::TDib(HINSTANCE module, TResId id) : TDib(ReadResource(module, id)) {}

TDib::TDib(const char* fileName) : TDib(ReadFileParts(fileName)) {}

TDib::TDib(HGLOBAL packed) : TDib(ReadBlock(packed)) {}

TDib::TDib(const TClipboard& clipboard) : TDib(ReadBlock(clipboard.RequireClipboardData(CF_DIB))) {}

void TDib::ToClipboard(TClipboard& clipboard) const {
    const HGLOBAL block = Require<TXWindow>(
        "GlobalAlloc", [&] { return ::GlobalAlloc(GMEM_MOVEABLE, m_info.size() + m_bits.size()); });
    if (auto* bytes = static_cast<std::uint8_t*>(::GlobalLock(block))) {
        std::memcpy(bytes, m_info.data(), m_info.size());
        std::memcpy(bytes + m_info.size(), m_bits.data(), m_bits.size());
        ::GlobalUnlock(block);
    }
    try {
        clipboard.SetClipboardData(CF_DIB, block);
    } catch (...) {
        ::GlobalFree(block);
        throw;
    }
}

}  // namespace owl
