// bench/lvx_dot.h
//
// The benchmarks' object as a class of the library's store.
#pragma once

#include "bench/drawing.h"
#include "lvx/store/object_store.h"

namespace lvx_bench {

class Dot : public Storable {
public:
    Dot() = default;
    explicit Dot(const Values& initial) : values(initial) {}

    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;

    Values values;
};

void write_drawing(ObjectStore& store, const Drawing<Dot*>& drawing);
/// Requires: a drawing of dots. That is not checked, as the peers do not check it either.
Drawing<Dot*> read_drawing(ObjectStore& store);
std::uint64_t fingerprint(const Drawing<Dot*>& drawing);

}  // namespace lvx_bench
