#include "lvx/exchange/storable_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "lvx/store/object_store_stream.h"
#include "support/bytes.h"
#include "support/places.h"
#include "support/shapes.h"

namespace {

using lvx::exchange::begin_block;
using lvx::exchange::stored_bytes;
using lvx_test::bytes;
using lvx_test::Node;

/// Memory of its own size, so that a sanitizer sees a step behind its end.
std::vector<unsigned char> memory(const std::string& content) {
    return {content.begin(), content.end()};
}

/// What is taken out of `content`; "torn" if nothing is.
std::string taken(const std::string& content) {
    const std::vector<unsigned char> block = memory(content);
    const auto found = stored_bytes(block);
    return found ? std::string(found->begin(), found->end()) : "torn";
}

}  // namespace

TEST(StorableBlock, is_the_length_of_the_whole_and_the_bytes) {
    std::vector<unsigned char> block(4 + 3, 0xCC);
    const auto place = begin_block(block);
    ASSERT_EQ(3u, place.size());
    std::copy_n("abc", 3, place.begin());
    EXPECT_EQ(memory(bytes("07 00 00 00 'abc'")), block);
}

TEST(StorableBlock, has_its_length_with_the_lowest_byte_first) {
    std::vector<unsigned char> block(0x010203, 0);
    begin_block(block);
    EXPECT_EQ(memory(bytes("03 02 01 00")), std::vector<unsigned char>(block.begin(), block.begin() + 4));
}

TEST(StorableBlock, of_nothing_is_its_length) {
    std::vector<unsigned char> block(4, 0xCC);
    EXPECT_TRUE(begin_block(block).empty());
    EXPECT_EQ(memory(bytes("04 00 00 00")), block);
}

TEST(StorableBlock, gives_the_bytes_back) {
    EXPECT_EQ("abc", taken(bytes("07 00 00 00 'abc'")));
    EXPECT_EQ("", taken(bytes("04 00 00 00")));
    EXPECT_EQ(std::string("\0\0", 2), taken(bytes("06 00 00 00 00 00")));
}

TEST(StorableBlock, gives_its_own_memory_and_no_copy) {
    const std::vector<unsigned char> block = memory(bytes("05 00 00 00 'a'"));
    EXPECT_EQ(block.data() + 4, stored_bytes(block)->data());
}

// The system rounds the sizes of blocks up.
TEST(StorableBlock, may_lie_in_longer_memory) {
    EXPECT_EQ("abc", taken(bytes("07 00 00 00 'abc' 00 00 00 00 00")));
    EXPECT_EQ("", taken(bytes("04 00 00 00 'abc'")));
}

TEST(StorableBlock, that_ends_within_its_length_is_torn) {
    const std::string whole = bytes("04 00 00 00");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ("torn", taken(whole.substr(0, size))) << size;
    }
}

TEST(StorableBlock, whose_length_does_not_count_itself_is_torn) {
    for (const char* length : {"00", "01", "02", "03"}) {
        EXPECT_EQ("torn", taken(bytes(std::string(length) + " 00 00 00 'abcdefgh'"))) << length;
    }
}

TEST(StorableBlock, that_claims_more_than_its_memory_is_torn) {
    EXPECT_EQ("torn", taken(bytes("08 00 00 00 'abc'")));
    EXPECT_EQ("torn", taken(bytes("05 00 00 00")));
    EXPECT_EQ("torn", taken(bytes("00 01 00 00 'abc'")));
    EXPECT_EQ("torn", taken(bytes("07 00 00 80 'abc'")));
    EXPECT_EQ("torn", taken(bytes("FF FF FF FF 'abc'")));
}

TEST(StorableBlock, of_no_memory_is_torn) {
    EXPECT_FALSE(stored_bytes({}));
}

TEST(StorableBlock, of_the_golden_file_holds_a_pair_of_nodes) {
    const std::string golden = lvx_test::read_file(lvx_test::own_data() + "/golden/clipboard.block");
    EXPECT_EQ(bytes("3A 00 00 00"                                      // 58 bytes, these included
                    "'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00"         // object 0: 7
                    "02 00 00 00 'BC' 00 00 00 00 'o' 08 00 00 00"     // of two edges, object 1: 8
                    "01 00 00 00 'BO' 00 00 00 00 'BO' 01 00 00 00"),  // with an edge to 0; to 1 once more
              golden);
    lvx_test::register_shapes();
    std::istringstream stream(taken(golden));
    ObjectStoreStream store;
    store.OpenStream(&stream);
    Storable* object = nullptr;
    store >> object;
    const std::unique_ptr<Node> first(dynamic_cast<Node*>(object));
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(7, first->m_number);
    ASSERT_EQ(2u, first->m_edges.size());
    const std::unique_ptr<Node> second(dynamic_cast<Node*>(first->m_edges[0]));
    ASSERT_NE(nullptr, second);
    EXPECT_EQ(8, second->m_number);
    EXPECT_EQ(second.get(), first->m_edges[1]);
    EXPECT_EQ(std::vector<Storable*>{first.get()}, second->m_edges);
    EXPECT_EQ(std::char_traits<char>::eof(), stream.peek());
}
