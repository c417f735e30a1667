// lvx/store/stream_area.h
//
// The part of a standard stream's buffer that lies in memory, reached without a call. A stream's own read and
// write check its state and call its buffer for each piece, which costs several times what a piece of four
// bytes does. The bytes and the position of the stream are at each moment those that its own operations would
// leave; only its gcount is not.
#pragma once

#include <cstddef>
#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <typeinfo>

namespace lvx::store {

/// Never made: as a derived class it may name the pointers into any buffer.
class StreamArea : public std::streambuf {
public:
    StreamArea() = delete;

    /// Whether `buffer` is one of the standard library's own for texts and files. Another class may do things
    /// in its operations that taking bytes past them would skip.
    static bool IsStandard(const std::streambuf* buffer) {
        return buffer != nullptr &&
               (typeid(*buffer) == typeid(std::stringbuf) || typeid(*buffer) == typeid(std::filebuf));
    }

    /// Room for `size` bytes, which count as written. Null if the buffer has not that much at hand, or the
    /// stream has to do more for them than take them.
    static unsigned char* Claim(std::ostream& stream, std::size_t size) {
        if (!stream.good() || stream.tie() != nullptr || (stream.flags() & std::ios_base::unitbuf) != 0) {
            return nullptr;
        }
        std::streambuf& buffer = *stream.rdbuf();
        char* const place = (buffer.*&StreamArea::pptr)();
        if (static_cast<std::size_t>((buffer.*&StreamArea::epptr)() - place) < size) {
            return nullptr;
        }
        (buffer.*&StreamArea::pbump)(static_cast<int>(size));
        return reinterpret_cast<unsigned char*>(place);
    }

    /// The next `size` bytes, which are not consumed. Null if the buffer has not that many at hand, or the
    /// stream has to do more for them than give them.
    static const unsigned char* Peek(std::istream& stream, std::size_t size) {
        if (!stream.good() || stream.tie() != nullptr) {
            return nullptr;
        }
        std::streambuf& buffer = *stream.rdbuf();
        const char* const place = (buffer.*&StreamArea::gptr)();
        const auto at_hand = static_cast<std::size_t>((buffer.*&StreamArea::egptr)() - place);
        return at_hand < size ? nullptr : reinterpret_cast<const unsigned char*>(place);
    }

    /// Consumes `size` bytes. Requires: Peek gave them.
    static void Skip(std::istream& stream, std::size_t size) {
        (stream.rdbuf()->*&StreamArea::gbump)(static_cast<int>(size));
    }
};

}  // namespace lvx::store
