// owl/geometry.h
//
// Plain values of the framework's geometry, in the units of whoever hands them over: pixels, as a rule.
#pragma once

namespace owl {

/// A width and a height. Either may be negative.
class TSize {
public:
    constexpr TSize() = default;
    constexpr TSize(int width, int height) : cx(width), cy(height) {}

    friend constexpr bool operator==(const TSize&, const TSize&) = default;

    int cx = 0;
    int cy = 0;
};

}  // namespace owl
