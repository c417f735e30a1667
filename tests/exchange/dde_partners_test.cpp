// Conversations with programs that know nothing of the library, each in a process of its own: a client of the
// system's DDE library, and one of plain messages that misbehaves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "lvx/exchange/dde_server.h"
#include "raw_partner.h"
#include "support/peer_process.h"
#include "told_client.h"

namespace {

using dde_test::RawPartner;
using dde_test::ToldClient;
using lvx_test::milliseconds_of;
using lvx_test::PeerProcess;
using testing::Contains;
using testing::ElementsAre;

// A host with the application "lvx partners" or "Sketch", the topic "drawing", and items that are all worth
// "item=7"; what is called "refused" is refused.
class DdePartners : public testing::Test {
protected:
    DdePartners() {
        client.onEvent = [this](LVXDde& dde) { return Answer(dynamic_cast<LVXDdeServer&>(dde)); };
        master.uponEvent(&client);
    }
    ~DdePartners() override {
        while (!master.children().empty())
            master.disconnect();
    }

    std::unique_ptr<PeerProcess> Raw(const std::string& part, const std::string& argument = "") {
        const auto window = std::to_string(reinterpret_cast<UINT_PTR>(master.GetHandle()));
        return argument.empty()
                   ? std::unique_ptr<PeerProcess>(new PeerProcess(raw, {window, part}))
                   : std::unique_ptr<PeerProcess>(new PeerProcess(raw, {window, part, argument}));
    }
    std::unique_ptr<PeerProcess> Ddeml(std::initializer_list<std::string> steps) {
        return std::make_unique<PeerProcess>("lvx_ddeml_client.exe", steps);
    }

    /// Handles messages until the program has ended; its exit code. With `updatesLinks`
    /// "count" changes behind every new link.
    int Serve(PeerProcess& peer, DWORD milliseconds = 60000) {
        const HANDLE process = ::OpenProcess(SYNCHRONIZE, FALSE, peer.Id());
        RawPartner::PumpUntil(
            [&] {
                if (std::exchange(isLinked, false)) {
                    Settle();
                    master.updateItem("count");
                }
                return ::WaitForSingleObject(process, 0) == WAIT_OBJECT_0;
            },
            milliseconds);
        ::CloseHandle(process);
        return peer.Result();
    }
    /// Wine's DDE library loses data that lies in its queue together with the acknowledgement of the link.
    static void Settle() {
        RawPartner::PumpUntil([] { return false; }, 500);
    }
    /// Handles messages until there are so many children.
    bool WaitForChildren(std::size_t count) {
        return RawPartner::PumpUntil([&] { return master.children().size() == count; });
    }
    bool WaitForLinks(std::ptrdiff_t count) {
        return RawPartner::PumpUntil([&] {
            const auto reasons = client.Reasons();
            return std::count(reasons.begin(), reasons.end(), DdeAdvise) == count;
        });
    }
    std::vector<std::string> TextsOf(DdeEvent reason) const {
        std::vector<std::string> texts;
        for (const dde_test::Told& told : client.events) {
            if (told.reason == reason)
                texts.push_back(told.text);
        }
        return texts;
    }

    ToldClient client;
    LVXDdeServer master;
    bool wantsAcknowledgements = false;
    unsigned short ackTime = 4000;
    bool lastSent = false;
    bool updatesLinks = false;
    bool isLinked = false;

private:
    static constexpr const char* raw = "lvx_raw_dde_client.exe";

    static bool Is(const char* name, const char* wanted) {
        return name != nullptr && std::string(name) == wanted;
    }
    static bool Asks(const char* name, const char* ours) { return name == nullptr || Is(name, ours); }

    bool Answer(LVXDdeServer& dde) {
        if (dde.reason() == DdeInitiate) {
            return (Is(dde.application(), "Sketch") || Is(dde.application(), "lvx partners")) &&
                   Asks(dde.topic(), "drawing");
        }
        dde.ackData(wantsAcknowledgements);
        dde.ackTime(ackTime);
        if (Is(dde.item(), "refused") || Is(dde.command(), "[refused]"))
            return false;
        if (dde.reason() == DdeRequest)
            lastSent = dde.sendItem(dde.item(), (dde.item() + std::string("=7")).c_str(), CF_TEXT);
        isLinked = isLinked || (updatesLinks && dde.reason() == DdeAdvise);
        if (dde.reason() == DdeExecute && Is(dde.command(), "[update]"))
            dde.updateItem("count");
        return true;
    }
};

using DdemlClient = DdePartners;
using RawClient = DdePartners;

}  // namespace

TEST_F(DdemlClient, connects_and_disconnects) {
    const auto peer = Ddeml({"lvx partners", "drawing", "topic", "drawing", "disconnect"});
    // It gives up on an answer behind ten seconds, and does not tell.
    EXPECT_LT(milliseconds_of([&] { EXPECT_EQ(0, Serve(*peer)); }), 8000);
    EXPECT_TRUE(WaitForChildren(0));
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeInitiate, DdeTerminate));
}

TEST_F(DdemlClient, finds_nobody_for_another_topic) {
    EXPECT_EQ(200, Serve(*Ddeml({"lvx partners", "painting"})));
    EXPECT_EQ(200, Serve(*Ddeml({"lvx nobody", "drawing"})));
    EXPECT_TRUE(master.children().empty());
}

TEST_F(DdemlClient, requests_data) {
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "drawing", "request", "count", "count=7", "no-request",
                               "refused", "request", "colour", "colour=7"})));
}

TEST_F(DdemlClient, pokes_data) {
    EXPECT_EQ(
        0,
        Serve(*Ddeml({"lvx partners", "drawing", "poke", "colour", "deep red", "no-poke", "refused", "x"})));
    EXPECT_THAT(TextsOf(DdePoke), ElementsAre("deep red", "x"));
}

TEST_F(DdemlClient, executes_commands) {
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "drawing", "execute", "[open(a.drw)]", "no-execute",
                               "[refused]", "execute", "[print]"})));
    EXPECT_THAT(TextsOf(DdeExecute), ElementsAre("[open(a.drw)]", "[refused]", "[print]"));
}

TEST_F(DdemlClient, is_sent_the_data_of_a_hot_link) {
    updatesLinks = true;
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "drawing", "no-hot", "refused", "hot", "count", "data",
                               "count=7", "unlink", "count"})));
    client.events.clear();
    master.updateItem("count");
    EXPECT_TRUE(client.events.empty());
}

TEST_F(DdemlClient, acknowledges_the_data_of_a_hot_link) {
    updatesLinks = true;
    wantsAcknowledgements = true;
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "drawing", "hot", "count", "data", "count=7"})));
    EXPECT_TRUE(lastSent);
}

TEST_F(DdemlClient, is_told_by_a_warm_link_and_asks) {
    updatesLinks = true;
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "drawing", "warm", "count", "word", "count", "request",
                               "count", "count=7"})));
}

TEST_F(DdemlClient, comes_twice_at_once) {
    wantsAcknowledgements = true;
    // One behind the other: Wine's DDE library mixes up programs that look for a server at the same moment.
    const auto first = Ddeml({"lvx partners", "drawing", "hot", "count", "data", "count=7", "dropped"});
    EXPECT_TRUE(WaitForLinks(1));
    const auto second = Ddeml({"lvx partners", "drawing", "hot", "count", "data", "count=7", "dropped"});
    EXPECT_TRUE(WaitForLinks(2));
    Settle();
    client.events.clear();
    master.updateItem("count");
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeRequest, DdeRequest));
    EXPECT_TRUE(lastSent);
    while (!master.children().empty())
        master.disconnect();
    EXPECT_EQ(0, Serve(*first));
    EXPECT_EQ(0, Serve(*second));
}

TEST_F(DdemlClient, connects_to_any_topic) {
    EXPECT_EQ(0, Serve(*Ddeml({"lvx partners", "*", "request", "count", "count=7"})));
    EXPECT_THAT(TextsOf(DdeInitiate), Contains("lvx partners|*"));
}

TEST_F(DdemlClient, gets_the_first_topic_of_a_host_that_names_several) {
    class Topics : public LVXDdeServer {
    public:
        int rcvInitiate(const char* application, const char* topic, void* window) override {
            if (application == nullptr || std::string(application) != "lvx topics")
                return 0;
            if (topic != nullptr)
                return LVXDdeServer::rcvInitiate(application, topic, window);
            return LVXDdeServer::rcvInitiate(application, "one", window) +
                   LVXDdeServer::rcvInitiate(application, "two", window);
        }
    };
    Topics topics;
    EXPECT_EQ(0, Serve(*Ddeml({"lvx topics", "*", "topic", "one"})));
    while (!topics.children().empty())
        topics.disconnect();
}

TEST_F(DdemlClient, hears_that_the_host_ends_the_conversation) {
    const auto peer = Ddeml({"lvx partners", "drawing", "dropped"});
    ASSERT_TRUE(WaitForChildren(1));
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(master.disconnect()); }), 3000);
    EXPECT_EQ(0, Serve(*peer));
}

TEST_F(RawClient, has_a_conversation) {
    EXPECT_EQ(0, Serve(*Raw("converse")));
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_end_in_the_middle_of_an_advise) {
    EXPECT_EQ(0, Serve(*Raw("leave-midway")));
    EXPECT_TRUE(WaitForChildren(0));
    EXPECT_THAT(client.Reasons(), ElementsAre(DdeInitiate, DdeAdvise, DdeTerminate));
    master.updateItem("count");
}

TEST_F(RawClient, may_never_acknowledge) {
    wantsAcknowledgements = true;
    ackTime = 300;
    EXPECT_EQ(0, Serve(*Raw("acknowledge-nothing")));
    EXPECT_FALSE(lastSent);
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_send_torn_blocks) {
    EXPECT_EQ(0, Serve(*Raw("torn")));
    EXPECT_THAT(TextsOf(DdePoke), ElementsAre("torn", "", std::string(100000, 'x')));
    EXPECT_THAT(TextsOf(DdeExecute), ElementsAre("[ab]"));
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_flood_the_host) {
    EXPECT_EQ(0, Serve(*Raw("flood")));
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_flood_the_host_and_acknowledge_nothing) {
    wantsAcknowledgements = true;
    ackTime = 50;
    EXPECT_EQ(0, Serve(*Raw("flood-silently")));
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_die_without_a_word) {
    const auto peer = Raw("die");
    ASSERT_TRUE(WaitForChildren(1));
    EXPECT_EQ(0, Serve(*peer));
    EXPECT_EQ(1u, master.children().size());
    // Nobody is waited for.
    EXPECT_LT(milliseconds_of([&] { master.updateItem("count"); }), 2000);
    EXPECT_FALSE(lastSent);
    EXPECT_EQ(0, Serve(*Raw("converse")));
    EXPECT_TRUE(WaitForChildren(0));
}

TEST_F(RawClient, may_hang_when_it_has_said_good_bye) {
    client.onEvent = [](LVXDde& dde) {
        dde.ackTime(300);
        return true;
    };
    const auto peer = Raw("hang");
    // Both may come at once: nobody need see the child in between.
    const auto began = [&] { return !client.Reasons().empty(); };
    ASSERT_TRUE(RawPartner::PumpUntil(began));
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(WaitForChildren(0)); }), 5000);
    EXPECT_THAT(client.Reasons(), testing::ElementsAre(DdeInitiate, DdeTerminate));
    EXPECT_EQ(0, Serve(*peer));
}

TEST_F(RawClient, is_waited_for_when_the_host_ends_the_conversation) {
    const auto peer = Raw("stay");
    ASSERT_TRUE(WaitForChildren(1));
    EXPECT_LT(milliseconds_of([&] { EXPECT_TRUE(master.disconnect()); }), 3000);
    EXPECT_TRUE(master.children().empty());
    EXPECT_EQ(0, Serve(*peer));
}

TEST_F(RawClient, is_not_waited_for_longer_than_the_time) {
    const auto peer = Raw("stay-silent");
    ASSERT_TRUE(WaitForChildren(1));
    master.children()[0]->ackTime(400);
    const long time = milliseconds_of([&] { EXPECT_TRUE(master.disconnect()); });
    EXPECT_GE(time, 390);
    EXPECT_LT(time, 3000);
    EXPECT_EQ(0, Serve(*peer));
}

// One partner thinks about its data while another has a whole conversation.
TEST_F(RawClient, may_converse_while_the_host_waits_for_another) {
    const auto slow = Raw("acknowledge-late");
    ASSERT_TRUE(WaitForChildren(1));
    LVXDdeServer* const waiting = master.children()[0];
    waiting->ackData(true);
    waiting->ackTime(20000);
    const auto quick = Raw("converse");
    EXPECT_TRUE(waiting->sendItem("count", "slow", CF_TEXT));
    // Its first words, at least, came in meanwhile.
    EXPECT_THAT(client.Reasons(), Contains(DdeRequest));
    EXPECT_EQ(0, Serve(*quick));
    EXPECT_TRUE(WaitForChildren(1));
    EXPECT_TRUE(waiting->disconnect());
    EXPECT_EQ(0, Serve(*slow));
}
