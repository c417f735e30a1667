// A packed picture, as a bitmap file or as resources and the clipboard hold it. A second coding of the rules
// says whether it can be read and what comes out of it.
//
//     byte 0      bit 0: it is a file   bit 1: the next two bytes say where the pixels begin
//     the rest    the picture
#include "owl/packed_dib.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "check.h"
#include "input.h"
#include "owl/error.h"

namespace {

using lvx_fuzz::require;
using Text = std::string_view;

struct Picture {
    std::string info;
    std::string bits;
};

std::int64_t number(Text bytes, std::size_t at, std::size_t size) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value += std::int64_t{static_cast<unsigned char>(bytes[at + i])} << 8 * i;
    }
    return value;
}

std::int64_t signed_number(Text bytes, std::size_t at) {
    const std::int64_t value = number(bytes, at, 4);
    return value < 0x80000000 ? value : value - 0x100000000;
}

std::string word(std::int64_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) {
        bytes += static_cast<char>(value >> 8 * i & 0xFF);
    }
    return bytes;
}

// The bytes of `text` from `at` on; none if there are not so many.
std::optional<Text> part(Text text, std::int64_t at, std::int64_t count) {
    const auto size = static_cast<std::int64_t>(text.size());
    if (at > size || count > size - at) {
        return std::nullopt;
    }
    return text.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(count));
}

// Step by step, in wide numbers, with nothing kept from the library's own reading.
std::optional<Picture> expected(Text text, std::int64_t offset) {
    if (text.size() < 12) {
        return std::nullopt;
    }
    const std::int64_t header = number(text, 0, 4);
    const bool core = header == 12;
    if (!core && (header < 40 || !part(text, 0, header))) {
        return std::nullopt;
    }
    const std::int64_t width = core ? number(text, 4, 2) : signed_number(text, 4);
    const std::int64_t height = core ? number(text, 6, 2) : signed_number(text, 8);
    const std::int64_t depth = core ? number(text, 10, 2) : number(text, 14, 2);
    const std::int64_t compression = core ? 0 : number(text, 16, 4);
    const std::int64_t claimed = core ? 0 : number(text, 20, 4);
    const std::int64_t used = core ? 0 : number(text, 32, 4);
    if (width <= 0 || height == 0 || height == -0x80000000ll) {
        return std::nullopt;
    }
    const bool indexed = depth == 1 || depth == 4 || depth == 8;
    if (!indexed && depth != 16 && depth != 24 && depth != 32) {
        return std::nullopt;
    }
    const bool runs = (compression == 1 && depth == 8) || (compression == 2 && depth == 4);
    const bool masks = compression == 3 && (depth == 16 || depth == 32);
    if ((compression != 0 && !runs && !masks) || (runs && height < 0)) {
        return std::nullopt;
    }
    const std::int64_t rows = height < 0 ? -height : height;
    const std::int64_t stride = (width * depth + 31) / 32 * 4;
    if (stride > 0x7FFFFFFF / rows) {
        return std::nullopt;
    }
    const std::int64_t names = indexed ? std::int64_t{1} << depth : 0;
    const std::int64_t stored = used != 0 ? used : names;
    const std::int64_t size = core ? 3 : 4;
    const bool follow = masks && header < 52;
    const std::int64_t table = header + (follow ? 12 : 0);
    const auto mask_bytes = part(text, follow ? header : 40, masks ? 12 : 0);
    if (!part(text, table, stored * size) || (masks && !mask_bytes)) {
        return std::nullopt;
    }
    const std::int64_t begin = offset != 0 ? offset : table + stored * size;
    const std::int64_t rest = static_cast<std::int64_t>(text.size()) - begin;
    const std::int64_t count = !runs ? stride * rows : claimed == 0 || claimed > rest ? rest : claimed;
    const auto bits = rest < 0 ? std::nullopt : part(text, begin, count);
    if (!bits) {
        return std::nullopt;
    }
    const std::int64_t kept = stored < names ? stored : names;
    Picture picture;
    picture.bits = *bits;
    picture.info = word(40) + word(width) + word(height) + word(1 | depth << 16) + word(compression) +
                   word(count) + (core ? std::string(8, '\0') : std::string(text.substr(24, 8))) +
                   word(kept) + word(0);
    picture.info += masks ? *mask_bytes : Text();
    for (std::int64_t i = 0; i < kept; ++i) {
        picture.info += *part(text, table + i * size, 3);
        picture.info += '\0';
    }
    return picture;
}

std::optional<Picture> expected_file(Text text) {
    if (text.size() < 14 || text.substr(0, 2) != "BM") {
        return std::nullopt;
    }
    const std::int64_t offset = number(text, 10, 4);
    return expected(text.substr(14), offset > 14 ? offset - 14 : 0);
}

Picture picture_of(const owl::DibParts& parts) {
    return {std::string(parts.info.begin(), parts.info.end()),
            std::string(parts.bits.begin(), parts.bits.end())};
}

std::optional<Picture> read(Text text, bool is_file, std::size_t offset) {
    // A copy of its own, so that the sanitizer sees its end.
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    try {
        return picture_of(is_file ? owl::ReadDibFile(bytes.data(), bytes.size())
                                  : owl::ReadPackedDib(bytes.data(), bytes.size(), offset));
    } catch (const owl::TXGdi& error) {
        require(error.GetCode() == 13, "what is refused is damaged");
        return std::nullopt;
    }
}

void require_equal(const std::optional<Picture>& found, const std::optional<Picture>& wanted) {
    require(found.has_value() == wanted.has_value(), "both codings accept the same pictures");
    if (found) {
        require(found->info == wanted->info, "both codings read the same header, masks and colours");
        require(found->bits == wanted->bits, "both codings read the same pixels");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lvx_fuzz::Input input(data, size);
    const unsigned options = input.Byte();
    const bool is_file = (options & 1) != 0;
    const bool has_offset = (options & 2) != 0 && !is_file;
    const std::size_t offset = has_offset ? input.Byte() + input.Byte() * 256u : 0;
    const Text text = input.Rest();
    const auto found = read(text, is_file, offset);
    require_equal(found, is_file ? expected_file(text) : expected(text, static_cast<std::int64_t>(offset)));
    if (found) {
        require_equal(read(found->info + found->bits, false, 0), found);
    }
    return 0;
}
