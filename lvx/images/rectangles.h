// lvx/images/rectangles.h
//
// Names for the edges and corners of a rectangle, as numbers that hosts pass. x grows to the right and y
// downward; in a picture whose bottom row comes first in memory, as it does in most, y counts the rows from
// there, so that its top is the edge that is seen below.
#pragma once

namespace LVXUtilities::Rectangles {

enum Edge : int { Top = 1, Bottom = 2, Left = 4, Right = 8 };

/// The two edges that meet there.
enum Corner : int {
    TopLeft = Top | Left,
    BottomLeft = Bottom | Left,
    TopRight = Top | Right,
    BottomRight = Bottom | Right,
};

}  // namespace LVXUtilities::Rectangles
