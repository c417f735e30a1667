#include "lvx/exchange/dde.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "raw_partner.h"
#include "support/threads.h"
#include "support/vtable_slot.h"
#include "told_client.h"

namespace {

using dde_test::name_of;
using dde_test::RawPartner;
using dde_test::ToldClient;
using lvx_test::milliseconds_of;
using lvx_test::slot_of;
using testing::ElementsAre;

static_assert(std::is_same_v<std::underlying_type_t<DdeEvent>, int>);
static_assert(DdeInitiate == 2 && DdeAdvise == 3 && DdeUnadvise == 4 && DdeRequest == 5 && DdePoke == 6 &&
              DdeExecute == 7 && DdeTerminate == 8);
static_assert(std::is_base_of_v<owl::TWindow, LVXDde> && !std::is_copy_constructible_v<LVXDde>);

// An end with a window, a client and a partner of the test's.
class OpenDde : public LVXDde {
public:
    OpenDde() { Create(); }
    void Connect(HWND partner) { m_partner = partner; }
    HWND Partner() const { return m_partner; }
    bool IsWaiting() const { return m_waiting; }
    bool IsClosing() const { return m_closing; }
    unsigned short Status() const { return m_ackStatus; }
    HGLOBAL Data() const { return m_data; }
    WPARAM Self() const { return reinterpret_cast<WPARAM>(GetHandle()); }
};

class Dde : public testing::Test {
protected:
    Dde() {
        dde.uponEvent(&client);
        dde.Connect(partner.Window());
        partner.SetServer(dde);
    }
    ~Dde() override {
        RawPartner::PumpAll();
        partner.FreeMine();
    }

    // Posts an acknowledgement as partners do.
    void PostAck(UINT_PTR status, UINT_PTR atom) {
        const LPARAM packed = ::PackDDElParam(WM_DDE_ACK, status, atom);
        ASSERT_TRUE(::PostMessageA(dde, WM_DDE_ACK, partner.Self(), packed));
    }

    ToldClient client;
    RawPartner partner;
    OpenDde dde;
};

}  // namespace

TEST_F(Dde, has_its_virtual_operations_in_their_order) {
    EXPECT_EQ(slot_of(&LVXDde::Find) + 1, slot_of(&LVXDde::disconnect));
    EXPECT_EQ(slot_of(&LVXDde::disconnect) + 1, slot_of(&LVXDde::rcvTerminate));
    EXPECT_EQ(slot_of(&LVXDde::rcvTerminate) + 1, slot_of(&LVXDde::rcvAck));
    EXPECT_EQ(0u, slot_of(&LVXDdeClient::ddeEvent));
}

TEST_F(Dde, is_a_hidden_popup_with_border_and_system_menu) {
    EXPECT_EQ(0x80880000u, dde.Attr.Style);
    EXPECT_EQ("DDE Window", dde.GetWindowText());
    EXPECT_FALSE(dde.IsWindowVisible());
    EXPECT_EQ(nullptr, LVXDde().GetHandle());
}

TEST_F(Dde, begins_without_partner_and_event) {
    LVXDde fresh;
    EXPECT_EQ(nullptr, fresh.item());
    EXPECT_EQ(nullptr, fresh.dataItem());
    EXPECT_EQ(0u, fresh.format());
    EXPECT_EQ(0, static_cast<int>(fresh.reason()));
    EXPECT_FALSE(fresh.sndTerminate(false));
    EXPECT_FALSE(fresh.sndTerminate(true));
    EXPECT_FALSE(fresh.sndAck(0x8000, 0, 0, WM_DDE_REQUEST, 0));
    EXPECT_FALSE(fresh.sndAck(0x8000, 0, 1, WM_DDE_INITIATE, 0));
}

TEST_F(Dde, without_a_client_accepts_every_event) {
    dde.uponEvent(nullptr);
    for (const DdeEvent event :
         {DdeInitiate, DdeAdvise, DdeUnadvise, DdeRequest, DdePoke, DdeExecute, DdeTerminate})
        EXPECT_TRUE(dde.callback(event, "item", nullptr));
}

TEST_F(Dde, tells_the_client_what_happens_and_hands_its_answer_on) {
    int data = 0;
    EXPECT_TRUE(dde.callback(DdePoke, "colour", &data));
    client.accepts = false;
    EXPECT_FALSE(dde.callback(DdeExecute, nullptr, nullptr));
    ASSERT_EQ(2u, client.events.size());
    EXPECT_EQ(&dde, client.events[0].dde);
    EXPECT_EQ(DdePoke, client.events[0].reason);
    EXPECT_EQ("colour", client.events[0].item);
    EXPECT_EQ(&data, client.events[0].data);
    EXPECT_EQ(DdeExecute, client.events[1].reason);
    EXPECT_FALSE(client.events[1].hasItem);
}

// The host is in the midst of one event when its own call leads to another.
TEST_F(Dde, tells_of_the_outer_event_again_behind_an_inner_one) {
    client.onEvent = [this](LVXDde& reporter) {
        if (reporter.reason() == DdePoke) {
            dde.callback(DdeExecute, nullptr, nullptr);
            EXPECT_EQ(DdePoke, reporter.reason());
            EXPECT_STREQ("outer", reporter.item());
            EXPECT_EQ(this, reporter.dataItem());
        }
        return true;
    };
    dde.callback(DdePoke, "outer", this);
    EXPECT_THAT(client.Reasons(), ElementsAre(DdePoke, DdeExecute));
}

TEST_F(Dde, without_a_partner_disconnects_nothing_at_once) {
    dde.Connect(nullptr);
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(dde.disconnect()); }), 2000);
    RawPartner::PumpAll();
    EXPECT_TRUE(partner.letters.empty());
}

TEST_F(Dde, disconnects_when_the_partner_says_good_bye_too) {
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(dde.disconnect()); }), 2000);
    EXPECT_EQ(nullptr, dde.Partner());
    EXPECT_FALSE(dde.IsClosing());
    EXPECT_EQ(0x8000u, dde.Status());
    ASSERT_EQ(1u, partner.letters.size());
    EXPECT_EQ(WM_DDE_TERMINATE, static_cast<int>(partner.letters[0].message));
    EXPECT_EQ(dde.GetHandle(), partner.letters[0].sender);
    EXPECT_TRUE(client.events.empty());
}

TEST_F(Dde, keeps_a_partner_that_never_answers) {
    partner.answersTerminate = false;
    dde.ackTime(200);
    const long time = milliseconds_of([&] { EXPECT_FALSE(dde.disconnect()); });
    EXPECT_GE(time, 190);
    EXPECT_LT(time, 2000);
    EXPECT_EQ(1u, dde.Status());
    EXPECT_FALSE(dde.IsClosing());
    EXPECT_FALSE(dde.IsWaiting());
    EXPECT_EQ(partner.Window(), dde.Partner());
    partner.answersTerminate = true;
    EXPECT_TRUE(dde.disconnect());
}

TEST_F(Dde, gives_up_at_once_on_a_partner_whose_window_is_gone) {
    partner.Destroy();
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(dde.disconnect()); }), 2000);
    EXPECT_FALSE(dde.sndTerminate(true));
}

TEST_F(Dde, answers_a_good_bye_and_tells_the_client) {
    partner.answersTerminate = false;
    EXPECT_EQ(0, ::SendMessageA(dde, WM_DDE_TERMINATE, partner.Self(), 0));
    EXPECT_EQ(nullptr, dde.Partner());
    // Sent, not posted: nothing was pumped.
    EXPECT_EQ(1u, partner.Count(WM_DDE_TERMINATE));
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeTerminate));
    EXPECT_FALSE(client.events[0].hasItem);
}

TEST_F(Dde, posts_a_good_bye_unless_it_is_to_send_it) {
    partner.answersTerminate = false;
    EXPECT_TRUE(dde.sndTerminate(false));
    EXPECT_EQ(0u, partner.Count(WM_DDE_TERMINATE));
    EXPECT_TRUE(partner.Wait(WM_DDE_TERMINATE));
    EXPECT_TRUE(dde.sndTerminate(true));
    EXPECT_EQ(2u, partner.Count(WM_DDE_TERMINATE));
}

TEST_F(Dde, waits_until_a_positive_acknowledgement_comes) {
    PostAck(0x8000, 0);
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(dde.yieldAck(5000)); }), 2000);
    EXPECT_EQ(0x8000u, dde.Status());
    EXPECT_FALSE(dde.IsWaiting());
}

TEST_F(Dde, ends_the_wait_at_once_with_a_refusal) {
    for (const unsigned status : {0x0000u, 0x4000u, 0x8001u, 0x7FFFu}) {
        PostAck(status, 0);
        EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(dde.yieldAck(5000)); }), 2000);
        EXPECT_EQ(status, dde.Status());
    }
}

TEST_F(Dde, ends_the_wait_when_the_time_is_over) {
    const long time = milliseconds_of([&] { EXPECT_FALSE(dde.yieldAck(250)); });
    EXPECT_GE(time, 240);
    EXPECT_LT(time, 2000);
    EXPECT_EQ(1u, dde.Status());
    EXPECT_FALSE(dde.IsWaiting());
}

TEST_F(Dde, with_no_time_at_all_looks_once) {
    PostAck(0x8000, 0);
    EXPECT_TRUE(dde.yieldAck(0));
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(dde.yieldAck(0)); }), 2000);
    EXPECT_EQ(1u, dde.Status());
}

TEST_F(Dde, keeps_its_time_under_a_flood) {
    bool flooding = true;
    partner.onLetter = [&](const dde_test::Letter&) {
        if (flooding)
            ::PostMessageA(partner.Window(), WM_DDE_UNADVISE, 0, 0);
    };
    ::PostMessageA(partner.Window(), WM_DDE_UNADVISE, 0, 0);
    const long time = milliseconds_of([&] { EXPECT_FALSE(dde.yieldAck(200)); });
    flooding = false;
    EXPECT_GE(time, 190);
    EXPECT_LT(time, 3000);
    EXPECT_GT(partner.Count(WM_DDE_UNADVISE), 10u);
}

TEST_F(Dde, while_it_waits_handles_dde_messages_of_any_window_and_no_others) {
    const UINT lowest = WM_DDE_INITIATE - 1;
    const UINT highest = WM_DDE_EXECUTE + 1;
    for (const UINT message : {lowest, highest, static_cast<UINT>(WM_USER), static_cast<UINT>(WM_KEYDOWN)})
        ::PostMessageA(partner.Window(), message, 0, 0);
    ::PostMessageA(partner.Window(), WM_DDE_REQUEST, 0, 0);
    EXPECT_FALSE(dde.yieldAck(100));
    EXPECT_EQ(1u, partner.Count(WM_DDE_REQUEST));
    MSG message{};
    for (const UINT left : {lowest, highest, static_cast<UINT>(WM_USER), static_cast<UINT>(WM_KEYDOWN)})
        EXPECT_TRUE(::PeekMessageA(&message, partner.Window(), left, left, PM_REMOVE)) << left;
}

// The system hands the end of the program out whichever messages are looked for.
TEST_F(Dde, leaves_the_end_of_the_program_for_the_hosts_loop) {
    ::PostQuitMessage(42);
    PostAck(0x8000, 0);
    EXPECT_TRUE(dde.yieldAck(3000));
    ::PostQuitMessage(43);
    EXPECT_FALSE(dde.yieldAck(50));
    MSG message{};
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(43u, message.wParam);
}

TEST_F(Dde, ends_the_outer_wait_with_an_inner_one) {
    partner.onLetter = [this](const dde_test::Letter&) { EXPECT_FALSE(dde.yieldAck(10)); };
    ::PostMessageA(partner.Window(), WM_DDE_REQUEST, 0, 0);
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(dde.yieldAck(5000)); }), 3000);
    EXPECT_EQ(1u, dde.Status());
}

// Each request makes the host wait, and the wait takes in the next request.
TEST_F(Dde, does_not_pile_waits_up_without_bound) {
    int depth = 0;
    int deepest = 0;
    partner.onLetter = [&](const dde_test::Letter&) {
        deepest = std::max(deepest, ++depth);
        dde.yieldAck(1000);
        --depth;
    };
    for (int i = 0; i < 200; ++i)
        ::PostMessageA(partner.Window(), WM_DDE_REQUEST, 0, 0);
    dde.yieldAck(1000);
    EXPECT_GE(deepest, 8);
    EXPECT_LE(deepest, 32);
    partner.onLetter = nullptr;
}

TEST_F(Dde, deletes_the_atom_of_every_acknowledgement) {
    const ATOM atom = ::GlobalAddAtomA("lvx dde acknowledged");
    ::GlobalAddAtomA("lvx dde acknowledged");
    dde.rcvAck(partner.Window(), 0x8000, reinterpret_cast<void*>(static_cast<UINT_PTR>(atom)));
    EXPECT_EQ("lvx dde acknowledged", name_of(atom));
    PostAck(0, atom);
    RawPartner::PumpAll();
    EXPECT_EQ("", name_of(atom));
    EXPECT_EQ(0u, dde.Status());
}

TEST_F(Dde, takes_an_acknowledgement_whose_words_are_not_packed) {
    const ATOM atom = ::GlobalAddAtomA("lvx dde words");
    EXPECT_EQ(0, ::SendMessageA(dde, WM_DDE_ACK, partner.Self(), MAKELPARAM(0x8000, atom)));
    EXPECT_EQ(0x8000u, dde.Status());
    EXPECT_EQ("", name_of(atom));
    EXPECT_EQ(0, dde.EvWmDdeAck(partner.Self(), 0));
    EXPECT_EQ(0u, dde.Status());
}

TEST_F(Dde, frees_the_packing_of_an_acknowledgement) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_ACK, 0x8000, 0);
    EXPECT_EQ(0, dde.EvWmDdeAck(partner.Self(), packed));
    EXPECT_EQ(0x8000u, dde.Status());
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(packed)));
}

TEST_F(Dde, acknowledges_an_initiation_by_two_atoms_in_words) {
    const ATOM application = ::GlobalAddAtomA("lvx dde application");
    const ATOM topic = ::GlobalAddAtomA("lvx dde topic");
    partner.isConnecting = true;
    EXPECT_TRUE(dde.sndAck(application, topic, 1, WM_DDE_INITIATE, 0));
    partner.isConnecting = false;
    ::GlobalDeleteAtom(application);
    ::GlobalDeleteAtom(topic);
    ASSERT_EQ(1u, partner.letters.size());
    EXPECT_EQ("lvx dde application|lvx dde topic", partner.letters[0].item);
    EXPECT_EQ(dde.GetHandle(), partner.Server());
}

TEST_F(Dde, acknowledges_by_a_packing_of_its_own) {
    const ATOM atom = ::GlobalAddAtomA("lvx dde item");
    EXPECT_TRUE(dde.sndAck(0x8000, atom, 0, WM_DDE_REQUEST, 0));
    EXPECT_TRUE(partner.letters.empty());
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(0x8000u, partner.letters[0].status);
    EXPECT_EQ("lvx dde item", partner.letters[0].item);
    EXPECT_EQ(dde.GetHandle(), partner.letters[0].sender);
    EXPECT_EQ("", name_of(atom));
}

TEST_F(Dde, acknowledges_by_the_packing_of_the_message) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, 1, 2);
    EXPECT_TRUE(dde.sndAck(0, 33, 0, WM_DDE_POKE, packed));
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(packed)));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(0u, partner.letters[0].status);
    EXPECT_EQ(33u, partner.letters[0].high);
}

TEST_F(Dde, sends_an_acknowledgement_if_it_is_told_to) {
    EXPECT_TRUE(dde.sndAck(0x8000, 33, 1, WM_DDE_REQUEST, 0));
    ASSERT_EQ(1u, partner.letters.size());
    EXPECT_EQ(0x8000u, partner.letters[0].status);
}

TEST_F(Dde, frees_the_packing_of_an_answer_that_reaches_nobody) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, 1, 2);
    partner.Destroy();
    EXPECT_FALSE(dde.sndAck(0, 33, 0, WM_DDE_POKE, packed));
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(packed)));
    dde.Connect(nullptr);
    const LPARAM other = ::PackDDElParam(WM_DDE_ADVISE, 1, 2);
    EXPECT_FALSE(dde.sndAck(0, 33, 0, WM_DDE_ADVISE, other));
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(other)));
}

TEST_F(Dde, builds_a_block_of_flags_format_and_bytes) {
    const HGLOBAL block = dde.setData(0x1234, 5, "stars");
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(block, dde.Data());
    EXPECT_EQ(11u, ::GlobalSize(block));
    const std::string bytes(static_cast<const char*>(::GlobalLock(block)), 11);
    EXPECT_EQ(std::string("\0\0\x34\x12stars\0\0", 11), bytes);
    ::GlobalUnlock(block);
    // Not locked any more.
    EXPECT_EQ(0u, ::GlobalFlags(block) & GMEM_LOCKCOUNT);
    ::GlobalFree(block);
}

TEST_F(Dde, builds_an_empty_block_of_nothing) {
    const HGLOBAL block = dde.setData(1, 3, nullptr);
    EXPECT_EQ(9u, ::GlobalSize(block));
    EXPECT_EQ(0, static_cast<const char*>(::GlobalLock(block))[4]);
    ::GlobalUnlock(block);
    ::GlobalFree(block);
    const HGLOBAL least = dde.setData(1, 0, nullptr);
    EXPECT_EQ(6u, ::GlobalSize(least));
    ::GlobalFree(least);
}

TEST_F(Dde, builds_no_block_of_less_than_nothing) {
    EXPECT_EQ(nullptr, dde.setData(1, -1, "x"));
    EXPECT_EQ(nullptr, dde.Data());
}

TEST_F(Dde, puts_a_text_into_a_fixed_block) {
    const HGLOBAL block = LVXDde::strToHandle("sirius");
    EXPECT_EQ(16u, ::GlobalSize(block));
    EXPECT_STREQ("sirius", static_cast<const char*>(::GlobalLock(block)));
    // A fixed block lies where its handle says.
    EXPECT_EQ(block, ::GlobalLock(block));
    ::GlobalFree(block);
    const HGLOBAL empty = LVXDde::strToHandle(nullptr);
    EXPECT_STREQ("", static_cast<const char*>(::GlobalLock(empty)));
    ::GlobalFree(empty);
}

TEST_F(Dde, returns_itself_from_setting_the_time) {
    EXPECT_EQ(&dde, &dde.ackTime(7));
}

TEST_F(Dde, may_be_deleted_by_its_client_in_an_event) {
    auto* const other = new OpenDde;
    other->uponEvent(&client);
    other->Connect(partner.Window());
    client.onEvent = [](LVXDde& ended) {
        delete &ended;
        return true;
    };
    const HWND window = *other;
    ::SendMessageA(window, WM_DDE_TERMINATE, partner.Self(), 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Dde, may_be_deleted_while_it_waits) {
    auto* const other = new OpenDde;
    partner.onLetter = [&](const dde_test::Letter&) { delete other; };
    ::PostMessageA(partner.Window(), WM_DDE_REQUEST, 0, 0);
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(other->yieldAck(4000)); }), 2000);
}

TEST_F(Dde, may_be_deleted_while_it_disconnects) {
    auto* const other = new OpenDde;
    other->Connect(partner.Window());
    partner.onLetter = [&](const dde_test::Letter&) { delete other; };
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(other->disconnect()); }), 2000);
}
