#include "lvx/platform/posix/compound_reader.h"

#include <gtest/gtest.h>

#include "platform/storage_calls.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

using lvx_test::code;
using lvx_test::Storage;
using lvx_test::Stream;

namespace {

class CompoundReader : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Sky", "blue"}, {L"Sea", std::string(5000, 'g')}}));
        ASSERT_EQ("", code(lvx_test::open_file(m_name, m_storage)));
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    Storage m_storage;
    Stream m_stream;
};

}  // namespace

TEST_F(CompoundReader, refuses_modes_that_it_does_not_have) {
    IStream* stream = nullptr;
    for (const DWORD mode :
         {STGM_READ, STGM_WRITE | STGM_SHARE_EXCLUSIVE, STGM_READWRITE | STGM_SHARE_EXCLUSIVE,
          STGM_READ | STGM_SHARE_DENY_WRITE, DWORD{0xFFFFFFFF}}) {
        EXPECT_EQ("800300ff", code(m_storage->OpenStream(L"Sky", nullptr, mode, 0, &stream))) << mode;
    }
    IStorage* storage = nullptr;
    for (const DWORD mode :
         {STGM_READ, STGM_READWRITE | STGM_SHARE_DENY_WRITE, STGM_READ | STGM_SHARE_EXCLUSIVE}) {
        EXPECT_EQ("800300ff",
                  code(StgOpenStorage(lvx_test::wide(m_name).c_str(), nullptr, mode, nullptr, 0, &storage)))
            << mode;
    }
    EXPECT_EQ(nullptr, storage);
}

TEST_F(CompoundReader, refuses_absent_names_and_places) {
    IStream* stream = nullptr;
    const DWORD mode = lvx_test::read_stream_mode;
    EXPECT_EQ("800300fc", code(m_storage->OpenStream(nullptr, nullptr, mode, 0, &stream)));
    EXPECT_EQ("80030009", code(m_storage->OpenStream(L"Sky", nullptr, mode, 0, nullptr)));
    EXPECT_EQ("80030009", code(m_storage->EnumElements(0, nullptr, 0, nullptr)));
    IStorage* storage = nullptr;
    EXPECT_EQ("800300fc",
              code(StgOpenStorage(nullptr, nullptr, lvx_test::read_file_mode, nullptr, 0, &storage)));
    EXPECT_EQ("80030009", code(StgOpenStorage(L"x", nullptr, lvx_test::read_file_mode, nullptr, 0, nullptr)));
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ("80030009", code(m_stream->Read(nullptr, 1, nullptr)));
    EXPECT_EQ("", code(m_stream->Read(nullptr, 0, nullptr)));
    EXPECT_EQ("80030009", code(m_stream->Stat(nullptr, STATFLAG_NONAME)));
}

TEST_F(CompoundReader, refuses_to_seek_in_front_of_the_beginning) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ("80030001", code(lvx_test::seek(m_stream, -1, STREAM_SEEK_CUR)));
    EXPECT_EQ("b", lvx_test::read(m_stream, 1));
}

TEST_F(CompoundReader, counts_references) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    EXPECT_EQ(2u, m_stream->AddRef());
    EXPECT_EQ(1u, m_stream->Release());
    EXPECT_EQ(2u, m_storage->AddRef());
    EXPECT_EQ(1u, m_storage->Release());
    EXPECT_EQ("blue", lvx_test::read(m_stream, 10));
}

TEST_F(CompoundReader, reads_a_file_that_shrinks_under_it_as_an_error) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sea", m_stream)));
    lvx_test::write_file(m_name, "gone");
    char data[5000];
    ULONG count = 9;
    ::testing::internal::CaptureStderr();
    const std::string result = code(m_stream->Read(data, sizeof data, &count));
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
    EXPECT_EQ("8003001e", result);
    EXPECT_EQ(0u, count);
}

TEST_F(CompoundReader, a_stream_whose_storage_is_gone_refuses_everything) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    m_storage.reset();
    char data[4];
    ULONG count = 9;
    STATSTG status{};
    EXPECT_EQ("80030102", code(m_stream->Read(data, 4, &count)));
    EXPECT_EQ(0u, count);
    EXPECT_EQ("80030102", code(m_stream->Write(data, 4, &count)));
    EXPECT_EQ("80030102", code(lvx_test::seek(m_stream, 0, STREAM_SEEK_SET)));
    EXPECT_EQ("80030102", code(m_stream->Stat(&status, STATFLAG_NONAME)));
}

TEST_F(CompoundReader, writes_nothing_whether_it_is_asked_for_counts_and_streams_or_not) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    ULONG count = 9;
    EXPECT_EQ("80030005", code(m_stream->Write("x", 1, &count)));
    EXPECT_EQ(0u, count);
    EXPECT_EQ("80030005", code(m_stream->Write("x", 1, nullptr)));
    IStream* stream = m_stream.get();
    EXPECT_EQ("80030005", code(m_storage->CreateStream(L"new", lvx_test::replace_mode, 0, 0, &stream)));
    EXPECT_EQ(nullptr, stream);
    EXPECT_EQ("80030005", code(m_storage->CreateStream(L"new", lvx_test::replace_mode, 0, 0, nullptr)));
}

TEST_F(CompoundReader, counts_and_positions_are_told_only_to_who_asks) {
    ASSERT_EQ("", code(lvx_test::open_stream(m_storage, L"Sky", m_stream)));
    char data[4];
    EXPECT_EQ("", code(m_stream->Read(data, 3, nullptr)));
    LARGE_INTEGER back{};
    back.QuadPart = -1;
    EXPECT_EQ("", code(m_stream->Seek(back, STREAM_SEEK_CUR, nullptr)));
    EXPECT_EQ("ue", lvx_test::read(m_stream, 10));
}
