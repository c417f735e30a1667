// Bitmap files, and the choice between them and JPEG files.
#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <new>

#include "lvx/images/block.h"
#include "lvx/images/colour_table.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/picture_size.h"

namespace LVXUtilities {
namespace {

constexpr std::uint16_t bitmap_signature = 0x4D42;
constexpr std::uint32_t longest_header = 64 * 1024;

class BitmapInput {
public:
    explicit BitmapInput(const std::string& name)
        : m_stream(name, std::ios::in | std::ios::binary), m_length(Measure()) {}

    /// Whether reading has failed, which ending early is not.
    bool IsBad() const { return m_stream.bad(); }

    /// What the file has not got leaves `data` as it is.
    void Read(void* data, std::uint64_t size) {
        m_stream.read(static_cast<char*>(data), static_cast<std::streamsize>(size));
    }

    // A read that ended early does not keep a later seek from working: small files end within the header
    // that is asked for.
    void SeekTo(std::uint64_t position) {
        ForgetEnd();
        m_stream.seekg(static_cast<std::streamoff>(position));
    }
    void SeekBack(int distance) {
        ForgetEnd();
        m_stream.seekg(-distance, std::ios::cur);
    }

    /// The bytes from `position` to the end of the file; 0 if it has no length that can be told.
    std::uint64_t BytesFrom(std::uint64_t position) const {
        return m_length > position ? m_length - position : 0;
    }

private:
    void ForgetEnd() { m_stream.clear(m_stream.rdstate() & std::ios::badbit); }

    std::uint64_t Measure() {
        m_stream.seekg(0, std::ios::end);
        const std::streamoff length = m_stream.tellg();
        SeekTo(0);
        return length < 0 ? 0 : static_cast<std::uint64_t>(length);
    }

    std::ifstream m_stream;
    std::uint64_t m_length;
};

struct Layout {
    BITMAPINFOHEADER header;
    std::uint64_t entries;
    std::uint64_t image_size;
};

// Leaves `input` where the colour table is taken from: 28 bytes in front of where the header was read to,
// wherever that was. Hosts' files rely on these positions.
BITMAPINFOHEADER widen_core(BitmapInput& input, const BITMAPCOREHEADER& core) {
    input.SeekBack(sizeof(BITMAPINFOHEADER) - sizeof(BITMAPCOREHEADER));
    BITMAPINFOHEADER header{};
    header.biSize = sizeof(BITMAPINFOHEADER);
    header.biWidth = static_cast<std::uint16_t>(core.bcWidth);
    header.biHeight = static_cast<std::uint16_t>(core.bcHeight);
    header.biPlanes = static_cast<std::uint16_t>(core.bcPlanes);
    header.biBitCount = static_cast<std::uint16_t>(core.bcBitCount);
    header.biClrUsed = lvx::images::entries_of_depth(core.bcBitCount);
    header.biClrImportant = static_cast<std::uint32_t>(header.biClrUsed);
    return header;
}

// Leaves `input` where the colour table is taken from. That is the header's length counted from the start of
// the file, not from the header: the table of an ordinary file begins with the last 14 bytes of its header,
// and has always done so in the blocks that hosts keep.
BITMAPINFOHEADER complete_info(BitmapInput& input, BITMAPINFOHEADER header) {
    if (header.biSize > longest_header) {
        throw "Error";
    }
    input.SeekTo(header.biSize);
    if (header.biClrUsed == 0) {
        header.biClrUsed = lvx::images::entries_of_depth(header.biBitCount);
    }
    return header;
}

// At most as much as a header of 108 bytes, and less if the pixels are nearer: their distance is taken from
// here although it counts from the start of the file.
BITMAPINFOHEADER read_header(BitmapInput& input, std::uint32_t distance_to_pixels) {
    std::array<unsigned char, sizeof(BITMAPV4HEADER)> bytes{};
    input.Read(bytes.data(), std::min<std::uint64_t>(distance_to_pixels, bytes.size()));
    BITMAPINFOHEADER header;
    std::memcpy(&header, bytes.data(), sizeof header);
    if (header.biSize != sizeof(BITMAPCOREHEADER)) {
        return complete_info(input, header);
    }
    BITMAPCOREHEADER core;
    std::memcpy(&core, bytes.data(), sizeof core);
    return widen_core(input, core);
}

// A negative height means rows from the top down and not fewer than none: with its sign the product would be
// absurd, and such a bitmap that leaves its size out would be refused.
std::uint64_t image_size(const BITMAPINFOHEADER& header) {
    if (header.biSizeImage != 0) {
        return header.biSizeImage;
    }
    return lvx::images::picture_size(static_cast<std::uint32_t>(header.biWidth),
                                     lvx::images::magnitude(header.biHeight), header.biBitCount);
}

// A colour table that no depth needs has to be in the file.
bool is_credible_table(std::uint64_t entries, std::uint64_t bytes_left) {
    return entries <= lvx::images::entries_of_depth(8) || entries * sizeof(RGBQUAD) <= bytes_left;
}

Layout read_layout(BitmapInput& input, std::uint32_t pixels_at) {
    Layout layout{read_header(input, pixels_at), 0, 0};
    layout.entries = lvx::images::entries_of_info(layout.header.biClrUsed, layout.header.biBitCount,
                                                  layout.header.biCompression);
    layout.image_size = image_size(layout.header);
    if (!is_credible_table(layout.entries, input.BytesFrom(layout.header.biSize)) ||
        !lvx::images::is_credible_picture(layout.image_size, input.BytesFrom(pixels_at))) {
        throw "Error";
    }
    return layout;
}

// Header and table are laid out as behind 40 bytes, but the pixels follow the table of a header as long as it
// says: so much more room is needed.
std::uint64_t block_size(const Layout& layout) {
    if (layout.image_size > lvx::images::largest_block) {
        throw std::bad_alloc();
    }
    const std::uint64_t header = std::max<std::uint64_t>(layout.header.biSize, sizeof(BITMAPINFOHEADER));
    return header + layout.entries * sizeof(RGBQUAD) + layout.image_size;
}

BITMAPFILEHEADER file_header(std::uint64_t block_size, std::uint64_t pixels_at) {
    BITMAPFILEHEADER header{};
    header.bfType = bitmap_signature;
    header.bfSize = static_cast<std::uint32_t>(block_size + sizeof header);
    header.bfOffBits = static_cast<std::uint32_t>(pixels_at + sizeof header);
    return header;
}

}  // namespace

// Begins as an empty image that adopts, so that its destructor frees the block when reading fails.
DIBitmap::DIBitmap(const std::string& fileName, Format format) : DIBitmap(nullptr, Adopt) {
    switch (format) {
        case DIB:
            if (!InitDIB(fileName)) {
                throw "Not a valid bitmap";
            }
            break;
        case JPEG:
            InitJPEG(fileName);
            break;
        case AnyFormat:
            if (!InitDIB(fileName)) {
                InitJPEG(fileName);
            }
            break;
        default:
            throw "Invalid format.";
    }
}

// The new block is all zeros and has the reader for headers of 40 bytes until its own is chosen.
void DIBitmap::ReplaceByFile(std::uint64_t size) {
    DIBitmap fresh(nullptr, Adopt);
    fresh.m_block = lvx::images::allocate_block(GHND, size);
    fresh.m_strategy = &Strategy::ForInfoHeader();
    swap(fresh);
}

bool DIBitmap::InitDIB(const std::string& fileName) {
    BitmapInput input(fileName);
    BITMAPFILEHEADER file{};
    input.Read(&file, sizeof file);
    if (input.IsBad() || file.bfType != bitmap_signature) {
        return false;
    }
    const Layout layout = read_layout(input, file.bfOffBits);
    ReplaceByFile(block_size(layout));
    const GlobalLocker<unsigned char> bytes(m_block);
    std::memcpy(bytes.get(), &layout.header, sizeof layout.header);
    input.Read(bytes.get() + sizeof layout.header, layout.entries * sizeof(RGBQUAD));
    input.SeekTo(file.bfOffBits);
    input.Read(GetBitsAddress().get(), layout.image_size);
    if (input.IsBad()) {
        throw "Error";
    }
    m_strategy = &Strategy::Select(m_block);
    return true;
}

void DIBitmap::SaveAs(const std::string& fileName, Format format) {
    if (format == JPEG) {
        SaveAsJPEG(fileName);
    } else {
        SaveAsDIB(fileName);
    }
}

void DIBitmap::SaveAsDIB(const std::string& fileName) {
    const GlobalLocker<const char> bytes(m_block);
    const std::size_t size = GlobalSize(m_block);
    const BITMAPFILEHEADER header = file_header(size, GetBitsOffset());
    std::ofstream output(fileName, std::ios::out | std::ios::binary | std::ios::trunc);
    if (!output) {
        throw "Cannot open file.";
    }
    output.write(reinterpret_cast<const char*>(&header), sizeof header);
    output.write(bytes.get(), static_cast<std::streamsize>(size));
}

void DIBitmap::SaveAsJPEG(const std::string&) {}

}  // namespace LVXUtilities
