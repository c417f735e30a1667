#include "lvx/store/object_frame.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

using lvx::store::Frame;
using lvx_test::bytes;

namespace {

const unsigned char* data_of(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

}  // namespace

TEST(Frame, a_reference_tells_its_id_and_the_mode) {
    const std::string text = bytes("'BO' 78 56 34 12 'B'");
    ASSERT_EQ(Frame::size, text.size());
    const Frame frame(data_of(text));
    EXPECT_TRUE(frame.IsReference());
    EXPECT_FALSE(frame.IsBody());
    EXPECT_FALSE(frame.IsAscii());
    EXPECT_EQ(0x12345678, frame.Number());
}

TEST(Frame, a_class_number_may_be_negative_in_a_damaged_store) {
    const std::string text = bytes("'AC' FE FF FF FF 'o'");
    const Frame frame(data_of(text));
    EXPECT_TRUE(frame.IsBody());
    EXPECT_FALSE(frame.IsReference());
    EXPECT_TRUE(frame.IsAscii());
    EXPECT_EQ(-2, frame.Number());
}

TEST(Frame, other_beginnings_are_neither) {
    for (const char* const text : {"Bc\1\0\0\0o", "B0\0\0\0\0o", "OC\0\0\0\0o", "CO\0\0\0\0o", "AAO\0\0\0o",
                                   "BC\0\0\0\0x", "Bo\0\0\0\0o"}) {
        const Frame frame(reinterpret_cast<const unsigned char*>(text));
        EXPECT_FALSE(frame.IsReference()) << text;
        EXPECT_FALSE(frame.IsBody()) << text;
    }
}

TEST(Frame, no_bytes_are_neither) {
    const Frame frame(nullptr);
    EXPECT_FALSE(frame.IsReference());
    EXPECT_FALSE(frame.IsBody());
}

TEST(Frame, a_tagged_number_is_five_bytes) {
    std::string text(lvx::store::tagged_number_size, '\0');
    lvx::store::encode_tagged_number('C', 0x01020304, reinterpret_cast<unsigned char*>(text.data()));
    EXPECT_EQ(lvx_test::hex(bytes("'C' 04 03 02 01")), lvx_test::hex(text));
}
