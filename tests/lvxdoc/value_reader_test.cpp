#include "tools/lvxdoc/value_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;

namespace {

struct Reading {
    explicit Reading(const std::string& bytes, bool strict = false)
        : source(bytes), cursor(source), reader(cursor, lines, strict) {}

    MemorySource source;
    Cursor cursor;
    Lines lines;
    ValueReader reader;
};

// What a strict reader says to a bitmap block.
std::string verdict(const std::string& block) {
    Reading reading(block, true);
    try {
        reading.reader.ReadBitmap(block.size(), "block");
    } catch (const Damage& damage) {
        return std::to_string(damage.Offset()) + ": " + damage.what();
    }
    return "good";
}

class Keeper : public EventSink {
public:
    void Take(const Event&) override {}
    void BeginBitmap(std::uint64_t size) override { begun = size; }
    void TakeBitmapBytes(std::string_view bytes) override { block += bytes; }
    void EndBitmap() override { ended = true; }

    std::uint64_t begun = 0;
    std::string block;
    bool ended = false;
};

}  // namespace

TEST(ValueReader, reads_each_plain_type) {
    Reading reading(bytes_of("01000000 feffffff 03000000 000000000000f83f 0000000000000440 e9"));
    reading.reader.ReadBoolean("a");
    EXPECT_EQ(-2, reading.reader.ReadInteger(Type::integer, "b"));
    EXPECT_EQ(3, reading.reader.ReadInteger(Type::long_integer, "c"));
    reading.reader.ReadReal(Type::single, "d");
    reading.reader.ReadReal(Type::real, "e");
    reading.reader.ReadCharacter("f");
    EXPECT_THAT(reading.lines.lines,
                ElementsAre("0 bool a = true", "4 int b = -2", "8 long c = 3", "12 float d = 1.5",
                            "20 double e = 2.5", "28 char f = \"\\xe9\""));
    EXPECT_TRUE(reading.cursor.AtEnd());
}

TEST(ValueReader, takes_any_bool_but_strictly_only_0_and_1) {
    Reading easy(bytes_of("02000000"));
    easy.reader.ReadBoolean("a");
    EXPECT_THAT(easy.lines.lines, ElementsAre("0 bool a = true (2)"));
    Reading strict(bytes_of("02000000"), true);
    EXPECT_THROW(strict.reader.ReadBoolean("a"), Damage);
}

TEST(ValueReader, reads_c_strings_with_their_nul) {
    Reading reading(bytes_of("00000000 02000000 'ab' 00"));
    reading.reader.ReadCString("empty");
    reading.reader.ReadCString("text");
    EXPECT_THAT(reading.lines.lines, ElementsAre("0 cstring empty = \"\"", "4 cstring text = \"ab\""));
    EXPECT_TRUE(reading.cursor.AtEnd());
}

TEST(ValueReader, wants_the_nul_only_when_strict) {
    Reading easy(bytes_of("02000000 'abc'"));
    EXPECT_NO_THROW(easy.reader.ReadCString("text"));
    Reading strict(bytes_of("02000000 'abc'"), true);
    try {
        strict.reader.ReadCString("text");
        FAIL() << "no damage";
    } catch (const Damage& damage) {
        EXPECT_EQ(6u, damage.Offset());
        EXPECT_STREQ("there is no NUL behind the C string 'text'", damage.what());
    }
}

TEST(ValueReader, keeps_the_beginning_of_a_long_text_and_passes_the_rest) {
    Reading reading(int_bytes(200'000) + std::string(200'000, 'x') + 'y');
    reading.reader.ReadTaggedString(0, "long");
    EXPECT_EQ('y', reading.cursor.Peek());
    EXPECT_NE(std::string::npos, reading.lines.lines.at(0).find("(200000 bytes)"));
}

TEST(ValueReader, passes_on_the_whole_block_of_a_bitmap) {
    MemorySource source(small_block + "more");
    Cursor cursor(source);
    Keeper keeper;
    ValueReader(cursor, keeper, true).ReadBitmap(small_block.size(), "block");
    EXPECT_EQ(small_block.size(), keeper.begun);
    EXPECT_EQ(small_block, keeper.block);
    EXPECT_TRUE(keeper.ended);
    EXPECT_EQ('m', cursor.Peek());
}

TEST(ValueReader, passes_on_blocks_without_a_header_too) {
    for (const std::string& block :
         {std::string(), std::string("abc"), std::string(20, 'x'), std::string(100, 'x')}) {
        MemorySource source(block);
        Cursor cursor(source);
        Keeper keeper;
        ValueReader(cursor, keeper, false).ReadBitmap(block.size(), "block");
        EXPECT_EQ(block, keeper.block);
        EXPECT_TRUE(keeper.ended);
    }
}

TEST(ValueReader, tells_colours_and_the_fields_of_a_core_header) {
    const std::string block = bytes_of("0c000000 0100 0100 0100 0100  000000 ffffff  80000000");
    Reading reading(block, true);
    reading.reader.ReadBitmap(block.size(), "block");
    EXPECT_THAT(
        reading.lines.lines,
        ElementsAre("0 dword header size = 12", "4 word width = 1", "6 word height = 1", "8 word planes = 1",
                    "10 word bits per pixel = 1", testing::StartsWith("12 bytes colours = 6 bytes"),
                    testing::StartsWith("18 bytes pixels = 4 bytes")));
}

TEST(ValueReader, tells_the_rest_of_a_longer_header) {
    std::string block = small_block;
    block[0] = 108;
    block.insert(40, std::string(68, '\x07'));
    Reading reading(block, true);
    reading.reader.ReadBitmap(block.size(), "block");
    EXPECT_THAT(reading.lines.lines.at(11), testing::StartsWith("40 bytes further header = 68 bytes"));
    EXPECT_THAT(reading.lines.lines.at(12), testing::StartsWith("108 bytes pixels = 16 bytes"));
}

TEST(ValueReader, holds_the_header_of_a_bitmap_against_its_block_when_strict) {
    EXPECT_EQ("good", verdict(small_block));
    EXPECT_EQ(
        "0: a bitmap block of 55 bytes cannot be right: its header asks for 40 bytes of header and colours "
        "and 16 "
        "bytes of pixels, but the block has 55 bytes",
        verdict(small_block.substr(0, 55)));
    EXPECT_EQ("0: a bitmap block of 3 bytes cannot be right: it has no room for a header", verdict("abc"));
}

TEST(ValueReader, refuses_a_block_beyond_the_end_before_it_begins) {
    MemorySource source(small_block);
    Cursor cursor(source);
    Keeper keeper;
    EXPECT_THROW(ValueReader(cursor, keeper, false).ReadBitmap(57, "block"), Damage);
    EXPECT_EQ(0u, keeper.begun);
}
