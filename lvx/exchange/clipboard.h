// lvx/exchange/clipboard.h
//
// The system's clipboard: texts, pictures, and any Storable with all that hangs on it, within a program and
// between programs.
//
//     LVXClipboard clipboard(this);                    // an owl::TWindow, or a handle
//     if (clipboard.clear()) {
//         clipboard.put(&star);                        // side by side: who pastes takes what he knows
//         clipboard.put(star.m_name, CF_TEXT);
//     }
//
// The clipboard is open within each call and closed behind it, also if the call throws. What is put there
// belongs to the system, and outlives this object, the window and the program. What is got is the caller's
// own. One thread, that of the window; it does not have the clipboard open itself when it calls. Windows
// only. Does not: wait for a clipboard that another program has open (every operation is false at once),
// promise data that are made when they are asked for, or convert texts. docs/clipboard.md has the form of
// objects.
#pragma once

#include <windows.h>

#include <string>

#include "lvx/platform/export.h"
#include "lvx/text/ownership.h"

class Storable;

namespace LVXUtilities {
class DIBitmap;
}
namespace owl {
class TBitmap;
class TDib;
class TWindow;
}  // namespace owl

class LVX_EXPORT LVXClipboard {
public:
    /// For a window that exists, and lives as long as this object is used. Without one, be it null or not
    /// created yet, what lies on the clipboard can be got, but the system may refuse what is put there.
    explicit LVXClipboard(owl::TWindow* window);
    /// The same. Null is allowed.
    explicit LVXClipboard(HWND window);
    virtual ~LVXClipboard();

    /// The number of "LVX Storable Object" among the formats, the same for all programs; asked for once. 0 if
    /// the system has no more numbers, and then no object can be put or got.
    static unsigned storableFormat();

    /// Takes everything off and makes the window the owner. False if another program has the clipboard open.
    bool clear();

    // Each put adds a format to those that lie there, and replaces what was there in that format.

    /// Puts `text`, up to its first NUL, and a NUL. The block has a byte more than `text`; what lies behind
    /// an early NUL is zeros. False if the clipboard is busy or refuses it, there is no memory, or `format`
    /// is one of those that are no bytes: CF_BITMAP, CF_PALETTE, CF_OWNERDISPLAY, the metafiles and their
    /// CF_DSP kin, CF_GDIOBJFIRST to CF_GDIOBJLAST.
    bool put(const std::string& text, unsigned format);
    /// The same. Null is put nowhere: false.
    bool put(const char* text, unsigned format);

    /// Puts `object`, and what it writes with itself, by way of a temporary file that is gone afterwards.
    /// False if `object` is null, the clipboard is busy or refuses it, there is no memory or no temporary
    /// file, or that comes to 2 GiB. What PutTo and the store throw passes, and nothing is put then. A disk
    /// that is full may pass unnoticed: a part of the object is put, and whoever gets it is told by the
    /// store, or not at all if only values at its end are missing. Afterwards the clipboard is closed even if
    /// this thread had it open before.
    bool put(Storable* object);

    /// The text up to its first NUL or the end of the block. False, with `text` as it was, if the clipboard
    /// is busy or nothing lies there in that format, as never in one that is no bytes.
    bool get(std::string& text, unsigned format);

    /// With `create`, `object` is set to a new object, the caller's, of a class that the factory knows; or to
    /// null if what was put is none. Without, `object` points to an object of the stored class, which reads
    /// itself. False, with `object` as it was, if the clipboard is busy, has no object, or one whose length
    /// is impossible, and if there is no room for a temporary file. What the store, the factory and GetFrom
    /// throw passes (ObjectStore::UnexpectedObject, ObjectStore::UnexpectedEOF, ObjectFactory::UnknownClass);
    /// `object` is as it was, or, without `create`, read in part.
    /// The temporary file, "SWK….tmp", stays where it is, on purpose: hosts look into it.
    bool get(Storable*& object, bool create);

    // Pictures of the caller's own, also from a program that put them in another of these forms: the system
    // converts. What the pointer held before is deleted in any case. False, with null, if the clipboard is
    // busy, has no picture, or its owner announced one and does not deliver it. Each throws std::bad_alloc.

    bool get(lvx::auto_ptr<owl::TBitmap>& bitmap);
    /// Null for a damaged picture too.
    bool get(lvx::auto_ptr<owl::TDib>& dib);
    /// A damaged picture is taken as it is; see DIBitmap for what becomes of that.
    bool get(lvx::auto_ptr<LVXUtilities::DIBitmap>& bitmap);

    /// What storableFormat keeps; 1 until the format is registered. Hosts read it to ask the system whether
    /// there is something to paste.
    static unsigned int CF_STORABLE;

private:
    HWND m_window;
};
