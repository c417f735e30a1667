// lvx/controls/bitmaps.h
//
// The pictures that dialogs share: two icons, and the faces of six buttons. They are the host's, bitmap
// resources of fixed names; each is loaded when it is first asked for and stays until the library is
// unloaded.
//
//     port.drawBitMap(*bitmaps::question(), 0, 0);
//     port.drawBitMap(*bitmaps::ok()[hasFocus ? 3 : 0], 0, 0);
//
// A button's array holds the picture of the button up at 0, down at 1, and with the focus at 3. There is
// none at 2.
//
// They belong to this class: callers do not delete them. Nothing guards their making: they are for the thread
// that draws. Windows only.
#pragma once

#include "lvx/drawing/bitmap.h"
#include "lvx/platform/export.h"

class LVX_EXPORT bitmaps {
public:
    bitmaps(const bitmaps&) = delete;
    bitmaps& operator=(const bitmaps&) = delete;
    /// Deletes all of them. Those who ask afterwards get new ones.
    ~bitmaps();

    // Never null. owl::TXGdi if there is no such resource; the others stay, and who asks again tries again.

    /// "QUES"
    static LVXBitmap* question();
    /// "EXCL"
    static LVXBitmap* exclamation();

    // Arrays of four, each the same at each call.

    /// "OKUP", "OKDN", "OKFC"
    static LVXBitmap** ok();
    /// Cancel: "CNUP", "CNDN", "CNFC"
    static LVXBitmap** cn();
    /// Yes: "YSUP", "YSDN", "YSFC"
    static LVXBitmap** ys();
    /// "NOUP", "NODN", "NOFC"
    static LVXBitmap** no();
    /// Help: "HPUP", "HPDN", "HPFC"
    static LVXBitmap** hp();
    /// "FNUP", "FNDN", "FNFC"
    static LVXBitmap** fn();

    /// Its end, when the library is unloaded, is that of the bitmaps.
    static bitmaps the_bitmaps;

    // The bitmaps, null until they are asked for.

    static LVXBitmap* ques;
    static LVXBitmap* excl;
    static LVXBitmap* okbmps[4];
    static LVXBitmap* cnbmps[4];
    static LVXBitmap* ysbmps[4];
    static LVXBitmap* nobmps[4];
    static LVXBitmap* hpbmps[4];
    static LVXBitmap* fnbmps[4];

private:
    bitmaps() = default;
};
