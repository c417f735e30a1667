#include "lvx/drawing/my_font.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "lvx/store/object_store.h"
#include "support/bytes.h"
#include "support/recording_store.h"
#include "support/vtable_slot.h"

using lvx_test::bytes;
using lvx_test::hex;
using lvx_test::RecordingStore;
using lvx_test::slot_of;

namespace {

myFont title() {
    return myFont("Arial", 10.5, true, false, true, false);
}

std::string stored(const myFont& font) {
    RecordingStore store;
    font.PutTo(store);
    return store.Data();
}

myFont restored(const std::string& data) {
    RecordingStore store(data);
    myFont font;
    font.GetFrom(store);
    return font;
}

void expect_values(const myFont& font, const std::string& face, double size, const char* flags) {
    EXPECT_EQ(face, font.Face());
    EXPECT_EQ(size, font.Size());
    std::string all;
    for (const auto& [set, letter] : {std::pair(font.Bold(), 'b'), std::pair(font.Italic(), 'i'),
                                      std::pair(font.Underline(), 'u'), std::pair(font.Strikeout(), 's')}) {
        all += set ? letter : '-';
    }
    EXPECT_EQ(flags, all);
}

// What hosts do, and no sanitizer likes.
[[gnu::no_sanitize_undefined]] void free_font(myFont* font) {
    font->free();
}

}  // namespace

TEST(MyFont, has_the_values_that_it_was_made_of) {
    expect_values(title(), "Arial", 10.5, "b-u-");
    expect_values(myFont("", -3, false, true, false, true), "", -3, "-i-s");
    expect_values(myFont(static_cast<const char*>(nullptr), 0, false, false, false, false), "", 0, "----");
}

TEST(MyFont, is_the_systems_own_at_first) {
    expect_values(myFont(), "System", 12, "b---");
}

TEST(MyFont, takes_one_value_after_the_other) {
    myFont font("", 0, false, false, false, false);
    font.Face("Courier New");
    font.Size(7.25);
    expect_values(font, "Courier New", 7.25, "----");
    font.Bold(true);
    expect_values(font, "Courier New", 7.25, "b---");
    font.Italic(true);
    font.Bold(false);
    expect_values(font, "Courier New", 7.25, "-i--");
    font.Underline(true);
    font.Italic(false);
    expect_values(font, "Courier New", 7.25, "--u-");
    font.Strikeout(true);
    font.Underline(false);
    expect_values(font, "Courier New", 7.25, "---s");
}

TEST(MyFont, takes_a_face_of_any_length_and_bytes) {
    myFont font;
    const std::string face = std::string(1000, 'x') + '\0' + "\xE9";
    font.Face(face);
    EXPECT_EQ(face, font.Face());
    font.Face(font.Face());
    EXPECT_EQ(face, font.Face());
}

TEST(MyFont, is_copied_and_assigned_with_all_values) {
    const myFont font = title();
    const myFont copy(font);
    expect_values(copy, "Arial", 10.5, "b-u-");
    myFont other("Sans", 1, false, true, false, true);
    other = font;
    expect_values(other, "Arial", 10.5, "b-u-");
    const myFont& same = other;
    other = same;
    expect_values(other, "Arial", 10.5, "b-u-");
}

TEST(MyFont, equals_only_what_has_all_six_values) {
    EXPECT_TRUE(title() == title());
    const myFont others[] = {
        myFont("arial", 10.5, true, false, true, false),  myFont("Arial", 10.25, true, false, true, false),
        myFont("Arial", 10.5, false, false, true, false), myFont("Arial", 10.5, true, true, true, false),
        myFont("Arial", 10.5, true, false, false, false), myFont("Arial", 10.5, true, false, true, true)};
    for (const myFont& other : others) {
        EXPECT_FALSE(title() == other);
        EXPECT_FALSE(other == title());
        EXPECT_TRUE(other == other);
    }
}

TEST(MyFont, compares_sizes_to_the_last_bit) {
    myFont other = title();
    other.Size(std::nextafter(10.5, 11));
    EXPECT_FALSE(title() == other);
    other.Size(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(other == other);
}

TEST(MyFont, is_stored_as_its_six_values_in_order) {
    EXPECT_EQ(hex(bytes("'s' 05 00 00 00 'Arial'  00 00 00 00 00 00 25 40"
                        "01 00 00 00  00 00 00 00  01 00 00 00  00 00 00 00")),
              hex(stored(title())));
    EXPECT_EQ(hex(bytes("'s' 00 00 00 00  00 00 00 00 00 00 08 C0"
                        "00 00 00 00  01 00 00 00  00 00 00 00  01 00 00 00")),
              hex(stored(myFont("", -3, false, true, false, true))));
}

TEST(MyFont, restored_equals_what_was_stored) {
    myFont odd("", std::numeric_limits<double>::infinity(), false, false, false, true);
    odd.Face("ab\r\n\xFF" + std::string(500, 'x'));
    for (const myFont& font : {title(), myFont(), odd, myFont("", 1e-300, true, true, true, true)}) {
        EXPECT_TRUE(font == restored(stored(font)));
    }
}

TEST(MyFont, restored_has_its_face_cut_at_a_zero) {
    myFont font = title();
    font.Face(std::string("a\0b", 3));
    EXPECT_EQ(std::string("a\0b", 3), font.Face());
    EXPECT_EQ("a", restored(stored(font)).Face());
}

TEST(MyFont, keeps_a_size_that_is_no_number_bit_by_bit) {
    myFont font = title();
    font.Size(std::numeric_limits<double>::quiet_NaN());
    const std::string data = stored(font);
    EXPECT_EQ(hex(data), hex(stored(restored(data))));
}

TEST(MyFont, reads_any_flag_but_0_as_set) {
    expect_values(restored(bytes("'s' 01 00 00 00 'A'  00 00 00 00 00 00 F0 3F"
                                 "00 01 00 00  00 00 00 80  00 00 00 00  FF FF FF FF")),
                  "A", 1, "bi-s");
}

TEST(MyFont, stays_as_it_was_when_the_store_ends_early) {
    const std::string data = stored(myFont("Courier New", 3, false, true, false, true));
    for (std::size_t length = 0; length < data.size(); ++length) {
        RecordingStore store(data.substr(0, length));
        myFont font = title();
        EXPECT_THROW(font.GetFrom(store), ObjectStore::UnexpectedEOF) << length;
        EXPECT_TRUE(title() == font) << length;
    }
}

TEST(MyFont, stays_as_it_was_when_something_else_is_stored) {
    RecordingStore store(bytes("02 00 00 00 'ab'"));
    myFont font = title();
    EXPECT_THROW(font.GetFrom(store), ObjectStore::UnexpectedObject);
    EXPECT_TRUE(title() == font);
}

TEST(MyFont, tells_of_every_write_that_fails) {
    RecordingStore whole;
    title().PutTo(whole);
    ASSERT_LT(0u, whole.calls.size());
    for (std::size_t write = 0; write < whole.calls.size(); ++write) {
        RecordingStore store;
        store.writes_until_failure = static_cast<long>(write);
        EXPECT_THROW(title().PutTo(store), ObjectStore::WriteFailure) << write;
    }
}

TEST(MyFont, goes_by_its_own_name_in_a_store) {
    EXPECT_STREQ("myFont", title().ClassName());
}

TEST(MyFont, is_a_member_of_what_shares_its_base) {
    struct Caption : public virtual Storable, public myFont {
        void PutTo(ObjectStore& store) const override {
            store << m_text;
            myFont::PutTo(store);
        }
        void GetFrom(ObjectStore& store) override {
            store >> m_text;
            myFont::GetFrom(store);
        }
        std::string m_text;
    };
    Caption caption;
    caption.m_text = "Roses";
    caption.Face("Arial");
    RecordingStore store;
    const Storable& object = caption;
    object.PutTo(store);
    store.Rewind();
    Caption other;
    static_cast<Storable&>(other).GetFrom(store);
    EXPECT_EQ("Roses", other.m_text);
    EXPECT_TRUE(caption == other);
}

TEST(MyFont, lets_a_host_hear_of_its_changes) {
    struct Heard : myFont {
        using myFont::Face;
        using myFont::Size;
        void Face(const std::string& face) override {
            heard += face;
            myFont::Face(face);
        }
        void Size(double size) override { heard += std::to_string(static_cast<int>(size)); }
        void Bold(bool) override { heard += 'b'; }
        void Italic(bool) override { heard += 'i'; }
        void Underline(bool) override { heard += 'u'; }
        void Strikeout(bool) override { heard += 's'; }
        std::string heard;
    };
    Heard font;
    myFont& base = font;
    base.Face("Arial");
    base.Size(3);
    base.Bold(true);
    base.Italic(true);
    base.Underline(true);
    base.Strikeout(true);
    EXPECT_EQ("Arial3bius", font.heard);
    EXPECT_EQ("Arial", base.Face());
}

TEST(MyFont, has_its_virtual_functions_in_order) {
    const auto first = slot_of(static_cast<void (myFont::*)(const std::string&)>(&myFont::Face));
    EXPECT_EQ(first + 1, slot_of(static_cast<void (myFont::*)(double)>(&myFont::Size)));
    EXPECT_EQ(first + 2, slot_of(static_cast<void (myFont::*)(bool)>(&myFont::Bold)));
    EXPECT_EQ(first + 3, slot_of(static_cast<void (myFont::*)(bool)>(&myFont::Italic)));
    EXPECT_EQ(first + 4, slot_of(static_cast<void (myFont::*)(bool)>(&myFont::Underline)));
    EXPECT_EQ(first + 5, slot_of(static_cast<void (myFont::*)(bool)>(&myFont::Strikeout)));
    EXPECT_EQ(slot_of(&myFont::PutTo) + 1, slot_of(&myFont::GetFrom));
}

TEST(MyFont, is_freed_with_all_of_it_also_when_it_is_null) {
    struct Counted : myFont {
        explicit Counted(int& theCount) : count(theCount) { ++count; }
        ~Counted() override { --count; }
        int& count;
    };
    int count = 0;
    auto* const font = new Counted(count);
    EXPECT_EQ(1, count);
    free_font(font);
    EXPECT_EQ(0, count);
    myFont* const volatile none = nullptr;
    free_font(none);
}

TEST(MyFont, lists_the_faces_that_there_are_in_order_each_once) {
    std::vector<std::string> faces;
    myFont::faces_available(faces);
    EXPECT_TRUE(std::is_sorted(faces.begin(), faces.end()));
    EXPECT_EQ(faces.end(), std::adjacent_find(faces.begin(), faces.end()));
    EXPECT_EQ(0, std::count(faces.begin(), faces.end(), ""));
    for (const char* const face : {"Liberation Mono", "Liberation Sans", "Liberation Serif"}) {
        EXPECT_EQ(1, std::count(faces.begin(), faces.end(), face)) << face;
    }
}

TEST(MyFont, lists_faces_among_those_that_are_in_the_list_already) {
    std::vector<std::string> plain;
    myFont::faces_available(plain);
    std::vector<std::string> faces = {"\xFF last", "Liberation Sans", " first", "\xFF last"};
    myFont::faces_available(faces);
    ASSERT_EQ(plain.size() + 3, faces.size());
    EXPECT_EQ(" first", faces.front());
    EXPECT_EQ("\xFF last", faces.back());
    EXPECT_EQ("\xFF last", faces[faces.size() - 2]);
    EXPECT_EQ(plain, std::vector<std::string>(faces.begin() + 1, faces.end() - 2));
}
