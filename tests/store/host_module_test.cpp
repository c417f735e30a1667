// A class in another shared library registers itself before main and is made by this library's store.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "lvx/store/object_factory.h"
#include "lvx/store/object_store_stream.h"
#include "store/host_module/star.h"
#include "support/bytes.h"
#include "support/expect_throw.h"

namespace {

std::unique_ptr<Storable> read_from(const std::string& data) {
    std::istringstream stream(data);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    Storable* object = nullptr;
    store >> object;
    return std::unique_ptr<Storable>(object);
}

}  // namespace

TEST(HostModule, registers_while_it_starts) {
    EXPECT_TRUE(host::was_registered_at_start());
    EXPECT_TRUE(host::was_registered_first_of_all());
    EXPECT_TRUE(ObjectFactory::IsRegistered("Star"));
    EXPECT_TRUE(ObjectFactory::IsRegistered("EarlyStar"));
}

TEST(HostModule, the_library_creates_its_objects) {
    const auto object = read_from(lvx_test::bytes("'Bchost::Star' 0D 0A 'o' 07 00 00 00"));
    const auto* const star = dynamic_cast<const host::Star*>(object.get());
    ASSERT_NE(nullptr, star) << "the type is the same in every module";
    EXPECT_EQ(7, star->m_points);
}

TEST(HostModule, its_objects_are_written_under_their_plain_name) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << host::Star();
    EXPECT_EQ(lvx_test::hex(lvx_test::bytes("'Bchost::Star' 0D 0A 'o' 05 00 00 00")),
              lvx_test::hex(stream.str()));
}

TEST(HostModule, an_exception_thrown_in_it_crosses_the_library_and_is_caught_here) {
    EXPECT_THROW_TEXT(read_from(lvx_test::bytes("'Bchost::Star' 0D 0A 'o' 01 00 00 00")),
                      ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a star's points, found 1");
    EXPECT_THROW(read_from(lvx_test::bytes("'Bchost::Star' 0D 0A 'o' 00 00 00 00")), lvx::runtime_error);
}
