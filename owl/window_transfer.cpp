// The data of a window's controls, side by side in one buffer.
#include "owl/error.h"
#include "owl/window.h"

namespace owl {

void TWindow::SetTransferBuffer(void* buffer, unsigned size) {
    m_transferBuffer = buffer;
    m_transferSize = size;
}

void TWindow::EnableTransfer(bool enable) {
    if (enable)
        SetFlag(wfTransfer);
    else
        ClearFlag(wfTransfer);
}

unsigned TWindow::Transfer(void* buffer, TTransferDirection direction) {
    static_cast<void>(buffer);
    static_cast<void>(direction);
    return 0;
}

void TWindow::TransferData(TTransferDirection direction) {
    if (m_transferBuffer == nullptr)
        return;
    auto* const bytes = static_cast<char*>(m_transferBuffer);
    unsigned offset = 0;
    for (TWindow* child : m_children) {
        if (!child->IsFlagSet(wfTransfer) || !child->IsWindow())
            continue;
        const unsigned size = child->Transfer(nullptr, tdSizeData);
        if (m_transferSize != 0 && size > m_transferSize - offset)
            throw TXOwl("the transfer buffer is too small for the control " + std::to_string(child->Attr.Id));
        child->Transfer(bytes + offset, direction);
        offset += size;
    }
}

}  // namespace owl
