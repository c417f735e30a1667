#include "lvx/text/error.h"

namespace lvx {

runtime_error::runtime_error(const std::string& text) : std::runtime_error(text) {}

runtime_error::~runtime_error() = default;

}  // namespace lvx
