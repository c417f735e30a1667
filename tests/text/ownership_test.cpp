#include "lvx/text/ownership.h"

#include <gtest/gtest.h>

namespace {

struct Counted {
    explicit Counted(int& alive) : m_alive(alive) { ++m_alive; }
    virtual ~Counted() { --m_alive; }
    int& m_alive;
};

struct Derived : Counted {
    using Counted::Counted;
};

struct Element {
    ~Element() { ++deleted; }
    static inline int deleted = 0;
};

}  // namespace

TEST(AutoPtr, is_one_word) {
    EXPECT_EQ(sizeof(void*), sizeof(lvx::auto_ptr<Counted>));
    EXPECT_EQ(sizeof(void*), sizeof(lvx::auto_array<int>));
}

TEST(AutoPtr, deletes_its_object_at_the_end_of_its_scope) {
    int alive = 0;
    {
        const lvx::auto_ptr<Counted> owner(new Counted(alive));
        EXPECT_EQ(1, alive);
    }
    EXPECT_EQ(0, alive);
}

TEST(AutoPtr, a_copy_takes_the_object_over_and_leaves_null) {
    int alive = 0;
    lvx::auto_ptr<Counted> first(new Counted(alive));
    Counted* const object = first.get();
    {
        const lvx::auto_ptr<Counted> second(first);
        EXPECT_EQ(nullptr, first.get());
        EXPECT_EQ(object, second.get());
        EXPECT_EQ(1, alive);
    }
    EXPECT_EQ(0, alive);
}

TEST(AutoPtr, assignment_deletes_the_old_object_and_takes_the_new_one) {
    int old_alive = 0;
    int new_alive = 0;
    lvx::auto_ptr<Counted> target(new Counted(old_alive));
    lvx::auto_ptr<Counted> source(new Counted(new_alive));
    target = source;
    EXPECT_EQ(0, old_alive);
    EXPECT_EQ(1, new_alive);
    EXPECT_EQ(nullptr, source.get());
}

TEST(AutoPtr, assignment_to_itself_keeps_the_object) {
    int alive = 0;
    lvx::auto_ptr<Counted> owner(new Counted(alive));
    lvx::auto_ptr<Counted>& same = owner;
    owner = same;
    ASSERT_NE(nullptr, owner.get());
    EXPECT_EQ(1, alive);
}

TEST(AutoPtr, release_hands_the_object_back) {
    int alive = 0;
    lvx::auto_ptr<Counted> owner(new Counted(alive));
    Counted* const object = owner.release();
    EXPECT_EQ(nullptr, owner.get());
    EXPECT_EQ(1, alive);
    delete object;
}

TEST(AutoPtr, a_derived_object_moves_to_a_pointer_to_its_base) {
    int alive = 0;
    {
        lvx::auto_ptr<Counted> base{lvx::auto_ptr<Derived>(new Derived(alive))};
        EXPECT_EQ(&alive, &base->m_alive);
    }
    EXPECT_EQ(0, alive);
}

TEST(AutoPtr, may_hold_null) {
    const lvx::auto_ptr<Counted> empty(nullptr);
    EXPECT_EQ(nullptr, empty.get());
}

TEST(AutoArray, stands_at_global_scope_too) {
    const auto_array<int> numbers(new int[3]{1, 2, 3});
    EXPECT_EQ(3, numbers[2]);
    EXPECT_EQ(1, *numbers);
}

TEST(AutoArray, deletes_every_element) {
    Element::deleted = 0;
    { const lvx::auto_array<Element> elements(new Element[4]); }
    EXPECT_EQ(4, Element::deleted);
}

TEST(AutoArray, a_copy_takes_the_array_over) {
    Element::deleted = 0;
    lvx::auto_array<Element> first(new Element[2]);
    {
        const lvx::auto_array<Element> second(first);
        EXPECT_EQ(nullptr, first.get());
    }
    EXPECT_EQ(2, Element::deleted);
}

TEST(Autovector, deletes_each_element) {
    int alive = 0;
    {
        lvx::autovector<Counted> elements;
        elements.push_back(new Counted(alive));
        elements.push_back(new Derived(alive));
        elements.push_back(nullptr);
        EXPECT_EQ(2, alive);
        EXPECT_EQ(3u, elements.size());
    }
    EXPECT_EQ(0, alive);
}

TEST(Autovector, moving_moves_the_elements) {
    int alive = 0;
    lvx::autovector<Counted> first;
    first.push_back(new Counted(alive));
    const lvx::autovector<Counted> second(std::move(first));
    EXPECT_EQ(1u, second.size());
    EXPECT_EQ(1, alive);
}
