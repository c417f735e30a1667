// What the tests of the colour dialog share: one that stands, its controls as numbers, and what it is told.
#pragma once

#include <windows.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "controls/field_desk.h"
#include "lvx/controls/custom_colour_dialog.h"
#include "lvx/controls/custom_colour_dialog_ids.h"

namespace lvx_test {

/// Red, green, blue, hue, lightness, saturation.
using Channels = std::array<int, 6>;
using Texts = std::array<std::string, 6>;

inline constexpr int bar_ids[] = {102, 104, 106, 109, 113, 111};
inline constexpr int edit_ids[] = {103, 105, 107, 110, 114, 112};

/// Notes what its fields tell.
class ColourDialog : public LVXCustomColourDlg {
public:
    ColourDialog(owl::TWindow* parent, owl::TColor& colour, std::string* name = nullptr)
        : LVXCustomColourDlg(parent, colour, name, nullptr) {}

    LRESULT EvCommand(UINT id, HWND control, UINT code) override {
        if (code == EN_CHANGE)
            changed.push_back(static_cast<int>(id));
        return LVXCustomColourDlg::EvCommand(id, control, code);
    }

    Channels Bars() const {
        Channels positions{};
        for (std::size_t i = 0; i < positions.size(); ++i)
            positions[i] = ::GetScrollPos(GetDlgItem(bar_ids[i]), SB_CTL);
        return positions;
    }
    Texts Fields() const {
        Texts texts;
        for (std::size_t i = 0; i < texts.size(); ++i)
            texts[i] = GetDlgItemText(edit_ids[i]);
        return texts;
    }
    std::string Field(int id) const { return GetDlgItemText(id); }
    /// The selected part of a field.
    std::pair<int, int> SelectionOf(int id) const {
        DWORD start = 0;
        DWORD end = 0;
        SendDlgItemMessage(id, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return {static_cast<int>(start), static_cast<int>(end)};
    }
    void SelectIn(int id, int start, int end) const {
        SendDlgItemMessage(id, EM_SETSEL, static_cast<WPARAM>(start), end);
    }
    /// What a bar tells when it was moved.
    void Scroll(int id, UINT code) {
        SendMessage(WM_HSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(GetDlgItem(id)));
    }

    using LVXCustomColourDlg::Sample;

    std::vector<int> changed;
};

inline Texts AsTexts(const Channels& channels) {
    Texts texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = std::to_string(channels[i]);
    return texts;
}

/// A dialog in front that shows `colour`.
class ColourDesk : public testing::Test {
protected:
    /// What the tests begin with: lightness 224 / 510 = 43.9 %, saturation 160 / 224 = 71.4 %, hue 60 * 32 /
    /// 160 = 12.
    ColourDesk() : colour(192, 64, 32) {}

    ColourDialog& Show(std::string* name = nullptr) {
        dialog = std::make_unique<ColourDialog>(desk.frame, colour, name);
        dialog->Create();
        EXPECT_TRUE(desk::Activate(*dialog));
        desk::PumpUntil([] { return false; }, 30);
        dialog->changed.clear();
        return *dialog;
    }
    void Focus(int id) {
        ::SetFocus(dialog->GetDlgItem(id));
        ASSERT_EQ(dialog->GetDlgItem(id), ::GetFocus());
    }
    /// All twelve controls show these numbers, and the caller's colour is theirs.
    void ExpectShown(const Channels& channels) {
        EXPECT_EQ(channels, dialog->Bars());
        EXPECT_EQ(AsTexts(channels), dialog->Fields());
        EXPECT_EQ(owl::TColor(channels[0], channels[1], channels[2]).PaletteRelative(), colour);
    }

    desk::Desk desk;
    Beeps beeps;
    owl::TColor colour;
    std::unique_ptr<ColourDialog> dialog;
};

}  // namespace lvx_test
