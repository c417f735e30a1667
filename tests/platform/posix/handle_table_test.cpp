#include "lvx/platform/posix/handle_table.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "support/threads.h"

using lvx::platform::HandleTable;

TEST(HandleTable, finds_what_was_added_until_it_is_removed) {
    HandleTable<int> table(1);
    void* const handle = table.Add(42);
    EXPECT_EQ(42, table.Look(handle, [](const int& object) { return object; }));
    EXPECT_TRUE(table.Remove(handle));
    EXPECT_EQ(0, table.Look(handle, [](const int& object) { return object; }));
    EXPECT_FALSE(table.Remove(handle));
}

TEST(HandleTable, an_object_may_be_changed) {
    HandleTable<int> table(1);
    void* const handle = table.Add(1);
    EXPECT_EQ(8, table.With(handle, [](int& object) { return object += 7; }));
    EXPECT_EQ(8, table.Look(handle, [](const int& object) { return object; }));
}

TEST(HandleTable, what_is_not_there_is_not_used) {
    HandleTable<int> table(1);
    bool used = false;
    for (void* const handle : {static_cast<void*>(nullptr), static_cast<void*>(&used)}) {
        EXPECT_FALSE(table.With(handle, [&](int&) { return used = true; }));
        EXPECT_FALSE(table.Look(handle, [&](const int&) { return used = true; }));
        EXPECT_FALSE(table.Remove(handle));
    }
    EXPECT_FALSE(used);
}

TEST(HandleTable, no_handle_comes_twice_and_none_is_that_of_a_table_beside_it) {
    HandleTable<int> first(1);
    HandleTable<int> second(2);
    std::set<void*> handles{nullptr};
    for (int i = 0; i < 100; ++i) {
        for (HandleTable<int>* const table : {&first, &second}) {
            void* const handle = table->Add(i);
            EXPECT_TRUE(handles.insert(handle).second);
            table->Remove(handle);
        }
    }
}

TEST(HandleTable, an_object_ends_when_it_is_removed) {
    HandleTable<std::shared_ptr<int>> table(1);
    const auto object = std::make_shared<int>(3);
    void* const handle = table.Add(object);
    EXPECT_EQ(2, object.use_count());
    table.Remove(handle);
    EXPECT_EQ(1, object.use_count());
}

TEST(HandleTable, an_object_that_uses_the_table_at_its_end_does_not_lock_it_up) {
    struct Asking {
        explicit Asking(HandleTable<std::shared_ptr<Asking>>& asked) : table(asked) {}
        Asking(const Asking&) = delete;
        Asking& operator=(const Asking&) = delete;
        ~Asking() { table.Remove(nullptr); }
        HandleTable<std::shared_ptr<Asking>>& table;
    };
    HandleTable<std::shared_ptr<Asking>> table(1);
    EXPECT_TRUE(table.Remove(table.Add(std::make_shared<Asking>(table))));
}

TEST(HandleTable, threads_use_it_together) {
    HandleTable<int> table(1);
    void* const shared = table.Add(0);
    lvx_test::Threads threads(3, [&] {
        for (int i = 0; i < 200; ++i) {
            void* const own = table.Add(i);
            table.With(shared, [](int& object) { return ++object; });
            EXPECT_EQ(i, table.Look(own, [](const int& object) { return object; }));
            EXPECT_TRUE(table.Remove(own));
        }
    });
    threads.Join();
    EXPECT_EQ(600, table.Look(shared, [](const int& object) { return object; }));
}
