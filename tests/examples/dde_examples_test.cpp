// The programs of docs/dde.md: a server and those who ask it, each in a process of its own.
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

#include "example_run.h"
#include "support/peer_process.h"
#include "support/threads.h"

namespace {

class DdeExamples : public lvx_test::ExampleRun {
protected:
    DdeExamples() : m_server("star_server.exe", {"Sirius", "Vega"}) {
        EXPECT_TRUE(lvx_test::comes_true([this] { return Ask("request count"); }));
    }

    bool Ask(const std::string& what) { return Run("dde_ask.exe Stars catalogue " + what); }
    std::string Answer(const std::string& what) {
        EXPECT_TRUE(Ask(what)) << what;
        return m_output;
    }

    lvx_test::PeerProcess m_server;
};

}  // namespace

TEST_F(DdeExamples, ask_for_items) {
    EXPECT_EQ("2\n", Answer("request count"));
    EXPECT_EQ("Sirius,Vega\n", Answer("request names"));
    EXPECT_EQ("2\n", Answer("request COUNT"));
    EXPECT_FALSE(Ask("request planets"));
}

TEST_F(DdeExamples, execute_commands) {
    EXPECT_EQ("", Answer("execute \"[add(Rigel)]\""));
    EXPECT_EQ("", Answer("execute remove('Vega')"));
    EXPECT_EQ("Sirius,Rigel\n", Answer("request names"));
    for (const char* const refused : {"remove(Vega)", "add()", "explode(Vega)", "[]", "(x)"})
        EXPECT_FALSE(Ask(std::string("execute ") + refused)) << refused;
    EXPECT_EQ("", Answer("execute [quit()]"));
    EXPECT_EQ(0, m_server.Result());
    EXPECT_FALSE(Ask("request count"));
}

TEST_F(DdeExamples, poke_items) {
    EXPECT_EQ("", Answer("poke names \"Deneb,Altair,Mira\""));
    EXPECT_EQ("3\n", Answer("request count"));
    EXPECT_FALSE(Ask("poke count 7"));
    EXPECT_EQ("3\n", Answer("request count"));
}

TEST_F(DdeExamples, watch_items) {
    std::thread other([] {
        lvx_test::sleep_for(1500);
        for (const char* const star : {"Rigel", "Mira"})
            lvx_test::PeerProcess("dde_ask.exe",
                                  {"Stars", "catalogue", "execute", std::string("add(") + star + ")"})
                .Result();
    });
    EXPECT_EQ("watching\n3\n4\n", Answer("watch count 2"));
    other.join();
    EXPECT_FALSE(Ask("watch planets 1"));
}

TEST_F(DdeExamples, tell_a_wrong_call) {
    EXPECT_FALSE(Ask("request"));
    EXPECT_NE(std::string::npos, m_output.find("usage: dde_ask"));
    EXPECT_FALSE(Ask("sing count"));
    EXPECT_FALSE(Run("dde_ask.exe Stars planets request count"));
}
