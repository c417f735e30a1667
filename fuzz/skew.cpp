// Skewed and turned pictures. What SkewPoint makes is the block that a second coding makes, byte for byte,
// and every way of skewing comes to its pixels; what Rotated makes is as large as it has to be.
//
//     byte 0      bits 0 and 1: the corner   bit 2: any other number for a corner   bit 3: what follows is a
//                 block as it is, not parts of a header   bit 4: from now on the background is the marked one
//     then        how far the corner is dragged: across, down, two bytes each with a sign
//     then        the angle, two bytes with a sign, in thousandths
//     then        unless the block follows: width, height (one byte each), depth (one byte, the usual ones
//                 first), compression, colours used, length of the header
//     the rest    what is behind the header, or the block
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bitmap_check.h"
#include "check.h"
#include "input.h"
#include "lvx/images/block_layout.h"
#include "lvx/images/skew.h"
#include "lvx/images/skew_pixel.h"
#include "lvx/images/turn_frame.h"
#include "lvx/platform/global_memory.h"
#include "memory_limit.h"
#include "support/skew_oracle.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::SkewOracle;
using LVXUtilities::DIBitmap;
using LVXUtilities::Rectangles::Corner;

// The second coding takes its time.
constexpr std::uint32_t longest_side = 100;

std::uint32_t background = 0x00FFFFFF;

struct Parameters {
    int corner;
    int dx;
    int dy;
    double angle;
};

int signed_number(Input& input) {
    const int low = input.Byte();
    return static_cast<std::int16_t>(low | input.Byte() << 8);
}

int corner_of(unsigned options, Input& input) {
    constexpr int corners[] = {5, 6, 9, 10};
    return (options & 4) != 0 ? static_cast<std::int8_t>(input.Byte()) : corners[options & 3];
}

void put(std::string& block, std::size_t place, std::size_t count, std::uint32_t number) {
    for (std::size_t i = 0; i < count; ++i) {
        block[place + i] = static_cast<char>(number >> (8 * i));
    }
}

std::string header_of(Input& input) {
    constexpr std::uint32_t depths[] = {24, 32, 8, 16, 4, 1};
    std::string header(40, '\0');
    const unsigned width = input.Byte();
    const unsigned height = input.Byte();
    const unsigned depth = input.Byte();
    put(header, 4, 4, width % (longest_side + 1));
    put(header, 8, 4, height % (longest_side + 1));
    put(header, 12, 2, 1);
    put(header, 14, 2, depth < 6 ? depths[depth] : depth);
    put(header, 16, 4, input.Byte() % 5u);
    put(header, 32, 4, input.Byte());
    put(header, 0, 4, (input.Byte() + 40u) % 256);
    return header;
}

class Block {
public:
    explicit Block(const std::string& content) : m_handle(GlobalAlloc(GMEM_MOVEABLE, content.size())) {
        require(m_handle != nullptr, "a small block is made");
        if (!content.empty()) {
            std::memcpy(GlobalLock(m_handle), content.data(), content.size());
            GlobalUnlock(m_handle);
        }
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() { require(GlobalFree(m_handle) == nullptr, "a block is freed once"); }

    operator HGLOBAL() const { return m_handle; }

private:
    HGLOBAL m_handle;
};

// What the second coding makes; nothing if it refuses, with the words in `refusal`.
std::optional<std::string> told(const std::string& block, const Parameters& parameters,
                                std::string& refusal) {
    try {
        return SkewOracle(block, parameters.corner, parameters.dx, parameters.dy, background).Block();
    } catch (const std::runtime_error& error) {
        refusal = error.what();
        return std::nullopt;
    }
}

// The pixels by each way, from memory of their own.
void check_ways(const DIBitmap& source, const lvx::images::BlockLayout& layout, const Parameters& parameters,
                const std::string& pixels) {
    const auto frame =
        lvx::images::place_skew(source.GetWidth(), source.GetHeight(), static_cast<Corner>(parameters.corner),
                                parameters.dx, parameters.dy);
    const std::string bytes = stored_pixels(source);
    const std::vector<unsigned char> own(bytes.begin(), bytes.end());
    for (const auto way : {lvx::images::SkewWay::plain, lvx::images::SkewWay::by_four}) {
        std::vector<unsigned char> made(pixels.size());
        const lvx::images::SkewTask task{
            lvx::images::SkewMap(frame.corners),
            {own.data(), own.size(), layout.width, layout.rows, layout.stride, layout.header.biBitCount},
            frame.origin,
            background,
            lvx::images::mean_of_four(background, background, background, background),
            static_cast<int>(frame.width),
            static_cast<int>(frame.height),
            made.data(),
            made.size()};
        lvx::images::skew(task, way);
        const bool is_same =
            std::equal(made.begin(), made.end(), pixels.begin(),
                       [](unsigned char a, char b) { return a == static_cast<unsigned char>(b); });
        require(is_same, "each way comes to the same");
    }
}

void check_skewed(const DIBitmap& source, const lvx::images::BlockLayout& layout, const std::string& block,
                  const Parameters& parameters) {
    std::string refusal;
    const std::optional<std::string> expected = told(block, parameters, refusal);
    try {
        const auto result =
            source.SkewPoint(static_cast<Corner>(parameters.corner), parameters.dx, parameters.dy);
        require(expected.has_value(), "what is refused is refused");
        check_bitmap(*result);
        require(stored_block(*result) == *expected, "a skewed picture has the bytes that are told");
        const std::string pixels = stored_pixels(*result);
        const std::size_t size =
            4u * static_cast<std::size_t>(result->GetWidth()) * static_cast<std::size_t>(result->GetHeight());
        check_ways(source, layout, parameters, pixels.substr(0, size));
    } catch (const std::runtime_error& error) {
        require(!expected.has_value() && refusal == error.what(), "what is told is not refused");
    }
}

void check_unlike_pictures(const DIBitmap& source, const Parameters& parameters) {
    try {
        const auto result =
            source.SkewPoint(static_cast<Corner>(parameters.corner), parameters.dx, parameters.dy);
        check_bitmap(*result);
    } catch (const std::runtime_error& error) {
        require(error.what()[0] != '\0', "a refusal has words");
    }
}

void check_turned(const DIBitmap& source, const lvx::images::BlockLayout& layout,
                  const Parameters& parameters) {
    const auto result = source.Rotated(parameters.angle);
    if (result.get() == nullptr) {
        return;
    }
    const auto frame = lvx::images::turn_frame(layout.width, layout.rows, parameters.angle);
    require(result->GetWidth() == frame.width && result->GetHeight() == frame.height,
            "a turned picture fills its frame");
    require(result->GetBitsPerPixel() == source.GetBitsPerPixel(), "a turned picture keeps its depth");
    check_bitmap(*result);
}

void run(Input input) {
    const unsigned options = input.Byte();
    if ((options & 16) != 0) {
        DIBitmap::DebugSkew();
        background = 0x00FFFF80;
    }
    Parameters parameters{};
    parameters.corner = corner_of(options, input);
    parameters.dx = signed_number(input) % 256;
    parameters.dy = signed_number(input) % 256;
    parameters.angle = signed_number(input) / 1000.0;
    std::string content = (options & 8) != 0 ? "" : header_of(input);
    content += input.Rest();
    const Block block(content);
    const DIBitmap source(block, DIBitmap::Borrow);
    const lvx::images::BlockLayout layout = lvx::images::layout_of(block, 0);
    if (layout.width > longest_side || layout.rows > longest_side) {
        return;
    }
    const bool is_core = layout.table_at == sizeof(BITMAPCOREHEADER);
    const bool is_plain = !is_core && source.GetWidth() >= 0 && source.GetHeight() >= 0;
    const std::uint32_t claimed_colours = layout.header.biClrUsed;
    if (is_plain && layout.table_at < 100'000 && claimed_colours < 10'000) {
        check_skewed(source, layout, content, parameters);
    } else {
        check_unlike_pictures(source, parameters);
    }
    check_turned(source, layout, parameters);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LargestAllocation limit(80 * 1024 * 1024, LargestAllocation::IsFinding);
    run(Input(data, size));
    return 0;
}
