// The example host as its user sees it: its figures, its documents, its window.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

}  // namespace

TEST_F(Sketch, begins_with_an_empty_sheet) {
    StartInFront();
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
    const ScreenPicture picture = StillPicture();
    RECT rect{};
    ::GetClientRect(m_sketch->View(), &rect);
    EXPECT_EQ(static_cast<std::ptrdiff_t>(rect.right) * rect.bottom, picture.Count(white));
}

TEST_F(Sketch, draws_a_rectangle_from_corner_to_corner) {
    StartInFront();
    DrawARectangle();
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 100, 120));
    EXPECT_TRUE(Shows(black, 219, 199));
    EXPECT_TRUE(Shows(white, 160, 160));
    EXPECT_TRUE(Shows(white, 99, 120));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
}

TEST_F(Sketch, draws_everything_by_keys_alone) {
    StartInFront();
    Press({VK_F3});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    Press({VK_F4});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->ShowsStatus("Ellipse, 120 x 80"));
    Press({VK_F5});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->ShowsStatus("Polygon of 3 corners"));
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    Press({VK_SHIFT, VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Polygon of 3 corners"));
    Press({VK_DELETE});
    Press({VK_TAB});
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Ellipse, 120 x 80"));
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
}

TEST_F(Sketch, moves_what_is_selected_by_arrows_and_mouse) {
    StartInFront();
    DrawARectangle();
    Press({VK_RIGHT});
    Press({VK_CONTROL, VK_DOWN});
    m_sketch->Pull({180, 160}, {230, 150});
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 158, 111));
    EXPECT_TRUE(Shows(white, 157, 111));
    EXPECT_TRUE(Shows(white, 158, 110));
}

TEST_F(Sketch, takes_back_what_was_done_and_does_it_again) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, 'Z'});
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
    EXPECT_TRUE(Shows(white, 100, 120));
    Press({VK_CONTROL, 'Y'});
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
    EXPECT_TRUE(Shows(black, 100, 120));
}

TEST_F(Sketch, leaves_everything_when_a_drag_is_given_up) {
    StartInFront();
    DrawARectangle();
    const ScreenPicture before = StillPicture();
    const POINT from = m_sketch->At(160, 160);
    user::detail::MoveMouse(from.x, from.y);
    user::detail::MoveMouse(from.x, from.y, MOUSEEVENTF_LEFTDOWN);
    user::detail::MoveMouse(from.x + 40, from.y + 40);
    EXPECT_TRUE(WaitUntil([&] { return !(Picture() == before); }));
    Press({VK_ESCAPE});
    user::detail::MoveMouse(from.x + 60, from.y + 60);
    user::detail::MoveMouse(from.x + 60, from.y + 60, MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(WaitUntil([&] { return Picture() == before; }));
}

TEST_F(Sketch, shows_a_packed_document_with_its_pixels) {
    StartInFront(Packed());
    EXPECT_TRUE(m_sketch->ShowsTitle("packed.lvx - Sketch"));
    EXPECT_TRUE(Shows(RGB(255, 0, 0), 24, 24));
    EXPECT_TRUE(Shows(white, 23, 24));
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64"));
}

TEST_F(Sketch, turns_a_picture_back_and_forth_without_loss) {
    StartInFront(Packed());
    Press({VK_TAB});
    const ScreenPicture before = StillPicture();
    Press({VK_CONTROL, VK_OEM_COMMA});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 15 degrees to the left"));
    EXPECT_FALSE(StillPicture() == before);
    Press({VK_CONTROL, VK_OEM_PERIOD});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64"));
    EXPECT_TRUE(WaitUntil([&] { return Picture() == before; }));
}

TEST_F(Sketch, turns_by_a_number_of_degrees) {
    StartInFront(Packed());
    Press({VK_TAB});
    Press({VK_CONTROL, 'T'});
    const HWND dialog = m_sketch->Dialog("Turn");
    user::Type("90");
    Press({VK_MENU, 'R'});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 90 degrees to the right"));
    Press({VK_ESCAPE});
    // A quarter turn around (87, 56): the right end of the picture, grey, hangs down. Its left one was red
    // and cyan; of that the white text apart nothing is left at its old place.
    EXPECT_TRUE(Shows(white, 30, 56));
    EXPECT_FALSE(Shows(white, 88, 110));
}

TEST_F(Sketch, takes_no_letters_where_a_number_belongs) {
    StartInFront(Packed());
    Press({VK_TAB});
    Press({VK_CONTROL, 'T'});
    const HWND dialog = m_sketch->Dialog("Turn");
    user::Type("m4u5h");
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(::GetDlgItem(dialog, IDC_DEGREES)) == "45"; }));
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 45 degrees to the left"));
}

TEST_F(Sketch, asks_again_for_what_is_no_number) {
    StartInFront(Packed());
    Press({VK_TAB});
    Press({VK_CONTROL, 'T'});
    const HWND dialog = m_sketch->Dialog("Turn");
    user::Type("-");
    Press({VK_RETURN});
    HWND box = nullptr;
    ASSERT_TRUE(
        WaitUntil([&] { return (box = ::GetForegroundWindow()) != dialog && user::TextOf(box) == "Turn"; }));
    Press({VK_RETURN});
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    user::Type("45");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 45 degrees to the left"));
}

TEST_F(Sketch, skews_a_picture_by_pulling_a_corner) {
    StartInFront(Packed());
    Press({VK_TAB});
    m_sketch->Pull({151, 88}, {201, 118});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, skewed by 50, 30"));
    Press({VK_ESCAPE});
    // Beyond where the picture was there is something of it now, and white where it was not pulled to.
    EXPECT_TRUE(WaitUntil([&] { return !Shows(white, 160, 90); }));
    EXPECT_TRUE(Shows(white, 40, 110));
}

TEST_F(Sketch, saves_and_opens_what_it_saved) {
    const std::string file = m_folder.File("garden.lvx");
    StartInFront(Packed());
    DrawARectangle();
    ASSERT_TRUE(m_sketch->SaveAs(file));
    EXPECT_TRUE(m_sketch->ShowsTitle("garden.lvx - Sketch"));
    EXPECT_EQ(1, ReadContents(file).version);
    EXPECT_EQ(2, ReadContents(file).figures);
    Press({VK_ESCAPE});
    const ScreenPicture saved = StillPicture();

    Press({VK_CONTROL, 'N'});
    EXPECT_TRUE(Shows(white, 100, 120));
    Press({VK_CONTROL, 'O'});
    ASSERT_TRUE(m_sketch->ChooseFile("Open", file));
    EXPECT_TRUE(m_sketch->ShowsTitle("garden.lvx - Sketch"));
    EXPECT_TRUE(WaitUntil([&] { return Picture() == saved; }));
}

TEST_F(Sketch, does_not_save_over_a_packed_document_unasked) {
    const std::string file = Packed();
    StartInFront(file);
    DrawARectangle();
    Press({VK_CONTROL, 'S'});
    const HWND dialog = m_sketch->Dialog("Save As");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_EQ(0, ReadContents(file).version);
}

TEST_F(Sketch, adds_a_picture_in_its_own_colours) {
    StartInFront();
    Press({VK_CONTROL, 'P'});
    std::string file = lvx_test::own_data() + "/pictures/pal8os2.bmp";
    std::replace(file.begin(), file.end(), '/', '\\');
    ASSERT_TRUE(m_sketch->ChooseFile("Add a Picture", file));
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"pal8os2\", 127 x 64"));
    Press({VK_ESCAPE});
    EXPECT_LT(0, StillPicture().Count(RGB(255, 0, 0)));
}

TEST_F(Sketch, asks_before_it_loses_changes) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, 'N'});
    Answer(VK_ESCAPE);
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
    ASSERT_TRUE(m_sketch->ComeToFront());
    Press({VK_CONTROL, 'N'});
    Answer('N');
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(Sketch, saves_before_it_ends_if_that_is_wanted) {
    const std::string file = m_folder.File("last.lvx");
    StartInFront();
    DrawARectangle();
    Press({VK_MENU, VK_F4});
    Answer('Y');
    const HWND dialog = m_sketch->Dialog("Save As");
    ::Sleep(200);
    Press({VK_CONTROL, 'A'});
    user::Type(file);
    Press({VK_RETURN});
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
    EXPECT_EQ(0, m_sketch->Process().WaitForEnd());
    EXPECT_EQ(1, ReadContents(file).figures);
}

TEST_F(Sketch, ends_at_once_when_nothing_was_changed) {
    StartInFront();
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_sketch->Process().WaitForEnd());
}

TEST_F(Sketch, tells_which_document_does_not_open_and_why) {
    const std::string file = m_folder.File("damaged.lvx");
    {
        LVXUtilities::ObjectStoreStorage store;
        std::string error;
        ASSERT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error) &&
                    store.OpenStream("Sketch", error));
        store << 1L;
        store.CloseStream();
    }
    Start(file);
    const HWND box = m_sketch->Dialog("Sketch");
    EXPECT_EQ(file + "\ncould not be opened.\n\nUnexpected end of file.",
              user::TextOf(::GetDlgItem(box, 0xFFFF)));
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(box));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(Sketch, changes_line_and_fill_of_the_selected_shape) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    user::Type("5");
    Press({VK_MENU, 'F'});
    Press({VK_MENU, 'O'});
    user::Type("y");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(RGB(255, 255, 0), 160, 160));
    EXPECT_TRUE(Shows(black, 98, 160));
    EXPECT_TRUE(Shows(black, 102, 160));
    EXPECT_TRUE(Shows(white, 97, 160));
}

TEST_F(Sketch, paints_anew_what_was_covered) {
    Start();
    ASSERT_TRUE(m_sketch->ComeToFront());
    DrawARectangle();
    const ScreenPicture before = StillPicture();
    ::ShowWindow(m_sketch->Frame(), SW_MINIMIZE);
    ::ShowWindow(m_sketch->Frame(), SW_RESTORE);
    ASSERT_TRUE(m_sketch->ComeToFront());
    EXPECT_TRUE(WaitUntil([&] { return Picture() == before; }));
}

TEST_F(Sketch, scrolls_to_what_is_selected_outside) {
    StartInFront();
    DrawARectangle();
    ::MoveWindow(m_sketch->Frame(), 20, 20, 220, 220, TRUE);
    Press({VK_ESCAPE});
    Press({VK_TAB});
    EXPECT_TRUE(WaitUntil([&] { return Picture().Count(black) > 100; }));
}
