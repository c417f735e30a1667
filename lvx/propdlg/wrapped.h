// lvx/propdlg/wrapped.h
//
// Pixels are numbers of 32 bits, and hosts may ask for any width: sums and products are made in 64 bits and
// then wrap.
#pragma once

#include <cstdint>

namespace lvx::propdlg {

constexpr int wrapped(std::int64_t number) {
    return static_cast<int>(static_cast<std::uint32_t>(number));
}

}  // namespace lvx::propdlg
