// A dialog with tabs as its user sees it, above the window whose box it is about.
#include <algorithm>

#include "gallery.h"
#include "shown_program.h"
#include "support/user.h"

namespace {

class Properties : public gallery::ShownProgram {
public:
    Properties() : ShownProgram("properties.exe", "Box") {
        user::Press({VK_CONTROL, 'P'});
        m_dialog = WaitFor(user::dialog_class, "Properties");
        user::WaitUntilInFront(m_dialog);
    }
    void Press(std::initializer_list<WORD> keys) const {
        user::Press(keys);
        ::Sleep(300);
    }
    void Pose() const {
        const owl::TRect frame = gallery::PlaceOf(Frame());
        const owl::TRect dialog = gallery::PlaceOf(m_dialog);
        gallery::Pose(owl::TRect(std::min(frame.left, dialog.left), std::min(frame.top, dialog.top),
                                 std::max(frame.right, dialog.right), std::max(frame.bottom, dialog.bottom)));
    }

private:
    HWND m_dialog = nullptr;
};

void ShowStrip() {
    const Properties properties;
    properties.Press({VK_TAB});
    properties.Pose();
}

void ShowSecond() {
    const Properties properties;
    properties.Press({VK_CONTROL, VK_NEXT});
    properties.Pose();
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"properties", "A dialog with tabs; a field of its page has the keyboard", &ShowStrip},
            {"properties-second", "Another tab is selected, and has the keyboard", &ShowSecond},
        });
}
