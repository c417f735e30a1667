#include "bench/compound_bench.h"

#include <gsf/gsf.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "bench/lvx_dot.h"
#include "bench/raw_graph.h"
#include "bench/scratch.h"
#include "lvx/store/object_store_storage.h"

namespace lvx_bench {
namespace {

constexpr const char* stream_name = "Drawing";

class LvxDocument {
public:
    LvxDocument() : m_saved(make_drawing<Dot*>([](const Values& values) { return new Dot(values); })) {}
    LvxDocument(const LvxDocument&) = delete;
    LvxDocument& operator=(const LvxDocument&) = delete;
    ~LvxDocument() { delete_objects(m_saved); }

    void Write(const std::string& path) {
        LVXUtilities::ObjectStoreStorage store;
        Open(store, path, ObjectStore::ForWrite);
        write_drawing(store, m_saved);
        store.CloseStream();
    }
    void Read(const std::string& path) {
        LVXUtilities::ObjectStoreStorage store;
        Open(store, path, ObjectStore::ForRead);
        m_loaded = read_drawing(store);
        store.CloseStream();
    }
    std::uint64_t Fingerprint() const { return fingerprint(m_loaded); }
    void Unload() { delete_objects(m_loaded); }

private:
    static void Open(LVXUtilities::ObjectStoreStorage& store, const std::string& path,
                     ObjectStore::OpenMode mode) {
        std::string error;
        if (!store.OpenStorage(path, mode, error) || !store.OpenStream(stream_name, error)) {
            throw std::runtime_error(path + ": " + error);
        }
    }

    Drawing<Dot*> m_saved;
    Drawing<Dot*> m_loaded;
};

struct Unreferencer {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Unreferencer>;

template <class Object>
Owned<Object> own(Object* object) {
    if (object == nullptr) {
        throw std::runtime_error("raw: the compound file cannot be opened");
    }
    return Owned<Object>(object);
}

class GsfWriter final : public RawWriter {
public:
    explicit GsfWriter(const std::string& path)
        : m_file(own(gsf_output_stdio_new(path.c_str(), nullptr))),
          m_storage(own(gsf_outfile_msole_new(m_file.get()))),
          m_stream(own(gsf_outfile_new_child(m_storage.get(), stream_name, FALSE))) {}

    void PutBytes(const void* data, std::size_t size) override {
        expect_transfer(gsf_output_write(m_stream.get(), size, static_cast<const guint8*>(data)) != FALSE);
    }
    void Close() {
        expect_transfer(gsf_output_close(m_stream.get()) != FALSE);
        expect_transfer(gsf_output_close(GSF_OUTPUT(m_storage.get())) != FALSE);
    }

private:
    Owned<GsfOutput> m_file;
    Owned<GsfOutfile> m_storage;
    Owned<GsfOutput> m_stream;
};

class GsfReader final : public RawReader {
public:
    explicit GsfReader(const std::string& path)
        : m_file(own(gsf_input_stdio_new(path.c_str(), nullptr))),
          m_storage(own(gsf_infile_msole_new(m_file.get(), nullptr))),
          m_stream(own(gsf_infile_child_by_name(m_storage.get(), stream_name))) {}

    void GetBytes(void* data, std::size_t size) override {
        expect_transfer(gsf_input_read(m_stream.get(), size, static_cast<guint8*>(data)) != nullptr);
    }

private:
    Owned<GsfInput> m_file;
    Owned<GsfInfile> m_storage;
    Owned<GsfInput> m_stream;
};

// The direct coding, each value handed to libgsf by itself.
class RawDocument {
public:
    RawDocument() : m_saved(make_raw_drawing()) {}
    RawDocument(const RawDocument&) = delete;
    RawDocument& operator=(const RawDocument&) = delete;
    ~RawDocument() { delete_objects(m_saved); }

    void Write(const std::string& path) {
        GsfWriter writer(path);
        save_raw_drawing(writer, m_saved);
        writer.Close();
    }
    void Read(const std::string& path) {
        GsfReader reader(path);
        m_loaded = load_raw_drawing(reader);
    }
    std::uint64_t Fingerprint() const { return raw_fingerprint(m_loaded); }
    void Unload() { delete_objects(m_loaded); }

private:
    Drawing<RawShape*> m_saved;
    Drawing<RawShape*> m_loaded;
};

std::string path_of(const char* name) {
    return scratch_file(std::string("document-") + name);
}

template <class Document>
Contender writer(const char* name) {
    const auto document = std::make_shared<Document>();
    const std::string path = path_of(name);
    const auto saved_fingerprint = [document, path] {
        document->Read(path);
        const std::uint64_t result = document->Fingerprint();
        document->Unload();
        return result;
    };
    return {name, [path] { remove_scratch_file(path); }, [document, path] { document->Write(path); },
            saved_fingerprint, nullptr};
}

template <class Document>
Contender reader(const char* name) {
    const auto document = std::make_shared<Document>();
    const std::string path = path_of(name);
    document->Write(path);
    return {name, nullptr, [document, path] { document->Read(path); },
            [document] { return document->Fingerprint(); }, [document] { document->Unload(); }};
}

Benchmark make_write() {
    return {"store/compound-write",
            "object",
            object_count,
            {writer<LvxDocument>("lvx"), writer<RawDocument>("raw")}};
}

Benchmark make_read() {
    return {"store/compound-read",
            "object",
            object_count,
            {reader<LvxDocument>("lvx"), reader<RawDocument>("raw")}};
}

}  // namespace

std::vector<Entry> compound_benchmarks() {
    return {{"store/compound-write", make_write}, {"store/compound-read", make_read}};
}

}  // namespace lvx_bench
