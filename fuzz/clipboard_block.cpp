// A block of memory that another program put on the clipboard, and the object that the host reads out of it
// by way of a file, as a paste does. A second coding says what the block holds.
//
//     byte 0      bits 0 and 1: what the object is read into, nothing new: see Target   bit 2: FixUp
//     byte 1      in which piece the disk is full, none if it is 0, and byte 2 how many bytes that piece gets
//     the rest    the memory
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "check.h"
#include "input.h"
#include "lvx/exchange/pieces.h"
#include "lvx/exchange/storable_block.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_stream.h"
#include "memory_limit.h"
#include "reading.h"
#include "scratch_file.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::ReadObjects;
using LVXUtilities::DIBitmap;

using Memory = std::vector<unsigned char>;

/// Which read a paste makes.
constexpr Step targets[] = {Step::Object, Step::IntoNode, Step::IntoLeaf, Step::IntoNothing};

constexpr std::size_t a_megabyte = 1024 * 1024;

/// The store in `memory`, told a second time, in wide numbers.
std::optional<std::string> expected(std::string_view memory) {
    std::uint64_t length = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        if (i == memory.size()) {
            return std::nullopt;
        }
        length += std::uint64_t{static_cast<unsigned char>(memory[i])} << 8 * i;
    }
    if (length < 4 || memory.size() < length) {
        return std::nullopt;
    }
    return std::string(memory.substr(4, static_cast<std::size_t>(length - 4)));
}

/// The same by the library's rules, out of memory of its own, so that the sanitizer sees its end.
std::optional<std::string> taken(std::string_view memory) {
    const Memory block(memory.begin(), memory.end());
    const auto bytes = lvx::exchange::stored_bytes(block);
    return bytes ? std::optional(std::string(bytes->begin(), bytes->end())) : std::nullopt;
}

std::string block_of(std::string_view store) {
    Memory block(store.size() + lvx::exchange::length_size);
    const auto place = lvx::exchange::begin_block(block);
    require(place.size() == store.size(), "a block has room for the store, and no more");
    std::copy(store.begin(), store.end(), place.begin());
    return {block.begin(), block.end()};
}

/// What gets onto a disk that is full in that piece.
std::string on_disk(std::string_view store, unsigned full_piece, std::size_t room) {
    const Memory bytes(store.begin(), store.end());
    std::string content;
    unsigned pieces = 0;
    const std::size_t moved = lvx::exchange::transfer_in_pieces(
        std::span<const unsigned char>(bytes), [&](std::span<const unsigned char> piece) {
            require(!piece.empty() && piece.size() <= lvx::exchange::largest_piece, "pieces have a limit");
            const std::size_t went = ++pieces == full_piece ? std::min(room, piece.size()) : piece.size();
            content.append(piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(went));
            return went;
        });
    require(moved == content.size(), "what went is counted");
    require(content == store.substr(0, moved), "pieces come in their order");
    require(moved == store.size() || pieces == full_piece, "nothing stops before the disk is full");
    return content;
}

Values read_file(const std::string& content, Step target, ReadObjects& objects) {
    const LargestAllocation limit(2 * a_megabyte + 16 * content.size(), LargestAllocation::IsFinding);
    const ScratchFile scratch(content);
    std::ifstream file(scratch.Name(), std::ios_base::binary);
    ObjectStoreStream store;
    store.OpenStream(&file);
    return read_values(store, std::string(1, static_cast<char>(target)), objects);
}

std::string write_file(const Values& values) {
    const ScratchFile scratch("");
    std::ofstream file(scratch.Name(), std::ios_base::binary);
    ObjectStoreStream store;
    store.OpenStream(&file);
    write_values(store, values);
    store.CloseStream();
    file.close();
    return scratch.Content();
}

/// What was got is put, and got as the same.
void check_round_trip(const Values& values) {
    const auto store = taken(block_of(write_file(values)));
    require(store.has_value(), "what is put can be got");
    ReadObjects objects;
    require(are_equal(values, read_file(*store, Step::Object, objects)), "what was put is got");
}

void run(Input input) {
    const unsigned options = input.Byte();
    const unsigned full_piece = input.Byte();
    const std::size_t room = input.Byte();
    const std::string_view memory = input.Rest();
    const auto store = taken(memory);
    require(store == expected(memory), "both codings find the same store");
    if (!store) {
        return;
    }
    require(block_of(*store) == memory.substr(0, store->size() + 4), "a block is made as it was");
    ReadObjects objects;
    DIBitmap::FixUp = (options & 4) != 0;
    Values values = read_file(on_disk(*store, full_piece, room), targets[options % 4], objects);
    DIBitmap::FixUp = false;
    drop_lost_objects(values, objects);
    if (!values.empty()) {
        check_round_trip(values);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool registered = (lvx_fuzz::register_classes(), true);
    run(Input(data, size));
    require(registered && lvx_test::Tracked::Alive().empty(), "no object is left");
    return 0;
}
