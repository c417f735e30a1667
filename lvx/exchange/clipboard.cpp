#include "lvx/exchange/clipboard.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

#include "lvx/exchange/hand_over.h"
#include "lvx/exchange/owned_block.h"
#include "lvx/images/dibitmap.h"
#include "owl/bitmap.h"
#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/error.h"
#include "owl/window.h"

namespace {

using lvx::exchange::OwnedBlock;
using LVXUtilities::DIBitmap;
using LVXUtilities::GlobalLocker;

constexpr unsigned int not_registered = 1;

/// Whether a block of plain bytes lies behind `format`. Behind the others are handles, which the system would
/// follow into any text that is put there.
bool holds_bytes(unsigned format) {
    if (format >= CF_GDIOBJFIRST && format <= CF_GDIOBJLAST) {
        return false;
    }
    switch (format) {
        case CF_BITMAP:
        case CF_DSPBITMAP:
        case CF_METAFILEPICT:
        case CF_DSPMETAFILEPICT:
        case CF_ENHMETAFILE:
        case CF_DSPENHMETAFILE:
        case CF_PALETTE:
        case CF_OWNERDISPLAY:
            return false;
        default:
            return true;
    }
}

OwnedBlock block_of_text(const std::string& text) {
    OwnedBlock block(text.size() + 1);
    const bool filled = block.Fill([&](std::span<unsigned char> bytes) {
        const auto end = std::find(text.begin(), text.end(), '\0');
        const auto rest = std::copy(text.begin(), end, bytes.begin());
        std::fill(rest, bytes.end(), static_cast<unsigned char>(0));
    });
    return filled ? std::move(block) : OwnedBlock();
}

/// A picture of its own of what lies there as `format`; null if nothing does, or nothing good.
template <class Picture>
lvx::auto_ptr<Picture> taken(HWND window, unsigned format) {
    const owl::TClipboard clipboard(window, false);
    if (!clipboard.IsOpen() || !owl::TClipboard::IsClipboardFormatAvailable(format)) {
        return {};
    }
    try {
        return lvx::auto_ptr<Picture>(new Picture(clipboard));
    } catch (const owl::TXOwl&) {
        // Announced and not delivered, or damaged. That there is no picture says it.
        return {};
    }
}

template <class Picture>
bool take(HWND window, unsigned format, lvx::auto_ptr<Picture>& picture) {
    picture.reset();
    picture = taken<Picture>(window, format);
    return picture.get() != nullptr;
}

}  // namespace

unsigned int LVXClipboard::CF_STORABLE = not_registered;

LVXClipboard::LVXClipboard(owl::TWindow* window)
    : LVXClipboard(window != nullptr ? window->GetHandle() : nullptr) {}

LVXClipboard::LVXClipboard(HWND window) : m_window(window) {
    storableFormat();
}

LVXClipboard::~LVXClipboard() = default;

unsigned LVXClipboard::storableFormat() {
    if (CF_STORABLE == not_registered) {
        CF_STORABLE = ::RegisterClipboardFormatA("LVX Storable Object");
    }
    return CF_STORABLE;
}

bool LVXClipboard::clear() {
    const owl::TClipboard clipboard(m_window, false);
    if (!clipboard.IsOpen()) {
        return false;
    }
    ::EmptyClipboard();
    return true;
}

bool LVXClipboard::put(const std::string& text, unsigned format) {
    const owl::TClipboard clipboard(m_window, false);
    return clipboard.IsOpen() && holds_bytes(format) && lvx::exchange::hand_over(format, block_of_text(text));
}

bool LVXClipboard::put(const char* text, unsigned format) {
    return text != nullptr && put(std::string(text), format);
}

bool LVXClipboard::get(std::string& text, unsigned format) {
    const owl::TClipboard clipboard(m_window, false);
    const HANDLE block = holds_bytes(format) ? clipboard.GetClipboardData(format) : nullptr;
    const GlobalLocker<const char> characters(block);
    if (characters.get() == nullptr) {
        return false;
    }
    text.assign(characters.get(), ::strnlen(characters.get(), ::GlobalSize(block)));
    return true;
}

bool LVXClipboard::get(lvx::auto_ptr<owl::TBitmap>& bitmap) {
    return take(m_window, CF_BITMAP, bitmap);
}

bool LVXClipboard::get(lvx::auto_ptr<owl::TDib>& dib) {
    return take(m_window, CF_DIB, dib);
}

bool LVXClipboard::get(lvx::auto_ptr<DIBitmap>& bitmap) {
    bitmap.reset();
    const owl::TClipboard clipboard(m_window, false);
    if (const HANDLE block = clipboard.GetClipboardData(CF_DIB)) {
        // The block stays the clipboard's, which frees it whenever another program likes.
        bitmap.reset(new DIBitmap(block, DIBitmap::Copy));
    }
    return bitmap.get() != nullptr;
}
