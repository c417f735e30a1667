#include "owl/error.h"

namespace owl {

TXOwl::TXOwl(const std::string& message, unsigned long code) : std::runtime_error(message), m_code(code) {}

// Here, so that each class's type information is in this module alone.
TXOwl::~TXOwl() = default;
TXWindow::~TXWindow() = default;
TXGdi::~TXGdi() = default;

}  // namespace owl
