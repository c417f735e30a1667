// The data of a window's controls, side by side in one buffer.
#include <map>

#include "owl/child_walk.h"
#include "owl/error.h"
#include "owl/window.h"

namespace owl {

namespace {

/// Of a control in the buffer.
struct Place {
    unsigned offset;
    unsigned size;
};

}  // namespace

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
    std::map<const TWindow*, Place> places;
    unsigned end = 0;
    for (TWindow* child : m_children) {
        if (!child->IsFlagSet(wfTransfer) || !child->IsWindow())
            continue;
        const unsigned size = child->Transfer(nullptr, tdSizeData);
        if (m_transferSize != 0 && size > m_transferSize - end)
            throw TXOwl("the transfer buffer is too small for the control " + std::to_string(child->Attr.Id));
        places[child] = {end, size};
        end += size;
    }
    // What a control is given, it tells its parent: children may come and go by that, and a new one may lie
    // where an old one lay.
    auto* const bytes = static_cast<char*>(m_transferBuffer);
    EachChild(*this, [&](TWindow& child) {
        const auto place = places.find(&child);
        if (place != places.end() && child.Transfer(nullptr, tdSizeData) == place->second.size)
            child.Transfer(bytes + place->second.offset, direction);
    });
}

}  // namespace owl
