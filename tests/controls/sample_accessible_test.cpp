// A sample of a colour as a screen reader sees it: asked through the system, from its window.
#include "lvx/controls/sample_accessible.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lvx/controls/custom_colour_dialog.h"
#include "owl/static.h"
#include "tests/owl/desk.h"

namespace {

struct Releasing {
    void operator()(IUnknown* object) const { object->Release(); }
};

VARIANT Child(LONG number) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

struct SampleAccessible : testing::Test {
    SampleAccessible() {
        ::CoInitialize(nullptr);
        Show("Sample");
    }
    ~SampleAccessible() override {
        object.reset();
        ::CoUninitialize();
    }

    void Show(const char* name) {
        auto* const frame = new owl::TStatic(desk.frame, 116, name, 20, 30, 40, 25);
        frame->Create();
        sample = new ColourSample(frame, 117, owl::TColor(178, 34, 35), nullptr);
        sample->Create();
        IAccessible* found = nullptr;
        ::AccessibleObjectFromWindow(sample->GetHandle(), static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&found));
        ASSERT_NE(nullptr, found);
        object.reset(found);
    }

    /// What a question was answered with; "-" if there is nothing.
    template <class Question>
    std::string Ask(Question question, LONG child = CHILDID_SELF) const {
        BSTR text = nullptr;
        if ((object.get()->*question)(Child(child), &text) != S_OK)
            return "-";
        const std::wstring wide(text);
        ::SysFreeString(text);
        return std::string(wide.begin(), wide.end());
    }

    desk::Desk desk;
    ColourSample* sample = nullptr;
    std::unique_ptr<IAccessible, Releasing> object;
};

}  // namespace

TEST_F(SampleAccessible, has_the_text_of_its_frame_for_a_name) {
    EXPECT_EQ("Sample", Ask(&IAccessible::get_accName));
    Show("Paint");
    EXPECT_EQ("Paint", Ask(&IAccessible::get_accName));
    Show("");
    EXPECT_EQ("-", Ask(&IAccessible::get_accName));
}

TEST_F(SampleAccessible, has_its_colour_for_a_value) {
    EXPECT_EQ("178, 34, 35", Ask(&IAccessible::get_accValue));
    sample->setColour(owl::TColor(0, 255, 7).PaletteRelative());
    EXPECT_EQ("0, 255, 7", Ask(&IAccessible::get_accValue));
}

TEST_F(SampleAccessible, is_a_graphic_without_children) {
    VARIANT role{};
    EXPECT_EQ(S_OK, object->get_accRole(Child(CHILDID_SELF), &role));
    EXPECT_EQ(VT_I4, role.vt);
    EXPECT_EQ(ROLE_SYSTEM_GRAPHIC, role.lVal);
    LONG count = 7;
    object->get_accChildCount(&count);
    EXPECT_EQ(0, count);
    EXPECT_EQ("-", Ask(&IAccessible::get_accName, 1));
    EXPECT_EQ(E_INVALIDARG, object->get_accRole(Child(1), &role));
}

TEST_F(SampleAccessible, stands_where_its_window_stands) {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    EXPECT_EQ(S_OK, object->accLocation(&left, &top, &width, &height, Child(CHILDID_SELF)));
    const owl::TRect place = sample->GetWindowRect();
    EXPECT_EQ(place, owl::TRect(left, top, left + width, top + height));
}

TEST_F(SampleAccessible, outlives_its_window) {
    sample->Destroy();
    BSTR text = nullptr;
    VARIANT role{};
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, object->get_accName(Child(CHILDID_SELF), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, object->get_accValue(Child(CHILDID_SELF), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, object->get_accRole(Child(CHILDID_SELF), &role));
}

TEST_F(SampleAccessible, refuses_to_answer_into_nothing) {
    EXPECT_EQ(E_POINTER, object->get_accName(Child(CHILDID_SELF), nullptr));
    EXPECT_EQ(E_POINTER, object->get_accRole(Child(CHILDID_SELF), nullptr));
    EXPECT_EQ(E_POINTER, object->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(SampleAccessible, is_what_com_knows_of_it_and_nothing_else) {
    void* known = nullptr;
    EXPECT_EQ(S_OK, object->QueryInterface(__uuidof(IAccessible), &known));
    EXPECT_EQ(object.get(), known);
    object->Release();
    EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(IID_IStream, &known));
    EXPECT_EQ(nullptr, known);
}

TEST_F(SampleAccessible, goes_with_its_last_reference) {
    const ULONG before = object->AddRef();
    EXPECT_EQ(before - 1, object->Release());
}

TEST_F(SampleAccessible, leaves_other_objects_of_the_window_to_the_system) {
    EXPECT_EQ(0, sample->SendMessage(WM_GETOBJECT, 0, OBJID_CARET));
}
