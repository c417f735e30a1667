// What a server tells its partner: data and changes, and the links that say who wants to hear of them.
#include <dde.h>

#include <climits>
#include <cstring>
#include <memory>

#include "lvx/exchange/dde_blocks.h"
#include "lvx/exchange/dde_children.h"
#include "lvx/exchange/dde_handling.h"
#include "lvx/exchange/dde_server.h"
#include "lvx/images/global_locker.h"
#include "lvx/runtime/atom.h"

namespace {

// Sets the flags of a data block and keeps its other bits. False if it is no block.
bool set_flags(HGLOBAL block, unsigned short flags) {
    constexpr unsigned short ours =
        lvx::exchange::response_flag | lvx::exchange::release_flag | lvx::exchange::acknowledge_flag;
    const auto header = lvx::exchange::header_of(block);
    const LVXUtilities::GlobalLocker<char> bytes(block);
    if (!header || bytes.get() == nullptr) {
        return false;
    }
    const auto word = static_cast<unsigned short>((header->flags & ~ours) | flags);
    std::memcpy(bytes.get() + offsetof(lvx::exchange::BlockHeader, flags), &word, sizeof word);
    return true;
}

unsigned short number_of(const LVXAtom& atom) {
    return static_cast<unsigned short>(static_cast<unsigned int>(atom));
}

// A null name is none.
unsigned short new_atom(const char* name) {
    return name != nullptr ? number_of(LVXAtom(std::string(name))) : static_cast<unsigned short>(0);
}

}  // namespace

LVXAdvise::LVXAdvise(const char* item) : std::string(item != nullptr ? item : "") {}

LVXAdvise::LVXAdvise(const char* item, bool defer, unsigned format) : LVXAdvise(item) {
    m_deferred = defer ? 1 : 0;
    m_clipFormat = static_cast<int>(format);
}

void LVXDdeServer::ackData(bool required) {
    m_ackRequired = required ? 1 : 0;
}

bool LVXDdeServer::sendItem(const char* item, const void* data, unsigned format) {
    const Handling handling(*this);
    if (m_master == nullptr) {
        ForEachChild(handling, [&](LVXDdeServer& child) { child.sendItem(item, data, format); });
        return false;
    }
    const auto* const text = static_cast<const char*>(data);
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    if (format != CF_TEXT || m_partner == nullptr || length >= LONG_MAX) {
        return false;
    }
    const HGLOBAL block = setData(CF_TEXT, static_cast<long>(length) + 1, text);
    return block != nullptr && sndData(item, block, m_responding ? 1 : 0, m_requestParam);
}

// Beside the block the atom and the packing that the message takes along, as long as it is not posted.
bool LVXDdeServer::sndData(const char* item, void* block, unsigned response, LPARAM lParam) {
    const Handling handling(*this);
    const unsigned short atom = m_partner != nullptr ? new_atom(item) : static_cast<unsigned short>(0);
    if (atom == 0) {
        ::GlobalFree(block);
        return false;
    }
    if (block != nullptr) {
        return PostData(atom, block, response);
    }
    TellOfChange(atom, lParam);
    return true;
}

// The message that `lParam` comes from is a request: it has no packing that could be used again.
void LVXDdeServer::TellOfChange(unsigned short item, LPARAM lParam) {
    const LPARAM packed = lParam != 0 ? ::ReuseDDElParam(lParam, WM_DDE_REQUEST, WM_DDE_DATA, 0, item)
                                      : ::PackDDElParam(WM_DDE_DATA, 0, item);
    if (!PostOrFree(packed)) {
        LVXAtom atom(item);
        !atom;
    }
}

bool LVXDdeServer::PostOrFree(LPARAM packed) {
    const auto self = reinterpret_cast<WPARAM>(GetHandle());
    if (packed != 0 && ::PostMessageA(m_partner, WM_DDE_DATA, self, packed)) {
        return true;
    }
    lvx::exchange::free_packed(WM_DDE_DATA, packed);
    return false;
}

bool LVXDdeServer::PostData(unsigned short item, HGLOBAL block, unsigned response) {
    using namespace lvx::exchange;
    const bool asks = m_ackRequired != 0;
    const int flags = (response != 0 ? response_flag : 0) | (asks ? acknowledge_flag : release_flag);
    const bool posted = set_flags(block, static_cast<unsigned short>(flags)) &&
                        PostOrFree(::PackDDElParam(WM_DDE_DATA, reinterpret_cast<UINT_PTR>(block), item));
    if (!posted) {
        LVXAtom atom(item);
        !atom;
        ::GlobalFree(block);
        return false;
    }
    const bool good = !asks || yieldAck(m_ackWait);
    // The partner frees what it need not acknowledge; if it got a copy, that.
    if (asks || posting_copies_blocks()) {
        ::GlobalFree(block);
    }
    return good;
}

const LVXAdvise* LVXDdeServer::LinkTo(const char* item) const {
    if (m_advises == nullptr || item == nullptr) {
        return nullptr;
    }
    const auto place = m_advises->find(item);
    return place != m_advises->end() ? place->second : nullptr;
}

void LVXDdeServer::adviseOn(const char* item, bool defer) {
    if (item == nullptr) {
        return;
    }
    if (m_advises == nullptr) {
        m_advises = new std::map<std::string, LVXAdvise*>;
    }
    auto link = std::make_unique<LVXAdvise>(item, defer, m_itemFormat);
    adviseOff(item);
    m_advises->emplace(item, link.get());
    link.release();
}

void LVXDdeServer::adviseOff(const char* item) {
    const LVXAdvise* const link = LinkTo(item);
    if (link == nullptr) {
        return;
    }
    m_advises->erase(item);
    delete link;
}

void LVXDdeServer::updateItem(const char* item) {
    const Handling handling(*this);
    if (m_master == nullptr) {
        ForEachChild(handling, [item](LVXDdeServer& child) { child.updateItem(item); });
        return;
    }
    const LVXAdvise* const link = LinkTo(item);
    if (link == nullptr) {
        return;
    }
    m_itemFormat = static_cast<unsigned short>(link->format());
    if (link->defer()) {
        sndData(item, nullptr, 0, 0);
        return;
    }
    m_responding = false;
    m_requestParam = 0;
    callback(DdeRequest, item, nullptr);
}
