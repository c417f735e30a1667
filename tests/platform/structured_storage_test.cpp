#include "lvx/platform/structured_storage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "platform/storage_calls.h"
#include "platform/system.h"
#include "support/bytes.h"
#include "support/shared_data.h"
#include "support/temp_folder.h"

using lvx_test::by_system;
using lvx_test::code;
using lvx_test::Storage;
using lvx_test::Stream;
using ::testing::UnorderedElementsAre;

namespace {

const std::string signature("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

class CompoundFile : public ::testing::Test {
protected:
    std::string OpenCode(const std::string& name) {
        Storage storage;
        return code(lvx_test::open_file(name, storage));
    }
    std::string ReplaceCode(const std::string& name) {
        Storage storage;
        return code(lvx_test::replace_file(name, storage));
    }
    std::string OpenCodeOf(const std::string& content) {
        lvx_test::write_file(m_name, content);
        return OpenCode(m_name);
    }
    std::string ContentOf(const std::wstring& stream_name) {
        Storage storage;
        Stream stream;
        const HRESULT opened = lvx_test::open_file(m_name, storage);
        EXPECT_EQ("", code(FAILED(opened) ? opened : lvx_test::open_stream(storage, stream_name, stream)));
        return stream == nullptr ? "" : lvx_test::read(stream, 1000000);
    }
    // A stream that is being written.
    void Create(const std::wstring& stream_name = L"Sky") {
        ASSERT_EQ("", code(lvx_test::replace_file(m_name, m_storage)));
        ASSERT_EQ("", code(lvx_test::create_stream(m_storage, stream_name, m_stream)));
    }
    void Close() {
        m_stream.reset();
        EXPECT_TRUE(lvx::platform::complete_storage(m_storage.release()));
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    Storage m_storage;
    Stream m_stream;
};

}  // namespace

TEST_F(CompoundFile, gives_back_streams_of_every_length_around_the_limits_of_blocks) {
    std::vector<std::pair<std::wstring, std::string>> streams;
    for (const std::size_t size :
         {0, 1, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097, 16384, 65535, 65536, 300000}) {
        streams.emplace_back(L"s" + std::to_wstring(size), lvx_test::counting_bytes(size));
    }
    ASSERT_TRUE(lvx_test::write_document(m_name, streams));
    Storage storage;
    ASSERT_EQ("", code(lvx_test::open_file(m_name, storage)));
    for (const auto& [name, data] : streams) {
        Stream stream;
        ASSERT_EQ("", code(lvx_test::open_stream(storage, name, stream)));
        EXPECT_EQ(data.size(), lvx_test::size_of(stream));
        EXPECT_TRUE(data == lvx_test::read(stream, data.size() + 1)) << data.size();
    }
}

TEST_F(CompoundFile, gives_back_a_hundred_streams_by_name) {
    std::vector<std::pair<std::wstring, std::string>> streams;
    for (int i = 0; i < 100; ++i) {
        const std::wstring name = (i % 2 == 0 ? L"Even " : L"odd ") + std::to_wstring(i * i);
        streams.emplace_back(name, std::to_string(i));
    }
    ASSERT_TRUE(lvx_test::write_document(m_name, streams));
    for (const auto& [name, data] : streams) {
        EXPECT_EQ(data, ContentOf(name));
    }
}

TEST_F(CompoundFile, without_a_stream_is_a_compound_file_all_the_same) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_TRUE(lvx_test::list(m_storage).empty());
}

TEST_F(CompoundFile, begins_with_the_signature_of_compound_files) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    EXPECT_EQ(lvx_test::hex(signature), lvx_test::hex(lvx_test::read_file(m_name).substr(0, 8)));
}

TEST_F(CompoundFile, tells_why_a_file_does_not_open) {
    const std::string missing_path = m_folder.File("missing") + "/document";
    EXPECT_EQ("80030002", OpenCode(m_folder.File("missing")));
    EXPECT_EQ("80030003", OpenCode(missing_path));
    EXPECT_EQ("80030005", OpenCode(m_folder.Path()));
    EXPECT_EQ("80030050", OpenCodeOf(""));
    EXPECT_EQ("80030050", OpenCodeOf("x"));
    EXPECT_EQ("80030050", OpenCodeOf(std::string(4000, 'x')));
    EXPECT_EQ("80030050", OpenCodeOf(signature.substr(0, 7)));
    // Wine takes an empty name for that of a folder.
    EXPECT_EQ(by_system("80030003", "800300fc"), OpenCode(""));
    // The header ends early, or says nothing; Wine takes such a file for one that never was a compound file.
    EXPECT_EQ(by_system("80030050", "80030109"), OpenCodeOf(signature));
    EXPECT_EQ(by_system("80030050", "80030109"), OpenCodeOf(signature + std::string(504, '\0')));
    EXPECT_EQ(by_system("80030050", "80030109"), OpenCodeOf(signature + std::string(2040, '\0')));
}

TEST_F(CompoundFile, tells_why_a_file_is_not_made) {
    // Wine has one code for all of them.
    EXPECT_EQ(by_system("80004005", "80030003"), ReplaceCode(m_folder.File("missing") + "/document"));
    EXPECT_EQ(by_system("80004005", "80030005"), ReplaceCode(m_folder.Path()));
    EXPECT_EQ(by_system("80004005", "800300fc"), ReplaceCode(""));
    EXPECT_EQ(by_system("80004005", "800300fc"), ReplaceCode(m_folder.File(std::string(300, 'a'))));
}

TEST_F(CompoundFile, tells_the_first_damage) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    const std::string whole = lvx_test::read_file(m_name);
    // Wine fails where it reads the sector that is not there.
    EXPECT_EQ(by_system("8003001e", "80030109"), OpenCodeOf(whole.substr(0, 512)));
}

TEST_F(CompoundFile, keeps_others_away_while_it_is_written) {
    Create();
    EXPECT_EQ("80030020", OpenCode(m_name));
    // Wine has one code for all that it cannot make.
    EXPECT_EQ(by_system("80004005", "80030020"), ReplaceCode(m_name));
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    Close();
    EXPECT_EQ("blue", ContentOf(L"Sky")) << "and they did no harm";
}

TEST_F(CompoundFile, has_several_readers_and_no_writer_while_it_is_read) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_EQ("", OpenCode(m_name));
    EXPECT_EQ(by_system("80004005", "80030020"), ReplaceCode(m_name));
    EXPECT_EQ("blue", ContentOf(L"Sky"));
    m_storage.reset();
    EXPECT_EQ("", ReplaceCode(m_name));
}

TEST_F(CompoundFile, replaces_the_file_that_was_there) {
    lvx_test::write_file(m_name, std::string(10000, 'x'));
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    EXPECT_EQ("blue", ContentOf(L"Sky"));
    ASSERT_EQ("", ReplaceCode(m_name));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_TRUE(lvx_test::list(m_storage).empty());
}

TEST_F(CompoundFile, lists_streams_with_their_lengths) {
    ASSERT_TRUE(
        lvx_test::write_document(m_name, {{L"Sky", "blue"}, {L"sea", std::string(5000, 'x')}, {L"B", ""}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_THAT(lvx_test::list(m_storage), UnorderedElementsAre("Sky 4", "sea 5000", "B 0"));
}

TEST_F(CompoundFile, takes_names_of_1_to_31_characters) {
    Create(L"a");
    EXPECT_EQ("", code(lvx_test::create_stream(m_storage, std::wstring(31, L'a'), m_stream)));
    EXPECT_EQ("800300fc", code(lvx_test::create_stream(m_storage, std::wstring(32, L'a'), m_stream)));
    EXPECT_EQ("800300fc", code(lvx_test::create_stream(m_storage, std::wstring(300, L'a'), m_stream)));
    Close();
    EXPECT_EQ("", ContentOf(std::wstring(31, L'A')));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    // Wine looks for such a name and does not find it.
    EXPECT_EQ(by_system("80030002", "800300fc"),
              code(lvx_test::open_stream(m_storage, std::wstring(32, L'a'), m_stream)));
}

TEST_F(CompoundFile, refuses_names_that_the_format_has_no_place_for) {
    Create();
    // Windows documents that it refuses these; Wine takes them.
    for (const wchar_t* name : {L"", L"a/b", L"a\\b", L"a:b", L"a!b", L"!", L"/"}) {
        EXPECT_EQ(by_system("", "800300fc"), code(lvx_test::create_stream(m_storage, name, m_stream)))
            << name;
    }
    for (const wchar_t* name : {L" ", L".", L"..", L"a*b?", L"\x01x", L"a\tb", L"<>"}) {
        EXPECT_EQ("", code(lvx_test::create_stream(m_storage, name, m_stream))) << name;
    }
}

TEST_F(CompoundFile, finds_names_in_either_case) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    EXPECT_EQ("blue", ContentOf(L"SKY"));
    EXPECT_EQ("blue", ContentOf(L"sky"));
}

TEST_F(CompoundFile, finds_names_beyond_ASCII_in_either_case) {
    const std::wstring capital =
        L"\x00DC"
        L"ber";
    const std::wstring small =
        L"\x00FC"
        L"ber";
    ASSERT_TRUE(lvx_test::write_document(m_name, {{capital, "above"}, {L"\x0416", "zh"}}));
    EXPECT_EQ("above", ContentOf(capital));
    EXPECT_EQ("zh", ContentOf(L"\x0416"));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    // Windows folds them as it folds ASCII; Wine folds ASCII alone.
    EXPECT_EQ(by_system("80030002", ""), code(lvx_test::open_stream(m_storage, small, m_stream)));
    EXPECT_EQ(by_system("80030002", ""), code(lvx_test::open_stream(m_storage, L"\x0436", m_stream)));
}

TEST_F(CompoundFile, a_missing_stream_is_told_as_a_missing_file) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_EQ("80030002", code(lvx_test::open_stream(m_storage, L"Sea", m_stream)));
    EXPECT_EQ("80030002", code(lvx_test::open_stream(m_storage, L"Skyy", m_stream)));
    EXPECT_EQ("80030002", code(lvx_test::open_stream(m_storage, L"Root Entry", m_stream)));
}

TEST_F(CompoundFile, opens_a_stream_once_at_a_time) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}, {L"Sea", "green"}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    Stream other;
    EXPECT_EQ("80030005", code(lvx_test::open_stream(m_storage, L"SKY", other)));
    EXPECT_EQ("", code(lvx_test::open_stream(m_storage, L"Sea", other)));
    m_stream.reset();
    EXPECT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ("blue", lvx_test::read(m_stream, 10));
    EXPECT_EQ("green", lvx_test::read(other, 10));
}

TEST_F(CompoundFile, a_stream_made_again_replaces_the_first) {
    Create();
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    m_stream.reset();
    ASSERT_EQ("", code(lvx_test::create_stream(m_storage, L"SKY", m_stream)));
    EXPECT_EQ(0u, lvx_test::size_of(m_stream));
    ASSERT_EQ("", code(lvx_test::write(m_stream, "red")));
    Close();
    EXPECT_EQ("red", ContentOf(L"sky"));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_THAT(lvx_test::list(m_storage), UnorderedElementsAre("SKY 3"));
}

TEST_F(CompoundFile, a_stream_that_was_replaced_while_open_takes_nothing_more) {
    Create();
    Stream newer;
    ASSERT_EQ("", code(lvx_test::create_stream(m_storage, L"Sky", newer)));
    EXPECT_EQ("80030102", code(lvx_test::write(m_stream, "old")));
    EXPECT_EQ("", code(lvx_test::write(newer, "new")));
    newer.reset();
    Close();
    EXPECT_EQ("new", ContentOf(L"Sky"));
}

TEST_F(CompoundFile, a_stream_outlives_its_storage_unusable) {
    Create();
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    m_storage.reset();
    EXPECT_EQ("80030102", code(lvx_test::write(m_stream, "x")));
    EXPECT_EQ("80030102", code(lvx_test::seek(m_stream, 0, STREAM_SEEK_CUR)));
    EXPECT_EQ("blue", ContentOf(L"Sky"));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    m_storage.reset();
    char letter = 0;
    EXPECT_EQ("80030102", code(m_stream->Read(&letter, 1, nullptr)));
}

TEST_F(CompoundFile, is_for_reading_or_for_writing) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    Stream other;
    EXPECT_EQ("80030005", code(lvx_test::create_stream(m_storage, L"New", other)));
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ("80030005", code(lvx_test::write(m_stream, "x")));
    EXPECT_EQ("blue", lvx_test::read(m_stream, 10));
}

TEST_F(CompoundFile, seeks_back_and_overwrites) {
    Create();
    std::uint64_t position = 0;
    ASSERT_EQ("", code(lvx_test::write(m_stream, "hello")));
    ASSERT_EQ("", code(lvx_test::seek(m_stream, -1, STREAM_SEEK_CUR, &position)));
    EXPECT_EQ(4u, position);
    ASSERT_EQ("", code(lvx_test::write(m_stream, "!")));
    EXPECT_EQ(5u, lvx_test::size_of(m_stream));
    ASSERT_EQ("", code(lvx_test::seek(m_stream, 1, STREAM_SEEK_SET)));
    ASSERT_EQ("", code(lvx_test::write(m_stream, "E")));
    ASSERT_EQ("", code(lvx_test::seek(m_stream, 0, STREAM_SEEK_END, &position)));
    EXPECT_EQ(5u, position);
    Close();
    EXPECT_EQ("hEll!", ContentOf(L"Sky"));
}

TEST_F(CompoundFile, a_gap_in_front_of_what_is_written_is_zeros) {
    Create();
    ASSERT_EQ("", code(lvx_test::write(m_stream, "a")));
    ASSERT_EQ("", code(lvx_test::seek(m_stream, 50000, STREAM_SEEK_SET)));
    EXPECT_EQ(1u, lvx_test::size_of(m_stream)) << "seeking alone makes nothing longer";
    ASSERT_EQ("", code(lvx_test::write(m_stream, "b")));
    Close();
    EXPECT_TRUE("a" + std::string(49999, '\0') + "b" == ContentOf(L"Sky"));
}

TEST_F(CompoundFile, reads_nothing_at_and_behind_the_end) {
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}}));
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ("blue", lvx_test::read(m_stream, 5));
    char letter = 'x';
    ULONG count = 9;
    EXPECT_EQ("", code(m_stream->Read(&letter, 1, &count)));
    EXPECT_EQ(0u, count);
    ASSERT_EQ("", code(lvx_test::seek(m_stream, 1000, STREAM_SEEK_SET)));
    EXPECT_EQ("", code(m_stream->Read(&letter, 1, &count)));
    EXPECT_EQ(0u, count);
    EXPECT_EQ('x', letter);
    ASSERT_EQ("", code(lvx_test::seek(m_stream, -3, STREAM_SEEK_END)));
    EXPECT_EQ("lue", lvx_test::read(m_stream, 5));
}

TEST_F(CompoundFile, Stat_tells_name_and_length) {
    Create();
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    STATSTG status{};
    ASSERT_EQ("", code(m_stream->Stat(&status, STATFLAG_DEFAULT)));
    EXPECT_EQ(std::wstring(L"Sky"), status.pwcsName);
    EXPECT_EQ(static_cast<DWORD>(STGTY_STREAM), status.type);
    EXPECT_EQ(4u, status.cbSize.QuadPart);
    CoTaskMemFree(status.pwcsName);
    ASSERT_EQ("", code(m_stream->Stat(&status, STATFLAG_NONAME)));
    EXPECT_EQ(nullptr, status.pwcsName);
}

TEST_F(CompoundFile, an_absent_storage_is_complete) {
    EXPECT_TRUE(lvx::platform::complete_storage(nullptr));
}

TEST_F(CompoundFile, a_widened_file_name_keeps_its_bytes) {
    EXPECT_EQ(L"plain", lvx::platform::file_name_of(L"plain", "plain"));
    // What the classic locale makes of bytes above 127 off Windows.
    const auto lost = static_cast<wchar_t>(WEOF);
    const std::wstring kept = by_system<std::wstring>({L'a', lost}, {L'a', static_cast<wchar_t>(0xDCE9)});
    EXPECT_EQ(kept, lvx::platform::file_name_of({L'a', lost}, "a\xE9"));
}

TEST(CompoundFiles, of_another_writer_have_every_byte) {
    const std::string folder = lvx_test::shared_data("compound");
    if (folder.empty()) {
        return;
    }
    for (const std::size_t size : {0, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097}) {
        const std::string name = folder + "/TestStream_v3_" + std::to_string(size) + ".cfs";
        Storage storage;
        Stream stream;
        ASSERT_EQ("", code(lvx_test::open_file(name, storage))) << name;
        ASSERT_EQ(std::vector{"TestStream " + std::to_string(size)}, lvx_test::list(storage));
        ASSERT_EQ("", code(lvx_test::open_stream(storage, L"TestStream", stream)));
        EXPECT_TRUE(lvx_test::counting_bytes(size) == lvx_test::read(stream, size + 1)) << name;
    }
}

TEST(CompoundFiles, of_another_writer_may_have_storages_which_are_listed_only) {
    const std::string folder = lvx_test::shared_data("compound");
    if (folder.empty()) {
        return;
    }
    Storage storage;
    Stream stream;
    ASSERT_EQ("", code(lvx_test::open_file(folder + "/MultipleStorage.cfs", storage)));
    EXPECT_THAT(lvx_test::list(storage), UnorderedElementsAre("MyStorage/"));
    EXPECT_EQ("80030002", code(lvx_test::open_stream(storage, L"MyStorage", stream)));
}

TEST(CompoundFiles, whose_table_loops_end_in_an_error) {
    const std::string folder = lvx_test::shared_data("compound");
    // Wine goes round and round in it.
    if (folder.empty() || lvx_test::on_windows) {
        return;
    }
    Storage storage;
    EXPECT_EQ("80030109", code(lvx_test::open_file(folder + "/FatChainLoop_v3.cfs", storage)));
}
