#include "sketch/model/picture_file.h"

#include <windows.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <new>

#include "lvx/images/global_locker.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

using LVXUtilities::DIBitmap;

// The library must not be handed a file that is no JPEG file as one.
DIBitmap::Format FormatOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw DocumentError("The file cannot be read.");
    }
    char start[3] = "";
    stream.read(start, sizeof start);
    const std::string bytes(start, static_cast<std::size_t>(stream.gcount()));
    if (bytes.starts_with("BM")) {
        return DIBitmap::DIB;
    }
    if (bytes == "\xFF\xD8\xFF") {
        return DIBitmap::JPEG;
    }
    throw DocumentError("This is neither a bitmap nor a JPEG file.");
}

Bitmap FromBlock(const std::string& block) {
    HGLOBAL handle = ::GlobalAlloc(GMEM_MOVEABLE, block.size());
    if (handle == nullptr) {
        throw std::bad_alloc();
    }
    {
        const LVXUtilities::GlobalLocker<char> bytes(handle);
        std::memcpy(bytes.get(), block.data(), block.size());
    }
    return std::make_shared<DIBitmap>(handle, DIBitmap::Adopt);
}

// What stands behind a bitmap file's own header is a block already, if nothing lies before its pixels. The
// library looks for the colours of a file 14 bytes too early, which documents depend on (docs/bitmaps.md);
// who adds a picture wants its own. Null if this file is not of that kind, or has no colour table.
Bitmap WithOwnColours(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    if (bytes.size() < sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)) {
        return nullptr;
    }
    BITMAPFILEHEADER header;
    std::memcpy(&header, bytes.data(), sizeof header);
    Bitmap bitmap = FromBlock(bytes.substr(sizeof header));
    const auto* const table = reinterpret_cast<const char*>(bitmap->GetClrTabAddress().get());
    const auto* const pixels = reinterpret_cast<const char*>(bitmap->GetBitsAddress().get());
    DWORD headerSize = 0;
    std::memcpy(&headerSize, bytes.data() + sizeof header, sizeof headerSize);
    const std::int64_t pixelsAt = std::int64_t{sizeof header} + headerSize + (pixels - table);
    return pixels != table && pixelsAt == header.bfOffBits ? bitmap : nullptr;
}

}  // namespace

Bitmap LoadPicture(const std::string& file) {
    try {
        const DIBitmap::Format format = FormatOf(file);
        Bitmap bitmap = format == DIBitmap::DIB ? WithOwnColours(file) : nullptr;
        return bitmap != nullptr ? bitmap : std::make_shared<DIBitmap>(file, format);
    } catch (const char* text) {
        throw DocumentError(text);
    }
}

std::string PictureName(const std::string& file) {
    const std::string name = file.substr(file.find_last_of("\\/:") + 1);
    return name.substr(0, name.rfind('.'));
}

}  // namespace sketch
