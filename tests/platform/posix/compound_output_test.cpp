#include "lvx/platform/posix/compound_output.h"

#include <gtest/gtest.h>

#include "platform/storage_calls.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

using lvx::platform::StorageFile;
using lvx::platform::StreamBytes;
using lvx_test::code;

namespace {

StorageFile open_stdio(const std::string& name, const char* mode) {
    return StorageFile(std::fopen(name.c_str(), mode));
}

}  // namespace

TEST(CompoundOutput, puts_streams_into_a_file_that_opens) {
    const lvx_test::TempFolder folder;
    StreamBytes bytes;
    const unsigned char data[] = {'b', 'l', 'u', 'e'};
    ASSERT_TRUE(bytes.Write(0, data));
    const lvx::platform::OutputStream streams[] = {{L"Sky", &bytes}};
    ASSERT_TRUE(lvx::platform::write_compound_file(open_stdio(folder.File("document"), "w+b"), streams));
    lvx_test::Storage storage;
    lvx_test::Stream stream;
    ASSERT_EQ("", code(lvx_test::open_file(folder.File("document"), storage)));
    ASSERT_EQ("", code(lvx_test::open_stream(storage, L"Sky", stream)));
    EXPECT_EQ("blue", lvx_test::read(stream, 10));
}

TEST(CompoundOutput, tells_of_a_device_that_is_full_and_says_nothing_else) {
    ::testing::internal::CaptureStderr();
    StreamBytes bytes;
    const std::string data = lvx_test::counting_bytes(200000);
    ASSERT_TRUE(bytes.Write(0, {reinterpret_cast<const unsigned char*>(data.data()), data.size()}));
    const lvx::platform::OutputStream streams[] = {{L"Sky", &bytes}};
    EXPECT_FALSE(lvx::platform::write_compound_file(open_stdio("/dev/full", "r+b"), streams));
    EXPECT_FALSE(lvx::platform::write_compound_file(open_stdio("/dev/full", "r+b"), {}));
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
}

TEST(CompoundOutput, tells_of_a_file_that_takes_no_bytes) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("document"), "");
    EXPECT_FALSE(lvx::platform::write_compound_file(open_stdio(folder.File("document"), "rb"), {}));
}

TEST(CompoundOutput, tells_of_streams_that_a_file_does_not_take) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("document"), "");
    StreamBytes bytes;
    const std::string data = lvx_test::counting_bytes(200000);
    ASSERT_TRUE(bytes.Write(0, {reinterpret_cast<const unsigned char*>(data.data()), data.size()}));
    const lvx::platform::OutputStream streams[] = {{L"Sky", &bytes}, {L"Sea", &bytes}};
    EXPECT_FALSE(lvx::platform::write_compound_file(open_stdio(folder.File("document"), "rb"), streams));
    EXPECT_EQ("", lvx_test::read_file(folder.File("document")));
}
