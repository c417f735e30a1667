// A framed window with a menu, a dialog and an icon. docs/owl.md tells step by step how it is made.
#include "owl/application.h"
#include "owl/button.h"
#include "owl/command_enabler.h"
#include "owl/dc.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "owl/frame_window.h"

#include "hello_ids.h"

class GreetDialog : public owl::TDialog {
public:
    explicit GreetDialog(owl::TWindow* parent) : TDialog(parent, IDD_GREET) {
        new owl::TEdit(this, IDC_NAME, sizeof data.name);
        new owl::TCheckBox(this, IDC_LOUD);
        SetTransferBuffer(&data, sizeof data);
    }
    struct {
        char name[40] = "world";
        std::uint16_t loud = BST_UNCHECKED;
    } data;
};

class HelloWindow : public owl::TFrameWindow {
public:
    HelloWindow() : TFrameWindow(nullptr, "Hello") {
        Attr.Menu = IDM_HELLO;
        Attr.AccelTable = IDA_HELLO;
        SetIcon(GetModule(), IDI_HELLO);
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override { dc.TextOut(20, 20, m_greeting); }
    void Show(const std::string& greeting) {
        m_greeting = greeting;
        Invalidate();
    }
    void CmGreet() {
        GreetDialog dialog(this);
        if (dialog.Execute() == IDOK)
            Show(std::string("Hello, ") + dialog.data.name + (dialog.data.loud == BST_CHECKED ? "!" : "."));
    }
    void CmClear() { Show(""); }
    void CeClear(owl::TCommandEnabler& enabler) { enabler.Enable(!m_greeting.empty()); }
    void CmExit() { CloseWindow(); }

    DECLARE_RESPONSE_TABLE(HelloWindow);
    std::string m_greeting;
};

DEFINE_RESPONSE_TABLE1(HelloWindow, owl::TFrameWindow)
    EV_COMMAND(CM_GREET, CmGreet), EV_COMMAND(CM_CLEAR, CmClear), EV_COMMAND(CM_EXIT, CmExit),
        EV_COMMAND_ENABLE(CM_CLEAR, CeClear),
END_RESPONSE_TABLE;

int main() {
    owl::TApplication hello("Hello");
    hello.SetMainWindow(new HelloWindow);
    return hello.Run();
}
