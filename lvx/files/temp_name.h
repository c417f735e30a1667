// lvx/files/temp_name.h
//
// The names that LVXPathString::tempFile() gives.
#pragma once

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>

namespace lvx {

/// The number that `counter` holds, which then has the next one; behind the highest comes the lowest.
inline std::int32_t take_number(std::int32_t& counter) {
    const std::int32_t taken = counter;
    counter = static_cast<std::int32_t>(static_cast<std::uint32_t>(taken) + 1U);
    return taken;
}

/// The last two digits of both numbers, each with its sign: "4207.tmp", "42-08.tmp".
inline std::string temp_name(std::time_t seconds, std::int32_t number) {
    char name[sizeof "-42-07.tmp"];
    std::snprintf(name, sizeof name, "%2.2d%2.2d.tmp", static_cast<int>(seconds % 100), number % 100);
    return name;
}

}  // namespace lvx
