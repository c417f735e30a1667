// The program as a DDE server: other programs ask for its items, are told when they change, and send
// commands. The application is "Sketch", the topic "Drawing"; docs/sketch-commands.md has the rest.
#pragma once

#include <map>
#include <string>

#include "lvx/exchange/dde_server.h"
#include "sketch/frame/commands.h"

namespace sketch {

/// Sorts the names of applications, topics and items. They are atoms, which know no case and come in that of
/// whoever in the whole system was the first to say them.
struct WithoutCase {
    bool operator()(const std::string& left, const std::string& right) const;
};

/// What there is to ask for, by name; always the same names.
using Items = std::map<std::string, std::string, WithoutCase>;

/// Who has the items.
class Told : public Commanded {
public:
    virtual Items PresentItems() const = 0;
    /// Whether commands cannot be run just now: the user is in a dialog, or pulls something.
    virtual bool IsBusy() const = 0;

protected:
    ~Told() = default;
};

class DdeService : private LVXDdeClient {
public:
    /// Hears what is asked from now on. `host` lives longer.
    explicit DdeService(Told& host);
    /// Ends all conversations.
    ~DdeService();
    DdeService(const DdeService&) = delete;
    DdeService& operator=(const DdeService&) = delete;

    /// Tells whoever is linked to an item that has changed since the last call.
    void Update();

private:
    // Who asks for any application or any topic is given these.
    class Server : public LVXDdeServer {
    public:
        int rcvInitiate(const char* application, const char* topic, void* clientWindow) override;
    };

    bool ddeEvent(LVXDde* dde) override;
    static bool IsOurs(const LVXDdeServer& server);
    bool Has(const LVXDde& dde) const;
    bool Link(const LVXDde& dde);
    bool Supply(LVXDdeServer& server) const;
    bool Poke(const LVXDde& dde);

    Told& m_host;
    Items m_told;
    // The items that somebody was linked to, as the links are named.
    Items m_linked;
    Server m_server;
};

}  // namespace sketch
