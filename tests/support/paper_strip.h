// A strip of tabs without a window: text is measured by counting characters, and what the window would be
// told is written down.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "lvx/propdlg/tab_layout.h"

namespace lvx_test {

inline constexpr int character_width = 6;
inline constexpr int line_height = 13;

/// How wide a line is: ampersands do not show.
inline int line_width(const std::string& line) {
    const auto marks = std::count(line.begin(), line.end(), '&');
    return character_width * static_cast<int>(line.size() - static_cast<std::size_t>(marks));
}

/// The lines of a text: at carriage returns, and with `width` at least 0 at blanks where a line would be
/// wider.
inline std::vector<std::string> lines_of(const std::string& text, int width) {
    std::vector<std::string> lines;
    std::istringstream paragraphs(text + '\r');
    for (std::string paragraph; std::getline(paragraphs, paragraph, '\r');) {
        std::istringstream words(paragraph);
        std::string line;
        bool first = true;
        for (std::string word; std::getline(words, word, ' ');) {
            if (!first && width >= 0 && line_width(line + ' ' + word) > width) {
                lines.push_back(line);
                line = word;
            } else {
                line += (first ? "" : " ") + word;
            }
            first = false;
        }
        lines.push_back(line);
    }
    return lines;
}

/// What a window would be told, in the order in which it would.
using Told = std::vector<std::string>;

inline std::string invalidated(const owl::TRect& rect, bool erase) {
    std::ostringstream text;
    text << (erase ? "erase " : "keep ") << rect.left << ' ' << rect.top << ' ' << rect.right << ' '
         << rect.bottom;
    return text.str();
}

class PaperSurface : public lvx::propdlg::TabSurface {
public:
    bool HasWindow() const override { return has_window; }
    owl::TRect ClientRect() const override { return client; }
    owl::TSize ArrowSize() const override { return arrow; }
    owl::TRect MeasureText(const std::string& text, const owl::TRect& within,
                           lvx::propdlg::LineBreaks breaks) override {
        ++measured;
        const bool wraps = breaks == lvx::propdlg::LineBreaks::BetweenWords;
        owl::TRect rect(within.left, within.top, within.left, within.top);
        for (const std::string& line : lines_of(text, wraps ? std::max(0, within.Width()) : -1)) {
            rect.right = std::max(rect.right, within.left + line_width(line));
            rect.bottom += height;
        }
        return rect;
    }
    int CelsWidth() const override { return cels_width; }
    void Invalidate(const owl::TRect& rect, bool erase) override { told.push_back(invalidated(rect, erase)); }
    void UpdateWindow() override { told.push_back("update"); }
    void LoadArrow(lvx::propdlg::ScrollArrow arrow_of, bool can_scroll) override {
        const bool is_left = arrow_of == lvx::propdlg::ScrollArrow::Left;
        told.push_back(std::string(can_scroll ? "lit " : "dimmed ") + (is_left ? "left" : "right"));
    }
    void DropArrows() override { told.push_back("no arrows"); }
    void RedrawDialogs() override { told.push_back("pages"); }

    bool has_window = true;
    owl::TRect client{0, 0, 300, 200};
    owl::TSize arrow{17, 16};
    int cels_width = 0;
    int height = line_height;
    int measured = 0;
    Told told;
};

/// A strip with its layout. Rows are 23 pixels high, 34 with DoubleHeight.
class PaperStrip {
public:
    explicit PaperStrip(Tab::Style style) : state(style), layout(state, surface) {
        state.TextHeight = line_height;
        state.TabHeight = lvx::propdlg::TabHeightFor(state.Style, line_height);
    }

    PaperStrip(const PaperStrip& other)
        : surface(other.surface), state(other.state), layout(state, surface) {}
    PaperStrip& operator=(const PaperStrip&) = delete;

    void Add(const std::string& text, bool enabled = true) {
        TPropertyEntry entry;
        entry.Text = text;
        entry.Enabled = enabled;
        state.Entries.Add(entry);
    }
    /// Adds so many tabs, gives each this width, and makes one row of them.
    void AddOfWidth(int count, int width) {
        for (int i = 0; i < count; ++i) {
            Add(std::string(1, static_cast<char>('a' + i % 26)));
            state.Entries[i].Width = width;
        }
        state.RowCount = 1;
        state.Rows[0] = {0, count - 1};
    }
    /// Lays the strip out in a client area of this width.
    void Size(int width, int height = 200) {
        surface.client = owl::TRect(0, 0, width, height);
        layout.Resized();
    }
    std::vector<int> Widths() const {
        std::vector<int> widths;
        for (const TPropertyEntry& entry : state.Entries)
            widths.push_back(entry.Width);
        return widths;
    }
    /// The tabs of the rows that count, as "0-2 3-3"; a row without tabs is "-".
    std::string Rows() const {
        std::ostringstream text;
        for (int row = 0; row < state.RowCount; ++row) {
            const auto& [first, last] = state.Rows[row];
            text << (row > 0 ? " " : "");
            if (first > last)
                text << '-';
            else
                text << first << '-' << last;
        }
        return text.str();
    }
    owl::TRect Strip(int row = -1) const {
        owl::TRect rect;
        layout.SetRect(rect, row);
        return rect;
    }
    owl::TRect Arrows(int which = -1) const {
        owl::TRect rect;
        layout.GetScrollRect(rect, which);
        return rect;
    }
    /// The rectangle of a tab that is to be seen; a null one otherwise.
    owl::TRect TabRect(int tab, int start = -1) const {
        owl::TRect rect;
        return layout.GetTabRect(rect, tab, start) ? rect : owl::TRect();
    }
    /// What the window was told since the last call.
    Told Heard() {
        Told heard;
        heard.swap(surface.told);
        return heard;
    }

    PaperSurface surface;
    lvx::propdlg::TabState state;
    lvx::propdlg::TabLayout layout;
};

}  // namespace lvx_test
