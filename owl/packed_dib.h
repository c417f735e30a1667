// owl/packed_dib.h
//
// Reads a device-independent picture as resources, files and the clipboard hold it: a header, colours,
// pixels. Every number in it is checked against the bytes that there are. Pure arithmetic on bytes, on every
// system. Private to the framework.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace owl {

/// A picture taken apart. The header is a BITMAPINFOHEADER, whatever it was, with true counts and sizes in
/// it. Unpacked, its pixels take less than 2 GiB.
struct DibParts {
    /// The header, the three masks of BI_BITFIELDS, the colours.
    std::vector<std::uint8_t> info;
    std::vector<std::uint8_t> bits;
};

/// Bytes from one row of such a picture to the next, filled to 4. Requires: neither is negative.
std::uint64_t DibStride(int width, int bitCount);

/// Takes `size` bytes apart. `bitsOffset` is where the pixels begin, 0 for directly behind the colours.
/// Throws TXGdi if a part is cut off or contradicts another, if the pixels are compressed otherwise than by
/// run lengths, or if they would take 2 GiB.
DibParts ReadPackedDib(const std::uint8_t* data, std::size_t size, std::size_t bitsOffset = 0);

/// Takes the contents of a bitmap file apart. Throws TXGdi likewise, or if it is no bitmap file.
DibParts ReadDibFile(const std::uint8_t* data, std::size_t size);

/// What DibParts::info is of the picture that is described at `info`: as the system takes it, with the masks
/// and colours behind the header. Throws TXGdi if the header makes no sense. Requires: the masks and colours
/// are there that the header tells of.
std::vector<std::uint8_t> CompleteDibInfo(const std::uint8_t* info);

/// A black picture. Throws TXGdi if a side or the depth makes no sense, or it would take 2 GiB.
DibParts MakeDibParts(int width, int height, int bitCount);

}  // namespace owl
