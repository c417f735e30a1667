#include "bitmap_check.h"

#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "check.h"
#include "lvx/platform/global_memory.h"
#include "support/recording_store.h"

namespace lvx_fuzz {
namespace {

using LVXUtilities::DIBitmap;

std::uint32_t word_at(const std::string& bytes, std::size_t offset) {
    std::uint32_t word = 0;
    if (offset + sizeof word <= bytes.size()) {
        std::memcpy(&word, bytes.data() + offset, sizeof word);
    }
    return word;
}

std::uint16_t half_at(const std::string& bytes, std::size_t offset) {
    std::uint16_t half = 0;
    if (offset + sizeof half <= bytes.size()) {
        std::memcpy(&half, bytes.data() + offset, sizeof half);
    }
    return half;
}

void check_numbers(const DIBitmap& bitmap, const std::string& block) {
    const bool is_core = word_at(block, 0) == 12;
    const int width = is_core ? half_at(block, 4) : static_cast<int>(word_at(block, 4));
    const int height = is_core ? half_at(block, 6) : static_cast<int>(word_at(block, 8));
    const int depth = is_core ? half_at(block, 10) : half_at(block, 14);
    require(bitmap.GetWidth() == width && bitmap.GetHeight() == height, "size as in the header");
    require(bitmap.GetSize() == owl::TSize(width, height), "one size");
    require(bitmap.GetBitsPerPixel() == depth, "depth as in the header");
    const int x = is_core ? 0 : static_cast<int>(word_at(block, 24));
    const int y = is_core ? 0 : static_cast<int>(word_at(block, 28));
    require(bitmap.GetPixelsPerMetreX() == x && bitmap.GetPixelsPerMetreY() == y, "resolution");
    require(bitmap.GetStorageWidth() % 4 == 0, "rows are padded to 4 bytes");
}

void check_addresses(const DIBitmap& bitmap, const std::string& block) {
    const auto table = bitmap.GetClrTabAddress();
    const auto pixels = bitmap.GetBitsAddress();
    if (block.empty()) {
        return;
    }
    const auto* const table_start = reinterpret_cast<const unsigned char*>(table.get());
    const unsigned char* const start = table_start - std::min<std::size_t>(word_at(block, 0), block.size());
    const unsigned char* const end = start + block.size();
    require(table_start <= pixels.get() && pixels.get() <= end, "the pixels lie behind the table");
    auto* const whole = const_cast<unsigned char*>(start);
    require(__asan_region_is_poisoned(whole, block.size()) == nullptr, "addresses lie in the block");
    require(std::memcmp(start, block.data(), block.size()) == 0, "addresses show what is stored");
}

}  // namespace

std::string stored_block(const DIBitmap& bitmap) {
    lvx_test::RecordingStore store;
    bitmap.PutTo(store);
    require(store.Data().size() >= 4 && word_at(store.Data(), 0) == store.Data().size() - 4,
            "a stored bitmap is its size and its bytes");
    return store.Data().substr(4);
}

std::string stored_pixels(const DIBitmap& bitmap) {
    const std::string block = stored_block(bitmap);
    const auto table = bitmap.GetClrTabAddress();
    const auto pixels = bitmap.GetBitsAddress();
    const auto table_size = pixels.get() - reinterpret_cast<const unsigned char*>(table.get());
    return block.substr(std::min<std::size_t>(word_at(block, 0), block.size()) +
                        static_cast<std::size_t>(table_size));
}

std::size_t check_bitmap(const DIBitmap& bitmap) {
    const std::string block = stored_block(bitmap);
    check_numbers(bitmap, block);
    check_addresses(bitmap, block);
    return block.size();
}

void check_bitmap_copies(const DIBitmap& bitmap) {
    const std::string block = stored_block(bitmap);
    DIBitmap copy(bitmap);
    DIBitmap other(nullptr, DIBitmap::Copy);
    other.swap(copy);
    other.swap(other);
    require(stored_block(other) == block, "a swapped copy has the same bytes");
    copy = other;
    copy = static_cast<const DIBitmap&>(copy);
    check_bitmap(copy);
    require(stored_block(copy) == block, "an assigned copy has the same bytes");

    lvx_test::RecordingStore store;
    store << bitmap << bitmap;
    store.Rewind();
    Storable* object = nullptr;
    Storable* again = nullptr;
    store >> object >> again;
    const std::unique_ptr<Storable> owner(object);
    require(object == again, "the second one is a reference");
    const auto& restored = dynamic_cast<const DIBitmap&>(*object);
    const std::string stored = stored_block(restored);
    require(stored.substr(0, block.size()) == block, "a stored bitmap has the same bytes");
    require(stored.size() == block.size() + (DIBitmap::FixUp ? 24 : 0), "and as many");
    check_bitmap(restored);
}

}  // namespace lvx_fuzz
