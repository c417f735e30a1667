#include "owl/print_abort.h"

#include <utility>

#include "owl/carried_exception.h"
#include "owl/print_dc.h"

namespace owl {

namespace {

thread_local AbortScope* innermost = nullptr;

BOOL CALLBACK AbortProcedure(HDC, int) {
    return innermost == nullptr || innermost->GoesOn();
}

}  // namespace

AbortScope::AbortScope(TPrintDC& dc, std::function<bool()> goOn)
    : m_goOn(std::move(goOn)), m_outer(std::exchange(innermost, this)) {
    dc.SetAbortProc(&AbortProcedure);
}

AbortScope::~AbortScope() {
    innermost = m_outer;
}

bool AbortScope::GoesOn() noexcept {
    if (m_threw)
        return false;
    try {
        return m_goOn();
    } catch (...) {
        m_threw = true;
        CarryException();
        return false;
    }
}

}  // namespace owl
