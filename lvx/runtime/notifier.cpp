#include "lvx/runtime/notifier.h"

#include <windows.h>

#include "owl/geometry.h"
#include "owl/window.h"

namespace {

constinit LVXNotifier notifier;

owl::TPoint cursor_position() {
    owl::TPoint position;
    owl::TWindow::GetCursorPos(position);
    return position;
}

void put(int value, int* place) {
    if (place != nullptr) {
        *place = value;
    }
}

}  // namespace

constinit LVXNotifier* const _notifier = &notifier;

void LVXNotifier::getCursorPos(int* x, int* y) const {
    const owl::TPoint position = cursor_position();
    put(position.x, x);
    put(position.y, y);
}

owl::TWindow* LVXNotifier::whereIsMouse() const {
    return owl::GetWindowPtr(owl::TWindow::WindowFromPoint(cursor_position()));
}

void LVXNotifier::setFocus(owl::TWindow* window) const {
    if (window != nullptr) {
        window->SetFocus();
    }
}

void LVXNotifier::getScreenSize(int* width, int* height) const {
    put(::GetSystemMetrics(SM_CXSCREEN), width);
    put(::GetSystemMetrics(SM_CYSCREEN), height);
}
