// owl/condemned.h
//
// Window objects that end with their windows. They are deleted when none of their functions can be under way:
// between two messages of the thread's outermost loop, or, where no loop of ours runs, behind a timer that
// the other loop dispatches. Private to the framework.
#pragma once

namespace owl {

class TWindow;

/// Has `window` deleted before long. Twice is once.
void Condemn(TWindow* window);

/// Takes back what Condemn said; for who deletes the window, or makes it anew.
void Absolve(const TWindow* window);

/// Counts the functions of window objects that are under way on this thread: nothing is deleted meanwhile.
class FunctionScope {
public:
    FunctionScope();
    ~FunctionScope();
    FunctionScope(const FunctionScope&) = delete;
    FunctionScope& operator=(const FunctionScope&) = delete;
};

/// Counts the loops that run on this thread; the outermost one deletes what is condemned, at last when it
/// ends.
class LoopScope {
public:
    LoopScope();
    ~LoopScope();
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;

    /// Between two messages.
    void DeleteCondemned() const;
};

}  // namespace owl
