#include "lvx/platform/posix/element_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/storage_calls.h"

namespace {

std::unique_ptr<IEnumSTATSTG, lvx_test::Release> three_elements() {
    return std::unique_ptr<IEnumSTATSTG, lvx_test::Release>(
        lvx::platform::make_element_list({{L"a", true, 10, 0}, {L"b", false, 0, 0}, {L"c", true, 30, 0}}));
}

// Takes the name out of an element.
std::wstring name_of(STATSTG& element) {
    const std::wstring name(element.pwcsName);
    CoTaskMemFree(element.pwcsName);
    return name;
}

}  // namespace

TEST(ElementList, hands_out_one_after_the_other) {
    const auto list = three_elements();
    STATSTG element{};
    ULONG fetched = 9;
    ASSERT_EQ(S_OK, list->Next(1, &element, &fetched));
    EXPECT_EQ(1u, fetched);
    EXPECT_EQ(L"a", name_of(element));
    EXPECT_EQ(static_cast<DWORD>(STGTY_STREAM), element.type);
    EXPECT_EQ(10u, element.cbSize.QuadPart);
    ASSERT_EQ(S_OK, list->Next(1, &element, nullptr));
    EXPECT_EQ(L"b", name_of(element));
    EXPECT_EQ(static_cast<DWORD>(STGTY_STORAGE), element.type);
}

TEST(ElementList, hands_out_fewer_at_the_end) {
    const auto list = three_elements();
    STATSTG elements[4] = {};
    ULONG fetched = 9;
    ASSERT_EQ(S_FALSE, list->Next(4, elements, &fetched));
    ASSERT_EQ(3u, fetched);
    EXPECT_EQ(L"a", name_of(elements[0]));
    EXPECT_EQ(L"b", name_of(elements[1]));
    EXPECT_EQ(L"c", name_of(elements[2]));
    EXPECT_EQ(S_FALSE, list->Next(1, elements, &fetched));
    EXPECT_EQ(0u, fetched);
    EXPECT_EQ(S_OK, list->Next(0, elements, &fetched));
}

TEST(ElementList, needs_somewhere_to_put_them_and_their_number) {
    const auto list = three_elements();
    STATSTG elements[2] = {};
    ULONG fetched = 0;
    EXPECT_EQ(STG_E_INVALIDPOINTER, list->Next(1, nullptr, &fetched));
    EXPECT_EQ(STG_E_INVALIDPOINTER, list->Next(2, elements, nullptr));
}

TEST(ElementList, lives_as_long_as_there_are_references) {
    IEnumSTATSTG* const list = lvx::platform::make_element_list({});
    EXPECT_EQ(2u, list->AddRef());
    EXPECT_EQ(1u, list->Release());
    EXPECT_EQ(0u, list->Release());
}

TEST(ElementList, needs_no_place_for_none) {
    const auto list = three_elements();
    EXPECT_EQ(S_OK, list->Next(0, nullptr, nullptr));
    STATSTG element{};
    ASSERT_EQ(S_OK, list->Next(1, &element, nullptr));
    EXPECT_EQ(L"a", name_of(element));
}
