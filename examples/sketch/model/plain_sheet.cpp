#include "sketch/model/plain_sheet.h"

#include <cstring>
#include <new>

#include "lvx/images/global_locker.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

const owl::TSize& Checked(const owl::TSize& size) {
    if (std::int64_t{size.cx} * size.cy > PlainSheet::most_pixels) {
        throw DocumentError("The picture would be too large.");
    }
    return size;
}

}  // namespace

PlainSheet::PlainSheet(const owl::TSize& size)
    : LVXBitmap(static_cast<int>(Checked(size).cx), static_cast<int>(size.cy), nullptr) {
    if (getBitmap(0) == nullptr) {
        throw std::bad_alloc();
    }
    eraseWhite();
}

HGLOBAL PlainSheet::MakeBlock() const {
    // What was drawn last may not have reached the memory yet.
    ::GdiFlush();
    DIBSECTION section{};
    ::GetObjectA(getBitmap(0), sizeof section, &section);
    const BITMAPINFOHEADER& header = section.dsBmih;
    const std::size_t size =
        static_cast<std::size_t>(section.dsBm.bmWidthBytes) * static_cast<std::size_t>(section.dsBm.bmHeight);
    HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, sizeof header + size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    const LVXUtilities::GlobalLocker<char> bytes(block);
    std::memcpy(bytes.get(), &header, sizeof header);
    std::memcpy(bytes.get() + sizeof header, section.dsBm.bmBits, size);
    return block;
}

}  // namespace sketch
