#include "owl/carried_exception.h"

#include <exception>
#include <utility>

namespace owl {

namespace {

thread_local std::exception_ptr carried;

}  // namespace

void CarryException() noexcept {
    if (!carried)
        carried = std::current_exception();
}

void ThrowCarriedException() {
    if (carried)
        std::rethrow_exception(std::exchange(carried, nullptr));
}

}  // namespace owl
