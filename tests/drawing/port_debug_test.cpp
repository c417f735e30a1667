// What a debug build tells the debugger. This program has the port's source built into it in that way.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "drawing/sheet.h"

using lvx_test::Sheet;

namespace {

std::string told;

LONG CALLBACK listen(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == DBG_PRINTEXCEPTION_C) {
        told += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

/// What is told to the debugger while it lives is in `told`.
class Debugger {
public:
    Debugger() : m_handler(::AddVectoredExceptionHandler(1, &listen)) { told.clear(); }
    Debugger(const Debugger&) = delete;
    Debugger& operator=(const Debugger&) = delete;
    ~Debugger() { ::RemoveVectoredExceptionHandler(m_handler); }

private:
    void* m_handler;
};

}  // namespace

TEST(PortDebug, that_ends_with_a_hosts_tools_says_so) {
    Sheet sheet;
    // They are not touched after the port has gone, not even to be deleted: they would reach for it.
    auto* const pen = new LVXPen;
    auto* const font = new LVXFont;
    const Debugger debugger;
    {
        LVX::Port port(sheet);
        port.usePen(pen);
        port.useFont(font);
        port.Open();
    }
    EXPECT_EQ(
        "LVX::Port: ends with a host's pen, font still in use; changing or ending that tool later would "
        "reach for the dead port\n",
        told);
    EXPECT_EQ(0, sheet.Users());
}

TEST(PortDebug, that_ends_with_its_own_tools_says_nothing) {
    Sheet sheet;
    LVXBrush brush;
    const Debugger debugger;
    {
        LVX::Port port(sheet);
        port.useBrush(&brush);
        port.Open();
        port.useBrush(nullptr);
    }
    EXPECT_EQ("", told);
}
