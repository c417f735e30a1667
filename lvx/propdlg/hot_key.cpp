#include "lvx/propdlg/hot_key.h"

namespace lvx::propdlg {

char marked_letter(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&')
            continue;
        // A pair is an ampersand to be read, and none of it marks anything.
        if (caption[++i] != '&')
            return caption[i];
    }
    return 0;
}

std::string shown_text(std::string_view caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size())
            break;
        shown += caption[i] == '\r' ? ' ' : caption[i];
    }
    return shown;
}

}  // namespace lvx::propdlg
