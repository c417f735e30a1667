// How conversations begin and end.
#include "lvx/exchange/dde_server.h"

#include <dde.h>

#include <algorithm>
#include <exception>
#include <memory>

#include "lvx/exchange/dde_children.h"
#include "lvx/exchange/dde_handling.h"
#include "lvx/runtime/atom.h"

namespace {

std::string text_of(const char* name) {
    return name != nullptr ? name : "";
}

unsigned short number_of(const LVXAtom& atom) {
    return static_cast<unsigned short>(static_cast<unsigned int>(atom));
}

}  // namespace

const owl::TResponseTableEntry<LVXDdeServer> LVXDdeServer::__entries[] = {
    EV_MESSAGE(WM_DDE_INITIATE, EvWmDdeInitiate),
    EV_MESSAGE(WM_DDE_REQUEST, EvWmDdeRequest),
    EV_MESSAGE(WM_DDE_ADVISE, EvWmDdeAdvise),
    EV_MESSAGE(WM_DDE_UNADVISE, EvWmDdeUnadvise),
    EV_MESSAGE(WM_DDE_EXECUTE, EvWmDdeExecute),
    EV_MESSAGE(WM_DDE_POKE, EvWmDdePoke),
    {},
};

bool LVXDdeServer::Find(owl::TEventInfo& info) {
    return owl::SearchEntries<LVXDdeServer>(*this, __entries, info) || LVXDde::Find(info);
}

LVXDdeServer::LVXDdeServer() {
    Attr.Style &= ~static_cast<DWORD>(WS_VISIBLE);
    try {
        Create();
    } catch (const std::exception& failure) {
        ::MessageBoxExA(nullptr, failure.what(), "Failed to create window", MB_OK, 0);
    }
    SetWindowText("Slatework DDE Server Window");
}

LVXDdeServer::~LVXDdeServer() {
    // Who asks a master for a topic at this moment is no partner yet, and gets no good-bye.
    if (m_master == nullptr && Handling::IsUnderWay(*this)) {
        m_partner = nullptr;
    }
    LVXDde::disconnect();
    EndLinks();
    if (m_master != nullptr) {
        m_master->DetachChild(this);
    }
    // They serve on, and must not take themselves for masters.
    for (LVXDdeServer* const child : m_children) {
        child->m_master = child;
    }
}

// What a master asks its client about, for as long as that takes.
class LVXDdeServer::InitiateScope {
public:
    InitiateScope(LVXDdeServer& server, const Handling& handling, const char* application, const char* topic,
                  HWND partner)
        : m_server(server),
          m_handling(handling),
          m_partner(server.m_partner),
          m_application(server.m_applicationName),
          m_topic(server.m_topicName) {
        Set(application, topic, partner);
    }
    InitiateScope(const InitiateScope&) = delete;
    InitiateScope& operator=(const InitiateScope&) = delete;
    ~InitiateScope() {
        if (!m_handling.Gone()) {
            Set(m_application, m_topic, m_partner);
        }
    }

private:
    void Set(const char* application, const char* topic, HWND partner) {
        m_server.m_partner = partner;
        m_server.m_applicationName = application;
        m_server.m_topicName = topic;
    }

    LVXDdeServer& m_server;
    const Handling& m_handling;
    const HWND m_partner;
    const char* const m_application;
    const char* const m_topic;
};

LRESULT LVXDdeServer::EvWmDdeInitiate(WPARAM window, LPARAM lParam) {
    const Handling handling(*this);
    EndDeadChildren();
    const auto client = reinterpret_cast<HWND>(window);
    if (handling.Gone() || !::IsWindow(client)) {
        return 0;
    }
    LVXAtom application(LOWORD(lParam));
    LVXAtom topic(HIWORD(lParam));
    return rcvInitiate(application, topic, client);
}

int LVXDdeServer::rcvInitiate(const char* application, const char* topic, void* clientWindow) {
    if (m_master != nullptr) {
        return 0;
    }
    const Handling handling(*this);
    const InitiateScope scope(*this, handling, application, topic, static_cast<HWND>(clientWindow));
    const bool wanted = callback(DdeInitiate, nullptr, nullptr) && !handling.Gone();
    return wanted && BeginConversation() ? 1 : 0;
}

bool LVXDdeServer::BeginConversation() {
    auto child = std::make_unique<LVXDdeServer>();
    if (!child->IsWindow()) {
        return false;
    }
    m_children.push_back(child.get());
    child.release()->serve(this);
    return true;
}

void LVXDdeServer::serve(LVXDdeServer* master) {
    const Handling handling(*this);
    m_partner = master->m_partner;
    m_client = master->m_client;
    m_master = master;
    EndLinks();
    m_ackRequired = 0;
    ::GetWindowThreadProcessId(m_partner, &m_partnerProcess);
    LVXAtom application(text_of(master->m_applicationName));
    LVXAtom topic(text_of(master->m_topicName));
    sndAck(number_of(application), number_of(topic), true, WM_DDE_INITIATE, 0);
    !application;
    !topic;
}

bool LVXDdeServer::disconnect() {
    if (m_master == nullptr) {
        return DisconnectChildren();
    }
    if (!m_closing) {
        EndSelf();
        return true;
    }
    // The good-bye is on its way already, and this is an event that came meanwhile. A host that goes on until
    // its master has no children must come to an end.
    m_master->DetachChild(this);
    m_master = this;
    return true;
}

bool LVXDdeServer::DisconnectChildren() {
    const Handling handling(*this);
    for (std::size_t i = 0; !handling.Gone() && i < m_children.size(); ++i) {
        m_children[i]->disconnect();
    }
    return true;
}

void LVXDdeServer::rcvTerminate() {
    if (m_master == nullptr) {
        return;
    }
    const Handling handling(*this);
    const bool closing = m_closing;
    const auto end = [&] {
        if (!closing && !handling.Gone() && m_master != nullptr) {
            EndSelf();
        }
    };
    // Also if the client throws: there is no partner any more.
    try {
        LVXDde::rcvTerminate();
    } catch (...) {
        end();
        throw;
    }
    end();
}

// Functions of this object that are under way find it in place, but without partner, master and window.
void LVXDdeServer::EndSelf() {
    if (!Handling::IsUnderWay(*this)) {
        delete this;
        return;
    }
    const Handling handling(*this);
    LVXDde::disconnect();
    if (handling.Gone()) {
        return;
    }
    m_partner = nullptr;
    EndLinks();
    m_master->DetachChild(this);
    m_master = nullptr;
    Destroy();
    Handling::EndAfterwards(*this);
}

void LVXDdeServer::EndLinks() {
    if (m_advises == nullptr) {
        return;
    }
    for (const auto& [name, link] : *m_advises) {
        delete link;
    }
    delete m_advises;
    m_advises = nullptr;
}

// A partner whose program crashed says no good-bye.
void LVXDdeServer::EndDeadChildren() {
    const Handling handling(*this);
    ForEachChild(handling, [](LVXDdeServer& child) {
        if (child.m_partnerProcess != 0 && child.m_partner != nullptr && !::IsWindow(child.m_partner)) {
            child.rcvTerminate();
        }
    });
}

void LVXDdeServer::DetachChild(LVXDdeServer* child) {
    const auto place = std::find(m_children.begin(), m_children.end(), child);
    if (place == m_children.end()) {
        return;
    }
    m_children.erase(place);
    child->m_master = nullptr;
}
