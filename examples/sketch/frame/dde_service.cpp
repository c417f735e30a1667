#include "sketch/frame/dde_service.h"

#include <windows.h>

#include <utility>

namespace sketch {
namespace {

constexpr const char* application_name = "Sketch";
constexpr const char* topic_name = "Drawing";
// Who does not answer holds up the program's end that long, in milliseconds.
constexpr unsigned short longest_wait = 1000;

bool IsNamed(const char* name, const char* wanted) {
    return name == nullptr || ::lstrcmpiA(name, wanted) == 0;
}

}  // namespace

bool WithoutCase::operator()(const std::string& left, const std::string& right) const {
    return ::lstrcmpiA(left.c_str(), right.c_str()) < 0;
}

int DdeService::Server::rcvInitiate(const char* application, const char* topic, void* clientWindow) {
    return LVXDdeServer::rcvInitiate(application != nullptr ? application : application_name,
                                     topic != nullptr ? topic : topic_name, clientWindow);
}

DdeService::DdeService(Told& host) : m_host(host), m_told(host.PresentItems()) {
    m_server.uponEvent(this);
    m_server.ackTime(longest_wait);
}

DdeService::~DdeService() {
    while (!m_server.children().empty()) {
        m_server.disconnect();
    }
}

void DdeService::Update() {
    const Items now = m_host.PresentItems();
    // Others are told while this goes on, and may ask: they get what is true already.
    const Items before = std::exchange(m_told, now);
    for (const auto& [name, value] : now) {
        const auto link = m_linked.find(name);
        if (link != m_linked.end() && before.at(name) != value) {
            m_server.updateItem(link->second.c_str());
        }
    }
}

bool DdeService::ddeEvent(LVXDde* dde) {
    auto& server = static_cast<LVXDdeServer&>(*dde);
    switch (dde->reason()) {
        case DdeInitiate:
            return IsOurs(server);
        case DdeAdvise:
            return Has(*dde) && Link(*dde);
        case DdeRequest:
            return Has(*dde) && Supply(server);
        case DdePoke:
            return Has(*dde) && Poke(*dde);
        case DdeExecute:
            return !m_host.IsBusy() && RunCommands(server.command(), m_host);
        default:
            return true;
    }
}

bool DdeService::IsOurs(const LVXDdeServer& server) {
    return IsNamed(server.application(), application_name) && IsNamed(server.topic(), topic_name);
}

bool DdeService::Has(const LVXDde& dde) const {
    return dde.item() != nullptr && dde.format() == CF_TEXT && m_told.contains(dde.item());
}

// As long as a partner has the atom, all have it in the same case.
bool DdeService::Link(const LVXDde& dde) {
    m_linked[dde.item()] = dde.item();
    return true;
}

bool DdeService::Supply(LVXDdeServer& server) const {
    const Items now = m_host.PresentItems();
    return server.sendItem(server.item(), now.at(server.item()).c_str(), CF_TEXT);
}

// An item is set by the command that sets it.
bool DdeService::Poke(const LVXDde& dde) {
    static const Items command_of{{"Selected", "select"}, {"Colour", "line"}, {"Fill", "fill"}};
    const std::string value = static_cast<const char*>(dde.dataItem());
    const auto command = command_of.find(dde.item());
    return command != command_of.end() && !m_host.IsBusy() &&
           RunCommands(command->second + "(\"" + value + "\")", m_host);
}

}  // namespace sketch
