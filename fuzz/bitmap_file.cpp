// A bitmap file, and a bitmap's block in memory. What is read is asked for everything that it can tell,
// copied, stored, saved and loaded again.
//
//     byte 0      bits 0 and 1: the format asked for, 3 being none   bit 2: FixUp   bits 3 and 4: the format
//                 saved as   bit 5: the bytes are a block and not a file   bits 6 and 7: who owns the block
//     the rest    the file or the block
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "bitmap_check.h"
#include "check.h"
#include "input.h"
#include "lvx/platform/bitmap_headers.h"
#include "lvx/platform/global_memory.h"
#include "memory_limit.h"
#include "scratch_file.h"

namespace {

using namespace lvx_fuzz;
using LVXUtilities::DIBitmap;

// Of larger pictures that few bytes claim, copies bring nothing but time.
constexpr std::size_t large_block = 1024 * 1024;

DIBitmap::Format format_of(unsigned bits) {
    return static_cast<DIBitmap::Format>(bits % 4);
}

// Whether the pixels of a saved block are those of the loaded one: its header is all there, and the pixels
// lie behind it.
bool keeps_pixels(const std::string& block) {
    std::uint32_t header_size = 0;
    if (block.size() < sizeof(BITMAPINFOHEADER)) {
        return false;
    }
    std::memcpy(&header_size, block.data(), sizeof header_size);
    return header_size == sizeof(BITMAPCOREHEADER) || header_size >= sizeof(BITMAPINFOHEADER);
}

// Where the one has more, the other has zeros, or what its header leaves out.
void require_same_pixels(const std::string& saved, const std::string& loaded) {
    const std::size_t common = std::min(saved.size(), loaded.size());
    require(saved.compare(0, common, loaded, 0, common) == 0,
            "a saved bitmap is loaded with the same pixels");
    require(loaded.find_first_not_of('\0', common) == std::string::npos,
            "and with zeros for those it lacked");
}

// Loading takes the table from where it always was in the file, which is not where saving puts it. The pixels
// come back.
void check_saved(DIBitmap& bitmap, DIBitmap::Format format) {
    const ScratchFile file("untouched");
    bitmap.SaveAs(file.Name(), format);
    const std::string saved = file.Content();
    if (format == DIBitmap::JPEG) {
        require(saved == "untouched", "saving as JPEG leaves the file alone");
        return;
    }
    const std::string block = stored_block(bitmap);
    require(saved.substr(0, 2) == "BM" && saved.substr(14) == block,
            "a saved file is a header and the block");
    try {
        const DIBitmap loaded(file.Name(), DIBitmap::DIB);
        check_bitmap(loaded);
        if (keeps_pixels(block)) {
            require_same_pixels(stored_pixels(bitmap), stored_pixels(loaded));
        }
    } catch (const char*) {
    } catch (const std::bad_alloc&) {
    }
}

void check_all(DIBitmap& bitmap, unsigned options) {
    if (check_bitmap(bitmap) > large_block) {
        return;
    }
    DIBitmap::FixUp = (options & 4) != 0;
    check_bitmap_copies(bitmap);
    DIBitmap::FixUp = false;
    check_saved(bitmap, format_of(options >> 3));
}

void run_file(unsigned options, std::string_view content) {
    DIBitmap::Format format = format_of(options);
    // What is no bitmap file goes to the decoder of the other kind, which has a target of its own.
    const bool may_decode = format == DIBitmap::JPEG || content.substr(0, 2) != "BM";
    if (may_decode && (format == DIBitmap::JPEG || format == DIBitmap::AnyFormat)) {
        format = DIBitmap::DIB;
    }
    const ScratchFile file(content);
    try {
        DIBitmap bitmap(file.Name(), format);
        require(format == DIBitmap::DIB || format == DIBitmap::AnyFormat, "no other format exists");
        check_all(bitmap, options);
        // The same object takes another file.
        require(bitmap.InitDIB(file.Name()), "what was read is read again");
        check_bitmap(bitmap);
    } catch (const char* text) {
        require(text[0] != '\0', "an error has a text");
    } catch (const std::bad_alloc&) {
    }
}

HGLOBAL make_block(std::string_view content) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, content.size());
    require(block != nullptr, "a small block is made");
    if (!content.empty()) {
        std::memcpy(GlobalLock(block), content.data(), content.size());
        GlobalUnlock(block);
    }
    return block;
}

void run_block(unsigned options, std::string_view content) {
    const auto ownership = static_cast<DIBitmap::Ownership>((options >> 6) % 3);
    const HGLOBAL block = make_block(content);
    {
        DIBitmap bitmap(block, ownership);
        require(stored_block(bitmap) == content, "a bitmap of a block has its bytes");
        check_all(bitmap, options);
    }
    const bool was_freed = ownership == DIBitmap::Adopt;
    require((GlobalSize(block) == content.size()) != was_freed || content.empty(), "a block is freed once");
    if (!was_freed) {
        GlobalFree(block);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned options = input.Byte();
    // 64 MiB is what a short file may claim, plus header and table.
    const LargestAllocation limit(65 * 1024 * 1024, LargestAllocation::IsFinding);
    if ((options & 32) != 0) {
        run_block(options, input.Rest());
    } else {
        run_file(options, input.Rest());
    }
    return 0;
}
