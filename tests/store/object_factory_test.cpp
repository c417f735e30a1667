#include "lvx/store/object_factory.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"
#include "support/shapes.h"

using lvx_test::RecordingStore;

namespace {

class First : public lvx_test::Node {};
class Second : public lvx_test::Node {};

template <class T>
T* created(const std::string& name) {
    RecordingStore store(lvx_test::bytes("01 00 00 00 00 00 00 00"));
    const std::unique_ptr<Storable> object(ObjectFactory::Create(store, name));
    return dynamic_cast<T*>(object.get());
}

}  // namespace

TEST(Factory, creates_by_the_registered_name) {
    ObjectFactory::Register("FactoryPlain", ObjectFactory::CreateStorable<First>);
    EXPECT_TRUE(ObjectFactory::IsRegistered("FactoryPlain"));
    EXPECT_NE(nullptr, created<First>("FactoryPlain"));
}

TEST(Factory, removes_the_first_qualifier_alone) {
    ObjectFactory::Register("outer::inner::FactoryTwo", ObjectFactory::CreateStorable<First>);
    EXPECT_TRUE(ObjectFactory::IsRegistered("inner::FactoryTwo"));
    EXPECT_FALSE(ObjectFactory::IsRegistered("FactoryTwo"));
    EXPECT_NE(nullptr, created<First>("other::inner::FactoryTwo"));
    EXPECT_THROW(created<First>("inner::FactoryTwo"), ObjectFactory::UnknownClass);
}

TEST(Factory, IsRegistered_removes_no_qualifier_though_Create_does) {
    ObjectFactory::Register("space::FactoryQualified", ObjectFactory::CreateStorable<First>);
    EXPECT_TRUE(ObjectFactory::IsRegistered("FactoryQualified"));
    EXPECT_FALSE(ObjectFactory::IsRegistered("space::FactoryQualified"));
    EXPECT_NE(nullptr, created<First>("space::FactoryQualified"));
    EXPECT_NE(nullptr, created<First>("FactoryQualified"));
}

TEST(Factory, the_first_creator_of_a_name_stays) {
    ObjectFactory::Register("FactoryTwice", ObjectFactory::CreateStorable<First>);
    ObjectFactory::Register("any::FactoryTwice", ObjectFactory::CreateStorable<Second>);
    EXPECT_NE(nullptr, created<First>("FactoryTwice"));
    EXPECT_EQ(nullptr, created<Second>("FactoryTwice"));
}

TEST(Factory, an_unknown_class_is_told_as_it_was_given) {
    RecordingStore store{std::string()};
    EXPECT_THROW_TEXT(ObjectFactory::Create(store, "space::Nobody"), ObjectFactory::UnknownClass,
                      "Class 'space::Nobody' is not registered with the object factory - cannot create an "
                      "instance of one.");
    EXPECT_THROW(ObjectFactory::Create(store, ""), lvx::runtime_error);
}

TEST(Factory, a_creator_that_throws_deletes_its_object) {
    lvx_test::register_shapes();
    lvx_test::Node::alive = 0;
    RecordingStore store(lvx_test::bytes("01 00"));
    EXPECT_THROW(ObjectFactory::Create(store, "lvx_test::Node"), ObjectStore::UnexpectedEOF);
    EXPECT_EQ(0, lvx_test::Node::alive);
}

TEST(Factory, another_guard_comes_and_goes_without_harm) {
    { const ObjectFactoryInit guard; }
    ObjectFactory::Register("FactoryGuarded", ObjectFactory::CreateStorable<First>);
    EXPECT_TRUE(ObjectFactory::IsRegistered("FactoryGuarded"));
}
