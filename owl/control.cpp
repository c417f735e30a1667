#include "owl/control.h"

namespace owl {

TControl::TControl() = default;

TControl::TControl(TWindow* parent, int id, const char* title, int x, int y, int w, int h, TModule* module) {
    Init(parent, id, title, x, y, w, h, module);
}

TControl::TControl(TWindow* parent, int resourceId, TModule* module) {
    Init(parent, resourceId, module);
}

TControl::~TControl() = default;

void TControl::Init(TWindow* parent, int id, const char* title, int x, int y, int w, int h, TModule* module) {
    TWindow::Init(parent, title, module);
    Attr.Id = id;
    Attr.X = x;
    Attr.Y = y;
    Attr.W = w;
    Attr.H = h;
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP;
}

void TControl::Init(TWindow* parent, int resourceId, TModule* module) {
    TWindow::Init(parent, nullptr, module);
    Attr.Id = resourceId;
    SetFlag(wfFromResource);
    EnableTransfer();
}

}  // namespace owl
