// lvx/exchange/dde_blocks.h
//
// What DDE messages carry: pairs of values, whole or packed, and blocks of memory with two words in front.
// All of it comes from other programs: whatever is not there, too short or no block at all is taken for
// nothing, and nothing is read beyond a block. Private to the library.
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <optional>

namespace lvx::exchange {

/// A program that accepts says so with this word alone.
inline constexpr unsigned short accepted = 0x8000;

/// The bits of a block's first word.
inline constexpr unsigned short response_flag = 0x1000;
inline constexpr unsigned short release_flag = 0x2000;
inline constexpr unsigned short deferred_flag = 0x4000;
inline constexpr unsigned short acknowledge_flag = 0x8000;

/// The two words that every block but a command's begins with.
struct BlockHeader {
    unsigned short flags;
    unsigned short format;
};

/// Nothing for what is no block, or a shorter one.
std::optional<BlockHeader> header_of(HGLOBAL block);

/// The bytes of a block, and two zeros behind: of a text, also of wide characters, there is an end.
struct BlockCopy {
    std::unique_ptr<char[]> bytes;
    std::size_t size;
};

/// What stands in `block` behind its first `offset` bytes. Nothing for what is no block, or if there is no
/// memory; no bytes for a block that is shorter.
std::optional<BlockCopy> copy_of(HGLOBAL block, std::size_t offset);

/// Frees what PackDDElParam made for `message`; does nothing for messages that carry their values whole.
void free_packed(UINT message, LPARAM lParam);

/// Status and atom of a WM_DDE_ACK.
struct Acknowledgement {
    unsigned short status;
    unsigned short atom;
};

/// Frees the packing, if there is one. An answer that was sent has its words in `lParam`; one that was posted
/// has them packed.
Acknowledgement take_acknowledgement(LPARAM lParam);

/// The item and the block of a WM_DDE_ADVISE or WM_DDE_POKE.
struct ItemAndBlock {
    unsigned short atom;
    HGLOBAL block;
};

/// The packing stays. The item is the low value and the block the high one: so the programs do that were
/// written with this library. The rest of the world has them the other way round; it is understood where the
/// high value is no block and the low one is.
ItemAndBlock item_and_block(UINT message, LPARAM lParam);

/// Whether a window belongs to another process. False for what is no window.
bool is_of_another_process(HWND window);

/// Whether this system hands a copy of the block to the receiver of a posted message, as Wine does, also
/// within a process. The block then remains its sender's, and the copy has nobody but the receiver. Elsewhere
/// the system keeps the books of blocks between processes, and within one there is but one block.
bool posting_copies_blocks();

}  // namespace lvx::exchange
