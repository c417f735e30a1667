#include "lvx/store/object_store_storage.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/system.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::by_system;
using lvx_test::bytes;
using lvx_test::hex;
using LVXUtilities::ObjectStoreStorage;

namespace {

class StorageStore : public ::testing::Test {
protected:
    void SetUp() override { lvx_test::register_shapes(); }

    bool Open(ObjectStore::OpenMode mode, const std::string& stream = "Sky") {
        return m_store.OpenStorage(m_name, mode, m_error) && m_store.OpenStream(stream, m_error);
    }
    bool OpenForWrite(const std::string& stream = "Sky") { return Open(ObjectStore::ForWrite, stream); }
    bool OpenForRead(const std::string& stream = "Sky") { return Open(ObjectStore::ForRead, stream); }
    // Opens a document whose stream holds `data`.
    bool OpenWith(const std::string& data) {
        if (!OpenForWrite()) {
            return false;
        }
        m_store.Write(data.data(), static_cast<unsigned int>(data.size()));
        m_store.CloseStream();
        return OpenForRead();
    }
    // The bytes from where the store stands to the end of its stream.
    std::string Rest() {
        std::string rest;
        try {
            for (;;) {
                rest += m_store.GetChar();
            }
        } catch (const ObjectStore::UnexpectedEOF&) {
            return rest;
        }
    }
    std::string Written(const std::string& stream = "Sky") {
        m_store.CloseStream();
        return OpenForRead(stream) ? Rest() : "does not open: " + m_error;
    }
    std::string StorageError(const std::string& name, ObjectStore::OpenMode mode) {
        std::string error = "none";
        EXPECT_FALSE(m_store.OpenStorage(name, mode, error));
        EXPECT_FALSE(m_store.IsOpen());
        return error;
    }
    std::string StreamError(const std::string& name) {
        std::string error = "none";
        EXPECT_FALSE(m_store.OpenStream(name, error));
        return error;
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    std::string m_error = "untouched";
    ObjectStoreStorage m_store;
};

// A class of a host's own, which sees each transfer.
class WatchedStore : public ObjectStoreStorage {
public:
    void Read(void* data, unsigned int length) override {
        calls += "R" + std::to_string(length) + " ";
        ObjectStoreStorage::Read(data, length);
    }
    void Write(const void* data, unsigned int length) override {
        calls += "W" + std::to_string(length) + " ";
        ObjectStoreStorage::Write(data, length);
    }
    std::string calls;
};

// An object whose class name is of any length.
class Named : public Storable {
public:
    explicit Named(std::size_t length) : m_name(length, 'n') {}
    void PutTo(ObjectStore& store) const override { store << 'x'; }
    void GetFrom(ObjectStore& store) override {
        char letter = 0;
        store >> letter;
    }
    const char* ClassName() const override { return m_name.c_str(); }

private:
    std::string m_name;
};

}  // namespace

TEST_F(StorageStore, is_closed_at_first_and_its_operations_throw) {
    char letter = 0;
    EXPECT_FALSE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store.Write("x", 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.Read(&letter, 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.UngetChar('x'), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.GetTrim(&letter, 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.CheckOpen(ObjectStore::ForRead), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_NO_THROW(m_store.CloseStream());
}

TEST_F(StorageStore, OpenStream_without_a_storage_throws) {
    EXPECT_THROW_TEXT(m_store.OpenStream("Sky", m_error), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_EQ("untouched", m_error);
}

TEST_F(StorageStore, with_a_storage_and_no_stream_is_open_and_passes_no_byte) {
    ASSERT_TRUE(m_store.OpenStorage(m_name, ObjectStore::ForWrite, m_error));
    EXPECT_TRUE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.UngetChar('x'), ObjectStore::NotOpen, lvx_test::not_open);
    ASSERT_TRUE(m_store.OpenStorage(m_name, ObjectStore::ForWrite, m_error)) << "it lets go of it first";
    m_store.CloseStream();
    ASSERT_TRUE(m_store.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_TRUE(m_store.IsOpen());
}

TEST_F(StorageStore, refuses_the_other_direction) {
    ASSERT_TRUE(OpenForWrite());
    char letter = 0;
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.Read(&letter, 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.GetTrim(&letter, 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.CheckOpen(ObjectStore::ForRead), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_NO_THROW(m_store.CheckOpen(ObjectStore::ForWrite));
    ASSERT_TRUE(OpenWith("x"));
    EXPECT_THROW_TEXT(m_store.Write("x", 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(m_store.CheckOpen(ObjectStore::ForWrite), ObjectStore::WrongMode, lvx_test::wrong_mode);
}

TEST_F(StorageStore, success_leaves_the_error_text_alone) {
    ASSERT_TRUE(OpenForWrite());
    EXPECT_EQ("untouched", m_error);
}

TEST_F(StorageStore, tells_why_a_file_does_not_open) {
    const ObjectStore::OpenMode read = ObjectStore::ForRead;
    EXPECT_EQ("HRESULT = 80030002", StorageError(m_folder.File("missing"), read));
    EXPECT_EQ("HRESULT = 80030003", StorageError(m_folder.File("missing") + "/document", read));
    EXPECT_EQ("HRESULT = 80030005", StorageError(m_folder.Path(), read));
    lvx_test::write_file(m_name, "no compound file");
    EXPECT_EQ("HRESULT = 80030050", StorageError(m_name, read));
    lvx_test::write_file(m_name, "");
    EXPECT_EQ("HRESULT = 80030050", StorageError(m_name, read));
}

TEST_F(StorageStore, tells_why_a_file_is_not_made) {
    // Wine has one code for all that it cannot make.
    EXPECT_EQ(by_system("HRESULT = 80004005", "HRESULT = 80030003"),
              StorageError(m_folder.File("missing") + "/document", ObjectStore::ForWrite));
    EXPECT_EQ(by_system("HRESULT = 80004005", "HRESULT = 80030005"),
              StorageError(m_folder.Path(), ObjectStore::ForWrite));
}

TEST_F(StorageStore, tells_of_a_damaged_file) {
    ASSERT_TRUE(OpenWith("blue"));
    m_store.CloseStream();
    lvx_test::write_file(m_name, lvx_test::read_file(m_name).substr(0, 512));
    // Wine fails where it reads the sector that is not there.
    EXPECT_EQ(by_system("HRESULT = 8003001e", "HRESULT = 80030109"),
              StorageError(m_name, ObjectStore::ForRead));
}

TEST_F(StorageStore, tells_that_somebody_else_has_the_file) {
    ASSERT_TRUE(OpenForWrite());
    ObjectStoreStorage other;
    EXPECT_FALSE(other.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    EXPECT_EQ("HRESULT = 80030020", m_error);
}

TEST_F(StorageStore, a_failed_OpenStorage_has_closed_what_was_open) {
    ASSERT_TRUE(OpenWith("blue"));
    StorageError(m_folder.File("missing"), ObjectStore::ForRead);
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(m_store.OpenStream("Sky", m_error), ObjectStore::NotOpen, lvx_test::not_open);
}

TEST_F(StorageStore, a_failed_OpenStream_has_released_the_open_stream) {
    ASSERT_TRUE(OpenWith("blue"));
    EXPECT_EQ("HRESULT = 80030002", StreamError("Sea"));
    EXPECT_TRUE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    ASSERT_TRUE(m_store.OpenStream("Sky", m_error));
    EXPECT_EQ("blue", Rest());
}

TEST_F(StorageStore, a_failed_OpenStream_has_written_the_open_stream) {
    ASSERT_TRUE(OpenForWrite());
    m_store.Write("blue", 4);
    EXPECT_EQ("HRESULT = 800300fc", StreamError(std::string(32, 'a')));
    EXPECT_THROW_TEXT(m_store << 1, ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_EQ("blue", Written());
}

TEST_F(StorageStore, takes_stream_names_of_31_characters) {
    ASSERT_TRUE(OpenForWrite(std::string(31, 'a')));
    m_store << 'x';
    EXPECT_EQ("HRESULT = 800300fc", StreamError(std::string(32, 'a')));
    EXPECT_EQ("x", Written(std::string(31, 'A')));
    // Wine looks for such a name and does not find it.
    EXPECT_EQ(by_system("HRESULT = 80030002", "HRESULT = 800300fc"), StreamError(std::string(32, 'a')));
}

TEST_F(StorageStore, an_existing_file_is_replaced) {
    lvx_test::write_file(m_name, std::string(5000, 'x'));
    ASSERT_TRUE(OpenForWrite("First"));
    m_store.CloseStream();
    ASSERT_TRUE(OpenForWrite("Second"));
    m_store.CloseStream();
    ASSERT_TRUE(m_store.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    EXPECT_EQ("HRESULT = 80030002", StreamError("First"));
    EXPECT_TRUE(m_store.OpenStream("Second", m_error));
}

TEST_F(StorageStore, a_stream_of_the_same_name_is_replaced) {
    ASSERT_TRUE(OpenForWrite("Sky"));
    m_store.Write("blue", 4);
    ASSERT_TRUE(m_store.OpenStream("SKY", m_error));
    m_store.Write("red", 3);
    EXPECT_EQ("red", Written("sky"));
}

TEST_F(StorageStore, moves_between_streams) {
    ASSERT_TRUE(OpenForWrite("Sky"));
    m_store.Write("blue", 4);
    ASSERT_TRUE(m_store.OpenStream("Sea", m_error));
    m_store.Write("green", 5);
    EXPECT_EQ("green", Written("Sea"));
    ASSERT_TRUE(m_store.OpenStream("Sky", m_error));
    EXPECT_EQ("blue", Rest());
    ASSERT_TRUE(m_store.OpenStream("Sky", m_error)) << "the same stream again";
    EXPECT_EQ("blue", Rest());
}

TEST_F(StorageStore, objects_and_class_numbers_run_on_across_streams) {
    lvx_test::Node first(1);
    lvx_test::Node second(2);
    second.m_edges = {&first};
    ASSERT_TRUE(OpenForWrite("First"));
    m_store << first;
    ASSERT_TRUE(m_store.OpenStream("Second", m_error));
    m_store << second;
    m_store.CloseStream();
    ASSERT_TRUE(m_store.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    ASSERT_TRUE(m_store.OpenStream("Second", m_error));
    // The second stream has the class by number and the first object as a reference.
    EXPECT_EQ(hex(bytes("42 43 00000000 6F 02000000 01000000 42 4F 00000000")), hex(Rest()));
    ObjectStoreStorage reader;
    ASSERT_TRUE(reader.OpenStorage(m_name, ObjectStore::ForRead, m_error)) << "readers share";
    ASSERT_TRUE(reader.OpenStream("First", m_error));
    Storable* read_first = nullptr;
    reader >> read_first;
    const std::unique_ptr<Storable> owned_first(read_first);
    ASSERT_TRUE(reader.OpenStream("Second", m_error));
    Storable* read_second = nullptr;
    reader >> read_second;
    const std::unique_ptr<Storable> owned_second(read_second);
    ASSERT_NE(nullptr, dynamic_cast<lvx_test::Node*>(read_second));
    EXPECT_EQ(read_first, dynamic_cast<lvx_test::Node&>(*read_second).m_edges.at(0));
}

TEST_F(StorageStore, holds_the_same_bytes_as_every_other_store) {
    ASSERT_TRUE(OpenForWrite());
    m_store << true << 3L << 1.5f << "ab" << std::string("ab") << std::string() << 'x';
    EXPECT_EQ(
        hex(bytes("01000000 03000000 000000000000F83F 02000000 'ab' 00 73 02000000 'ab' 73 00000000 'x'")),
        hex(Written()));
}

TEST_F(StorageStore, reads_back_values) {
    ASSERT_TRUE(OpenForWrite());
    m_store << true << -3L << 2.25 << "ab" << std::string("cd") << std::string();
    m_store.CloseStream();
    ASSERT_TRUE(OpenForRead());
    bool flag = false;
    long number = 0;
    double ratio = 0;
    char* text = nullptr;
    std::string first;
    std::string second = "old";
    m_store >> flag >> number >> ratio >> text >> first >> second;
    const std::unique_ptr<char[]> owned(text);
    EXPECT_TRUE(flag);
    EXPECT_EQ(-3, number);
    EXPECT_EQ(2.25, ratio);
    EXPECT_STREQ("ab", text);
    EXPECT_EQ("cd", first);
    EXPECT_EQ("", second);
    EXPECT_THROW_TEXT(m_store >> flag, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(StorageStore, reads_a_string_that_is_a_reference_only_to_say_so) {
    ASSERT_TRUE(OpenWith(bytes("05000000")));
    std::string text;
    EXPECT_THROW_TEXT(m_store >> text, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a String, found null pointer");
}

TEST_F(StorageStore, reading_more_than_there_is_consumes_what_there_is) {
    ASSERT_TRUE(OpenWith("abc"));
    char buffer[8] = {};
    EXPECT_THROW_TEXT(m_store.Read(buffer, 4), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    m_store.UngetChar('?');
    EXPECT_EQ('c', m_store.GetChar());
}

TEST_F(StorageStore, transfers_of_nothing_succeed_also_at_the_end) {
    ASSERT_TRUE(OpenForWrite());
    EXPECT_NO_THROW(m_store.Write("", 0));
    m_store.CloseStream();
    ASSERT_TRUE(OpenForRead());
    char letter = 'x';
    EXPECT_NO_THROW(m_store.Read(&letter, 0));
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(StorageStore, GetChar_gives_every_byte_value) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    ASSERT_TRUE(OpenWith(all));
    EXPECT_EQ(hex(all), hex(Rest()));
}

TEST_F(StorageStore, the_byte_stepped_over_comes_again_whatever_is_put_back) {
    ASSERT_TRUE(OpenWith("ab"));
    EXPECT_EQ('a', m_store.GetChar());
    m_store.UngetChar('z');
    EXPECT_EQ('a', m_store.GetChar());
    EXPECT_EQ('b', m_store.GetChar());
    m_store.UngetChar('z');
    m_store.UngetChar('z');
    EXPECT_EQ("ab", Rest()) << "two steps are as good as one";
    m_store.UngetChar('z');
    EXPECT_EQ("b", Rest()) << "from the end too";
}

TEST_F(StorageStore, there_is_nothing_to_step_back_over_at_the_beginning) {
    ASSERT_TRUE(OpenWith("ab"));
    EXPECT_THROW_TEXT(m_store.UngetChar('a'), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    EXPECT_EQ('a', m_store.GetChar());
    m_store.UngetChar('a');
    EXPECT_THROW_TEXT(m_store.UngetChar('a'), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    EXPECT_EQ("ab", Rest()) << "the failed step moved nothing";
}

TEST_F(StorageStore, steps_back_across_the_block_that_it_keeps) {
    constexpr std::size_t block = 64 * 1024;
    std::string data(3 * block, '\0');
    for (std::size_t i = 0; i < data.size(); ++i) {
        data[i] = static_cast<char>(i % 251);
    }
    ASSERT_TRUE(OpenWith(data));
    std::string front(block, '\0');
    m_store.Read(front.data(), 10);
    m_store.Read(front.data(), block);
    m_store.GetChar();
    for (std::size_t i = 0; i < block + 11; ++i) {
        m_store.UngetChar('z');
    }
    EXPECT_THROW(m_store.UngetChar('z'), ObjectStore::UnexpectedEOF);
    EXPECT_TRUE(data == Rest());
}

TEST_F(StorageStore, steps_back_on_a_store_open_for_writing_and_overwrites) {
    ASSERT_TRUE(OpenForWrite());
    EXPECT_THROW_TEXT(m_store.UngetChar('x'), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    m_store.Write("abc", 3);
    m_store.UngetChar('x');
    m_store.UngetChar('x');
    m_store << 'B';
    EXPECT_EQ("aBc", Written());
}

TEST_F(StorageStore, GetTrim_takes_a_line_without_its_end) {
    ASSERT_TRUE(OpenWith("one\r\ntwo\n\r\n\nlast\n"));
    char buffer[50];
    EXPECT_EQ(3, m_store.GetTrim(buffer, 50));
    EXPECT_STREQ("one", buffer);
    EXPECT_EQ(3, m_store.GetTrim(buffer, 50));
    EXPECT_STREQ("two", buffer);
    EXPECT_EQ(0, m_store.GetTrim(buffer, 50));
    EXPECT_STREQ("", buffer);
    EXPECT_EQ(0, m_store.GetTrim(buffer, 50));
    EXPECT_EQ(4, m_store.GetTrim(buffer, 50));
    EXPECT_THROW_TEXT(m_store.GetTrim(buffer, 50), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(StorageStore, GetTrim_drops_a_CR_inside_the_line_too) {
    ASSERT_TRUE(OpenWith("a\r\rb\rc\n!"));
    char buffer[50];
    EXPECT_EQ(3, m_store.GetTrim(buffer, 50));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ('!', m_store.GetChar());
}

TEST_F(StorageStore, GetTrim_stops_right_behind_the_character_that_fills_the_buffer) {
    ASSERT_TRUE(OpenWith("abc\r\n"));
    char buffer[4] = {'#', '#', '#', '#'};
    EXPECT_EQ(3, m_store.GetTrim(buffer, 4));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ("\r\n", Rest());
}

TEST_F(StorageStore, GetTrim_never_leaves_its_buffer) {
    ASSERT_TRUE(OpenWith("abc\n"));
    char buffer[2] = {'#', '#'};
    EXPECT_EQ(0, m_store.GetTrim(buffer, 1));
    EXPECT_EQ('\0', buffer[0]);
    EXPECT_EQ('#', buffer[1]);
    EXPECT_THROW(m_store.GetTrim(buffer, 0), ObjectStore::UnexpectedEOF);
    EXPECT_THROW(m_store.GetTrim(buffer, -5), ObjectStore::UnexpectedEOF);
    EXPECT_EQ('#', buffer[1]);
    EXPECT_EQ("abc\n", Rest());
}

TEST_F(StorageStore, GetTrim_wants_a_line_end) {
    ASSERT_TRUE(OpenWith("abc"));
    char buffer[50];
    EXPECT_THROW_TEXT(m_store.GetTrim(buffer, 50), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(StorageStore, brings_back_class_names_of_48_characters) {
    for (const std::size_t length : {46u, 47u, 48u}) {
        ASSERT_TRUE(OpenForWrite());
        m_store << Named(length);
        m_store.CloseStream();
        ObjectStoreStorage reader;
        ASSERT_TRUE(reader.OpenStorage(m_name, ObjectStore::ForRead, m_error));
        ASSERT_TRUE(reader.OpenStream("Sky", m_error));
        Storable* object = nullptr;
        EXPECT_TRUE(reader.ReadObjectOrClass(object));
        EXPECT_EQ(std::string(length, 'n'), reader.ClassName());
        EXPECT_EQ('o', reader.GetChar());
    }
}

TEST_F(StorageStore, leaves_the_rest_of_the_line_of_longer_class_names) {
    for (const std::size_t length : {49u, 50u, 51u}) {
        ASSERT_TRUE(OpenForWrite());
        m_store << Named(length);
        m_store.CloseStream();
        ObjectStoreStorage reader;
        ASSERT_TRUE(reader.OpenStorage(m_name, ObjectStore::ForRead, m_error));
        ASSERT_TRUE(reader.OpenStream("Sky", m_error));
        Storable* object = nullptr;
        const std::string next = length == 49 ? "\r" : "n";
        EXPECT_THROW_TEXT(reader >> object, ObjectStore::UnexpectedObject,
                          "Unexpected object in the store: expected a storable, found " + next);
        EXPECT_EQ(std::string(49, 'n'), reader.ClassName());
    }
}

TEST_F(StorageStore, a_length_beyond_the_stream_takes_no_memory) {
    ASSERT_TRUE(OpenWith(bytes("73 FFFFFF7F 'abc'")));
    std::string text = "old";
    EXPECT_THROW_TEXT(m_store >> text, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    ASSERT_TRUE(OpenWith(bytes("FFFFFF7F 'abc'")));
    char* characters = nullptr;
    EXPECT_THROW_TEXT(m_store >> characters, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST_F(StorageStore, knows_what_the_stream_still_holds) {
    ASSERT_TRUE(OpenWith(std::string(200000, 'x')));
    char buffer[10];
    m_store.Read(buffer, 10);
    EXPECT_NO_THROW(m_store.ExpectBytes(199990));
    m_store.UngetChar('x');
    EXPECT_NO_THROW(m_store.ExpectBytes(199991));
    EXPECT_THROW(m_store.ExpectBytes(199992), ObjectStore::UnexpectedEOF);
    EXPECT_THROW(m_store.GetChar(), ObjectStore::UnexpectedEOF) << "as reading them would leave it";
}

TEST_F(StorageStore, values_cross_the_blocks_whole) {
    ASSERT_TRUE(OpenForWrite());
    m_store << 'x';
    for (int i = 0; i < 100000; ++i) {
        m_store << i;
    }
    const std::string large(200000, 'y');
    m_store.Write(large.data(), 200000);
    m_store << 7;
    m_store.CloseStream();
    ASSERT_TRUE(OpenForRead());
    EXPECT_EQ('x', m_store.GetChar());
    for (int i = 0; i < 100000; ++i) {
        int value = -1;
        m_store >> value;
        ASSERT_EQ(i, value);
    }
    std::string back(200000, '\0');
    m_store.Read(back.data(), 200000);
    EXPECT_TRUE(large == back);
    int last = 0;
    m_store >> last;
    EXPECT_EQ(7, last);
}

TEST_F(StorageStore, a_derived_class_sees_every_transfer) {
    WatchedStore store;
    ASSERT_TRUE(store.OpenStorage(m_name, ObjectStore::ForWrite, m_error));
    ASSERT_TRUE(store.OpenStream("Sky", m_error));
    store << 5 << 'x' << std::string("ab");
    EXPECT_EQ("W4 W1 W1 W4 W2 ", store.calls);
    store.CloseStream();
    store.calls.clear();
    ASSERT_TRUE(store.OpenStorage(m_name, ObjectStore::ForRead, m_error));
    ASSERT_TRUE(store.OpenStream("Sky", m_error));
    int number = 0;
    std::string text;
    store >> number;
    EXPECT_EQ('x', store.GetChar());
    store >> text;
    EXPECT_EQ("R4 R1 R1 R4 R2 ", store.calls);
    EXPECT_EQ("ab", text);
}

TEST_F(StorageStore, bytes_are_in_the_file_after_the_destructor_too) {
    {
        ObjectStoreStorage store;
        ASSERT_TRUE(store.OpenStorage(m_name, ObjectStore::ForWrite, m_error));
        ASSERT_TRUE(store.OpenStream("Sky", m_error));
        store << 'a' << 1;
    }
    ASSERT_TRUE(OpenForRead());
    EXPECT_EQ(hex(bytes("61 01000000")), hex(Rest()));
}

TEST_F(StorageStore, is_closed_after_CloseStream_and_opens_again) {
    ASSERT_TRUE(OpenWith("blue"));
    m_store.CloseStream();
    m_store.CloseStream();
    EXPECT_FALSE(m_store.IsOpen());
    EXPECT_THROW_TEXT(m_store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    ASSERT_TRUE(OpenForWrite());
    m_store << 'x';
    EXPECT_EQ("x", Written());
}

TEST_F(StorageStore, opens_a_file_whose_name_is_not_ASCII) {
    // The name in UTF-8, in a process of the classic locale.
    const std::string name = m_folder.File(
        "\xC3\xBC"
        "ber");
    ASSERT_TRUE(m_store.OpenStorage(name, ObjectStore::ForWrite, m_error)) << m_error;
    m_store.CloseStream();
    EXPECT_TRUE(m_store.OpenStorage(name, ObjectStore::ForRead, m_error)) << m_error;
}
