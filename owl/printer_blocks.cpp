#include "owl/printer_blocks.h"

#include <commdlg.h>

#include <cstring>
#include <limits>
#include <new>

#include "owl/error.h"

namespace owl {

namespace {

WORD Append(std::vector<std::byte>& bytes, const std::string& text) {
    const std::size_t offset = bytes.size();
    if (text.size() >= std::numeric_limits<WORD>::max() - offset)
        throw TXOwl("the names of the printer are too long");
    const auto* const first = reinterpret_cast<const std::byte*>(text.c_str());
    bytes.insert(bytes.end(), first, first + text.size() + 1);
    return static_cast<WORD>(offset);
}

std::string TextAt(const std::vector<std::byte>& bytes, std::size_t offset) {
    if (offset >= bytes.size())
        return std::string();
    const auto* const first = reinterpret_cast<const char*>(bytes.data()) + offset;
    return std::string(first, strnlen(first, bytes.size() - offset));
}

std::size_t SizeOf(const DEVMODEA& mode) {
    return std::size_t{mode.dmSize} + mode.dmDriverExtra;
}

}  // namespace

std::vector<std::byte> DevNamesBytes(const PrinterNames& names) {
    std::vector<std::byte> bytes(sizeof(DEVNAMES));
    DEVNAMES head{};
    head.wDriverOffset = Append(bytes, names.driver);
    head.wDeviceOffset = Append(bytes, names.device);
    head.wOutputOffset = Append(bytes, names.output);
    std::memcpy(bytes.data(), &head, sizeof head);
    return bytes;
}

PrinterNames NamesInDevNames(const std::vector<std::byte>& bytes) {
    DEVNAMES head{};
    if (bytes.size() < sizeof head)
        return {};
    std::memcpy(&head, bytes.data(), sizeof head);
    return {TextAt(bytes, head.wDriverOffset), TextAt(bytes, head.wDeviceOffset),
            TextAt(bytes, head.wOutputOffset)};
}

std::vector<std::byte> DevModeBytes(const DEVMODEA* mode) {
    if (mode == nullptr)
        return {};
    const auto* const first = reinterpret_cast<const std::byte*>(mode);
    return std::vector<std::byte>(first, first + SizeOf(*mode));
}

// A block is often larger than what was asked for.
std::vector<std::byte> WholeDevMode(std::vector<std::byte> bytes) {
    // Older drivers leave later fields out, but never those up to here.
    constexpr std::size_t least = offsetof(DEVMODEA, dmPrintQuality) + sizeof(short);
    if (bytes.size() < least)
        return {};
    DEVMODEA head{};
    std::memcpy(&head, bytes.data(), least);
    if (head.dmSize < least || SizeOf(head) > bytes.size())
        return {};
    bytes.resize(SizeOf(head));
    return bytes;
}

HGLOBAL MakeBlock(const std::vector<std::byte>& bytes) {
    if (bytes.empty())
        return nullptr;
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    void* const memory = block != nullptr ? ::GlobalLock(block) : nullptr;
    if (memory == nullptr) {
        ::GlobalFree(block);
        throw std::bad_alloc();
    }
    std::memcpy(memory, bytes.data(), bytes.size());
    ::GlobalUnlock(block);
    return block;
}

std::vector<std::byte> BlockBytes(HGLOBAL block) {
    const auto* const memory =
        block != nullptr ? static_cast<const std::byte*>(::GlobalLock(block)) : nullptr;
    if (memory == nullptr)
        return {};
    std::vector<std::byte> bytes(memory, memory + ::GlobalSize(block));
    ::GlobalUnlock(block);
    return bytes;
}

}  // namespace owl
