// lvx/exchange/pieces.h
//
// Bytes that go to and from a file in pieces: the system's older file calls count in 16 bits on some systems.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

namespace lvx::exchange {

inline constexpr std::size_t largest_piece = 0x8000;

/// Hands `bytes` piece by piece to `transfer`, which returns how many of them it moved, and stops behind the
/// first piece that was moved in part. Returns how many bytes were moved. Without bytes nothing is handed.
template <class Byte, class Transfer>
std::size_t transfer_in_pieces(std::span<Byte> bytes, const Transfer& transfer) {
    std::size_t moved = 0;
    while (moved < bytes.size()) {
        const std::span<Byte> piece = bytes.subspan(moved, std::min(bytes.size() - moved, largest_piece));
        const std::size_t done = transfer(piece);
        moved += done;
        if (done != piece.size()) {
            break;
        }
    }
    return moved;
}

}  // namespace lvx::exchange
