#include "lvx/store/object_store.h"

#include <gtest/gtest.h>

#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"

using lvx_test::bytes;
using lvx_test::RecordingStore;

TEST(StoreErrors, have_their_words) {
    EXPECT_STREQ("Object store is not open.", ObjectStore::NotOpen().what());
    EXPECT_STREQ("Unexpected end of file.", ObjectStore::UnexpectedEOF().what());
    EXPECT_STREQ("Object store is open in the wrong mode to perform the operation.",
                 ObjectStore::WrongMode().what());
    EXPECT_STREQ("Failed to write to object store.", ObjectStore::WriteFailure().what());
}

TEST(StoreErrors, an_unexpected_object_tells_the_expected_one_first) {
    EXPECT_STREQ("Unexpected object in the store: expected a Star, found a Moon",
                 ObjectStore::UnexpectedObject(std::string("a Moon"), "a Star").what());
    EXPECT_STREQ("Unexpected object in the store: expected a Star, found x",
                 ObjectStore::UnexpectedObject('x', "a Star").what());
}

TEST(StoreErrors, an_unexpected_character_is_told_raw) {
    EXPECT_STREQ("Unexpected object in the store: expected a Star, found \x01",
                 ObjectStore::UnexpectedObject('\x01', "a Star").what());
}

TEST(StoreErrors, belong_to_the_librarys_family) {
    EXPECT_THROW(throw ObjectStore::NotOpen(), lvx::runtime_error);
    EXPECT_THROW(throw ObjectStore::UnexpectedEOF(), lvx::runtime_error);
    EXPECT_THROW(throw ObjectStore::WrongMode(), lvx::runtime_error);
    EXPECT_THROW(throw ObjectStore::WriteFailure(), lvx::runtime_error);
    EXPECT_THROW(throw ObjectStore::UnexpectedObject('x', ""), lvx::runtime_error);
}

TEST(Store, modes_have_their_numbers) {
    EXPECT_EQ(0, ObjectStore::ForRead);
    EXPECT_EQ(1, ObjectStore::ForWrite);
}

TEST(Store, the_version_is_0_until_it_is_read) {
    RecordingStore store(bytes("07 00 00 00"));
    EXPECT_EQ(0, store.GetVersion());
    store.ReadVersion();
    EXPECT_EQ(7, store.GetVersion());
}

TEST(Store, a_version_behind_the_end_keeps_the_earlier_one) {
    RecordingStore store(bytes("07 00 00 00 01"));
    store.ReadVersion();
    EXPECT_THROW(store.ReadVersion(), ObjectStore::UnexpectedEOF);
    EXPECT_EQ(7, store.GetVersion());
}

TEST(Store, a_negative_version_stays_negative) {
    RecordingStore store(bytes("FE FF FF FF"));
    store.ReadVersion();
    EXPECT_EQ(-2, store.GetVersion());
}

TEST(Store, the_version_outlives_CloseStream) {
    RecordingStore store(bytes("07 00 00 00"));
    store.ReadVersion();
    store.CloseStream();
    EXPECT_EQ(7, store.GetVersion());
}

TEST(Store, the_class_name_is_empty_before_any_object) {
    const RecordingStore store;
    EXPECT_EQ("", store.ClassName());
}

TEST(Store, manipulators_return_the_store) {
    RecordingStore store;
    EXPECT_EQ(&store, &(store << ObjectStore::TempObject));
    EXPECT_EQ(&store, &(store >> ObjectStore::NoCreate));
    EXPECT_EQ(&store, &(store << ObjectStore::Ascii(true)));
    EXPECT_EQ(&store, &(store >> ObjectStore::Ascii(false)));
    EXPECT_EQ("", store.Calls()) << "a manipulator moves no byte";
}

TEST(Store, the_ascii_manipulator_sets_the_marker) {
    class Empty : public Storable {
    public:
        void PutTo(ObjectStore&) const override {}
        void GetFrom(ObjectStore&) override {}
        const char* ClassName() const override { return "E"; }
    };
    const Empty first;
    const Empty second;
    RecordingStore store;
    store << ObjectStore::Ascii(true) << first << ObjectStore::Ascii(false) << second
          << ObjectStore::Ascii(true) << second;
    EXPECT_EQ("AcE\r\no" + bytes("'BC' 00 00 00 00 'o' 'AO' 01 00 00 00"), store.Data());
}

TEST(Store, values_on_a_closed_store_throw_out_of_their_first_byte) {
    RecordingStore store;
    store.CloseStream();
    int number = 0;
    EXPECT_THROW_TEXT(store << 1, ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(store >> number, ObjectStore::NotOpen, lvx_test::not_open);
}

TEST(Store, values_against_the_direction_throw) {
    RecordingStore writing;
    RecordingStore reading{std::string()};
    std::string text;
    EXPECT_THROW_TEXT(writing >> text, ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(reading << "a", ObjectStore::WrongMode, lvx_test::wrong_mode);
}

TEST(Store, an_empty_store_ends_at_its_first_value) {
    RecordingStore store{std::string()};
    char c = 'x';
    EXPECT_THROW(store >> c, ObjectStore::UnexpectedEOF);
    EXPECT_EQ('x', c);
}

TEST(Store, ExpectBytes_refuses_a_negative_length_on_every_kind_of_store) {
    RecordingStore store{std::string()};
    EXPECT_THROW(store.ExpectBytes(-1), ObjectStore::UnexpectedEOF);
    EXPECT_NO_THROW(store.ExpectBytes(0));
    EXPECT_NO_THROW(store.ExpectBytes(1LL << 40)) << "a host's medium cannot be asked";
}
