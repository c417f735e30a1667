#include "owl/command_enabler.h"

namespace owl {

TCommandEnabler::TCommandEnabler(UINT id, HWND receiver) : m_id(id), m_receiver(receiver) {}

TCommandEnabler::~TCommandEnabler() = default;

void TCommandEnabler::Enable(bool enable) {
    static_cast<void>(enable);
    m_handled = true;
}

}  // namespace owl
