// lvx/exchange/dde_handling.h
//
// A function of a conversation that is under way, on the stack. While a client is asked, or an answer is
// waited for, anything may happen to the object: further events, its end by the partner's good-bye or by its
// own client. So whatever leads there stands under one of these. Private to the library.
#pragma once

#include "lvx/exchange/dde.h"

class LVXDde::Handling {
public:
    explicit Handling(LVXDde& dde);
    /// Puts back what the object said of the request, and of the event if the client is in the midst of it.
    /// The outermost one deletes the object if EndAfterwards was called.
    ~Handling();
    Handling(const Handling&) = delete;
    Handling& operator=(const Handling&) = delete;

    /// Whether the object has been deleted meanwhile.
    bool Gone() const { return m_dde == nullptr; }
    /// From here on the client is asked: what happens meanwhile is told to have happened within the question.
    void Ask() { m_asks = true; }

    static bool IsUnderWay(const LVXDde& dde);
    /// Has the object deleted when nothing of it is under way any more. Requires: IsUnderWay.
    static void EndAfterwards(const LVXDde& dde);
    /// The object ends.
    static void Forget(const LVXDde& dde);

private:
    struct Event {
        DdeEvent reason;
        const char* item;
        unsigned short format;
        void* data;
    };

    bool IsWithinQuestion() const;
    void Restore() const;

    LVXDde* m_dde;
    Handling* const m_outer;
    const Event m_event;
    const bool m_responding;
    const LPARAM m_requestParam;
    bool m_asks = false;
    bool m_deletes = false;
};
