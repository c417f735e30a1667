// Fields, lists and the dialog for colours, and the program of docs/controls.md.
#include <stdexcept>

#include "gallery.h"
#include "scenes.h"
#include "support/other_program.h"
#include "support/user.h"

namespace {

void ShowPaints() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    const user::OtherProgram paints(program.substr(0, program.rfind('\\') + 1) + "paints.exe");
    const HWND window = user::WaitForShown(nullptr, "Paints");
    if (window == nullptr || !user::WaitUntilInFront(window))
        throw std::runtime_error("paints.exe does not show");
    user::Press({VK_MENU, 'O'});
    user::WaitUntil([&] { return user::TextOf(::GetDlgItem(window, 107)) != ""; });
    gallery::Pose(gallery::PlaceOf(window));
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"fields", "Fields, lists and labels of dialogs, in their states", &gallery::ShowFields},
            {"paints", "A program with them: the shop of the manual, which has an order", &ShowPaints},
            {"colour-dialog", "The dialog for colours", &gallery::ShowColourDialog},
            {"colour-dialog-name", "The same where the colour is to get a name", &gallery::ShowNamedColour},
            {"colour-dialog-grey", "The same with a grey, which has no saturation", &gallery::ShowGrey},
        });
}
