// A bitmap's block in memory, as the system's drawing calls and OpenGL are given it. They read all that a
// header claims: so does this target, byte by byte, under the sanitizer.
#include "lvx/images/drawable_block.h"

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "check.h"
#include "lvx/images/block_layout.h"
#include "lvx/images/colour_table.h"
#include "lvx/images/palette_colours.h"
#include "lvx/images/texture_pixels.h"
#include "lvx/platform/global_memory.h"
#include "memory_limit.h"

namespace {

using namespace lvx::images;
using lvx_fuzz::LargestAllocation;
using lvx_fuzz::require;

// Of larger ones that few bytes claim, more bytes bring nothing but time.
constexpr std::uint64_t large_picture = 1024 * 1024;

// Where the sums go, so that no compiler leaves them out.
volatile unsigned bytes_read = 0;

class Block {
public:
    explicit Block(std::string_view content) : handle(GlobalAlloc(GMEM_MOVEABLE, content.size())) {
        require(handle != nullptr, "a small block is made");
        if (!content.empty()) {
            std::memcpy(GlobalLock(handle), content.data(), content.size());
            GlobalUnlock(handle);
        }
    }
    ~Block() { GlobalFree(handle); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    const HGLOBAL handle;
};

bool is_core(HGLOBAL block) {
    return header_size(block) == sizeof(BITMAPCOREHEADER);
}

// As the readers of headers have it.
std::uint32_t entries_of(HGLOBAL block) {
    if (is_core(block)) {
        return entries_of_depth(read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcBitCount));
    }
    return entries_of_info(read_field<std::uint32_t>(block, &BITMAPINFOHEADER::biClrUsed),
                           read_field<std::uint16_t>(block, &BITMAPINFOHEADER::biBitCount),
                           read_field<std::uint32_t>(block, &BITMAPINFOHEADER::biCompression));
}

// The sum of the bytes, which have to be there: of very many one in a thousand, and the last.
unsigned sum(const unsigned char* start, std::uint64_t count) {
    const std::uint64_t step = count > large_picture ? 1000 : 1;
    unsigned total = count != 0 ? start[count - 1] : 0;
    for (std::uint64_t i = 0; i < count; i += step) {
        total += start[i];
    }
    return total;
}

void check_texture(const BlockLayout& layout, const DrawableBlock& picture, std::uint32_t entries,
                   std::size_t entry_size) {
    const std::uint64_t pixels = std::uint64_t{layout.width} * layout.rows;
    if (!layout.IsCredible() || pixels > large_picture || layout.header.biCompression != BI_RGB) {
        return;
    }
    std::vector<unsigned char> out(static_cast<std::size_t>(pixels) * texture_pixel_size);
    write_texture(
        {picture.Pixels(), static_cast<std::size_t>(layout.stride), static_cast<int>(layout.width),
         static_cast<int>(layout.rows), layout.header.biBitCount, layout.header.biHeight < 0,
         reinterpret_cast<const unsigned char*>(picture.Info()) + layout.table_at, entries, entry_size},
        out.data());
}

void check_block(std::string_view content) {
    const Block block(content);
    const std::uint32_t entries = entries_of(block.handle);
    const std::size_t entry_size = is_core(block.handle) ? sizeof(RGBTRIPLE) : sizeof(RGBQUAD);
    const BlockLayout layout = layout_of(block.handle, std::uint64_t{entries} * entry_size);
    const DrawableBlock picture(block.handle, layout.table_size);
    if (!picture.IsGood()) {
        require(picture.Info() == nullptr && picture.Pixels() == nullptr, "what is not drawn has no bytes");
        return;
    }
    const auto* const start = reinterpret_cast<const unsigned char*>(picture.Info());
    const std::size_t there =
        content.size() < layout.pixels_at ? content.size() : static_cast<std::size_t>(layout.pixels_at);
    require(std::memcmp(start, content.data(), there) == 0, "header and colours are those of the block");
    const std::uint32_t compression = layout.header.biCompression;
    const bool plain = compression == BI_RGB || compression == BI_BITFIELDS;
    const std::uint64_t pixels = plain ? layout.PixelsSize() : std::uint64_t{layout.header.biSizeImage};
    const std::uint64_t masks = compression == BI_BITFIELDS ? 3 * sizeof(std::uint32_t) : 0;
    bytes_read = sum(start, layout.pixels_at + pixels) + sum(picture.Pixels(), pixels) +
                 sum(start + sizeof(BITMAPINFOHEADER), masks);
    check_texture(layout, picture, entries, entry_size);
    if (!is_core(block.handle)) {
        const std::vector<PaletteColour> colours =
            table_colours(start + layout.table_at, static_cast<std::size_t>(layout.table_size), entries);
        require(colours.size() == (entries <= most_palette_colours ? entries : 0),
                "a palette has its colours");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // 64 MiB is what a short block may claim.
    const LargestAllocation limit(65 * 1024 * 1024, LargestAllocation::IsFinding);
    check_block(std::string_view(reinterpret_cast<const char*>(data), size));
    return 0;
}
