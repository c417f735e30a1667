// Asks any DDE server, from a command line or a batch file. Knows nothing of the library: it stands on the
// system's own DDE functions. Windows only.
//
// usage: dde_ask APPLICATION TOPIC request ITEM
//        dde_ask APPLICATION TOPIC poke ITEM TEXT
//        dde_ask APPLICATION TOPIC execute COMMAND
//        dde_ask APPLICATION TOPIC watch ITEM TIMES
//
// request prints the item; watch prints it each time it changes, TIMES times. Exits 0, 1 if nobody answers, 2
// for a wrong call, 3 if the server refuses.
#include <windows.h>

#include <ddeml.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr DWORD patience = 10000;  // milliseconds

enum Result { done = 0, nobody = 1, wrong_call = 2, refused = 3 };

// The system's functions call without an address of ours.
DWORD g_instance = 0;
int g_changes = 0;

/// A name as the system wants it.
class Name {
public:
    explicit Name(const std::string& text)
        : m_name(DdeCreateStringHandleA(g_instance, text.c_str(), CP_WINANSI)) {}
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;
    ~Name() { DdeFreeStringHandle(g_instance, m_name); }
    operator HSZ() const { return m_name; }

private:
    const HSZ m_name;
};

void print(HDDEDATA data) {
    DWORD size = 0;
    const auto* const bytes = reinterpret_cast<const char*>(DdeAccessData(data, &size));
    std::cout << (bytes != nullptr ? std::string(bytes, ::strnlen(bytes, size)) : "") << std::endl;
    DdeUnaccessData(data);
}

HDDEDATA CALLBACK hear(UINT type, UINT, HCONV, HSZ, HSZ, HDDEDATA data, ULONG_PTR, ULONG_PTR) {
    if (type == XTYP_ADVDATA && data != nullptr) {
        print(data);
        ++g_changes;
    }
    return reinterpret_cast<HDDEDATA>(static_cast<ULONG_PTR>(DDE_FACK));
}

class Conversation {
public:
    Conversation(const std::string& application, const std::string& topic)
        : m_conversation(DdeConnect(g_instance, Name(application), Name(topic), nullptr)) {}
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;
    ~Conversation() { DdeDisconnect(m_conversation); }

    bool IsOpen() const { return m_conversation != nullptr; }

    Result Request(const std::string& item) const {
        const HDDEDATA data = DdeClientTransaction(nullptr, 0, m_conversation, Name(item), CF_TEXT,
                                                   XTYP_REQUEST, patience, nullptr);
        if (data == nullptr) {
            return refused;
        }
        print(data);
        DdeFreeDataHandle(data);
        return done;
    }
    Result Poke(const std::string& item, const std::string& text) const {
        return Send(text, Name(item), CF_TEXT, XTYP_POKE);
    }
    Result Execute(const std::string& command) const { return Send(command, nullptr, 0, XTYP_EXECUTE); }
    Result Watch(const std::string& item, int times) const {
        const Name name(item);
        // A server of this library answers a link only if it is asked to.
        constexpr UINT link = XTYP_ADVSTART | XTYPF_ACKREQ;
        if (DdeClientTransaction(nullptr, 0, m_conversation, name, CF_TEXT, link, patience, nullptr) ==
            nullptr) {
            return refused;
        }
        std::cout << "watching" << std::endl;
        MSG message{};
        while (g_changes<times&& ::GetMessageA(&message, nullptr, 0, 0)> 0) {
            ::DispatchMessageA(&message);
        }
        return done;
    }

private:
    Result Send(std::string text, HSZ item, UINT format, UINT type) const {
        DWORD status = 0;
        const auto size = static_cast<DWORD>(text.size() + 1);
        const HDDEDATA answer = DdeClientTransaction(reinterpret_cast<BYTE*>(text.data()), size,
                                                     m_conversation, item, format, type, patience, &status);
        return answer != nullptr && (status & DDE_FACK) != 0 ? done : refused;
    }

    const HCONV m_conversation;
};

Result ask(const std::vector<std::string>& words) {
    if (words.size() < 4) {
        return wrong_call;
    }
    const Conversation conversation(words[0], words[1]);
    if (!conversation.IsOpen()) {
        return nobody;
    }
    const std::string& verb = words[2];
    if (verb == "request" && words.size() == 4) {
        return conversation.Request(words[3]);
    }
    if (verb == "execute" && words.size() == 4) {
        return conversation.Execute(words[3]);
    }
    if (verb == "poke" && words.size() == 5) {
        return conversation.Poke(words[3], words[4]);
    }
    if (verb == "watch" && words.size() == 5) {
        return conversation.Watch(words[3], std::atoi(words[4].c_str()));
    }
    return wrong_call;
}

}  // namespace

int main(int argc, char** argv) {
    if (DdeInitializeA(&g_instance, &hear, APPCMD_CLIENTONLY, 0) != DMLERR_NO_ERROR) {
        return nobody;
    }
    const Result result = ask(std::vector<std::string>(argv + 1, argv + argc));
    DdeUninitialize(g_instance);
    if (result == wrong_call) {
        std::cerr << "usage: dde_ask APPLICATION TOPIC request|poke|execute|watch ...\n";
    }
    return result;
}
