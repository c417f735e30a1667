// Compound files on disks that fill up, and with memory that runs out.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <memory>

#include "lvx/store/object_store_storage.h"
#include "support/allocation.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/temp_folder.h"

using LVXUtilities::ObjectStoreStorage;

namespace {

// Files of this process grow no further while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

class StorageFaults : public ::testing::Test {
protected:
    // A large stream and a small one, which lie in different tables of the file.
    void Write(ObjectStoreStorage& store) {
        if (!store.OpenStorage(m_name, ObjectStore::ForWrite, m_error) ||
            !store.OpenStream("Large", m_error)) {
            throw std::bad_alloc();
        }
        store << m_large;
        if (!store.OpenStream("small", m_error)) {
            throw std::bad_alloc();
        }
        store << 7;
    }
    void Read() {
        ObjectStoreStorage store;
        if (!store.OpenStorage(m_name, ObjectStore::ForRead, m_error) ||
            !store.OpenStream("Large", m_error)) {
            throw std::bad_alloc();
        }
        std::string large;
        store >> large;
        EXPECT_TRUE(m_large == large);
        if (!store.OpenStream("small", m_error)) {
            throw std::bad_alloc();
        }
        int number = 0;
        store >> number;
        EXPECT_EQ(7, number);
    }
    // Runs `action` with the allocation of each number failing, until none does.
    template <class Action>
    void FailEveryAllocation(Action action) {
        action();
        bool complete = false;
        for (long index = 0; !complete; ++index) {
            ASSERT_LT(index, 10000) << "the action allocates without end";
            m_error.clear();
            m_error.shrink_to_fit();
            const std::size_t before = lvx_test::live_bytes();
            {
                const lvx_test::FailingAllocation failing(index);
                try {
                    action();
                    complete = !failing.HasFailed();
                } catch (const std::bad_alloc&) {
                    EXPECT_TRUE(failing.HasFailed());
                } catch (const ObjectStore::WriteFailure&) {
                    EXPECT_TRUE(failing.HasFailed());
                }
            }
            m_error.clear();
            m_error.shrink_to_fit();
            ASSERT_EQ(before, lvx_test::live_bytes()) << "allocation " << index;
        }
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    std::string m_error;
    std::string m_large = std::string(100000, 'x');
};

}  // namespace

TEST_F(StorageFaults, a_disk_that_fills_up_anywhere_is_told_when_the_store_is_closed) {
    {
        ObjectStoreStorage store;
        Write(store);
    }
    const std::size_t whole = lvx_test::read_file(m_name).size();
    ASSERT_GT(whole, m_large.size());
    for (std::size_t size = 0; size < whole; size += size < 2048 || whole - size < 2048 ? 100 : 5000) {
        ObjectStoreStorage store;
        Write(store);
        const FileSizeLimit limit(size);
        EXPECT_THROW_TEXT(store.CloseStream(), ObjectStore::WriteFailure, lvx_test::write_failure);
        EXPECT_FALSE(store.IsOpen()) << size;
        EXPECT_NO_THROW(store.CloseStream()) << "told once";
    }
    ObjectStoreStorage store;
    Write(store);
    const FileSizeLimit limit(whole);
    EXPECT_NO_THROW(store.CloseStream()) << "just enough room";
}

TEST_F(StorageFaults, a_full_disk_is_told_when_another_storage_is_opened) {
    ObjectStoreStorage store;
    Write(store);
    const FileSizeLimit limit(1000);
    EXPECT_FALSE(store.OpenStorage(m_folder.File("other"), ObjectStore::ForWrite, m_error));
    EXPECT_EQ("HRESULT = 80030070", m_error);
    EXPECT_FALSE(store.IsOpen());
}

TEST_F(StorageFaults, a_destructor_on_a_full_disk_is_silent) {
    auto store = std::make_unique<ObjectStoreStorage>();
    Write(*store);
    const FileSizeLimit limit(1000);
    ::testing::internal::CaptureStderr();
    EXPECT_NO_THROW(store.reset());
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
}

TEST_F(StorageFaults, what_a_full_disk_left_is_no_document) {
    {
        ObjectStoreStorage store;
        Write(store);
        const FileSizeLimit limit(50000);
        EXPECT_THROW(store.CloseStream(), ObjectStore::WriteFailure);
    }
    ObjectStoreStorage store;
    EXPECT_FALSE(store.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    EXPECT_EQ(0u, m_error.find("HRESULT = 800301")) << m_error;
}

TEST_F(StorageFaults, writing_survives_every_failed_allocation) {
    FailEveryAllocation([this] {
        ObjectStoreStorage store;
        Write(store);
        store.CloseStream();
    });
    Read();
}

TEST_F(StorageFaults, reading_survives_every_failed_allocation) {
    {
        ObjectStoreStorage store;
        Write(store);
    }
    FailEveryAllocation([this] { Read(); });
}
