// A thousand conversations with a program in another process, and what they leave behind in this one. Each
// has requests, links, a hot update, commands and pokes in it, granted and refused.
// LVX_DDE_CONVERSATIONS=10000 has ten thousand of them, which takes minutes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "lvx/exchange/dde_server.h"
#include "raw_partner.h"
#include "support/peer_process.h"
#include "told_client.h"

namespace {

using dde_test::RawPartner;

constexpr int warm_up = 50;

int wanted_conversations() {
    const char* const wanted = std::getenv("LVX_DDE_CONVERSATIONS");
    return wanted != nullptr ? std::max(std::atoi(wanted), 1) : 1000;
}

class Host : public LVXDdeClient {
public:
    bool ddeEvent(LVXDde* dde) override {
        auto& server = dynamic_cast<LVXDdeServer&>(*dde);
        const std::string item = dde->item() != nullptr ? dde->item() : "";
        const bool isRefused = item == "cycled refused";
        ends += dde->reason() == DdeTerminate ? 1 : 0;
        if (dde->reason() == DdeRequest && !isRefused)
            return server.sendItem(dde->item(), (item + "=7").c_str(), CF_TEXT);
        if (dde->reason() == DdeExecute && server.command() == std::string("[update]"))
            server.updateItem("cycled count");
        return !isRefused && (server.command() == nullptr || server.command() != std::string("[refused]"));
    }

    int ends = 0;
};

// The blocks in use in the heap that handles and packings come from.
int count_blocks() {
    const HANDLE heap = ::GetProcessHeap();
    PROCESS_HEAP_ENTRY entry{};
    int count = 0;
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry))
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
    ::HeapUnlock(heap);
    return count;
}

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int count_windows() {
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &count_window, reinterpret_cast<LPARAM>(&count));
    return count;
}

// References of our own, which keep the atoms from ending unseen.
class HeldAtoms {
public:
    HeldAtoms() {
        for (const char* const name :
             {"Sketch", "drawing", "cycled count", "cycled colour", "cycled refused", "cycled unasked"})
            m_atoms.push_back(::GlobalAddAtomA(name));
    }
    /// Whether there are these references and no others; gives them up.
    bool AreTheLast() {
        bool good = true;
        for (const ATOM atom : m_atoms) {
            const std::string name = dde_test::name_of(atom);
            ::GlobalDeleteAtom(atom);
            EXPECT_NE("", name) << "deleted too often";
            EXPECT_EQ("", dde_test::name_of(atom)) << "not deleted";
            good = good && !name.empty() && dde_test::name_of(atom).empty();
        }
        return good;
    }

private:
    std::vector<ATOM> m_atoms;
};

int converse(const LVXDdeServer& master, const Host& host, int times) {
    const int before = host.ends;
    lvx_test::PeerProcess peer(
        "lvx_raw_dde_client.exe",
        {std::to_string(reinterpret_cast<UINT_PTR>(master.GetHandle())), "often", std::to_string(times)});
    const HANDLE process = ::OpenProcess(SYNCHRONIZE, FALSE, peer.Id());
    RawPartner::PumpUntil([&] { return ::WaitForSingleObject(process, 0) == WAIT_OBJECT_0; }, 3600000);
    ::CloseHandle(process);
    EXPECT_EQ(0, peer.Result());
    return host.ends - before;
}

}  // namespace

TEST(DdeCycles, leave_no_atom_no_block_and_no_window_behind) {
    const int conversations = wanted_conversations();
    Host host;
    LVXDdeServer master;
    master.uponEvent(&host);
    converse(master, host, warm_up);
    HeldAtoms atoms;
    const int blocks = count_blocks();
    const int windows = count_windows();
    EXPECT_EQ(conversations, converse(master, host, conversations));
    EXPECT_TRUE(master.children().empty());
    // What the system keeps for the next message may differ by a few.
    EXPECT_LT(count_blocks() - blocks, 10);
    EXPECT_EQ(windows, count_windows());
    EXPECT_TRUE(atoms.AreTheLast());
}
