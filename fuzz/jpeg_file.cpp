// A JPEG file. The decoder ends the process on damage; here its exit throws through it, so that what it
// leaves behind is seen, and the next file is read by the same process.
//
//     byte 0      bit 0: AnyFormat in place of JPEG   bit 1: InitJPEG into a bitmap that has a block
//     the rest    the file
#include <cstdint>
#include <cstring>
#include <new>

#include "bitmap_check.h"
#include "check.h"
#include "decoder_exit.h"
#include "input.h"
#include "memory_limit.h"
#include "scratch_file.h"

namespace {

using namespace lvx_fuzz;
using LVXUtilities::DIBitmap;

constexpr std::size_t large_block = 1024 * 1024;

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

// A bitmap that is being replaced keeps what it has until there is something to replace it by.
void run_replacing(const std::string& name) {
    DIBitmap bitmap = small_bitmap();
    try {
        const ExitThrows exit_throws;
        bitmap.InitJPEG(name);
    } catch (const DecoderExit&) {
        check_bitmap(bitmap);
        return;
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

void run(unsigned options, std::string_view content) {
    const bool is_bitmap = content.substr(0, 2) == "BM";
    const DIBitmap::Format format = (options & 1) != 0 && !is_bitmap ? DIBitmap::AnyFormat : DIBitmap::JPEG;
    const ScratchFile file(content);
    try {
        if ((options & 2) != 0) {
            run_replacing(file.Name());
        } else {
            run_loading(file.Name(), format);
        }
    } catch (const DecoderExit& exit) {
        require(exit.status == 1, "the decoder ends with status 1");
    } catch (const char* text) {
        require(std::strcmp(text, "Error") == 0, "an absurd size is told so");
    } catch (const std::bad_alloc&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned options = input.Byte();
    const LargestAllocation limit(65 * 1024 * 1024, LargestAllocation::IsFinding);
    run(options, input.Rest());
    return 0;
}
