#include "lvx/store/storable.h"

#include <gtest/gtest.h>

#include <string>

#include "support/shapes.h"

class PlainName : public lvx_test::Node {};

namespace {
class Hidden : public lvx_test::Node {};
template <class T>
class Template : public lvx_test::Node {};
}  // namespace

TEST(ClassName, is_the_plain_source_form) {
    EXPECT_STREQ("PlainName", PlainName().ClassName());
    EXPECT_STREQ("lvx_test::Node", lvx_test::Node().ClassName());
    EXPECT_STREQ("lvx_test::inner::Leaf", lvx_test::inner::Leaf().ClassName());
    EXPECT_STREQ("(anonymous namespace)::Hidden", Hidden().ClassName());
    EXPECT_STREQ("(anonymous namespace)::Template<int>", Template<int>().ClassName());
}

TEST(ClassName, is_that_of_the_most_derived_class) {
    const PlainName object;
    const Storable& storable = object;
    EXPECT_STREQ("PlainName", storable.ClassName());
}

TEST(ClassName, stays_at_one_address) {
    const PlainName first;
    const PlainName second;
    EXPECT_EQ(static_cast<const void*>(first.ClassName()), static_cast<const void*>(second.ClassName()));
}
