#include "bench/lvx_dot.h"

#include "lvx/store/object_factory.h"

namespace lvx_bench {
namespace {

const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("lvx_bench::Dot", ObjectFactory::CreateStorable<Dot>), true);

Dot* read_dot(ObjectStore& store) {
    Storable* object = nullptr;
    store >> object;
    return static_cast<Dot*>(object);
}

}  // namespace

void Dot::PutTo(ObjectStore& store) const {
    store << values.x << values.y << values.colour << values.layer;
}

void Dot::GetFrom(ObjectStore& store) {
    store >> values.x >> values.y >> values.colour >> values.layer;
}

void write_drawing(ObjectStore& store, const Drawing<Dot*>& drawing) {
    store << static_cast<long>(drawing.by_depth.size());
    for (const Dot* const dot : drawing.by_depth) {
        store << *dot;
    }
    for (const Dot* const dot : drawing.by_layer) {
        store << *dot;
    }
}

Drawing<Dot*> read_drawing(ObjectStore& store) {
    long count = 0;
    store >> count;
    const auto size = static_cast<std::size_t>(count);
    Drawing<Dot*> drawing{std::vector<Dot*>(size), std::vector<Dot*>(size)};
    for (Dot*& dot : drawing.by_depth) {
        dot = read_dot(store);
    }
    for (Dot*& dot : drawing.by_layer) {
        dot = read_dot(store);
    }
    return drawing;
}

std::uint64_t fingerprint(const Drawing<Dot*>& drawing) {
    return fingerprint(drawing, [](const Dot* dot) { return dot; });
}

}  // namespace lvx_bench
