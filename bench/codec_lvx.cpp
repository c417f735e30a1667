#include "bench/codec.h"
#include "bench/lvx_dot.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_stream.h"

namespace lvx_bench {
namespace {

class LvxCodec : public Codec {
public:
    LvxCodec() : m_saved(make_drawing<Dot*>([](const Values& values) { return new Dot(values); })) {}
    ~LvxCodec() override { delete_objects(m_saved); }

    void Write(std::ostream& out) override {
        ObjectStoreStream store;
        store.OpenStream(&out);
        write_drawing(store, m_saved);
        store.CloseStream();
    }
    void Read(std::istream& in) override {
        ObjectStoreStream store;
        store.OpenStream(&in);
        m_loaded = read_drawing(store);
        store.CloseStream();
    }
    void WriteFile(const std::string& path) override {
        ObjectStoreFile store;
        store.OpenStream(path.c_str(), ObjectStore::ForWrite);
        write_drawing(store, m_saved);
        store.CloseStream();
    }
    void ReadFile(const std::string& path) override {
        ObjectStoreFile store;
        store.OpenStream(path.c_str(), ObjectStore::ForRead);
        m_loaded = read_drawing(store);
        store.CloseStream();
    }
    std::uint64_t Fingerprint() const override { return fingerprint(m_loaded); }
    void Unload() override { delete_objects(m_loaded); }

private:
    Drawing<Dot*> m_saved;
    Drawing<Dot*> m_loaded;
};

}  // namespace

std::unique_ptr<Codec> make_lvx_codec() {
    return std::make_unique<LvxCodec>();
}

}  // namespace lvx_bench
