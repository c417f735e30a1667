// Every truncation and every change of a byte of small documents: each command ends by itself, with a result
// or with a message.
#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"

namespace {

const std::string older_strings = bytes_of(
    "01000000 42 63 'VString' 0d0a 6f 02000000 'ab' 00 41 43 00000000 6f 00000000 42 4f 01000000 30 42 30");

// The strings are taken for what they are only where strings are expected.
const std::string fields_of_older_strings =
    "\n long version\n string one\n string other\n object(*) object\n";

void expect_an_end(const std::vector<std::string>& words, const std::string& change) {
    const Result result = run(words);
    EXPECT_TRUE(result.status == 0 || result.status == 1)
        << words[0] << ' ' << change << ": " << result.status;
    EXPECT_FALSE(result.out.empty() && result.err.empty()) << words[0] << ' ' << change;
    EXPECT_LT(result.out.size(), 100'000u);
}

// Walks strictly and not; what is thrown besides damage fails the test.
void walk_both_ways(const std::string& bytes, const std::string& schema) {
    lvxdoc::WalkOptions options;
    walk(bytes, schema, options);
    options.strict = true;
    walk(bytes, schema, options);
}

// Each with the schema that it needs.
std::vector<std::pair<std::string, std::string>> stores() {
    return {{fonts, ""}, {small_picture, ""}, {older_strings, "top" + fields_of_older_strings}};
}

std::string document() {
    CompoundBuilder builder;
    builder.Add(u"Sky", small_picture);
    builder.Add(u"Fonts", fonts);
    builder.Add(u"Sub", "", 1);
    builder.entries[2].child = 4;
    builder.entries.push_back({u"Old", 2, older_strings});
    return builder.Build();
}

std::string write_schema(const Folder& folder) {
    return folder.Write("schema", "top Sub/Old" + fields_of_older_strings);
}

}  // namespace

TEST(DamagedStores, are_whole_before_anything_is_changed) {
    for (const auto& [bytes, schema] : stores()) {
        EXPECT_EQ(std::string::npos, end_of_walk(bytes, schema, true).find("damage"))
            << end_of_walk(bytes, schema, true);
    }
}

TEST(DamagedStores, end_at_every_length) {
    for (const auto& [bytes, schema] : stores()) {
        for (std::size_t size = 0; size <= bytes.size(); ++size) {
            walk_both_ways(bytes.substr(0, size), schema);
        }
    }
}

TEST(DamagedStores, end_whatever_one_byte_is) {
    for (const auto& [bytes, schema] : stores()) {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            std::string changed = bytes;
            for (int value = 0; value < 256; ++value) {
                changed[i] = static_cast<char>(value);
                walk_both_ways(changed, schema);
            }
        }
    }
}

TEST(DamagedStores, are_told_as_damaged_at_every_length_that_is_not_the_end_of_an_object) {
    for (std::size_t size = 0; size < fonts.size(); ++size) {
        const bool is_whole = size == 4 || size == 49 || size == 55;
        EXPECT_EQ(!is_whole, end_of_walk(fonts.substr(0, size), "", true).find("damage at ") == 0) << size;
    }
}

TEST(DamagedDocuments, end_at_every_length) {
    const Folder folder;
    const std::string bytes = document();
    const std::string schema = write_schema(folder);
    const std::string name = folder.Write("x", bytes);
    EXPECT_EQ(0, run({"check", "-s", schema, name}).status);
    for (std::size_t size = bytes.size(); size-- != 0;) {
        std::filesystem::resize_file(folder.Path() / "x", size);
        expect_an_end({"check", "-s", schema, name}, std::to_string(size));
    }
}

TEST(DamagedDocuments, end_whatever_one_byte_is) {
    const Folder folder;
    const std::string bytes = document();
    const std::string schema = write_schema(folder);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (const char bits : {'\x01', '\x80', '\xff'}) {
            std::string changed = bytes;
            changed[i] = static_cast<char>(changed[i] ^ bits);
            const std::string name = folder.Write("x", changed);
            expect_an_end({"check", "-s", schema, name}, std::to_string(i));
            if (bits == '\xff' && i % 3 == 0) {
                expect_an_end({"dump", "-s", schema, name}, std::to_string(i));
                expect_an_end({"list", "-s", schema, name}, std::to_string(i));
                run({"extract", "-s", schema, name, "--force", "-o", folder.File("out")});
            }
        }
    }
}
