// What the tests of fields share: a frame with a field in it that has the focus, keys that are typed into it,
// and an ear for the library's beeps.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "owl/edit.h"
#include "support/import_patch.h"
#include "tests/owl/desk.h"

namespace lvx_test {

/// The beeps of the library since the object was made.
class Beeps {
public:
    Beeps() : m_patch("lvx.dll", "MessageBeep", &Hear) {
        heard.clear();
        EXPECT_TRUE(m_patch.IsInPlace());
    }

    /// How many there were since the last question. Each has to be the plain one.
    int Count() {
        for (const UINT kind : heard)
            EXPECT_EQ(static_cast<UINT>(-1), kind);
        return static_cast<int>(std::exchange(heard, {}).size());
    }

private:
    static BOOL WINAPI Hear(UINT kind) {
        heard.push_back(kind);
        return TRUE;
    }

    inline static std::vector<UINT> heard;
    ImportPatch m_patch;
};

/// Presses keys that end with one that nobody uses, and handles messages until that has come: the others came
/// before it.
class TypedKeys {
public:
    template <class Press>
    explicit TypedKeys(const Press& press)
        : m_hook(::SetWindowsHookExA(WH_GETMESSAGE, &See, nullptr, ::GetCurrentThreadId())) {
        has_come = false;
        press();
        user::Press({last_key});
        EXPECT_TRUE(desk::PumpUntil([] { return has_come; }));
    }
    ~TypedKeys() { ::UnhookWindowsHookEx(m_hook); }
    TypedKeys(const TypedKeys&) = delete;
    TypedKeys& operator=(const TypedKeys&) = delete;

private:
    static constexpr WORD last_key = VK_F24;

    static LRESULT CALLBACK See(int code, WPARAM removed, LPARAM message) {
        const auto& seen = *reinterpret_cast<const MSG*>(message);
        if (code == HC_ACTION && seen.message == WM_KEYUP && seen.wParam == last_key)
            has_come = true;
        return ::CallNextHookEx(nullptr, code, removed, message);
    }

    inline static bool has_come = false;
    HHOOK m_hook;
};

/// Presses keys and waits until they have come.
inline void Type(const std::string& keys) {
    const TypedKeys typed([&] { user::Type(keys); });
}
inline void Press(std::initializer_list<WORD> keys) {
    const TypedKeys typed([&] { user::Press(keys); });
}

inline std::pair<int, int> SelectionOf(const owl::TEdit& field) {
    std::pair<int, int> selection;
    field.GetSelection(selection.first, selection.second);
    return selection;
}

/// A frame in front, for fields.
class FieldDesk : public testing::Test {
protected:
    /// Makes a window out of a child of the frame, and gives it the focus.
    template <class Field>
    Field* Show(Field* field) {
        field->Create();
        EXPECT_TRUE(desk::Activate(*desk.frame));
        field->SetFocus();
        EXPECT_EQ(field->GetHandle(), ::GetFocus());
        return field;
    }

    desk::Desk desk;
    Beeps beeps;
};

}  // namespace lvx_test
