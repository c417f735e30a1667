#include "lvx/store/object_store_stream.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/shapes.h"

using lvx_test::bytes;
using lvx_test::hex;

namespace {

// A stream over given bytes and a store that reads it.
struct Reading {
    explicit Reading(const std::string& data) : stream(data) { store.OpenStream(&stream); }
    std::istringstream stream;
    ObjectStoreStream store;
};

// Fails to take or give any byte, as a device that breaks.
class BrokenBuffer : public std::streambuf {
protected:
    int_type overflow(int_type) override { throw std::runtime_error("broken"); }
    int_type underflow() override { throw std::runtime_error("broken"); }
};

}  // namespace

TEST(StreamStore, is_closed_at_first_and_its_operations_throw) {
    ObjectStoreStream store;
    char byte = 0;
    EXPECT_FALSE(store.IsOpen());
    EXPECT_THROW_TEXT(store.Write("x", 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(store.Read(&byte, 1), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(store.GetChar(), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(store.UngetChar('x'), ObjectStore::NotOpen, lvx_test::not_open);
    EXPECT_THROW_TEXT(store.GetTrim(&byte, 1), ObjectStore::NotOpen, lvx_test::not_open);
}

TEST(StreamStore, opening_null_gives_false) {
    ObjectStoreStream store;
    EXPECT_FALSE(store.OpenStream(static_cast<std::ostream*>(nullptr)));
    EXPECT_FALSE(store.OpenStream(static_cast<std::istream*>(nullptr)));
    EXPECT_THROW(store.GetChar(), ObjectStore::NotOpen);
}

TEST(StreamStore, refuses_the_other_direction) {
    std::stringstream stream("x");
    ObjectStoreStream store;
    EXPECT_TRUE(store.OpenStream(static_cast<std::ostream*>(&stream)));
    char byte = 0;
    EXPECT_THROW_TEXT(store.GetChar(), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(store.Read(&byte, 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_THROW_TEXT(store.UngetChar('x'), ObjectStore::WrongMode, lvx_test::wrong_mode);
    EXPECT_TRUE(store.OpenStream(static_cast<std::istream*>(&stream)));
    EXPECT_THROW_TEXT(store.Write("x", 1), ObjectStore::WrongMode, lvx_test::wrong_mode);
}

TEST(StreamStore, bytes_stand_in_the_stream_at_once) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << 1;
    EXPECT_EQ(hex(bytes("01 00 00 00")), hex(stream.str()));
    stream << '!';
    store << 'a';
    EXPECT_EQ(hex(bytes("01 00 00 00 '!a'")), hex(stream.str()));
}

TEST(StreamStore, the_caller_may_read_between_two_values) {
    Reading reading(bytes("01 00 00 00 '!' 02 00 00 00"));
    int number = 0;
    reading.store >> number;
    EXPECT_EQ('!', reading.stream.get());
    reading.store >> number;
    EXPECT_EQ(2, number);
}

TEST(StreamStore, CloseStream_lets_the_stream_be) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << 'a';
    store.CloseStream();
    EXPECT_FALSE(store.IsOpen());
    stream << 'b';
    EXPECT_EQ("ab", stream.str());
}

TEST(StreamStore, a_number_that_falls_short_is_zero_and_nothing_is_raised) {
    Reading reading(bytes("01 02"));
    int number = 7;
    EXPECT_NO_THROW(reading.store >> number);
    EXPECT_EQ(0, number);
    double ratio = 7;
    EXPECT_NO_THROW(reading.store >> ratio);
    EXPECT_EQ(0, ratio);
    bool flag = true;
    EXPECT_NO_THROW(reading.store >> flag);
    EXPECT_FALSE(flag);
    char letter = 'x';
    EXPECT_NO_THROW(reading.store >> letter);
    EXPECT_EQ('\0', letter);
}

TEST(StreamStore, a_short_read_leaves_the_buffer_as_far_as_it_was_filled) {
    Reading reading("ab");
    char data[4] = {'1', '2', '3', '4'};
    EXPECT_NO_THROW(reading.store.Read(data, 4));
    EXPECT_EQ("ab34", std::string(data, 4));
    EXPECT_THROW_TEXT(reading.store.GetChar(), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST(StreamStore, a_text_that_falls_short_is_as_long_as_it_came) {
    Reading reading(bytes("'s' 05 00 00 00 'abc'"));
    std::string text;
    EXPECT_NO_THROW(reading.store >> text);
    EXPECT_EQ("abc", text);
    Reading c_reading(bytes("05 00 00 00 'abc'"));
    char* c_text = nullptr;
    EXPECT_NO_THROW(c_reading.store >> c_text);
    EXPECT_STREQ("abc", c_text);
    delete[] c_text;
}

TEST(StreamStore, an_empty_string_is_read_back) {
    Reading reading(bytes("'s' 00 00 00 00 'x'"));
    std::string text = "old";
    reading.store >> text;
    EXPECT_EQ("", text);
    EXPECT_EQ('x', reading.store.GetChar());
}

TEST(StreamStore, the_end_is_told_by_GetChar) {
    Reading reading("a");
    EXPECT_EQ('a', reading.store.GetChar());
    EXPECT_THROW_TEXT(reading.store.GetChar(), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST(StreamStore, the_byte_FF_is_a_byte_and_not_the_end) {
    Reading reading(bytes("FF 'a'"));
    EXPECT_EQ('\xFF', reading.store.GetChar());
    reading.store.UngetChar('\xFF');
    EXPECT_EQ('\xFF', reading.store.GetChar());
    EXPECT_EQ('a', reading.store.GetChar());
}

TEST(StreamStore, a_bad_stream_throws) {
    BrokenBuffer broken;
    std::ostream output(&broken);
    ObjectStoreStream store;
    store.OpenStream(&output);
    EXPECT_THROW_TEXT(store << 1, ObjectStore::WriteFailure, lvx_test::write_failure);
    std::istream input(&broken);
    store.OpenStream(&input);
    int number = 0;
    EXPECT_THROW_TEXT(store >> number, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
    char line[8];
    input.clear();
    EXPECT_THROW_TEXT(store.GetTrim(line, sizeof line), ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof);
}

TEST(StreamStore, a_stream_without_a_buffer_is_bad) {
    std::ostream output(nullptr);
    ObjectStoreStream store;
    store.OpenStream(&output);
    EXPECT_THROW(store << 1, ObjectStore::WriteFailure);
    std::istream input(nullptr);
    store.OpenStream(&input);
    EXPECT_THROW(store.GetChar(), ObjectStore::UnexpectedEOF);
    EXPECT_NO_THROW(store.ExpectBytes(1LL << 40)) << "its length cannot be told";
}

TEST(StreamStore, GetTrim_takes_a_line_without_its_end) {
    Reading reading("one\r\ntwo\nthree\r\r\n\r\n\nz");
    char line[50];
    const std::pair<int, const char*> lines[] = {{3, "one"}, {3, "two"}, {5, "three"}, {0, ""}, {0, ""}};
    for (const auto& [length, text] : lines) {
        EXPECT_EQ(length, reading.store.GetTrim(line, sizeof line));
        EXPECT_STREQ(text, line);
    }
}

TEST(StreamStore, GetTrim_of_a_last_line_without_an_end_loses_a_character) {
    Reading reading("last");
    char line[50];
    EXPECT_EQ(3, reading.store.GetTrim(line, sizeof line));
    EXPECT_STREQ("las", line);
}

TEST(StreamStore, GetTrim_behind_the_end_raises_nothing_and_gives_an_empty_line) {
    Reading reading("");
    char line[50] = "old";
    EXPECT_NO_THROW(EXPECT_EQ(0, reading.store.GetTrim(line, sizeof line)));
    EXPECT_STREQ("", line);
}

TEST(StreamStore, GetTrim_without_room_writes_nothing_outside) {
    char line[2] = {'x', 'y'};
    for (const int size : {0, -1}) {
        Reading reading("abc\n");
        EXPECT_EQ(0, reading.store.GetTrim(line, size));
        EXPECT_EQ('x', line[0]);
    }
    Reading reading("abc\n");
    EXPECT_EQ(0, reading.store.GetTrim(line, 1));
    EXPECT_EQ('\0', line[0]);
    EXPECT_EQ('y', line[1]);
}

TEST(StreamStore, class_names_of_48_characters_are_read_back_and_longer_ones_not) {
    class Named : public lvx_test::Node {
    public:
        const char* ClassName() const override { return m_name.c_str(); }
        std::string m_name;
    };
    for (std::size_t length = 46; length <= 51; ++length) {
        Named object;
        object.m_name = std::string(length, 'm');
        ObjectFactory::Register(object.m_name, ObjectFactory::CreateStorable<lvx_test::Node>);
        std::stringstream stream;
        ObjectStoreStream store;
        store.OpenStream(static_cast<std::ostream*>(&stream));
        store << object;
        store.OpenStream(static_cast<std::istream*>(&stream));
        Storable* read = nullptr;
        if (length <= 48) {
            ObjectStoreStream fresh;
            fresh.OpenStream(static_cast<std::istream*>(&stream));
            ASSERT_NO_THROW(fresh >> read) << length;
            EXPECT_NE(nullptr, read);
            delete read;
        } else {
            EXPECT_THROW_TEXT(store >> read, ObjectStore::UnexpectedEOF, lvx_test::unexpected_eof) << length;
        }
    }
}

TEST(StreamStore, a_hosts_buffer_sees_every_piece) {
    class Watching : public std::stringbuf {
    public:
        using std::stringbuf::stringbuf;
        std::streamsize m_written = 0;
        std::streamsize m_read = 0;

    protected:
        std::streamsize xsputn(const char* data, std::streamsize size) override {
            m_written += size;
            return std::stringbuf::xsputn(data, size);
        }
        std::streamsize xsgetn(char* data, std::streamsize size) override {
            m_read += size;
            return std::stringbuf::xsgetn(data, size);
        }
    };
    Watching buffer;
    std::iostream stream(&buffer);
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::ostream*>(&stream));
    store << 1 << 2.0 << 3L;
    EXPECT_EQ(16, buffer.m_written);
    store.OpenStream(static_cast<std::istream*>(&stream));
    int number = 0;
    double ratio = 0;
    store >> number >> ratio >> number;
    EXPECT_EQ(16, buffer.m_read);
    EXPECT_EQ(3, number);
}

TEST(StreamStore, a_buffer_given_to_the_stream_later_takes_the_bytes) {
    std::stringbuf first;
    std::stringbuf second;
    std::ostream stream(&first);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << 'a';
    stream.rdbuf(&second);
    store << 'b';
    EXPECT_EQ("a", first.str());
    EXPECT_EQ("b", second.str());
}

TEST(StreamStore, a_long_text_that_falls_short_on_a_stream_without_a_length_is_as_long_as_it_came) {
    // Gives bytes and cannot seek.
    class OneWay : public std::stringbuf {
    public:
        using std::stringbuf::stringbuf;

    protected:
        pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override { return -1; }
        pos_type seekpos(pos_type, std::ios_base::openmode) override { return -1; }
    };
    const std::string there(3 * 1024 * 1024, 'x');
    for (const bool is_c_string : {false, true}) {
        OneWay buffer((is_c_string ? "" : "s") + bytes("FE FF FF 7F") + there);
        std::istream stream(&buffer);
        ObjectStoreStream store;
        store.OpenStream(&stream);
        std::string text;
        if (is_c_string) {
            char* characters = nullptr;
            store >> characters;
            text = lvx::auto_array<char>(characters).get();
        } else {
            store >> text;
        }
        EXPECT_TRUE(there == text);
    }
}

TEST(StreamStore, a_long_text_is_read_whole) {
    const std::string long_text(3 * 1024 * 1024, 'x');
    std::stringstream stream;
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::ostream*>(&stream));
    store << long_text << 'e';
    store.OpenStream(static_cast<std::istream*>(&stream));
    std::string text;
    store >> text;
    EXPECT_TRUE(long_text == text);
    EXPECT_EQ('e', store.GetChar());
}
