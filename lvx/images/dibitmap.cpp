#include "lvx/images/dibitmap.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "lvx/images/block.h"
#include "lvx/images/dibitmap_strategy.h"

namespace LVXUtilities {
namespace {

using lvx::images::read_field;

HGLOBAL duplicate(HGLOBAL block) {
    if (block == nullptr) {
        return nullptr;
    }
    const std::size_t size = GlobalSize(block);
    const HGLOBAL copy = lvx::images::allocate_block(GMEM_MOVEABLE, size);
    const GlobalLocker<const char> source(block);
    const GlobalLocker<char> target(copy);
    if (size != 0) {
        std::memcpy(target.get(), source.get(), size);
    }
    return copy;
}

// A lock on the block with the pointer `offset` bytes behind its start, or at its end if that is nearer.
template <class T>
GlobalLocker<T> lock_at(HGLOBAL block, std::uint64_t offset) {
    GlobalLocker<T> locker(block);
    if (locker.get() != nullptr) {
        auto* const start = reinterpret_cast<unsigned char*>(locker.get());
        const std::uint64_t size = GlobalSize(block);
        locker.MoveTo(reinterpret_cast<T*>(start + std::min(offset, size)));
    }
    return locker;
}

// Bytes per row of pixels, padded to a multiple of 4. Hosts compute the same in int.
std::int32_t row_bytes(std::int32_t width, std::uint16_t depth) {
    const std::uint32_t bits = static_cast<std::uint32_t>(width) * depth + 31;
    return static_cast<std::int32_t>(bits) / 32 * 4;
}

}  // namespace

bool DIBitmap::FixUp = false;

DIBitmap::DIBitmap(void* block, Ownership ownership)
    : m_ownership(ownership),
      m_block(ownership == Copy ? duplicate(block) : block),
      m_strategy(&Strategy::Select(block)) {}

DIBitmap::DIBitmap(const DIBitmap& other)
    : Storable(other), m_ownership(Copy), m_block(duplicate(other.m_block)), m_strategy(other.m_strategy) {}

DIBitmap::~DIBitmap() {
    if (m_ownership != Borrow && m_block != nullptr) {
        GlobalFree(m_block);
    }
}

DIBitmap& DIBitmap::operator=(const DIBitmap& other) {
    DIBitmap copy(other);
    swap(copy);
    return *this;
}

void DIBitmap::swap(DIBitmap& other) noexcept {
    std::swap(m_ownership, other.m_ownership);
    std::swap(m_block, other.m_block);
    std::swap(m_strategy, other.m_strategy);
}

owl::TSize DIBitmap::GetSize() const {
    return owl::TSize(GetWidth(), GetHeight());
}

int DIBitmap::GetBitsPerPixel() const {
    return m_strategy->GetBitsPerPixel(m_block);
}

int DIBitmap::GetWidth() const {
    return m_strategy->GetWidth(m_block);
}

int DIBitmap::GetHeight() const {
    return m_strategy->GetHeight(m_block);
}

int DIBitmap::GetPixelsPerMetreX() const {
    return m_strategy->GetPixelsPerMetreX(m_block);
}

int DIBitmap::GetPixelsPerMetreY() const {
    return m_strategy->GetPixelsPerMetreY(m_block);
}

GlobalLocker<unsigned char> DIBitmap::GetBitsAddress() const {
    return lock_at<unsigned char>(m_block, GetBitsOffset());
}

GlobalLocker<tagRGBQUAD> DIBitmap::GetClrTabAddress() const {
    return lock_at<tagRGBQUAD>(m_block, GetClrTabOffset());
}

int DIBitmap::GetStorageWidth() const {
    return row_bytes(read_field<std::int32_t>(m_block, &BITMAPINFOHEADER::biWidth),
                     read_field<std::uint16_t>(m_block, &BITMAPINFOHEADER::biBitCount));
}

std::uint64_t DIBitmap::GetClrTabOffset() const {
    return lvx::images::header_size(m_block);
}

std::uint64_t DIBitmap::GetBitsOffset() const {
    return GetClrTabOffset() + m_strategy->GetClrTabSize(m_block);
}

}  // namespace LVXUtilities
