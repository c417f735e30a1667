// Memory, devices and hosts' media that fail at every possible place.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <sstream>

#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_stream.h"
#include "support/allocation.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::Node;
using lvx_test::inner::Leaf;

namespace {

// A root with leaves, names long enough to need memory, shared and in a cycle; owns none of them.
struct Graph {
    Graph() {
        for (int i = 0; i < 20; ++i) {
            leaves.push_back(std::make_unique<Leaf>());
            leaves.back()->m_name = std::string(40, static_cast<char>('a' + i));
            root.m_edges.push_back(leaves.back().get());
        }
        root.m_edges.push_back(&root);
        root.m_edges.push_back(leaves[0].get());
    }

    Node root{1};
    std::vector<std::unique_ptr<Leaf>> leaves;
};

// A root that owns what it reads, so that a failed read has no objects left.
class OwningRoot : public Node {
public:
    ~OwningRoot() override {
        for (std::size_t i = 0; i < m_owned; ++i) {
            delete m_edges[i];
        }
    }
    void GetFrom(ObjectStore& store) override {
        int count = 0;
        store >> m_number >> count;
        m_edges.reserve(64);
        for (int i = 0; i < count; ++i) {
            Storable* edge = nullptr;
            store >> edge;
            m_edges.push_back(edge);
            m_owned += edge != this && i < 20 ? 1u : 0u;
        }
    }
    const char* ClassName() const override { return "lvx_test::Node"; }
    std::size_t m_owned = 0;
};

class StoreFaults : public ::testing::Test {
protected:
    void SetUp() override { lvx_test::register_shapes(); }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("store");
    Graph m_graph;
};

// Runs `action` with the allocation of each number failing, until none does. What was held before is held
// after.
void fail_every_allocation(const std::function<void()>& action) {
    // The first run brings what is kept for good: type names, locales.
    action();
    bool complete = false;
    for (long index = 0; !complete; ++index) {
        ASSERT_LT(index, 10000) << "the action allocates without end";
        const std::size_t before = lvx_test::live_bytes();
        {
            const lvx_test::FailingAllocation failing(index);
            try {
                action();
                complete = !failing.HasFailed();
            } catch (const std::bad_alloc&) {
                EXPECT_TRUE(failing.HasFailed());
            } catch (const ObjectStore::WriteFailure&) {
                // A string stream turns exhausted memory into a bad state.
                EXPECT_TRUE(failing.HasFailed());
            }
        }
        ASSERT_EQ(before, lvx_test::live_bytes()) << "allocation " << index;
    }
}

}  // namespace

TEST_F(StoreFaults, saving_to_a_file_survives_every_failed_allocation) {
    fail_every_allocation([this] {
        ObjectStoreFile store;
        if (!store.OpenStream(m_name.c_str(), ObjectStore::ForWrite)) {
            throw std::bad_alloc();
        }
        store << m_graph.root << m_graph.root << "text" << std::string("text");
        store.CloseStream();
    });
}

TEST_F(StoreFaults, saving_to_a_stream_survives_every_failed_allocation) {
    fail_every_allocation([this] {
        std::ostringstream stream;
        ObjectStoreStream store;
        store.OpenStream(&stream);
        store << m_graph.root << m_graph.root;
    });
}

TEST_F(StoreFaults, loading_from_a_file_survives_every_failed_allocation) {
    {
        ObjectStoreFile store;
        ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForWrite));
        store << m_graph.root << "a text that needs memory of its own, beyond a short one" << m_graph.root;
    }
    const int before = Leaf::alive;
    fail_every_allocation([this] {
        ObjectStoreFile store;
        if (!store.OpenStream(m_name.c_str(), ObjectStore::ForRead)) {
            throw std::bad_alloc();
        }
        OwningRoot root;
        Storable* object = &root;
        char* text = nullptr;
        store >> ObjectStore::NoCreate >> object >> text;
        const lvx::auto_array<char> owner(text);
        store >> object;
        EXPECT_EQ(&root, object);
        EXPECT_EQ(22u, root.m_edges.size());
    });
    EXPECT_EQ(before, Leaf::alive);
}

TEST_F(StoreFaults, a_hosts_medium_may_fail_at_every_write) {
    lvx_test::RecordingStore whole;
    whole << m_graph.root << "ab" << std::string("ab");
    const auto writes = static_cast<long>(whole.calls.size());
    ASSERT_GT(writes, 100);
    for (long index = 0; index < writes; ++index) {
        lvx_test::RecordingStore store;
        store.writes_until_failure = index;
        EXPECT_THROW(store << m_graph.root << "ab" << std::string("ab"), ObjectStore::WriteFailure) << index;
        EXPECT_EQ(whole.Data().substr(0, store.Data().size()), store.Data());
    }
}

TEST_F(StoreFaults, a_document_cut_anywhere_ends_in_an_exception_and_leaves_nothing_behind) {
    lvx_test::RecordingStore whole;
    whole << m_graph.root;
    const int nodes = Node::alive;
    const int leaves = Leaf::alive;
    for (std::size_t length = 0; length < whole.Data().size(); ++length) {
        lvx_test::RecordingStore store(whole.Data().substr(0, length));
        OwningRoot root;
        Storable* object = &root;
        EXPECT_THROW(store >> ObjectStore::NoCreate >> object, lvx::runtime_error) << length;
    }
    EXPECT_EQ(nodes, Node::alive);
    EXPECT_EQ(leaves, Leaf::alive);
}

TEST_F(StoreFaults, a_full_disk_is_told_when_the_store_is_closed) {
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream("/dev/full", ObjectStore::ForWrite));
    store << m_graph.root;
    EXPECT_THROW_TEXT(store.CloseStream(), ObjectStore::WriteFailure, lvx_test::write_failure);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_NO_THROW(store.CloseStream());
}

TEST_F(StoreFaults, a_full_disk_is_told_when_the_store_is_opened_again) {
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream("/dev/full", ObjectStore::ForWrite));
    store << 1;
    EXPECT_THROW(store.OpenStream(m_name.c_str(), ObjectStore::ForWrite), ObjectStore::WriteFailure);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForWrite));
}

TEST_F(StoreFaults, a_full_disk_is_told_once) {
    const std::string large(1 << 20, 'x');
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream("/dev/full", ObjectStore::ForWrite));
    EXPECT_THROW_TEXT(store << large, ObjectStore::WriteFailure, lvx_test::write_failure);
    EXPECT_NO_THROW(store.CloseStream());
}

TEST_F(StoreFaults, a_destructor_on_a_full_disk_is_silent) {
    auto store = std::make_unique<ObjectStoreFile>();
    ASSERT_TRUE(store->OpenStream("/dev/full", ObjectStore::ForWrite));
    *store << 1;
    EXPECT_NO_THROW(store.reset());
}

TEST_F(StoreFaults, a_disk_that_fills_up_at_any_byte_is_told) {
    rlimit unlimited{};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &unlimited));
    std::signal(SIGXFSZ, SIG_IGN);
    const std::string text(100000, 'x');
    for (const rlim_t size : {0u, 1u, 5u, 65535u, 65536u, 65537u, 100004u}) {
        const rlimit limit{size, unlimited.rlim_max};
        ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &limit));
        EXPECT_THROW(
            {
                ObjectStoreFile store;
                store.OpenStream(m_name.c_str(), ObjectStore::ForWrite);
                store << text;
                store.CloseStream();
            },
            ObjectStore::WriteFailure)
            << size;
        setrlimit(RLIMIT_FSIZE, &unlimited);
        EXPECT_EQ(size, lvx_test::read_file(m_name).size());
    }
}

TEST_F(StoreFaults, a_value_is_read_from_a_pipe_as_soon_as_it_is_there) {
    ASSERT_EQ(0, mkfifo(m_name.c_str(), 0600));
    // Opened for both directions, so that neither end waits for the other. It stays open: no end of the data
    // comes.
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(std::fopen(m_name.c_str(), "r+b"),
                                                               &std::fclose);
    ASSERT_NE(nullptr, pipe);
    std::setvbuf(pipe.get(), nullptr, _IONBF, 0);
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForRead));
    for (const int sent : {7, 8}) {
        const char bytes[] = {static_cast<char>(sent), 0, 0, 0};
        ASSERT_EQ(sizeof bytes, std::fwrite(bytes, 1, sizeof bytes, pipe.get()));
        int received = 0;
        store >> received;
        EXPECT_EQ(sent, received);
    }
}

TEST_F(StoreFaults, an_absurd_length_takes_no_memory) {
    lvx_test::write_file(m_name, lvx_test::bytes("FE FF FF 7F 'abc'"));
    ObjectStoreFile store;
    ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForRead));
    lvx_test::reset_peak();
    const std::size_t before = lvx_test::live_bytes();
    char* text = nullptr;
    EXPECT_THROW(store >> text, ObjectStore::UnexpectedEOF);
    EXPECT_LT(lvx_test::peak_bytes() - before, 100000u);
}
