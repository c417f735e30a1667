// The same way for a strip and for the second coding of its rules. The numbers that choose the steps come
// from the caller: at random, or from a fuzzer.
#pragma once

#include <string>

#include "support/paper_strip.h"
#include "support/tab_oracle.h"

namespace lvx_test {

class TabWalk {
public:
    static constexpr int most_tabs = 40;

    TabWalk(unsigned long flags, bool has_window, int cels_width)
        : m_strip(Tab::Style(flags)), m_oracle(flags, has_window) {
        m_strip.surface.has_window = has_window;
        m_strip.surface.cels_width = cels_width;
        m_oracle.cels_width = cels_width;
        m_oracle.client = m_strip.surface.client;
    }

    /// Does something to both; `number(n)` chooses a number below n.
    template <class Number>
    void Step(Number&& number) {
        const int tabs = m_oracle.Count();
        const int step = number(12);
        if (tabs == 0 || step == 0) {
            Add(Caption(number), number(4) > 0);
        } else if (step <= 2) {
            Enable(number(tabs), number(2) > 0);
        } else if (step <= 5) {
            Select(number(tabs));
        } else if (step == 6) {
            Size(number);
        } else if (step <= 8) {
            Scroll(number(7) - 3);
        } else if (step == 9) {
            Rename(number(tabs), Caption(number));
        } else if (step == 10) {
            Width(number(4) == 0 ? 0 : number(200) - 20);
        } else {
            Margin(number(40) - 10);
        }
        m_at = owl::TPoint(number(640) - 20, number(120) - 10);
    }

    /// What differs; "" if nothing does.
    std::string Difference() {
        if (m_strip.Heard() != Said())
            return "what the window is told";
        if (m_strip.state.Entries.GetItemsInContainer() != m_oracle.Count())
            return "how many tabs there are";
        for (int tab = 0; tab < m_oracle.Count(); ++tab) {
            if (DiffersAt(tab))
                return "tab " + std::to_string(tab);
        }
        return DifferenceOfState();
    }

private:
    template <class Number>
    static std::string Caption(Number&& number) {
        std::string caption;
        for (int left = number(24); left > 0; --left)
            caption += "abcde& \rfghij"[number(13)];
        return caption;
    }
    template <class Number>
    void Size(Number&& number) {
        const int width = number(8) == 0 ? number(4) : number(600);
        const owl::TRect client(0, 0, width, number(200));
        m_strip.surface.client = client;
        m_strip.layout.Resized();
        m_oracle.Size(client);
    }
    void Add(const std::string& caption, bool enabled) {
        if (m_oracle.Count() >= most_tabs)
            return;
        m_strip.Add(caption, enabled);
        m_oracle.Add(caption, enabled);
    }
    void Enable(int tab, bool enable) {
        m_strip.layout.EnableTab(tab, enable);
        m_oracle.EnableTab(tab, enable);
    }
    void Select(int tab) {
        const bool scrolled = m_strip.layout.AdjustOrigin(tab);
        const int former = m_strip.state.SelectedTab;
        m_strip.layout.BringRowForward(tab);
        m_strip.state.SelectedTab = tab;
        m_strip.layout.ShowSelection(former, scrolled);
        m_oracle.Select(tab);
    }
    void Scroll(int direction) {
        m_strip.layout.NextOrigin(direction);
        m_oracle.NextOrigin(direction);
    }
    void Rename(int tab, const std::string& caption) {
        m_strip.layout.SetTabText(tab, caption.c_str());
        m_oracle.SetTabText(tab, caption);
    }
    void Width(int width) {
        m_strip.layout.SetFixedTabWidth(width);
        m_oracle.SetFixedTabWidth(width);
    }
    void Margin(int width) {
        m_strip.layout.SetWideMarginWidth(width);
        m_oracle.SetWideMarginWidth(width);
    }

    Told Said() {
        Told said;
        said.swap(m_oracle.told);
        return said;
    }
    bool DiffersAt(int tab) const {
        const TPropertyEntry& entry = m_strip.state.Entries[tab];
        const TabOracle::Tab& expected = m_oracle.tabs[static_cast<std::size_t>(tab)];
        owl::TRect rect;
        const bool seen = m_strip.layout.GetTabRect(rect, tab, -1);
        bool expected_seen = false;
        const owl::TRect expected_rect = m_oracle.TabRect(tab, -1, &expected_seen);
        return entry.Text != expected.text || entry.Enabled != expected.enabled ||
               entry.Width != expected.width || seen != expected_seen || !(rect == expected_rect) ||
               m_strip.layout.GetTabRow(tab) != m_oracle.TabRow(tab);
    }
    std::string DifferenceOfState() const {
        const lvx::propdlg::TabState& state = m_strip.state;
        if (state.RowCount != m_oracle.row_count || state.Origin != m_oracle.origin)
            return "rows or origin";
        if (state.ScrollLeft != m_oracle.left || state.ScrollRight != m_oracle.right ||
            state.TabsRight != m_oracle.tabs_right)
            return "scrolling";
        for (int row = 0; row < state.RowCount; ++row) {
            const auto at = static_cast<std::size_t>(row);
            if (state.Rows[row].First != m_oracle.firsts[at] || state.Rows[row].Last != m_oracle.lasts[at])
                return "row " + std::to_string(row);
        }
        for (int which = -1; which <= 1; ++which) {
            if (!(m_strip.Arrows(which) == m_oracle.ScrollRect(which)))
                return "arrows";
        }
        return DifferenceOfAnswers();
    }
    std::string DifferenceOfAnswers() const {
        const lvx::propdlg::TabLayout& layout = m_strip.layout;
        if (layout.GetMouseTab(m_at) != m_oracle.MouseTab(m_at.x, m_at.y))
            return "the tab under the mouse";
        if (layout.GetLastTab(true) != m_oracle.LastTab(true) ||
            layout.GetLastTab(false) != m_oracle.LastTab(false))
            return "the last tab";
        for (int direction = -3; direction <= 3; ++direction) {
            if (layout.NextUsableTab(direction) != m_oracle.Next(direction))
                return "the next tab";
        }
        return "";
    }

    PaperStrip m_strip;
    TabOracle m_oracle;
    owl::TPoint m_at;
};

}  // namespace lvx_test
