#include "owl/module.h"

#include <vector>

#include "owl/error.h"
#include "owl/last_error.h"

namespace owl {

namespace {

std::string StemOf(const std::string& path) {
    const std::size_t folder = path.find_last_of("\\/:");
    const std::size_t begin = folder == std::string::npos ? 0 : folder + 1;
    const std::size_t dot = path.rfind('.');
    return path.substr(begin, dot == std::string::npos || dot < begin ? dot : dot - begin);
}

// The longest path that the system gives out.
constexpr DWORD longest_path = 32768;

}  // namespace

TModule::TModule(const char* name, HINSTANCE instance)
    : m_instance(instance != nullptr ? instance : ::GetModuleHandleA(nullptr)) {
    m_name = name != nullptr ? name : StemOf(GetModuleFileName());
}

TModule::TModule(const char* file, bool load) : m_instance(nullptr), m_loaded(load) {
    if (file == nullptr)
        throw TXOwl("a library needs a file");
    m_instance = Require<TXOwl>(file, [&] { return load ? ::LoadLibraryA(file) : ::GetModuleHandleA(file); });
    m_name = StemOf(GetModuleFileName());
}

TModule::~TModule() {
    if (m_loaded)
        ::FreeLibrary(m_instance);
}

std::string TModule::GetModuleFileName() const {
    std::vector<char> path(longest_path);
    const DWORD length = ::GetModuleFileNameA(m_instance, path.data(), longest_path);
    return std::string(path.data(), length);
}

// Asks for the text where it lies: its length is known then. It is not terminated there.
std::string TModule::LoadString(UINT id) const {
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(m_instance, id, reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0)
        return {};
    const int bytes = ::WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(bytes), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text, length, result.data(), bytes, nullptr, nullptr);
    return result;
}

HBITMAP TModule::LoadBitmap(TResId id) const {
    return ::LoadBitmapA(m_instance, id);
}

HICON TModule::LoadIcon(TResId id) const {
    return ::LoadIconA(m_instance, id);
}

HCURSOR TModule::LoadCursor(TResId id) const {
    return ::LoadCursorA(m_instance, id);
}

HMENU TModule::LoadMenu(TResId id) const {
    return ::LoadMenuA(m_instance, id);
}

HACCEL TModule::LoadAccelerators(TResId id) const {
    return ::LoadAcceleratorsA(m_instance, id);
}

HRSRC TModule::FindResource(TResId id, const char* type) const {
    return ::FindResourceA(m_instance, id, type);
}

HGLOBAL TModule::LoadResource(HRSRC resource) const {
    return ::LoadResource(m_instance, resource);
}

}  // namespace owl
