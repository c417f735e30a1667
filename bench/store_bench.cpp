#include "bench/store_bench.h"

#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "bench/codec.h"
#include "bench/drawing.h"
#include "bench/scratch.h"

namespace lvx_bench {
namespace {

struct NamedCodec {
    const char* name;
    std::unique_ptr<Codec> (*make)();
};
constexpr NamedCodec codecs[] = {{"lvx", make_lvx_codec},
                                 {"boost", make_boost_codec},
                                 {"cereal", make_cereal_codec},
                                 {"raw", make_raw_codec}};

// What one contender works on. The contender's functions share it.
struct Work {
    explicit Work(const NamedCodec& named)
        : codec(named.make()), path(scratch_file(std::string("drawing-") + named.name)) {}

    void WriteMemory() {
        out.emplace(std::ios_base::binary);
        codec->Write(*out);
    }
    // Of what was saved: it is loaded again and has to be what it was.
    std::uint64_t FileFingerprint() {
        codec->ReadFile(path);
        return Fingerprint();
    }
    std::uint64_t MemoryFingerprint() {
        std::istringstream saved(out->str(), std::ios_base::binary);
        codec->Read(saved);
        return Fingerprint();
    }

    std::unique_ptr<Codec> codec;
    std::string path;
    std::optional<std::ostringstream> out;
    std::optional<std::istringstream> in;

private:
    std::uint64_t Fingerprint() {
        const std::uint64_t result = codec->Fingerprint();
        codec->Unload();
        return result;
    }
};

Contender file_writer(const NamedCodec& named) {
    const auto work = std::make_shared<Work>(named);
    return {named.name, [work] { remove_scratch_file(work->path); },
            [work] { work->codec->WriteFile(work->path); }, [work] { return work->FileFingerprint(); },
            nullptr};
}

Contender file_reader(const NamedCodec& named) {
    const auto work = std::make_shared<Work>(named);
    work->codec->WriteFile(work->path);
    return {named.name, nullptr, [work] { work->codec->ReadFile(work->path); },
            [work] { return work->codec->Fingerprint(); }, [work] { work->codec->Unload(); }};
}

Contender memory_writer(const NamedCodec& named) {
    const auto work = std::make_shared<Work>(named);
    return {named.name, nullptr, [work] { work->WriteMemory(); },
            [work] { return work->MemoryFingerprint(); }, [work] { work->out.reset(); }};
}

Contender memory_reader(const NamedCodec& named) {
    const auto work = std::make_shared<Work>(named);
    work->WriteMemory();
    work->in.emplace(work->out->str(), std::ios_base::binary);
    work->out.reset();
    return {named.name, [work] { work->in->seekg(0); }, [work] { work->codec->Read(*work->in); },
            [work] { return work->codec->Fingerprint(); }, [work] { work->codec->Unload(); }};
}

Entry entry(const std::string& name, Contender (*make)(const NamedCodec&)) {
    return {name, [name, make] {
                Benchmark benchmark{name, "object", object_count, {}};
                for (const NamedCodec& codec : codecs) {
                    benchmark.contenders.push_back(make(codec));
                }
                return benchmark;
            }};
}

}  // namespace

std::vector<Entry> store_benchmarks() {
    return {entry("store/file-write", file_writer), entry("store/file-read", file_reader),
            entry("store/memory-write", memory_writer), entry("store/memory-read", memory_reader)};
}

}  // namespace lvx_bench
