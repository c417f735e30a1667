#include "owl/mdi.h"

#include "gallery.h"
#include "owl/application.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "resource_ids.h"
#include "scenes.h"

namespace gallery {

namespace {

// A document: ellipses of one colour.
class Document : public owl::TMDIChild {
public:
    Document(owl::TMDIClient& client, const char* title, owl::TColor color)
        : TMDIChild(client, title), m_color(color) {
        Attr.W = 220;
        Attr.H = 150;
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        const owl::TBrush brush(m_color);
        dc.SelectObject(brush);
        for (int i = 0; i < 4; ++i)
            dc.Ellipse(12 + i * 24, 10 + i * 12, 92 + i * 24, 60 + i * 12);
    }

private:
    owl::TColor m_color;
};

void Show(bool maximised) {
    owl::TApplication application("gallery");
    auto* const frame = new owl::TMDIFrame("Sketch", IDM_GALLERY, nullptr, 1);
    frame->Attr.W = 460;
    frame->Attr.H = 330;
    application.SetMainWindow(frame);
    application.InitInstance();
    const struct {
        const char* title;
        owl::TColor color;
    } documents[] = {{"one.drw", owl::TColor::LtRed},
                     {"two.drw", owl::TColor::LtGreen},
                     {"three.drw", owl::TColor::LtBlue}};
    for (const auto& document : documents)
        (new Document(*frame->GetClientWindow(), document.title, document.color))->Create();
    if (maximised)
        frame->GetClientWindow()->GetActiveMDIChild()->ShowWindow(SW_MAXIMIZE);
    PoseWhenInFront(frame->GetWindowText().c_str());
    application.Run();
}

}  // namespace

void ShowMdi() {
    Show(false);
}

void ShowMdiMaximised() {
    Show(true);
}

}  // namespace gallery
