// The library's own reader and the walker decode the same bytes by different code: where one sees damage, so
// does the other.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_factory.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_storage.h"
#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/document.h"
#include "tools/lvxdoc/errors.h"

namespace {

class Font : public Storable {
public:
    void PutTo(ObjectStore& store) const override {
        store << m_face << m_size << m_bold << false << false << false;
    }
    void GetFrom(ObjectStore& store) override {
        bool style = false;
        store >> m_face >> m_size >> m_bold >> style >> style >> style;
    }
    const char* ClassName() const override { return "myFont"; }

    std::string m_face;
    double m_size = 0;
    bool m_bold = false;
};

Storable* make_font(ObjectStore& store) {
    auto font = std::make_unique<Font>();
    store.AppendObjectToList(font.get());
    font->GetFrom(store);
    return font.release();
}

const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("myFont", &make_font), true);

void read_objects(ObjectStore& store, int count) {
    std::vector<std::unique_ptr<Storable>> owned;
    for (int i = 0; i < count; ++i) {
        Storable* object = nullptr;
        store >> object;
        const bool is_new = std::none_of(owned.begin(), owned.end(),
                                         [object](const auto& known) { return known.get() == object; });
        if (object != nullptr && is_new) {
            owned.emplace_back(object);
        }
    }
}

void read_c_string(ObjectStore& store) {
    char* text = nullptr;
    store >> text;
    delete[] text;
}

// A store behind its version: how a host reads it, and how a schema describes it.
struct Sample {
    std::string name;
    std::string bytes;
    std::string schema;
    std::function<void(ObjectStore&)> read;
};

const Sample three_fonts{"three fonts", fonts, "top\n long version\n object(3) object\n",
                         [](ObjectStore& store) { read_objects(store, 3); }};

const Sample picture{"a picture", small_picture, "top\n long version\n object picture\n",
                     [](ObjectStore& store) { read_objects(store, 1); }};

const Sample strings{"strings of three kinds",
                     bytes_of("01000000 42 63 'VString' 0d0a 6f 02000000 'ab' 00"
                              "73 03000000 'cde' 73 00000000"
                              "02000000 'fg' 00 00000000"
                              "42 43 00000000 6f 00000000") +
                         fonts.substr(4, 45),
                     "top\n long version\n string(3) x\n cstring(2) y\n string last\n object font\n",
                     [](ObjectStore& store) {
                         std::string text;
                         store >> text >> text >> text;
                         read_c_string(store);
                         read_c_string(store);
                         store >> text;
                         read_objects(store, 1);
                     }};

// "good", or the text of the exception.
std::string opinion_of_library(ObjectStore& store, const Sample& sample) {
    try {
        store.ReadVersion();
        sample.read(store);
    } catch (const lvx::runtime_error& error) {
        return error.what();
    } catch (const std::bad_alloc&) {
        return "no memory";
    }
    return "good";
}

std::string opinion_of_walker(const std::string& file, const Sample& sample) {
    const lvxdoc::Document document(file);
    lvxdoc::Schema schema;
    schema.Add(sample.schema, "sample");
    const auto source = document.Open(document.Parts().at(0));
    lvxdoc::Numbering numbering;
    lvxdoc::WalkOptions options;
    options.longest_class_name = document.LongestClassName();
    Lines lines;
    try {
        lvxdoc::Walker(*source, schema, lines, numbering, options).Walk(schema.TopOf(""));
    } catch (const lvxdoc::Damage& damage) {
        return damage.what();
    }
    return "good";
}

// A kind of document around the bytes of a sample.
struct Medium {
    std::string (*write)(const Folder& folder, const std::string& bytes);
    std::string (*opinion)(const std::string& file, const Sample& sample);
};

const Medium plain_file{
    [](const Folder& folder, const std::string& bytes) { return folder.Write("x", bytes); },
    [](const std::string& file, const Sample& sample) {
        ObjectStoreFile store;
        return store.OpenStream(file.c_str(), ObjectStore::ForRead) ? opinion_of_library(store, sample)
                                                                    : std::string("not opened");
    }};

const Medium compound_file{[](const Folder& folder, const std::string& bytes) {
                               CompoundBuilder builder;
                               builder.Add(u"Sky", bytes);
                               return folder.Write("x", builder.Build());
                           },
                           [](const std::string& file, const Sample& sample) {
                               LVXUtilities::ObjectStoreStorage store;
                               std::string error;
                               const bool is_open = store.OpenStorage(file, ObjectStore::ForRead, error) &&
                                                    store.OpenStream("Sky", error);
                               return is_open ? opinion_of_library(store, sample) : error;
                           }};

void expect_agreement(const Folder& folder, const Medium& medium, const Sample& sample,
                      const std::string& bytes, const std::string& change) {
    const std::string file = medium.write(folder, bytes);
    const std::string library = medium.opinion(file, sample);
    const std::string walker = opinion_of_walker(file, sample);
    EXPECT_EQ(library == "good", walker == "good")
        << sample.name << ", " << change << ": " << library << " / " << walker;
}

void expect_agreement_at_every_length(const Medium& medium, const Sample& sample) {
    const Folder folder;
    for (std::size_t size = 0; size < sample.bytes.size(); ++size) {
        expect_agreement(folder, medium, sample, sample.bytes.substr(0, size),
                         "length " + std::to_string(size));
    }
}

void expect_agreement_on_every_byte(const Medium& medium, const Sample& sample, std::string_view values) {
    const Folder folder;
    for (std::size_t i = 0; i < sample.bytes.size(); ++i) {
        for (const char value : values) {
            std::string changed = sample.bytes;
            changed[i] = value;
            expect_agreement(folder, medium, sample, changed,
                             "byte " + std::to_string(i) + " is " + std::to_string(value));
        }
    }
}

// Everything that means something somewhere.
constexpr std::string_view telling_bytes(
    "\0\1\xff"
    "0ABcCOosz\n",
    13);

}  // namespace

TEST(SecondOpinion, agrees_with_the_library_on_what_it_writes) {
    const Folder folder;
    ObjectStoreFile store;
    ASSERT_TRUE(registered && store.OpenStream(folder.File("x").c_str(), ObjectStore::ForWrite));
    Font font;
    font.m_face = "Arial";
    font.m_size = 10;
    font.m_bold = true;
    Font second;
    second.m_face = "Sans";
    second.m_size = 8;
    store << 3L << font << font << second;
    store.CloseStream();
    EXPECT_EQ(fonts, read_file(folder.Path() / "x"));
}

TEST(SecondOpinion, is_good_on_every_sample_as_it_is) {
    const Folder folder;
    for (const Medium& medium : {plain_file, compound_file}) {
        for (const Sample& sample : {three_fonts, picture, strings}) {
            const std::string file = medium.write(folder, sample.bytes);
            EXPECT_EQ("good", medium.opinion(file, sample)) << sample.name;
            EXPECT_EQ("good", opinion_of_walker(file, sample)) << sample.name;
        }
    }
}

TEST(SecondOpinion, agrees_at_every_length) {
    for (const Sample& sample : {three_fonts, picture, strings}) {
        expect_agreement_at_every_length(plain_file, sample);
    }
}

TEST(SecondOpinion, agrees_at_every_length_of_a_stream_in_a_compound_file) {
    for (const Sample& sample : {three_fonts, picture, strings}) {
        expect_agreement_at_every_length(compound_file, sample);
    }
}

TEST(SecondOpinion, agrees_whatever_one_byte_is) {
    for (const Sample& sample : {three_fonts, picture, strings}) {
        expect_agreement_on_every_byte(plain_file, sample, telling_bytes);
    }
}

TEST(SecondOpinion, agrees_whatever_one_byte_of_a_stream_in_a_compound_file_is) {
    for (const Sample& sample : {three_fonts, picture, strings}) {
        expect_agreement_on_every_byte(compound_file, sample, std::string_view("\0\xffOz", 4));
    }
}
