// Dialogs with tabs, as often as there is time for.
#include <gtest/gtest.h>

#include "property_desk.h"
#include "tests/owl/leaks.h"

namespace {

/// A dialog of three pages that is opened, walked through and closed.
template <unsigned long style>
struct Walked {
    static constexpr int rounds = 60;

    explicit Walked(owl::TFrameWindow& frame) : desk(frame) {}

    void Round() {
        calls.clear();
        propdlg_test::Page a(calls, "a");
        propdlg_test::Page b(calls, "b", IDD_LIST);
        propdlg_test::Page c(calls, "c");
        propdlg_test::Dialog dialog(calls, &desk, style);
        dialog.Add("&A", &a, true);
        dialog.Add("&B", &b, true);
        dialog.Add("&C", &c, true);
        dialog.Create();
        dialog.ShowWindow(SW_SHOW);
        for (int i = 0; i < 4; ++i)
            dialog.SelectNext();
        dialog.UpdateWindow();
        dialog.CmOk();
    }

    owl::TFrameWindow& desk;
    propdlg_test::Calls calls;
};

struct AtOnce : Walked<Tab::SingleHeight> {
    static constexpr const char* name = "pages_made_at_once";
    using Walked::Walked;
};

struct OnDemand : Walked<Tab::CreateOnDemand | Tab::Stacked | Tab::UseSmallFont> {
    static constexpr const char* name = "pages_made_on_demand";
    using Walked::Walked;
};

using Kinds = testing::Types<AtOnce, OnDemand>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(DialogsWithTabs, Leaks, Kinds, KindName);

}  // namespace owl_test
