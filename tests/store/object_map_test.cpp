#include "lvx/store/object_map.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>

using lvx::store::ObjectMap;

namespace {

// The map compares addresses and looks at no object.
const Storable* at(std::uintptr_t address) {
    return reinterpret_cast<const Storable*>(address);
}

}  // namespace

TEST(ObjectMap, knows_nothing_at_first) {
    const ObjectMap map;
    EXPECT_EQ(-1, map.Find(at(0x1000)));
    EXPECT_EQ(0, map.Size());
}

TEST(ObjectMap, numbers_objects_in_the_order_of_their_coming) {
    ObjectMap map;
    map.Append(at(0x5000));
    map.Append(at(0x1000));
    map.Append(at(0x1010));
    EXPECT_EQ(0, map.Find(at(0x5000)));
    EXPECT_EQ(1, map.Find(at(0x1000)));
    EXPECT_EQ(2, map.Find(at(0x1010)));
    EXPECT_EQ(-1, map.Find(at(0x1008)));
    EXPECT_EQ(-1, map.Find(at(0x1020)));
}

TEST(ObjectMap, an_object_keeps_its_first_id_and_the_count_does_not_grow) {
    ObjectMap map;
    map.Append(at(0x1000));
    map.Append(at(0x1000));
    map.Append(at(0x2000));
    EXPECT_EQ(0, map.Find(at(0x1000)));
    EXPECT_EQ(1, map.Find(at(0x2000)));
    EXPECT_EQ(2, map.Size());
}

TEST(ObjectMap, takes_objects_in_packed_structures) {
    ObjectMap map;
    map.Append(at(0x1001));
    map.Append(at(0x1000));
    map.Append(at(0x1001));
    EXPECT_EQ(0, map.Find(at(0x1001)));
    EXPECT_EQ(1, map.Find(at(0x1000)));
    EXPECT_EQ(-1, map.Find(at(0x1002)));
}

TEST(ObjectMap, takes_the_ends_of_the_address_space) {
    ObjectMap map;
    const std::uintptr_t last = UINTPTR_MAX - (alignof(Storable) - 1);
    map.Append(at(last));
    map.Append(at(0));
    EXPECT_EQ(0, map.Find(at(last)));
    EXPECT_EQ(1, map.Find(at(0)));
}

TEST(ObjectMap, objects_at_regular_distances_stay_apart) {
    for (const std::uintptr_t distance : {8u, 48u, 1024u, 4096u, 65536u}) {
        ObjectMap map;
        for (std::uintptr_t i = 0; i < 10000; ++i) {
            map.Append(at(0x100000 + i * distance));
        }
        for (std::uintptr_t i = 0; i < 10000; ++i) {
            ASSERT_EQ(static_cast<long>(i), map.Find(at(0x100000 + i * distance))) << distance;
        }
        EXPECT_EQ(-1, map.Find(at(0x100000 + 10000 * distance)));
    }
}

TEST(ObjectMap, agrees_with_a_tree_of_addresses) {
    std::mt19937_64 random(20261121);
    ObjectMap map;
    std::map<std::uintptr_t, long> tree;
    for (int i = 0; i < 200000; ++i) {
        // Dense runs, scattered pages and a few odd addresses.
        auto address = static_cast<std::uintptr_t>(0x10000 + random() % 0x40000 * alignof(Storable));
        if (i % 3 == 0) {
            address = static_cast<std::uintptr_t>(random() / 64 * 64);
        } else if (i % 101 == 0) {
            address += 1;
        }
        ASSERT_EQ(tree.count(address) != 0 ? tree[address] : -1, map.Find(at(address)));
        map.Append(at(address));
        tree.emplace(address, static_cast<long>(tree.size()));
        ASSERT_EQ(tree[address], map.Find(at(address)));
    }
    EXPECT_EQ(static_cast<long>(tree.size()), map.Size());
    for (const auto& [address, id] : tree) {
        ASSERT_EQ(id, map.Find(at(address)));
    }
}
