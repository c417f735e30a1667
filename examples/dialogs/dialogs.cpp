// A text, and the dialogs that say what it is like. docs/dialogs.md tells how it is made.
#include "lvx/controls/bitmaps.h"
#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/file_dialogs.h"
#include "lvx/controls/font_dialog.h"
#include "lvx/controls/yn_dialog.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/my_font.h"
#include "owl/application.h"
#include "owl/bitmap.h"
#include "owl/button.h"
#include "owl/dc.h"
#include "owl/frame_window.h"
#include "owl/memory_dc.h"

#include "dialogs_ids.h"

class Settings : public LVXCentredDialog {
public:
    explicit Settings(owl::TWindow* parent) : LVXCentredDialog(parent, IDD_SETTINGS, nullptr) {
        new owl::TCheckBox(this, IDC_LOUD);
        SetTransferBuffer(&data, sizeof data);
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        owl::TRect place(14, 14, 38, 38);
        MapDialogRect(place);
        const LVXBitmap& picture = *bitmaps::question();
        owl::TMemoryDC memory(dc);
        memory.SelectObject(*static_cast<owl::TBitmap*>(picture));
        dc.BitBlt(place.left, place.top, picture.GetWidth(), picture.GetHeight(), memory, 0, 0);
    }

    struct {
        std::uint16_t loud = BST_UNCHECKED;
    } data;
};

class Dialogs : public owl::TFrameWindow {
public:
    Dialogs() : TFrameWindow(nullptr, "Dialogs") { Attr.Menu = IDM_DIALOGS; }

    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        LVXFont* const font = m_font.make_font();
        dc.SelectObject(static_cast<owl::TFont&>(*font));
        dc.TextOut(20, 20, m_text + (m_loud ? "!" : "."));
        dc.RestoreFont();
        font->free();
    }

    void CmSettings() {
        Settings settings(this);
        settings.data.loud = m_loud ? BST_CHECKED : BST_UNCHECKED;
        if (settings.Execute() == IDOK)
            m_loud = settings.data.loud == BST_CHECKED;
        Invalidate();
    }

    void CmFont() {
        FontOptionsEnum::FontOptions options = FontOptionsEnum::Face | FontOptionsEnum::Size;
        if (fontDialog::dialog(this, m_font, options, false))
            Invalidate();
    }

    void CmOpen() {
        owl::TOpenSaveDialog::TData data(OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                                         "Texts (*.txt)|*.txt|All files|*.*");
        if (LVXFileOpenDialog(this, data, owl::TResId(), "Open a text", nullptr).Execute() == IDOK)
            Show(data.FileName);
    }

    void CmDelete() {
        const yesNoCancel answer = ynDialog::dialog(this, false, yesNoCancel::no, "Delete all %d letters?",
                                                    static_cast<int>(m_text.size()));
        if (answer == yesNoCancel::yes)
            Show("");
    }

    DECLARE_RESPONSE_TABLE(Dialogs);
    void Show(const std::string& text) {
        m_text = text;
        Invalidate();
    }
    std::string m_text = "Something to read";
    bool m_loud = false;
    myFont m_font{"Arial", 14, false, false, false, false};
};

DEFINE_RESPONSE_TABLE1(Dialogs, owl::TFrameWindow)
    EV_COMMAND(CM_SETTINGS, CmSettings), EV_COMMAND(CM_FONT, CmFont), EV_COMMAND(CM_OPEN, CmOpen),
        EV_COMMAND(CM_DELETE, CmDelete),
END_RESPONSE_TABLE;

int main() {
    owl::TApplication program("Dialogs");
    program.SetMainWindow(new Dialogs);
    return program.Run();
}
