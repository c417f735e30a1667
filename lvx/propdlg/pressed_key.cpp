#include "lvx/propdlg/pressed_key.h"

#include <windows.h>

#include <array>

#include "lvx/propdlg/hot_key.h"

namespace lvx::propdlg {

// A character in place of an address is how the call takes a single one.
char upper_case(char character) {
    const auto single = static_cast<ULONG_PTR>(static_cast<unsigned char>(character));
    const char* const upper = ::CharUpperA(reinterpret_cast<char*>(single));
    return static_cast<char>(reinterpret_cast<ULONG_PTR>(upper));
}

char hot_key_of(std::string_view caption) {
    return upper_case(marked_letter(caption));
}

char pressed_key() {
    std::array<BYTE, 256> keys{};
    if (!::GetKeyboardState(keys.data()))
        return 0;
    for (UINT key = 0; key < keys.size(); ++key) {
        WORD characters = 0;
        if (key != VK_MENU && keys[key] > 127 && ::ToAscii(key, 0, keys.data(), &characters, 0) > 0)
            return upper_case(static_cast<char>(LOBYTE(characters)));
    }
    return 0;
}

}  // namespace lvx::propdlg
