#include "lvx/exchange/dde_blocks.h"

#include <dde.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "lvx/images/global_locker.h"

namespace lvx::exchange {

namespace {

// Handles of blocks lie above all atoms.
constexpr UINT_PTR last_atom = 0xFFFF;

bool is_block(UINT_PTR value) {
    return value > last_atom && ::GlobalSize(reinterpret_cast<HGLOBAL>(value)) > 0;
}

unsigned short as_atom(UINT_PTR value) {
    return value <= last_atom ? static_cast<unsigned short>(value) : 0;
}

// A packing is a block of two values. Words in its place are not: a status and an atom do not make a handle.
bool is_packed(LPARAM lParam) {
    const auto value = static_cast<UINT_PTR>(lParam);
    return value > last_atom && ::GlobalSize(reinterpret_cast<HGLOBAL>(value)) >= 2 * sizeof(UINT_PTR);
}

bool comes_packed(UINT message) {
    return message == WM_DDE_ACK || message == WM_DDE_ADVISE || message == WM_DDE_DATA ||
           message == WM_DDE_POKE;
}

}  // namespace

std::optional<BlockHeader> header_of(HGLOBAL block) {
    if (!is_block(reinterpret_cast<UINT_PTR>(block)) || ::GlobalSize(block) < sizeof(BlockHeader)) {
        return std::nullopt;
    }
    const LVXUtilities::GlobalLocker<const char> bytes(block);
    if (bytes.get() == nullptr) {
        return std::nullopt;
    }
    BlockHeader header{};
    std::memcpy(&header, bytes.get(), sizeof header);
    return header;
}

std::optional<BlockCopy> copy_of(HGLOBAL block, std::size_t offset) {
    if (!is_block(reinterpret_cast<UINT_PTR>(block))) {
        return std::nullopt;
    }
    const std::size_t all = ::GlobalSize(block);
    const std::size_t size = all - std::min(all, offset);
    const LVXUtilities::GlobalLocker<const char> bytes(block);
    BlockCopy copy{std::unique_ptr<char[]>(new (std::nothrow) char[size + 2]()), size};
    if (bytes.get() == nullptr || copy.bytes == nullptr) {
        return std::nullopt;
    }
    std::memcpy(copy.bytes.get(), bytes.get() + (all - size), size);
    return copy;
}

void free_packed(UINT message, LPARAM lParam) {
    if (comes_packed(message) && is_packed(lParam)) {
        ::FreeDDElParam(message, lParam);
    }
}

Acknowledgement take_acknowledgement(LPARAM lParam) {
    UINT_PTR status = 0;
    UINT_PTR item = 0;
    if (!is_packed(lParam) || !::UnpackDDElParam(WM_DDE_ACK, lParam, &status, &item)) {
        return {LOWORD(lParam), HIWORD(lParam)};
    }
    ::FreeDDElParam(WM_DDE_ACK, lParam);
    return {LOWORD(status), as_atom(item)};
}

ItemAndBlock item_and_block(UINT message, LPARAM lParam) {
    UINT_PTR low = 0;
    UINT_PTR high = 0;
    if (!is_packed(lParam) || !::UnpackDDElParam(message, lParam, &low, &high)) {
        return {0, nullptr};
    }
    if (!is_block(high) && (is_block(low) || as_atom(low) == 0)) {
        std::swap(low, high);
    }
    return {as_atom(low), is_block(high) ? reinterpret_cast<HGLOBAL>(high) : nullptr};
}

bool is_of_another_process(HWND window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return process != 0 && process != ::GetCurrentProcessId();
}

}  // namespace lvx::exchange
