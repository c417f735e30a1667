// A server and a partner in one program, for tests. Windows only.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "lvx/exchange/dde_server.h"
#include "raw_partner.h"
#include "told_client.h"

namespace dde_test {

/// A master that is listened to by its window alone, so that tests that run beside this one do not answer.
class Served : public testing::Test {
protected:
    Served() { master.uponEvent(&client); }
    ~Served() override {
        client.onEvent = nullptr;
        partner.onLetter = nullptr;
        while (!master.children().empty()) {
            for (LVXDdeServer* const left : master.children())
                left->ackTime(50);
            master.disconnect();
        }
        RawPartner::PumpAll();
        partner.FreeMine();
    }

    bool Connect(RawPartner& who) { return who.Initiate(master, "Sketch", "drawing"); }
    /// Connects, and forgets what that was told.
    void Begin() {
        ASSERT_TRUE(Connect(partner));
        ASSERT_EQ(1u, master.children().size());
        child = master.children().front();
        partner.letters.clear();
        client.events.clear();
    }
    /// Posts a request and waits for what it leads to.
    const Letter& AnswerTo(bool posted, UINT message) {
        EXPECT_TRUE(posted);
        const std::size_t before = partner.Count(message);
        EXPECT_TRUE(partner.Wait(message, before + 1));
        static Letter last;
        const std::vector<Letter> letters = partner.Of(message);
        last = letters.empty() ? Letter{} : letters.back();
        return last;
    }
    /// Links an item; the client has to accept.
    void Link(const char* item, WORD flags = 0, WORD format = CF_TEXT) {
        const Letter answer =
            AnswerTo(partner.Advise(item, static_cast<WORD>(flags | wants_ack), format), WM_DDE_ACK);
        ASSERT_EQ(positive, answer.status);
        partner.letters.clear();
        client.events.clear();
    }
    /// The client supplies "item=value" for every item that it is asked for.
    void Supply(const std::string& value) {
        client.onEvent = [this, value](LVXDde& dde) {
            if (dde.reason() != DdeRequest)
                return true;
            auto& server = dynamic_cast<LVXDdeServer&>(dde);
            sent = server.sendItem(dde.item(), (dde.item() + ('=' + value)).c_str(), CF_TEXT);
            return true;
        };
    }

    ToldClient client;
    RawPartner partner;
    LVXDdeServer master;
    LVXDdeServer* child = nullptr;
    bool sent = false;
};

}  // namespace dde_test
