#include "tools/lvxdoc/store_buffer.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>

#include "lvx/store/object_store_stream.h"

using namespace lvxdoc;

TEST(StoreBuffer, passes_bytes_on_as_they_are) {
    std::ostringstream bytes;
    ObjectStoreStream outer;
    outer.OpenStream(&bytes);
    StoreBuffer buffer(outer);
    std::ostream stream(&buffer);
    stream.put('a');
    stream.write("\0\xff", 2);
    EXPECT_EQ(std::string("a\0\xff", 3), bytes.str());
    EXPECT_TRUE(stream.good());
}

TEST(StoreBuffer, carries_a_store_within_a_store) {
    std::ostringstream bytes;
    ObjectStoreStream outer;
    outer.OpenStream(&bytes);
    StoreBuffer buffer(outer);
    std::ostream stream(&buffer);
    ObjectStoreStream inner;
    inner.OpenStream(&stream);
    inner << 3 << std::string("ab");
    inner.CloseStream();
    EXPECT_EQ(std::string("\3\0\0\0s\2\0\0\0ab", 11), bytes.str());
}

TEST(StoreBuffer, makes_the_stream_bad_when_the_store_refuses) {
    ObjectStoreStream closed;
    StoreBuffer buffer(closed);
    std::ostream stream(&buffer);
    ObjectStoreStream inner;
    inner.OpenStream(&stream);
    EXPECT_THROW(inner << 3, ObjectStore::WriteFailure);
    EXPECT_TRUE(stream.bad());
}
