#include "lvx/propdlg/hot_key.h"

#include <array>

namespace lvx::propdlg {

namespace {

char upper_case(char character) {
    const auto letter = static_cast<unsigned char>(character);
    const char* const upper = ::CharUpperA(reinterpret_cast<char*>(static_cast<ULONG_PTR>(letter)));
    return static_cast<char>(reinterpret_cast<ULONG_PTR>(upper));
}

}  // namespace

char hot_key_of(const std::string& text) {
    for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 2)) {
        if (at + 1 == text.size())
            return 0;
        if (text[at + 1] != '&')
            return upper_case(text[at + 1]);
    }
    return 0;
}

std::string shown_text(const std::string& text) {
    std::string shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '&' && ++at == text.size())
            break;
        shown += text[at] == '\r' ? ' ' : text[at];
    }
    return shown;
}

std::string text_of_control(HWND control) {
    if (control == nullptr)
        return {};
    std::array<char, 101> text{};
    const int length = ::GetWindowTextA(control, text.data(), static_cast<int>(text.size()));
    return std::string(text.data(), static_cast<std::size_t>(length));
}

bool has_control_with_key(HWND window, char key) {
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const bool isField = (::SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
        if (!isField && ::IsWindowEnabled(child) && hot_key_of(text_of_control(child)) == key)
            return true;
    }
    return false;
}

char pressed_key() {
    std::array<BYTE, 256> keys{};
    if (::GetKeyboardState(keys.data()) == 0)
        return 0;
    for (UINT key = 0; key < keys.size(); ++key) {
        WORD characters = 0;
        if (key != VK_MENU && keys[key] > 127 && ::ToAscii(key, 0, keys.data(), &characters, 0) > 0)
            return upper_case(static_cast<char>(LOBYTE(characters)));
    }
    return 0;
}

}  // namespace lvx::propdlg
