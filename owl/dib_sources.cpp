// Where pictures come from and go to: resources, files, global memory, the clipboard.
#include <algorithm>
#include <climits>
#include <memory>
#include <vector>

#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/global_block.h"
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
    LARGE_INTEGER size{};
    Require<TXGdi>("GetFileSizeEx", [&] { return ::GetFileSizeEx(handle, &size); });
    if (size.QuadPart > INT_MAX)
        throw TXGdi(FailureText("ReadFile", ERROR_FILE_TOO_LARGE), ERROR_FILE_TOO_LARGE);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    Require<TXGdi>("ReadFile", [&] {
        return ::ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    });
    bytes.resize(read);
    return bytes;
}

DibParts ReadFileParts(const char* fileName) {
    const std::vector<std::uint8_t> bytes = Contents(fileName);
    return ReadDibFile(bytes.data(), bytes.size());
}

DibParts ReadBlock(HGLOBAL block) {
    const LockedBlock<const std::uint8_t, TXGdi> bytes(block);
    return ReadPackedDib(bytes.Get(), bytes.Size());
}

}  // namespace

TDib::TDib(HINSTANCE module, TResId id) : TDib(ReadResource(module, id)) {}

TDib::TDib(const char* fileName) : TDib(ReadFileParts(fileName)) {}

TDib::TDib(HGLOBAL packed) : TDib(ReadBlock(packed)) {}

TDib::TDib(const TClipboard& clipboard) : TDib(ReadBlock(clipboard.RequireClipboardData(CF_DIB))) {}

void TDib::ToClipboard(TClipboard& clipboard) const {
    GlobalBlock block(m_info.size() + m_bits.size());
    {
        const LockedBlock<std::uint8_t, TXWindow> bytes(block.Get());
        std::copy(m_bits.begin(), m_bits.end(), std::copy(m_info.begin(), m_info.end(), bytes.Get()));
    }
    clipboard.SetClipboardData(CF_DIB, block.Get());
    block.Release();
}

}  // namespace owl
