#include "owl/array.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace {

using owl::TArrayAsVector;
using Texts = TArrayAsVector<std::string>;

std::vector<std::string> Contents(const Texts& array) {
    return {array.begin(), array.end()};
}

Texts Letters(const std::string& letters, int lower = 0, int step = 5) {
    Texts array(9 + lower, lower, step);
    for (const char letter : letters)
        array.Add(std::string(1, letter));
    return array;
}

TEST(ArrayAsVector, starts_empty_with_the_room_asked_for) {
    const TArrayAsVector<int> array(9, 0, 5);
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(0, array.GetItemsInContainer());
    EXPECT_EQ(10u, array.ArraySize());
    EXPECT_EQ(0, array.LowerBound());
    EXPECT_EQ(9, array.UpperBound());
}

TEST(ArrayAsVector, has_no_room_when_its_upper_bound_is_below_its_lower) {
    TArrayAsVector<int> fixed(4, 5);
    EXPECT_EQ(0u, fixed.ArraySize());
    EXPECT_TRUE(fixed.IsFull());
    EXPECT_FALSE(fixed.Add(1));
    TArrayAsVector<int> growing(-7, 5, 2);
    EXPECT_TRUE(growing.Add(1));
    EXPECT_EQ(2u, growing.ArraySize());
    EXPECT_EQ(1, growing[5]);
}

TEST(ArrayAsVector, grows_by_its_step_when_it_is_full) {
    TArrayAsVector<int> array(1, 0, 3);
    array.Add(10);
    array.Add(11);
    EXPECT_EQ(2u, array.ArraySize());
    EXPECT_TRUE(array.Add(12));
    EXPECT_EQ(5u, array.ArraySize());
    EXPECT_EQ(3, array.GetItemsInContainer());
    EXPECT_EQ(12, array[2]);
}

TEST(ArrayAsVector, stays_as_it_is_when_full_without_a_step) {
    for (const int step : {0, -1}) {
        TArrayAsVector<int> array(1, 0, step);
        EXPECT_TRUE(array.Add(10));
        EXPECT_FALSE(array.IsFull());
        EXPECT_TRUE(array.Add(11));
        EXPECT_TRUE(array.IsFull());
        EXPECT_FALSE(array.Add(12));
        EXPECT_FALSE(array.AddAt(12, 0));
        EXPECT_EQ(2, array.GetItemsInContainer());
        EXPECT_EQ(10, array[0]);
    }
}

TEST(ArrayAsVector, counts_from_its_lower_bound) {
    Texts array = Letters("abc", -1);
    EXPECT_EQ("a", array[-1]);
    EXPECT_EQ("c", array[1]);
    EXPECT_EQ(1, array.Find("c"));
    EXPECT_TRUE(array.AddAt("x", -1));
    EXPECT_EQ("a", array[0]);
}

TEST(ArrayAsVector, put_in_between_moves_the_others_up) {
    Texts array = Letters("abc");
    EXPECT_TRUE(array.AddAt("x", 1));
    EXPECT_EQ((std::vector<std::string>{"a", "x", "b", "c"}), Contents(array));
    EXPECT_TRUE(array.AddAt("y", 4));
    EXPECT_EQ("y", array[4]);
}

TEST(ArrayAsVector, does_not_put_in_where_a_gap_would_be) {
    Texts array = Letters("abc");
    EXPECT_FALSE(array.AddAt("x", 4));
    EXPECT_FALSE(array.AddAt("x", -1));
    EXPECT_FALSE(array.AddAt("x", INT_MIN));
    EXPECT_FALSE(array.AddAt("x", INT_MAX));
    EXPECT_EQ(3, array.GetItemsInContainer());
}

TEST(ArrayAsVector, can_take_an_item_of_its_own_again_while_growing) {
    Texts array(0, 0, 1);
    array.Add("a text that is too long to lie inside of a string object");
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(array.AddAt(array[0], 0));
    EXPECT_EQ(array[0], array[20]);
}

TEST(ArrayAsVector, taken_out_moves_the_others_down) {
    Texts array = Letters("abcd");
    EXPECT_TRUE(array.Detach(1));
    EXPECT_EQ((std::vector<std::string>{"a", "c", "d"}), Contents(array));
    EXPECT_TRUE(array.Destroy(2));
    EXPECT_EQ((std::vector<std::string>{"a", "c"}), Contents(array));
    EXPECT_FALSE(array.Detach(2));
    EXPECT_FALSE(array.Detach(-1));
    EXPECT_FALSE(array.Destroy(INT_MIN));
    EXPECT_EQ(2, array.GetItemsInContainer());
}

TEST(ArrayAsVector, takes_out_pointers_without_deleting_what_they_point_at) {
    int value = 7;
    TArrayAsVector<int*> array(0);
    array.Add(&value);
    array.Destroy(0);
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(7, value);
}

TEST(ArrayAsVector, keeps_its_room_when_all_is_taken_out) {
    Texts array = Letters("abcdefghijk");
    EXPECT_EQ(15u, array.ArraySize());
    array.Flush();
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(15u, array.ArraySize());
}

TEST(ArrayAsVector, finds_the_first_of_equal_items) {
    const Texts array = Letters("abab");
    EXPECT_EQ(1, array.Find("b"));
    EXPECT_EQ(Texts::NotFound, array.Find("c"));
}

// A subscript's error, as hosts know it by its text.
std::string SubscriptError(const Texts& array, int index) {
    try {
        return array[index];
    } catch (const std::out_of_range& error) {
        return error.what();
    }
}

TEST(ArrayAsVector, a_subscript_without_an_item_throws) {
    const Texts array = Letters("abc");
    EXPECT_EQ("c", SubscriptError(array, 2));
    EXPECT_EQ("invalid vector<T> subscript", SubscriptError(array, 3));
    EXPECT_EQ("invalid vector<T> subscript", SubscriptError(array, -1));
    EXPECT_EQ("invalid vector<T> subscript", SubscriptError(array, INT_MIN));
    EXPECT_EQ("invalid vector<T> subscript", SubscriptError(array, INT_MAX));
    Texts other = Letters("");
    EXPECT_THROW(other[0], std::out_of_range);
}

TEST(ArrayAsVector, an_item_can_be_changed_through_its_subscript) {
    Texts array = Letters("abc");
    array[1] = "x";
    EXPECT_EQ((std::vector<std::string>{"a", "x", "c"}), Contents(array));
}

TEST(ArrayAsVector, does_not_grow_past_the_last_index_that_can_be_told) {
    TArrayAsVector<int> array(INT_MAX - 2, INT_MAX - 3, 1);
    EXPECT_TRUE(array.Add(1));
    EXPECT_TRUE(array.Add(2));
    EXPECT_TRUE(array.Add(3));
    EXPECT_EQ(INT_MAX - 1, array.UpperBound());
    EXPECT_TRUE(array.IsFull());
    EXPECT_FALSE(array.Add(4));
    EXPECT_EQ(INT_MAX - 1, array.Find(3));
}

// The bounds were added up in a way that overflowed.
TEST(Array, has_room_for_all_indices_but_the_one_that_means_none) {
    const TArrayAsVector<int> top(INT_MAX, 10);
    EXPECT_EQ(INT_MAX - 1, top.UpperBound());
    EXPECT_EQ(static_cast<unsigned>(INT_MAX) - 10, top.ArraySize());
    const TArrayAsVector<int> all(INT_MAX, INT_MIN);
    EXPECT_EQ(INT_MAX - 1, all.UpperBound());
    EXPECT_EQ(0xFFFFFFFFu, all.ArraySize());
    TArrayAsVector<int> none(INT_MAX, INT_MAX);
    EXPECT_FALSE(none.Add(1));
    EXPECT_EQ(INT_MAX - 1, none.UpperBound());
}

}  // namespace
