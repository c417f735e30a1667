// What a server sends, with the partner in the same program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "served.h"
#include "support/threads.h"

namespace {

using dde_test::deferred;
using dde_test::Letter;
using dde_test::name_of;
using dde_test::positive;
using dde_test::RawPartner;
using dde_test::release;
using dde_test::response;
using dde_test::wants_ack;
using lvx_test::milliseconds_of;
using testing::ElementsAre;
using testing::IsEmpty;

// A server whose inner operations the test calls.
class OpenServer : public LVXDdeServer {
public:
    using LVXDdeServer::adviseOff;
    using LVXDdeServer::adviseOn;
    using LVXDdeServer::DetachChild;
    using LVXDdeServer::serve;
    using LVXDdeServer::sndData;

    // What has no master does not hear its partner's good-bye.
    OpenServer() { ackTime(20); }
    void Connect(HWND partner) { m_partner = partner; }
    void SetFormat(unsigned short format) { m_itemFormat = format; }
};

class DdeServerData : public dde_test::Served {
protected:
    void SetUp() override { Begin(); }
    void NoLetters() {
        RawPartner::PumpUntil([] { return false; }, 50);
        EXPECT_THAT(partner.letters, IsEmpty());
    }
};

}  // namespace

TEST_F(DdeServerData, sends_a_text_unasked_for) {
    EXPECT_TRUE(child->sendItem("count", "17", CF_TEXT));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    const Letter& letter = partner.letters[0];
    EXPECT_EQ(child->GetHandle(), letter.sender);
    EXPECT_EQ("count", letter.item);
    EXPECT_EQ(CF_TEXT, letter.format);
    EXPECT_EQ(release, letter.flags);
    // The text, its end, and the spare of a block.
    EXPECT_EQ(std::string("17\0\0\0", 5), letter.bytes);
}

TEST_F(DdeServerData, sends_an_empty_text_for_an_empty_one_and_for_null) {
    EXPECT_TRUE(child->sendItem("count", "", CF_TEXT));
    EXPECT_TRUE(child->sendItem("count", nullptr, CF_TEXT));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA, 2));
    EXPECT_EQ("", partner.letters[0].Text());
    EXPECT_EQ("", partner.letters[1].Text());
}

TEST_F(DdeServerData, sends_nothing_in_other_formats) {
    for (const unsigned format : {0u, 2u, static_cast<unsigned>(CF_UNICODETEXT), 0xC001u, 0x10001u})
        EXPECT_FALSE(child->sendItem("count", "17", format)) << format;
    NoLetters();
}

TEST_F(DdeServerData, sends_nothing_for_what_cannot_be_named) {
    EXPECT_FALSE(child->sendItem(nullptr, "17", CF_TEXT));
    EXPECT_FALSE(child->sendItem("", "17", CF_TEXT));
    EXPECT_FALSE(child->sendItem(std::string(256, 'x').c_str(), "17", CF_TEXT));
    NoLetters();
    EXPECT_TRUE(child->sendItem(std::string(255, 'x').c_str(), "17", CF_TEXT));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_EQ(std::string(255, 'x'), partner.letters[0].item);
}

TEST_F(DdeServerData, sends_nothing_to_a_partner_that_is_gone) {
    partner.Destroy();
    const ATOM atom = ::GlobalAddAtomA("lvx dde unheard");
    EXPECT_FALSE(child->sendItem("lvx dde unheard", "17", CF_TEXT));
    ::GlobalDeleteAtom(atom);
    EXPECT_EQ("", name_of(atom));
}

TEST_F(DdeServerData, sends_by_each_child_of_a_master) {
    RawPartner second;
    ASSERT_TRUE(Connect(second));
    second.letters.clear();
    EXPECT_FALSE(master.sendItem("count", "17", CF_TEXT));
    EXPECT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_TRUE(second.Wait(WM_DDE_DATA));
    EXPECT_EQ("17", second.letters[0].Text());
    EXPECT_TRUE(second.End());
}

TEST_F(DdeServerData, is_true_when_the_partner_acknowledged_it) {
    child->ackData(true);
    const ATOM atom = ::GlobalAddAtomA("lvx dde wanted");
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(child->sendItem("lvx dde wanted", "17", CF_TEXT)); }), 2000);
    ASSERT_EQ(1u, partner.letters.size());
    EXPECT_EQ(wants_ack, partner.letters[0].flags);
    ::GlobalDeleteAtom(atom);
    EXPECT_EQ("", name_of(atom));
    child->ackData(false);
    EXPECT_TRUE(child->sendItem("count", "17", CF_TEXT));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA, 2));
    EXPECT_EQ(release, partner.letters[1].flags);
}

TEST_F(DdeServerData, is_false_at_once_when_the_partner_refuses_it) {
    child->ackData(true);
    partner.acknowledgeWith = 0;
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(child->sendItem("count", "17", CF_TEXT)); }), 2000);
    partner.acknowledgeWith = 0x4000;
    EXPECT_LT(milliseconds_of([&] { EXPECT_FALSE(child->sendItem("count", "17", CF_TEXT)); }), 2000);
}

TEST_F(DdeServerData, is_false_when_the_partner_is_silent_for_the_time) {
    child->ackData(true);
    child->ackTime(200);
    partner.acknowledgesData = false;
    const long time = milliseconds_of([&] { EXPECT_FALSE(child->sendItem("count", "17", CF_TEXT)); });
    EXPECT_GE(time, 190);
    EXPECT_LT(time, 2000);
}

// The partner says good-bye in place of an acknowledgement.
TEST_F(DdeServerData, is_false_when_the_conversation_ends_meanwhile) {
    child->ackData(true);
    partner.acknowledgesData = false;
    partner.answersTerminate = false;
    partner.onLetter = [&](const Letter& letter) {
        if (letter.message == WM_DDE_DATA)
            partner.Terminate();
    };
    const HWND window = *child;
    child->ackTime(300);
    EXPECT_FALSE(child->sendItem("count", "17", CF_TEXT));
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(master.children().empty());
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeTerminate));
}

// The event that the host is answering is of a child that has ended when its call returns.
TEST_F(DdeServerData, may_end_the_conversation_within_a_request) {
    child->ackData(true);
    child->ackTime(300);
    partner.acknowledgesData = false;
    partner.answersTerminate = false;
    partner.onLetter = [&](const Letter& letter) {
        if (letter.message == WM_DDE_DATA)
            partner.Terminate();
    };
    Supply("7");
    const HWND window = *child;
    partner.Request("count");
    EXPECT_TRUE(RawPartner::PumpUntil([&] { return ::IsWindow(window) == 0; }));
    EXPECT_FALSE(sent);
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeRequest, DdeTerminate));
    EXPECT_EQ(0u, partner.Count(WM_DDE_ACK));
}

TEST_F(DdeServerData, takes_other_conversations_in_while_it_waits) {
    RawPartner second;
    ASSERT_TRUE(Connect(second));
    second.letters.clear();
    child->ackData(true);
    partner.onLetter = [&](const Letter& letter) {
        if (letter.message == WM_DDE_DATA)
            second.Request("other");
    };
    Supply("7");
    EXPECT_TRUE(child->sendItem("count", "17", CF_TEXT));
    EXPECT_TRUE(second.Wait(WM_DDE_DATA));
    EXPECT_EQ("other=7", second.letters[0].Text());
    EXPECT_EQ(response | release, second.letters[0].flags);
    EXPECT_TRUE(second.End());
}

TEST_F(DdeServerData, updates_nothing_that_is_not_linked) {
    child->updateItem("count");
    master.updateItem("count");
    child->updateItem(nullptr);
    Link("count");
    child->updateItem("COUNT");
    child->updateItem("");
    EXPECT_THAT(client.events, IsEmpty());
    NoLetters();
}

TEST_F(DdeServerData, updates_a_hot_link_by_asking_the_client) {
    Link("count", 0, CF_TEXT);
    Supply("8");
    child->updateItem("count");
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_EQ("count=8", partner.letters[0].Text());
    // Nobody requested it.
    EXPECT_EQ(release, partner.letters[0].flags);
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(DdeRequest, client.events[0].reason);
    EXPECT_EQ("count", client.events[0].item);
    EXPECT_EQ(CF_TEXT, client.events[0].format);
}

TEST_F(DdeServerData, updates_a_warm_link_by_a_word_alone) {
    Link("lvx dde warm", deferred);
    const ATOM atom = ::GlobalAddAtomA("lvx dde warm");
    child->updateItem("lvx dde warm");
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_FALSE(partner.letters[0].hasBlock);
    EXPECT_EQ("lvx dde warm", partner.letters[0].item);
    EXPECT_THAT(client.events, IsEmpty());
    ::GlobalDeleteAtom(atom);
    EXPECT_EQ("", name_of(atom));
    // What it is told of, it asks for.
    Supply("9");
    EXPECT_EQ("lvx dde warm=9", AnswerTo(partner.Request("lvx dde warm"), WM_DDE_DATA).Text());
}

TEST_F(DdeServerData, replaces_a_link_by_a_second_one) {
    Link("count", 0, CF_TEXT);
    Link("count", 0, 0xC0DE);
    child->updateItem("count");
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(0xC0DE, client.events[0].format);
    Link("count", deferred, CF_TEXT);
    child->updateItem("count");
    EXPECT_THAT(client.events, IsEmpty());
    EXPECT_TRUE(partner.Wait(WM_DDE_DATA));
    AnswerTo(partner.Unadvise("count"), WM_DDE_ACK);
    client.events.clear();
    child->updateItem("count");
    EXPECT_THAT(client.events, IsEmpty());
}

TEST_F(DdeServerData, updates_the_links_of_each_child_of_a_master) {
    RawPartner second;
    RawPartner third;
    ASSERT_TRUE(Connect(second));
    ASSERT_TRUE(Connect(third));
    second.letters.clear();
    third.letters.clear();
    Link("count");
    second.Advise("count", deferred | wants_ack);
    ASSERT_TRUE(second.Wait(WM_DDE_ACK));
    Supply("3");
    master.updateItem("count");
    EXPECT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_TRUE(second.Wait(WM_DDE_DATA));
    EXPECT_FALSE(second.Of(WM_DDE_DATA)[0].hasBlock);
    EXPECT_THAT(third.letters, IsEmpty());
    EXPECT_TRUE(second.End());
    EXPECT_TRUE(third.End());
}

// A hot update within a request is none of the request's answer.
TEST_F(DdeServerData, tells_an_update_within_a_request_from_the_answer) {
    Link("colour");
    client.onEvent = [&](LVXDde& dde) {
        auto& server = dynamic_cast<LVXDdeServer&>(dde);
        const std::string item = dde.item();
        if (item == "count")
            server.updateItem("colour");
        return server.sendItem(dde.item(), item.c_str(), CF_TEXT);
    };
    partner.Request("count");
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA, 2));
    EXPECT_EQ("colour", partner.letters[0].Text());
    EXPECT_EQ(release, partner.letters[0].flags);
    EXPECT_EQ("count", partner.letters[1].Text());
    EXPECT_EQ(response | release, partner.letters[1].flags);
}

// Each child that is updated ends the next one.
TEST_F(DdeServerData, passes_children_over_that_end_on_the_way) {
    RawPartner second;
    ASSERT_TRUE(Connect(second));
    second.letters.clear();
    Link("count");
    second.Advise("count");
    ASSERT_TRUE(second.Wait(WM_DDE_ACK));
    client.events.clear();
    client.onEvent = [&](LVXDde& dde) {
        if (dde.reason() == DdeRequest && master.children().size() > 1)
            master.children()[1]->disconnect();
        return true;
    };
    master.updateItem("count");
    EXPECT_EQ(1u, master.children().size());
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeRequest));
}

TEST_F(DdeServerData, may_be_deleted_on_its_way_through_the_children) {
    auto* const other = new LVXDdeServer;
    other->uponEvent(&client);
    RawPartner first;
    RawPartner second;
    ASSERT_TRUE(first.Initiate(*other, "Sketch", "drawing"));
    ASSERT_TRUE(second.Initiate(*other, "Sketch", "drawing"));
    for (RawPartner* const one : {&first, &second}) {
        one->Advise("count");
        ASSERT_TRUE(one->Wait(WM_DDE_ACK, 2));
    }
    client.events.clear();
    bool deleted = false;
    client.onEvent = [&](LVXDde& dde) {
        if (dde.reason() == DdeRequest && !deleted) {
            deleted = true;
            delete other;
        }
        return true;
    };
    other->updateItem("count");
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeRequest));
    EXPECT_TRUE(first.End());
    EXPECT_TRUE(second.End());
}

TEST_F(DdeServerData, takes_a_block_of_a_hosts_own_format) {
    OpenServer own;
    own.Connect(partner.Window());
    const HGLOBAL block = own.setData(0xC0DE, 4, "\1\2\3\4");
    EXPECT_TRUE(own.sndData("bits", block, 1, 0));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_EQ(0xC0DE, partner.letters[0].format);
    EXPECT_EQ(response | release, partner.letters[0].flags);
    EXPECT_EQ(std::string("\1\2\3\4\0\0", 6), partner.letters[0].bytes);
}

TEST_F(DdeServerData, keeps_the_other_bits_of_a_blocks_flags) {
    OpenServer own;
    own.Connect(partner.Window());
    const HGLOBAL block = own.setData(1, 1, nullptr);
    const WORD flags = 0xFFFF;
    std::memcpy(::GlobalLock(block), &flags, 2);
    ::GlobalUnlock(block);
    EXPECT_TRUE(own.sndData("bits", block, 0, 0));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_EQ(0xFFFF & ~(response | wants_ack), partner.letters[0].flags);
}

TEST_F(DdeServerData, frees_a_block_that_cannot_be_sent) {
    OpenServer own;
    const HGLOBAL nobodys = own.setData(1, 1, nullptr);
    EXPECT_FALSE(own.sndData("bits", nobodys, 0, 0));
    EXPECT_EQ(0u, ::GlobalSize(nobodys));
    EXPECT_FALSE(own.sndData("bits", nullptr, 0, 0));
    own.Connect(partner.Window());
    const HGLOBAL unnamed = own.setData(1, 1, nullptr);
    EXPECT_FALSE(own.sndData(nullptr, unnamed, 0, 0));
    EXPECT_EQ(0u, ::GlobalSize(unnamed));
    const HGLOBAL torn = ::GlobalAlloc(GMEM_MOVEABLE, 3);
    EXPECT_FALSE(own.sndData("bits", torn, 0, 0));
    EXPECT_EQ(0u, ::GlobalSize(torn));
    partner.Destroy();
    const HGLOBAL unheard = own.setData(1, 1, nullptr);
    EXPECT_FALSE(own.sndData("bits", unheard, 0, 0));
    EXPECT_EQ(0u, ::GlobalSize(unheard));
    EXPECT_TRUE(own.sndData("bits", nullptr, 0, 0));
    const ATOM atom = ::GlobalFindAtomA("bits");
    EXPECT_EQ(0, atom);
}

TEST_F(DdeServerData, tells_of_a_change_as_the_answer_to_a_request) {
    OpenServer own;
    own.Connect(partner.Window());
    EXPECT_TRUE(own.sndData("bits", nullptr, 1, MAKELPARAM(CF_TEXT, 0xC123)));
    ASSERT_TRUE(partner.Wait(WM_DDE_DATA));
    EXPECT_FALSE(partner.letters[0].hasBlock);
    EXPECT_EQ("bits", partner.letters[0].item);
}

TEST_F(DdeServerData, ignores_links_without_a_name) {
    OpenServer own;
    own.adviseOn(nullptr, false);
    own.adviseOff(nullptr);
    own.adviseOff("none");
    own.adviseOn("count", true);
    own.adviseOff("none");
    own.adviseOff("count");
    own.adviseOff("count");
}

TEST_F(DdeServerData, takes_only_a_child_out_that_it_has) {
    OpenServer own;
    own.DetachChild(child);
    own.DetachChild(nullptr);
    EXPECT_EQ(1u, master.children().size());
    EXPECT_EQ(positive, AnswerTo(partner.Execute("[x]"), WM_DDE_ACK).status);
    EXPECT_TRUE(partner.End());
    EXPECT_TRUE(master.children().empty());
}

TEST(DdeAdviseLink, is_its_items_name) {
    const LVXAdvise plain("count");
    EXPECT_EQ("count", plain);
    EXPECT_FALSE(plain.defer());
    EXPECT_EQ(0u, plain.format());
    const LVXAdvise warm("colour", true, 0xC0DE);
    EXPECT_EQ("colour", warm);
    EXPECT_TRUE(warm.defer());
    EXPECT_EQ(0xC0DEu, warm.format());
    EXPECT_EQ("", LVXAdvise(nullptr));
}
