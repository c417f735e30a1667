// Where a virtual function stands among those of its class: the binary interface.
#pragma once

#include <cstdint>
#include <cstring>

namespace lvx_test {

/// The place of `function`, from 0, in the table of virtual functions of its class; a destructor takes two
/// places. On the systems that tests run on, a pointer to a virtual function holds the distance in bytes from
/// the table's beginning, plus 1.
template <class Function>
std::uintptr_t slot_of(Function function) {
    std::uintptr_t distance = 0;
    std::memcpy(&distance, &function, sizeof distance);
    return (distance - 1) / sizeof(void*);
}

}  // namespace lvx_test
