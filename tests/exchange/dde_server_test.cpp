#include "lvx/exchange/dde_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "served.h"
#include "support/box_reader.h"
#include "support/threads.h"
#include "support/vtable_slot.h"

namespace {

using dde_test::Letter;
using dde_test::name_of;
using dde_test::positive;
using dde_test::RawPartner;
using dde_test::ToldClient;
using lvx_test::milliseconds_of;
using lvx_test::slot_of;
using testing::ElementsAre;

using DdeServer = dde_test::Served;

// No window of this thread is created while it lives.
class Refusal {
public:
    Refusal() : m_hook(::SetWindowsHookExA(WH_CBT, &Refuse, nullptr, ::GetCurrentThreadId())) {}
    Refusal(const Refusal&) = delete;
    Refusal& operator=(const Refusal&) = delete;
    ~Refusal() { ::UnhookWindowsHookEx(m_hook); }

private:
    // The box that tells of it is a window too, of another class.
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
        char name[20] = {};
        if (code == HCBT_CREATEWND)
            ::GetClassNameA(reinterpret_cast<HWND>(wParam), name, sizeof name);
        if (std::string(name) == "OwlWindow")
            return 1;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    const HHOOK m_hook;
};

// A master that answers wildcards with two topics.
class TwoTopics : public LVXDdeServer {
public:
    int rcvInitiate(const char* application, const char* topic, void* window) override {
        if (topic != nullptr)
            return LVXDdeServer::rcvInitiate("Sketch", topic, window);
        const int first = LVXDdeServer::rcvInitiate("Sketch", "one", window);
        return first +
               LVXDdeServer::rcvInitiate(application != nullptr ? application : "Sketch", "two", window);
    }
};

}  // namespace

TEST_F(DdeServer, has_its_virtual_operations_in_their_order) {
    EXPECT_EQ(slot_of(&LVXDdeServer::rcvInitiate) + 1, slot_of(&LVXDdeServer::rcvAdvise));
    EXPECT_EQ(slot_of(&LVXDdeServer::rcvAdvise) + 1, slot_of(&LVXDdeServer::rcvUnadvise));
    EXPECT_EQ(slot_of(&LVXDdeServer::rcvUnadvise) + 1, slot_of(&LVXDdeServer::rcvRequest));
    EXPECT_EQ(slot_of(&LVXDdeServer::rcvRequest) + 1, slot_of(&LVXDdeServer::rcvExecute));
    EXPECT_EQ(slot_of(&LVXDdeServer::rcvExecute) + 1, slot_of(&LVXDdeServer::rcvPoke));
    EXPECT_LT(slot_of(&LVXDde::rcvAck), slot_of(&LVXDdeServer::rcvInitiate));
    EXPECT_EQ(slot_of(&LVXDde::disconnect), slot_of(&LVXDdeServer::disconnect));
    EXPECT_EQ(slot_of(&LVXDde::rcvTerminate), slot_of(&LVXDdeServer::rcvTerminate));
}

TEST_F(DdeServer, has_a_hidden_window_from_the_first) {
    EXPECT_TRUE(::IsWindow(master));
    EXPECT_FALSE(master.IsWindowVisible());
    EXPECT_EQ("Slatework DDE Server Window", master.GetWindowText());
    EXPECT_EQ(0x80880000u, master.Attr.Style);
    EXPECT_EQ(nullptr, master.topic());
    EXPECT_EQ(nullptr, master.application());
    EXPECT_EQ(nullptr, master.command());
    EXPECT_TRUE(master.children().empty());
}

TEST_F(DdeServer, tells_in_a_box_that_it_has_no_window) {
    lvx_test::BoxReader reader;
    std::unique_ptr<LVXDdeServer> poor;
    {
        const Refusal refusal;
        poor = std::make_unique<LVXDdeServer>();
    }
    const lvx_test::BoxContents& box = reader.Contents();
    EXPECT_TRUE(box.found);
    EXPECT_EQ("Failed to create window", box.caption);
    EXPECT_EQ(0u, box.text.find("CreateWindow: ")) << box.text;
    EXPECT_FALSE(poor->IsWindow());
    EXPECT_FALSE(poor->sendItem("item", "text", CF_TEXT));
    EXPECT_TRUE(poor->disconnect());
}

TEST_F(DdeServer, without_a_window_for_a_child_begins_no_conversation) {
    lvx_test::BoxReader reader;
    {
        const Refusal refusal;
        EXPECT_FALSE(Connect(partner));
    }
    EXPECT_EQ("Failed to create window", reader.Contents().caption);
    EXPECT_EQ(0, partner.lastResult);
    EXPECT_TRUE(master.children().empty());
    EXPECT_TRUE(partner.letters.empty());
    EXPECT_TRUE(Connect(partner));
}

TEST_F(DdeServer, answers_an_accepted_topic_by_a_child_of_its_own) {
    EXPECT_TRUE(Connect(partner));
    EXPECT_EQ(1, partner.lastResult);
    ASSERT_EQ(1u, master.children().size());
    EXPECT_EQ(master.children()[0]->GetHandle(), partner.Server());
    EXPECT_NE(master.GetHandle(), partner.Server());
    ASSERT_EQ(1u, partner.letters.size());
    // Sent within the initiation, the atoms in words.
    EXPECT_EQ("Sketch|drawing", partner.letters[0].item);
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(&master, client.events[0].dde);
    EXPECT_EQ(DdeInitiate, client.events[0].reason);
    EXPECT_FALSE(client.events[0].hasItem);
    EXPECT_EQ("Sketch|drawing", client.events[0].text);
}

TEST_F(DdeServer, forgets_the_topic_behind_the_initiation) {
    Connect(partner);
    EXPECT_EQ(nullptr, master.topic());
    EXPECT_EQ(nullptr, master.application());
    EXPECT_FALSE(master.sndTerminate(false));
}

TEST_F(DdeServer, gives_a_second_client_a_child_of_its_own) {
    RawPartner second;
    EXPECT_TRUE(Connect(partner));
    EXPECT_TRUE(Connect(second));
    ASSERT_EQ(2u, master.children().size());
    EXPECT_EQ(master.children()[0]->GetHandle(), partner.Server());
    EXPECT_EQ(master.children()[1]->GetHandle(), second.Server());
    EXPECT_NE(partner.Server(), second.Server());
}

TEST_F(DdeServer, sends_nothing_at_all_for_a_refused_topic) {
    client.accepts = false;
    EXPECT_FALSE(Connect(partner));
    EXPECT_EQ(0, partner.lastResult);
    RawPartner::PumpAll();
    EXPECT_TRUE(partner.letters.empty());
    EXPECT_TRUE(master.children().empty());
}

TEST_F(DdeServer, leaves_the_atoms_of_an_initiation_to_their_owners) {
    const ATOM application = ::GlobalAddAtomA("lvx dde server app");
    const ATOM topic = ::GlobalAddAtomA("lvx dde server topic");
    for (const bool accepts : {true, false}) {
        client.accepts = accepts;
        partner.Initiate(master, "lvx dde server app", "lvx dde server topic");
    }
    EXPECT_EQ("lvx dde server app", name_of(application));
    EXPECT_EQ("lvx dde server topic", name_of(topic));
    ::GlobalDeleteAtom(application);
    ::GlobalDeleteAtom(topic);
    EXPECT_EQ("", name_of(application));
    EXPECT_EQ("", name_of(topic));
}

TEST_F(DdeServer, does_not_begin_a_conversation_from_a_child) {
    Begin();
    EXPECT_FALSE(partner.Initiate(*child, "Sketch", "drawing"));
    EXPECT_EQ(0, partner.lastResult);
    EXPECT_EQ(0, child->rcvInitiate("Sketch", "drawing", partner.Window()));
    EXPECT_EQ(1u, master.children().size());
    EXPECT_TRUE(client.events.empty());
}

TEST_F(DdeServer, tells_the_client_null_for_any_name) {
    EXPECT_TRUE(partner.Initiate(master, nullptr, nullptr));
    EXPECT_EQ("*|*", client.events[0].text);
    EXPECT_EQ("|", partner.letters[0].item);
    EXPECT_TRUE(partner.Initiate(master, "Sketch", nullptr));
    EXPECT_EQ("Sketch|*", client.events[1].text);
}

TEST_F(DdeServer, offers_a_wildcard_as_many_topics_as_its_host_names) {
    TwoTopics topics;
    topics.uponEvent(&client);
    EXPECT_TRUE(partner.Initiate(topics, nullptr, nullptr));
    EXPECT_EQ(2, partner.lastResult);
    ASSERT_EQ(2u, partner.letters.size());
    EXPECT_EQ("Sketch|one", partner.letters[0].item);
    EXPECT_EQ("Sketch|two", partner.letters[1].item);
    while (!topics.children().empty())
        topics.disconnect();
}

TEST_F(DdeServer, ignores_an_initiation_from_no_window) {
    EXPECT_EQ(0, ::SendMessageA(master, WM_DDE_INITIATE, 0, 0));
    EXPECT_EQ(0, ::SendMessageA(master, WM_DDE_INITIATE, 0x12345678, 0));
    EXPECT_TRUE(master.children().empty());
    EXPECT_TRUE(client.events.empty());
}

TEST_F(DdeServer, asks_about_each_of_two_initiations_within_each_other) {
    RawPartner second;
    int depth = 0;
    client.onEvent = [&](LVXDde& dde) {
        if (dde.reason() == DdeInitiate && ++depth == 1) {
            EXPECT_TRUE(second.Initiate(master, "Sketch", "inner"));
            EXPECT_STREQ("drawing", master.topic());
            EXPECT_STREQ("Sketch", master.application());
        }
        return true;
    };
    EXPECT_TRUE(Connect(partner));
    EXPECT_EQ("Sketch|drawing", partner.letters[0].item);
    EXPECT_EQ("Sketch|inner", second.letters[0].item);
    EXPECT_EQ(2u, master.children().size());
}

TEST_F(DdeServer, may_be_deleted_while_its_client_is_asked) {
    auto* const other = new LVXDdeServer;
    other->uponEvent(&client);
    client.onEvent = [&](LVXDde&) {
        delete other;
        return true;
    };
    // Without a good-bye to who is no partner yet, and the wait for an answer.
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(partner.Initiate(*other, "Sketch", "drawing")); }), 2000);
    EXPECT_EQ(0, partner.lastResult);
    RawPartner::PumpAll();
    EXPECT_TRUE(partner.letters.empty());
}

TEST_F(DdeServer, loses_a_child_whose_client_says_good_bye) {
    Begin();
    const HWND window = *child;
    EXPECT_TRUE(partner.End());
    EXPECT_TRUE(master.children().empty());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeTerminate));
    EXPECT_EQ(child, client.events[0].dde);
    EXPECT_EQ(1u, partner.Count(WM_DDE_TERMINATE));
}

TEST_F(DdeServer, keeps_the_order_of_the_others_when_a_child_goes) {
    RawPartner second;
    RawPartner third;
    Connect(partner);
    Connect(second);
    Connect(third);
    EXPECT_TRUE(second.End());
    ASSERT_EQ(2u, master.children().size());
    EXPECT_EQ(partner.Server(), master.children()[0]->GetHandle());
    EXPECT_EQ(third.Server(), master.children()[1]->GetHandle());
}

TEST_F(DdeServer, ignores_a_good_bye_to_its_master) {
    Begin();
    ::SendMessageA(master, WM_DDE_TERMINATE, partner.Self(), 0);
    EXPECT_EQ(1u, master.children().size());
    EXPECT_TRUE(client.events.empty());
    EXPECT_TRUE(partner.letters.empty());
}

TEST_F(DdeServer, disconnects_a_child_which_deletes_itself) {
    Begin();
    const HWND window = *child;
    EXPECT_TRUE(child->disconnect());
    EXPECT_TRUE(master.children().empty());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(1u, partner.Count(WM_DDE_TERMINATE));
    // Who ends the conversation need not be told.
    EXPECT_TRUE(client.events.empty());
}

TEST_F(DdeServer, deletes_a_child_whose_client_never_answers_behind_its_time) {
    Begin();
    partner.answersTerminate = false;
    child->ackTime(200);
    const HWND window = *child;
    const long time = milliseconds_of([&] { EXPECT_TRUE(child->disconnect()); });
    EXPECT_GE(time, 190);
    EXPECT_LT(time, 2000);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(master.children().empty());
}

// Each that goes leaves its place to the next one, which is passed over.
TEST_F(DdeServer, disconnects_every_second_child_of_a_master) {
    RawPartner others[4];
    Connect(partner);
    for (RawPartner& other : others)
        Connect(other);
    EXPECT_EQ(5u, master.children().size());
    EXPECT_TRUE(master.disconnect());
    ASSERT_EQ(2u, master.children().size());
    EXPECT_EQ(others[0].Server(), master.children()[0]->GetHandle());
    EXPECT_EQ(others[2].Server(), master.children()[1]->GetHandle());
    EXPECT_TRUE(master.disconnect());
    EXPECT_TRUE(master.disconnect());
    EXPECT_TRUE(master.children().empty());
    EXPECT_TRUE(master.disconnect());
}

TEST_F(DdeServer, lets_a_child_live_until_its_client_has_answered) {
    Begin();
    const HWND window = *child;
    client.onEvent = [&](LVXDde& dde) {
        if (dde.reason() == DdeExecute) {
            EXPECT_TRUE(dde.disconnect());
            EXPECT_TRUE(master.children().empty());
            // Still an object, without a partner.
            EXPECT_EQ(DdeExecute, dde.reason());
            EXPECT_FALSE(child->sendItem("item", "text", CF_TEXT));
            child->updateItem("item");
            EXPECT_TRUE(dde.disconnect());
        }
        return true;
    };
    partner.Execute("[quit]");
    EXPECT_TRUE(partner.Wait(WM_DDE_TERMINATE));
    EXPECT_TRUE(RawPartner::PumpUntil([&] { return ::IsWindow(window) == 0; }));
    EXPECT_TRUE(master.children().empty());
    EXPECT_EQ(0u, partner.Count(WM_DDE_ACK));
}

TEST_F(DdeServer, lets_a_child_be_disconnected_when_it_tells_of_its_end) {
    Begin();
    client.onEvent = [&](LVXDde& dde) { return dde.disconnect(); };
    EXPECT_TRUE(partner.End());
    EXPECT_TRUE(master.children().empty());
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeTerminate));
}

// A command comes while the good-bye is under way, and its client clears up too.
TEST_F(DdeServer, lets_a_host_clear_up_while_a_child_is_saying_good_bye) {
    Begin();
    bool cleared = false;
    client.onEvent = [&](LVXDde&) {
        while (!master.children().empty())
            master.disconnect();
        cleared = true;
        return true;
    };
    partner.Execute("[late]");
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(child->disconnect()); }), 3000);
    EXPECT_TRUE(cleared);
    EXPECT_TRUE(master.children().empty());
}

TEST_F(DdeServer, leaves_children_that_serve_on_when_the_master_ends) {
    auto other = std::make_unique<LVXDdeServer>();
    other->uponEvent(&client);
    ASSERT_TRUE(partner.Initiate(*other, "Sketch", "drawing"));
    LVXDdeServer* const orphan = other->children()[0];
    other.reset();
    const HWND window = *orphan;
    EXPECT_TRUE(::IsWindow(window));
    client.events.clear();
    partner.letters.clear();
    // No master: nobody answers an initiation for it.
    EXPECT_EQ(0, orphan->rcvInitiate("Sketch", "drawing", partner.Window()));
    EXPECT_EQ(positive, AnswerTo(partner.Execute("[still here]"), WM_DDE_ACK).status);
    EXPECT_TRUE(partner.End());
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(DdeServer, ends_children_of_programs_that_died_when_somebody_else_comes) {
    {
        RawPartner mortal;
        ASSERT_TRUE(Connect(mortal));
    }
    EXPECT_EQ(1u, master.children().size());
    client.events.clear();
    EXPECT_TRUE(Connect(partner));
    ASSERT_EQ(1u, master.children().size());
    EXPECT_EQ(partner.Server(), master.children()[0]->GetHandle());
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeTerminate, DdeInitiate));
}

TEST_F(DdeServer, is_found_by_a_broadcast) {
    client.onEvent = [](LVXDde& dde) {
        auto* const server = dynamic_cast<LVXDdeServer*>(&dde);
        return server->application() != nullptr && std::string(server->application()) == "lvx broadcast";
    };
    EXPECT_TRUE(partner.Initiate(HWND_BROADCAST, "lvx broadcast", "any"));
    ASSERT_EQ(1u, master.children().size());
    EXPECT_FALSE(partner.Initiate(HWND_BROADCAST, "lvx nobody", "any"));
}
