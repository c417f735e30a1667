#include "lvx/runtime/wait_cursor.h"

LVXWaitCursor::LVXWaitCursor() : m_previous(::SetCursor(::LoadCursorA(nullptr, IDC_WAIT))), m_active(true) {}

LVXWaitCursor::~LVXWaitCursor() {
    Reset();
}

void LVXWaitCursor::Reset() {
    if (m_active) {
        ::SetCursor(m_previous);
        m_active = false;
    }
}
