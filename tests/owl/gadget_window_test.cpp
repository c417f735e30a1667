#include "owl/gadget_window.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>

#include "owl/command_enabler.h"
#include "owl/error.h"
#include "tests/owl/gadget_ids.h"
#include "tests/owl/gadget_probe.h"
#include "tests/owl/surface.h"

namespace {

using gadgets::Calls;
using gadgets::Probe;
using owl::TGadget;
using owl::TGadgetWindow;
using owl::TRect;

std::vector<int> Ids(const TGadgetWindow& bar) {
    std::vector<int> ids;
    for (const TGadget* gadget = bar.FirstGadget(); gadget != nullptr; gadget = bar.NextGadget(*gadget))
        ids.push_back(gadget->GetId());
    return ids;
}

/// A frame that notes commands, questions and hints.
class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "frame") { desk::Place(*this); }

    void CmSave() { calls.push_back("save"); }
    void CePrint(owl::TCommandEnabler& enabler) {
        calls.push_back("print?");
        enabler.Enable(false);
        enabler.SetCheck(owl::TCommandEnabler::Checked);
    }
    void CnList() { calls.push_back("list"); }
    void NmClick(owl::TNotify&) { calls.push_back("click"); }
    void ShowHint(int command, const std::string& text) override {
        calls.push_back(std::to_string(command) + ":" + text);
    }

    Calls calls;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_GADGET_SAVE, CmSave), EV_COMMAND_ENABLE(CM_GADGET_PRINT, CePrint),
        EV_LBN_SELCHANGE(9, CnList), EV_NOTIFY(9, NM_CLICK, NmClick),
END_RESPONSE_TABLE;

/// A bar with functions of its own.
class OwnBar : public TGadgetWindow {
public:
    using TGadgetWindow::TGadgetWindow;

    void CmSave() { calls.push_back("bar saves"); }
    void CePrint(owl::TCommandEnabler& enabler) {
        calls.push_back("bar is asked");
        enabler.Enable();
    }
    void CnList() { calls.push_back("bar's list"); }
    void NmClick(owl::TNotify&) { calls.push_back("bar's click"); }

    Calls calls;

    DECLARE_RESPONSE_TABLE(OwnBar);
};

DEFINE_RESPONSE_TABLE1(OwnBar, TGadgetWindow)
    EV_COMMAND(CM_GADGET_SAVE, CmSave), EV_COMMAND_ENABLE(CM_GADGET_PRINT, CePrint),
        EV_LBN_SELCHANGE(9, CnList), EV_NOTIFY(9, NM_CLICK, NmClick),
END_RESPONSE_TABLE;

class Enabler : public owl::TCommandEnabler {
public:
    using TCommandEnabler::TCommandEnabler;

    void Enable(bool enable) override {
        TCommandEnabler::Enable(enable);
        enabled = enable;
    }
    void SetText(const char*) override {}
    void SetCheck(int check) override { checked = check; }

    int enabled = -1;
    int checked = -1;
};

/// A gadget that asks whether its command is enabled, and is.
class Asking : public Probe {
public:
    using Probe::Probe;

    void CommandEnable() override {
        Enabler enabler(static_cast<UINT>(GetId()), GetGadgetWindow()->GetHandle());
        GetGadgetWindow()->AskWhetherEnabled(enabler);
        SetEnabled(enabler.enabled == 1);
    }
};

template <class Bar>
struct Commands : testing::Test {
    Commands() : program("gadgets"), frame(new Frame), bar(new Bar(frame)) {
        program.SetMainWindow(frame);
        frame->Create();
        bar->Create();
        frame->calls.clear();
    }

    /// What a loop that has just nothing to do brings about.
    void RunIdle() {
        bar->PostMessage(WM_NULL);
        int rounds = 0;
        program.RunUntil([&] { return ++rounds > 2; });
    }

    owl::TApplication program;
    Frame* frame;
    Bar* bar;
};

using BarCommands = Commands<TGadgetWindow>;
using OwnBarCommands = Commands<OwnBar>;

TEST(GadgetWindow, keeps_gadgets_in_the_order_of_their_insertion) {
    gadgets::BarDesk<> bars;
    EXPECT_EQ(nullptr, bars.bar->FirstGadget());
    TGadget* second = bars.Add(2);
    TGadget* third = bars.Add(3);
    bars.bar->Insert(*new Probe(1), TGadgetWindow::Before);
    bars.bar->Insert(*new Probe(5), TGadgetWindow::After, third);
    bars.bar->Insert(*new Probe(4), TGadgetWindow::After, third);
    bars.bar->Insert(*new Probe(9), TGadgetWindow::Before, second);
    EXPECT_EQ((std::vector<int>{1, 9, 2, 3, 4, 5}), Ids(*bars.bar));
    EXPECT_EQ(6U, bars.bar->NumGadgets());
    EXPECT_EQ(third, bars.bar->GadgetWithId(3));
    EXPECT_EQ(nullptr, bars.bar->GadgetWithId(77));
    EXPECT_EQ(bars.bar, third->GetGadgetWindow());
}

TEST(GadgetWindow, finds_the_first_of_equal_ids) {
    gadgets::BarDesk<> bars;
    TGadget* first = bars.Add(3);
    bars.Add(3);
    EXPECT_EQ(first, bars.bar->GadgetWithId(3));
}

TEST(GadgetWindow, refuses_a_neighbour_that_it_has_not) {
    gadgets::BarDesk<> bars;
    Probe stranger(1);
    Probe gadget(2);
    EXPECT_THROW(bars.bar->Insert(gadget, TGadgetWindow::After, &stranger), owl::TXOwl);
    EXPECT_EQ(nullptr, gadget.GetGadgetWindow());
    TGadget* inside = bars.Add(3);
    EXPECT_THROW(bars.bar->Insert(*inside, TGadgetWindow::After, inside), owl::TXOwl);
    EXPECT_EQ(std::vector<int>{3}, Ids(*bars.bar));
}

TEST(GadgetWindow, moves_a_gadget_that_it_has_already) {
    gadgets::BarDesk<> bars;
    TGadget* first = bars.Add(1);
    TGadget* second = bars.Add(2);
    bars.bar->Insert(*first, TGadgetWindow::After, second);
    EXPECT_EQ((std::vector<int>{2, 1}), Ids(*bars.bar));
}

TEST(GadgetWindow, takes_a_gadget_from_another_bar) {
    gadgets::BarDesk<> bars;
    auto* other = new TGadgetWindow(bars.desk.frame);
    TGadget* gadget = bars.Add(1);
    other->Insert(*gadget);
    EXPECT_EQ(0U, bars.bar->NumGadgets());
    EXPECT_EQ(other, gadget->GetGadgetWindow());
}

TEST(GadgetWindow, gives_a_gadget_back) {
    gadgets::BarDesk<> bars;
    Probe* gadget = bars.Add(1);
    EXPECT_EQ(gadget, bars.bar->Remove(*gadget));
    EXPECT_EQ(nullptr, bars.bar->Remove(*gadget));
    EXPECT_EQ(nullptr, gadget->GetGadgetWindow());
    EXPECT_EQ(nullptr, bars.bar->FirstGadget());
    delete gadget;
}

TEST(GadgetWindow, knows_no_neighbour_of_a_stranger) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    const Probe stranger(1);
    EXPECT_EQ(nullptr, bars.bar->NextGadget(stranger));
}

TEST(GadgetWindow, tells_gadgets_that_they_are_inserted_created_and_removed) {
    gadgets::BarDesk<> bars;
    Probe* early = bars.Add(1);
    EXPECT_EQ(Calls{"inserted"}, early->Take());
    bars.Show();
    EXPECT_EQ("created", early->calls.front());
    Probe* late = bars.Add(2);
    EXPECT_EQ((Calls{"inserted", "created", "moved"}), late->Take());
    bars.bar->Remove(*late);
    EXPECT_EQ(Calls{"removed"}, late->Take());
    delete late;
}

/// A gadget that does something when it goes.
class Leaver : public Probe {
public:
    explicit Leaver(std::function<void(Leaver&)> whenRemoved) : m_whenRemoved(std::move(whenRemoved)) {}

    void Removed() override {
        const auto body = m_whenRemoved;
        body(*this);
    }

private:
    std::function<void(Leaver&)> m_whenRemoved;
};

TEST(GadgetWindow, has_nothing_to_give_back_of_a_gadget_that_deletes_itself_as_it_goes) {
    gadgets::BarDesk<> bars;
    Leaver* leaver = bars.Add(new Leaver([](Leaver& self) { delete &self; }));
    TGadget* other = bars.Add(1);
    bars.Show();
    EXPECT_EQ(nullptr, bars.bar->Remove(*leaver));
    leaver = bars.Add(new Leaver([](Leaver& self) { delete &self; }));
    bars.bar->Insert(*leaver, TGadgetWindow::Before, other);
    EXPECT_EQ(std::vector<int>{1}, Ids(*bars.bar));
}

TEST(GadgetWindow, has_nothing_to_give_back_of_a_gadget_that_ends_while_it_takes_another_out) {
    gadgets::BarDesk<> bars;
    Leaver* second = nullptr;
    Leaver* first = bars.Add(new Leaver([&](Leaver& self) { self.GetGadgetWindow()->Remove(*second); }));
    second = bars.Add(new Leaver([&](Leaver&) { delete first; }));
    bars.Show();
    EXPECT_EQ(nullptr, bars.bar->Remove(*first));
    EXPECT_EQ(nullptr, second->GetGadgetWindow());
    EXPECT_EQ(0U, bars.bar->NumGadgets());
    delete second;
}

TEST(GadgetWindow, takes_a_gadget_out_once_however_often_it_is_told_to) {
    gadgets::BarDesk<> bars;
    TGadget* again = &*bars.Add(1);
    Leaver* leaver = bars.Add(new Leaver([&](Leaver& self) { again = bars.bar->Remove(self); }));
    EXPECT_EQ(leaver, bars.bar->Remove(*leaver));
    EXPECT_EQ(nullptr, again);
    delete leaver;
}

TEST(GadgetWindow, lets_go_of_a_gadget_that_throws_as_it_goes) {
    gadgets::BarDesk<> bars;
    Leaver* leaver = bars.Add(new Leaver([](Leaver&) { throw std::domain_error("in Removed"); }));
    EXPECT_THROW(bars.bar->Remove(*leaver), std::domain_error);
    EXPECT_EQ(nullptr, leaver->GetGadgetWindow());
    EXPECT_EQ(0U, bars.bar->NumGadgets());
    delete leaver;
}

TEST(GadgetWindow, inserts_in_front_of_all_if_the_neighbour_goes_meanwhile) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    TGadget* neighbour = bars.Add(2);
    Leaver* leaver = bars.Add(new Leaver([&](Leaver&) { delete neighbour; }));
    bars.bar->Insert(*leaver, TGadgetWindow::Before, neighbour);
    EXPECT_EQ((std::vector<int>{0, 1}), Ids(*bars.bar));
}

TEST(GadgetWindow, ends_its_gadgets_with_itself) {
    struct Counted : Probe {
        explicit Counted(int& theCount) : count(theCount) { ++count; }
        ~Counted() override { --count; }
        int& count;
    };
    int count = 0;
    gadgets::BarDesk<> bars;
    bars.Add(new Counted(count));
    bars.Add(new Counted(count));
    bars.Show();
    EXPECT_EQ(2, count);
    delete bars.bar;
    EXPECT_EQ(0, count);
}

TEST(GadgetWindow, keeps_its_gadgets_while_its_window_goes_and_comes) {
    gadgets::BarDesk<> bars;
    Probe* gadget = bars.Add(1);
    bars.Show();
    bars.bar->Destroy();
    gadget->Take();
    bars.bar->Create();
    EXPECT_EQ(Calls{"created"}, gadget->Take());
    EXPECT_EQ(1U, bars.bar->NumGadgets());
}

TEST(GadgetWindow, owns_a_font_and_has_that_of_dialogs_without_one) {
    desk::Desk desk;
    LOGFONTA description{};
    ::lstrcpyA(description.lfFaceName, "Arial");
    description.lfHeight = -23;
    auto* font = new owl::TFont(description);
    TGadgetWindow bar(desk.frame, TGadgetWindow::Horizontal, font);
    EXPECT_EQ(font, &bar.GetFont());
    const TGadgetWindow plain(desk.frame);
    EXPECT_EQ(::GetStockObject(DEFAULT_GUI_FONT), plain.GetFont().GetHandle());
}

TEST_F(BarCommands, go_to_the_parent) {
    bar->PostMessage(WM_COMMAND, CM_GADGET_SAVE);
    EXPECT_TRUE(desk::PumpUntil([&] { return !frame->calls.empty(); }));
    EXPECT_EQ(Calls{"save"}, frame->calls);
}

TEST_F(BarCommands, are_asked_of_the_parent_who_receives_the_question_then) {
    Enabler print(CM_GADGET_PRINT, bar->GetHandle());
    bar->AskWhetherEnabled(print);
    EXPECT_EQ(Calls{"print?"}, frame->calls);
    EXPECT_EQ(0, print.enabled);
    EXPECT_EQ(1, print.checked);
    EXPECT_TRUE(print.IsReceiver(frame->GetHandle()));
}

TEST_F(BarCommands, are_enabled_if_the_parent_has_a_function_and_else_disabled) {
    Enabler save(CM_GADGET_SAVE, bar->GetHandle());
    bar->AskWhetherEnabled(save);
    EXPECT_EQ(1, save.enabled);
    Enabler unknown(CM_GADGET_NO_TEXT, bar->GetHandle());
    bar->AskWhetherEnabled(unknown);
    EXPECT_EQ(0, unknown.enabled);
}

TEST_F(BarCommands, leave_a_question_with_its_receiver_on_its_way_up) {
    Enabler passing(CM_GADGET_NO_TEXT, nullptr);
    bar->AskWhetherEnabled(passing);
    EXPECT_EQ(-1, passing.enabled);
    EXPECT_FALSE(passing.IsReceiver(frame->GetHandle()));
}

TEST_F(BarCommands, enable_gadgets_when_no_message_waits) {
    auto* save = new Asking(CM_GADGET_SAVE);
    auto* unknown = new Asking(CM_GADGET_NO_TEXT);
    bar->Insert(*save);
    bar->Insert(*unknown);
    save->SetEnabled(false);
    RunIdle();
    EXPECT_TRUE(save->GetEnabled());
    EXPECT_FALSE(unknown->GetEnabled());
}

TEST_F(BarCommands, let_a_control_in_the_bar_tell_the_parent) {
    const HWND list = ::CreateWindowExA(0, "LISTBOX", "", WS_CHILD | LBS_NOTIFY, 0, 0, 50, 50,
                                        bar->GetHandle(), reinterpret_cast<HMENU>(9), nullptr, nullptr);
    bar->SendMessage(WM_COMMAND, MAKEWPARAM(9, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(Calls{"list"}, frame->calls);
}

void Click(TGadgetWindow& bar) {
    owl::TNotify click{bar.GetHandle(), 9, static_cast<UINT>(NM_CLICK)};
    bar.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&click));
}

TEST_F(BarCommands, let_a_common_control_in_the_bar_tell_the_parent) {
    Click(*bar);
    EXPECT_EQ(Calls{"click"}, frame->calls);
}

TEST_F(OwnBarCommands, leave_it_to_the_bar_what_its_common_controls_tell) {
    Click(*bar);
    EXPECT_EQ(Calls{"bar's click"}, bar->calls);
    EXPECT_EQ(Calls(), frame->calls);
}

TEST_F(OwnBarCommands, stay_with_a_bar_that_has_functions_for_them) {
    const HWND list = ::CreateWindowExA(0, "LISTBOX", "", WS_CHILD | LBS_NOTIFY, 0, 0, 50, 50,
                                        bar->GetHandle(), reinterpret_cast<HMENU>(9), nullptr, nullptr);
    bar->SendMessage(WM_COMMAND, CM_GADGET_SAVE);
    Enabler print(CM_GADGET_PRINT, bar->GetHandle());
    bar->AskWhetherEnabled(print);
    bar->SendMessage(WM_COMMAND, MAKEWPARAM(9, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    EXPECT_EQ((Calls{"bar saves", "bar is asked", "bar's list"}), bar->calls);
    EXPECT_EQ(1, print.enabled);
    EXPECT_EQ(Calls(), frame->calls);
    Enabler save(CM_GADGET_SAVE, bar->GetHandle());
    bar->AskWhetherEnabled(save);
    EXPECT_EQ(1, save.enabled);
}

TEST(GadgetWindow, without_a_parent_answers_itself) {
    owl::TApplication program("gadgets");
    TGadgetWindow bar(nullptr);
    bar.Attr.Style = WS_POPUP;
    bar.Create();
    bar.SendMessage(WM_COMMAND, CM_GADGET_SAVE);
    Enabler enabler(CM_GADGET_SAVE, bar.GetHandle());
    bar.AskWhetherEnabled(enabler);
    EXPECT_EQ(0, enabler.enabled);
}

TEST(GadgetWindow, asks_for_more_idle_time_if_a_gadget_does) {
    struct Busy : Probe {
        bool IdleAction(long idleCount) override {
            counts.push_back(idleCount);
            return idleCount < 2;
        }
        std::vector<long> counts;
    };
    gadgets::BarDesk<> bars;
    auto* busy = bars.Add(new Busy);
    bars.Add(1);
    bars.Show();
    EXPECT_TRUE(bars.bar->IdleAction(0));
    EXPECT_TRUE(bars.bar->IdleAction(1));
    EXPECT_FALSE(bars.bar->IdleAction(2));
    EXPECT_EQ((std::vector<long>{0, 1, 2}), busy->counts);
}

// What is asked about a command may rebuild the bar.
TEST(GadgetWindow, goes_on_when_a_gadget_takes_others_out) {
    struct Killer : Probe {
        void CommandEnable() override {
            delete GetGadgetWindow()->GadgetWithId(2);
            GetGadgetWindow()->Insert(*new Probe(4));
            delete this;
        }
    };
    gadgets::BarDesk<> bars;
    bars.Add(new Killer);
    bars.Add(2);
    Probe* last = bars.Add(3);
    bars.Show();
    last->Take();
    bars.bar->IdleAction(0);
    EXPECT_EQ((std::vector<int>{3, 4}), Ids(*bars.bar));
    EXPECT_EQ("enable?", last->calls.back());
}

TEST_F(BarCommands, show_their_hints_in_the_frame) {
    bar->SetHintCommand(CM_GADGET_SAVE);
    bar->SetHintCommand(CM_GADGET_SAVE);
    EXPECT_EQ(CM_GADGET_SAVE, bar->GetHintCommand());
    bar->SetHintCommand(CM_GADGET_NO_TEXT);
    bar->SetHintCommand(-1);
    bar->SetHintCommand(-1);
    EXPECT_EQ((Calls{"401:Writes the drawing to its file", "499:", "-1:"}), frame->calls);
}

TEST_F(BarCommands, end_their_hint_with_the_window) {
    bar->SetHintCommand(CM_GADGET_SAVE);
    bar->Destroy();
    EXPECT_EQ("-1:", frame->calls.back());
    EXPECT_EQ(-1, bar->GetHintCommand());
}

TEST_F(BarCommands, end_their_hint_with_the_bar) {
    bar->SetHintCommand(CM_GADGET_SAVE);
    delete bar;
    EXPECT_EQ("-1:", frame->calls.back());
}

TEST_F(BarCommands, have_no_mode_of_hints_until_they_are_given_one) {
    EXPECT_EQ(TGadgetWindow::NoHints, bar->GetHintMode());
    bar->SetHintMode(TGadgetWindow::EnterHints);
    EXPECT_EQ(2, bar->GetHintMode());
    bar->SetHintMode(TGadgetWindow::PressHints);
    EXPECT_EQ(1, bar->GetHintMode());
}

/// A gadget that cannot say how large it wants to be, for a while.
class Undecided : public Probe {
public:
    using Probe::Probe;

    void GetDesiredSize(owl::TSize& wanted) override {
        if (throws)
            throw std::runtime_error("no picture");
        Probe::GetDesiredSize(wanted);
    }
    bool throws = false;
};

TEST(GadgetWindow, throws_what_a_gadget_throws_and_keeps_it) {
    gadgets::BarDesk<> bars;
    bars.Show();
    auto* undecided = new Undecided(1);
    undecided->throws = true;
    EXPECT_THROW(bars.bar->Insert(*undecided), std::runtime_error);
    EXPECT_EQ(bars.bar, undecided->GetGadgetWindow());
    EXPECT_THROW(bars.bar->LayoutSession(), std::runtime_error);
}

TEST(GadgetWindow, without_success_is_not_created) {
    gadgets::BarDesk<> bars;
    bars.Add(new Undecided(1))->throws = true;
    EXPECT_THROW(bars.bar->Create(), std::runtime_error);
    EXPECT_FALSE(bars.bar->IsWindow());
}

// A destructor cannot throw: the next loop does.
TEST(GadgetWindow, carries_on_what_others_throw_when_a_gadget_ends) {
    gadgets::BarDesk<> bars;
    auto* undecided = bars.Add(new Undecided(1));
    TGadget* other = bars.Add(2);
    bars.Show();
    undecided->throws = true;
    delete other;
    EXPECT_EQ(std::vector<int>{1}, Ids(*bars.bar));
    undecided->throws = false;
    EXPECT_THROW(bars.desk.application.PumpWaitingMessages(), std::runtime_error);
}

TEST(GadgetWindow, carries_on_what_a_frame_throws_when_the_hint_ends_with_the_bar) {
    struct Angry : owl::TFrameWindow {
        Angry() : TFrameWindow(nullptr) {}
        void ShowHint(int command, const std::string&) override {
            if (command < 0)
                throw std::runtime_error("nothing to say");
        }
    };
    owl::TApplication program("angry");
    Angry frame;
    auto* bar = new TGadgetWindow(&frame);
    bar->SetHintCommand(1);
    delete bar;
    EXPECT_THROW(program.PumpWaitingMessages(), std::runtime_error);
}

/// Other colours of the screen for a while.
class OtherFace {
public:
    explicit OtherFace(COLORREF face) : m_former(::GetSysColor(COLOR_BTNFACE)) { Set(face); }
    ~OtherFace() { Set(m_former); }
    OtherFace(const OtherFace&) = delete;
    OtherFace& operator=(const OtherFace&) = delete;

private:
    static void Set(COLORREF face) {
        const int element = COLOR_BTNFACE;
        ::SetSysColors(1, &element, &face);
    }
    COLORREF m_former;
};

// The system tells the frame, which tells its children.
TEST(GadgetWindow, passes_a_change_of_the_screens_colours_on_and_is_painted_in_them) {
    gadgets::BarDesk<> bars;
    Probe* gadget = bars.Add(1);
    bars.Show();
    bars.bar->UpdateWindow();
    gadget->Take();
    const COLORREF face = RGB(200, 180, 90);
    {
        const OtherFace other(face);
        const Calls told{"colours"};
        EXPECT_TRUE(desk::PumpUntil([&] { return gadget->calls == told; }));
        bars.bar->UpdateWindow();
        const HDC dc = ::GetDC(bars.bar->GetHandle());
        EXPECT_EQ(face, ::GetPixel(dc, 150, 10));
        ::ReleaseDC(bars.bar->GetHandle(), dc);
    }
    desk::PumpUntil([&] { return gadget->calls.size() == 2; });
}

TEST(GadgetWindow, leaves_nothing_behind) {
    gadgets::BarDesk<> bars;
    bars.Show();
    const auto comeAndGo = [&] {
        TGadgetWindow bar(bars.desk.frame);
        for (int id = 1; id <= 5; ++id)
            bar.Insert(*new Probe(id));
        bar.Create();
        bar.UpdateWindow();
    };
    comeAndGo();
    const int windows = desk::CountWindows();
    const DWORD before = desk::UserObjects();
    const int room = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i)
        comeAndGo();
    EXPECT_EQ(windows, desk::CountWindows());
    EXPECT_EQ(before, desk::UserObjects());
    EXPECT_EQ(room, owl_test::RoomForGdiObjects());
}

}  // namespace
