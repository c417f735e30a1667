// The program of the framework's tutorial, as its user sees it.
#include "gallery.h"
#include "shown_program.h"
#include "support/user.h"

namespace {

class Hello : public gallery::ShownProgram {
public:
    Hello() : ShownProgram("hello.exe", "Hello") {}

    HWND OpenDialog() const {
        user::Press({VK_CONTROL, 'G'});
        const HWND dialog = WaitFor(user::dialog_class, "Greet");
        user::WaitUntilInFront(dialog);
        return dialog;
    }
};

void ShowMenu() {
    const Hello hello;
    user::Press({VK_MENU, 'H'});
    hello.WaitFor(user::drop_down_class, nullptr);
    gallery::Pose(gallery::PlaceOf(hello.Frame()));
}

void ShowDialog() {
    const Hello hello;
    gallery::Pose(gallery::PlaceOf(hello.OpenDialog()));
}

void ShowGreeting() {
    const Hello hello;
    const HWND dialog = hello.OpenDialog();
    user::Press({VK_MENU, 'L'});
    user::Press({VK_RETURN});
    user::WaitUntil([&] { return !::IsWindow(dialog); });
    user::WaitUntilInFront(hello.Frame());
    gallery::Pose(gallery::PlaceOf(hello.Frame()));
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"hello-menu", "The tutorial's program, its menu open", &ShowMenu},
            {"hello-dialog", "Its dialog, with a default button and the focus in the field", &ShowDialog},
            {"hello-greeting", "What it says then", &ShowGreeting},
        });
}
