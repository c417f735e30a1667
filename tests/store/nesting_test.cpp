// Nesting without end, in documents and in memory: an exception, never the end of the stack.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <thread>

#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_stream.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::bytes;
using lvx_test::Node;

namespace {

// A node that owns its first edge and deletes a chain of them without recursion.
class Link : public Node {
public:
    ~Link() override {
        Storable* next = m_edges.empty() ? nullptr : m_edges[0];
        m_edges.clear();
        while (next != nullptr) {
            auto* const link = static_cast<Link*>(next);
            next = link->m_edges.empty() ? nullptr : link->m_edges[0];
            link->m_edges.clear();
            delete link;
        }
    }
};

// A document of `depth` links, each inside the one before.
std::string nested(int depth) {
    std::string data = bytes("'BcNestingLink' 0D 0A 'o' 00 00 00 00 01 00 00 00");
    const std::string link = bytes("'BC' 00 00 00 00 'o' 00 00 00 00 01 00 00 00");
    for (int i = 1; i < depth; ++i) {
        data += link;
    }
    return data + "0";
}

class Nesting : public ::testing::Test {
protected:
    void SetUp() override {
        ObjectFactory::Register("NestingLink", ObjectFactory::CreateStorable<Link>);
        Node::alive = 0;
    }
    void TearDown() override { EXPECT_EQ(0, Node::alive); }
};

constexpr const char* too_deep =
    "Unexpected object in the store: expected a storable, found objects nested too deeply";

}  // namespace

TEST_F(Nesting, a_thousand_links_are_read) {
    lvx_test::RecordingStore store(nested(1000));
    Storable* object = nullptr;
    store >> object;
    EXPECT_EQ(1000, Node::alive);
    delete object;
}

TEST_F(Nesting, a_million_links_on_a_stream_end_in_an_exception) {
    std::istringstream stream(nested(1000000));
    ObjectStoreStream store;
    store.OpenStream(&stream);
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject, too_deep);
}

TEST_F(Nesting, a_million_links_in_a_file_end_in_an_exception) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("deep"), nested(1000000));
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream(folder.File("deep").c_str(), ObjectStore::ForRead));
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject, too_deep);
}

TEST_F(Nesting, another_thread_has_its_own_end) {
    std::string text;
    std::thread([&text] {
        lvx_test::RecordingStore store(nested(1000000));
        Storable* object = nullptr;
        text = lvx_test::thrown_text<ObjectStore::UnexpectedObject>([&] { store >> object; });
    }).join();
    EXPECT_EQ(too_deep, text);
}

TEST_F(Nesting, a_chain_too_deep_to_write_is_a_failed_write) {
    Link first;
    Node* last = &first;
    for (int i = 0; i < 1000000; ++i) {
        auto* const next = new Link;
        last->m_edges.push_back(next);
        last = next;
    }
    lvx_test::RecordingStore store;
    EXPECT_THROW_TEXT(store << first, ObjectStore::WriteFailure, lvx_test::write_failure);
}

TEST_F(Nesting, TempObject_on_a_cycle_ends_in_an_exception) {
    class Cycle : public Node {
    public:
        void PutTo(ObjectStore& store) const override { store << ObjectStore::TempObject << *this; }
    };
    const Cycle cycle;
    lvx_test::RecordingStore store;
    EXPECT_THROW_TEXT(store << cycle, ObjectStore::WriteFailure, lvx_test::write_failure);
}
