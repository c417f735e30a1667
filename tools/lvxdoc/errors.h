// tools/lvxdoc/errors.h
//
// What ends a command early. The exit status is 1 for Damage and Failure, 2 for Usage, 141 for OutputGone.
#pragma once

#include <cstdint>
#include <string>

#include "lvx/text/error.h"

namespace lvxdoc {

/// The bytes at `offset`, counted from the start of the stream or file that is read, cannot be right.
class Damage : public lvx::runtime_error {
public:
    Damage(std::uint64_t offset, const std::string& why) : lvx::runtime_error(why), m_offset(offset) {}
    std::uint64_t Offset() const { return m_offset; }

private:
    std::uint64_t m_offset;
};

/// Something could not be done: a file that does not open, a disk that is full.
class Failure : public lvx::runtime_error {
public:
    using lvx::runtime_error::runtime_error;
};

/// The command line or the schema file is wrong.
class Usage : public lvx::runtime_error {
public:
    using lvx::runtime_error::runtime_error;
};

/// Whoever read our output has stopped reading. Nothing is told to anybody.
class OutputGone : public lvx::runtime_error {
public:
    OutputGone() : lvx::runtime_error("the reader of the output is gone") {}
};

}  // namespace lvxdoc
