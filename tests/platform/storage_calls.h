// Compound files, a call at a time.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "lvx/platform/structured_storage.h"

namespace lvx_test {

struct Release {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
using Storage = std::unique_ptr<IStorage, Release>;
using Stream = std::unique_ptr<IStream, Release>;

inline constexpr DWORD read_file_mode = STGM_READ | STGM_SHARE_DENY_WRITE;
inline constexpr DWORD replace_mode = STGM_WRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE;
inline constexpr DWORD read_stream_mode = STGM_READ | STGM_SHARE_EXCLUSIVE;

/// The code as it is written down: "80030002", or "" for success.
inline std::string code(HRESULT result) {
    char text[16];
    std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(result));
    return SUCCEEDED(result) ? "" : text;
}

/// For names of ASCII characters.
inline std::wstring wide(const std::string& name) {
    return {name.begin(), name.end()};
}

inline HRESULT open_file(const std::string& name, Storage& storage) {
    IStorage* opened = nullptr;
    const HRESULT result = StgOpenStorage(wide(name).c_str(), nullptr, read_file_mode, nullptr, 0, &opened);
    storage.reset(opened);
    return result;
}

inline HRESULT replace_file(const std::string& name, Storage& storage) {
    IStorage* opened = nullptr;
    const HRESULT result = StgCreateDocfile(wide(name).c_str(), replace_mode, 0, &opened);
    storage.reset(opened);
    return result;
}

inline HRESULT open_stream(const Storage& storage, const std::wstring& name, Stream& stream) {
    IStream* opened = nullptr;
    const HRESULT result = storage->OpenStream(name.c_str(), nullptr, read_stream_mode, 0, &opened);
    stream.reset(opened);
    return result;
}

inline HRESULT create_stream(const Storage& storage, const std::wstring& name, Stream& stream) {
    IStream* opened = nullptr;
    const HRESULT result = storage->CreateStream(name.c_str(), replace_mode, 0, 0, &opened);
    stream.reset(opened);
    return result;
}

inline HRESULT write(const Stream& stream, const std::string& data) {
    ULONG count = 0;
    const HRESULT result = stream->Write(data.data(), static_cast<ULONG>(data.size()), &count);
    return SUCCEEDED(result) && count != data.size() ? S_FALSE : result;
}

/// Up to `size` bytes from where the stream stands.
inline std::string read(const Stream& stream, std::size_t size) {
    std::string data(size, '\0');
    ULONG count = 0;
    const HRESULT result = stream->Read(data.data(), static_cast<ULONG>(size), &count);
    data.resize(SUCCEEDED(result) ? count : 0);
    return data;
}

inline HRESULT seek(const Stream& stream, std::int64_t distance, DWORD origin,
                    std::uint64_t* position = nullptr) {
    LARGE_INTEGER move{};
    move.QuadPart = distance;
    ULARGE_INTEGER reached{};
    const HRESULT result = stream->Seek(move, origin, &reached);
    if (position != nullptr) {
        *position = reached.QuadPart;
    }
    return result;
}

inline std::uint64_t size_of(const Stream& stream) {
    STATSTG status{};
    return SUCCEEDED(stream->Stat(&status, STATFLAG_NONAME)) ? status.cbSize.QuadPart : UINT64_MAX;
}

/// A file with streams of these names and contents.
inline bool write_document(const std::string& name,
                           const std::vector<std::pair<std::wstring, std::string>>& streams) {
    Storage storage;
    bool complete = SUCCEEDED(replace_file(name, storage));
    for (const auto& [stream_name, data] : streams) {
        Stream stream;
        complete =
            complete && SUCCEEDED(create_stream(storage, stream_name, stream)) && write(stream, data) == S_OK;
    }
    return lvx::platform::complete_storage(storage.release()) && complete;
}

/// "name 12" for a stream of 12 bytes and "name/" for a storage, in the order of the file.
inline std::vector<std::string> list(const Storage& storage) {
    std::vector<std::string> lines;
    IEnumSTATSTG* opened = nullptr;
    if (FAILED(storage->EnumElements(0, nullptr, 0, &opened))) {
        return lines;
    }
    const std::unique_ptr<IEnumSTATSTG, Release> elements(opened);
    STATSTG status{};
    while (elements->Next(1, &status, nullptr) == S_OK) {
        const std::wstring wide_name(status.pwcsName);
        CoTaskMemFree(status.pwcsName);
        std::string line;
        for (const wchar_t character : wide_name) {
            line += character < 0x80 ? static_cast<char>(character) : '?';
        }
        lines.push_back(status.type == STGTY_STORAGE ? line + "/"
                                                     : line + " " + std::to_string(status.cbSize.QuadPart));
    }
    return lines;
}

/// The bytes 0, 1, 2 … 255, 0, 1 …
inline std::string counting_bytes(std::size_t size) {
    std::string data(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        data[i] = static_cast<char>(i);
    }
    return data;
}

}  // namespace lvx_test
