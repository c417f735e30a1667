// owl/separator_gadget.h
//
// A gap between the groups of a bar.
#pragma once

#include "owl/gadget.h"

namespace owl {

class OWL_EXPORT TSeparatorGadget : public TGadget {
public:
    /// So many pixels wide, or high in a bar that is tiled downward. The gadget stands for no command and is
    /// not enabled.
    explicit TSeparatorGadget(int size = 6);
    ~TSeparatorGadget() override;

    void GetDesiredSize(TSize& size) override;

private:
    int m_size;
};

}  // namespace owl
