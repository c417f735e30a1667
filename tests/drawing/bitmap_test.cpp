#include "lvx/drawing/bitmap.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/memory_dc.h"
#include "support/vtable_slot.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using lvx_test::Sheet;
using lvx_test::slot_of;

namespace {

LVX::Device* const no_device = nullptr;

/// The pixels of a bitmap by the letters of a Surface, without any of its own devices.
std::string picture(const LVXBitmap& bitmap) {
    owl_test::Surface copy(bitmap.GetWidth(), bitmap.GetHeight());
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(dc, bitmap.getBitmap(0));
    EXPECT_NE(nullptr, before) << "the bitmap is selected elsewhere";
    ::BitBlt(copy.dc, 0, 0, bitmap.GetWidth(), bitmap.GetHeight(), dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, before);
    ::DeleteDC(dc);
    return copy.Picture();
}

bool is_in_use(const LVXBitmap& bitmap) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const bool inUse = ::SelectObject(dc, bitmap.getBitmap(0)) == nullptr;
    ::DeleteDC(dc);
    return inUse;
}

DIBSECTION section(const LVXBitmap& bitmap) {
    DIBSECTION section{};
    EXPECT_EQ(int{sizeof section}, ::GetObjectA(bitmap.getBitmap(0), sizeof section, &section));
    return section;
}

/// Fills the upper left quarter of what is 8 by 8 with red.
void draw_corner(LVX::Device& device) {
    LVX::Port port(device);
    LVXBrush red(LVX::Red);
    port.useBrush(&red);
    ASSERT_TRUE(port.Open());
    LVXRectangle corner(RectCorners, 0, 0, 4, 4);
    port.fillRegion(&corner, false);
}

const std::string red_corner = rows(4, "RRRR....") + rows(4, "........");
const std::string white = rows(8, "........");
const std::string black = rows(8, "########");

LVXBitmap white_sheet() {
    LVXBitmap bitmap(8, 8, false);
    bitmap.eraseWhite();
    return bitmap;
}

class CountedSheet : public Sheet {
public:
    owl::TDC* AcquireDC() override {
        ++acquired;
        return Sheet::AcquireDC();
    }
    int acquired = 0;
};

class FailingDevice : public LVX::Device {
public:
    owl::TDC* AcquireDC() override { throw std::runtime_error("no paper"); }
    void ReleaseDC() override { ADD_FAILURE() << "there is nothing to release"; }
};

}  // namespace

TEST(Bitmap, without_a_bitmap_has_nothing_to_draw_on) {
    LVXBitmap bitmap;
    EXPECT_EQ(0, bitmap.GetWidth());
    EXPECT_EQ(0, bitmap.GetHeight());
    EXPECT_EQ(nullptr, bitmap.getBitmap(0));
    EXPECT_EQ(nullptr, static_cast<owl::TBitmap*>(bitmap));
    EXPECT_EQ(nullptr, bitmap.AcquireDC());
    bitmap.ReleaseDC();
    bitmap.eraseWhite();
    LVX::Port port(bitmap);
    EXPECT_FALSE(port.Open());
    int width = 1;
    int height = 1;
    bitmap.sizeOfImage(&width, &height);
    EXPECT_EQ(0, width);
    EXPECT_EQ(0, height);
}

TEST(Bitmap, in_monochrome_has_one_bit_a_pixel_and_is_black) {
    const LVXBitmap bitmap(8, 8, true);
    const owl::TBitmap& system = *static_cast<owl::TBitmap*>(bitmap);
    EXPECT_EQ(1, system.BitsPixel());
    EXPECT_EQ(1, system.Planes());
    EXPECT_EQ(black, picture(bitmap));
}

TEST(Bitmap, in_colour_has_the_depth_of_the_screen_and_is_black) {
    const LVXBitmap bitmap(8, 8, false);
    const HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(::GetDeviceCaps(screen, BITSPIXEL), static_cast<owl::TBitmap*>(bitmap)->BitsPixel());
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(black, picture(bitmap));
}

TEST(Bitmap, tells_its_size_to_who_asks) {
    LVXBitmap bitmap(30, 20, true);
    EXPECT_EQ(30, bitmap.GetWidth());
    EXPECT_EQ(20, bitmap.GetHeight());
    int width = 0;
    int height = 0;
    bitmap.sizeOfImage(&width, nullptr);
    bitmap.sizeOfImage(nullptr, &height);
    bitmap.sizeOfImage(nullptr, nullptr);
    EXPECT_EQ(30, width);
    EXPECT_EQ(20, height);
}

TEST(Bitmap, gives_the_systems_bitmap_away_to_look_at) {
    LVXBitmap bitmap(8, 8, false);
    const LVXBitmap& constant = bitmap;
    EXPECT_EQ(static_cast<owl::TBitmap*>(bitmap), static_cast<owl::TBitmap*>(constant));
    EXPECT_EQ(static_cast<owl::TBitmap*>(bitmap)->GetHandle(), bitmap.getBitmap(0));
    EXPECT_EQ(bitmap.getBitmap(0), bitmap.getBitmap(7));
}

TEST(Bitmap, is_drawn_on_through_a_port) {
    LVXBitmap bitmap = white_sheet();
    draw_corner(bitmap);
    EXPECT_EQ(red_corner, picture(bitmap));
}

TEST(Bitmap, goes_onto_another_device) {
    LVXBitmap bitmap = white_sheet();
    draw_corner(bitmap);
    OpenPort open(10, 9);
    open.port.drawBitMap(bitmap, 2, 1);
    EXPECT_EQ(rows(1, "..........") + rows(4, "..RRRR....") + rows(4, ".........."), open.Picture());
}

TEST(Bitmap, has_one_context_for_all_its_users) {
    LVXBitmap bitmap(8, 8, false);
    EXPECT_FALSE(is_in_use(bitmap));
    owl::TDC* const dc = bitmap.AcquireDC();
    ASSERT_NE(nullptr, dc);
    EXPECT_EQ(dc, bitmap.AcquireDC());
    EXPECT_EQ(bitmap.getBitmap(0), ::GetCurrentObject(*dc, OBJ_BITMAP));
    bitmap.ReleaseDC();
    EXPECT_TRUE(is_in_use(bitmap));
    EXPECT_EQ(bitmap.getBitmap(0), ::GetCurrentObject(*dc, OBJ_BITMAP));
    const HDC handle = dc->GetHDC();
    bitmap.ReleaseDC();
    EXPECT_FALSE(is_in_use(bitmap));
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(Bitmap, shows_each_of_its_ports_what_the_other_draws) {
    LVXBitmap bitmap = white_sheet();
    LVX::Port first(bitmap);
    LVX::Port second(bitmap);
    first.Open();
    second.Open();
    EXPECT_EQ(first.GetHDC(), second.GetHDC());
    draw_corner(bitmap);
    EXPECT_EQ(COLORREF{RGB(255, 0, 0)}, ::GetPixel(first.GetHDC(), 0, 0));
    first.Close();
    EXPECT_EQ(COLORREF{RGB(255, 0, 0)}, ::GetPixel(second.GetHDC(), 3, 3));
}

TEST(Bitmap, released_more_often_than_acquired_takes_no_harm) {
    LVXBitmap bitmap(8, 8, false);
    bitmap.ReleaseDC();
    bitmap.AcquireDC();
    bitmap.ReleaseDC();
    bitmap.ReleaseDC();
    bitmap.ReleaseDC();
    ASSERT_NE(nullptr, bitmap.AcquireDC());
    EXPECT_TRUE(is_in_use(bitmap));
    bitmap.ReleaseDC();
    EXPECT_FALSE(is_in_use(bitmap));
}

TEST(Bitmap, that_is_selected_elsewhere_cannot_be_drawn_on_until_it_is_let_go) {
    LVXBitmap bitmap(8, 8, false);
    {
        owl::TMemoryDC other;
        other.SelectObject(*static_cast<owl::TBitmap*>(bitmap));
        EXPECT_THROW(bitmap.AcquireDC(), owl::TXGdi);
        EXPECT_THROW(bitmap.eraseWhite(), owl::TXGdi);
    }
    EXPECT_NE(nullptr, bitmap.AcquireDC());
    bitmap.ReleaseDC();
    EXPECT_FALSE(is_in_use(bitmap));
}

TEST(Bitmap, that_ends_while_it_is_in_use_ends_its_context) {
    auto bitmap = std::make_unique<LVXBitmap>(8, 8, false);
    const HDC context = bitmap->AcquireDC()->GetHDC();
    const HBITMAP handle = bitmap->getBitmap(0);
    bitmap->AcquireDC();
    bitmap.reset();
    EXPECT_EQ(0u, ::GetObjectType(context));
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

// Sections

TEST(Bitmap, of_a_device_is_a_section_of_32_bits) {
    Sheet sheet;
    const LVXBitmap bitmap(30, 20, &sheet);
    const DIBSECTION found = section(bitmap);
    EXPECT_EQ(DWORD{40}, found.dsBmih.biSize);
    EXPECT_EQ(30, found.dsBmih.biWidth);
    EXPECT_EQ(20, found.dsBmih.biHeight);
    EXPECT_EQ(1, found.dsBmih.biPlanes);
    EXPECT_EQ(32, found.dsBmih.biBitCount);
    EXPECT_EQ(DWORD{BI_RGB}, found.dsBmih.biCompression);
    EXPECT_NE(nullptr, found.dsBm.bmBits);
    EXPECT_EQ(30, bitmap.GetWidth());
    EXPECT_EQ(20, bitmap.GetHeight());
    EXPECT_EQ(rows(20, std::string(30, '#')), picture(bitmap));
}

TEST(Bitmap, of_a_device_has_its_rows_in_memory_the_lowest_first_or_the_topmost) {
    for (const int height : {8, -8}) {
        LVXBitmap bitmap(8, height, no_device);
        draw_corner(bitmap);
        ::GdiFlush();
        const auto* const pixels = static_cast<const DWORD*>(section(bitmap).dsBm.bmBits);
        const int top = height > 0 ? 7 : 0;
        EXPECT_EQ(0xFF0000u, pixels[top * 8] & 0xFFFFFF) << height;
        EXPECT_EQ(0u, pixels[(7 - top) * 8] & 0xFFFFFF) << height;
        EXPECT_EQ(8, bitmap.GetHeight());
    }
}

TEST(Bitmap, asks_its_device_when_it_is_made_and_when_it_makes_a_context) {
    CountedSheet sheet;
    LVXBitmap bitmap(8, 8, &sheet);
    EXPECT_EQ(1, sheet.acquired);
    EXPECT_EQ(0, sheet.Users());
    bitmap.AcquireDC();
    EXPECT_EQ(2, sheet.acquired);
    EXPECT_EQ(0, sheet.Users());
    bitmap.AcquireDC();
    EXPECT_EQ(2, sheet.acquired);
    bitmap.ReleaseDC();
    bitmap.ReleaseDC();
    bitmap.eraseWhite();
    EXPECT_EQ(3, sheet.acquired);
    draw_corner(bitmap);
    EXPECT_EQ(red_corner, picture(bitmap));
}

TEST(Bitmap, does_without_a_device_that_has_no_context) {
    Sheet sheet;
    sheet.isEmpty = true;
    for (LVX::Device* const device : {no_device, static_cast<LVX::Device*>(&sheet)}) {
        LVXBitmap bitmap(8, 8, device);
        bitmap.eraseWhite();
        draw_corner(bitmap);
        EXPECT_EQ(red_corner, picture(bitmap));
        EXPECT_EQ(0, sheet.Users());
    }
}

TEST(Bitmap, lets_pass_what_its_device_throws) {
    FailingDevice failing;
    EXPECT_THROW(LVXBitmap(8, 8, &failing), std::runtime_error);
}

TEST(Bitmap, that_the_system_does_not_make_has_no_handle) {
    for (const auto& [width, height] : {std::pair(100000, 100000), {0, 8}, {8, 0}, {-8, 8}}) {
        LVXBitmap bitmap(width, height, no_device);
        EXPECT_NE(nullptr, static_cast<owl::TBitmap*>(bitmap));
        EXPECT_EQ(nullptr, bitmap.getBitmap(0));
        EXPECT_EQ(0, bitmap.GetWidth());
        EXPECT_EQ(0, bitmap.GetHeight());
        EXPECT_EQ(nullptr, bitmap.AcquireDC());
        bitmap.ReleaseDC();
        bitmap.eraseWhite();
        const LVXBitmap copy(bitmap);
        EXPECT_EQ(nullptr, copy.getBitmap(0));
    }
}

TEST(Bitmap, that_the_system_refuses_is_told) {
    EXPECT_THROW(LVXBitmap(100000, 100000, false), owl::TXGdi);
    EXPECT_THROW(LVXBitmap("no such resource"), owl::TXGdi);
}

// Copies

TEST(Bitmap, copied_has_pixels_of_its_own) {
    LVXBitmap bitmap = white_sheet();
    LVXBitmap copy(bitmap);
    draw_corner(bitmap);
    EXPECT_EQ(red_corner, picture(bitmap));
    EXPECT_EQ(white, picture(copy));
    EXPECT_NE(bitmap.getBitmap(0), copy.getBitmap(0));
}

TEST(Bitmap, copied_while_it_is_drawn_on_has_no_users) {
    LVXBitmap bitmap = white_sheet();
    draw_corner(bitmap);
    bitmap.AcquireDC();
    LVXBitmap copy(bitmap);
    EXPECT_EQ(red_corner, picture(copy));
    EXPECT_FALSE(is_in_use(copy));
    copy.AcquireDC();
    copy.ReleaseDC();
    EXPECT_FALSE(is_in_use(copy));
    EXPECT_TRUE(is_in_use(bitmap));
    bitmap.ReleaseDC();
}

TEST(Bitmap, copied_without_a_bitmap_has_none) {
    const LVXBitmap none;
    LVXBitmap copy(none);
    EXPECT_EQ(nullptr, static_cast<owl::TBitmap*>(copy));
    LVXBitmap assigned(8, 8, false);
    const std::unique_ptr<owl::TBitmap> former(static_cast<owl::TBitmap*>(assigned));
    assigned = none;
    EXPECT_EQ(nullptr, static_cast<owl::TBitmap*>(assigned));
    EXPECT_EQ(nullptr, assigned.AcquireDC());
}

TEST(Bitmap, copied_asks_the_same_device) {
    CountedSheet sheet;
    const LVXBitmap bitmap(8, 8, &sheet);
    LVXBitmap copy(bitmap);
    EXPECT_EQ(1, sheet.acquired);
    copy.AcquireDC();
    EXPECT_EQ(2, sheet.acquired);
    copy.ReleaseDC();
    EXPECT_EQ(32, section(copy).dsBmih.biBitCount);
    LVXBitmap assigned;
    assigned = bitmap;
    assigned.AcquireDC();
    EXPECT_EQ(3, sheet.acquired);
}

TEST(Bitmap, assigned_leaves_its_former_bitmap_to_who_has_it) {
    LVXBitmap bitmap(8, 8, true);
    const std::unique_ptr<owl::TBitmap> former(static_cast<owl::TBitmap*>(bitmap));
    LVXBitmap source = white_sheet();
    draw_corner(source);
    bitmap = source;
    EXPECT_EQ(red_corner, picture(bitmap));
    EXPECT_EQ(red_corner, picture(source));
    EXPECT_NE(source.getBitmap(0), bitmap.getBitmap(0));
    EXPECT_EQ(DWORD{OBJ_BITMAP}, ::GetObjectType(former->GetHandle()));
    EXPECT_EQ(1, former->BitsPixel());
}

TEST(Bitmap, assigned_to_itself_stays_what_it_is) {
    LVXBitmap bitmap = white_sheet();
    draw_corner(bitmap);
    const HBITMAP handle = bitmap.getBitmap(0);
    const LVXBitmap& same = bitmap;
    bitmap = same;
    EXPECT_EQ(handle, bitmap.getBitmap(0));
    EXPECT_EQ(red_corner, picture(bitmap));
}

TEST(Bitmap, ignores_an_assignment_while_it_is_in_use) {
    LVXBitmap bitmap = white_sheet();
    const HBITMAP handle = bitmap.getBitmap(0);
    bitmap.AcquireDC();
    bitmap = LVXBitmap(3, 3, true);
    EXPECT_EQ(handle, bitmap.getBitmap(0));
    EXPECT_EQ(8, bitmap.GetWidth());
    bitmap.ReleaseDC();
    EXPECT_EQ(white, picture(bitmap));
}

TEST(Bitmap, that_refuses_to_be_copied_leaves_the_other_as_it_was) {
    LVXBitmap bitmap = white_sheet();
    const HBITMAP handle = bitmap.getBitmap(0);
    const LVXBitmap source(8, 8, no_device);
    {
        const lvx_test::NoMoreObjects none;
        EXPECT_THROW(bitmap = source, owl::TXGdi);
        EXPECT_THROW(bitmap.AcquireDC(), owl::TXGdi);
    }
    EXPECT_EQ(handle, bitmap.getBitmap(0));
    draw_corner(bitmap);
    EXPECT_EQ(red_corner, picture(bitmap));
}

// A copy takes the reference device over, which may be what is assigned to.
TEST(Bitmap, that_has_become_its_own_device_is_drawn_on_like_others) {
    LVXBitmap first = white_sheet();
    const std::unique_ptr<owl::TBitmap> formerFirst(static_cast<owl::TBitmap*>(first));
    const LVXBitmap onFirst(8, 8, &first);
    first = onFirst;
    first.eraseWhite();
    draw_corner(first);
    EXPECT_EQ(red_corner, picture(first));
}

TEST(Bitmap, of_bitmaps_that_are_each_others_devices_is_drawn_on_like_others) {
    LVXBitmap first = white_sheet();
    const std::unique_ptr<owl::TBitmap> formerFirst(static_cast<owl::TBitmap*>(first));
    LVXBitmap second(8, 8, &first);
    const LVXBitmap onSecond(8, 8, &second);
    first = onSecond;
    for (LVXBitmap* const bitmap : {&first, &second}) {
        bitmap->eraseWhite();
        draw_corner(*bitmap);
        EXPECT_EQ(red_corner, picture(*bitmap));
        EXPECT_FALSE(is_in_use(first));
        EXPECT_FALSE(is_in_use(second));
    }
}

// White

TEST(Bitmap, erased_is_white_all_over) {
    LVXBitmap monochrome(8, 8, true);
    LVXBitmap colour(8, 8, false);
    LVXBitmap memory(8, 8, no_device);
    for (LVXBitmap* const bitmap : {&monochrome, &colour, &memory}) {
        bitmap->eraseWhite();
        EXPECT_EQ(white, picture(*bitmap));
        EXPECT_FALSE(is_in_use(*bitmap));
    }
}

TEST(Bitmap, is_erased_also_while_a_port_is_open_on_it) {
    LVXBitmap bitmap(8, 8, false);
    {
        LVX::Port port(bitmap);
        port.Open();
        port.rule(RuleNop);
        bitmap.eraseWhite();
        EXPECT_TRUE(is_in_use(bitmap));
        EXPECT_TRUE(port.IsOpen());
    }
    EXPECT_EQ(white, picture(bitmap));
}

TEST(Bitmap, has_its_virtual_functions_behind_the_destructor) {
    EXPECT_EQ(2u, slot_of(&LVX::Device::AcquireDC));
    EXPECT_EQ(3u, slot_of(&LVX::Device::ReleaseDC));
}
