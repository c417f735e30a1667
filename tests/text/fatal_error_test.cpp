#include <gtest/gtest.h>

#include <string>

#include "lvx/text/report.h"
#include "support/box_reader.h"
#include "support/peer_process.h"

using lvx_test::BoxContents;
using lvx_test::BoxReader;
using lvx_test::PeerProcess;

namespace {

// With which the runtime ends a process that calls abort().
constexpr int aborted = 3;

}  // namespace

TEST(FatalError, shows_its_text_below_a_line_and_aborts) {
    PeerProcess peer("lvx_report_peer.exe", {});
    BoxReader reader(peer.Id());
    const BoxContents& box = reader.Contents();
    EXPECT_TRUE(box.found);
    EXPECT_EQ("Error", box.caption);
    EXPECT_EQ("FATAL ERROR!\nbad 7", box.text);
    EXPECT_EQ(nullptr, box.owner);
    EXPECT_TRUE(box.closed);
    EXPECT_EQ(aborted, peer.Result());
}

TEST(FatalError, waits_for_the_user) {
    PeerProcess peer("lvx_report_peer.exe", {});
    int running = 0;
    BoxReader reader(peer.Id(), [&] {
        lvx_test::sleep_for(300);
        const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, peer.Id());
        DWORD code = 0;
        running = GetExitCodeProcess(process, &code) != 0 && code == STILL_ACTIVE ? 1 : 0;
        CloseHandle(process);
    });
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_EQ(1, running);
    EXPECT_EQ(aborted, peer.Result());
}

TEST(FatalError, is_left_by_the_escape_key_too) {
    PeerProcess peer("lvx_report_peer.exe", {});
    BoxReader reader(peer.Id(), {}, VK_ESCAPE);
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_EQ(aborted, peer.Result());
}

TEST(FatalError, shows_what_there_is_room_for_of_a_long_text) {
    PeerProcess peer("lvx_report_peer.exe", {"1000000"});
    BoxReader reader(peer.Id());
    EXPECT_EQ("FATAL ERROR!\n" + std::string(4095 - 13, 'x'), reader.Contents().text);
    EXPECT_EQ(aborted, peer.Result());
}
