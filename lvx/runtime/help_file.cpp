#include "lvx/runtime/help_file.h"

#include <htmlhelp.h>

#include <charconv>
#include <memory>

#include "lvx/text/error.h"
#include "owl/window.h"

namespace {

struct LocalDeleter {
    void operator()(char* text) const { ::LocalFree(text); }
};

std::string hexadecimal(DWORD code) {
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, code, 16);
    return {digits, end.ptr};
}

// The system's text with its line end; empty if it has none.
std::string text_of(DWORD code) {
    char* text = nullptr;
    const DWORD length = ::FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM,
                                          nullptr, code, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                                          reinterpret_cast<char*>(&text), 0, nullptr);
    const std::unique_ptr<char, LocalDeleter> owned(text);
    return owned ? std::string(text, length) : std::string();
}

[[noreturn]] void throw_load_failure(DWORD code) {
    throw lvx::runtime_error("Failed to load HHCTRL.OCX.\nGetLastError returned 0x" + hexadecimal(code) +
                             "\n" + text_of(code));
}

std::string or_empty(const char* text) {
    return text != nullptr ? text : "";
}

}  // namespace

LVXHelpFile::LVXHelpFile(owl::TWindow* window, const char* fileName)
    : m_window(window), m_fileName(or_empty(fileName)) {
    m_module = ::LoadLibraryA("HHCTRL.OCX");
    if (m_module == nullptr) {
        throw_load_failure(::GetLastError());
    }
    // By way of a pointer without a type: the compiler takes a function type for another as a mistake.
    m_htmlHelp =
        reinterpret_cast<HelpFunction>(reinterpret_cast<void*>(::GetProcAddress(m_module, "HtmlHelpA")));
}

LVXHelpFile::~LVXHelpFile() {
    if (m_module != nullptr) {
        ::FreeLibrary(m_module);
    }
}

void LVXHelpFile::DisplayContents(const char* topic) {
    if (!Valid()) {
        return;
    }
    const HWND owner = m_window != nullptr ? m_window->GetHandle() : nullptr;
    m_htmlHelp(owner, m_fileName.c_str(), HH_DISPLAY_TOPIC, reinterpret_cast<DWORD_PTR>(topic));
}

void LVXHelpFile::DisplayTextPopup(HWND window, const char* stream, unsigned long* idPairs) {
    if (!Valid()) {
        return;
    }
    const std::string texts = m_fileName + "::/" + or_empty(stream);
    m_htmlHelp(window, texts.c_str(), HH_TP_HELP_WM_HELP, reinterpret_cast<DWORD_PTR>(idPairs));
}
