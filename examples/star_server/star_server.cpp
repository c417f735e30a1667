// A DDE server: a catalogue of stars that other programs ask, change and watch. Windows only.
//
// usage: star_server [STAR...]
//
// Application "Stars", topic "catalogue". Items: "count" and "names", the stars with commas between them,
// which can be poked too. Commands: add(STAR), remove(STAR), quit(), plain or in square brackets. Prints what
// it is told, and ends with quit(). docs/dde.md tells how it is made.
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "lvx/exchange/dde_server.h"
#include "lvx/text/function_parser.h"

namespace {

constexpr const char* application_name = "Stars";
constexpr const char* topic_name = "catalogue";

// The case of letters does not count in the names of DDE. Null asks for any name.
bool fits(const char* asked, const char* name) {
    return asked == nullptr || _stricmp(asked, name) == 0;
}

/// Names its topic to those who ask for any.
class StarServer : public LVXDdeServer {
public:
    int rcvInitiate(const char* application, const char* topic, void* client) override {
        if (!fits(application, application_name) || !fits(topic, topic_name)) {
            return 0;
        }
        return LVXDdeServer::rcvInitiate(application_name, topic_name, client);
    }
};

class Catalogue : public LVXDdeClient {
public:
    Catalogue(LVXDdeServer& master, std::vector<std::string> stars)
        : m_master(master), m_stars(std::move(stars)) {}

    bool ddeEvent(LVXDde* dde) override {
        auto& server = dynamic_cast<LVXDdeServer&>(*dde);
        switch (dde->reason()) {
            case DdeAdvise:
                return IsItem(dde->item()) && dde->format() == CF_TEXT;
            case DdeRequest:
                return IsItem(dde->item()) &&
                       server.sendItem(dde->item(), ValueOf(dde->item()).c_str(), dde->format());
            case DdePoke:
                return dde->format() == CF_TEXT &&
                       Replace(dde->item(), static_cast<const char*>(dde->dataItem()));
            case DdeExecute:
                std::cout << "command: " << server.command() << std::endl;
                return Do(server.command());
            default:
                return true;
        }
    }

private:
    static bool IsItem(const char* item) { return fits(item, "count") || fits(item, "names"); }

    std::string ValueOf(const char* item) const {
        if (fits(item, "count")) {
            return std::to_string(m_stars.size());
        }
        std::string names;
        for (const std::string& star : m_stars) {
            names += names.empty() ? star : ',' + star;
        }
        return names;
    }

    bool Replace(const char* item, const std::string& names) {
        if (!fits(item, "names")) {
            return false;
        }
        std::cout << "poked: " << names << std::endl;
        m_stars.clear();
        std::istringstream stream(names);
        for (std::string star; std::getline(stream, star, ',');) {
            m_stars.push_back(star);
        }
        TellChange();
        return true;
    }

    bool Do(std::string command) {
        if (command.starts_with('[') && command.ends_with(']')) {
            command = command.substr(1, command.size() - 2);
        }
        try {
            const FunctionParser call(command);
            return Do(call.FunctionName(), call.Argument(0));
        } catch (const FunctionParser::Error&) {
            return false;
        }
    }

    bool Do(const std::string& verb, const std::string& star) {
        if (verb == "quit") {
            ::PostQuitMessage(0);
            return true;
        }
        if (verb == "add" && !star.empty()) {
            m_stars.push_back(star);
        } else if (verb != "remove" || std::erase(m_stars, star) == 0) {
            return false;
        }
        TellChange();
        return true;
    }

    // Who is linked to an item by this name hears of it.
    void TellChange() {
        m_master.updateItem("count");
        m_master.updateItem("names");
    }

    LVXDdeServer& m_master;
    std::vector<std::string> m_stars;
};

void serve(std::vector<std::string> stars) {
    StarServer server;
    Catalogue catalogue(server, std::move(stars));
    server.uponEvent(&catalogue);
    std::cout << "serving " << application_name << '|' << topic_name << std::endl;
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
        ::DispatchMessageA(&message);
    }
    // A walk passes every second one over.
    while (!server.children().empty()) {
        server.disconnect();
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        serve(std::vector<std::string>(argv + 1, argv + argc));
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "star_server: " << failure.what() << '\n';
        return 1;
    }
}
