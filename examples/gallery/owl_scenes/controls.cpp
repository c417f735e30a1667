#include "gallery.h"
#include "owl/application.h"
#include "owl/button.h"
#include "owl/combo_box.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "owl/frame_window.h"
#include "owl/scroll_bar.h"
#include "resource_ids.h"
#include "scenes.h"

namespace gallery {

namespace {

class Controls : public owl::TDialog {
public:
    explicit Controls(owl::TWindow* parent)
        : TDialog(parent, IDD_CONTROLS),
          m_centred(new owl::TStatic(this, IDC_CENTRED)),
          m_third(new owl::TCheckBox(this, IDC_THIRD)),
          m_horizontal(new owl::TScrollBar(this, IDC_HORIZONTAL)),
          m_vertical(new owl::TScrollBar(this, IDC_VERTICAL)) {
        new owl::TGroupBox(this, IDC_BOXES);
        new owl::TButton(this, IDC_DISABLED_BUTTON);
    }

    void SetupWindow() override {
        TDialog::SetupWindow();
        m_centred->SetText("- in the middle -");
        FillFields();
        FillLists();
        CheckBoxes();
        m_horizontal->SetRange(0, 100);
        m_horizontal->SetPosition(30);
        m_vertical->SetRange(0, 100);
        m_vertical->SetPosition(75);
    }
    // The focus is where no caret blinks.
    bool EvInitDialog(HWND focus) override {
        TDialog::EvInitDialog(focus);
        ::SetFocus(GetDlgItem(IDOK));
        return false;
    }

private:
    void FillFields() {
        SetDlgItemText(IDC_EDIT, "a text");
        SetDlgItemText(IDC_SECRET, "secret");
        SetDlgItemText(IDC_READ_ONLY, "only to be read");
        SetDlgItemText(IDC_DISABLED_EDIT, "disabled");
        SetDlgItemText(IDC_LINES,
                       "First line\r\nSecond line\r\nThird line, which is too long for one\r\nFourth");
    }
    void FillLists() {
        for (const int id : {IDC_LIST, IDC_DISABLED_LIST})
            FillList(id, LB_ADDSTRING, LB_SETCURSEL);
        for (const int id : {IDC_COMBO, IDC_FIELD_COMBO, IDC_SIMPLE_COMBO})
            FillList(id, CB_ADDSTRING, CB_SETCURSEL);
    }
    void FillList(int id, UINT add, UINT select) {
        for (const char* fruit : {"apple", "cherry", "fig", "lemon", "peach", "pear", "plum", "quince"})
            SendDlgItemMessage(id, add, 0, reinterpret_cast<LPARAM>(fruit));
        SendDlgItemMessage(id, select, 1);
    }
    void CheckBoxes() {
        CheckDlgButton(IDC_CHECKED, BST_CHECKED);
        m_third->SetCheck(BST_INDETERMINATE);
        CheckDlgButton(IDC_DISABLED_CHECK, BST_CHECKED);
        CheckDlgButton(IDC_OTHER_RADIO, BST_CHECKED);
    }

    owl::TStatic* m_centred;
    owl::TCheckBox* m_third;
    owl::TScrollBar* m_horizontal;
    owl::TScrollBar* m_vertical;
};

}  // namespace

void ShowControls() {
    owl::TApplication application("gallery");
    application.SetMainWindow(new owl::TFrameWindow(nullptr, "Sketch"));
    application.InitInstance();
    Controls dialog(application.GetMainWindow());
    PoseWhenInFront("Controls");
    dialog.Execute();
}

void ShowMessageBox() {
    owl::TApplication application("gallery");
    application.SetMainWindow(new owl::TFrameWindow(nullptr, "Sketch"));
    application.InitInstance();
    PoseWhenInFront("Save");
    application.GetMainWindow()->MessageBox(
        "The drawing has changed.\n\nDo you want to keep what you have drawn?", "Save",
        MB_YESNOCANCEL | MB_ICONQUESTION);
}

}  // namespace gallery
