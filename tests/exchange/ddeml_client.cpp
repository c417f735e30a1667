// A client of the system's own DDE management library, for tests in a second process:
//
//     ddeml_client APPLICATION TOPIC STEP…
//
// "*" stands for any topic. The steps are, with their arguments: request ITEM TEXT, no-request ITEM, poke
// ITEM TEXT, no-poke ITEM TEXT, execute COMMAND, no-execute COMMAND, hot ITEM, warm ITEM, no-hot ITEM, unlink
// ITEM, data TEXT, word ITEM, topic NAME, dropped, disconnect. Links ask to be acknowledged: without that the
// server answers nothing. Exits 0, or with the number of the argument that failed; 200 if it found nobody.
#include <windows.h>

#include <ddeml.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr DWORD long_time = 10000;

struct Arrival {
    std::string item;
    bool hasData;
    std::string text;
};

std::vector<Arrival> g_arrivals;
DWORD g_instance = 0;

std::string name_of(HSZ name) {
    char text[300] = {};
    DdeQueryStringA(g_instance, name, text, sizeof text, CP_WINANSI);
    return text;
}

std::string text_of(HDDEDATA data) {
    DWORD size = 0;
    const auto* const bytes = reinterpret_cast<const char*>(DdeAccessData(data, &size));
    const std::string text = bytes != nullptr ? std::string(bytes, strnlen(bytes, size)) : "";
    DdeUnaccessData(data);
    return text;
}

HDDEDATA CALLBACK hear(UINT type, UINT, HCONV, HSZ, HSZ item, HDDEDATA data, ULONG_PTR, ULONG_PTR) {
    if (type != XTYP_ADVDATA)
        return nullptr;
    g_arrivals.push_back({name_of(item), data != nullptr, data != nullptr ? text_of(data) : ""});
    return reinterpret_cast<HDDEDATA>(static_cast<ULONG_PTR>(DDE_FACK));
}

class Name {
public:
    explicit Name(const std::string& text)
        : m_name(text == "*" ? nullptr : DdeCreateStringHandleA(g_instance, text.c_str(), CP_WINANSI)) {}
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;
    ~Name() {
        if (m_name != nullptr)
            DdeFreeStringHandle(g_instance, m_name);
    }
    operator HSZ() const { return m_name; }

private:
    const HSZ m_name;
};

template <class Done>
bool pump_until(const Done& done) {
    const DWORD start = GetTickCount();
    while (!done() && GetTickCount() - start < long_time) {
        MSG message{};
        if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        else
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return done();
}

class Conversation {
public:
    explicit Conversation(HCONV conversation) : m_conversation(conversation) {}

    bool Request(const std::string& item, const std::string* text) const {
        const Name name(item);
        const HDDEDATA data = Transact(nullptr, 0, name, CF_TEXT, XTYP_REQUEST);
        if (data == nullptr || text == nullptr)
            return data == nullptr && text == nullptr;
        const bool good = text_of(data) == *text;
        DdeFreeDataHandle(data);
        return good;
    }
    bool Poke(const std::string& item, std::string text) const {
        const Name name(item);
        return IsAccepted(text.data(), text.size() + 1, name, CF_TEXT, XTYP_POKE);
    }
    bool Execute(std::string command) const {
        return IsAccepted(command.data(), command.size() + 1, nullptr, 0, XTYP_EXECUTE);
    }
    bool Link(const std::string& item, UINT type) const {
        const Name name(item);
        return Transact(nullptr, 0, name, CF_TEXT, type) != nullptr;
    }
    std::string Topic() const { return name_of(Info().hszTopic); }
    bool IsConnected() const { return (Info().wStatus & ST_CONNECTED) != 0; }

    bool End() const { return DdeDisconnect(m_conversation) != 0; }

private:
    CONVINFO Info() const {
        CONVINFO info{};
        info.cb = sizeof info;
        DdeQueryConvInfo(m_conversation, QID_SYNC, &info);
        return info;
    }
    // Some systems hand an answer of any kind out as success: the status tells.
    bool IsAccepted(char* bytes, std::size_t size, HSZ item, UINT format, UINT type) const {
        DWORD status = 0;
        return Transact(bytes, size, item, format, type, &status) != nullptr && (status & DDE_FACK) != 0;
    }
    HDDEDATA Transact(char* bytes, std::size_t size, HSZ item, UINT format, UINT type,
                      DWORD* status = nullptr) const {
        return DdeClientTransaction(reinterpret_cast<BYTE*>(bytes), static_cast<DWORD>(size), m_conversation,
                                    item, format, type, long_time, status);
    }

    const HCONV m_conversation;
};

bool comes(bool hasData, const std::string& itemOrText) {
    const auto fits = [&](const Arrival& arrival) {
        return arrival.hasData == hasData && (hasData ? arrival.text : arrival.item) == itemOrText;
    };
    return pump_until([&] { return std::any_of(g_arrivals.begin(), g_arrivals.end(), fits); });
}

bool step(const Conversation& talk, const std::string& verb, const std::string& first,
          const std::string& second) {
    if (verb == "request")
        return talk.Request(first, &second);
    if (verb == "no-request")
        return talk.Request(first, nullptr);
    if (verb == "poke")
        return talk.Poke(first, second);
    if (verb == "no-poke")
        return !talk.Poke(first, second);
    if (verb == "execute")
        return talk.Execute(first);
    if (verb == "no-execute")
        return !talk.Execute(first);
    if (verb == "hot")
        return talk.Link(first, XTYP_ADVSTART | XTYPF_ACKREQ);
    if (verb == "no-hot")
        return !talk.Link(first, XTYP_ADVSTART | XTYPF_ACKREQ);
    if (verb == "warm")
        return talk.Link(first, XTYP_ADVSTART | XTYPF_ACKREQ | XTYPF_NODATA);
    if (verb == "unlink")
        return talk.Link(first, XTYP_ADVSTOP);
    if (verb == "data")
        return comes(true, first);
    if (verb == "word")
        return comes(false, first);
    if (verb == "topic")
        return talk.Topic() == first;
    if (verb == "disconnect")
        return talk.End();
    return verb == "dropped" && pump_until([&] { return !talk.IsConnected(); });
}

int arguments_of(const std::string& verb) {
    if (verb == "dropped" || verb == "disconnect")
        return 0;
    return verb == "request" || verb == "poke" || verb == "no-poke" ? 2 : 1;
}

int converse(const std::vector<std::string>& arguments) {
    const Name application(arguments[0]);
    const Name topic(arguments[1]);
    const HCONV conversation = DdeConnect(g_instance, application, topic, nullptr);
    if (conversation == nullptr)
        return 200;
    const Conversation talk(conversation);
    const auto at = [&](std::size_t place) { return place < arguments.size() ? arguments[place] : ""; };
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        if (!step(talk, arguments[i], at(i + 1), at(i + 2))) {
            std::fprintf(stderr, "ddeml_client: %s %s failed: error %x\n", at(i).c_str(), at(i + 1).c_str(),
                         DdeGetLastError(g_instance));
            return static_cast<int>(i + 1);
        }
        i += static_cast<std::size_t>(arguments_of(arguments[i]));
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3 || DdeInitializeA(&g_instance, &hear, APPCMD_CLIENTONLY, 0) != DMLERR_NO_ERROR)
        return 199;
    return converse(std::vector<std::string>(argv + 1, argv + argc));
}
