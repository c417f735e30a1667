#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <sstream>

#include "lvx/store/object_store.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_stream.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::bytes;
using lvx_test::hex;
using lvx_test::RecordingStore;

namespace {

template <class... Values>
std::string stored(const Values&... values) {
    RecordingStore store;
    (store << ... << values);
    return store.Data();
}

template <class Value>
Value restored(const std::string& notation) {
    RecordingStore store(bytes(notation));
    Value value{};
    store >> value;
    return value;
}

// The same values through each kind of store of the library, which reach past the virtual operations.
template <class... Values>
std::string stored_in_stream(const Values&... values) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    (store << ... << values);
    return stream.str();
}

template <class... Values>
std::string stored_in_file(const Values&... values) {
    const lvx_test::TempFolder folder;
    ObjectStoreFile store;
    EXPECT_TRUE(store.OpenStream(folder.File("values").c_str(), ObjectStore::ForWrite));
    (store << ... << values);
    store.CloseStream();
    return lvx_test::read_file(folder.File("values"));
}

template <class Value>
void expect_bytes(const Value& value, const std::string& notation) {
    const std::string expected = hex(bytes(notation));
    EXPECT_EQ(expected, hex(stored(value)));
    EXPECT_EQ(expected, hex(stored_in_stream(value)));
    EXPECT_EQ(expected, hex(stored_in_file(value)));
}

}  // namespace

TEST(StoredValues, a_bool_is_an_int_of_0_or_1) {
    expect_bytes(true, "01 00 00 00");
    expect_bytes(false, "00 00 00 00");
}

TEST(StoredValues, any_int_but_0_reads_as_true) {
    EXPECT_TRUE(restored<bool>("02 00 00 00"));
    EXPECT_TRUE(restored<bool>("00 00 00 80"));
    EXPECT_FALSE(restored<bool>("00 00 00 00"));
}

TEST(StoredValues, an_int_takes_4_bytes_lowest_first) {
    expect_bytes(0x12345678, "78 56 34 12");
    expect_bytes(-1, "FF FF FF FF");
    expect_bytes(INT_MIN, "00 00 00 80");
    expect_bytes(INT_MAX, "FF FF FF 7F");
    EXPECT_EQ(0x12345678, restored<int>("78 56 34 12"));
    EXPECT_EQ(-2, restored<int>("FE FF FF FF"));
}

TEST(StoredValues, a_long_takes_the_4_bytes_of_an_int) {
    expect_bytes(3L, "03 00 00 00");
    expect_bytes(-3L, "FD FF FF FF");
    EXPECT_EQ(-3L, restored<long>("FD FF FF FF"));
    EXPECT_EQ(0x7FFFFFFFL, restored<long>("FF FF FF 7F"));
}

TEST(StoredValues, a_long_that_needs_more_than_4_bytes_is_refused_before_anything_is_written) {
    if constexpr (sizeof(long) > 4) {
        RecordingStore store;
        const long too_long = static_cast<long>(INT_MAX) + 1;
        EXPECT_THROW_TEXT(store << too_long, ObjectStore::WriteFailure, lvx_test::write_failure);
        EXPECT_THROW(store << (static_cast<long>(INT_MIN) - 1), ObjectStore::WriteFailure);
        EXPECT_EQ("", store.Calls());
    } else {
        expect_bytes(LONG_MIN, "00 00 00 80");
    }
}

TEST(StoredValues, a_float_is_stored_as_a_double) {
    expect_bytes(1.5f, "00 00 00 00 00 00 F8 3F");
    EXPECT_EQ(1.5, restored<double>("00 00 00 00 00 00 F8 3F"));
    EXPECT_EQ(1.5f, restored<float>("00 00 00 00 00 00 F8 3F"));
    EXPECT_EQ(0.1f, restored<float>("9A 99 99 99 99 99 B9 3F"));
}

TEST(StoredValues, a_double_takes_its_8_bytes_lowest_first) {
    expect_bytes(10.0, "00 00 00 00 00 00 24 40");
    expect_bytes(-0.0, "00 00 00 00 00 00 00 80");
    expect_bytes(std::numeric_limits<double>::infinity(), "00 00 00 00 00 00 F0 7F");
    EXPECT_EQ(8.0, restored<double>("00 00 00 00 00 00 20 40"));
}

TEST(StoredValues, a_char_is_its_byte) {
    expect_bytes('x', "78");
    expect_bytes('\xFF', "FF");
    expect_bytes('\0', "00");
    EXPECT_EQ('\xFF', restored<char>("FF"));
}

TEST(StoredValues, a_c_string_has_its_length_and_its_nul) {
    expect_bytes(static_cast<const char*>("ab"), "02 00 00 00 61 62 00");
}

TEST(StoredValues, null_and_the_empty_c_string_are_four_zero_bytes) {
    expect_bytes(static_cast<const char*>(nullptr), "00 00 00 00");
    expect_bytes(static_cast<const char*>(""), "00 00 00 00");
}

TEST(StoredValues, a_c_string_reads_into_a_new_array) {
    RecordingStore store(bytes("02 00 00 00 61 62 00 'next'"));
    char* text = nullptr;
    store >> text;
    const lvx::auto_array<char> owner(text);
    EXPECT_STREQ("ab", text);
    EXPECT_EQ('n', store.GetChar());
}

TEST(StoredValues, a_null_c_string_comes_back_empty_and_not_null) {
    RecordingStore store(bytes("00 00 00 00"));
    char* text = nullptr;
    store >> text;
    const lvx::auto_array<char> owner(text);
    ASSERT_NE(nullptr, text);
    EXPECT_STREQ("", text);
}

TEST(StoredValues, a_c_string_is_terminated_whatever_its_stored_nul_is) {
    RecordingStore store(bytes("02 00 00 00 61 62 63"));
    char* text = nullptr;
    store >> text;
    const lvx::auto_array<char> owner(text);
    EXPECT_STREQ("ab", text);
}

TEST(StoredValues, a_string_has_a_tag_and_no_nul) {
    expect_bytes(std::string("ab"), "73 02 00 00 00 61 62");
}

TEST(StoredValues, an_empty_string_is_written_and_read_by_every_kind_of_store) {
    expect_bytes(std::string(), "73 00 00 00 00");
    std::string text = "old";
    RecordingStore store(bytes("73 00 00 00 00"));
    store >> text;
    EXPECT_EQ("", text);
}

TEST(StoredValues, a_string_keeps_its_nuls_in_the_store_and_is_cut_at_the_first_on_reading) {
    const std::string with_nul("a\0b", 3);
    expect_bytes(with_nul, "73 03 00 00 00 61 00 62");
    RecordingStore store(bytes("73 03 00 00 00 61 00 62 05"));
    std::string text;
    store >> text;
    EXPECT_EQ("a", text);
    EXPECT_EQ('\x05', store.GetChar());
}

TEST(StoredValues, the_calls_that_a_host_sees_are_one_per_piece) {
    RecordingStore store;
    store << true << 1 << 2L << 1.5f << 2.5 << 'c';
    EXPECT_EQ("W4 W4 W4 W8 W8 W1", store.Calls());
    store.calls.clear();
    store << "ab"
          << "" << std::string("ab") << std::string();
    EXPECT_EQ("W4 W3 W4 W1 W4 W2 W1 W4 W0", store.Calls());
}

TEST(StoredValues, the_calls_that_a_host_sees_on_reading_mirror_those_of_writing) {
    RecordingStore store;
    store << true << 1 << 2L << 1.5f << 2.5 << 'c' << "ab"
          << "" << std::string("ab") << std::string();
    store.Rewind();
    bool flag = false;
    int number = 0;
    long long_number = 0;
    float single = 0;
    double ratio = 0;
    char letter = 0;
    char* text = nullptr;
    char* empty = nullptr;
    std::string first;
    std::string second;
    store >> flag >> number >> long_number >> single >> ratio >> letter >> text >> empty >> first >> second;
    EXPECT_EQ("R4 R4 R4 R8 R8 R1 R4 R3 R4 G R4 R2 G R4", store.Calls());
    delete[] text;
    delete[] empty;
}

TEST(StoredValues, reading_the_end_throws_and_leaves_the_value) {
    RecordingStore store(bytes("01 02"));
    int number = 7;
    EXPECT_THROW_TEXT(store >> number, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    EXPECT_EQ(7, number);
}

TEST(StoredValues, a_number_where_a_string_is_expected_is_told_as_a_null_pointer) {
    RecordingStore store(bytes("05 00 00 00"));
    std::string text = "old";
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found null pointer");
    EXPECT_EQ("", text);
    EXPECT_EQ(1u, store.Position());
}

TEST(StoredValues, a_null_pointer_where_a_string_is_expected_is_told) {
    RecordingStore store(bytes("'B0'"));
    std::string text;
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found null pointer");
}

TEST(StoredValues, another_object_where_a_string_is_expected_is_told_by_its_class) {
    RecordingStore store(bytes("'Bclvx::Pen' 0D 0A 'o'"));
    std::string text;
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected  a String, found lvx::Pen");
}

TEST(StoredValues, the_older_string_objects_are_read) {
    RecordingStore store(bytes("'BcVString' 0D 0A 'o' 02 00 00 00 'ab' 00 'BC' 00 00 00 00 'o' 00 00 00 00"));
    std::string first;
    std::string second = "old";
    store >> first >> second;
    EXPECT_EQ("ab", first);
    EXPECT_EQ("", second);
    EXPECT_EQ("VString", store.ClassName());
}

TEST(StoredValues, an_older_string_without_its_body_is_told) {
    RecordingStore store(bytes("'BcVString' 0D 0A 'x'"));
    std::string text;
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected  a String o, found x");
}

TEST(StoredValues, an_older_string_takes_an_object_number_and_a_class_number) {
    lvx_test::register_shapes();
    RecordingStore store(
        bytes("'BcVString' 0D 0A 'o' 01 00 00 00 'a' 00"
              "'Bclvx_test::Node' 0D 0A 'o' 05 00 00 00 00 00 00 00"
              "'BC' 01 00 00 00 'o' 06 00 00 00 00 00 00 00"
              "'BO' 01 00 00 00 'BO' 00 00 00 00"));
    std::string text;
    Storable* first = nullptr;
    Storable* second = nullptr;
    Storable* again = nullptr;
    lvx_test::Node marker;
    Storable* string_object = &marker;
    store >> text >> first >> second >> again >> string_object;
    EXPECT_EQ(first, again);
    EXPECT_EQ(nullptr, string_object);
    EXPECT_EQ(6, dynamic_cast<lvx_test::Node&>(*second).m_number);
    delete first;
    delete second;
}

TEST(StoredValues, a_reference_where_a_string_is_expected_is_told_by_its_type_and_deleted) {
    lvx_test::register_shapes();
    RecordingStore store(
        bytes("'Bclvx_test::Node' 0D 0A 'o' 05 00 00 00 00 00 00 00 'BO' 00 00 00 00 'BO' 00 00 00 00"));
    Storable* node = nullptr;
    store >> node;
    std::string text;
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found lvx_test::Node");
    EXPECT_EQ(0, lvx_test::Node::alive);
    Storable* again = node;
    store >> again;
    EXPECT_EQ(nullptr, again) << "a deleted object was handed out";
}

// Damaged documents crashed here: a leaf whose name was a reference to the leaf itself was deleted twice.
TEST(StoredValues, an_object_that_is_being_read_is_not_deleted_in_place_of_a_string) {
    lvx_test::register_shapes();
    RecordingStore store(
        bytes("'Bclvx_test::inner::Leaf' 0D 0A 'o' 01 00 00 00 00 00 00 00 00 00 00 00"
              "'BO' 00 00 00 00"
              "'BO' 00 00 00 00"));
    const int before = lvx_test::inner::Leaf::alive;
    Storable* leaf = nullptr;
    EXPECT_THROW_TEXT(store >> leaf, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found lvx_test::inner::Leaf");
    EXPECT_EQ(before, lvx_test::inner::Leaf::alive);
    store >> leaf;
    EXPECT_EQ(nullptr, leaf) << "a deleted object was handed out";
}

TEST(StoredValues, an_owner_that_is_being_read_is_not_deleted_in_place_of_a_members_string) {
    lvx_test::register_shapes();
    RecordingStore store(
        bytes("'Bclvx_test::Node' 0D 0A 'o' 01 00 00 00 01 00 00 00"
              "'Bclvx_test::inner::Leaf' 0D 0A 'o' 01 00 00 00 00 00 00 00 00 00 00 00"
              "'BO' 00 00 00 00"));
    const int nodes = lvx_test::Node::alive;
    const int leaves = lvx_test::inner::Leaf::alive;
    Storable* node = nullptr;
    EXPECT_THROW_TEXT(store >> node, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found lvx_test::Node");
    EXPECT_EQ(nodes, lvx_test::Node::alive);
    EXPECT_EQ(leaves, lvx_test::inner::Leaf::alive);
}

// Damaged documents crashed here: an object on the stack was deleted.
TEST(StoredValues, an_object_of_the_caller_is_not_deleted_in_place_of_a_string) {
    RecordingStore store(bytes("'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00 'BO' 00 00 00 00"));
    lvx_test::Node node;
    Storable* object = &node;
    std::string text;
    store >> ObjectStore::NoCreate >> object;
    EXPECT_THROW_TEXT(store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found lvx_test::Node");
    EXPECT_EQ(7, node.m_number);
}

TEST(StoredValues, a_string_read_behind_NoCreate_needs_no_object) {
    for (const char* notation : {"'B0'", "'BO' 00 00 00 00", "'x'"}) {
        RecordingStore store(bytes(notation));
        std::string text;
        EXPECT_THROW(store >> ObjectStore::NoCreate >> text, ObjectStore::UnexpectedObject) << notation;
    }
    RecordingStore good(bytes("73 01 00 00 00 'a'"));
    std::string text;
    good >> ObjectStore::NoCreate >> text;
    EXPECT_EQ("a", text);
}

TEST(StoredLengths, a_negative_one_ends_at_the_end_of_the_data) {
    for (const char* notation : {"FF FF FF FF 'abc'", "00 00 00 80 'abc'", "F6 FF FF FF 'abc'"}) {
        RecordingStore store(bytes(notation));
        char* text = nullptr;
        EXPECT_THROW(store >> text, ObjectStore::UnexpectedEOF) << notation;
        EXPECT_EQ(nullptr, text);
        RecordingStore tagged(bytes(std::string("'s'") + notation));
        std::string string = "old";
        EXPECT_THROW(tagged >> string, ObjectStore::UnexpectedEOF) << notation;
        EXPECT_EQ("", string);
    }
}

TEST(StoredLengths, one_beyond_the_end_of_a_file_leaves_nothing_to_read_whatever_it_is) {
    const lvx_test::TempFolder folder;
    for (const char* length : {"10 00 00 00", "00 10 00 00", "01 10 00 00", "FE FF FF 7F"}) {
        lvx_test::write_file(folder.File("short"), bytes("'s'") + bytes(length) + "abc");
        ObjectStoreFile store;
        ASSERT_TRUE(store.OpenStream(folder.File("short").c_str(), ObjectStore::ForRead));
        std::string text;
        EXPECT_THROW(store >> text, ObjectStore::UnexpectedEOF) << length;
        EXPECT_THROW(store.GetChar(), ObjectStore::UnexpectedEOF) << length;
    }
}

TEST(StoredLengths, an_absurd_one_on_a_hosts_medium_ends_in_an_exception_that_hosts_expect) {
    RecordingStore store(bytes("'s' FF FF FF 7F"));
    std::string text;
    try {
        store >> text;
        FAIL() << "nothing was thrown";
    } catch (const ObjectStore::UnexpectedEOF&) {
    } catch (const std::bad_alloc&) {
        // Where there is no memory for it, as on systems of 32 bits.
    }
}

TEST(StoredLengths, one_that_the_data_do_not_have_throws) {
    RecordingStore store(bytes("05 00 00 00 'abc'"));
    char* text = nullptr;
    EXPECT_THROW(store >> text, ObjectStore::UnexpectedEOF);
    EXPECT_EQ(nullptr, text);
}

TEST(StoredLengths, an_absurd_one_takes_no_memory_for_what_a_file_or_a_stream_does_not_have) {
    const lvx_test::TempFolder folder;
    const std::string data = bytes("FE FF FF 7F 'abc'");
    lvx_test::write_file(folder.File("absurd"), data);
    ObjectStoreFile file;
    ASSERT_TRUE(file.OpenStream(folder.File("absurd").c_str(), ObjectStore::ForRead));
    char* text = nullptr;
    EXPECT_THROW_TEXT(file >> text, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);

    std::istringstream stream("s" + data);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    std::string string;
    EXPECT_THROW_TEXT(store >> string, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}
