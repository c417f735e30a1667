// The rules of a strip of tabs, coded a second time: step by step, in plain numbers, with nothing shared but
// the measuring of text. For strips whose numbers stay far from the ends of 32 bits.
#pragma once

#include <string>
#include <vector>

#include "support/paper_strip.h"

namespace lvx_test {

class TabOracle {
public:
    struct Tab {
        std::string text;
        bool enabled;
        int width;
    };

    TabOracle(unsigned long flags, bool window) : m_has_window(window) {
        const bool wizard = (flags & 0x4000) != 0;
        m_stacked = !wizard && (flags & 0x20) != 0;
        m_justified = m_stacked || (!wizard && (flags & 0x10) != 0);
        m_double = !wizard && (flags & 1) != 0;
        m_fixed = (flags & 2) != 0;
        m_collapsing = !m_stacked && (flags & 8) != 0;
        m_wide = (flags & 0x100) != 0;
        m_bitmaps = (flags & 0x8000) != 0;
        tab_height = line_height + (m_double ? line_height : 2) + 8;
        for (int row = 0; row < 20; ++row) {
            order.push_back(row);
            firsts.push_back(0);
            lasts.push_back(-1);
        }
    }

    // What is the same in both codings: what happens to a strip.

    void Add(const std::string& text, bool enabled) { tabs.push_back({text, enabled, 0}); }
    void Size(const owl::TRect& rect) {
        client = rect;
        CalculateTabWidths();
        AssessScroll();
        told.push_back("pages");
    }
    void SetFixedTabWidth(int width) {
        fixed_width = width;
        if (width == 0)
            fixed_width = 64;
        AfterWidth();
    }
    void SetWideMarginWidth(int width) {
        margin = width;
        AfterWidth();
    }
    void EnableTab(int tab, bool enable) {
        if (tabs.at(At(tab)).enabled == enable)
            return;
        tabs[At(tab)].enabled = enable;
        if (!m_has_window)
            return;
        owl::TRect rect = TabRect(tab, -1);
        rect.right += 1;
        rect.bottom += 2;
        if (!m_collapsing) {
            told.push_back(invalidated(rect, true));
            return;
        }
        rect.right = Strip(-1).right;
        if (AdjustOrigin(selected))
            return;
        AssessScroll();
        if (m_justified)
            Reassess();
        told.push_back(invalidated(rect, true));
    }
    void SetTabText(int tab, const std::string& text) {
        tabs.at(At(tab)).text = text;
        if (!m_has_window)
            return;
        if (m_stacked) {
            const owl::TRect before = Strip(-1);
            CalculateTabWidths();
            const owl::TRect after = Strip(-1);
            if (before.bottom != after.bottom) {
                told.push_back("pages");
                if (after.bottom < before.bottom)
                    told.push_back(
                        invalidated(owl::TRect(after.left, after.bottom, after.right, before.bottom), true));
            }
            told.push_back(invalidated(after, true));
            return;
        }
        BasicWidths();
        AssessScroll();
        CalculateTabWidths();
        owl::TRect rect = TabRect(tab, -1);
        rect.right = client.right;
        rect.bottom += 2;
        told.push_back(invalidated(rect, true));
    }
    void NextOrigin(int direction) {
        const int last = Count() - 1;
        if (direction == 0 || last < 0)
            return;
        int next = origin;
        while (true) {
            next += direction;
            if (next >= last) {
                next = last;
                break;
            }
            if (next <= 0) {
                next = 0;
                break;
            }
            if (tabs[At(next)].enabled)
                break;
        }
        if (next == origin)
            return;
        owl::TRect strip = Strip(-1);
        strip.bottom += 2;
        told.push_back(invalidated(strip, true));
        origin = next;
        AssessScroll();
        told.push_back("update");
    }
    bool AdjustOrigin(int tab) {
        if (tab < 0 || tab >= Count())
            return false;
        const int before = origin;
        if (origin > tab) {
            origin = tab;
        } else {
            while (tab > origin) {
                bool shown = false;
                const owl::TRect rect = TabRect(tab, -1, &shown);
                if (!shown || rect.right < tabs_right)
                    break;
                ++origin;
            }
        }
        if (origin == before)
            return false;
        owl::TRect strip = Strip(-1);
        strip.right += 1;
        strip.bottom += 2;
        told.push_back(invalidated(strip, false));
        return true;
    }
    void Select(int tab) {
        const bool adjusted = AdjustOrigin(tab);
        const int before = selected;
        if (m_stacked) {
            const int p = TabRow(tab);
            if (p > 0) {
                std::swap(order[Slot(0)], order[Slot(p)]);
                for (const int row : {0, p}) {
                    owl::TRect rect = Strip(row);
                    rect.bottom += 2;
                    told.push_back(invalidated(rect, true));
                }
            }
        }
        selected = tab;
        if (adjusted) {
            owl::TRect arrows = ScrollRect(-1);
            arrows = owl::TRect(arrows.left - 8, 0, arrows.right - 8, arrows.bottom - 8);
            told.push_back(invalidated(arrows, true));
            AssessScroll();
            return;
        }
        for (const int one : {before, tab}) {
            owl::TRect rect = TabRect(one, -1);
            rect.right += 1;
            rect.bottom += 2;
            told.push_back(invalidated(rect, false));
        }
    }

    // What both are asked.

    bool Visible(int tab) const { return !m_collapsing || tabs.at(At(tab)).enabled; }
    owl::TRect ScrollRect(int which) const {
        const int w = arrow.cx;
        owl::TRect rect(client.right - w, tab_height - arrow.cy, client.right, tab_height);
        if (which == 1)
            return rect;
        if (which == 0)
            rect.right = rect.left;
        rect.left -= w - 1;
        return rect;
    }
    owl::TRect Strip(int row) const {
        owl::TRect rect = client;
        if (row == -1) {
            rect.bottom = tab_height * row_count - 1;
        } else {
            rect.top = (row_count - row - 1) * tab_height;
            rect.bottom = rect.top + tab_height - 1;
        }
        if (left || right)
            rect.right = ScrollRect(-1).left - 8;
        return rect;
    }
    /// The rows that exist, from the page upward.
    std::vector<int> Shown() const {
        std::vector<int> shown;
        for (const int row : order) {
            if (row < row_count)
                shown.push_back(row);
        }
        return shown;
    }
    int TabRow(int tab) const {
        const std::vector<int> shown = Shown();
        for (std::size_t p = 0; p < shown.size(); ++p) {
            if (firsts[At(shown[p])] <= tab && tab <= lasts[At(shown[p])])
                return static_cast<int>(p);
        }
        return -1;
    }
    owl::TRect TabRect(int tab, int start, bool* seen = nullptr) const {
        bool dummy = false;
        bool& result = seen != nullptr ? *seen : dummy;
        result = false;
        owl::TRect rect = Strip(-1);
        if (start < 0)
            start = origin;
        int stop = Count() - 1;
        if (m_stacked) {
            const int p = TabRow(tab);
            if (p < 0)
                return rect;
            const int row = Shown()[At(p)];
            start = firsts[At(row)];
            stop = lasts[At(row)];
            rect.top = (row_count - 1 - p) * tab_height;
            rect.bottom = rect.top + tab_height;
        }
        for (int i = start; i <= stop; ++i) {
            if (i == tab) {
                rect.right = rect.left + tabs[At(i)].width - 1;
                result = Visible(i);
                return rect;
            }
            if (Visible(i))
                rect.left += tabs[At(i)].width;
        }
        return rect;
    }
    int MouseTab(int x, int y) const {
        for (int i = origin; i < Count(); ++i) {
            bool seen = false;
            const owl::TRect rect = TabRect(i, -1, &seen);
            if (Visible(i) && seen && x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom)
                return tabs[At(i)].enabled ? i : -1;
        }
        return -1;
    }
    int LastTab(bool visible_only) const {
        for (int i = Count() - 1; i > 0; --i) {
            bool seen = false;
            const owl::TRect rect = TabRect(i, -1, &seen);
            if (!visible_only || (seen && rect.right <= tabs_right))
                return i;
        }
        return 0;
    }
    int Next(int direction) const {
        int tab = selected;
        for (int tries = 0; tries < Count(); ++tries) {
            tab += direction;
            if (tab < 0)
                tab = Count() - 1;
            if (tab >= Count())
                tab = 0;
            if (tab == selected)
                return -1;
            if (tabs[At(tab)].enabled)
                return tab;
        }
        return -1;
    }
    int Count() const { return static_cast<int>(tabs.size()); }

    std::vector<Tab> tabs;
    std::vector<int> firsts;
    std::vector<int> lasts;
    std::vector<int> order;
    owl::TRect client;
    owl::TSize arrow{17, 16};
    int cels_width = 0;
    int tab_height = 0;
    int row_count = 0;
    int fixed_width = 64;
    int margin = 6;
    int origin = 0;
    int selected = 0;
    int tabs_right = 0;
    bool left = false;
    bool right = false;
    Told told;

private:
    static std::size_t At(int index) { return static_cast<std::size_t>(index); }

    std::size_t Slot(int position) const {
        const int row = Shown()[At(position)];
        return static_cast<std::size_t>(std::find(order.begin(), order.end(), row) - order.begin());
    }
    void AfterWidth() {
        if (!m_has_window)
            return;
        CalculateTabWidths();
        told.push_back(invalidated(Strip(-1), true));
    }
    static int Widest(const std::vector<std::string>& lines) {
        int widest = 0;
        for (const std::string& line : lines)
            widest = std::max(widest, line_width(line));
        return widest;
    }
    int Width(const std::string& text) const {
        if (m_fixed)
            return fixed_width;
        const bool breakable = text.find(' ') != text.npos || text.find('\r') != text.npos;
        int w = Widest(lines_of(text, -1));
        // A text with three lines of its own would be widened for ever.
        if (m_double && breakable && lines_of(text, -1).size() < 3) {
            w = fixed_width;
            while (lines_of(text, std::max(0, w)).size() >= 3)
                w += 8;
            w = Widest(lines_of(text, std::max(0, w)));
        }
        w += 7;
        if (m_wide)
            w += 2 * margin;
        if (m_bitmaps && cels_width > 0)
            w += cels_width / Count() + 12;
        return std::max(w, fixed_width);
    }
    void BasicWidths() {
        for (Tab& tab : tabs)
            tab.width = Width(tab.text);
        if (!m_stacked) {
            row_count = 1;
            firsts[0] = 0;
            lasts[0] = Count() - 1;
            return;
        }
        const owl::TRect r = Strip(-1);
        for (int row = 0; row < 20; ++row) {
            firsts[At(row)] = 0;
            lasts[At(row)] = -1;
        }
        row_count = 0;
        int i = 0;
        while (i < Count()) {
            if (row_count > 19) {
                lasts[19] = Count() - 1;
                break;
            }
            firsts[At(row_count)] = i;
            lasts[At(row_count)] = i;
            int x = r.left;
            const int row = row_count;
            for (int j = i; j < Count(); ++j) {
                x += tabs[At(j)].width;
                if (x < r.right) {
                    lasts[At(row)] = j;
                    i = j;
                } else {
                    ++row_count;
                    break;
                }
            }
            ++i;
        }
        if (Count() > 0)
            ++row_count;
        row_count = std::min(row_count, 20);
    }
    void CalculateTabWidths() {
        const owl::TRect r = Strip(-1);
        if (r.right - r.left - 1 <= 0)
            return;
        BasicWidths();
        if (!m_justified)
            return;
        if (!m_stacked && (left || right))
            return;
        for (int row = 0; row < row_count; ++row) {
            int total = 0;
            int count = 0;
            for (int i = firsts[At(row)]; i <= lasts[At(row)]; ++i) {
                if (Visible(i)) {
                    total += tabs[At(i)].width;
                    ++count;
                }
            }
            int extra = (r.right - r.left) - total;
            if (extra < 0)
                return;
            for (int i = firsts[At(row)]; i <= lasts[At(row)]; ++i) {
                if (extra == 0 || count == 0)
                    break;
                if (Visible(i)) {
                    const int share = extra / count;
                    tabs[At(i)].width += share;
                    extra -= share;
                    --count;
                }
            }
        }
    }
    void Reassess() {
        if (!m_justified)
            return;
        CalculateTabWidths();
        owl::TRect r = Strip(-1);
        r.right += 1;
        r.bottom += 2;
        told.push_back(invalidated(r, true));
    }
    void AssessScroll() {
        if (m_stacked) {
            tabs_right = client.right;
            return;
        }
        const bool was_left = left;
        const bool was_right = right;
        owl::TRect c = client;
        left = origin > 0;
        if (left)
            c = Strip(-1);
        right = TabRect(LastTab(false), -1).right > c.right;
        tabs_right = left || right ? ScrollRect(-1).left - 8 : client.right;
        if (left || right) {
            if (left != was_left || right)
                told.push_back(left ? "lit left" : "dimmed left");
            if (right != was_right || left)
                told.push_back(right ? "lit right" : "dimmed right");
        } else {
            told.push_back("no arrows");
        }
        if (left != was_left || right != was_right) {
            told.push_back(invalidated(ScrollRect(-1), true));
            Reassess();
        }
    }

    bool m_has_window;
    bool m_stacked;
    bool m_justified;
    bool m_double;
    bool m_fixed;
    bool m_collapsing;
    bool m_wide;
    bool m_bitmaps;
};

}  // namespace lvx_test
