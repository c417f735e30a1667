#include "lvx/platform/posix/compound_writer.h"

#include <gtest/gtest.h>

#include "platform/storage_calls.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

using lvx_test::code;
using lvx_test::Storage;
using lvx_test::Stream;

namespace {

class CompoundWriter : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ("", code(lvx_test::replace_file(m_name, m_storage)));
        ASSERT_EQ("", code(lvx_test::create_stream(m_storage, L"Sky", m_stream)));
    }
    HRESULT OpenStream(DWORD mode) {
        IStream* stream = nullptr;
        const HRESULT result = m_storage->OpenStream(L"sky", nullptr, mode, 0, &stream);
        m_stream.reset(stream);
        return result;
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    Storage m_storage;
    Stream m_stream;
};

}  // namespace

TEST_F(CompoundWriter, does_not_read_what_is_open_for_writing) {
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    char letter = 0;
    EXPECT_EQ("80030005", code(m_stream->Read(&letter, 1, nullptr)));
}

TEST_F(CompoundWriter, opens_its_streams_again_one_at_a_time) {
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    IStream* second = nullptr;
    EXPECT_EQ("80030005",
              code(m_storage->OpenStream(L"SKY", nullptr, lvx_test::read_stream_mode, 0, &second)));
    m_stream.reset();
    ASSERT_EQ("", code(OpenStream(STGM_READWRITE | STGM_SHARE_EXCLUSIVE)));
    EXPECT_EQ("bl", lvx_test::read(m_stream, 2));
    EXPECT_EQ("", code(lvx_test::write(m_stream, "UE")));
    m_stream.reset();
    ASSERT_EQ("", code(OpenStream(lvx_test::read_stream_mode)));
    EXPECT_EQ("blUE", lvx_test::read(m_stream, 10));
    EXPECT_EQ("80030005", code(lvx_test::write(m_stream, "x")));
    Stream missing;
    EXPECT_EQ("80030002", code(lvx_test::open_stream(m_storage, L"Sea", missing)));
}

TEST_F(CompoundWriter, lists_what_it_has_so_far) {
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    EXPECT_EQ(std::vector<std::string>{"Sky 4"}, lvx_test::list(m_storage));
}

TEST_F(CompoundWriter, refuses_modes_that_it_does_not_have) {
    IStream* stream = nullptr;
    for (const DWORD mode : {STGM_WRITE, STGM_WRITE | STGM_SHARE_EXCLUSIVE, STGM_WRITE | STGM_CREATE,
                             STGM_WRITE | STGM_SHARE_DENY_WRITE | STGM_CREATE, DWORD{0xFFFFFFFF}}) {
        EXPECT_EQ("800300ff", code(m_storage->CreateStream(L"New", mode, 0, 0, &stream))) << mode;
    }
    IStorage* storage = nullptr;
    for (const DWORD mode : {STGM_WRITE, STGM_READ | STGM_SHARE_EXCLUSIVE | STGM_CREATE,
                             STGM_WRITE | STGM_SHARE_EXCLUSIVE, DWORD{0xFFFFFFFF}}) {
        EXPECT_EQ("800300ff", code(StgCreateDocfile(L"never-made", mode, 0, &storage))) << mode;
    }
}

TEST_F(CompoundWriter, refuses_absent_names_and_places) {
    IStream* stream = nullptr;
    const DWORD mode = lvx_test::replace_mode;
    EXPECT_EQ("800300fc", code(m_storage->CreateStream(nullptr, mode, 0, 0, &stream)));
    EXPECT_EQ("80030009", code(m_storage->CreateStream(L"New", mode, 0, 0, nullptr)));
    EXPECT_EQ("80030009", code(m_storage->EnumElements(0, nullptr, 0, nullptr)));
    EXPECT_EQ("80030009", code(m_stream->Write(nullptr, 1, nullptr)));
    EXPECT_EQ("", code(m_stream->Write(nullptr, 0, nullptr)));
    IStorage* storage = nullptr;
    EXPECT_EQ("800300fc", code(StgCreateDocfile(nullptr, mode, 0, &storage)));
    EXPECT_EQ("80030009", code(StgCreateDocfile(L"x", mode, 0, nullptr)));
}

TEST_F(CompoundWriter, refuses_to_seek_in_front_of_the_beginning) {
    EXPECT_EQ("80030001", code(lvx_test::seek(m_stream, -1, STREAM_SEEK_CUR)));
    EXPECT_EQ("", code(lvx_test::write(m_stream, "a")));
}

TEST_F(CompoundWriter, tells_of_a_stream_that_gets_too_long) {
    ASSERT_EQ("", code(lvx_test::seek(m_stream, 0xFFFFFFFF, STREAM_SEEK_SET)));
    EXPECT_EQ("80030070", code(lvx_test::write(m_stream, "x")));
    EXPECT_EQ(0u, lvx_test::size_of(m_stream));
}

TEST_F(CompoundWriter, completes_once_whatever_references_are_left) {
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    m_storage->AddRef();
    EXPECT_TRUE(lvx::platform::complete_storage(m_storage.get()));
    EXPECT_EQ("80030102", code(lvx_test::write(m_stream, "x")));
    m_storage.reset();
    ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    EXPECT_EQ(std::vector<std::string>{"Sky 4"}, lvx_test::list(m_storage));
}

TEST_F(CompoundWriter, a_stream_that_was_replaced_refuses_everything) {
    ASSERT_EQ("", code(lvx_test::write(m_stream, "blue")));
    Stream other;
    ASSERT_EQ("", code(lvx_test::create_stream(m_storage, L"SKY", other)));
    char data[4] = {};
    STATSTG status{};
    EXPECT_EQ("80030102", code(m_stream->Read(data, 4, nullptr)));
    EXPECT_EQ("80030102", code(m_stream->Write(data, 4, nullptr)));
    EXPECT_EQ("80030102", code(lvx_test::seek(m_stream, 0, STREAM_SEEK_SET)));
    EXPECT_EQ("80030102", code(m_stream->Stat(&status, STATFLAG_NONAME)));
}

TEST_F(CompoundWriter, counts_and_positions_are_told_only_to_who_asks) {
    m_stream.reset();
    ASSERT_EQ("", code(OpenStream(STGM_READWRITE | STGM_SHARE_EXCLUSIVE)));
    char data[4] = {'b', 'l', 'u', 'e'};
    EXPECT_EQ("", code(m_stream->Write(data, 4, nullptr)));
    EXPECT_EQ("", code(m_stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr)));
    EXPECT_EQ("", code(m_stream->Read(data, 2, nullptr)));
    EXPECT_EQ("ue", lvx_test::read(m_stream, 10));
}

TEST_F(CompoundWriter, refuses_absent_names_places_and_modes) {
    IStream* stream = nullptr;
    const DWORD mode = lvx_test::read_stream_mode;
    EXPECT_EQ("800300fc", code(m_storage->OpenStream(nullptr, nullptr, mode, 0, &stream)));
    EXPECT_EQ("800300fc", code(m_storage->OpenStream(L"a:b", nullptr, mode, 0, &stream)));
    EXPECT_EQ("80030009", code(m_storage->OpenStream(L"Sky", nullptr, mode, 0, nullptr)));
    EXPECT_EQ("800300ff", code(m_storage->OpenStream(L"Sky", nullptr, STGM_READ, 0, &stream)));
    EXPECT_EQ("800300fc", code(m_storage->CreateStream(nullptr, lvx_test::replace_mode, 0, 0, &stream)));
    EXPECT_EQ("80030009", code(m_storage->CreateStream(L"Sea", lvx_test::replace_mode, 0, 0, nullptr)));
    EXPECT_EQ("80030009", code(m_storage->EnumElements(0, nullptr, 0, nullptr)));
    EXPECT_EQ(nullptr, stream);
}
