#include "lvx/drawing/metafile.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <thread>

#include "drawing/sheet.h"
#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/clipboard.h"
#include "owl/desk.h"
#include "owl/metafile_pict.h"
#include "support/bytes.h"
#include "support/peer_process.h"
#include "support/temp_folder.h"

using lvx_test::OpenPort;
using lvx_test::PeerProcess;
using lvx_test::Sheet;

namespace {

owl::TMetaFilePict* picture(LVXMetaFile& metafile) {
    return metafile;
}

/// A square centimetre of a colour; rows count downwards.
void fill(LVX::Port& port, owl::TColor colour, int column, int row) {
    LVXBrush brush(colour);
    port.useBrush(&brush);
    LVXRectangle square(RectSize, column * 100, -row * 100, 100, -100);
    port.fillRegion(&square, false);
}

void record(LVXMetaFile& metafile, owl::TColor colour, int column, int row) {
    LVX::Port port(metafile);
    ASSERT_TRUE(port.Open());
    fill(port, colour, column, row);
}

/// What `metafile` looks like, a letter for each of 3 by 2 square centimetres; a rule may be set before.
std::string played(LVXMetaFile& metafile) {
    Sheet sheet(200, 150);
    if (!picture(metafile)->PlayOnto(sheet.surface.dc, owl::TSize())) {
        return "not played";
    }
    std::string letters;
    sheet.surface.dc.SetMapMode(MM_LOMETRIC);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            POINT point{column * 100 + 50, -row * 100 - 50};
            ::LPtoDP(sheet.surface.dc, &point, 1);
            letters += owl_test::Surface::Letter(sheet.surface.At(point.x, point.y));
        }
        letters += '\n';
    }
    return letters;
}

/// Of no kind of object more than before.
class NothingLeft {
public:
    NothingLeft() : m_before(owl_test::RoomForGdiObjects()) {}
    NothingLeft(const NothingLeft&) = delete;
    NothingLeft& operator=(const NothingLeft&) = delete;
    ~NothingLeft() { EXPECT_EQ(m_before, owl_test::RoomForGdiObjects()); }

private:
    int m_before;
};

}  // namespace

TEST(MetaFile, has_no_picture_until_a_recording_ends) {
    LVXMetaFile metafile(300, 200);
    EXPECT_EQ(nullptr, picture(metafile));
    metafile.AcquireDC();
    EXPECT_EQ(nullptr, picture(metafile));
    metafile.ReleaseDC();
    ASSERT_NE(nullptr, picture(metafile));
    const LVXMetaFile& constant = metafile;
    EXPECT_EQ(picture(metafile), static_cast<owl::TMetaFilePict*>(constant));
}

TEST(MetaFile, has_its_size_in_tenths_of_a_millimetre) {
    LVXMetaFile metafile(300, 200);
    record(metafile, LVX::Red, 0, 0);
    EXPECT_EQ(MM_LOMETRIC, picture(metafile)->GetMappingMode());
    EXPECT_EQ(owl::TSize(300, 200), picture(metafile)->Size());
}

TEST(MetaFile, shows_what_was_drawn_in_its_units) {
    LVXMetaFile metafile(300, 200);
    {
        LVX::Port port(metafile);
        port.Open();
        fill(port, LVX::Red, 0, 0);
        fill(port, LVX::Green, 2, 0);
        fill(port, LVX::Blue, 1, 1);
    }
    EXPECT_EQ("R.G\n.B.\n", played(metafile));
}

TEST(MetaFile, without_drawing_is_an_empty_picture) {
    LVXMetaFile metafile(300, 200);
    metafile.AcquireDC();
    metafile.ReleaseDC();
    EXPECT_EQ("...\n...\n", played(metafile));
}

TEST(MetaFile, records_for_all_its_users_until_the_last_one_ends) {
    LVXMetaFile metafile(300, 200);
    owl::TDC* const dc = metafile.AcquireDC();
    EXPECT_EQ(DWORD{OBJ_METADC}, ::GetObjectType(dc->GetHDC()));
    record(metafile, LVX::Red, 0, 0);
    EXPECT_EQ(nullptr, picture(metafile));
    EXPECT_EQ(dc, metafile.AcquireDC());
    metafile.ReleaseDC();
    record(metafile, LVX::Blue, 1, 0);
    metafile.ReleaseDC();
    EXPECT_EQ("RB.\n...\n", played(metafile));
}

TEST(MetaFile, recorded_again_has_only_the_new_picture) {
    LVXMetaFile metafile(300, 200);
    record(metafile, LVX::Red, 0, 0);
    EXPECT_EQ("R..\n...\n", played(metafile));
    {
        LVX::Port port(metafile);
        port.Open();
        EXPECT_EQ("R..\n...\n", played(metafile)) << "until the new one is final";
        fill(port, LVX::Blue, 2, 1);
    }
    EXPECT_EQ("...\n..B\n", played(metafile));
}

TEST(MetaFile, recorded_again_ends_its_former_picture) {
    LVXMetaFile metafile(300, 200);
    record(metafile, LVX::Red, 0, 0);
    const HMETAFILE former = picture(metafile)->GetHandle();
    record(metafile, LVX::Blue, 0, 0);
    const HMETAFILE latter = picture(metafile)->GetHandle();
    EXPECT_EQ(DWORD{OBJ_METAFILE}, ::GetObjectType(latter));
    EXPECT_TRUE(former == latter || ::GetObjectType(former) == 0);
}

TEST(MetaFile, released_more_often_than_acquired_keeps_its_picture) {
    LVXMetaFile metafile(300, 200);
    metafile.ReleaseDC();
    EXPECT_EQ(nullptr, picture(metafile));
    record(metafile, LVX::Red, 0, 0);
    const owl::TMetaFilePict* const kept = picture(metafile);
    metafile.ReleaseDC();
    metafile.ReleaseDC();
    EXPECT_EQ(kept, picture(metafile));
    record(metafile, LVX::Blue, 1, 1);
    EXPECT_EQ("...\n.B.\n", played(metafile));
}

TEST(MetaFile, keeps_tools_text_and_lines) {
    LVXMetaFile metafile(300, 200);
    {
        LVX::Port port(metafile);
        LVXPen pen(60, LineSolid, LVX::Blue);
        LVXFont font("Arial", 80, true, false, false, false);
        port.usePen(&pen);
        port.useFont(&font);
        port.Open();
        port.moveTo(50, -150);
        port.lineTo(250, -150);
        port.wrtText("l", 120, 20);  // a bar of its height
        port.usePen(nullptr);
        port.useFont(nullptr);
    }
    Sheet sheet(200, 150);
    ASSERT_TRUE(picture(metafile)->PlayOnto(sheet.surface.dc, owl::TSize()));
    const std::string seen = sheet.Picture();
    EXPECT_NE(std::string::npos, seen.find(std::string(60, 'B'))) << "the line";
    EXPECT_EQ(std::string::npos, seen.substr(0, seen.size() / 4).find(std::string(60, 'B')));
    EXPECT_NE(std::string::npos, seen.substr(0, seen.size() / 4).find('B')) << "the letter";
}

TEST(MetaFile, measures_no_text) {
    LVXMetaFile metafile(300, 200);
    LVX::Port port(metafile);
    port.Open();
    int width = -1;
    int height = -1;
    port.textSize("some text", &width, &height);
    EXPECT_EQ(0, width);
    EXPECT_EQ(0, height);
    EXPECT_EQ(0, port.textLineSpace());
    EXPECT_EQ(0, port.wrtText("some text", 0, 0));
}

TEST(MetaFile, that_the_system_could_not_keep_has_no_picture) {
    LVXMetaFile metafile(300, 200);
    record(metafile, LVX::Red, 0, 0);
    ::DeleteMetaFile(::CloseMetaFile(metafile.AcquireDC()->GetHDC()));
    metafile.ReleaseDC();
    EXPECT_EQ(nullptr, picture(metafile));
    record(metafile, LVX::Blue, 0, 0);
    EXPECT_EQ("B..\n...\n", played(metafile));
}

TEST(MetaFile, that_the_system_refuses_has_no_users) {
    LVXMetaFile metafile(300, 200);
    {
        const lvx_test::NoMoreObjects none;
        EXPECT_THROW(metafile.AcquireDC(), owl::TXGdi);
    }
    record(metafile, LVX::Red, 0, 0);
    EXPECT_EQ("R..\n...\n", played(metafile));
}

TEST(MetaFile, that_ends_while_it_records_leaves_nothing) {
    const NothingLeft check;
    LVXMetaFile metafile(300, 200);
    LVXMetaFile other(300, 200);
    record(metafile, LVX::Red, 0, 0);
    metafile.AcquireDC();
    metafile.AcquireDC();
    other.AcquireDC();
}

TEST(MetaFile, is_like_the_screen_for_a_bitmap) {
    LVXMetaFile metafile(300, 200);
    LVXBitmap bitmap(8, 8, &metafile);
    EXPECT_EQ(32, static_cast<owl::TBitmap*>(bitmap)->BitsPixel());
    bitmap.eraseWhite();
    OpenPort open;
    open.port.drawBitMap(bitmap, 0, 0);
    EXPECT_EQ(lvx_test::rows(8, "........"), open.Picture());
}

// The clipboard

namespace {

struct MetaFileOnClipboard : testing::Test {
    MetaFileOnClipboard() { Empty(); }

    void Empty() const {
        owl::TClipboard clipboard(desk.frame->GetHandle());
        clipboard.EmptyClipboard();
    }
    void Put(const char* text) const {
        const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
        std::strcpy(static_cast<char*>(::GlobalLock(block)), text);
        ::GlobalUnlock(block);
        owl::TClipboard(desk.frame->GetHandle()).SetClipboardData(CF_TEXT, block);
    }
    static bool Has(unsigned int format) { return owl::TClipboard::IsClipboardFormatAvailable(format); }
    /// What another program finds there.
    static std::string SeenElsewhere() {
        const lvx_test::TempFolder folder;
        const std::string file = folder.File("seen");
        PeerProcess peer("lvx_metafile_peer.exe", {file});
        const int result = peer.Result();
        return result == 0 ? lvx_test::read_file(file) : "exits with " + std::to_string(result);
    }

    desk::Desk desk;
    LVXMetaFile metafile{400, 300};
};

}  // namespace

TEST_F(MetaFileOnClipboard, is_played_by_another_program) {
    {
        LVX::Port port(metafile);
        port.Open();
        fill(port, LVX::Red, 0, 0);
        fill(port, LVX::Red, 1, 0);
        fill(port, LVX::Blue, 3, 2);
    }
    metafile.ToClipboard(*desk.frame);
    EXPECT_EQ("mode 2, 400 by 300\nRR..\n....\n...B\n", SeenElsewhere());
}

TEST_F(MetaFileOnClipboard, is_a_copy_of_its_own) {
    {
        LVXMetaFile early(100, 100);
        record(early, LVX::Blue, 0, 0);
        early.ToClipboard(*desk.frame);
        record(early, LVX::Red, 0, 0);
    }
    EXPECT_EQ("mode 2, 100 by 100\nB\n", SeenElsewhere());
    EXPECT_EQ("mode 2, 100 by 100\nB\n", SeenElsewhere()) << "once more";
}

TEST_F(MetaFileOnClipboard, lies_beside_what_was_there) {
    Put("some text");
    record(metafile, LVX::Red, 0, 0);
    metafile.ToClipboard(*desk.frame);
    EXPECT_TRUE(Has(CF_TEXT));
    EXPECT_TRUE(Has(CF_METAFILEPICT));
}

TEST_F(MetaFileOnClipboard, replaces_the_one_that_was_there) {
    record(metafile, LVX::Red, 0, 0);
    metafile.ToClipboard(*desk.frame);
    record(metafile, LVX::Blue, 1, 1);
    metafile.ToClipboard(*desk.frame);
    EXPECT_EQ("mode 2, 400 by 300\n....\n.B..\n....\n", SeenElsewhere());
}

TEST_F(MetaFileOnClipboard, is_not_put_there_without_a_picture) {
    Put("some text");
    metafile.ToClipboard(*desk.frame);
    metafile.AcquireDC();
    metafile.ToClipboard(*desk.frame);
    EXPECT_FALSE(Has(CF_METAFILEPICT));
    EXPECT_TRUE(Has(CF_TEXT));
    EXPECT_EQ("exits with 1", SeenElsewhere());
}

TEST_F(MetaFileOnClipboard, leaves_the_clipboard_to_others_when_done) {
    record(metafile, LVX::Red, 0, 0);
    metafile.ToClipboard(*desk.frame);
    EXPECT_TRUE(owl::TClipboard(desk.frame->GetHandle(), false).IsOpen());
}

TEST_F(MetaFileOnClipboard, tells_a_clipboard_that_is_busy) {
    record(metafile, LVX::Red, 0, 0);
    const HANDLE taken = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HANDLE done = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    std::thread other([&] {
        const owl::TClipboard clipboard(nullptr);
        ::SetEvent(taken);
        ::WaitForSingleObject(done, 10000);
    });
    ::WaitForSingleObject(taken, 10000);
    EXPECT_THROW(metafile.ToClipboard(*desk.frame), owl::TXWindow);
    ::SetEvent(done);
    other.join();
    ::CloseHandle(taken);
    ::CloseHandle(done);
    EXPECT_FALSE(Has(CF_METAFILEPICT));
    metafile.ToClipboard(*desk.frame);
    EXPECT_TRUE(Has(CF_METAFILEPICT));
}
