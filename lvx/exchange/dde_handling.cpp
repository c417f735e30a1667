#include "lvx/exchange/dde_handling.h"

namespace {

// The innermost function on this thread; each knows the next one outside.
thread_local void* innermost = nullptr;

}  // namespace

LVXDde::Handling::Handling(LVXDde& dde)
    : m_dde(&dde),
      m_outer(static_cast<Handling*>(innermost)),
      m_event{dde.m_eventReason, dde.m_eventItem, dde.m_itemFormat, dde.m_eventData},
      m_responding(dde.m_responding),
      m_requestParam(dde.m_requestParam) {
    innermost = this;
}

LVXDde::Handling::~Handling() {
    innermost = m_outer;
    if (Gone()) {
        return;
    }
    Restore();
    if (m_deletes) {
        delete m_dde;
    }
}

bool LVXDde::Handling::IsWithinQuestion() const {
    for (const Handling* outer = m_outer; outer != nullptr; outer = outer->m_outer) {
        if (outer->m_dde == m_dde && outer->m_asks) {
            return true;
        }
    }
    return false;
}

void LVXDde::Handling::Restore() const {
    m_dde->m_responding = m_responding;
    m_dde->m_requestParam = m_requestParam;
    if (!IsWithinQuestion()) {
        return;
    }
    m_dde->m_eventReason = m_event.reason;
    m_dde->m_eventItem = m_event.item;
    m_dde->m_itemFormat = m_event.format;
    m_dde->m_eventData = m_event.data;
}

bool LVXDde::Handling::IsUnderWay(const LVXDde& dde) {
    for (auto* handling = static_cast<Handling*>(innermost); handling != nullptr;
         handling = handling->m_outer) {
        if (handling->m_dde == &dde) {
            return true;
        }
    }
    return false;
}

void LVXDde::Handling::EndAfterwards(const LVXDde& dde) {
    Handling* outermost = nullptr;
    for (auto* handling = static_cast<Handling*>(innermost); handling != nullptr;
         handling = handling->m_outer) {
        if (handling->m_dde == &dde) {
            outermost = handling;
        }
    }
    outermost->m_deletes = true;
}

void LVXDde::Handling::Forget(const LVXDde& dde) {
    for (auto* handling = static_cast<Handling*>(innermost); handling != nullptr;
         handling = handling->m_outer) {
        if (handling->m_dde == &dde) {
            handling->m_dde = nullptr;
        }
    }
}
