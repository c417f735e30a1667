#include "owl/application.h"

#include <utility>

#include "owl/error.h"
#include "owl/frame_window.h"
#include "owl/window_table.h"

namespace owl {

namespace {

TApplication* application_object = nullptr;

}  // namespace

TApplication::TApplication(const char* name, HINSTANCE instance, int showCommand)
    : TModule(name, instance), m_showCommand(showCommand) {
    if (application_object != nullptr)
        throw TXOwl("there is an application already");
    application_object = this;
}

TApplication::~TApplication() {
    SetMainWindow(nullptr);
    application_object = nullptr;
}

int TApplication::Run() {
    if (m_mainWindow == nullptr || !m_mainWindow->IsWindow())
        InitInstance();
    return TermInstance(MessageLoop());
}

void TApplication::InitInstance() {
    if (m_mainWindow == nullptr)
        InitMainWindow();
    if (m_mainWindow == nullptr)
        throw TXOwl("the application has made no main window");
    m_mainWindow->Create();
    m_mainWindow->ShowWindow(m_showCommand);
    m_mainWindow->UpdateWindow();
}

void TApplication::InitMainWindow() {
    SetMainWindow(new TFrameWindow(nullptr, GetName()));
}

int TApplication::TermInstance(int exitCode) {
    return exitCode;
}

bool TApplication::CanClose() {
    return m_mainWindow == nullptr || m_mainWindow->CanClose();
}

// An application that ends a main window's object to take another goes on: the former one posts no quit.
void TApplication::SetMainWindow(TFrameWindow* window) {
    if (window == m_mainWindow)
        return;
    m_mainWindowBase = window;
    delete std::exchange(m_mainWindow, window);
}

void TApplication::ForgetMainWindow(const TWindow& window) {
    if (!IsMainWindow(window))
        return;
    m_mainWindow = nullptr;
    m_mainWindowBase = nullptr;
}

bool TApplication::IdleAction(long idleCount) {
    bool more = false;
    if (m_mainWindow != nullptr && m_mainWindow->IsWindow())
        more = m_mainWindow->IdleAction(idleCount);
    for (const HWND handle : WindowsOfThisThread()) {
        TWindow* const window = FindWindowObject(handle);
        if (window != nullptr && window->Parent == nullptr && !IsMainWindow(*window))
            more = window->IdleAction(idleCount) || more;
    }
    return more;
}

TApplication* GetApplicationObject() {
    return application_object;
}

}  // namespace owl
