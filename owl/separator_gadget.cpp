#include "owl/separator_gadget.h"

#include "owl/gadget_window.h"

namespace owl {

TSeparatorGadget::TSeparatorGadget(int size) : m_size(size) {
    SetEnabled(false);
}

TSeparatorGadget::~TSeparatorGadget() = default;

// Along the bar alone: a wide gap does not make the bar thick.
void TSeparatorGadget::GetDesiredSize(TSize& size) {
    TGadget::GetDesiredSize(size);
    const TGadgetWindow* const bar = GetGadgetWindow();
    const bool downward = bar != nullptr && bar->GetDirection() == TGadgetWindow::Vertical;
    size += downward ? TSize(0, m_size) : TSize(m_size, 0);
}

}  // namespace owl
