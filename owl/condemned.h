// owl/condemned.h
//
// Window objects that end with their windows. They are deleted between two messages of the thread's outermost
// loop, when none of their functions can be under way. Private to the framework.
#pragma once

namespace owl {

class TWindow;

/// Has `window` deleted before long. Twice is once.
void Condemn(TWindow* window);

/// Takes back what Condemn said; for who deletes the window.
void Absolve(const TWindow* window);

/// Counts the loops that run on this thread; the outermost one deletes what is condemned.
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
