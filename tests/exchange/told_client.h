// A client of the library's side that keeps what it is told, and answers as the test says. Windows only.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "lvx/exchange/dde_server.h"

namespace dde_test {

/// One event, as the client could read it.
struct Told {
    LVXDde* dde = nullptr;
    DdeEvent reason{};
    std::string item;
    bool hasItem = false;
    unsigned short format = 0;
    void* data = nullptr;
    std::string text;
};

class ToldClient : public LVXDdeClient {
public:
    bool ddeEvent(LVXDde* dde) override {
        Told told;
        told.dde = dde;
        told.reason = dde->reason();
        told.hasItem = dde->item() != nullptr;
        told.item = told.hasItem ? dde->item() : "";
        told.format = dde->format();
        told.data = dde->dataItem();
        told.text = TextOf(*dde);
        events.push_back(told);
        return onEvent ? onEvent(*dde) : accepts;
    }

    std::vector<DdeEvent> Reasons() const {
        std::vector<DdeEvent> reasons;
        for (const Told& told : events)
            reasons.push_back(told.reason);
        return reasons;
    }

    bool accepts = true;
    /// In place of `accepts`.
    std::function<bool(LVXDde&)> onEvent;
    std::vector<Told> events;

private:
    static std::string OrAny(const char* name) { return name != nullptr ? name : "*"; }

    static std::string TextOf(LVXDde& dde) {
        auto* const server = dynamic_cast<LVXDdeServer*>(&dde);
        if (dde.reason() == DdePoke && dde.dataItem() != nullptr)
            return static_cast<const char*>(dde.dataItem());
        if (server != nullptr && dde.reason() == DdeInitiate)
            return OrAny(server->application()) + '|' + OrAny(server->topic());
        if (server != nullptr && dde.reason() == DdeExecute)
            return OrAny(server->command());
        return "";
    }
};

}  // namespace dde_test
