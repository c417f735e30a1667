// owl/application.h
//
// The program: its module, its message loop and its main window.
//
//     class Hello : public owl::TApplication {
//         void InitMainWindow() override { SetMainWindow(new owl::TFrameWindow(nullptr, "Hello")); }
//     };
//
//     int main() { return Hello().Run(); }
//
// Owns the main window's object. One application at a time; windows find it by GetApplicationObject.
#pragma once

#include "owl/message_thread.h"
#include "owl/module.h"
#include "owl/platform/export.h"

namespace owl {

class TFrameWindow;
class TWindow;

class OWL_EXPORT TApplication : public TModule, public TMsgThread {
public:
    /// `name` is what TModule::GetName tells, and the caption of message boxes; null takes the program's file
    /// name. `showCommand` is how the main window shows first. Throws TXOwl if there is an application
    /// already.
    explicit TApplication(const char* name = nullptr, HINSTANCE instance = nullptr,
                          int showCommand = SW_SHOWDEFAULT);
    ~TApplication() override;

    /// Makes the main window by InitInstance, runs until WM_QUIT, and returns its exit code by way of
    /// TermInstance. What a handler throws comes out of here; Run may be called again then to go on with the
    /// same main window.
    virtual int Run();

    /// Creates and shows the main window that InitMainWindow made.
    virtual void InitInstance();
    /// Makes the main window's object and hands it to SetMainWindow. By itself a frame without contents.
    virtual void InitMainWindow();
    /// Gets the exit code of the loop and returns that of the program.
    virtual int TermInstance(int exitCode);
    /// Whether the main window may close. By itself the main window is asked.
    virtual bool CanClose();

    /// Null before there is one.
    TFrameWindow* GetMainWindow() const { return m_mainWindow; }
    /// Deletes the former one, unless it is the same. A main window that somebody else deletes is forgotten.
    void SetMainWindow(TFrameWindow* window);
    bool IsMainWindow(const TWindow& window) const { return &window == m_mainWindowBase; }

    /// Asks the main window, then the other windows of this thread that have no parent; they ask their
    /// children.
    bool IdleAction(long idleCount) override;

private:
    friend class TWindow;

    void ForgetMainWindow(const TWindow& window);

    int m_showCommand;
    TFrameWindow* m_mainWindow = nullptr;
    // The same object: asked for while it ends, too, when the other pointer can no longer be converted.
    const TWindow* m_mainWindowBase = nullptr;
};

/// The application of the process, or null.
OWL_EXPORT TApplication* GetApplicationObject();

}  // namespace owl
