// owl/message_thread.h
//
// A thread's message loop. What a handler throws comes out of the loop that dispatched the message; the loop
// can then be run again. When no message waits, IdleAction is called, again and again as long as it asks for
// more; then the thread sleeps until the next message.
#pragma once

#include <windows.h>

#include <functional>

#include "owl/event_handler.h"
#include "owl/platform/export.h"

namespace owl {

class OWL_EXPORT TMsgThread : public TEventHandler {
public:
    TMsgThread();
    ~TMsgThread() override;

    /// Runs until WM_QUIT; returns its exit code.
    int MessageLoop();
    /// Runs until `done` is true, which is asked after every message and every idle action. False if WM_QUIT
    /// ended it first: the quit is then posted anew, so that the loops around this one end as well.
    bool RunUntil(const std::function<bool()>& done);
    /// Handles the messages that wait at present. False if WM_QUIT was among them; it is posted anew.
    bool PumpWaitingMessages();

    /// Called when no message waits: `idleCount` is 0 for the first time behind a message and then counts up.
    /// True asks to be called again. By itself it does nothing.
    virtual bool IdleAction(long idleCount);
    /// Offers a message before it is translated and dispatched; true takes it out. By itself it offers it to
    /// the window objects from the receiver of the message upward, up to the first that is no child.
    virtual bool ProcessAppMsg(MSG& msg);

private:
    void Process(MSG& msg);
    bool TakeMessage(MSG& msg);
};

}  // namespace owl
