// The window that shows the document and through which it is edited. It draws all by one LVX::Port over a
// sheet in memory. Mouse and keys go to the tool of the moment; commands to edit are answered here, those
// about files by the frame.
#pragma once

#include <functional>
#include <memory>

#include "lvx/drawing/my_font.h"
#include "lvx/drawing/port.h"
#include "owl/window.h"
#include "sketch/frame/preferences.h"
#include "sketch/model/document.h"
#include "sketch/model/picture.h"
#include "sketch/model/properties.h"
#include "sketch/model/text.h"
#include "sketch/view/scroller.h"
#include "sketch/view/sheet.h"
#include "sketch/view/tool.h"

namespace owl {
class TCommandEnabler;
}

namespace sketch {

class View : public owl::TWindow, private Desk {
public:
    /// Shows `document`, which lives longer. `told` is called after each change of what there is, what is
    /// selected and which tool is in use.
    View(Document& document, std::function<void()> told);

    /// The document is another one.
    void BeginAnew();
    /// What is selected, or what the tool is for.
    std::string Status() const;
    /// The number of the selected figure; -1 if none is.
    int SelectedIndex() const { return m_selected; }
    /// Selects the figure of that number, and scrolls to it; -1 is none.
    void SelectFigure(int index);
    /// Of the selected figure; empty if none is.
    std::string SelectedDescription() const;
    /// Null if nothing with a pen and brush is selected.
    const Look* SelectedLook() const;
    /// Changes the pen and brush of the selected figure; false if it has none.
    bool ChangeLook(const std::function<void(Look&)>& change);
    /// Puts `figure` on top and selects it.
    void PutFigure(const FigurePointer& figure) { Add(figure); }
    const Look& LookToCome() const { return m_preferred.look; }
    const myFont& FontToCome() const { return m_preferred.font; }
    /// What shapes and texts to come are like, and how far arrows move.
    const Preferences& Preferred() const { return m_preferred; }
    void Prefer(const Preferences& preferences) { m_preferred = preferences; }
    void AddPicture(const std::string& file);

    void SetupWindow() override;
    void Paint(owl::TDC& dc, bool erase, owl::TRect& rect) override;

    bool EvEraseBkgnd(HDC dc);
    void EvSize(UINT how, const owl::TSize& size);
    void EvHScroll(UINT code, UINT position, HWND control);
    void EvVScroll(UINT code, UINT position, HWND control);
    void EvLButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvLButtonUp(UINT modifiers, const owl::TPoint& point);
    void EvLButtonDblClk(UINT modifiers, const owl::TPoint& point);
    void EvMouseMove(UINT modifiers, const owl::TPoint& point);
    bool EvSetCursor(HWND window, UINT hit, UINT message);
    void EvKeyDown(UINT key, UINT repeat, UINT flags);
    LRESULT EvMouseWheel(WPARAM wParam, LPARAM lParam);
    LRESULT EvCaptureChanged(WPARAM wParam, LPARAM lParam);

    // Commands, in view_commands.cpp and view_clipboard.cpp.
    void CmUndo();
    void CmRedo();
    void CmDelete();
    void CmCut();
    void CmCopy();
    void CmPaste();
    void CmDuplicate();
    void CmToFront();
    void CmToBack();
    void CmSelectNext() { SelectNeighbour(1); }
    void CmSelectPrevious() { SelectNeighbour(-1); }
    void CmSelectNone() { Select(none); }
    void CmLook();
    void CmProperties();
    void CmText();
    void CmTool(UINT command);
    void CmTurnLeft();
    void CmTurnRight();
    void CmTurn();
    void CmSkew();
    void CmStraighten();

    void CeUndo(owl::TCommandEnabler& enabler);
    void CeRedo(owl::TCommandEnabler& enabler);
    void CePaste(owl::TCommandEnabler& enabler);
    void CeSelection(owl::TCommandEnabler& enabler);
    void CeText(owl::TCommandEnabler& enabler);
    void CePicture(owl::TCommandEnabler& enabler);
    void CeFigures(owl::TCommandEnabler& enabler);
    void CeTool(owl::TCommandEnabler& enabler);

private:
    static constexpr int none = -1;

    const Figures& Contents() const override { return m_document.Contents(); }
    int Selected() const override { return m_selected; }
    void Select(int index) override;
    void Preview(const FigurePointer& figure) override;
    void HidePreview() override;
    void Replace(const FigurePointer& figure) override;
    void Add(const FigurePointer& figure) override;
    void AddText(const owl::TPoint& place) override;
    void ChangeSelected() override;
    const Look& CurrentLook() const override { return m_preferred.look; }
    void Redraw() override { Invalidate(false); }
    owl::TRect Visible() const override;

    void GetWindowClass(WNDCLASSA& windowClass) override;

    void DrawAll();
    void DrawFigures();
    void Edit(Figures figures, int selected);
    /// After every change: bars, picture and frame are brought up to date.
    void Tell();
    void UseTool(int command);
    void SelectNeighbour(int step);
    /// To another place between the lowest and the topmost figure.
    void MoveSelected(int index);
    bool CopySelected();
    void Place(Figure& pasted) const;
    void MoveToMiddle(Figure& figure) const;
    /// In a box.
    void TellUser(const char* text);
    void Nudge(const owl::TSize& way);
    bool AnswerArrow(UINT key);
    void ShowSelection();
    owl::TRect ContentBounds() const;
    owl::TPoint OnSheet(const owl::TPoint& point) const;
    FigurePointer SelectedFigure() const;
    Properties PropertiesToCome() const;
    const Picture* SelectedPicture() const;
    const Text* SelectedText() const;
    template <class Change>
    void ChangePicture(const Change& change);
    void TurnByDegrees(double degrees);

    Document& m_document;
    std::function<void()> m_told;
    Sheet m_sheet;
    // Behind the sheet, which it draws on.
    LVX::Port m_port{m_sheet};
    Scroller m_scroller;
    Preferences m_preferred;
    int m_selected = none;
    FigurePointer m_preview;
    std::unique_ptr<Tool> m_tool;
    // A tool may be exchanged by what it calls itself: it lives until the next exchange.
    std::unique_ptr<Tool> m_formerTool;
    int m_toolCommand = 0;
    bool m_isPressed = false;

    DECLARE_RESPONSE_TABLE(View);
};

}  // namespace sketch
