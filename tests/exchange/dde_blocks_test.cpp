#include "lvx/exchange/dde_blocks.h"

#include <dde.h>
#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <string>

#include "raw_partner.h"

namespace {

using dde_test::new_block;
using lvx::exchange::copy_of;
using lvx::exchange::free_packed;
using lvx::exchange::header_of;
using lvx::exchange::item_and_block;
using lvx::exchange::take_acknowledgement;

// A block with these bytes, freed at the end.
class Block {
public:
    explicit Block(const std::string& bytes) : m_block(::GlobalAlloc(GMEM_MOVEABLE, bytes.size())) {
        std::memcpy(::GlobalLock(m_block), bytes.data(), bytes.size());
        ::GlobalUnlock(m_block);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() { ::GlobalFree(m_block); }

    operator HGLOBAL() const { return m_block; }
    UINT_PTR Value() const { return reinterpret_cast<UINT_PTR>(m_block); }
    bool IsLocked() const { return (::GlobalFlags(m_block) & GMEM_LOCKCOUNT) != 0; }

private:
    HGLOBAL m_block;
};

HGLOBAL handle(UINT_PTR value) {
    return reinterpret_cast<HGLOBAL>(value);
}

bool is_block(LPARAM value) {
    return ::GlobalSize(handle(static_cast<UINT_PTR>(value))) != 0;
}

// What is no block: nothing, atoms, numbers that look like handles.
constexpr UINT_PTR no_blocks[] = {0, 1, 0xC001, 0xFFFF, 0x10008, 0x12345678, 0x12345670, 0xC0128008};

}  // namespace

TEST(DdeBlocks, have_two_words_in_front) {
    const Block block(std::string("\x34\x12\x01\x80rest", 8));
    const auto header = header_of(block);
    ASSERT_TRUE(header);
    EXPECT_EQ(0x1234, header->flags);
    EXPECT_EQ(0x8001, header->format);
    EXPECT_FALSE(block.IsLocked());
}

TEST(DdeBlocks, that_end_within_the_words_have_none) {
    for (const std::size_t size : {1u, 2u, 3u})
        EXPECT_FALSE(header_of(Block(std::string(size, 'x')))) << size;
    EXPECT_TRUE(header_of(Block(std::string(4, 'x'))));
}

TEST(DdeBlocks, are_not_made_of_other_numbers) {
    for (const UINT_PTR number : no_blocks) {
        EXPECT_FALSE(header_of(handle(number))) << number;
        EXPECT_FALSE(copy_of(handle(number), 0)) << number;
    }
}

TEST(DdeBlocks, that_were_freed_are_none_any_more) {
    const HGLOBAL block = new_block(0, 1, "data");
    ::GlobalFree(block);
    EXPECT_FALSE(header_of(block));
    EXPECT_FALSE(copy_of(block, 0));
}

TEST(DdeBlocks, are_copied_with_two_zeros_behind) {
    const Block block("flagdata");
    const auto all = copy_of(block, 0);
    ASSERT_TRUE(all);
    EXPECT_EQ(8u, all->size);
    EXPECT_EQ(std::string("flagdata\0\0", 10), std::string(all->bytes.get(), 10));
    const auto data = copy_of(block, 4);
    ASSERT_TRUE(data);
    EXPECT_EQ(4u, data->size);
    EXPECT_EQ(std::string("data\0\0", 6), std::string(data->bytes.get(), 6));
    EXPECT_FALSE(block.IsLocked());
}

TEST(DdeBlocks, that_are_shorter_leave_a_copy_of_nothing) {
    for (const std::size_t size : {1u, 3u, 4u}) {
        const auto copy = copy_of(Block(std::string(size, 'x')), 4);
        ASSERT_TRUE(copy);
        EXPECT_EQ(0u, copy->size);
        EXPECT_EQ(std::string(2, '\0'), std::string(copy->bytes.get(), 2));
    }
}

TEST(DdeBlocks, of_a_packing_are_freed_for_messages_that_are_packed) {
    for (const UINT message : {WM_DDE_ACK, WM_DDE_ADVISE, WM_DDE_DATA, WM_DDE_POKE}) {
        const LPARAM packed = ::PackDDElParam(message, 1, 2);
        free_packed(message, packed);
        EXPECT_FALSE(is_block(packed)) << message;
    }
}

TEST(DdeBlocks, of_other_messages_and_none_at_all_are_left_alone) {
    const Block command("sixteen bytes, 16");
    const auto lParam = static_cast<LPARAM>(command.Value());
    for (const UINT message : {WM_DDE_EXECUTE, WM_DDE_REQUEST, WM_DDE_UNADVISE, WM_DDE_TERMINATE})
        free_packed(message, lParam);
    EXPECT_TRUE(is_block(lParam));
    for (const UINT_PTR number : no_blocks)
        free_packed(WM_DDE_POKE, static_cast<LPARAM>(number));
    free_packed(WM_DDE_POKE, static_cast<LPARAM>(Block("short").Value()));
}

TEST(DdeAcknowledgement, is_read_from_its_packing_which_is_freed) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_ACK, 0x8000, 0xC123);
    const auto acknowledgement = take_acknowledgement(packed);
    EXPECT_EQ(0x8000, acknowledgement.status);
    EXPECT_EQ(0xC123, acknowledgement.atom);
    EXPECT_FALSE(is_block(packed));
}

TEST(DdeAcknowledgement, is_read_from_words) {
    const auto acknowledgement = take_acknowledgement(static_cast<LPARAM>(0xC1238000));
    EXPECT_EQ(0x8000, acknowledgement.status);
    EXPECT_EQ(0xC123, acknowledgement.atom);
    const auto none = take_acknowledgement(0);
    EXPECT_EQ(0, none.status);
    EXPECT_EQ(0, none.atom);
}

TEST(DdeAcknowledgement, of_a_command_has_no_atom) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_ACK, 0x8000, 0x834008);
    EXPECT_EQ(0, take_acknowledgement(packed).atom);
}

TEST(DdeItemAndBlock, stand_in_the_order_of_this_library) {
    const Block block("abcd");
    const LPARAM packed = ::PackDDElParam(WM_DDE_ADVISE, 0xC123, block.Value());
    const auto received = item_and_block(WM_DDE_ADVISE, packed);
    EXPECT_EQ(0xC123, received.atom);
    EXPECT_EQ(block, received.block);
    EXPECT_TRUE(is_block(packed));
    ::FreeDDElParam(WM_DDE_ADVISE, packed);
}

TEST(DdeItemAndBlock, are_found_in_the_order_of_the_rest_of_the_world) {
    const Block block("abcd");
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, block.Value(), 0xC123);
    const auto received = item_and_block(WM_DDE_POKE, packed);
    EXPECT_EQ(0xC123, received.atom);
    EXPECT_EQ(block, received.block);
    ::FreeDDElParam(WM_DDE_POKE, packed);
}

TEST(DdeItemAndBlock, are_nothing_where_neither_value_is_a_block) {
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, 0xC123, 0xC124);
    const auto received = item_and_block(WM_DDE_POKE, packed);
    EXPECT_EQ(0xC123, received.atom);
    EXPECT_FALSE(header_of(received.block));
    ::FreeDDElParam(WM_DDE_POKE, packed);
}

// Two blocks leave no item.
TEST(DdeItemAndBlock, of_two_blocks_have_no_item) {
    const Block first("abcd");
    const Block second("efgh");
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, first.Value(), second.Value());
    const auto received = item_and_block(WM_DDE_POKE, packed);
    EXPECT_EQ(0, received.atom);
    EXPECT_EQ(second, received.block);
    ::FreeDDElParam(WM_DDE_POKE, packed);
}

TEST(DdeItemAndBlock, are_nothing_without_a_packing) {
    for (const UINT_PTR number : no_blocks) {
        const auto received = item_and_block(WM_DDE_POKE, static_cast<LPARAM>(number));
        EXPECT_EQ(0, received.atom) << number;
        EXPECT_EQ(nullptr, received.block) << number;
    }
    const Block torn("short");
    EXPECT_EQ(nullptr, item_and_block(WM_DDE_POKE, static_cast<LPARAM>(torn.Value())).block);
}

TEST(DdeBlocks, of_other_processes_are_told_by_their_windows) {
    const dde_test::RawPartner own;
    EXPECT_FALSE(lvx::exchange::is_of_another_process(own.Window()));
    EXPECT_FALSE(lvx::exchange::is_of_another_process(nullptr));
    EXPECT_FALSE(lvx::exchange::is_of_another_process(reinterpret_cast<HWND>(0x12345678)));
    EXPECT_TRUE(lvx::exchange::is_of_another_process(::GetDesktopWindow()));
}
