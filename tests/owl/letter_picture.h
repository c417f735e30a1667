// Pictures told by letters, as device-independent ones of any depth.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace owl_test {

/// The colour of a letter as owl_test::Surface::Picture() tells it.
inline COLORREF ColorOf(char letter) {
    switch (letter) {
        case '#':
            return RGB(0, 0, 0);
        case 'R':
            return RGB(255, 0, 0);
        case 'G':
            return RGB(0, 255, 0);
        case 'B':
            return RGB(0, 0, 255);
        case 'Y':
            return RGB(255, 255, 0);
        case 'C':
            return RGB(0, 255, 255);
        case 'M':
            return RGB(255, 0, 255);
        default:
            return RGB(255, 255, 255);
    }
}

/// The letters of the colour table of a picture with up to 8 bits a pixel.
constexpr char tableLetters[] = "#.RGBYCM";

/// A picture whose rows are told from the upper one on. With one bit a pixel its letters are '#' and '.'.
class LetterPicture {
public:
    LetterPicture(const std::vector<std::string>& rows, int bitCount, bool upperRowFirst = false) {
        const int width = static_cast<int>(rows[0].size());
        const int height = static_cast<int>(rows.size());
        BITMAPINFOHEADER& header = m_info.header;
        header.biSize = sizeof header;
        header.biWidth = width;
        header.biHeight = upperRowFirst ? -height : height;
        header.biPlanes = 1;
        header.biBitCount = static_cast<WORD>(bitCount);
        for (std::size_t i = 0; bitCount <= 8 && tableLetters[i] != 0; ++i)
            m_info.colours[i] = Quad(tableLetters[i]);
        for (int y = 0; y < height; ++y)
            Append(rows[static_cast<std::size_t>(upperRowFirst ? y : height - 1 - y)], bitCount);
    }

    const BITMAPINFO* Info() const { return reinterpret_cast<const BITMAPINFO*>(&m_info); }
    const void* Bits() const { return m_bits.data(); }

private:
    static RGBQUAD Quad(char letter) {
        const COLORREF color = ColorOf(letter);
        return {GetBValue(color), GetGValue(color), GetRValue(color), 0};
    }

    static std::uint32_t Stored(char letter, int bitCount) {
        const COLORREF color = ColorOf(letter);
        if (bitCount <= 8)
            return static_cast<std::uint32_t>(std::strchr(tableLetters, letter) - tableLetters);
        if (bitCount == 16)
            return (GetRValue(color) / 8u) << 10 | (GetGValue(color) / 8u) << 5 | GetBValue(color) / 8u;
        return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
               static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
    }

    void Append(const std::string& row, int bitCount) {
        const std::size_t bits = static_cast<std::size_t>(bitCount);
        std::vector<std::uint8_t> bytes((row.size() * bits + 31) / 32 * 4);
        for (std::size_t x = 0; x < row.size(); ++x) {
            const std::uint32_t value = Stored(row[x], bitCount);
            if (bits >= 8)
                std::memcpy(&bytes[x * bits / 8], &value, bits / 8);
            else
                bytes[x * bits / 8] =
                    static_cast<std::uint8_t>(bytes[x * bits / 8] | value << (8 - bits - x * bits % 8));
        }
        m_bits.insert(m_bits.end(), bytes.begin(), bytes.end());
    }

    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256];
    } m_info{};
    std::vector<std::uint8_t> m_bits;
};

}  // namespace owl_test
