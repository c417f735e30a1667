#include "owl/metafile_pict.h"

#include <gtest/gtest.h>

#include "message_window.h"
#include "owl/brush.h"
#include "owl/clipboard.h"
#include "owl/metafile_dc.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TClipboard;
using owl::TColor;
using owl::TMetaFilePict;
using owl::TPoint;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

/// A picture of 2 by 1 units: the left one red, the right one blue.
HMETAFILE Recorded() {
    owl::TMetaFileDC dc;
    dc.SetWindowOrg(TPoint(0, 0));
    dc.SetWindowExt(TSize(2, 1));
    const TBrush red(TColor::LtRed), blue(TColor::LtBlue);
    dc.SelectObject(red);
    dc.PatBlt(TRect(0, 0, 1, 1), PATCOPY);
    dc.SelectObject(blue);
    dc.PatBlt(TRect(1, 0, 2, 1), PATCOPY);
    return dc.Close();
}

TEST(MetaFilePict, fits_any_size_until_it_is_told_otherwise) {
    TMetaFilePict picture(Recorded(), owl::AutoDelete);
    EXPECT_EQ(MM_ANISOTROPIC, picture.GetMappingMode());
    EXPECT_EQ(TSize(0, 0), picture.Size());
    picture.SetMappingMode(MM_LOMETRIC);
    picture.SetSize(TSize(300, 200));
    EXPECT_EQ(MM_LOMETRIC, picture.GetMappingMode());
    EXPECT_EQ(TSize(300, 200), picture.Size());
}

TEST(MetaFilePict, is_played_into_the_size_asked_for) {
    const TMetaFilePict picture(Recorded(), owl::AutoDelete);
    Surface surface(6, 3);
    EXPECT_TRUE(picture.PlayOnto(surface.dc, TSize(4, 2)));
    EXPECT_EQ("RRBB..\nRRBB..\n......\n", surface.Picture());
}

TEST(MetaFilePict, is_played_from_the_origin_in_the_units_of_the_target) {
    const TMetaFilePict picture(Recorded(), owl::AutoDelete);
    Surface surface(6, 3);
    surface.dc.SetViewportOrg(TPoint(1, 1));
    EXPECT_TRUE(picture.PlayOnto(surface.dc, TSize(4, 2)));
    EXPECT_EQ("......\n.RRBB.\n.RRBB.\n", surface.Picture());
    EXPECT_EQ(MM_TEXT, surface.dc.GetMapMode());
    EXPECT_EQ(TPoint(1, 1), surface.dc.GetViewportOrg());
}

TEST(MetaFilePict, without_a_metafile_is_empty) {
    const TMetaFilePict picture(HMETAFILE(nullptr), owl::AutoDelete);
    Surface surface(1, 1);
    EXPECT_FALSE(picture.PlayOnto(surface.dc, TSize(1, 1)));
    EXPECT_EQ(nullptr, TMetaFilePict(picture).GetHandle());
    const owl_test::MessageWindow window;
    TClipboard clipboard(window);
    EXPECT_THROW(picture.ToClipboard(clipboard, MM_TEXT, TSize(1, 1)), owl::TXGdi);
}

TEST(MetaFilePict, borrows_a_metafile) {
    const HMETAFILE metafile = Recorded();
    { const TMetaFilePict picture(metafile); }
    EXPECT_EQ(DWORD{OBJ_METAFILE}, ::GetObjectType(metafile));
    { const TMetaFilePict picture(metafile, owl::AutoDelete); }
    EXPECT_EQ(0u, ::GetObjectType(metafile));
}

TEST(MetaFilePict, copied_lives_without_the_other) {
    TMetaFilePict* first = new TMetaFilePict(Recorded(), owl::AutoDelete);
    first->SetMappingMode(MM_ISOTROPIC);
    first->SetSize(TSize(7, 8));
    const TMetaFilePict copy(*first);
    delete first;
    EXPECT_EQ(MM_ISOTROPIC, copy.GetMappingMode());
    EXPECT_EQ(TSize(7, 8), copy.Size());
    Surface surface(2, 1);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, copy));
}

TEST(MetaFilePict, goes_over_the_clipboard_with_its_units_and_size) {
    const owl_test::MessageWindow window;
    {
        const TMetaFilePict picture(Recorded(), owl::AutoDelete);
        TClipboard clipboard(window);
        clipboard.EmptyClipboard();
        EXPECT_THROW(TMetaFilePict{clipboard}, owl::TXWindow);
        picture.ToClipboard(clipboard, MM_ANISOTROPIC, TSize(300, 200));
    }
    TClipboard* clipboard = new TClipboard(window);
    const TMetaFilePict picture(*clipboard);
    clipboard->EmptyClipboard();
    delete clipboard;
    EXPECT_EQ(MM_ANISOTROPIC, picture.GetMappingMode());
    EXPECT_EQ(TSize(300, 200), picture.Size());
    Surface surface(2, 1);
    EXPECT_TRUE(picture.PlayOnto(surface.dc, TSize(2, 1)));
    EXPECT_EQ("RB\n", surface.Picture());
}

TEST(MetaFilePict, is_still_the_callers_when_the_clipboard_refuses_it) {
    const owl_test::MessageWindow window;
    const TMetaFilePict picture(Recorded(), owl::AutoDelete);
    TClipboard clipboard(window);
    clipboard.CloseClipboard();
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 100; ++i)
        EXPECT_THROW(picture.ToClipboard(clipboard, MM_ANISOTROPIC, TSize(1, 1)), owl::TXWindow);
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
