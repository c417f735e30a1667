#include "owl/print_dc.h"

#include <gtest/gtest.h>

#include <string>

#include "owl/error.h"
#include "surface.h"

namespace {

using owl::TIC;
using owl::TPrintDC;

TEST(PrintDc, of_no_such_printer_throws_with_the_call) {
    try {
        const TPrintDC dc("winspool", "no such printer of ours", nullptr, nullptr);
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(0u, std::string(error.what()).find("CreateDC: ")) << error.what();
    }
    EXPECT_THROW(TIC("winspool", "no such printer of ours", nullptr, nullptr), owl::TXGdi);
    EXPECT_THROW(TPrintDC(nullptr, owl::AutoDelete), owl::TXGdi);
}

TEST(PrintDc, of_a_device_tells_what_it_can) {
    const TPrintDC dc("DISPLAY", nullptr, nullptr, nullptr);
    EXPECT_EQ(DT_RASDISPLAY, dc.GetDeviceCaps(TECHNOLOGY));
    const TIC information("DISPLAY", nullptr, nullptr, nullptr);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), information.GetDeviceCaps(LOGPIXELSY));
}

TEST(PrintDc, on_a_context_owns_or_borrows_it) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    { const TPrintDC dc(handle, owl::NoAutoDelete); }
    EXPECT_EQ(DWORD{OBJ_MEMDC}, ::GetObjectType(handle));
    { const TPrintDC dc(handle, owl::AutoDelete); }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(PrintDc, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TPrintDC dc("DISPLAY", nullptr, nullptr, nullptr);
        const TIC information("DISPLAY", nullptr, nullptr, nullptr);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
