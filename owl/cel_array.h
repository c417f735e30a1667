// owl/cel_array.h
//
// Pictures of one size side by side in one bitmap: the cels of a button, of a row of tabs. Cel 0 begins at
// the offset, each further one a cel's width to the right of the one before. Owns the bitmap, unless told
// otherwise; then the bitmap must outlive the array. For the thread that draws. Windows only. Does not: draw,
// or keep the cels inside of the bitmap; where a cel hangs over its edge there is nothing to be drawn.
#pragma once

#include <memory>

#include "owl/auto_delete.h"
#include "owl/bitmap.h"
#include "owl/geometry.h"
#include "owl/platform/export.h"

namespace owl {

class OWL_EXPORT TCelArray {
public:
    /// Divides `bitmap`, made by new if it is to be owned, into `numCels` cels, counted as in SetNumCels(). A
    /// `celSize` of 0 by 0 is the whole height and an equal share of the width, rounded down. Throws TXOwl if
    /// `bitmap` is null.
    explicit TCelArray(TBitmap* bitmap, int numCels = 1, const TSize& celSize = TSize(),
                       const TPoint& offset = TPoint(), TAutoDelete autoDelete = AutoDelete);
    ~TCelArray();
    TCelArray(const TCelArray&) = delete;
    TCelArray& operator=(const TCelArray&) = delete;

    operator TBitmap&() { return *m_bitmap; }
    operator const TBitmap&() const { return *m_bitmap; }

    int NumCels() const { return m_numCels; }
    /// Below 1 is 1. The cels keep their size.
    void SetNumCels(int numCels);
    TSize CelSize() const { return m_celSize; }
    void SetCelSize(const TSize& size) { m_celSize = size; }
    /// Where cel 0 begins.
    TPoint Offset() const { return m_offset; }
    void SetOffset(const TPoint& offset) { m_offset = offset; }

    /// The place of a cel in the bitmap; a null rectangle if there is no such cel.
    TRect CelRect(int cel) const;
    /// The upper left corner of a cel; of one that there is not, where it would begin, beside the others.
    TPoint CelOffset(int cel) const;

private:
    TBitmap* m_bitmap;
    std::unique_ptr<TBitmap> m_owned;
    int m_numCels;
    TSize m_celSize;
    TPoint m_offset;
};

}  // namespace owl
