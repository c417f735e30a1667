#include "lvx/platform/posix/stream_position.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using lvx::platform::move_position;

TEST(StreamPosition, moves_from_each_origin) {
    struct Case {
        std::int64_t distance;
        DWORD origin;
        std::uint64_t reached;
    };
    for (const Case& move :
         {Case{0, STREAM_SEEK_SET, 0}, Case{7, STREAM_SEEK_SET, 7}, Case{0, STREAM_SEEK_CUR, 40},
          Case{-1, STREAM_SEEK_CUR, 39}, Case{-40, STREAM_SEEK_CUR, 0}, Case{2, STREAM_SEEK_CUR, 42},
          Case{0, STREAM_SEEK_END, 100}, Case{-100, STREAM_SEEK_END, 0}, Case{50, STREAM_SEEK_END, 150}}) {
        std::uint64_t position = 40;
        EXPECT_EQ(S_OK, move_position(position, 100, {move.distance}, move.origin));
        EXPECT_EQ(move.reached, position);
    }
}

TEST(StreamPosition, stays_where_it_is_rather_than_leave_the_stream) {
    constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
    struct Case {
        std::uint64_t position;
        std::int64_t distance;
        DWORD origin;
    };
    for (const Case& move :
         {Case{0, -1, STREAM_SEEK_CUR}, Case{40, -41, STREAM_SEEK_CUR}, Case{40, -1, STREAM_SEEK_SET},
          Case{40, -101, STREAM_SEEK_END}, Case{40, lowest, STREAM_SEEK_CUR},
          Case{UINT64_MAX - 5, highest, STREAM_SEEK_CUR}, Case{40, 0, 3}, Case{40, 0, 77}}) {
        std::uint64_t position = move.position;
        EXPECT_EQ(STG_E_INVALIDFUNCTION, move_position(position, 100, {move.distance}, move.origin));
        EXPECT_EQ(move.position, position);
    }
}

TEST(StreamPosition, is_told_with_the_name_that_was_asked_for) {
    STATSTG status{};
    ASSERT_EQ(S_OK, lvx::platform::tell_stream(L"Sky", 12, STATFLAG_DEFAULT, &status));
    EXPECT_EQ(std::wstring(L"Sky"), status.pwcsName);
    EXPECT_EQ(12u, status.cbSize.QuadPart);
    CoTaskMemFree(status.pwcsName);
    EXPECT_EQ(STG_E_INVALIDPOINTER, lvx::platform::tell_stream(L"Sky", 12, STATFLAG_DEFAULT, nullptr));
}
