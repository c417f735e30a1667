#include "sketch/view/view.h"

#include <algorithm>
#include <utility>

#include "lvx/drawing/region.h"
#include "owl/dc.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/model/box.h"
#include "sketch/model/drawing_bounds.h"
#include "sketch/view/box_tool.h"
#include "sketch/view/marks.h"
#include "sketch/view/polygon_tool.h"
#include "sketch/view/select_tool.h"
#include "sketch/view/text_tool.h"

namespace sketch {
namespace {

std::unique_ptr<Tool> MakeTool(int command, Desk& desk) {
    switch (command) {
        case CM_TOOL_RECTANGLE:
            return std::make_unique<BoxTool<Rectangle>>(desk);
        case CM_TOOL_ELLIPSE:
            return std::make_unique<BoxTool<Ellipse>>(desk);
        case CM_TOOL_POLYGON:
            return std::make_unique<PolygonTool>(desk);
        case CM_TOOL_TEXT:
            return std::make_unique<TextTool>(desk);
        default:
            return std::make_unique<SelectTool>(desk);
    }
}

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

}  // namespace

View::View(Document& document, std::function<void()> told)
    : TWindow(static_cast<TWindow*>(nullptr)), m_document(document), m_told(std::move(told)) {
    Attr.Style |= WS_HSCROLL | WS_VSCROLL;
    UseTool(CM_TOOL_SELECT);
}

void View::GetWindowClass(WNDCLASSA& windowClass) {
    TWindow::GetWindowClass(windowClass);
    windowClass.style |= CS_DBLCLKS;
    windowClass.hCursor = nullptr;
}

void View::SetupWindow() {
    TWindow::SetupWindow();
    Tell();
}

void View::BeginAnew() {
    m_selected = none;
    m_preview = nullptr;
    UseTool(CM_TOOL_SELECT);
    m_scroller.MoveTo(GetHandle(), {});
    Tell();
}

std::string View::Status() const {
    const FigurePointer figure = m_preview != nullptr ? m_preview : SelectedFigure();
    return figure != nullptr ? figure->Describe() : m_tool->Hint();
}

void View::Paint(owl::TDC& dc, bool, owl::TRect& rect) {
    m_sheet.Resize(GetClientRect().Size());
    m_port.Open();
    DrawAll();
    m_port.Close();
    m_sheet.CopyTo(dc, rect);
}

void View::DrawAll() {
    if (!m_port.IsOpen()) {
        return;
    }
    const owl::TRect seen = Visible();
    m_port.GetDC()->SetWindowOrg(seen.TopLeft());
    LVXRectangle paper(RectCorners, seen.left, seen.top, seen.right, seen.bottom);
    m_port.eraseRegion(&paper);
    DrawFigures();
    m_tool->Draw(m_port);
}

void View::DrawFigures() {
    for (std::size_t i = 0; i < Contents().size(); ++i) {
        const bool isPreviewed = m_preview != nullptr && static_cast<int>(i) == m_selected;
        (isPreviewed ? m_preview : Contents()[i])->Draw(m_port);
    }
    const FigurePointer marked = m_preview != nullptr ? m_preview : SelectedFigure();
    if (marked != nullptr) {
        DrawMarks(m_port, *marked);
    }
}

owl::TRect View::Visible() const {
    return {m_scroller.Origin(), GetClientRect().Size()};
}

owl::TPoint View::OnSheet(const owl::TPoint& point) const {
    return point.OffsetBy(m_scroller.Origin().x, m_scroller.Origin().y);
}

owl::TRect View::ContentBounds() const {
    return United(BoundsOf(Contents()), {});
}

FigurePointer View::SelectedFigure() const {
    return m_selected == none ? nullptr : Contents()[static_cast<std::size_t>(m_selected)];
}

void View::Tell() {
    if (IsWindow()) {
        m_scroller.Fit(GetHandle(), ContentBounds());
    }
    Redraw();
    m_told();
}

void View::Select(int index) {
    m_selected = index;
    Tell();
}

void View::Preview(const FigurePointer& figure) {
    m_preview = figure;
    Redraw();
    m_told();
}

void View::HidePreview() {
    m_preview = nullptr;
    Redraw();
}

void View::Edit(Figures figures, int selected) {
    m_preview = nullptr;
    m_document.Edit(std::move(figures));
    m_selected = selected;
    Tell();
}

void View::Replace(const FigurePointer& figure) {
    Figures figures = Contents();
    figures[static_cast<std::size_t>(m_selected)] = figure;
    Edit(std::move(figures), m_selected);
}

void View::Add(const FigurePointer& figure) {
    Figures figures = Contents();
    figures.push_back(figure);
    const auto last = static_cast<int>(figures.size()) - 1;
    UseTool(CM_TOOL_SELECT);
    Edit(std::move(figures), last);
}

void View::UseTool(int command) {
    m_formerTool = std::exchange(m_tool, MakeTool(command, *this));
    m_toolCommand = command;
}

bool View::EvEraseBkgnd(HDC) {
    return true;  // Paint covers all.
}

void View::EvSize(UINT how, const owl::TSize& size) {
    TWindow::EvSize(how, size);
    Tell();
}

void View::EvHScroll(UINT code, UINT, HWND) {
    if (m_scroller.Answer(GetHandle(), SB_HORZ, code)) {
        Redraw();
    }
}

void View::EvVScroll(UINT code, UINT, HWND) {
    if (m_scroller.Answer(GetHandle(), SB_VERT, code)) {
        Redraw();
    }
}

LRESULT View::EvMouseWheel(WPARAM wParam, LPARAM) {
    const bool isUp = static_cast<short>(HIWORD(wParam)) > 0;
    for (int line = 0; line < 3; ++line) {
        EvVScroll(isUp ? SB_LINEUP : SB_LINEDOWN, 0, nullptr);
    }
    return 0;
}

void View::EvLButtonDown(UINT, const owl::TPoint& point) {
    SetFocus();
    SetCapture();
    m_isPressed = true;
    m_tool->Press(OnSheet(point));
}

void View::EvMouseMove(UINT, const owl::TPoint& point) {
    if (m_isPressed) {
        m_tool->Drag(OnSheet(point));
    } else {
        m_tool->Hover(OnSheet(point));
    }
}

void View::EvLButtonUp(UINT, const owl::TPoint& point) {
    if (std::exchange(m_isPressed, false)) {
        ReleaseCapture();
        m_tool->Release(OnSheet(point));
    }
}

void View::EvLButtonDblClk(UINT, const owl::TPoint& point) {
    m_tool->DoubleClick(OnSheet(point));
}

// Another window took the mouse: a message box, another program.
LRESULT View::EvCaptureChanged(WPARAM, LPARAM lParam) {
    const bool isLost = reinterpret_cast<HWND>(lParam) != GetHandle();
    if (isLost && std::exchange(m_isPressed, false)) {
        m_tool->Cancel();
    }
    return 0;
}

bool View::EvSetCursor(HWND window, UINT hit, UINT message) {
    if (hit != HTCLIENT) {
        return TWindow::EvSetCursor(window, hit, message);
    }
    owl::TPoint point;
    GetCursorPos(point);
    ScreenToClient(point);
    ::SetCursor(::LoadCursorA(nullptr, m_tool->Cursor(OnSheet(point))));
    return true;
}

void View::EvKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == VK_TAB) {
        SelectNeighbour(IsDown(VK_SHIFT) ? -1 : 1);
    } else if (key == VK_RETURN) {
        m_tool->Finish();
    } else if (key == VK_ESCAPE) {
        if (!m_tool->Cancel()) {
            UseTool(CM_TOOL_SELECT);
            Select(none);
        }
        m_isPressed = false;
        ReleaseCapture();
        Tell();
    } else if (!AnswerArrow(key)) {
        TWindow::EvKeyDown(key, repeat, flags);
    }
}

bool View::AnswerArrow(UINT key) {
    const int way = IsDown(VK_CONTROL) ? 1 : m_preferred.step;
    switch (key) {
        case VK_LEFT:
            Nudge({-way, 0});
            return true;
        case VK_RIGHT:
            Nudge({way, 0});
            return true;
        case VK_UP:
            Nudge({0, -way});
            return true;
        case VK_DOWN:
            Nudge({0, way});
            return true;
        case VK_PRIOR:
            EvVScroll(SB_PAGEUP, 0, nullptr);
            return true;
        case VK_NEXT:
            EvVScroll(SB_PAGEDOWN, 0, nullptr);
            return true;
        case VK_HOME:
            EvVScroll(SB_TOP, 0, nullptr);
            return true;
        case VK_END:
            EvVScroll(SB_BOTTOM, 0, nullptr);
            return true;
        default:
            return false;
    }
}

// With nothing selected the arrows scroll.
void View::Nudge(const owl::TSize& way) {
    const FigurePointer selected = SelectedFigure();
    if (selected == nullptr) {
        if (m_scroller.MoveTo(GetHandle(), m_scroller.Origin() + way)) {
            Redraw();
        }
        return;
    }
    const std::shared_ptr<Figure> moved = selected->Clone();
    moved->MoveBy(way);
    Replace(moved);
    ShowSelection();
}

void View::SelectNeighbour(int step) {
    const auto count = static_cast<int>(Contents().size());
    if (count == 0) {
        return;
    }
    const int before = m_selected == none && step < 0 ? 0 : m_selected;
    SelectFigure((before + step + count) % count);
}

void View::SelectFigure(int index) {
    Select(index);
    ShowSelection();
}

// Scrolls as far as is needed to see it, its upper left corner first.
void View::ShowSelection() {
    const FigurePointer figure = SelectedFigure();
    const owl::TRect seen = Visible();
    if (figure == nullptr) {
        return;
    }
    const owl::TRect bounds = figure->Bounds();
    owl::TPoint origin = m_scroller.Origin();
    origin.x = std::min(std::max<LONG>(origin.x, bounds.right - seen.Width()), bounds.left);
    origin.y = std::min(std::max<LONG>(origin.y, bounds.bottom - seen.Height()), bounds.top);
    if (!(origin == m_scroller.Origin()) && m_scroller.MoveTo(GetHandle(), origin)) {
        Redraw();
    }
}

}  // namespace sketch
