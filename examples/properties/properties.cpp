// A window with a box in it, whose line and fill are set in a dialog with tabs. docs/property-dialogs.md
// tells how that is made.
#include <cstdint>
#include <cstdlib>

#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "owl/application.h"
#include "owl/brush.h"
#include "owl/button.h"
#include "owl/dc.h"
#include "owl/edit.h"
#include "owl/frame_window.h"
#include "owl/pen.h"

#include "properties_ids.h"

class LinePage : public LVXPropertyPage {
public:
    LinePage() : LVXPropertyPage(IDD_LINE, nullptr) {
        new owl::TEdit(this, IDC_WIDTH, sizeof data.width);
        SetTransferBuffer(&data, sizeof data);
    }
    bool BeforeLeaving() override { return HasGoodWidth(); }
    bool CanPageClose() override { return !IsWindow() || HasGoodWidth(); }

    struct {
        char width[4] = "3";
    } data;

private:
    bool HasGoodWidth() {
        const int width = std::atoi(GetDlgItemText(IDC_WIDTH).c_str());
        if (width >= 1 && width <= 40)
            return true;
        MessageBox("The width is a number from 1 to 40.", "Line", MB_OK | MB_ICONEXCLAMATION);
        return false;
    }
};

class FillPage : public LVXPropertyPage {
public:
    FillPage() : LVXPropertyPage(IDD_FILL, nullptr) {
        for (const int button : {IDC_RED, IDC_GREEN, IDC_BLUE})
            new owl::TRadioButton(this, button);
        SetTransferBuffer(&data, sizeof data);
    }
    owl::TColor Colour() const {
        return data.red != 0     ? owl::TColor::LtRed
               : data.green != 0 ? owl::TColor::LtGreen
                                 : owl::TColor::LtBlue;
    }

    struct {
        std::uint16_t red = BST_CHECKED;
        std::uint16_t green = BST_UNCHECKED;
        std::uint16_t blue = BST_UNCHECKED;
    } data;
};

class BoxWindow : public owl::TFrameWindow {
public:
    BoxWindow() : TFrameWindow(nullptr, "Box") {
        Attr.Menu = IDM_PROPERTIES;
        Attr.AccelTable = IDA_PROPERTIES;
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        const owl::TPen pen(owl::TColor::Black, std::atoi(m_line.data.width));
        const owl::TBrush brush(m_fill.Colour());
        dc.SelectObject(pen);
        dc.SelectObject(brush);
        dc.Rectangle(60, 40, 200, 120);
        dc.RestoreObjects();
    }
    void CmProperties() {
        TPropertyDialog dialog(this, IDD_PROPERTIES, Tab::WideMargins | Tab::CreateOnDemandAndKeepIt,
                               nullptr);
        dialog.Add("&Line", &m_line);
        dialog.Add("&Fill", &m_fill);
        if (dialog.Execute() == IDOK)
            Invalidate();
    }
    void CmExit() { CloseWindow(); }

    DECLARE_RESPONSE_TABLE(BoxWindow);
    LinePage m_line;
    FillPage m_fill;
};

DEFINE_RESPONSE_TABLE1(BoxWindow, owl::TFrameWindow)
    EV_COMMAND(CM_PROPERTIES, CmProperties), EV_COMMAND(CM_EXIT, CmExit),
END_RESPONSE_TABLE;

int main() {
    owl::TApplication box("Box");
    box.SetMainWindow(new BoxWindow);
    return box.Run();
}
