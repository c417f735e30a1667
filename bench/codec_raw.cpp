// The store's format written down directly: a call of the medium for each value, a tree of addresses for the
// ids. It shows what the format itself costs without a library and without thought about speed.
#include <algorithm>
#include <cstdio>
#include <istream>
#include <map>
#include <ostream>
#include <stdexcept>

#include "bench/codec.h"
#include "bench/drawing.h"

namespace lvx_bench {
namespace {

class RawWriter;
class RawReader;

class RawShape {
public:
    virtual ~RawShape() = default;
    virtual const char* Name() const = 0;
    virtual void Write(RawWriter& writer) const = 0;
    virtual void Read(RawReader& reader) = 0;
};

class RawDot : public RawShape {
public:
    RawDot() = default;
    explicit RawDot(const Values& initial) : values(initial) {}

    const char* Name() const override { return "lvx_bench::Dot"; }
    void Write(RawWriter& writer) const override;
    void Read(RawReader& reader) override;

    Values values;
};

class RawWriter {
public:
    virtual ~RawWriter() = default;
    virtual void PutBytes(const void* data, std::size_t size) = 0;

    template <class Value>
    void Put(Value value) {
        PutBytes(&value, sizeof value);
    }

    void PutObject(const RawShape& object) {
        Put('B');
        const auto known = m_ids.find(&object);
        if (known != m_ids.end()) {
            Put('O');
            Put(known->second);
            return;
        }
        m_ids.emplace(&object, static_cast<int>(m_ids.size()));
        PutClass(object.Name());
        Put('o');
        object.Write(*this);
    }

private:
    void PutClass(const std::string& name) {
        const auto known = std::find(m_classes.begin(), m_classes.end(), name);
        if (known != m_classes.end()) {
            Put('C');
            Put(static_cast<int>(known - m_classes.begin()));
            return;
        }
        Put('c');
        PutBytes(name.data(), name.size());
        PutBytes("\r\n", 2);
        m_classes.push_back(name);
    }

    std::map<const RawShape*, int> m_ids;
    std::vector<std::string> m_classes;
};

class RawReader {
public:
    virtual ~RawReader() = default;
    virtual void GetBytes(void* data, std::size_t size) = 0;

    template <class Value>
    Value Get() {
        Value value;
        GetBytes(&value, sizeof value);
        return value;
    }

    RawShape* GetObject() {
        Expect('B');
        const char tag = Get<char>();
        if (tag == 'O') {
            return m_objects.at(static_cast<std::size_t>(Get<int>()));
        }
        const std::string& name = tag == 'c' ? GetName() : m_classes.at(static_cast<std::size_t>(Get<int>()));
        Expect('o');
        m_objects.push_back(m_creators.at(name)());
        RawShape* const object = m_objects.back();
        object->Read(*this);
        return object;
    }

private:
    void Expect(char expected) {
        if (Get<char>() != expected) {
            throw std::runtime_error("raw: unexpected byte");
        }
    }
    const std::string& GetName() {
        std::string name;
        for (char next = Get<char>(); next != '\n'; next = Get<char>()) {
            if (next != '\r') {
                name += next;
            }
        }
        m_classes.push_back(name);
        return m_classes.back();
    }

    std::map<std::string, RawShape* (*)()> m_creators{
        {"lvx_bench::Dot", []() -> RawShape* { return new RawDot; }}};
    std::vector<RawShape*> m_objects;
    std::vector<std::string> m_classes;
};

void RawDot::Write(RawWriter& writer) const {
    writer.Put(values.x);
    writer.Put(values.y);
    writer.Put(values.colour);
    writer.Put(values.layer);
}

void RawDot::Read(RawReader& reader) {
    values.x = reader.Get<double>();
    values.y = reader.Get<double>();
    values.colour = reader.Get<int>();
    values.layer = reader.Get<int>();
}

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OwnedFile = std::unique_ptr<std::FILE, Closer>;

OwnedFile open_file(const std::string& path, const char* mode) {
    OwnedFile file(std::fopen(path.c_str(), mode));
    if (file == nullptr) {
        throw std::runtime_error("raw: cannot open " + path);
    }
    return file;
}

void expect(bool transferred) {
    if (!transferred) {
        throw std::runtime_error("raw: a transfer failed");
    }
}

class FileWriter final : public RawWriter {
public:
    explicit FileWriter(const std::string& path) : m_file(open_file(path, "wb")) {}
    void PutBytes(const void* data, std::size_t size) override {
        expect(std::fwrite(data, size, 1, m_file.get()) == 1);
    }

private:
    OwnedFile m_file;
};

class FileReader final : public RawReader {
public:
    explicit FileReader(const std::string& path) : m_file(open_file(path, "rb")) {}
    void GetBytes(void* data, std::size_t size) override {
        expect(std::fread(data, size, 1, m_file.get()) == 1);
    }

private:
    OwnedFile m_file;
};

class StreamWriter final : public RawWriter {
public:
    explicit StreamWriter(std::ostream& out) : m_out(out) {}
    void PutBytes(const void* data, std::size_t size) override {
        expect(m_out.write(static_cast<const char*>(data), static_cast<std::streamsize>(size)).good());
    }

private:
    std::ostream& m_out;
};

class StreamReader final : public RawReader {
public:
    explicit StreamReader(std::istream& in) : m_in(in) {}
    void GetBytes(void* data, std::size_t size) override {
        expect(m_in.read(static_cast<char*>(data), static_cast<std::streamsize>(size)).good());
    }

private:
    std::istream& m_in;
};

class RawCodec : public Codec {
public:
    RawCodec() : m_saved(make_drawing<RawShape*>([](const Values& values) { return new RawDot(values); })) {}
    ~RawCodec() override { delete_objects(m_saved); }

    void Write(std::ostream& out) override { Save(StreamWriter(out)); }
    void Read(std::istream& in) override { Load(StreamReader(in)); }
    void WriteFile(const std::string& path) override { Save(FileWriter(path)); }
    void ReadFile(const std::string& path) override { Load(FileReader(path)); }
    std::uint64_t Fingerprint() const override {
        return fingerprint(m_loaded,
                           [](const RawShape* shape) { return dynamic_cast<const RawDot*>(shape); });
    }
    void Unload() override { delete_objects(m_loaded); }

private:
    void Save(RawWriter&& writer) {
        writer.Put(static_cast<int>(m_saved.by_depth.size()));
        for (const RawShape* const shape : m_saved.by_depth) {
            writer.PutObject(*shape);
        }
        for (const RawShape* const shape : m_saved.by_layer) {
            writer.PutObject(*shape);
        }
    }
    void Load(RawReader&& reader) {
        const auto size = static_cast<std::size_t>(reader.Get<int>());
        m_loaded = {std::vector<RawShape*>(size), std::vector<RawShape*>(size)};
        for (RawShape*& shape : m_loaded.by_depth) {
            shape = reader.GetObject();
        }
        for (RawShape*& shape : m_loaded.by_layer) {
            shape = reader.GetObject();
        }
    }

    Drawing<RawShape*> m_saved;
    Drawing<RawShape*> m_loaded;
};

}  // namespace

std::unique_ptr<Codec> make_raw_codec() {
    return std::make_unique<RawCodec>();
}

}  // namespace lvx_bench
