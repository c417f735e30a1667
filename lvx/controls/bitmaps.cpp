#include "lvx/controls/bitmaps.h"

#include <string>

namespace {

LVXBitmap* made_once(LVXBitmap*& bitmap, const std::string& resource) {
    if (bitmap == nullptr) {
        bitmap = new LVXBitmap(resource);
    }
    return bitmap;
}

/// The pictures of a button whose resources begin with `name`.
LVXBitmap** made_once(LVXBitmap* (&button)[4], const std::string& name) {
    made_once(button[0], name + "UP");
    made_once(button[1], name + "DN");
    // Callers find the focus at 3; nothing has its place at 2.
    made_once(button[3], name + "FC");
    return button;
}

void free_bitmap(LVXBitmap*& bitmap) {
    delete bitmap;
    bitmap = nullptr;
}

void free_button(LVXBitmap* (&button)[4]) {
    for (LVXBitmap*& bitmap : button) {
        free_bitmap(bitmap);
    }
}

}  // namespace

bitmaps bitmaps::the_bitmaps;

LVXBitmap* bitmaps::ques = nullptr;
LVXBitmap* bitmaps::excl = nullptr;
LVXBitmap* bitmaps::okbmps[4] = {};
LVXBitmap* bitmaps::cnbmps[4] = {};
LVXBitmap* bitmaps::ysbmps[4] = {};
LVXBitmap* bitmaps::nobmps[4] = {};
LVXBitmap* bitmaps::hpbmps[4] = {};
LVXBitmap* bitmaps::fnbmps[4] = {};

bitmaps::~bitmaps() {
    free_bitmap(ques);
    free_bitmap(excl);
    free_button(okbmps);
    free_button(cnbmps);
    free_button(ysbmps);
    free_button(nobmps);
    free_button(hpbmps);
    free_button(fnbmps);
}

LVXBitmap* bitmaps::question() {
    return made_once(ques, "QUES");
}

LVXBitmap* bitmaps::exclamation() {
    return made_once(excl, "EXCL");
}

LVXBitmap** bitmaps::ok() {
    return made_once(okbmps, "OK");
}

LVXBitmap** bitmaps::cn() {
    return made_once(cnbmps, "CN");
}

LVXBitmap** bitmaps::ys() {
    return made_once(ysbmps, "YS");
}

LVXBitmap** bitmaps::no() {
    return made_once(nobmps, "NO");
}

LVXBitmap** bitmaps::hp() {
    return made_once(hpbmps, "HP");
}

LVXBitmap** bitmaps::fn() {
    return made_once(fnbmps, "FN");
}
