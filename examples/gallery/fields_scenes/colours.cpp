#include <lvx/lvx.h>
#include <owl/application.h>
#include <owl/frame_window.h>

#include "gallery.h"
#include "scenes.h"

namespace gallery {

namespace {

void ShowColour(owl::TColor colour, const char* name) {
    owl::TApplication application("gallery");
    application.SetMainWindow(new owl::TFrameWindow(nullptr, "Sketch"));
    application.InitInstance();
    std::string text = name != nullptr ? name : "";
    PoseWhenInFront("Colour");
    LVXCustomColourDlg(application.GetMainWindow(), colour, name != nullptr ? &text : nullptr, nullptr)
        .Execute();
}

}  // namespace

void ShowColourDialog() {
    ShowColour(owl::TColor(178, 34, 34), nullptr);
}

void ShowNamedColour() {
    ShowColour(owl::TColor(0, 128, 192), "Lake in the morning");
}

void ShowGrey() {
    ShowColour(owl::TColor(192, 192, 192), nullptr);
}

}  // namespace gallery
