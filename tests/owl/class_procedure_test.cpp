#include "owl/class_procedure.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

WNDPROC below = nullptr;
int heard = 0;

// What another subclass does: it calls whom it found, for as long as the window lives.
LRESULT CALLBACK Later(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcA(below, window, msg, wParam, lParam);
}

void PutLaterOnTop(HWND window) {
    below = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Later)));
}

LRESULT CALLBACK Ours(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
    ++heard;
    return owl::PutAside(window).Call(window, msg, wParam, lParam);
}

struct ClassProcedure : testing::Test {
    ClassProcedure()
        : edit(::CreateWindowExA(0, "EDIT", "text", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(), nullptr,
                                 nullptr, nullptr)) {
        heard = 0;
    }

    LRESULT LengthOfLine() const { return ::SendMessageA(edit, EM_LINELENGTH, 0, 0); }

    desk::Desk desk;
    HWND edit;
};

TEST_F(ClassProcedure, is_put_aside_and_given_back) {
    EXPECT_TRUE(owl::PutAside(edit).IsNone());
    const auto before = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(edit, GWLP_WNDPROC));
    EXPECT_EQ(before, owl::PutInFront(edit, &Ours).procedure);
    EXPECT_EQ(before, owl::PutAside(edit).procedure);
    EXPECT_EQ(4, LengthOfLine());
    EXPECT_EQ(1, heard);
    owl::GiveBack(edit, &Ours);
    EXPECT_EQ(before, reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(edit, GWLP_WNDPROC)));
    EXPECT_TRUE(owl::PutAside(edit).IsNone());
    EXPECT_EQ(4, LengthOfLine());
    EXPECT_EQ(1, heard);
}

TEST_F(ClassProcedure, is_none_if_the_windows_own_is_the_one_in_front) {
    const auto own = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(edit, GWLP_WNDPROC));
    EXPECT_TRUE(owl::PutInFront(edit, own).IsNone());
    EXPECT_TRUE(owl::PutAside(edit).IsNone());
}

TEST_F(ClassProcedure, is_forgotten_for_a_window_that_ends) {
    owl::PutInFront(edit, &::DefWindowProcA);
    owl::ForgetPutAside(edit);
    EXPECT_TRUE(owl::PutAside(edit).IsNone());
}

TEST_F(ClassProcedure, stays_aside_below_a_procedure_that_came_later) {
    owl::PutInFront(edit, &Ours);
    PutLaterOnTop(edit);
    owl::GiveBack(edit, &Ours);
    EXPECT_FALSE(owl::PutAside(edit).IsNone());
    EXPECT_EQ(4, LengthOfLine());
    EXPECT_EQ(1, heard);
}

// The later procedure keeps our procedure's address and calls it when the object is gone.
TEST_F(ClassProcedure, answers_for_an_object_that_is_gone) {
    {
        owl::TWindow window(edit);
        PutLaterOnTop(edit);
    }
    ::SetWindowTextA(edit, "still an edit");
    EXPECT_EQ(13, LengthOfLine());
}

// The next object took the later procedure for the class's, which called ours, which called it: for ever.
TEST_F(ClassProcedure, is_the_classs_for_the_next_object_too) {
    {
        owl::TWindow window(edit);
        PutLaterOnTop(edit);
    }
    owl::TWindow window(edit);
    EXPECT_EQ(4, LengthOfLine());
    EXPECT_EQ(4, window.HandleMessage(EM_LINELENGTH));
}

TEST_F(ClassProcedure, is_the_classs_for_the_next_object_when_the_later_one_has_left) {
    {
        owl::TWindow window(edit);
        PutLaterOnTop(edit);
    }
    ::SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(below));
    owl::TWindow window(edit);
    EXPECT_EQ(4, LengthOfLine());
    EXPECT_EQ(4, window.HandleMessage(EM_LINELENGTH));
}

// A title lost every letter that the code page lacks.
TEST_F(ClassProcedure, of_a_window_of_wide_text_leaves_it_wide) {
    const wchar_t* const text = L"\x03a9\x4e2d";
    const HWND wide = ::CreateWindowExW(0, L"STATIC", text, WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                                        nullptr, nullptr, nullptr);
    wchar_t read[8] = L"";
    {
        owl::TWindow window(wide);
        EXPECT_TRUE(::IsWindowUnicode(wide));
        ::SetWindowTextW(wide, L"?");
        ::SetWindowTextW(wide, text);
        ::GetWindowTextW(wide, read, 8);
        EXPECT_STREQ(text, read);
        window.SetWindowText("narrow");
        EXPECT_EQ("narrow", window.GetWindowText());
    }
    EXPECT_TRUE(::IsWindowUnicode(wide));
    ::GetWindowTextW(wide, read, 8);
    EXPECT_STREQ(L"narrow", read);
}

// Keys would come as wide letters otherwise, which functions of EvChar do not expect.
TEST_F(ClassProcedure, of_the_controls_of_a_dialog_takes_narrow_text) {
    EXPECT_FALSE(::IsWindowUnicode(edit));
    EXPECT_FALSE(owl::PutInFront(edit, &Ours).isWide);
    owl::GiveBack(edit, &Ours);
}

}  // namespace
