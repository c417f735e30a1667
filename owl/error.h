// owl/error.h
//
// The exceptions of the framework. What the system refuses is thrown as one of them, with the name of the
// call that failed and the system's own reason: "CreateSolidBrush: Not enough storage is available to process
// this command."
#pragma once

#include <stdexcept>
#include <string>

#include "owl/platform/export.h"

namespace owl {

/// The family's base: catch it for anything that the framework throws.
class OWL_EXPORT TXOwl : public std::runtime_error {
public:
    /// `code` is the system's number for the reason, 0 if there is none.
    explicit TXOwl(const std::string& message, unsigned long code = 0);
    TXOwl(const TXOwl&) = default;
    TXOwl& operator=(const TXOwl&) = default;
    ~TXOwl() override;

    unsigned long GetCode() const { return m_code; }

private:
    unsigned long m_code;
};

/// Windows, menus, the clipboard: what belongs to the user's screen.
class OWL_EXPORT TXWindow : public TXOwl {
public:
    using TXOwl::TXOwl;
    TXWindow(const TXWindow&) = default;
    TXWindow& operator=(const TXWindow&) = default;
    ~TXWindow() override;
};

/// Device contexts and what is drawn with.
class OWL_EXPORT TXGdi : public TXOwl {
public:
    using TXOwl::TXOwl;
    TXGdi(const TXGdi&) = default;
    TXGdi& operator=(const TXGdi&) = default;
    ~TXGdi() override;
};

}  // namespace owl
