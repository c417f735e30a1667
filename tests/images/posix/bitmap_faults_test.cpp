// Bitmaps when memory or reading fails at its n-th time, for every n. Replaces operator new, GlobalAlloc and
// read for the library too, as only these systems let a program do.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>

#include "images/jpeg_maker.h"
#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "support/allocation.h"
#include "support/temp_folder.h"

#define LVX_TEST_REPLACES extern "C" __attribute__((visibility("default")))

namespace {

// Counts down to the call that fails; none does below 0.
long blocks_until_failure = -1;
long reads_until_failure = -1;

bool is_due(long& countdown) {
    return countdown >= 0 && countdown-- == 0;
}

}  // namespace

LVX_TEST_REPLACES HGLOBAL GlobalAlloc(unsigned int flags, std::size_t size) {
    static const auto real = reinterpret_cast<decltype(&GlobalAlloc)>(dlsym(RTLD_NEXT, "GlobalAlloc"));
    return is_due(blocks_until_failure) ? nullptr : real(flags, size);
}

LVX_TEST_REPLACES ssize_t read(int file, void* data, std::size_t size) {
    if (is_due(reads_until_failure)) {
        errno = EIO;
        return -1;
    }
    return syscall(SYS_read, file, data, size);
}

namespace {

using lvx_test::block_of;
using lvx_test::FailingAllocation;
using lvx_test::file_header;
using lvx_test::Info;
using lvx_test::is_locked;
using lvx_test::make_block;
using lvx_test::thrown_words;
using LVXUtilities::DIBitmap;

std::string small_picture() {
    return Info{.width = 2, .height = 2}.Header() + "abcdef__ghijkl__";
}

class BitmapFaults : public testing::Test {
protected:
    ~BitmapFaults() override { blocks_until_failure = reads_until_failure = -1; }

    std::string BitmapName() const {
        const std::string name = m_folder.File("picture.bmp");
        lvx_test::write_file(name, file_header(54) + small_picture());
        return name;
    }
    std::string JpegName() const {
        const std::string name = m_folder.File("picture.jpg");
        lvx_test::write_file(name, lvx_test::make_jpeg({.width = 9, .height = 9}));
        return name;
    }

    lvx_test::TempFolder m_folder;
};

// How many allocations `action` survives the failing of with bad_alloc and nothing left behind.
template <class Action>
long count_failures(Action&& action) {
    for (long index = 0;; ++index) {
        const std::size_t live = lvx_test::live_bytes();
        bool told = false;
        const FailingAllocation failing(index);
        try {
            action();
        } catch (const std::bad_alloc&) {
            told = true;
        }
        if (!failing.HasFailed()) {
            return index;
        }
        EXPECT_TRUE(told) << index;
        EXPECT_EQ(live, lvx_test::live_bytes()) << index;
    }
}

TEST_F(BitmapFaults, a_copy_without_memory_is_told) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    DIBitmap target(make_block("target"), DIBitmap::Adopt);
    blocks_until_failure = 0;
    EXPECT_THROW(DIBitmap{bitmap}, std::bad_alloc);
    blocks_until_failure = 0;
    EXPECT_THROW(target = bitmap, std::bad_alloc);
    EXPECT_BYTES("target", block_of(target));
}

TEST_F(BitmapFaults, copying_a_block_without_memory_leaves_it_to_the_caller) {
    const HGLOBAL block = make_block(small_picture());
    blocks_until_failure = 0;
    EXPECT_THROW(DIBitmap(block, DIBitmap::Copy), std::bad_alloc);
    EXPECT_FALSE(is_locked(block));
    EXPECT_EQ(nullptr, GlobalFree(block));
}

TEST_F(BitmapFaults, files_without_memory_for_their_block_are_told) {
    const std::string bitmap = BitmapName();
    const std::string jpeg = JpegName();
    const std::size_t live = lvx_test::live_bytes();
    blocks_until_failure = 0;
    EXPECT_THROW(DIBitmap(bitmap, DIBitmap::DIB), std::bad_alloc);
    // Not tried as another kind of file.
    blocks_until_failure = 0;
    EXPECT_THROW(DIBitmap(bitmap, DIBitmap::AnyFormat), std::bad_alloc);
    blocks_until_failure = 0;
    EXPECT_THROW(DIBitmap(jpeg, DIBitmap::JPEG), std::bad_alloc);
    EXPECT_EQ(live, lvx_test::live_bytes());
}

TEST_F(BitmapFaults, a_skewed_picture_without_memory_for_its_block_is_told) {
    const HGLOBAL block = make_block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Adopt);
    const std::size_t live = lvx_test::live_bytes();
    blocks_until_failure = 0;
    EXPECT_THROW(bitmap.SkewPoint(LVXUtilities::Rectangles::TopLeft, 1, 1), std::bad_alloc);
    EXPECT_EQ(live, lvx_test::live_bytes());
    EXPECT_FALSE(is_locked(block));
}

TEST_F(BitmapFaults, a_turned_picture_without_memory_for_its_block_is_told) {
    const HGLOBAL block = make_block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Adopt);
    const std::size_t live = lvx_test::live_bytes();
    blocks_until_failure = 0;
    EXPECT_THROW(bitmap.Rotated(1), std::bad_alloc);
    EXPECT_EQ(live, lvx_test::live_bytes());
    EXPECT_FALSE(is_locked(block));
}

TEST_F(BitmapFaults, every_failing_allocation_of_turning_and_skewing_is_told) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    // The block lacks some of its pixels.
    const DIBitmap shorter(make_block(small_picture().substr(0, 50)), DIBitmap::Adopt);
    EXPECT_GT(count_failures([&] { bitmap.SkewPoint(LVXUtilities::Rectangles::TopLeft, 1, 1); }), 0);
    EXPECT_GT(count_failures([&] { bitmap.Rotated(1); }), 0);
    EXPECT_GT(count_failures([&] { shorter.Rotated(1); }), 0);
}

TEST_F(BitmapFaults, what_cannot_be_skewed_leaves_nothing_behind) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    const std::size_t live = lvx_test::live_bytes();
    EXPECT_THROW(bitmap.SkewPoint(LVXUtilities::Rectangles::TopLeft, 2, 0), std::runtime_error);
    EXPECT_THROW(bitmap.SkewPoint(static_cast<LVXUtilities::Rectangles::Corner>(7), 1, 1),
                 std::runtime_error);
    EXPECT_EQ(live, lvx_test::live_bytes());
}

TEST_F(BitmapFaults, a_jpeg_file_without_memory_is_closed) {
    const std::string jpeg = JpegName();
    for (int i = 0; i < 3000; ++i) {
        blocks_until_failure = 0;
        EXPECT_THROW(DIBitmap(jpeg, DIBitmap::JPEG), std::bad_alloc);
    }
    const DIBitmap bitmap(jpeg, DIBitmap::JPEG);
    EXPECT_EQ(9, bitmap.GetWidth());
}

TEST_F(BitmapFaults, reading_from_a_store_without_memory_leaves_an_empty_image) {
    std::istringstream stream(lvx_test::stored(DIBitmap(make_block(small_picture()), DIBitmap::Adopt)));
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::istream*>(&stream));
    DIBitmap bitmap(make_block(Info{.width = 5}.Header()), DIBitmap::Adopt);
    blocks_until_failure = 0;
    EXPECT_THROW(bitmap.GetFrom(store), std::bad_alloc);
    EXPECT_EQ(nullptr, bitmap.GetBitsAddress().get());
    EXPECT_EQ(0, bitmap.GetWidth());
}

TEST_F(BitmapFaults, every_failing_allocation_of_loading_is_told) {
    const std::string bitmap = BitmapName();
    const std::string jpeg = JpegName();
    EXPECT_GT(count_failures([&] { DIBitmap(bitmap, DIBitmap::DIB); }), 0);
    EXPECT_GT(count_failures([&] { DIBitmap(jpeg, DIBitmap::AnyFormat); }), 0);
}

TEST_F(BitmapFaults, every_failing_allocation_of_saving_is_told) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    const std::string name = m_folder.File("saved.bmp");
    EXPECT_GT(count_failures([&] { bitmap.SaveAsDIB(name); }), 0);
    EXPECT_EQ(14 + small_picture().size(), lvx_test::read_file(name).size());
}

TEST_F(BitmapFaults, a_file_that_cannot_be_read_at_first_is_no_bitmap) {
    const std::string bitmap = BitmapName();
    reads_until_failure = 0;
    EXPECT_EQ("Not a valid bitmap", thrown_words([&] { DIBitmap(bitmap, DIBitmap::DIB); }));
}

TEST_F(BitmapFaults, a_file_that_cannot_be_read_later_is_an_error) {
    const std::string bitmap = BitmapName();
    bool loaded = false;
    for (long index = 1; !loaded; ++index) {
        const std::size_t live = lvx_test::live_bytes();
        reads_until_failure = index;
        const std::string words = thrown_words([&] { DIBitmap(bitmap, DIBitmap::DIB); });
        loaded = reads_until_failure >= 0;
        EXPECT_EQ(loaded ? "" : "Error", words) << index;
        EXPECT_EQ(live, lvx_test::live_bytes()) << index;
        // The header, the pixels, and at least one of them apart.
        EXPECT_TRUE(!loaded || index >= 2);
    }
}

TEST_F(BitmapFaults, a_full_disk_is_not_told) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    EXPECT_EQ("", thrown_words([&] { bitmap.SaveAsDIB("/dev/full"); }));
}

}  // namespace
