// The program as a DDE server: other programs ask for its items, are told when they change, and send
// commands. The application is "Sketch", the topic "Drawing"; docs/sketch-commands.md has the rest.
#pragma once

#include <map>

#include "lvx/exchange/dde_server.h"
#include "sketch/frame/commands.h"

namespace sketch {

/// What there is to ask for, by name; always the same names.
using Items = std::map<std::string, std::string>;

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
    bool Supply(LVXDdeServer& server) const;
    bool Poke(const LVXDde& dde);

    Told& m_host;
    Items m_told;
    Server m_server;
};

}  // namespace sketch
