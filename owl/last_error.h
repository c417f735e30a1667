// owl/last_error.h
//
// Turns a call of the system that failed into an exception. Private to the framework; Windows only.
#pragma once

#include <windows.h>

#include <string>

#include "owl/error.h"

namespace owl {

/// The system's text for one of its error numbers, without a line end; of a number without a text "error "
/// and the number; of 0 "the system gave no reason".
std::string SystemText(DWORD code);

/// What an exception about `call` says.
std::string FailureText(const char* call, DWORD code);

/// Throws a `Failure` (TXGdi, TXWindow) about `call` with the last error of this thread.
template <class Failure>
[[noreturn]] void ThrowLastError(const char* call) {
    const DWORD code = ::GetLastError();
    throw Failure(FailureText(call, code), code);
}

/// Runs `body`, which makes one call of the system, and returns what that returned; throws a `Failure` about
/// `call` if that was null, 0 or false. The reason is this call's: an older one is forgotten first.
template <class Failure, class Body>
auto Require(const char* call, const Body& body) {
    ::SetLastError(0);
    const auto result = body();
    if (!result)
        ThrowLastError<Failure>(call);
    return result;
}

}  // namespace owl
