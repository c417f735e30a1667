// The direct coding of raw_graph.h over files and standard streams.
#include <cstdio>
#include <istream>
#include <memory>
#include <ostream>
#include <stdexcept>

#include "bench/codec.h"
#include "bench/plain_file.h"
#include "bench/raw_graph.h"

namespace lvx_bench {
namespace {

class FileWriter final : public RawWriter {
public:
    explicit FileWriter(const std::string& path) : m_file(open_plain_file(path, "wb")) {}
    void PutBytes(const void* data, std::size_t size) override {
        expect_transfer(std::fwrite(data, size, 1, m_file.get()) == 1);
    }

private:
    PlainFile m_file;
};

class FileReader final : public RawReader {
public:
    explicit FileReader(const std::string& path) : m_file(open_plain_file(path, "rb")) {}
    void GetBytes(void* data, std::size_t size) override {
        expect_transfer(std::fread(data, size, 1, m_file.get()) == 1);
    }

private:
    PlainFile m_file;
};

class StreamWriter final : public RawWriter {
public:
    explicit StreamWriter(std::ostream& out) : m_out(out) {}
    void PutBytes(const void* data, std::size_t size) override {
        expect_transfer(
            m_out.write(static_cast<const char*>(data), static_cast<std::streamsize>(size)).good());
    }

private:
    std::ostream& m_out;
};

class StreamReader final : public RawReader {
public:
    explicit StreamReader(std::istream& in) : m_in(in) {}
    void GetBytes(void* data, std::size_t size) override {
        expect_transfer(m_in.read(static_cast<char*>(data), static_cast<std::streamsize>(size)).good());
    }

private:
    std::istream& m_in;
};

class RawCodec : public Codec {
public:
    RawCodec() : m_saved(make_raw_drawing()) {}
    ~RawCodec() override { delete_objects(m_saved); }

    void Write(std::ostream& out) override {
        StreamWriter writer(out);
        save_raw_drawing(writer, m_saved);
    }
    void Read(std::istream& in) override {
        StreamReader reader(in);
        m_loaded = load_raw_drawing(reader);
    }
    void WriteFile(const std::string& path) override {
        FileWriter writer(path);
        save_raw_drawing(writer, m_saved);
    }
    void ReadFile(const std::string& path) override {
        FileReader reader(path);
        m_loaded = load_raw_drawing(reader);
    }
    std::uint64_t Fingerprint() const override { return raw_fingerprint(m_loaded); }
    void Unload() override { delete_objects(m_loaded); }

private:
    Drawing<RawShape*> m_saved;
    Drawing<RawShape*> m_loaded;
};

}  // namespace

std::unique_ptr<Codec> make_raw_codec() {
    return std::make_unique<RawCodec>();
}

}  // namespace lvx_bench
