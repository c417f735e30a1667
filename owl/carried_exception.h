// owl/carried_exception.h
//
// No exception may cross a window procedure: the system's frames stand between it and who could catch it. The
// framework's procedures keep what a handler throws, and the next loop or creation of a window that the
// framework runs itself throws it on. One exception per thread: while one is under way, later ones are
// dropped, because they tend to be its consequences. Private to the framework.
#pragma once

namespace owl {

/// Keeps the exception that is being handled. Requires: called from a catch block.
void CarryException() noexcept;

/// Throws what this thread carries, if it carries anything.
void ThrowCarriedException();

}  // namespace owl
