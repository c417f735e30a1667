#include "owl/palette.h"

#include <cstring>
#include <vector>

#include "owl/last_error.h"

namespace owl {
namespace {

constexpr WORD paletteVersion = 0x300;
constexpr int mostEntries = 0xFFFF;

HPALETTE MakePalette(const LOGPALETTE& description) {
    return Require<TXGdi>("CreatePalette", [&] { return ::CreatePalette(&description); });
}

HPALETTE MakePalette(const PALETTEENTRY* entries, int count) {
    if (!entries || count < 1 || count > mostEntries)
        throw TXGdi("CreatePalette: a palette has from 1 to 65535 entries", ERROR_INVALID_PARAMETER);
    const std::size_t bytes = static_cast<std::size_t>(count) * sizeof *entries;
    // As LOGPALETTE: version and count in one word each, then the entries, of 4 bytes.
    std::vector<PALETTEENTRY> description(static_cast<std::size_t>(count) + 1);
    const WORD head[2] = {paletteVersion, static_cast<WORD>(count)};
    std::memcpy(description.data(), head, sizeof head);
    std::memcpy(description.data() + 1, entries, bytes);
    return MakePalette(*reinterpret_cast<const LOGPALETTE*>(description.data()));
}

HPALETTE CopyPalette(const TPalette& palette) {
    const int count = palette.GetNumEntries();
    std::vector<PALETTEENTRY> entries(static_cast<std::size_t>(count));
    palette.GetPaletteEntries(0, count, entries.data());
    return MakePalette(entries.data(), count);
}

UINT Unsigned(int number) {
    return number > 0 ? static_cast<UINT>(number) : 0;
}

}  // namespace

TPalette::TPalette(const PALETTEENTRY* entries, int count)
    : TGdiObject(MakePalette(entries, count), AutoDelete) {}

TPalette::TPalette(const LOGPALETTE& description) : TGdiObject(MakePalette(description), AutoDelete) {}

TPalette::TPalette(HPALETTE handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TPalette::TPalette(const TPalette& other) : TGdiObject(CopyPalette(other), AutoDelete) {}

TPalette::~TPalette() = default;

int TPalette::GetNumEntries() const {
    WORD count = 0;
    return ::GetObject(GetHandle(), sizeof count, &count) != 0 ? count : 0;
}

bool TPalette::GetPaletteEntry(int index, PALETTEENTRY& entry) const {
    return GetPaletteEntries(index, 1, &entry) == 1;
}

int TPalette::GetPaletteEntries(int start, int count, PALETTEENTRY* entries) const {
    if (start < 0 || count <= 0 || start >= GetNumEntries())
        return 0;
    return static_cast<int>(::GetPaletteEntries(*this, Unsigned(start), Unsigned(count), entries));
}

bool TPalette::SetPaletteEntry(int index, const PALETTEENTRY& entry) {
    return SetPaletteEntries(index, 1, &entry) == 1;
}

int TPalette::SetPaletteEntries(int start, int count, const PALETTEENTRY* entries) {
    const int behind = GetNumEntries();
    if (start < 0 || count <= 0 || start >= behind)
        return 0;
    const int some = count < behind - start ? count : behind - start;
    return static_cast<int>(::SetPaletteEntries(*this, Unsigned(start), Unsigned(some), entries));
}

int TPalette::GetNearestPaletteIndex(TColor color) const {
    const UINT index = ::GetNearestPaletteIndex(*this, color);
    return index == CLR_INVALID || GetNumEntries() == 0 ? -1 : static_cast<int>(index);
}

}  // namespace owl
