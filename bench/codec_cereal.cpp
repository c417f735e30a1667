#include <cereal/archives/binary.hpp>
#include <cereal/types/memory.hpp>
#include <cereal/types/polymorphic.hpp>
#include <cereal/types/vector.hpp>

#include "bench/codec.h"
#include "bench/drawing.h"

namespace lvx_bench {

// Objects are found by their run-time class through a base, as those of a store are. They are shared by
// counting pointers: others are not tracked here.
class CerealShape {
public:
    virtual ~CerealShape() = default;
    virtual int Layer() const = 0;
};

class CerealDot : public CerealShape {
public:
    CerealDot() = default;
    explicit CerealDot(const Values& initial) : values(initial) {}

    template <class Archive>
    void serialize(Archive& archive) {
        archive(values.x, values.y, values.colour, values.layer);
    }

    int Layer() const override { return values.layer; }

    Values values;
};

}  // namespace lvx_bench

CEREAL_REGISTER_TYPE(lvx_bench::CerealDot)
CEREAL_REGISTER_POLYMORPHIC_RELATION(lvx_bench::CerealShape, lvx_bench::CerealDot)

namespace lvx_bench {
namespace {

using Pointer = std::shared_ptr<CerealShape>;

class CerealCodec : public Codec {
public:
    CerealCodec()
        : m_saved(make_drawing<Pointer>(
              [](const Values& values) { return std::make_shared<CerealDot>(values); })) {}

    void Write(std::ostream& out) override {
        cereal::BinaryOutputArchive archive(out);
        archive(m_saved.by_depth, m_saved.by_layer);
    }
    void Read(std::istream& in) override {
        cereal::BinaryInputArchive archive(in);
        archive(m_loaded.by_depth, m_loaded.by_layer);
    }
    std::uint64_t Fingerprint() const override {
        return fingerprint(m_loaded,
                           [](const Pointer& shape) { return dynamic_cast<const CerealDot*>(shape.get()); });
    }
    void Unload() override { m_loaded = {}; }

private:
    Drawing<Pointer> m_saved;
    Drawing<Pointer> m_loaded;
};

}  // namespace

std::unique_ptr<Codec> make_cereal_codec() {
    return std::make_unique<CerealCodec>();
}

}  // namespace lvx_bench
