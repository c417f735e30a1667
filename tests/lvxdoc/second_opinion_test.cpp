// The library's own reader and the walker decode the same bytes by different code: where one sees damage, so
// does the other.
#include <gtest/gtest.h>

#include "lvx/store/object_factory.h"
#include "lvx/store/object_store_file.h"
#include "tests/lvxdoc/support.h"

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

const std::string three_objects = "top\n long version\n object(3) object\n";

// What the library says to the bytes: "good", or the text of its exception.
std::string opinion_of_library(const Folder& folder, const std::string& bytes) {
    ObjectStoreFile store;
    store.OpenStream(folder.Write("x", bytes).c_str(), ObjectStore::ForRead);
    std::vector<std::unique_ptr<Storable>> owned;
    std::vector<Storable*> seen;
    try {
        store.ReadVersion();
        for (int i = 0; i < 3; ++i) {
            Storable* object = nullptr;
            store >> object;
            if (object != nullptr && std::find(seen.begin(), seen.end(), object) == seen.end()) {
                seen.push_back(object);
                owned.emplace_back(object);
            }
        }
    } catch (const lvx::runtime_error& error) {
        return error.what();
    }
    return "good";
}

void expect_agreement(const Folder& folder, const std::string& bytes, const std::string& change) {
    const std::string library = opinion_of_library(folder, bytes);
    lvxdoc::WalkOptions options;
    options.longest_class_name = 47;
    const auto lines = walk(bytes, three_objects, options);
    const bool damaged = !lines.empty() && lines.back().find("damage at ") == 0;
    EXPECT_EQ(library != "good", damaged)
        << change << ": " << library << " / " << (damaged ? lines.back() : "good");
}

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
    EXPECT_EQ("good", opinion_of_library(folder, fonts));
}

TEST(SecondOpinion, agrees_at_every_length) {
    const Folder folder;
    for (std::size_t size = 0; size < fonts.size(); ++size) {
        expect_agreement(folder, fonts.substr(0, size), "length " + std::to_string(size));
    }
}

TEST(SecondOpinion, agrees_whatever_one_byte_is) {
    const Folder folder;
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        for (const char value : {'\0', '\1', '\xff', '0', 'A', 'B', 'c', 'C', 'O', 'o', 's', 'z', '\n'}) {
            std::string changed = fonts;
            changed[i] = value;
            expect_agreement(folder, changed, "byte " + std::to_string(i) + " is " + std::to_string(value));
        }
    }
}
