// All figures of a document, as the one object that its stream holds.
#pragma once

#include "sketch/model/figure.h"

namespace sketch {

class Drawing : public Storable {
public:
    Drawing() = default;
    explicit Drawing(Figures figures) : m_figures(std::move(figures)) {}

    void PutTo(ObjectStore& store) const override;
    /// Requires: a Reading. Throws DocumentError for what is no drawing of this program.
    void GetFrom(ObjectStore& store) override;

    const Figures& Contents() const { return m_figures; }

private:
    Figures m_figures;
};

}  // namespace sketch
