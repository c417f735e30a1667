#include "owl/event_handler.h"

namespace owl {

TEventInfo::TEventInfo(UINT msg, UINT id, UINT notifyCode) : Msg(msg), Id(id), NotifyCode(notifyCode) {}

LRESULT TEventInfo::Dispatch(const TEvent& event) const {
    return m_call(m_object, m_entry, event);
}

TEventHandler::~TEventHandler() = default;

bool TEventHandler::Find(TEventInfo& info) {
    static_cast<void>(info);
    return false;
}

}  // namespace owl
