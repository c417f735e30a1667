// owl/print_abort.h
//
// While a job is printed the system asks from time to time whether to go on. Private to the framework.
#pragma once

#include <functional>

namespace owl {

class TPrintDC;

/// While it lives, the system's question about `dc` goes to `goOn`. What that throws is carried, as out of
/// any call of the system's, and answers no from then on. One within another on the same thread is fine: the
/// innermost is asked.
class AbortScope {
public:
    AbortScope(TPrintDC& dc, std::function<bool()> goOn);
    ~AbortScope();
    AbortScope(const AbortScope&) = delete;
    AbortScope& operator=(const AbortScope&) = delete;

    /// What the system is told.
    bool GoesOn() noexcept;

private:
    std::function<bool()> m_goOn;
    bool m_threw = false;
    AbortScope* m_outer;
};

}  // namespace owl
