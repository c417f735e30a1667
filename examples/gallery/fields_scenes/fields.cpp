#include <lvx/lvx.h>
#include <owl/application.h>
#include <owl/frame_window.h>

#include <iterator>

#include "gallery.h"
#include "resource_ids.h"
#include "scenes.h"

namespace gallery {

namespace {

class Fields : public LVXCentredDialog {
public:
    explicit Fields(owl::TWindow* parent) : LVXCentredDialog(parent, IDD_FIELDS, nullptr) {
        for (int i = 0; i < 3; ++i) {
            m_texts[i] = new LVXEdit(this, IDC_PLAIN + i);
            m_floats[i] = new LVXFloatEdit(this, IDC_FLOAT + i);
            m_ints[i] = new LVXIntEdit(this, IDC_INT + i, -5, 5);
        }
        for (int i = 0; i < 2; ++i) {
            m_lists[i] = new LVXListBox(this, IDC_LIST + i);
            new LVXStatic(this, IDC_LABEL + i);
        }
        for (int i = 0; i < 4; ++i)
            m_combos[i] = new LVXComboBox(this, IDC_COMBO + i);
    }

    void SetupWindow() override {
        LVXCentredDialog::SetupWindow();
        for (LVXEdit* const field : m_texts)
            field->SetText("a text");
        for (LVXFloatEdit* const field : m_floats)
            field->SetValue(-1.25, 2);
        for (LVXIntEdit* const field : m_ints)
            field->SetValue(-3);
        for (LVXListBox* const list : m_lists)
            Fill(*list);
        for (LVXComboBox* const combo : m_combos)
            Fill(*combo);
    }
    // All of a field is selected while it has the focus: no caret blinks.
    bool EvInitDialog(HWND focus) override {
        LVXCentredDialog::EvInitDialog(focus);
        m_floats[0]->SetFocus();
        return false;
    }

private:
    static void Fill(owl::TListBox& list) {
        for (const char* fruit : {"apple", "cherry", "fig", "lemon", "peach", "pear"})
            list.AddString(fruit);
        list.SetSelIndex(1);
    }

    LVXEdit* m_texts[3];
    LVXFloatEdit* m_floats[3];
    LVXIntEdit* m_ints[3];
    LVXListBox* m_lists[2];
    LVXComboBox* m_combos[4];
};

}  // namespace

void ShowFields() {
    owl::TApplication application("gallery");
    application.SetMainWindow(new owl::TFrameWindow(nullptr, "Sketch"));
    application.InitInstance();
    PoseWhenInFront("Fields and lists");
    Fields(application.GetMainWindow()).Execute();
}

}  // namespace gallery
