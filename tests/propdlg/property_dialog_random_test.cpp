// A random user and host beside a second coding of the rules: which tab is selected, which pages have windows
// and which of those show, and how often each has saved.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

#include "property_desk.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

constexpr int tabs = 6;

class CountingPage : public Page {
public:
    using Page::Page;
    bool SaveData() override {
        ++saved;
        return true;
    }
    int saved = 0;
};

/// What the rules say, without a window.
struct Rules {
    explicit Rules(Tab::Style theStyle) : style(theStyle) { enabled.fill(true); }

    bool has(Tab::Style flag) const { return Tab::Has(style, flag); }

    void open() {
        const bool all = !has(Tab::CreateOnDemand) && !has(Tab::CreateOnDemandAndKeepIt);
        exists.fill(all);
        shows.fill(false);
        selected = static_cast<int>(std::find(enabled.begin(), enabled.end(), true) - enabled.begin());
        show();
    }
    void close() {
        exists.fill(false);
        shows.fill(false);
    }
    bool select(int tab, bool refused) {
        if (tab == -1)
            return false;
        if (tab == selected)
            return true;
        if (refused)
            return false;
        const auto former = static_cast<std::size_t>(selected);
        if (has(Tab::CreateOnDemand) || has(Tab::SaveOnClosePage))
            ++saved[former];
        if (has(Tab::CreateOnDemand))
            exists[former] = false;
        shows[former] = false;
        selected = tab;
        show();
        return true;
    }
    bool step(int direction, bool refused) {
        for (int tab = (selected + direction + tabs) % tabs; tab != selected;
             tab = (tab + direction + tabs) % tabs) {
            if (enabled[static_cast<std::size_t>(tab)])
                return select(tab, refused);
        }
        return false;
    }
    void show() {
        exists[static_cast<std::size_t>(selected)] = true;
        shows[static_cast<std::size_t>(selected)] = true;
    }

    Tab::Style style;
    int selected = 0;
    std::array<bool, tabs> exists{};
    std::array<bool, tabs> shows{};
    std::array<bool, tabs> enabled{};
    std::array<int, tabs> saved{};
};

class Walk {
public:
    Walk(PropertyDesk& desk, Tab::Style style, unsigned seed)
        : m_dialog(desk.calls, desk.desk.frame, style, IDD_RESIZABLE), m_rules(style), m_random(seed) {
        for (auto& page : m_pages) {
            page = std::make_unique<CountingPage>(desk.calls, "p");
            m_dialog.Add("&Tab", page.get(), true);
        }
        Open();
    }

    void Step() {
        switch (Below(9)) {
            case 0:
            case 1:
            case 2:
                Select(Below(tabs + 1) - 1);
                break;
            case 3:
                Move(1);
                break;
            case 4:
                Move(-1);
                break;
            case 5:
                Enable(Below(tabs), Below(2) == 0);
                break;
            case 6:
                m_dialog.Strip().SetTabText(Below(tabs), Below(2) == 0 ? "&Short" : "A rather long caption");
                break;
            case 7:
                m_dialog.SetWindowPos(nullptr, 0, 0, 100 + Below(400), 60 + Below(300),
                                      SWP_NOMOVE | SWP_NOZORDER);
                break;
            default:
                if (Below(10) == 0)
                    Reopen();
        }
        m_dialog.may_leave = true;
    }

    void Compare() const {
        EXPECT_EQ(m_rules.selected, m_dialog.Strip().GetSelectedTab());
        for (std::size_t i = 0; i < tabs; ++i) {
            EXPECT_EQ(m_rules.exists[i], m_pages[i]->IsWindow()) << i;
            EXPECT_EQ(m_rules.shows[i], m_pages[i]->IsWindow() && (m_pages[i]->GetStyle() & WS_VISIBLE) != 0)
                << i;
            EXPECT_EQ(m_rules.saved[i], m_pages[i]->saved) << i;
        }
    }

private:
    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool IsRefused() {
        m_dialog.may_leave = Below(5) != 0;
        return !m_dialog.may_leave;
    }
    void Open() {
        m_dialog.Create();
        m_rules.open();
    }
    void Select(int tab) {
        const bool refused = IsRefused();
        EXPECT_EQ(m_rules.select(tab, refused), m_dialog.SelectTab(tab)) << tab;
    }
    void Move(int direction) {
        const bool refused = IsRefused();
        EXPECT_EQ(m_rules.step(direction, refused),
                  direction > 0 ? m_dialog.SelectNext() : m_dialog.SelectPrevious());
    }
    // One is always left.
    void Enable(int tab, bool enable) {
        const auto others = std::count(m_rules.enabled.begin(), m_rules.enabled.end(), true);
        if (!enable && others <= 1)
            return;
        m_rules.enabled[static_cast<std::size_t>(tab)] = enable;
        m_dialog.Strip().EnableTab(tab, enable);
    }
    void Reopen() {
        m_dialog.CmCancel();
        m_rules.close();
        Compare();
        Open();
    }

    std::array<std::unique_ptr<CountingPage>, tabs> m_pages;
    Dialog m_dialog;
    Rules m_rules;
    std::mt19937 m_random;
};

struct PropertyDialogWalk : PropertyDesk, testing::WithParamInterface<unsigned long> {};

TEST_P(PropertyDialogWalk, goes_by_the_rules) {
    Walk walk(*this, GetParam(), 1);
    for (int i = 0; i < 400 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        walk.Step();
        walk.Compare();
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, PropertyDialogWalk,
                         testing::Values(Tab::SingleHeight, Tab::SaveOnClosePage, Tab::CreateOnDemand,
                                         Tab::CreateOnDemandAndKeepIt | Tab::SaveOnClosePage,
                                         Tab::CreateOnDemandAndKeepIt | Tab::Stacked | Tab::AutoTabResize,
                                         Tab::CreateOnDemand | Tab::Justified | Tab::FocusOnFirstControl));

}  // namespace
