#include <windows.h>

#include <cstdarg>
#include <string>

#include "lvx/text/report.h"
#include "lvx/text/report_text.h"
#include "owl/application.h"
#include "owl/frame_window.h"
#include "owl/window.h"

namespace {

using lvx::text::ReportText;

constexpr const char* plain_caption = "Error";

/// Gives the front back to the window that has it now, unless that is gone by then.
class KeptForeground {
public:
    KeptForeground() : m_window(::GetForegroundWindow()) {}
    KeptForeground(const KeptForeground&) = delete;
    KeptForeground& operator=(const KeptForeground&) = delete;
    ~KeptForeground() {
        if (::IsWindow(m_window) != 0) {
            ::SetForegroundWindow(m_window);
        }
    }

private:
    HWND m_window;
};

std::string caption_of(const owl::TApplication* application) {
    return application != nullptr ? application->GetName() : plain_caption;
}

void bring_main_window_to_front(const owl::TApplication* application) {
    const owl::TFrameWindow* const main = application != nullptr ? application->GetMainWindow() : nullptr;
    if (main != nullptr && main->IsWindow()) {
        ::SetForegroundWindow(main->GetHandle());
    }
}

// While the box is open anything may end, the window and the application too: neither is touched behind it.
void show_above(owl::TWindow& window, const ReportText& text) {
    const KeptForeground foreground;
    const owl::TApplication* const application = window.GetApplication();
    const std::string caption = caption_of(application);
    bring_main_window_to_front(application);
    window.MessageBox(text.c_str(), caption.c_str(), MB_ICONEXCLAMATION);
}

}  // namespace

void report_error(owl::TWindow* window, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const ReportText text(format, arguments);
    va_end(arguments);
    if (window != nullptr) {
        show_above(*window, text);
    } else {
        ::MessageBoxExA(nullptr, text.c_str(), plain_caption, MB_ICONEXCLAMATION, 0);
    }
}
