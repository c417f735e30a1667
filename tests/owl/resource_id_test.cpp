#include "owl/resource_id.h"

#include <gtest/gtest.h>

namespace {

using owl::TResId;

TEST(ResId, names_nothing_when_nothing_is_given) {
    EXPECT_TRUE(TResId().IsNull());
    EXPECT_TRUE(TResId(0).IsNull());
    EXPECT_TRUE(TResId(nullptr).IsNull());
    EXPECT_FALSE(TResId().IsString());
    EXPECT_EQ(0, TResId().GetNumber());
}

TEST(ResId, is_a_number_in_the_low_16_bits_of_a_pointer) {
    const TResId id(7060);
    EXPECT_FALSE(id.IsNull());
    EXPECT_FALSE(id.IsString());
    EXPECT_EQ(7060, id.GetNumber());
    const char* name = id;
    EXPECT_EQ(std::uintptr_t{7060}, reinterpret_cast<std::uintptr_t>(name));
    EXPECT_EQ(65535, TResId(65535).GetNumber());
}

TEST(ResId, takes_the_low_16_bits_of_a_number) {
    EXPECT_EQ(1, TResId(65537).GetNumber());
    EXPECT_EQ(65535, TResId(-1).GetNumber());
    EXPECT_FALSE(TResId(-1).IsString());
}

TEST(ResId, is_a_text_that_it_does_not_copy) {
    const char text[] = "QUES";
    const TResId id(text);
    EXPECT_TRUE(id.IsString());
    EXPECT_FALSE(id.IsNull());
    EXPECT_EQ(0, id.GetNumber());
    EXPECT_EQ(text, static_cast<const char*>(id));
}

}  // namespace
