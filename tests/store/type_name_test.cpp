#include "lvx/store/type_name.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <thread>
#include <typeinfo>
#include <vector>

namespace a::b {
struct Thing {};
}  // namespace a::b

using lvx::store::type_name;

TEST(TypeName, has_no_mangling) {
    EXPECT_STREQ("int", type_name(typeid(int)));
    EXPECT_STREQ("a::b::Thing", type_name(typeid(a::b::Thing)));
    EXPECT_STREQ("unsigned char", type_name(typeid(unsigned char)));
}

TEST(TypeName, tells_many_types_apart_again_and_again) {
    for (int round = 0; round < 3; ++round) {
        EXPECT_STREQ("bool", type_name(typeid(bool)));
        EXPECT_STREQ("char", type_name(typeid(char)));
        EXPECT_STREQ("float", type_name(typeid(float)));
        EXPECT_STREQ("double", type_name(typeid(double)));
        EXPECT_STREQ("std::type_info", type_name(typeid(std::type_info)));
    }
}

TEST(TypeName, may_be_asked_by_several_threads) {
    std::vector<std::thread> threads;
    std::vector<std::string> names(8);
    for (std::string& name : names) {
        threads.emplace_back([&name] {
            for (int i = 0; i < 1000; ++i) {
                name = type_name(typeid(short));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(std::vector<std::string>(8, "short"), names);
}
