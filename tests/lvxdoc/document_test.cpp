#include "tools/lvxdoc/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

namespace {

std::string failure_of(const Document& document, const std::string& stream) {
    try {
        document.Find(stream);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "found";
}

std::string sky_and_sub() {
    CompoundBuilder builder;
    builder.Add(u"Sky", fonts);
    builder.Add(u"sky", "other");
    builder.Add(u"Sub", "", 1);
    return builder.Build();
}

}  // namespace

TEST(Document, takes_a_file_without_signature_for_a_plain_store) {
    const Folder folder;
    const Document document(folder.Write("x", fonts));
    EXPECT_FALSE(document.IsCompound());
    ASSERT_EQ(1u, document.Parts().size());
    EXPECT_EQ("", document.Parts()[0].name);
    EXPECT_EQ(95u, document.Parts()[0].size);
    EXPECT_EQ(47u, document.LongestClassName());
    const auto source = document.Open(document.Parts()[0]);
    char byte = 0;
    source->ReadAt(4, &byte, 1);
    EXPECT_EQ('B', byte);
    EXPECT_EQ(95u, source->Size());
}

TEST(Document, takes_an_empty_file_for_a_plain_store) {
    const Folder folder;
    EXPECT_EQ(0u, Document(folder.Write("x", "")).Parts().at(0).size);
}

TEST(Document, has_a_part_for_each_stream_and_storage) {
    const Folder folder;
    const Document document(folder.Write("x", sky_and_sub()));
    EXPECT_TRUE(document.IsCompound());
    ASSERT_EQ(3u, document.Parts().size());
    EXPECT_EQ("Sky", document.Parts()[0].name);
    EXPECT_EQ(95u, document.Parts()[0].size);
    EXPECT_TRUE(document.Parts()[2].is_storage);
    EXPECT_EQ(48u, document.LongestClassName());
    EXPECT_EQ(95u, document.Open(document.Parts()[0])->Size());
}

TEST(Document, finds_streams_in_their_own_case_first) {
    const Folder folder;
    const Document document(folder.Write("x", sky_and_sub()));
    EXPECT_EQ(95u, document.Find("Sky").size);
    EXPECT_EQ(5u, document.Find("sky").size);
    EXPECT_EQ(95u, document.Find("SKY").size);
}

TEST(Document, tells_why_a_stream_is_not_found) {
    const Folder folder;
    const std::string name = folder.Write("x", sky_and_sub());
    const Document document(name);
    EXPECT_EQ("there is no stream 'Sea' in '" + name + "'", failure_of(document, "Sea"));
    EXPECT_EQ("'Sub' in '" + name + "' is a storage, not a stream", failure_of(document, "Sub"));
    const std::string plain = folder.Write("y", fonts);
    EXPECT_EQ("there are no streams in '" + plain + "', it is a plain store",
              failure_of(Document(plain), "Sky"));
}
