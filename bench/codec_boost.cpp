#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/serialization/assume_abstract.hpp>
#include <boost/serialization/export.hpp>
#include <boost/serialization/vector.hpp>

#include "bench/codec.h"
#include "bench/drawing.h"

namespace lvx_bench {

// Objects are found by their run-time class through a base, as those of a store are.
class BoostShape {
public:
    virtual ~BoostShape() = default;
    virtual int Layer() const = 0;

    template <class Archive>
    void serialize(Archive&, unsigned int) {}
};

class BoostDot : public BoostShape {
public:
    BoostDot() = default;
    explicit BoostDot(const Values& initial) : values(initial) {}

    template <class Archive>
    void serialize(Archive& archive, unsigned int) {
        boost::serialization::void_cast_register<BoostDot, BoostShape>();
        archive& values.x& values.y& values.colour& values.layer;
    }

    int Layer() const override { return values.layer; }

    Values values;
};

}  // namespace lvx_bench

BOOST_SERIALIZATION_ASSUME_ABSTRACT(lvx_bench::BoostShape)
BOOST_CLASS_EXPORT_GUID(lvx_bench::BoostDot, "Dot")

namespace lvx_bench {
namespace {

class BoostCodec : public Codec {
public:
    BoostCodec()
        : m_saved(make_drawing<BoostShape*>([](const Values& values) { return new BoostDot(values); })) {}
    ~BoostCodec() override { delete_objects(m_saved); }

    void Write(std::ostream& out) override {
        boost::archive::binary_oarchive archive(out);
        archive << m_saved.by_depth << m_saved.by_layer;
    }
    void Read(std::istream& in) override {
        boost::archive::binary_iarchive archive(in);
        archive >> m_loaded.by_depth >> m_loaded.by_layer;
    }
    std::uint64_t Fingerprint() const override {
        return fingerprint(m_loaded,
                           [](const BoostShape* shape) { return dynamic_cast<const BoostDot*>(shape); });
    }
    void Unload() override { delete_objects(m_loaded); }

private:
    Drawing<BoostShape*> m_saved;
    Drawing<BoostShape*> m_loaded;
};

}  // namespace

std::unique_ptr<Codec> make_boost_codec() {
    return std::make_unique<BoostCodec>();
}

}  // namespace lvx_bench
