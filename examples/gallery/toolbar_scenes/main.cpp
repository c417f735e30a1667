// A bar of buttons as its user sees it: at rest, under the mouse, pressed.
#include "gallery.h"
#include "shown_program.h"
#include "support/user.h"

namespace {

class Toolbar : public gallery::ShownProgram {
public:
    Toolbar() : ShownProgram("toolbar.exe", "Toolbar") {}

    /// Moves the mouse to the green button.
    void Point() const {
        POINT middle{38, 14};
        ::ClientToScreen(Frame(), &middle);
        // Two moves: a tip comes where the mouse has moved to and then rests.
        user::MoveTo(middle.x - 1, middle.y);
        ::Sleep(100);
        user::MoveTo(middle.x, middle.y);
    }
    void Pose() const { gallery::Pose(gallery::PlaceOf(Frame())); }
};

void ShowRest() {
    const Toolbar toolbar;
    toolbar.Pose();
}

void ShowTip() {
    const Toolbar toolbar;
    toolbar.Point();
    toolbar.WaitFor("tooltips_class32", nullptr);
    toolbar.Pose();
}

void ShowPressed() {
    const Toolbar toolbar;
    toolbar.Point();
    user::PressLeft();
    toolbar.Pose();
    user::ReleaseLeft();
}

void ShowPainted() {
    const Toolbar toolbar;
    toolbar.Point();
    user::PressLeft();
    user::ReleaseLeft();
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
