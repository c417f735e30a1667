#include <windows.h>

#include <algorithm>
#include <cstring>

#include "lvx/drawing/my_font.h"

int add_face(LOGFONTA* font, NEWTEXTMETRICA*, short type, char* data) {
    if ((type & TRUETYPE_FONTTYPE) != 0) {
        auto& faces = *reinterpret_cast<std::vector<std::string>*>(data);
        const std::string face(font->lfFaceName, ::strnlen(font->lfFaceName, LF_FACESIZE));
        if (std::find(faces.begin(), faces.end(), face) == faces.end()) {
            faces.push_back(face);
        }
    }
    return 1;
}
