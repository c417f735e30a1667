#include "owl/cel_array.h"

#include <algorithm>
#include <cstdint>

#include "owl/error.h"

namespace owl {

namespace {

int AtLeastOne(int numCels) {
    return std::max(numCels, 1);
}

// Wraps as all coordinates do.
int Times(int a, int b) {
    return static_cast<int>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

}  // namespace

// The bitmap is owned before anything can throw.
TCelArray::TCelArray(TBitmap* bitmap, int numCels, const TSize& celSize, const TPoint& offset,
                     TAutoDelete autoDelete)
    : m_bitmap(bitmap),
      m_owned(autoDelete == AutoDelete ? bitmap : nullptr),
      m_numCels(AtLeastOne(numCels)),
      m_celSize(celSize),
      m_offset(offset) {
    if (bitmap == nullptr)
        throw TXOwl("cels need a bitmap");
    if (celSize == TSize())
        m_celSize = TSize(bitmap->Width() / m_numCels, bitmap->Height());
}

TCelArray::~TCelArray() = default;

void TCelArray::SetNumCels(int numCels) {
    m_numCels = AtLeastOne(numCels);
}

TRect TCelArray::CelRect(int cel) const {
    if (cel < 0 || cel >= m_numCels)
        return TRect();
    return TRect(CelOffset(cel), m_celSize);
}

TPoint TCelArray::CelOffset(int cel) const {
    return m_offset.OffsetBy(Times(cel, m_celSize.cx), 0);
}

}  // namespace owl
