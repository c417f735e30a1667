#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "owl/error.h"
#include "tests/owl/desk.h"

namespace {

using owl::TTransferDirection;
using owl::TWindow;

// Keeps its window's text as `size` bytes.
class Field : public TWindow {
public:
    Field(TWindow* parent, unsigned theSize) : TWindow(parent), size(theSize) { EnableTransfer(); }

    unsigned Transfer(void* buffer, TTransferDirection direction) override {
        if (direction == owl::tdGetData)
            GetWindowText(static_cast<char*>(buffer), static_cast<int>(size));
        else if (direction == owl::tdSetData)
            SetWindowText(static_cast<const char*>(buffer));
        return size;
    }

    unsigned size;
};

struct Data {
    char first[8];
    char second[16];
};

struct WindowTransfer : testing::Test {
    WindowTransfer() : window(desk.frame), first(new Field(&window, 8)), second(new Field(&window, 16)) {
        window.SetTransferBuffer(&data, sizeof(data));
    }

    desk::Desk desk;
    TWindow window;
    Field* first;
    Field* second;
    Data data{"one", "two"};
};

TEST_F(WindowTransfer, fills_the_controls_when_the_window_is_set_up) {
    window.Create();
    EXPECT_EQ("one", first->GetWindowText());
    EXPECT_EQ("two", second->GetWindowText());
}

TEST_F(WindowTransfer, reads_the_controls_into_the_buffer) {
    window.Create();
    first->SetWindowText("changed");
    second->SetWindowText("as well");
    window.TransferData(owl::tdGetData);
    EXPECT_STREQ("changed", data.first);
    EXPECT_STREQ("as well", data.second);
}

TEST_F(WindowTransfer, leaves_out_who_takes_no_part) {
    first->DisableTransfer();
    std::strcpy(data.first, "second");
    window.Create();
    EXPECT_EQ("", first->GetWindowText());
    EXPECT_EQ("second", second->GetWindowText());
}

TEST_F(WindowTransfer, does_nothing_without_a_buffer) {
    window.SetTransferBuffer(nullptr);
    window.Create();
    first->SetWindowText("kept");
    window.TransferData(owl::tdSetData);
    EXPECT_EQ("kept", first->GetWindowText());
}

TEST_F(WindowTransfer, throws_before_it_moves_anything_if_the_buffer_is_too_small) {
    window.SetTransferBuffer(nullptr);
    window.Create();
    second->SetWindowText("kept");
    window.SetTransferBuffer(&data, sizeof(data) - 1);
    EXPECT_THROW(window.TransferData(owl::tdSetData), owl::TXOwl);
    EXPECT_EQ("", first->GetWindowText());
    EXPECT_EQ("kept", second->GetWindowText());
}

// Setting a text tells the parent, whose function may do as it likes.
TEST_F(WindowTransfer, bears_that_children_come_and_go_meanwhile) {
    class Meddler : public Field {
    public:
        Meddler(TWindow* parent, TWindow* theVictim) : Field(parent, 4), victim(theVictim) {}
        unsigned Transfer(void* buffer, TTransferDirection direction) override {
            if (direction == owl::tdSetData) {
                delete std::exchange(victim, nullptr);
                for (int i = 0; i < 100; ++i)
                    new TWindow(Parent);
            }
            return Field::Transfer(buffer, direction);
        }
        TWindow* victim;
    };
    struct {
        char head[4];
        char gone[8];
        char tail[16];
    } three{"a", "b", "c"};
    TWindow parent(desk.frame);
    auto* meddler = new Meddler(&parent, nullptr);
    meddler->victim = new Field(&parent, 8);
    auto* last = new Field(&parent, 16);
    parent.SetTransferBuffer(&three, sizeof(three));
    parent.Create();
    EXPECT_EQ("a", meddler->GetWindowText());
    EXPECT_EQ("c", last->GetWindowText());
}

}  // namespace
