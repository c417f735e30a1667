#include "owl/gdi_object.h"

#include <gtest/gtest.h>

#include "owl/pen.h"
#include "surface.h"

namespace {

using owl::TPen;

bool Exists(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

HPEN NewPen() {
    return ::CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
}

TEST(GdiObject, deletes_at_its_end_what_it_owns) {
    const HPEN handle = NewPen();
    {
        const TPen pen(handle, owl::AutoDelete);
        EXPECT_TRUE(pen.IsOwner());
        EXPECT_EQ(handle, pen.GetHandle());
        EXPECT_TRUE(Exists(handle));
    }
    EXPECT_FALSE(Exists(handle));
}

TEST(GdiObject, leaves_what_it_has_borrowed) {
    const HPEN handle = NewPen();
    {
        const TPen first(handle);
        const TPen second(handle, owl::NoAutoDelete);
        EXPECT_FALSE(first.IsOwner());
        EXPECT_EQ(first.GetHandle(), second.GetHandle());
    }
    EXPECT_TRUE(Exists(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, gives_its_handle_away) {
    HGDIOBJ handle = nullptr;
    {
        TPen pen(owl::TColor(1, 2, 3));
        handle = pen.Detach();
        EXPECT_EQ(nullptr, pen.GetHandle());
        EXPECT_FALSE(pen.IsOwner());
        EXPECT_EQ(nullptr, pen.Detach());
    }
    EXPECT_TRUE(Exists(handle));
    ::DeleteObject(handle);
}

// The count is what the tests of leaks of all classes rest on.
TEST(GdiObject, is_counted_by_the_system) {
    const int before = owl_test::RoomForGdiObjects();
    {
        const TPen pen(owl::TColor(1, 2, 3));
        EXPECT_EQ(before - 1, owl_test::RoomForGdiObjects());
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
