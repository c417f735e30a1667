#include "lvx/exchange/object_file.h"

#include <gmock/gmock.h>
#include <io.h>
#include <windows.h>

#include <cstring>
#include <string>

#include "exchange/temporary_files.h"
#include "support/bytes.h"

using lvx::exchange::block_of_file;
using lvx::exchange::file_of_block;
using lvx::exchange::make_temporary_file;
using lvx::exchange::OwnedBlock;
using lvx::exchange::TemporaryFile;
using lvx_test::bytes;
using lvx_test::read_file;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class ObjectFile : public testing::Test {
protected:
    std::string File(const std::string& content) const {
        const std::string name = files.Path() + "\\file";
        lvx_test::write_file(name, content);
        return name;
    }

    lvx_test::TemporaryFiles files;
};

std::string content(const OwnedBlock& block) {
    std::string all = "none";
    block.Fill([&](std::span<unsigned char> memory) { all.assign(memory.begin(), memory.end()); });
    return all;
}

OwnedBlock block_with(const std::string& all) {
    OwnedBlock block(all.size());
    block.Fill([&](std::span<unsigned char> memory) { std::memcpy(memory.data(), all.data(), all.size()); });
    return block;
}

/// Bytes of which no two pieces are the same.
std::string long_content(std::size_t size) {
    std::string all(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        all[i] = static_cast<char>(i * 7 + i / 251);
    }
    return all;
}

std::string with_length(const std::string& content) {
    std::string length;
    for (int shift = 0; shift < 32; shift += 8) {
        length += static_cast<char>((content.size() + 4) >> shift);
    }
    return length + content;
}

}  // namespace

// The names

TEST_F(ObjectFile, has_a_new_name_in_the_folder_for_temporary_files) {
    const std::string first = make_temporary_file();
    const std::string second = make_temporary_file();
    EXPECT_NE(first, second);
    EXPECT_THAT(first, StartsWith(files.Path() + "\\SWK"));
    EXPECT_EQ("", read_file(first));
    EXPECT_EQ("", read_file(second));
    EXPECT_EQ(2u, files.Names().size());
}

TEST_F(ObjectFile, has_no_name_without_a_folder) {
    const lvx_test::TemporaryFiles missing(files.Path() + "\\missing");
    EXPECT_EQ("", make_temporary_file());
    TemporaryFile none;
    EXPECT_EQ("", none.Name());
    none.Remove();
}

TEST_F(ObjectFile, goes_with_its_object) {
    {
        const TemporaryFile file;
        EXPECT_EQ(1u, files.Names().size());
        EXPECT_EQ("", read_file(file.Name()));
    }
    EXPECT_THAT(files.Names(), IsEmpty());
}

TEST_F(ObjectFile, goes_once_when_it_is_told) {
    TemporaryFile file;
    const std::string name = file.Name();
    file.Remove();
    EXPECT_THAT(files.Names(), IsEmpty());
    EXPECT_EQ("", file.Name());
    lvx_test::write_file(name, "another's by now");
    file.Remove();
    EXPECT_EQ(1u, files.Names().size());
}

// From a file to a block

TEST_F(ObjectFile, becomes_a_block_with_its_length) {
    EXPECT_EQ(bytes("07 00 00 00 'abc'"), content(block_of_file(File("abc"))));
    EXPECT_EQ(bytes("04 00 00 00"), content(block_of_file(File(""))));
}

TEST_F(ObjectFile, of_any_size_becomes_a_block) {
    for (const std::size_t size : {0x7FFF, 0x8000, 0x8001, 0x10000, 0x28003}) {
        const std::string all = long_content(size);
        EXPECT_EQ(with_length(all), content(block_of_file(File(all)))) << size;
    }
}

TEST_F(ObjectFile, is_closed_once_it_is_a_block) {
    const std::string name = File("abc");
    const OwnedBlock block = block_of_file(name);
    EXPECT_EQ(0, ::_unlink(name.c_str()));
    EXPECT_EQ(bytes("07 00 00 00 'abc'"), content(block));
}

TEST_F(ObjectFile, that_is_not_there_becomes_none) {
    EXPECT_EQ(nullptr, block_of_file(files.Path() + "\\missing").Get());
    EXPECT_EQ(nullptr, block_of_file(files.Path()).Get()) << "a folder";
    EXPECT_EQ(nullptr, block_of_file("").Get());
}

// 2 GiB without a byte of them on the disk.
TEST_F(ObjectFile, of_two_gigabytes_becomes_none) {
    const std::string name = File("");
    const HANDLE file = ::CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    LARGE_INTEGER size{};
    size.QuadPart = 0x80000000ll;
    ::SetFilePointerEx(file, size, nullptr, FILE_BEGIN);
    ASSERT_TRUE(::SetEndOfFile(file));
    ::CloseHandle(file);
    EXPECT_EQ(nullptr, block_of_file(name).Get());
}

// From a block to a file

TEST_F(ObjectFile, is_made_of_what_a_block_holds) {
    const std::string name = file_of_block(block_with(bytes("07 00 00 00 'abc'")).Get());
    EXPECT_THAT(name, StartsWith(files.Path() + "\\SWK"));
    EXPECT_EQ("abc", read_file(name));
    EXPECT_EQ("", read_file(file_of_block(block_with(bytes("04 00 00 00")).Get())));
}

TEST_F(ObjectFile, of_any_size_is_made_of_a_block) {
    for (const std::size_t size : {0x7FFF, 0x8000, 0x8001, 0x10000, 0x28003}) {
        const std::string all = long_content(size);
        EXPECT_EQ(all, read_file(file_of_block(block_with(with_length(all)).Get()))) << size;
    }
}

TEST_F(ObjectFile, ends_where_the_block_says) {
    EXPECT_EQ("abc", read_file(file_of_block(block_with(bytes("07 00 00 00 'abcdef'")).Get())));
}

TEST_F(ObjectFile, of_a_torn_block_is_not_made) {
    for (const char* torn :
         {"07", "04 00 00", "03 00 00 00", "00 00 00 00 'abc'", "08 00 00 00 'abc'", "FF FF FF FF 'abc'"}) {
        EXPECT_EQ("", file_of_block(block_with(bytes(torn)).Get())) << torn;
    }
    EXPECT_THAT(files.Names(), IsEmpty());
}

TEST_F(ObjectFile, of_no_block_is_not_made) {
    EXPECT_EQ("", file_of_block(nullptr));
    EXPECT_EQ("", file_of_block(OwnedBlock(0).Get()));
    const HGLOBAL gone = ::GlobalAlloc(GMEM_MOVEABLE, 8);
    ::GlobalFree(gone);
    EXPECT_EQ("", file_of_block(gone));
    EXPECT_THAT(files.Names(), IsEmpty());
}

TEST_F(ObjectFile, leaves_the_block_unlocked) {
    const OwnedBlock block = block_with(bytes("07 00 00 00 'abc'"));
    file_of_block(block.Get());
    ::GlobalLock(block.Get());
    EXPECT_FALSE(::GlobalUnlock(block.Get()));
}

TEST_F(ObjectFile, without_a_folder_is_not_made) {
    const lvx_test::TemporaryFiles missing(files.Path() + "\\missing");
    EXPECT_EQ("", file_of_block(block_with(bytes("07 00 00 00 'abc'")).Get()));
}
