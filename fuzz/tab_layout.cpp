// A strip of tabs: whatever is done to it, it is what a second coding of the rules says. And whatever it is
// asked for, with any numbers, it answers in bounds.
//
//     bytes 0, 1  the style
//     byte 2      bit 0: there is no window   the rest: the width of the bitmap with the cels
//     then        steps, and the numbers that they ask for, each in a byte or two
#include <cstdint>
#include <stdexcept>

#include "check.h"
#include "input.h"
#include "support/tab_walk.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::PaperStrip;

int number_of_32_bits(Input& input) {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number << 8 | input.Byte();
    return static_cast<int>(number);
}

void walk(Input input, unsigned long style) {
    const unsigned options = input.Byte();
    lvx_test::TabWalk walk(style, (options & 1) == 0, static_cast<int>(options >> 1));
    const auto number = [&](int below) {
        const int low = input.Byte();
        return (below > 256 ? low << 8 | input.Byte() : low) % below;
    };
    for (int step = 0; step < 300 && !input.IsEmpty(); ++step) {
        walk.Step(number);
        require(walk.Difference().empty(), "a strip is what the rules say");
    }
}

// Numbers far from all that a strip has. Not with two lines, which are measured again and again.
void ask_for_anything(Input input, unsigned long style) {
    PaperStrip strip{Tab::Style(style & ~1UL)};
    for (int tabs = input.Byte() % 8; tabs > 0; --tabs)
        strip.Add(std::string(input.Short(8)), tabs % 3 != 0);
    strip.surface.client = owl::TRect(number_of_32_bits(input), number_of_32_bits(input),
                                      number_of_32_bits(input), number_of_32_bits(input));
    strip.surface.arrow = owl::TSize(number_of_32_bits(input), number_of_32_bits(input));
    strip.layout.SetFixedTabWidth(number_of_32_bits(input));
    strip.layout.SetWideMarginWidth(number_of_32_bits(input));
    strip.layout.Resized();
    while (!input.IsEmpty()) {
        const int tab = number_of_32_bits(input);
        owl::TRect rect;
        strip.layout.SetRect(rect, tab);
        strip.layout.GetScrollRect(rect, tab);
        strip.layout.GetTabRect(rect, tab, number_of_32_bits(input));
        strip.layout.GetMouseTab(owl::TPoint(tab, number_of_32_bits(input)));
        strip.layout.AdjustOrigin(tab);
        strip.layout.BringRowForward(tab);
        strip.layout.NextUsableTab(tab);
        strip.layout.NextOrigin(tab);
        strip.layout.ShowSelection(tab, (tab & 1) != 0);
        try {
            strip.layout.EnableTab(tab, (tab & 2) != 0);
        } catch (const std::out_of_range&) {
            require(tab < 0 || tab >= strip.layout.GetEntryCount(), "a tab that is there is found");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned long low = input.Byte();
    const unsigned long style = low | static_cast<unsigned long>(input.Byte()) << 8;
    walk(input, style);
    ask_for_anything(input, style);
    return 0;
}
