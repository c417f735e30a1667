#include "sketch/model/stream_names.h"

#include <windows.h>
// After the basic types.
#include <objbase.h>
#include <objidl.h>

#include <memory>
#include <sstream>

#include "lvx/text/strings.h"
#include "sketch/model/error.h"
#include "sketch/model/storage_error.h"

namespace sketch {
namespace {

constexpr std::size_t most_streams = 10000;

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};

std::string CodeText(HRESULT result) {
    std::ostringstream text;
    text << "HRESULT = " << std::hex << result;
    return text.str();
}

// Throws if a call of the system has failed.
void Check(HRESULT result) {
    if (FAILED(result)) {
        throw DocumentError(StorageErrorText(CodeText(result)));
    }
}

std::unique_ptr<IStorage, Release> Open(const std::string& file) {
    IStorage* storage = nullptr;
    Check(::StgOpenStorage(lvx::widen(file).c_str(), nullptr, STGM_READ | STGM_SHARE_DENY_WRITE, nullptr, 0,
                           &storage));
    return std::unique_ptr<IStorage, Release>(storage);
}

std::string Narrow(const wchar_t* text) {
    char narrow[128] = "";
    ::WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof narrow - 1, nullptr, nullptr);
    return narrow;
}

}  // namespace

std::vector<std::string> StreamNames(const std::string& file) {
    const auto storage = Open(file);
    IEnumSTATSTG* found = nullptr;
    Check(storage->EnumElements(0, nullptr, 0, &found));
    const std::unique_ptr<IEnumSTATSTG, Release> elements(found);
    std::vector<std::string> names;
    // A damaged directory may go round in a circle.
    for (STATSTG element; names.size() < most_streams && elements->Next(1, &element, nullptr) == S_OK;) {
        if (element.type == STGTY_STREAM) {
            names.push_back(Narrow(element.pwcsName));
        }
        ::CoTaskMemFree(element.pwcsName);
    }
    return names;
}

}  // namespace sketch
