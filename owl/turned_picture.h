// owl/turned_picture.h
//
// Where the pixels of a picture come to lie when it is turned, stretched, mirrored or sheared, and which of
// its pixels is seen at each place. Nothing is mixed: the middle of each place is taken back into the
// picture, and the pixel that it falls on is the one. So the identity gives the picture itself, and quarter
// turns exchange its pixels without a loss. Pure arithmetic, on every system.
#pragma once

#include <cstddef>
#include <cstdint>

#include "owl/geometry.h"
#include "owl/platform/export.h"

namespace owl {

/// Takes the point (x, y) of a picture to (x m11 + y m21 + dx, x m12 + y m22 + dy). A pixel of the picture is
/// the square from its whole coordinates to the next.
struct TPictureTransform {
    double m11 = 1;
    double m12 = 0;
    double m21 = 0;
    double m22 = 1;
    double dx = 0;
    double dy = 0;
};

class OWL_EXPORT TTurnedPicture {
public:
    /// A stretch of places in a row, without `end`.
    struct TRun {
        int begin;
        int end;
    };

    /// A picture without pixels, and a transform that makes a line of it or is not finite, cover nothing.
    TTurnedPicture(const TSize& picture, const TPictureTransform& transform);

    /// The smallest rectangle that holds all covered places, up to one more on each side. Places beyond 2^29
    /// are left out.
    const TRect& Bounds() const { return m_bounds; }

    /// The places of row `y` that the picture covers: those whose middle falls on it. Empty if there are
    /// none.
    TRun RunOf(int y) const;
    /// Likewise of a part of the picture. Parts without a pixel in common have no place in common, and those
    /// that fill the picture leave none out.
    TRun RunOf(int y, const TRect& part) const;

    /// Which pixel of the picture is seen at a covered place. Of another place the pixel at the nearest edge
    /// or corner.
    TPoint SourceOf(int x, int y) const;

    /// Writes the pixels of SourceOf() for the places of `run`, one after the other, to `out`. Those of the
    /// picture are 32 bits each, its rows `stride` pixels apart, the upper one, where y is 0, first.
    /// Requires: the picture covers something.
    void CopyRun(const std::uint32_t* picture, std::ptrdiff_t stride, int y, const TRun& run,
                 std::uint32_t* out) const;

private:
    /// One coordinate of the way back: x a + y b + c for the middle of a place.
    struct Back {
        double a = 0;
        double b = 0;
        double c = 0;
        double At(int x, int y) const;
    };

    TRun Between(const Back& back, int y, int from, int limit) const;

    TSize m_picture;
    Back m_backX;
    Back m_backY;
    TRect m_bounds;
};

}  // namespace owl
