// What partners ask of a child, with the partner in the same program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

#include "owl/message_thread.h"
#include "served.h"

namespace {

using dde_test::deferred;
using dde_test::Letter;
using dde_test::name_of;
using dde_test::new_block;
using dde_test::positive;
using dde_test::RawPartner;
using dde_test::with_end;
using testing::ElementsAre;
using testing::IsEmpty;

class DdeServerMessages : public dde_test::Served {
protected:
    void SetUp() override { Begin(); }

    WPARAM Sender() const { return partner.Self(); }
    // The words of a message that carries its item whole, with a reference to the atom for it.
    static LPARAM Words(WORD low, const char* item) { return MAKELPARAM(low, ::GlobalAddAtomA(item)); }
    // One reference more than the message has: whether the message's is given up shows in its end.
    static ATOM Hold(const char* item) { return ::GlobalAddAtomA(item); }
    static bool IsLastReference(ATOM atom) {
        const bool was_there = !name_of(atom).empty();
        ::GlobalDeleteAtom(atom);
        return was_there && name_of(atom).empty();
    }
};

}  // namespace

TEST_F(DdeServerMessages, request_the_client_which_sends_the_data) {
    Supply("7");
    const Letter answer = AnswerTo(partner.Request("count"), WM_DDE_DATA);
    EXPECT_EQ("count", answer.item);
    EXPECT_EQ("count=7", answer.Text());
    EXPECT_EQ(CF_TEXT, answer.format);
    EXPECT_EQ(dde_test::response | dde_test::release, answer.flags);
    EXPECT_EQ(0u, partner.Count(WM_DDE_ACK));
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(child, client.events[0].dde);
    EXPECT_EQ(DdeRequest, client.events[0].reason);
    EXPECT_EQ("count", client.events[0].item);
    EXPECT_EQ(CF_TEXT, client.events[0].format);
    EXPECT_TRUE(sent);
}

TEST_F(DdeServerMessages, request_in_any_format) {
    client.accepts = false;
    AnswerTo(partner.Request("count", 0xC0DE), WM_DDE_ACK);
    EXPECT_EQ(0xC0DE, client.events[0].format);
}

TEST_F(DdeServerMessages, request_and_get_a_refusal_alone) {
    client.accepts = false;
    const Letter answer = AnswerTo(partner.Request("count"), WM_DDE_ACK);
    EXPECT_EQ(0u, answer.status);
    EXPECT_EQ("count", answer.item);
    EXPECT_EQ(0u, partner.Count(WM_DDE_DATA));
}

// The host says yes and sends nothing.
TEST_F(DdeServerMessages, request_and_get_nothing_from_a_client_that_only_says_yes) {
    partner.Request("count");
    EXPECT_TRUE(RawPartner::PumpUntil([&] { return !client.events.empty(); }));
    RawPartner::PumpUntil([] { return false; }, 50);
    EXPECT_THAT(partner.letters, IsEmpty());
}

TEST_F(DdeServerMessages, leave_no_item_behind_the_event) {
    Supply("7");
    AnswerTo(partner.Request("count"), WM_DDE_DATA);
    EXPECT_EQ(nullptr, child->item());
    client.onEvent = nullptr;
    AnswerTo(partner.Poke("colour", with_end("red")), WM_DDE_ACK);
    EXPECT_EQ(nullptr, child->item());
    EXPECT_EQ(nullptr, child->dataItem());
    AnswerTo(partner.Execute("[open]"), WM_DDE_ACK);
    EXPECT_EQ(nullptr, child->command());
}

TEST_F(DdeServerMessages, give_the_atom_of_a_request_up) {
    Supply("7");
    const ATOM answered = Hold("lvx dde answered");
    AnswerTo(partner.Request("lvx dde answered"), WM_DDE_DATA);
    EXPECT_TRUE(IsLastReference(answered));

    client.onEvent = nullptr;
    const ATOM silent = Hold("lvx dde silent");
    ::SendMessageA(*child, WM_DDE_REQUEST, Sender(), Words(CF_TEXT, "lvx dde silent"));
    EXPECT_TRUE(IsLastReference(silent));

    client.accepts = false;
    const ATOM refused = Hold("lvx dde refused");
    AnswerTo(partner.Request("lvx dde refused"), WM_DDE_ACK);
    EXPECT_TRUE(IsLastReference(refused));
}

TEST_F(DdeServerMessages, link_an_item_and_are_acknowledged_if_they_ask) {
    const Letter answer = AnswerTo(partner.Advise("count"), WM_DDE_ACK);
    EXPECT_EQ(positive, answer.status);
    EXPECT_EQ("count", answer.item);
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(DdeAdvise, client.events[0].reason);
    EXPECT_EQ("count", client.events[0].item);
    EXPECT_EQ(CF_TEXT, client.events[0].format);
    Supply("7");
    child->updateItem("count");
    EXPECT_TRUE(partner.Wait(WM_DDE_DATA));
}

TEST_F(DdeServerMessages, link_an_item_without_a_word_if_they_do_not_ask) {
    const ATOM atom = Hold("lvx dde unasked");
    partner.Advise("lvx dde unasked", 0);
    EXPECT_TRUE(RawPartner::PumpUntil([&] { return !client.events.empty(); }));
    RawPartner::PumpUntil([] { return false; }, 50);
    EXPECT_THAT(partner.letters, IsEmpty());
    EXPECT_TRUE(IsLastReference(atom));
}

TEST_F(DdeServerMessages, are_refused_a_link_in_words_or_silence) {
    client.accepts = false;
    EXPECT_EQ(0u, AnswerTo(partner.Advise("count"), WM_DDE_ACK).status);
    partner.letters.clear();
    partner.Advise("count", 0);
    RawPartner::PumpUntil([&] { return client.events.size() == 2; });
    RawPartner::PumpUntil([] { return false; }, 50);
    EXPECT_THAT(partner.letters, IsEmpty());
    client.accepts = true;
    child->updateItem("count");
    EXPECT_EQ(2u, client.events.size());
}

// The order in which programs that were written with this library pack them. The system's own post of such a
// message may look for a block where the item is: it is sent.
TEST_F(DdeServerMessages, link_with_the_item_in_the_low_value) {
    const HGLOBAL options = new_block(deferred | dde_test::wants_ack, 0xC0DE, "");
    const LPARAM packed =
        ::PackDDElParam(WM_DDE_ADVISE, ::GlobalAddAtomA("count"), reinterpret_cast<UINT_PTR>(options));
    EXPECT_EQ(0, ::SendMessageA(*child, WM_DDE_ADVISE, Sender(), packed));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(positive, partner.letters[0].status);
    EXPECT_EQ("count", partner.letters[0].item);
    EXPECT_EQ(0xC0DE, client.events[0].format);
    // The options stay their sender's.
    EXPECT_EQ(4u, ::GlobalSize(options));
    EXPECT_EQ(0u, ::GlobalFlags(options) & GMEM_LOCKCOUNT);
    ::GlobalFree(options);
}

TEST_F(DdeServerMessages, poke_with_the_item_in_the_low_value) {
    const HGLOBAL data = new_block(0, CF_TEXT, with_end("red"));
    const LPARAM packed =
        ::PackDDElParam(WM_DDE_POKE, ::GlobalAddAtomA("colour"), reinterpret_cast<UINT_PTR>(data));
    EXPECT_EQ(0, ::SendMessageA(*child, WM_DDE_POKE, Sender(), packed));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ("colour", partner.letters[0].item);
    EXPECT_EQ("red", client.events[0].text);
    EXPECT_EQ(8u, ::GlobalSize(data));
    ::GlobalFree(data);
}

TEST_F(DdeServerMessages, free_the_block_of_a_poke_that_is_to_be_released_whatever_comes_of_it) {
    for (const bool accepts : {true, false}) {
        client.accepts = accepts;
        const HGLOBAL data = new_block(dde_test::release, CF_TEXT, with_end("red"));
        const LPARAM packed =
            ::PackDDElParam(WM_DDE_POKE, reinterpret_cast<UINT_PTR>(data), ::GlobalAddAtomA("colour"));
        ::SendMessageA(*child, WM_DDE_POKE, Sender(), packed);
        EXPECT_EQ(0u, ::GlobalSize(data));
    }
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK, 2));
    EXPECT_EQ(positive, partner.letters[0].status);
    EXPECT_EQ(0u, partner.letters[1].status);
}

TEST_F(DdeServerMessages, poke_data_which_the_client_reads) {
    const Letter answer = AnswerTo(partner.Poke("colour", with_end("red")), WM_DDE_ACK);
    EXPECT_EQ(positive, answer.status);
    EXPECT_EQ("colour", answer.item);
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(DdePoke, client.events[0].reason);
    EXPECT_EQ("colour", client.events[0].item);
    EXPECT_EQ(CF_TEXT, client.events[0].format);
    EXPECT_EQ("red", client.events[0].text);
    client.accepts = false;
    EXPECT_EQ(0u, AnswerTo(partner.Poke("colour", "red"), WM_DDE_ACK).status);
}

// The text ends with its block, without a terminator.
TEST_F(DdeServerMessages, poke_a_text_that_lacks_its_end) {
    const Letter answer = AnswerTo(partner.Poke("colour", "torn"), WM_DDE_ACK);
    EXPECT_EQ(positive, answer.status);
    EXPECT_EQ("torn", client.events[0].text);
    EXPECT_EQ(positive, AnswerTo(partner.Poke("colour", ""), WM_DDE_ACK).status);
    EXPECT_EQ("", client.events[1].text);
}

TEST_F(DdeServerMessages, are_refused_where_the_block_is_too_short_or_none) {
    for (const UINT message : {WM_DDE_POKE, WM_DDE_ADVISE}) {
        for (const std::size_t size : {1u, 2u, 3u}) {
            const HGLOBAL torn = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
            const LPARAM packed =
                ::PackDDElParam(message, reinterpret_cast<UINT_PTR>(torn), ::GlobalAddAtomA("colour"));
            ::SendMessageA(*child, message, Sender(), packed);
            ::GlobalFree(torn);
        }
        for (const UINT_PTR no_block : {0x0u, 0x12345678u, 0x10008u}) {
            const LPARAM packed = ::PackDDElParam(message, no_block, ::GlobalAddAtomA("colour"));
            ::SendMessageA(*child, message, Sender(), packed);
        }
    }
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK, 12));
    for (const Letter& letter : partner.letters) {
        EXPECT_EQ(0u, letter.status);
        EXPECT_EQ("colour", letter.item) << "the atom should come back";
    }
    EXPECT_THAT(client.events, IsEmpty());
}

TEST_F(DdeServerMessages, of_an_item_that_the_system_does_not_know_reach_no_client) {
    const ATOM atom = ::GlobalAddAtomA("soon gone from the table");
    ::GlobalDeleteAtom(atom);
    for (const UINT message : {WM_DDE_REQUEST, WM_DDE_UNADVISE})
        ::SendMessageA(*child, message, Sender(), MAKELPARAM(CF_TEXT, atom));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK, 2));
    for (const Letter& letter : partner.letters)
        EXPECT_EQ(0u, letter.status);
    EXPECT_THAT(client.events, IsEmpty());
}

TEST_F(DdeServerMessages, without_a_packing_or_an_item_reach_no_client) {
    for (const UINT message : {WM_DDE_POKE, WM_DDE_ADVISE, WM_DDE_EXECUTE}) {
        for (const LPARAM lParam : {LPARAM{0}, LPARAM{1}, LPARAM{0x12345678}, LPARAM{0x12345670}})
            EXPECT_EQ(0, ::SendMessageA(*child, message, Sender(), lParam)) << message << ' ' << lParam;
    }
    EXPECT_EQ(0, ::SendMessageA(*child, WM_DDE_REQUEST, Sender(), MAKELPARAM(CF_TEXT, 0)));
    RawPartner::PumpAll();
    EXPECT_THAT(client.events, IsEmpty());
    for (const Letter& letter : partner.letters)
        EXPECT_EQ(0u, letter.status);
}

TEST_F(DdeServerMessages, unadvise_an_item_and_are_always_acknowledged) {
    Link("count");
    client.accepts = false;
    Letter answer = AnswerTo(partner.Unadvise("count"), WM_DDE_ACK);
    EXPECT_EQ(0u, answer.status);
    EXPECT_EQ("count", answer.item);
    EXPECT_EQ(DdeUnadvise, client.events[0].reason);
    EXPECT_EQ("count", client.events[0].item);
    client.events.clear();
    child->updateItem("count");
    EXPECT_EQ(1u, client.events.size());
    client.accepts = true;
    EXPECT_EQ(positive, AnswerTo(partner.Unadvise("count"), WM_DDE_ACK).status);
    client.events.clear();
    child->updateItem("count");
    EXPECT_THAT(client.events, IsEmpty());
    // What is not linked can be ended as well.
    EXPECT_EQ(positive, AnswerTo(partner.Unadvise("count"), WM_DDE_ACK).status);
}

TEST_F(DdeServerMessages, unadvise_all_items_by_none) {
    Link("count");
    Link("colour");
    ::PostMessageA(*child, WM_DDE_UNADVISE, Sender(), MAKELPARAM(0, 0));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(positive, partner.letters[0].status);
    ASSERT_EQ(2u, client.events.size());
    EXPECT_EQ("colour", client.events[0].item);
    EXPECT_EQ("count", client.events[1].item);
    client.events.clear();
    child->updateItem("count");
    child->updateItem("colour");
    EXPECT_THAT(client.events, IsEmpty());
}

TEST_F(DdeServerMessages, unadvise_only_some_of_all_items_if_the_client_keeps_others) {
    Link("count");
    Link("colour");
    client.onEvent = [](LVXDde& dde) { return dde.item() != std::string("count"); };
    ::PostMessageA(*child, WM_DDE_UNADVISE, Sender(), MAKELPARAM(0, 0));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(0u, partner.letters[0].status);
    client.events.clear();
    child->updateItem("colour");
    EXPECT_THAT(client.events, IsEmpty());
    child->updateItem("count");
    EXPECT_EQ(1u, client.events.size());
}

TEST_F(DdeServerMessages, execute_a_command) {
    const Letter answer = AnswerTo(partner.Execute("[open(\"a.drw\")]"), WM_DDE_ACK);
    EXPECT_EQ(positive, answer.status);
    ASSERT_EQ(1u, client.events.size());
    EXPECT_EQ(DdeExecute, client.events[0].reason);
    EXPECT_FALSE(client.events[0].hasItem);
    EXPECT_EQ("[open(\"a.drw\")]", client.events[0].text);
    client.accepts = false;
    EXPECT_EQ(0u, AnswerTo(partner.Execute("[no]"), WM_DDE_ACK).status);
}

TEST_F(DdeServerMessages, are_answered_a_command_with_the_lower_half_of_its_handle) {
    const HGLOBAL command = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 8);
    ::SendMessageA(*child, WM_DDE_EXECUTE, Sender(), reinterpret_cast<LPARAM>(command));
    ASSERT_TRUE(partner.Wait(WM_DDE_ACK));
    EXPECT_EQ(LOWORD(reinterpret_cast<UINT_PTR>(command)), partner.letters[0].high);
    EXPECT_EQ(8u, ::GlobalSize(command));
    EXPECT_EQ(0u, ::GlobalFlags(command) & GMEM_LOCKCOUNT);
    ::GlobalFree(command);
}

TEST_F(DdeServerMessages, execute_a_command_that_lacks_its_end) {
    const HGLOBAL command = ::GlobalAlloc(GMEM_MOVEABLE, 4);
    std::memcpy(::GlobalLock(command), "[ab]", 4);
    ::GlobalUnlock(command);
    ::SendMessageA(*child, WM_DDE_EXECUTE, Sender(), reinterpret_cast<LPARAM>(command));
    EXPECT_EQ("[ab]", client.events[0].text);
    ::GlobalFree(command);
}

TEST_F(DdeServerMessages, execute_the_outer_command_on_behind_an_inner_one) {
    client.onEvent = [&](LVXDde& dde) {
        auto& server = dynamic_cast<LVXDdeServer&>(dde);
        if (server.command() == std::string("[outer]")) {
            const HGLOBAL inner = dde.strToHandle("[inner]");
            ::SendMessageA(dde, WM_DDE_EXECUTE, Sender(), reinterpret_cast<LPARAM>(inner));
            ::GlobalFree(inner);
            EXPECT_STREQ("[outer]", server.command());
        }
        return true;
    };
    AnswerTo(partner.Execute("[outer]"), WM_DDE_ACK);
    ASSERT_EQ(2u, client.events.size());
    EXPECT_EQ("[inner]", client.events[1].text);
}

TEST_F(DdeServerMessages, get_the_status_from_the_operations) {
    EXPECT_EQ(0x8000, child->rcvRequest("count", CF_TEXT, 0));
    EXPECT_EQ(0x8000, child->rcvAdvise("count", CF_TEXT, 0));
    EXPECT_EQ(0x8000, child->rcvUnadvise("count"));
    EXPECT_EQ(0x8000, child->rcvExecute("[x]"));
    EXPECT_EQ(0x8000, child->rcvPoke("count", CF_TEXT, nullptr, 0));
    client.accepts = false;
    EXPECT_EQ(0, child->rcvRequest("count", CF_TEXT, 0));
    EXPECT_EQ(0, child->rcvAdvise("count", CF_TEXT, 0));
    EXPECT_EQ(0, child->rcvUnadvise("count"));
    EXPECT_EQ(0, child->rcvExecute("[x]"));
    EXPECT_EQ(0, child->rcvPoke("count", CF_TEXT, nullptr, 0));
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeRequest, DdeAdvise, DdeUnadvise, DdeExecute, DdePoke,
                                              DdeRequest, DdeAdvise, DdeUnadvise, DdeExecute, DdePoke));
}

// By its size a host reads data that is no text.
TEST_F(DdeServerMessages, tell_the_size_of_what_is_poked) {
    class Sizes : public LVXDdeServer {
    public:
        unsigned short rcvPoke(const char*, unsigned format, void* data, long size) override {
            m_last = std::to_string(format) + ' ' + std::to_string(size) + ' ' +
                     std::string(static_cast<const char*>(data), static_cast<std::size_t>(size));
            return 0x8000;
        }
        std::string m_last;
    };
    Sizes server;
    for (const auto& [bytes, told] : {std::pair{"", "1 0 "}, {"a", "1 0 "}, {"abc", "1 2 ab"}}) {
        const HGLOBAL data = new_block(dde_test::release, 1, bytes);
        const LPARAM packed =
            ::PackDDElParam(WM_DDE_POKE, reinterpret_cast<UINT_PTR>(data), ::GlobalAddAtomA("x"));
        ::SendMessageA(server, WM_DDE_POKE, Sender(), packed);
        EXPECT_EQ(told, server.m_last);
    }
}

TEST_F(DdeServerMessages, give_up_atom_and_packing_when_there_is_nobody_to_answer) {
    partner.answersTerminate = false;
    const ATOM atom = Hold("lvx dde nobody");
    const HGLOBAL data = new_block(dde_test::release, 1, "x");
    const LPARAM packed =
        ::PackDDElParam(WM_DDE_POKE, reinterpret_cast<UINT_PTR>(data), ::GlobalAddAtomA("lvx dde nobody"));
    ::SendMessageA(master, WM_DDE_POKE, Sender(), packed);
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(packed)));
    EXPECT_TRUE(IsLastReference(atom));

    const ATOM other = Hold("lvx dde gone");
    partner.Destroy();
    const HGLOBAL options = new_block(dde_test::wants_ack, 1, "");
    const LPARAM unheard =
        ::PackDDElParam(WM_DDE_ADVISE, reinterpret_cast<UINT_PTR>(options), ::GlobalAddAtomA("lvx dde gone"));
    ::SendMessageA(*child, WM_DDE_ADVISE, 0, unheard);
    EXPECT_EQ(0u, ::GlobalSize(reinterpret_cast<HGLOBAL>(unheard)));
    EXPECT_TRUE(IsLastReference(other));
    ::GlobalFree(options);
}

TEST_F(DdeServerMessages, are_refused_when_the_client_throws) {
    client.onEvent = [](LVXDde&) -> bool { throw std::runtime_error("the host's own"); };
    const ATOM atom = Hold("lvx dde thrown");
    EXPECT_EQ(0u, AnswerTo(partner.Request("lvx dde thrown"), WM_DDE_ACK).status);
    EXPECT_TRUE(IsLastReference(atom));
    owl::TMsgThread thread;
    EXPECT_THROW(thread.PumpWaitingMessages(), std::runtime_error);
    EXPECT_EQ(nullptr, child->item());
}
