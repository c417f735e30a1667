// Bitmaps in a store.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_factory.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::Info;
using lvx_test::little_endian;
using lvx_test::make_block;
using LVXUtilities::DIBitmap;

std::string small_picture() {
    return Info{}.Header() + bytes("01020300");
}

void read_from(const std::string& data, DIBitmap& bitmap) {
    std::istringstream stream(data);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    bitmap.GetFrom(store);
}

// Puts FixUp back at the end of the test.
class WithFixUp {
public:
    WithFixUp() { DIBitmap::FixUp = true; }
    WithFixUp(const WithFixUp&) = delete;
    WithFixUp& operator=(const WithFixUp&) = delete;
    ~WithFixUp() { DIBitmap::FixUp = false; }
};

TEST(DIBitmapInStore, is_its_size_and_its_block) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    EXPECT_BYTES(bytes("2C000000") + small_picture(), lvx_test::stored(bitmap));
}

TEST(DIBitmapInStore, is_written_in_two_pieces) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    lvx_test::RecordingStore store;
    bitmap.PutTo(store);
    EXPECT_EQ((std::vector<std::string>{"W4", "W44"}), store.calls);
}

TEST(DIBitmapInStore, keeps_what_is_behind_the_pixels) {
    const std::string data = small_picture() + "any more bytes";
    const DIBitmap bitmap(make_block(data), DIBitmap::Adopt);
    EXPECT_BYTES(little_endian(58, 4) + data, lvx_test::stored(bitmap));
}

TEST(DIBitmapInStore, an_empty_one_is_a_size_of_zero) {
    EXPECT_BYTES(bytes("00000000"), lvx_test::stored(DIBitmap(nullptr, DIBitmap::Copy)));
}

TEST(DIBitmapInStore, is_read_back_into_an_empty_one) {
    DIBitmap bitmap(nullptr, DIBitmap::Copy);
    read_from(bytes("2C000000") + small_picture(), bitmap);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
    EXPECT_EQ(0x04030201, bitmap.GetPixelsPerMetreX());
}

TEST(DIBitmapInStore, reading_chooses_the_reader_afresh) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    read_from(little_endian(18, 4) + lvx_test::core_header(300, 200, 1) + "abcdef", bitmap);
    EXPECT_EQ(owl::TSize(300, 200), bitmap.GetSize());
    EXPECT_EQ(0, bitmap.GetPixelsPerMetreX());
    read_from(bytes("2C000000") + small_picture(), bitmap);
    EXPECT_EQ(owl::TSize(1, 1), bitmap.GetSize());
}

TEST(DIBitmapInStore, reading_no_bytes_leaves_a_block_of_none) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    read_from(bytes("00000000"), bitmap);
    EXPECT_EQ(owl::TSize(0, 0), bitmap.GetSize());
    EXPECT_BYTES("", block_of(bitmap));
}

TEST(DIBitmapInStore, fix_up_lengthens_the_block_by_24_zeros) {
    DIBitmap bitmap(nullptr, DIBitmap::Copy);
    {
        const WithFixUp fix_up;
        read_from(bytes("2C000000") + small_picture(), bitmap);
    }
    EXPECT_BYTES(bytes("44000000") + small_picture() + std::string(24, '\0'), lvx_test::stored(bitmap));
}

TEST(DIBitmapInStore, a_short_medium_is_told_before_memory_is_taken) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    EXPECT_THROW_TEXT(read_from(bytes("FFFFFF7F") + small_picture(), bitmap), ObjectStore::UnexpectedEOF,
                      lvx_test::unexpected_eof);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmapInStore, a_negative_size_is_the_end_of_the_data) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    EXPECT_THROW_TEXT(read_from(bytes("FFFFFFFF") + small_picture(), bitmap), ObjectStore::UnexpectedEOF,
                      lvx_test::unexpected_eof);
    EXPECT_THROW_TEXT(read_from(bytes("00000080") + small_picture(), bitmap), ObjectStore::UnexpectedEOF,
                      lvx_test::unexpected_eof);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmapInStore, a_read_that_fails_leaves_what_came_and_zeros_and_no_lock) {
    DIBitmap bitmap(nullptr, DIBitmap::Copy);
    lvx_test::RecordingStore store(bytes("2C000000") + small_picture().substr(0, 20));
    EXPECT_THROW(bitmap.GetFrom(store), ObjectStore::UnexpectedEOF);
    // A block that can still be replaced.
    read_from(bytes("2C000000") + small_picture(), bitmap);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmapInStore, a_size_that_fix_up_takes_beyond_the_limit_finds_no_memory) {
    const WithFixUp fix_up;
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    // A host's store, of which no length is known.
    lvx_test::RecordingStore store(bytes("FFFFFF7F"));
    EXPECT_THROW(bitmap.GetFrom(store), std::bad_alloc);
    EXPECT_EQ(nullptr, bitmap.GetBitsAddress().get());
    EXPECT_EQ(owl::TSize(0, 0), bitmap.GetSize());
}

TEST(DIBitmapInStore, the_wrong_direction_passes_through) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    lvx_test::RecordingStore writing;
    EXPECT_THROW_TEXT(bitmap.GetFrom(writing), ObjectStore::WrongMode, lvx_test::wrong_mode);
    lvx_test::RecordingStore reading((std::string()));
    EXPECT_THROW_TEXT(bitmap.PutTo(reading), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmapFactory, knows_the_class_by_its_bare_name) {
    EXPECT_TRUE(ObjectFactory::IsRegistered("DIBitmap"));
    EXPECT_FALSE(ObjectFactory::IsRegistered("LVXUtilities::DIBitmap"));
}

TEST(DIBitmapFactory, writes_the_qualified_name_once) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << bitmap << bitmap;
    EXPECT_BYTES(
        bytes("'Bc' 'LVXUtilities::DIBitmap' 0D0A 'o' 2C000000") + small_picture() + bytes("'BO' 00000000"),
        stream.str());
}

TEST(DIBitmapFactory, makes_one_object_of_two_references) {
    std::istringstream stream(bytes("'Bc' 'LVXUtilities::DIBitmap' 0D0A 'o' 2C000000") + small_picture() +
                              bytes("'BO' 00000000"));
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::istream*>(&stream));
    Storable* first = nullptr;
    Storable* second = nullptr;
    store >> first >> second;
    const std::unique_ptr<Storable> owner(first);
    EXPECT_EQ(first, second);
    const auto* const bitmap = dynamic_cast<const DIBitmap*>(first);
    ASSERT_NE(nullptr, bitmap);
    EXPECT_BYTES(small_picture(), block_of(*bitmap));
}

TEST(DIBitmapFactory, frees_the_object_that_could_not_be_read) {
    // The sanitizers see what would be left.
    std::istringstream stream(bytes("'Bc' 'LVXUtilities::DIBitmap' 0D0A 'o' FFFFFFFF"));
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::istream*>(&stream));
    Storable* object = nullptr;
    EXPECT_THROW(store >> object, ObjectStore::UnexpectedEOF);
    EXPECT_EQ(nullptr, object);
}

TEST(DIBitmapFactory, reads_into_an_existing_object) {
    DIBitmap bitmap(nullptr, DIBitmap::Copy);
    std::istringstream stream(bytes("'Bc' 'LVXUtilities::DIBitmap' 0D0A 'o' 2C000000") + small_picture());
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::istream*>(&stream));
    Storable* object = &bitmap;
    store >> ObjectStore::NoCreate >> object;
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

}  // namespace
