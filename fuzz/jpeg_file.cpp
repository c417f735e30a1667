// A JPEG file. The decoder ends the process on damage; here its exit throws through it, so that what it
// leaves behind is seen, and the next file is read by the same process. A few bytes may claim a picture of
// gigabytes, and get it: a file that claims more than a million pixels is left out, unless no block can hold
// them.
//
//     byte 0      bit 0: AnyFormat in place of JPEG   bit 1: InitJPEG into a bitmap that has a block
//     the rest    the file
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>

#include "bitmap_check.h"
#include "check.h"
#include "decoder_exit.h"
#include "input.h"
#include "jpeg_claim.h"
#include "memory_limit.h"
#include "scratch_file.h"

namespace {

using namespace lvx_fuzz;
using LVXUtilities::DIBitmap;

constexpr std::size_t large_block = 1024 * 1024;
constexpr std::uint64_t most_pixels = 1024 * 1024;
// A row has 4 bytes for each pixel at most, padding too.
constexpr std::size_t most_memory = 4 * most_pixels + 1024 * 1024;

// A picture of one pixel.
constexpr unsigned char small_block[44] = {40, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 24};

DIBitmap small_bitmap() {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof small_block);
    std::memcpy(GlobalLock(block), small_block, sizeof small_block);
    GlobalUnlock(block);
    return DIBitmap(block, DIBitmap::Adopt);
}

void check_picture(const DIBitmap& bitmap) {
    const std::size_t size = check_bitmap(bitmap);
    const auto rows = static_cast<std::size_t>(bitmap.GetHeight());
    require(bitmap.GetHeight() > 0 && bitmap.GetWidth() > 0, "a picture has pixels");
    require(bitmap.GetPixelsPerMetreX() >= 0 && bitmap.GetPixelsPerMetreY() >= 0, "resolutions are positive");
    require(size == 40 + static_cast<std::size_t>(bitmap.GetStorageWidth()) * rows,
            "header and rows, no more");
    if (size <= large_block) {
        check_bitmap_copies(bitmap);
    }
}

std::string small_block_bytes() {
    return {reinterpret_cast<const char*>(small_block), sizeof small_block};
}

// A bitmap that is being replaced keeps what it has until there is something to replace it by. `has_header`:
// the decoder gets so far as to know the picture's size.
void run_replacing(const std::string& name, bool has_header) {
    DIBitmap bitmap = small_bitmap();
    try {
        const ExitThrows exit_throws;
        bitmap.InitJPEG(name);
    } catch (const DecoderExit&) {
        require(has_header || stored_block(bitmap) == small_block_bytes(),
                "a header that is damaged leaves the block");
        check_bitmap(bitmap);
        throw;
    } catch (const std::bad_alloc&) {
        require(stored_block(bitmap) == small_block_bytes(), "a picture without memory leaves the block");
        throw;
    }
    check_picture(bitmap);
}

void run_loading(const std::string& name, DIBitmap::Format format) {
    const auto load = [&] {
        const ExitThrows exit_throws;
        return DIBitmap(name, format);
    };
    check_picture(load());
}

void load(unsigned options, const std::string& name, bool is_bitmap, const std::optional<JpegClaim>& claim) {
    const DIBitmap::Format format = (options & 1) != 0 && !is_bitmap ? DIBitmap::AnyFormat : DIBitmap::JPEG;
    try {
        if ((options & 2) != 0) {
            run_replacing(name, claim.has_value());
        } else {
            run_loading(name, format);
        }
        require(claim.has_value() && !claim->fits_no_block, "a picture has a header and a block");
    } catch (const DecoderExit& exit) {
        require(exit.status == 1, "the decoder ends with status 1");
        require(!claim.has_value() || !claim->fits_no_block, "what fits no block is not decoded");
    } catch (const std::bad_alloc&) {
        require(claim.has_value() && claim->fits_no_block, "only what fits no block finds no memory");
    }
}

void run(unsigned options, std::string_view content) {
    const ScratchFile file(content);
    const std::optional<JpegClaim> claim = claim_of_jpeg(file.Name());
    if (!claim.has_value() || claim->pixels <= most_pixels || claim->fits_no_block) {
        load(options, file.Name(), content.substr(0, 2) == "BM", claim);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned options = input.Byte();
    const LargestAllocation limit(most_memory, LargestAllocation::IsFinding);
    run(options, input.Rest());
    return 0;
}
