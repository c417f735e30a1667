// A graph of a hundred thousand objects through every kind of store.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <vector>

#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::Node;

constexpr std::size_t count = 100000;

// A wide tree, so that the nesting stays flat, with edges to the sibling before, to ancestors, to the root
// and to itself.
class LargeGraph : public ::testing::Test {
protected:
    void SetUp() override {
        lvx_test::register_shapes();
        for (std::size_t i = 0; i < count; ++i) {
            m_nodes.push_back(std::make_unique<Node>(static_cast<int>(i)));
        }
        for (std::size_t i = 1; i < count; ++i) {
            m_nodes[(i - 1) / 8]->m_edges.push_back(m_nodes[i].get());
            m_nodes[i]->m_edges.push_back(m_nodes[(i - 1) % 8 == 0 ? i : i - 1].get());
            m_nodes[i]->m_edges.push_back(m_nodes[i <= 8 ? 0 : ((i - 1) / 8 - 1) / 8].get());
            m_nodes[i]->m_edges.push_back(m_nodes[0].get());
        }
    }

    /// Reads the graph out of a store that is open, to its end, and compares it.
    void ExpectGraph(ObjectStore& store) {
        Storable* root = nullptr;
        store >> root;
        EXPECT_THROW(store.GetChar(), ObjectStore::UnexpectedEOF);
        std::vector<std::unique_ptr<Node>> read = Collect(root);
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_NE(nullptr, read[i]) << i;
            ASSERT_EQ(Numbers(*m_nodes[i]), Numbers(*read[i]));
            for (const Storable* edge : read[i]->m_edges) {
                const auto& node = static_cast<const Node&>(*edge);
                ASSERT_EQ(read[static_cast<std::size_t>(node.m_number)].get(), edge) << "one object each";
            }
        }
    }

    const Node& Root() const { return *m_nodes[0]; }

    lvx_test::TempFolder m_folder;

private:
    // Every node that can be reached, by its number.
    static std::vector<std::unique_ptr<Node>> Collect(Storable* root) {
        std::vector<std::unique_ptr<Node>> nodes(count);
        std::vector<Node*> open{dynamic_cast<Node*>(root)};
        while (!open.empty()) {
            Node* const node = open.back();
            open.pop_back();
            std::unique_ptr<Node>& place = nodes.at(static_cast<std::size_t>(node->m_number));
            if (place == nullptr) {
                place.reset(node);
                for (Storable* edge : node->m_edges) {
                    open.push_back(static_cast<Node*>(edge));
                }
            }
        }
        return nodes;
    }

    static std::vector<int> Numbers(const Node& node) {
        std::vector<int> numbers;
        for (const Storable* edge : node.m_edges) {
            numbers.push_back(static_cast<const Node*>(edge)->m_number);
        }
        return numbers;
    }

    std::vector<std::unique_ptr<Node>> m_nodes;
};

}  // namespace

TEST_F(LargeGraph, keeps_its_references_and_cycles_in_a_file) {
    const std::string name = m_folder.File("graph");
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream(name.c_str(), ObjectStore::ForWrite));
    store << Root();
    store.CloseStream();
    ObjectStoreFile reader;
    ASSERT_TRUE(reader.OpenStream(name.c_str(), ObjectStore::ForRead));
    ExpectGraph(reader);
}

TEST_F(LargeGraph, keeps_its_references_and_cycles_in_a_stream) {
    std::stringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::ostream*>(&bytes));
    store << Root();
    ObjectStoreStream reader;
    reader.OpenStream(static_cast<std::istream*>(&bytes));
    ExpectGraph(reader);
}

TEST_F(LargeGraph, keeps_its_references_and_cycles_in_a_compound_file) {
    const std::string name = m_folder.File("graph");
    std::string error;
    LVXUtilities::ObjectStoreStorage store;
    ASSERT_TRUE(store.OpenStorage(name, ObjectStore::ForWrite, error)) << error;
    ASSERT_TRUE(store.OpenStream("graph", error)) << error;
    store << Root();
    store.CloseStream();
    LVXUtilities::ObjectStoreStorage reader;
    ASSERT_TRUE(reader.OpenStorage(name, ObjectStore::ForRead, error)) << error;
    ASSERT_TRUE(reader.OpenStream("graph", error)) << error;
    ExpectGraph(reader);
}
