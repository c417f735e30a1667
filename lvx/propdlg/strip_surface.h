// lvx/propdlg/strip_surface.h
//
// The window of a strip, as the arithmetic of its layout sees it. Made for the moment. Private to the
// library.
#pragma once

#include <memory>
#include <utility>

#include "lvx/propdlg/property_tab.h"
#include "owl/bitmap.h"
#include "owl/cel_array.h"
#include "owl/error.h"
#include "owl/font.h"
#include "owl/window_dc.h"

class TPropertyTab::Surface final : public lvx::propdlg::TabSurface {
public:
    explicit Surface(TPropertyTab& strip) : m_strip(strip) {}
    /// Text is measured on `dc`.
    Surface(TPropertyTab& strip, owl::TDC& dc) : m_strip(strip), m_dc(&dc) {
        m_dc->SelectObject(*strip.SelectedFont);
    }
    ~Surface() override {
        if (m_dc != nullptr)
            m_dc->RestoreFont();
    }

    bool HasWindow() const override { return m_strip.IsWindow(); }
    owl::TRect ClientRect() const override { return m_strip.GetClientRect(); }
    owl::TSize ArrowSize() const override {
        return owl::TSize(::GetSystemMetrics(SM_CXHSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    }
    owl::TRect MeasureText(const std::string& text, const owl::TRect& within,
                           lvx::propdlg::LineBreaks breaks) override {
        const bool wraps = breaks == lvx::propdlg::LineBreaks::BetweenWords;
        owl::TRect rect = within;
        MeasuringContext().DrawText(text, rect, wraps ? DT_CALCRECT | DT_WORDBREAK : DT_CALCRECT);
        return rect;
    }
    int CelsWidth() const override {
        return m_strip.TabBitmaps != nullptr ? static_cast<owl::TBitmap&>(*m_strip.TabBitmaps).Width() : 0;
    }
    void Invalidate(const owl::TRect& rect, bool erase) override { m_strip.InvalidateRect(rect, erase); }
    void UpdateWindow() override { m_strip.UpdateWindow(); }
    void LoadArrow(lvx::propdlg::ScrollArrow arrow, bool canScroll) override {
        const bool isLeft = arrow == lvx::propdlg::ScrollArrow::Left;
        // The system's bitmaps OBM_LFARROW, OBM_RGARROW, OBM_LFARROWD and OBM_RGARROWD.
        const int lit = isLeft ? 32750 : 32751;
        const int dimmed = isLeft ? 32734 : 32735;
        owl::TBitmap*& bitmap = isLeft ? m_strip.ScrollLeftBitmap : m_strip.ScrollRightBitmap;
        delete std::exchange(bitmap, nullptr);
        // Where the system has none, an arrow is left out.
        try {
            bitmap = new owl::TBitmap(nullptr, owl::TResId(canScroll ? lit : dimmed));
        } catch (const owl::TXGdi&) {
        }
    }
    void DropArrows() override {
        delete std::exchange(m_strip.ScrollLeftBitmap, nullptr);
        delete std::exchange(m_strip.ScrollRightBitmap, nullptr);
    }
    void RedrawDialogs() override { m_strip.RedrawDialogs(); }

private:
    // Fetched when something is to be measured; without a window that of the screen.
    owl::TDC& MeasuringContext() {
        if (m_dc == nullptr) {
            m_own = std::make_unique<owl::TClientDC>(m_strip.GetHandle());
            m_dc = m_own.get();
            m_dc->SelectObject(*m_strip.SelectedFont);
        }
        return *m_dc;
    }

    TPropertyTab& m_strip;
    std::unique_ptr<owl::TClientDC> m_own;
    owl::TDC* m_dc = nullptr;
};

class TPropertyTab::Arithmetic {
public:
    explicit Arithmetic(TPropertyTab& strip) : m_surface(strip), m_layout(strip, m_surface) {}
    Arithmetic(TPropertyTab& strip, owl::TDC& dc) : m_surface(strip, dc), m_layout(strip, m_surface) {}

    lvx::propdlg::TabLayout* operator->() { return &m_layout; }

private:
    Surface m_surface;
    lvx::propdlg::TabLayout m_layout;
};
