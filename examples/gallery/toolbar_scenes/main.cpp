// A bar of buttons as its user sees it: at rest, under the mouse, pressed.
#include "gallery.h"
#include "shown_program.h"
#include "support/user.h"

namespace {

class Toolbar : public gallery::ShownProgram {
public:
    Toolbar() : ShownProgram("toolbar.exe", "Toolbar") {}

    /// The middle of the green button, on the screen.
    POINT Green() const {
        POINT middle{38, 14};
        ::ClientToScreen(Frame(), &middle);
        return middle;
    }
    /// Lets the mouse rest there until the tip shows.
    HWND Rest() const {
        // Two moves: a tip comes where the mouse has moved to and then rests.
        user::MoveTo(Green().x - 1, Green().y);
        ::Sleep(100);
        user::MoveTo(Green().x, Green().y);
        return WaitFor("tooltips_class32", nullptr);
    }
    void Pose() const { gallery::Pose(gallery::PlaceOf(Frame())); }
};

void ShowRest() {
    const Toolbar toolbar;
    toolbar.Pose();
}

void ShowTip() {
    const Toolbar toolbar;
    toolbar.Rest();
    toolbar.Pose();
}

void ShowPressed() {
    const Toolbar toolbar;
    const HWND tip = toolbar.Rest();
    user::PressLeft(toolbar.Green().x, toolbar.Green().y);
    user::WaitUntil([&] { return !::IsWindowVisible(tip); });
    toolbar.Pose();
    user::ReleaseLeft(0, 0);
}

void ShowPainted() {
    const Toolbar toolbar;
    user::Click(toolbar.Green().x, toolbar.Green().y);
    // A display may tell of the first move again, behind a second one that comes at once.
    ::Sleep(300);
    user::MoveTo(0, 0);
    toolbar.Pose();
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"toolbar-rest", "A bar of buttons, of which one is disabled", &ShowRest},
            {"toolbar-tip", "The mouse rests on one: a tip and a hint", &ShowTip},
            {"toolbar-pressed", "The same pressed", &ShowPressed},
            {"toolbar-painted", "What it does; the disabled one is enabled now", &ShowPainted},
        });
}
