// What a partner asks of a server, and what it is answered.
#include <dde.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "lvx/exchange/dde_blocks.h"
#include "lvx/exchange/dde_handling.h"
#include "lvx/exchange/dde_server.h"
#include "lvx/runtime/atom.h"

namespace {

using lvx::exchange::accepted;
using lvx::exchange::BlockCopy;
using lvx::exchange::BlockHeader;

constexpr unsigned short refused = 0;

unsigned short status_of(bool acceptedByClient) {
    return acceptedByClient ? accepted : refused;
}

// Null also for an atom that the system does not know.
const char* name_of(LVXAtom& atom) {
    const char* const name = atom;
    return name != nullptr && *name != '\0' ? name : nullptr;
}

// A pointer of a conversation that is set while an event is handled, to what ends with the event.
template <class Handling, class T>
class Restored {
public:
    Restored(const Handling& handling, T*& pointer)
        : m_handling(handling), m_pointer(pointer), m_before(pointer) {}
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;
    ~Restored() {
        if (!m_handling.Gone()) {
            m_pointer = m_before;
        }
    }

private:
    const Handling& m_handling;
    T*& m_pointer;
    T* const m_before;
};

// A block that a message brought. Its sender's, unless it is made ours.
class ReceivedBlock {
public:
    explicit ReceivedBlock(HGLOBAL block) : m_block(block) {}
    ReceivedBlock(const ReceivedBlock&) = delete;
    ReceivedBlock& operator=(const ReceivedBlock&) = delete;
    ~ReceivedBlock() {
        if (m_isOurs) {
            ::GlobalFree(m_block);
        }
    }

    void MakeOurs() { m_isOurs = true; }

private:
    const HGLOBAL m_block;
    bool m_isOurs = false;
};

// As partners are told it: less the place of the terminator.
long size_of(const BlockCopy& copy) {
    const std::size_t size = std::max<std::size_t>(copy.size, 1) - 1;
    return static_cast<long>(std::min<std::size_t>(size, std::numeric_limits<long>::max()));
}

}  // namespace

// The answer to a message, which takes the message's atom along; or there is none, and the atom ends here.
// Negative, unless something else is said before the end of the object.
class LVXDdeServer::Answer {
public:
    /// `item` is what the answer carries, `atom` the same if it is one, else 0.
    Answer(LVXDdeServer& server, const Handling& handling, UINT message, LPARAM lParam, unsigned short item,
           unsigned short atom)
        : m_server(server),
          m_handling(handling),
          m_message(message),
          m_lParam(lParam),
          m_item(item),
          m_atom(atom) {}
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;
    ~Answer() {
        if (!m_isDue || m_handling.Gone()) {
            lvx::exchange::free_packed(m_message, m_lParam);
        } else if (m_server.sndAck(m_status, m_item, 0, m_message, m_lParam)) {
            return;
        }
        LVXAtom atom(m_atom);
        !atom;
    }

    void Be(unsigned short status) { m_status = status; }
    void BeNone() { m_isDue = false; }

private:
    LVXDdeServer& m_server;
    const Handling& m_handling;
    const UINT m_message;
    const LPARAM m_lParam;
    const unsigned short m_item;
    const unsigned short m_atom;
    unsigned short m_status = refused;
    bool m_isDue = true;
};

bool LVXDdeServer::HasForeignPartner() const {
    return m_partnerProcess != 0 && m_partnerProcess != ::GetCurrentProcessId();
}

LRESULT LVXDdeServer::EvWmDdeRequest(WPARAM, LPARAM lParam) {
    const Handling handling(*this);
    const unsigned short atom = HIWORD(lParam);
    Answer answer(*this, handling, WM_DDE_REQUEST, lParam, atom, atom);
    LVXAtom item(atom);
    const Restored eventItem(handling, m_eventItem);
    const char* const name = name_of(item);
    if (name != nullptr && rcvRequest(name, LOWORD(lParam), lParam) == accepted) {
        answer.BeNone();
    }
    return 0;
}

unsigned short LVXDdeServer::rcvRequest(const char* item, unsigned format, LPARAM lParam) {
    const Handling handling(*this);
    m_itemFormat = static_cast<unsigned short>(format);
    m_responding = true;
    m_requestParam = lParam;
    return status_of(callback(DdeRequest, item, nullptr));
}

LRESULT LVXDdeServer::EvWmDdeAdvise(WPARAM, LPARAM lParam) {
    const Handling handling(*this);
    const auto [atom, block] = lvx::exchange::item_and_block(WM_DDE_ADVISE, lParam);
    const std::optional<BlockHeader> options = lvx::exchange::header_of(block);
    const bool isForeign = HasForeignPartner();
    ReceivedBlock received(block);
    Answer answer(*this, handling, WM_DDE_ADVISE, lParam, atom, atom);
    LVXAtom item(atom);
    const Restored eventItem(handling, m_eventItem);
    const char* const name = name_of(item);

    if (options && (options->flags & lvx::exchange::acknowledge_flag) == 0) {
        answer.BeNone();
    }
    unsigned short status = refused;
    if (name != nullptr && options) {
        status = rcvAdvise(name, options->format, options->flags & lvx::exchange::deferred_flag);
    }
    answer.Be(status);
    // Within this process the block stays its sender's. A sender elsewhere has no use for it: the link's
    // options are for the server to free, and a copy has nobody else.
    if (isForeign && (status == accepted || lvx::exchange::posting_copies_blocks())) {
        received.MakeOurs();
    }
    return 0;
}

unsigned short LVXDdeServer::rcvAdvise(const char* item, unsigned format, unsigned defer) {
    const Handling handling(*this);
    m_itemFormat = static_cast<unsigned short>(format);
    const bool wanted = callback(DdeAdvise, item, nullptr);
    if (wanted && !handling.Gone()) {
        adviseOn(item, defer != 0);
    }
    return status_of(wanted);
}

// Without an item all links are meant.
LRESULT LVXDdeServer::EvWmDdeUnadvise(WPARAM, LPARAM lParam) {
    const Handling handling(*this);
    const unsigned short atom = HIWORD(lParam);
    Answer answer(*this, handling, WM_DDE_UNADVISE, lParam, atom, atom);
    LVXAtom item(atom);
    const Restored eventItem(handling, m_eventItem);
    const char* const name = name_of(item);
    if (atom == 0) {
        answer.Be(UnadviseAll(handling));
    } else if (name != nullptr) {
        answer.Be(rcvUnadvise(name));
    }
    return 0;
}

unsigned short LVXDdeServer::rcvUnadvise(const char* item) {
    const Handling handling(*this);
    const bool wanted = callback(DdeUnadvise, item, nullptr);
    if (wanted && !handling.Gone()) {
        adviseOff(item);
    }
    return status_of(wanted);
}

unsigned short LVXDdeServer::UnadviseAll(const Handling& handling) {
    std::vector<std::string> names;
    if (m_advises != nullptr) {
        for (const auto& [name, link] : *m_advises) {
            names.push_back(name);
        }
    }
    unsigned short status = accepted;
    for (const std::string& name : names) {
        if (handling.Gone() || rcvUnadvise(name.c_str()) != accepted) {
            status = refused;
        }
    }
    return status;
}

LRESULT LVXDdeServer::EvWmDdeExecute(WPARAM, LPARAM lParam) {
    const Handling handling(*this);
    const auto block = reinterpret_cast<HGLOBAL>(lParam);
    ReceivedBlock received(block);
    const std::optional<BlockCopy> command = lvx::exchange::copy_of(block, 0);
    if (command && HasForeignPartner() && lvx::exchange::posting_copies_blocks()) {
        received.MakeOurs();
    }
    // What stands in the place of an item has 16 bits.
    Answer answer(*this, handling, WM_DDE_EXECUTE, lParam, LOWORD(lParam), 0);
    const Restored commandText(handling, m_commandText);
    if (command) {
        answer.Be(rcvExecute(command->bytes.get()));
    }
    return 0;
}

unsigned short LVXDdeServer::rcvExecute(const char* command) {
    m_commandText = command;
    return status_of(callback(DdeExecute, nullptr, nullptr));
}

LRESULT LVXDdeServer::EvWmDdePoke(WPARAM, LPARAM lParam) {
    const Handling handling(*this);
    const auto [atom, block] = lvx::exchange::item_and_block(WM_DDE_POKE, lParam);
    const std::optional<BlockHeader> header = lvx::exchange::header_of(block);
    ReceivedBlock received(block);
    const bool isCopy = HasForeignPartner() && lvx::exchange::posting_copies_blocks();
    if (isCopy || (header && (header->flags & lvx::exchange::release_flag) != 0)) {
        received.MakeOurs();
    }
    Answer answer(*this, handling, WM_DDE_POKE, lParam, atom, atom);
    LVXAtom item(atom);
    const std::optional<BlockCopy> data = lvx::exchange::copy_of(block, sizeof(BlockHeader));
    const Restored eventItem(handling, m_eventItem);
    const Restored eventData(handling, m_eventData);
    const char* const name = name_of(item);
    if (name != nullptr && header && data) {
        answer.Be(rcvPoke(name, header->format, data->bytes.get(), size_of(*data)));
    }
    return 0;
}

unsigned short LVXDdeServer::rcvPoke(const char* item, unsigned format, void* data, long) {
    const Handling handling(*this);
    m_itemFormat = static_cast<unsigned short>(format);
    return status_of(callback(DdePoke, item, data));
}
