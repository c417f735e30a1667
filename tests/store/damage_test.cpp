// The golden documents, cut at every length and with every byte changed: what is read is a value or an
// exception of the library, and nothing is left behind, be it objects or memory.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <new>
#include <sstream>

#include "lvx/drawing/my_font.h"
#include "lvx/images/dibitmap.h"
#include "lvx/platform/global_memory.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "store/golden.h"
#include "support/allocation.h"
#include "support/bytes.h"
#include "support/quiet_gsf.h"
#include "support/temp_folder.h"
#include "support/tracked_shapes.h"

using lvx_test::ReadObjects;
using LVXUtilities::DIBitmap;
using LVXUtilities::ObjectStoreStorage;

namespace {

std::size_t largest_global_block = 0;

}  // namespace

// In front of the library's own, to see what it asks for.
extern "C" [[gnu::visibility("default")]] HGLOBAL GlobalAlloc(unsigned int flags, std::size_t size) {
    static const auto next = reinterpret_cast<decltype(&GlobalAlloc)>(dlsym(RTLD_NEXT, "GlobalAlloc"));
    largest_global_block = std::max(largest_global_block, size);
    return next(flags, size);
}

namespace {

// The documents have a few kilobytes. Standard streams take texts of up to 1 MiB on trust.
constexpr std::size_t memory_limit = 8 * 1024 * 1024;
constexpr auto time_limit = std::chrono::seconds(10);

template <class T>
void skip(ObjectStore& store) {
    T value{};
    store >> value;
}

void skip_characters(ObjectStore& store) {
    char* text = nullptr;
    store >> text;
    const lvx::auto_array<char> owner(text);
}

void keep_object(ObjectStore& store, ReadObjects& objects) {
    Storable* object = nullptr;
    store >> object;
    objects.Keep(object);
}

void read_values(ObjectStore& store, ReadObjects&) {
    store.ReadVersion();
    const auto steps = {
        skip<bool>,      skip<bool>,      skip<int>,         skip<int>,         skip<long>,       skip<float>,
        skip<float>,     skip<double>,    skip<double>,      skip<double>,      skip<char>,       skip<char>,
        skip_characters, skip_characters, skip<std::string>, skip<std::string>, skip<std::string>};
    for (const auto step : steps) {
        step(store);
    }
}

void read_objects(ObjectStore& store, ReadObjects& objects, int count) {
    store.ReadVersion();
    for (int i = 0; i < count; ++i) {
        keep_object(store, objects);
    }
}

void read_graph(ObjectStore& store, ReadObjects& objects) {
    read_objects(store, objects, 5);
}

void read_bitmaps(ObjectStore& store, ReadObjects& objects) {
    read_objects(store, objects, 4);
}

void read_fonts(ObjectStore& store, ReadObjects& objects) {
    read_objects(store, objects, 3);
}

void read_older_strings(ObjectStore& store, ReadObjects& objects) {
    skip<std::string>(store);
    keep_object(store, objects);
    skip<std::string>(store);
    skip<std::string>(store);
    keep_object(store, objects);
    keep_object(store, objects);
    keep_object(store, objects);
}

using Reader = void (*)(ObjectStore&, ReadObjects&);

struct Document {
    const char* name;
    Reader read;
};

constexpr Document plain_documents[] = {{"values", read_values},
                                        {"graph", read_graph},
                                        {"older-strings", read_older_strings},
                                        {"bitmap", read_bitmaps},
                                        {"fonts", read_fonts}};

// A copy of a document that is damaged and mended in place.
class DamagedFile {
public:
    explicit DamagedFile(const std::string& original)
        : m_content(lvx_test::read_file(lvx_test::golden::path(original))) {
        lvx_test::write_file(m_name, m_content);
        m_file.open(m_name, std::ios::in | std::ios::out | std::ios::binary);
    }

    const std::string& Name() const { return m_name; }
    std::size_t Size() const { return m_content.size(); }
    unsigned char At(std::size_t offset) const { return static_cast<unsigned char>(m_content[offset]); }

    void Change(std::size_t offset, unsigned char byte) {
        m_file.seekp(static_cast<std::streamoff>(offset));
        m_file.put(static_cast<char>(byte)).flush();
    }
    void Mend(std::size_t offset) { Change(offset, At(offset)); }
    void Cut(std::size_t length) { std::filesystem::resize_file(m_name, length); }

private:
    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    std::string m_content;
    std::fstream m_file;
};

class Damage : public ::testing::Test {
protected:
    using Reading = std::function<void()>;

    void SetUp() override {
        lvx_test::register_tracked_shapes();
        ObjectFactory::Register("myFont", ObjectFactory::CreateStorable<myFont>);
        lvx_test::keep_gsf_quiet();
        // Names of types are kept for good.
        DIBitmap(nullptr, DIBitmap::Copy).ClassName();
    }

    // Both must have happened: else the damage does not reach what is read, or reading it does nothing.
    void TearDown() override {
        EXPECT_GT(m_values, 0);
        EXPECT_GT(m_refusals, 0);
#ifndef LVX_TEST_SEES_FREED_MEMORY
        // The program as a whole, for the memory of other libraries; the sanitizer keeps what was freed.
        rusage usage{};
        ASSERT_EQ(0, getrusage(RUSAGE_SELF, &usage));
        EXPECT_LT(usage.ru_maxrss, 64 * 1024);
#endif
    }

    // Every length, and at each offset the bytes that `changes` names.
    void Run(DamagedFile& file, const Reading& read,
             const std::function<std::vector<unsigned char>(unsigned char)>& changes) {
        ASSERT_NO_THROW(read()) << "the whole document";
        for (std::size_t offset = 0; offset < file.Size() && !HasFailure(); ++offset) {
            for (const unsigned char byte : changes(file.At(offset))) {
                file.Change(offset, byte);
                Try(read, offset, byte);
            }
            file.Mend(offset);
        }
        for (std::size_t length = file.Size(); length > 0 && !HasFailure(); --length) {
            file.Cut(length - 1);
            Try(read, length - 1, -1);
        }
    }

private:
    void Try(const Reading& read, std::size_t offset, int byte) {
        const std::size_t before = lvx_test::live_bytes();
        const auto start = std::chrono::steady_clock::now();
        lvx_test::reset_peak();
        largest_global_block = 0;
        Read(read, offset, byte);
        const auto where = [&] { return "at " + std::to_string(offset) + ": " + std::to_string(byte); };
        EXPECT_LT(lvx_test::peak_bytes() - before, memory_limit) << where();
        EXPECT_LT(largest_global_block, memory_limit) << where();
        EXPECT_EQ(before, lvx_test::live_bytes()) << where();
        EXPECT_TRUE(lvx_test::Tracked::Alive().empty()) << where();
        EXPECT_LT(std::chrono::steady_clock::now() - start, time_limit) << where();
    }

    void Read(const Reading& read, std::size_t offset, int byte) {
        try {
            read();
            ++m_values;
        } catch (const lvx::runtime_error&) {
            ++m_refusals;
        } catch (const std::bad_alloc&) {
            ++m_refusals;
        } catch (const std::exception& error) {
            ADD_FAILURE() << "at " << offset << ": " << byte << ": " << error.what();
        }
    }

    int m_values = 0;
    int m_refusals = 0;
};

std::vector<unsigned char> all_others(unsigned char byte) {
    std::vector<unsigned char> others;
    for (unsigned change = 1; change <= 0xFF; ++change) {
        others.push_back(static_cast<unsigned char>(byte ^ change));
    }
    return others;
}

// Each bit turned over, and the two extremes.
std::vector<unsigned char> telling_others(unsigned char byte) {
    std::vector<unsigned char> others;
    for (unsigned bit = 1; bit <= 0x80; bit <<= 1) {
        others.push_back(static_cast<unsigned char>(byte ^ bit));
    }
    for (const unsigned char extreme : {std::uint8_t{0x00}, std::uint8_t{0xFF}}) {
        if (byte != extreme) {
            others.push_back(extreme);
        }
    }
    return others;
}

class PlainDamage : public Damage, public ::testing::WithParamInterface<Document> {};

// Each stream in a store of its own. One that does not open is refused.
void read_compound(const std::string& name, std::span<const char* const> streams) {
    std::string error;
    int refused = 0;
    for (const Document& document : plain_documents) {
        if (std::find(streams.begin(), streams.end(), std::string(document.name)) == streams.end()) {
            continue;
        }
        ReadObjects objects;
        ObjectStoreStorage store;
        if (!store.OpenStorage(name, ObjectStore::ForRead, error) ||
            !store.OpenStream(document.name, error)) {
            ++refused;
            continue;
        }
        try {
            document.read(store, objects);
        } catch (const lvx::runtime_error&) {
            ++refused;
        } catch (const std::bad_alloc&) {
            ++refused;
        }
    }
    if (refused != 0) {
        throw ObjectStore::UnexpectedEOF();
    }
}

class CompoundDamage : public Damage, public ::testing::WithParamInterface<lvx_test::golden::Compound> {};

}  // namespace

TEST_P(PlainDamage, in_a_file_ends_in_a_value_or_an_exception) {
    DamagedFile file(std::string(GetParam().name) + ".store");
    const auto read = [&] {
        ReadObjects objects;
        ObjectStoreFile store;
        ASSERT_TRUE(store.OpenStream(file.Name().c_str(), ObjectStore::ForRead));
        GetParam().read(store, objects);
    };
    Run(file, read, all_others);
}

TEST_P(PlainDamage, in_a_standard_stream_ends_in_a_value_or_an_exception) {
    DamagedFile file(std::string(GetParam().name) + ".store");
    const auto read = [&] {
        std::ifstream stream(file.Name(), std::ios::binary);
        ReadObjects objects;
        ObjectStoreStream store;
        ASSERT_TRUE(store.OpenStream(&stream));
        GetParam().read(store, objects);
    };
    Run(file, read, all_others);
}

INSTANTIATE_TEST_SUITE_P(GoldenDocuments, PlainDamage, ::testing::ValuesIn(plain_documents),
                         [](const auto& parameter) {
                             std::string name = parameter.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST_P(CompoundDamage, ends_in_values_or_in_exceptions_and_error_codes) {
    DamagedFile file(GetParam().file);
    Run(
        file, [&] { read_compound(file.Name(), GetParam().streams); }, telling_others);
}

INSTANTIATE_TEST_SUITE_P(GoldenDocuments, CompoundDamage,
                         ::testing::ValuesIn(lvx_test::golden::compound_documents),
                         [](const auto& parameter) {
                             std::string name = parameter.param.file;
                             name.resize(name.find('.'));
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });
