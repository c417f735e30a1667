// What the tests of property dialogs share: a page and a dialog that write down what they are asked, on a
// desk.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/shared_state.h"
#include "owl/combo_box.h"
#include "owl/edit.h"
#include "propdlg_ids.h"
#include "tests/owl/desk.h"

namespace propdlg_test {

using Calls = std::vector<std::string>;

/// A page named by a letter. What it is asked goes into the calls of the test.
class Page : public LVXPropertyPage {
public:
    Page(Calls& calls, const std::string& name, int resource = IDD_FIELDS)
        : LVXPropertyPage(resource, nullptr), m_calls(calls), m_name(name) {}
    ~Page() override {
        if (deleted != nullptr)
            ++*deleted;
    }

    void SetupWindow() override {
        LVXPropertyPage::SetupWindow();
        ++setups;
    }
    void AfterSelected() override { m_calls.push_back("after " + m_name); }
    bool BeforeLeaving() override {
        m_calls.push_back("leave " + m_name);
        return may_leave;
    }
    bool CanPageClose() override {
        m_calls.push_back("close " + m_name);
        return may_close;
    }
    void AfterCantClose() override {
        m_calls.push_back("cannot " + m_name);
        LVXPropertyPage::AfterCantClose();
    }
    void OnRightClick(unsigned modifiers, owl::TPoint& point) override {
        m_calls.push_back("right " + m_name);
        right_modifiers = modifiers;
        right_point = point;
    }
    bool SaveData() override {
        m_calls.push_back("save " + m_name);
        return saves && LVXPropertyPage::SaveData();
    }
    void CmPage() { m_calls.push_back("command " + m_name); }

    bool may_leave = true;
    bool may_close = true;
    bool saves = true;
    int setups = 0;
    int* deleted = nullptr;
    unsigned right_modifiers = 0;
    owl::TPoint right_point;

private:
    Calls& m_calls;
    std::string m_name;

    DECLARE_RESPONSE_TABLE(Page);
};

/// A dialog that writes down, too.
class Dialog : public TPropertyDialog {
public:
    Dialog(Calls& calls, owl::TWindow* parent, Tab::Style style = Tab::SingleHeight,
           int resource = IDD_DIALOG)
        : TPropertyDialog(parent, resource, style, nullptr), m_calls(calls) {}
    Dialog(Calls& calls, owl::TWindow* parent, Tab::Style style, int bitmap, bool masked)
        : TPropertyDialog(parent, IDD_DIALOG, style, owl::TResId(bitmap), masked, nullptr), m_calls(calls) {}

    // Pages on the stack must not have windows any more when the strip ends.
    ~Dialog() override {
        if (IsWindow() && !ends_open)
            Destroy(IDCANCEL);
    }

    void AfterSelected(int tab) override { m_calls.push_back("after dialog " + std::to_string(tab)); }
    bool BeforeLeaving(int tab) override {
        m_calls.push_back("leave dialog " + std::to_string(tab));
        return may_leave;
    }
    void Destroy(int retVal) override {
        result = retVal;
        TPropertyDialog::Destroy(retVal);
    }
    void CmDialog() { m_calls.push_back("command dialog"); }

    TPropertyTab& Strip() const { return *GetTabControl(); }

    bool may_leave = true;
    /// Whether the object may end while its window exists.
    bool ends_open = false;
    /// What the dialog was destroyed with; 0 before.
    int result = 0;

private:
    Calls& m_calls;

    DECLARE_RESPONSE_TABLE(Dialog);
};

/// A desk with three pages for a dialog. The first change of tab in the process has been done.
struct PropertyDesk : testing::Test {
    PropertyDesk() { lvx::propdlg::shared_state().FirstChangeDone = true; }

    /// Puts the pages behind tabs &A, &B and &C and shows the dialog.
    void Open(Dialog& dialog) {
        AddPages(dialog);
        Show(dialog);
    }
    void AddPages(Dialog& dialog) {
        dialog.Add("&A", &a, true);
        dialog.Add("&B", &b, true);
        dialog.Add("&C", &c, true);
    }
    void Show(Dialog& dialog) {
        dialog.Create();
        dialog.ShowWindow(SW_SHOW);
        Pump();
        calls.clear();
    }
    static void Pump() { owl::TMsgThread().PumpWaitingMessages(); }
    /// What was asked since the last time.
    Calls Asked() {
        Calls asked;
        asked.swap(calls);
        return asked;
    }

    desk::Desk desk;
    Calls calls;
    Page a{calls, "a"};
    Page b{calls, "b", IDD_LIST};
    Page c{calls, "c"};
};

}  // namespace propdlg_test
