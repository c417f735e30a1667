// owl/platform/geometry_types.h
//
// The system's own structures that the values of owl/geometry.h and owl/color.h are made of. On Windows its
// header; elsewhere the same names with the same members, of the same sizes, in the same order.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include <cstdint>

using LONG = std::int32_t;
using DWORD = std::uint32_t;
using COLORREF = DWORD;

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

#endif
