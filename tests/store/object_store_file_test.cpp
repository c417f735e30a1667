#include "lvx/store/object_store_file.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::bytes;
using lvx_test::hex;

namespace {

class FileStore : public ::testing::Test {
protected:
    bool OpenWith(const std::string& data) {
        lvx_test::write_file(m_name, data);
        return m_store.OpenStream(m_name.c_str(), ObjectStore::ForRead);
    }
    bool OpenForWrite() { return m_store.OpenStream(m_name.c_str(), ObjectStore::ForWrite); }
    std::string Written() {
        m_store.CloseStream();
        return lvx_test::read_file(m_name);
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("store");
    ObjectStoreFile m_store;
};

}  // namespace

TEST_F(FileStore, is_closed_at_first_and_its_operations_throw) {
    char byte = 0;
    EXPECT_FALSE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store.Write("x", 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.Read(&byte, 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.UngetChar('x'), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.GetTrim(&byte, 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.CheckOpen(ObjectStore::ForRead), ObjectStore::NotOpen, lvx_test::not_open);
}

TEST_F(FileStore, refuses_the_other_direction) {
    ASSERT_TRUE(OpenForWrite());
    char byte = 0;
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.Read(&byte, 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.UngetChar('x'), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.GetTrim(&byte, 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_NO_THROW(m_store.CheckOpen(ObjectStore::ForWrite));
    ASSERT_TRUE(OpenWith("x"));
    EXPECT_THROW_TEXT(m_store.Write("x", 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::WrongMode, lvx_test::wrong_mode);
}

TEST_F(FileStore, a_missing_folder_gives_false_and_a_closed_store) {
    EXPECT_FALSE(m_store.OpenStream(m_folder.File("missing/store").c_str(), ObjectStore::ForWrite));
    EXPECT_FALSE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::NotOpen, lvx_test::not_open);
}

TEST_F(FileStore, a_missing_file_a_directory_and_null_give_false) {
    EXPECT_FALSE(m_store.OpenStream(m_folder.File("missing").c_str(), ObjectStore::ForRead));
    EXPECT_FALSE(m_store.OpenStream(m_folder.Path().c_str(), ObjectStore::ForRead));
    EXPECT_FALSE(m_store.OpenStream(m_folder.Path().c_str(), ObjectStore::ForWrite));
    EXPECT_FALSE(m_store.OpenStream(nullptr, ObjectStore::ForRead));
    EXPECT_FALSE(m_store.IsOpen());
}

TEST_F(FileStore, a_failed_open_closes_what_was_open) {
    ASSERT_TRUE(OpenWith("x"));
    EXPECT_FALSE(m_store.OpenStream(m_folder.File("missing").c_str(), ObjectStore::ForRead));
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
}

TEST_F(FileStore, an_existing_file_is_replaced) {
    lvx_test::write_file(m_name, "something longer");
    ASSERT_TRUE(OpenForWrite());
    m_store << 'a';
    EXPECT_EQ("a", Written());
}

TEST_F(FileStore, bytes_are_in_the_file_after_the_destructor_too) {
    {
        ObjectStoreFile store;
        ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForWrite));
        store << 'a' << 1;
    }
    EXPECT_EQ(hex(bytes("61 01 00 00 00")), hex(lvx_test::read_file(m_name)));
}

TEST_F(FileStore, a_second_open_writes_the_first_file_out) {
    ASSERT_TRUE(OpenForWrite());
    m_store << 'a';
    ASSERT_TRUE(m_store.OpenStream(m_folder.File("other").c_str(), ObjectStore::ForWrite));
    EXPECT_EQ("a", lvx_test::read_file(m_name));
}

TEST_F(FileStore, line_ends_stay_as_they_are) {
    ASSERT_TRUE(OpenForWrite());
    m_store.Write("a\r\nb\n\x1A", 6);
    EXPECT_EQ("a\r\nb\n\x1A", Written());
    ASSERT_TRUE(OpenWith("\r\n\x1A!"));
    EXPECT_EQ('\r', m_store.GetChar());
    EXPECT_EQ('\n', m_store.GetChar());
    EXPECT_EQ('\x1A', m_store.GetChar());
    EXPECT_EQ('!', m_store.GetChar());
}

TEST_F(FileStore, writing_nothing_succeeds) {
    ASSERT_TRUE(OpenForWrite());
    EXPECT_NO_THROW(m_store.Write("", 0));
    EXPECT_NO_THROW(m_store << std::string());
    EXPECT_EQ(5u, Written().size());
}

TEST_F(FileStore, reading_nothing_succeeds_also_at_the_end) {
    ASSERT_TRUE(OpenWith(""));
    char byte = 'x';
    EXPECT_NO_THROW(m_store.Read(&byte, 0));
    EXPECT_EQ('x', byte);
}

TEST_F(FileStore, GetChar_gives_every_byte_value) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    ASSERT_TRUE(OpenWith(all));
    for (const char c : all) {
        EXPECT_EQ(c, m_store.GetChar());
    }
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(FileStore, the_byte_put_back_comes_again_whatever_it_is) {
    ASSERT_TRUE(OpenWith("ab"));
    EXPECT_EQ('a', m_store.GetChar());
    m_store.UngetChar('\xFF');
    EXPECT_EQ('\xFF', m_store.GetChar());
    EXPECT_EQ('b', m_store.GetChar());
    m_store.UngetChar('z');
    EXPECT_EQ('z', m_store.GetChar());
    EXPECT_THROW(m_store.GetChar(), ObjectStore::UnexpectedEOF);
    m_store.UngetChar('e');
    EXPECT_EQ('e', m_store.GetChar()) << "behind the end too";
}

TEST_F(FileStore, a_byte_can_be_put_back_before_any_was_read) {
    ASSERT_TRUE(OpenWith("ab"));
    m_store.UngetChar('>');
    EXPECT_EQ('>', m_store.GetChar());
    EXPECT_EQ('a', m_store.GetChar());
}

TEST_F(FileStore, more_bytes_put_back_than_there_is_room_for_are_dropped) {
    ASSERT_TRUE(OpenWith("a"));
    for (int i = 0; i < 100; ++i) {
        m_store.UngetChar('x');
    }
    char c = 'x';
    int count = 0;
    while ((c = m_store.GetChar()) == 'x') {
        ++count;
    }
    EXPECT_EQ('a', c);
    EXPECT_EQ(16, count);
}

TEST_F(FileStore, a_short_read_throws_at_once) {
    ASSERT_TRUE(OpenWith("abc"));
    char data[4] = {};
    EXPECT_THROW_TEXT(m_store.Read(data, 4), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    EXPECT_THROW(m_store.GetChar(), ObjectStore::UnexpectedEOF);
}

TEST_F(FileStore, reads_and_writes_of_any_length_keep_their_order) {
    // Around the block of 64 KiB, small and large in turn.
    std::string expected;
    ASSERT_TRUE(OpenForWrite());
    for (const unsigned length : {1u, 65535u, 65536u, 3u, 65537u, 200000u, 2u, 4096u, 61440u, 0u, 1u}) {
        std::string piece(length, '\0');
        for (std::size_t i = 0; i < piece.size(); ++i) {
            piece[i] = static_cast<char>((i * 31 + length) >> 3);
        }
        m_store.Write(piece.data(), length);
        m_store << static_cast<int>(length);
        expected += piece;
        for (int shift = 0; shift < 32; shift += 8) {
            expected += static_cast<char>(length >> shift);
        }
    }
    ASSERT_TRUE(expected == Written());
    ASSERT_TRUE(m_store.OpenStream(m_name.c_str(), ObjectStore::ForRead));
    std::string read;
    for (const unsigned length : {5u, 100000u, 1u, 65536u, 65535u, 7u, 131072u}) {
        std::string piece(length, '\0');
        m_store.Read(piece.data(), length);
        read += piece;
    }
    EXPECT_TRUE(expected.compare(0, read.size(), read) == 0);
}

TEST_F(FileStore, GetTrim_takes_a_line_without_its_end) {
    ASSERT_TRUE(OpenWith("one\r\ntwo\nthree\r\r\n\r\n\nlast"));
    char line[50];
    const std::pair<int, const char*> lines[] = {{3, "one"}, {3, "two"}, {5, "three"},
                                                 {0, ""},    {0, ""},    {4, "last"}};
    for (const auto& [length, text] : lines) {
        EXPECT_EQ(length, m_store.GetTrim(line, sizeof line));
        EXPECT_STREQ(text, line);
    }
    EXPECT_THROW_TEXT(m_store.GetTrim(line, sizeof line), ObjectStore::UnexpectedEOF,
                      lvx_test::unexpected_eof);
}

TEST_F(FileStore, GetTrim_counts_the_line_end_against_its_limit) {
    ASSERT_TRUE(OpenWith("abc\r\nd"));
    char line[5] = {};
    EXPECT_EQ(3, m_store.GetTrim(line, 5));
    EXPECT_STREQ("abc", line);
    EXPECT_EQ('\n', m_store.GetChar()) << "the LF did not fit";
}

TEST_F(FileStore, GetTrim_keeps_a_CR_inside_the_line) {
    ASSERT_TRUE(OpenWith("a\rb\r\n"));
    char line[50];
    EXPECT_EQ(3, m_store.GetTrim(line, sizeof line));
    EXPECT_STREQ("a\rb", line);
}

TEST_F(FileStore, GetTrim_of_a_line_with_a_NUL_ends_there) {
    ASSERT_TRUE(OpenWith(bytes("'a' 00 'b' 0A 'c'")));
    char line[50];
    EXPECT_EQ(1, m_store.GetTrim(line, sizeof line));
    EXPECT_EQ('c', m_store.GetChar());
}

TEST_F(FileStore, GetTrim_without_room_writes_nothing_outside) {
    ASSERT_TRUE(OpenWith("abc"));
    char line[3] = {'x', 'y', 'z'};
    EXPECT_THROW(m_store.GetTrim(line, 0), ObjectStore::UnexpectedEOF);
    EXPECT_THROW(m_store.GetTrim(line, -1), ObjectStore::UnexpectedEOF);
    EXPECT_EQ('x', line[0]);
    EXPECT_EQ(0, m_store.GetTrim(line, 1));
    EXPECT_EQ('\0', line[0]);
    EXPECT_EQ('y', line[1]);
    EXPECT_EQ('a', m_store.GetChar());
}

TEST_F(FileStore, class_names_of_47_characters_are_read_back_and_longer_ones_not) {
    class Named : public lvx_test::Node {
    public:
        const char* ClassName() const override { return m_name.c_str(); }
        std::string m_name;
    };
    for (std::size_t length = 46; length <= 51; ++length) {
        Named object;
        object.m_name = std::string(length, 'n');
        ObjectFactory::Register(object.m_name, ObjectFactory::CreateStorable<lvx_test::Node>);
        ASSERT_TRUE(OpenForWrite());
        m_store << object;
        m_store.CloseStream();
        ASSERT_TRUE(m_store.OpenStream(m_name.c_str(), ObjectStore::ForRead));
        Storable* read = nullptr;
        if (length <= 47) {
            ASSERT_NO_THROW(m_store >> read) << length;
            EXPECT_NE(nullptr, read);
            delete read;
        } else {
            // The rest of the line stands where the body should.
            const std::string found = length == 48 ? "\n" : length == 49 ? "\r" : "n";
            EXPECT_THROW_TEXT(m_store >> read, ObjectStore::UnexpectedObject,
                              "Unexpected object in the store: expected a storable, found " + found);
        }
    }
}

TEST_F(FileStore, a_class_derived_by_a_host_sees_every_call) {
    class Watching : public ObjectStoreFile {
    public:
        void Write(const void* data, unsigned int length) override {
            m_calls += "W" + std::to_string(length);
            ObjectStoreFile::Write(data, length);
        }
        void Read(void* data, unsigned int length) override {
            m_calls += "R" + std::to_string(length);
            ObjectStoreFile::Read(data, length);
        }
        char GetChar() override {
            m_calls += "G";
            return ObjectStoreFile::GetChar();
        }
        std::string m_calls;
    };
    Watching store;
    ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForWrite));
    store << 1 << std::string("ab") << 'c';
    store.CloseStream();
    EXPECT_EQ("W4W1W4W2W1", store.m_calls);
    store.m_calls.clear();
    ASSERT_TRUE(store.OpenStream(m_name.c_str(), ObjectStore::ForRead));
    int number = 0;
    std::string text;
    char letter = 0;
    store >> number >> text >> letter;
    EXPECT_EQ("R4GR4R2R1", store.m_calls);
    EXPECT_EQ("ab", text);
    EXPECT_EQ('c', letter);
}
