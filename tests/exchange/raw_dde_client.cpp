// A DDE client out of plain system calls, for tests in a second process. It takes part in a test whose server
// has the window that the first argument names, in digits; what it does is the second one. Most of its parts
// misbehave. Exits 0, or with the number of the line that failed.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "raw_partner.h"

using dde_test::Letter;
using dde_test::new_block;
using dde_test::positive;
using dde_test::RawPartner;
using dde_test::wants_ack;
using dde_test::with_end;

namespace {

HWND g_master = nullptr;
// Where atoms are counted, items have names that nobody else in the session has used and left.
std::string g_prefix;

[[noreturn]] void fail(int line) {
    std::fprintf(stderr, "raw_dde_client: line %d failed\n", line);
    std::exit(line);
}

#define EXPECT(condition)   \
    do {                    \
        if (!(condition))   \
            fail(__LINE__); \
    } while (false)

struct Client : RawPartner {
    Client() { EXPECT(Initiate(g_master, "Sketch", "drawing")); }
    // Whether the last acknowledgement is positive and names the item.
    bool IsAccepted(const char* item) {
        const auto answers = Of(WM_DDE_ACK);
        return !answers.empty() && answers.back().status == positive && answers.back().item == item;
    }
};

// All that there is in a conversation. The host answers "item=7".
void converse_by(Client& client) {
    const std::string count = g_prefix + "count";
    const std::string colour = g_prefix + "colour";
    const std::string refused = g_prefix + "refused";
    const std::string unasked = g_prefix + "unasked";
    EXPECT(client.Request(count.c_str()) && client.Wait(WM_DDE_DATA));
    EXPECT(client.letters.back().Text() == count + "=7");
    EXPECT(client.Request(refused.c_str()) && client.Wait(WM_DDE_ACK, 2));
    EXPECT(client.letters.back().status == 0);
    EXPECT(client.Advise(count.c_str()) && client.Wait(WM_DDE_ACK, 3) && client.IsAccepted(count.c_str()));
    EXPECT(client.Advise(unasked.c_str(), 0));
    // The host updates its count on this command.
    EXPECT(client.Execute("[update]") && client.Wait(WM_DDE_ACK, 4) && client.Wait(WM_DDE_DATA, 2));
    EXPECT(client.Of(WM_DDE_ACK).back().status == positive);
    EXPECT(client.IsMine(client.Of(WM_DDE_ACK).back().high));
    EXPECT(client.Execute("[refused]") && client.Wait(WM_DDE_ACK, 5) && client.letters.back().status == 0);
    EXPECT(client.Poke(colour.c_str(), with_end("red"), 0) && client.Wait(WM_DDE_ACK, 6));
    EXPECT(client.Poke(refused.c_str(), with_end("red")) && client.Wait(WM_DDE_ACK, 7));
    EXPECT(client.letters.back().status == 0);
    EXPECT(client.Unadvise(count.c_str()) && client.Wait(WM_DDE_ACK, 8) && client.IsAccepted(count.c_str()));
    EXPECT(client.End());
}

void converse() {
    Client client;
    converse_by(client);
}

void converse_often(int times) {
    g_prefix = "cycled ";
    Client client;
    converse_by(client);
    for (int i = 1; i < times; ++i) {
        client.letters.clear();
        EXPECT(client.Initiate(g_master, "Sketch", "drawing"));
        converse_by(client);
    }
}

// Ends right behind the wish for a link, whose answer nobody hears.
void leave_in_the_middle_of_an_advise() {
    Client client;
    EXPECT(client.Advise("count"));
    EXPECT(client.End());
}

void acknowledge_nothing() {
    Client client;
    client.acknowledgesData = false;
    EXPECT(client.Request("count") && client.Wait(WM_DDE_DATA));
    EXPECT(client.letters.back().flags & wants_ack);
    EXPECT(client.End());
}

// Texts and commands without their ends, and blocks with nothing in them.
void send_torn_blocks() {
    Client client;
    EXPECT(client.Poke("colour", "torn") && client.Wait(WM_DDE_ACK, 2) && client.IsAccepted("colour"));
    EXPECT(client.Poke("colour", "") && client.Wait(WM_DDE_ACK, 3) && client.IsAccepted("colour"));
    EXPECT(client.Poke("colour", std::string(100000, 'x')) && client.Wait(WM_DDE_ACK, 4));
    HGLOBAL command = GlobalAlloc(GMEM_DDESHARE | GMEM_MOVEABLE, 4);
    std::memcpy(GlobalLock(command), "[ab]", 4);
    GlobalUnlock(command);
    EXPECT(PostMessageA(client.Server(), WM_DDE_EXECUTE, client.Self(), reinterpret_cast<LPARAM>(command)));
    EXPECT(client.Wait(WM_DDE_ACK, 5) && client.letters.back().status == positive);
    GlobalFree(command);
    // Sent, handles and packings mean nothing in the other process.
    for (const UINT message : {WM_DDE_ADVISE, WM_DDE_POKE, WM_DDE_EXECUTE, WM_DDE_ACK, WM_DDE_DATA})
        SendMessageA(client.Server(), message, client.Self(), 0x7FFF0008);
    EXPECT(client.Request("count") && client.Wait(WM_DDE_DATA));
    EXPECT(client.End());
}

// Each letter gets one answer, however many there are.
void flood() {
    constexpr std::size_t rounds = 500;
    Client client;
    const std::size_t greetings = client.Count(WM_DDE_ACK);
    for (std::size_t i = 0; i < rounds; ++i) {
        EXPECT(client.Request("count"));
        EXPECT(client.Poke("colour", with_end("red"), 0));
        EXPECT(client.Advise("count"));
        EXPECT(client.Unadvise("count"));
        EXPECT(client.Execute("[x]"));
    }
    EXPECT(client.Wait(WM_DDE_DATA, rounds));
    EXPECT(client.Wait(WM_DDE_ACK, greetings + 4 * rounds));
    EXPECT(client.End());
    EXPECT(client.Count(WM_DDE_DATA) == rounds);
    EXPECT(client.Count(WM_DDE_ACK) == greetings + 4 * rounds);
}

// Requests without end, and never an acknowledgement for the data.
void flood_silently() {
    Client client;
    client.acknowledgesData = false;
    for (int i = 0; i < 100; ++i)
        EXPECT(client.Request("count"));
    EXPECT(client.Wait(WM_DDE_DATA, 100));
    EXPECT(client.End());
}

void die() {
    Client client;
    EXPECT(client.Advise("count") && client.Wait(WM_DDE_ACK, 2));
    EXPECT(client.Request("count"));
    TerminateProcess(GetCurrentProcess(), 0);
}

// Says good-bye, and then hears nothing for a while.
void hang() {
    Client client;
    EXPECT(client.Terminate());
    Sleep(7000);
}

// Thinks a while about data before it acknowledges it.
void acknowledge_late() {
    Client client;
    client.onLetter = [](const Letter& letter) {
        if (letter.message == WM_DDE_DATA)
            Sleep(3000);
    };
    EXPECT(client.Wait(WM_DDE_DATA));
    EXPECT(client.Wait(WM_DDE_TERMINATE));
}

// The host ends it.
void stay() {
    Client client;
    EXPECT(client.Wait(WM_DDE_TERMINATE));
}

void stay_silent() {
    Client client;
    client.answersTerminate = false;
    EXPECT(client.Wait(WM_DDE_TERMINATE));
    // Until the host has given up.
    RawPartner::PumpUntil([&] { return IsWindow(client.Server()) == 0; });
}

}  // namespace

int main(int argc, char** argv) {
    EXPECT(argc >= 3);
    g_master = reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::strtoull(argv[1], nullptr, 10)));
    const std::map<std::string, void (*)()> parts = {
        {"converse", &converse},
        {"leave-midway", &leave_in_the_middle_of_an_advise},
        {"acknowledge-nothing", &acknowledge_nothing},
        {"acknowledge-late", &acknowledge_late},
        {"torn", &send_torn_blocks},
        {"flood", &flood},
        {"flood-silently", &flood_silently},
        {"die", &die},
        {"hang", &hang},
        {"stay", &stay},
        {"stay-silent", &stay_silent},
    };
    const std::string wanted = argv[2];
    if (wanted == "often") {
        EXPECT(argc == 4);
        converse_often(std::atoi(argv[3]));
        return 0;
    }
    const auto part = parts.find(wanted);
    EXPECT(part != parts.end());
    part->second();
    return 0;
}
