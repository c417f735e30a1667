// The line along the lower edge of the frame. Its window text is what it shows.
#pragma once

#include "owl/window.h"

namespace sketch {

class StatusLine : public owl::TWindow {
public:
    explicit StatusLine(owl::TWindow* parent);

    void Show(const std::string& text);
    void Paint(owl::TDC& dc, bool erase, owl::TRect& rect) override;

private:
    void GetWindowClass(WNDCLASSA& windowClass) override;
};

}  // namespace sketch
