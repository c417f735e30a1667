// lvx/text/memory_buffer.h
//
// A stream buffer for reading a text that lies in memory. Writes nothing into the text: a character that is
// put back has to be the one that stands there. Seeks anywhere from the start to the end, not beyond.
// Does not: own the text.
#pragma once

#include <cstddef>
#include <ios>
#include <streambuf>

namespace lvx::text {

class MemoryBuffer final : public std::streambuf {
public:
    /// A null `text`, and a `length` of 0 or below, are an empty text.
    MemoryBuffer(char* text, int length) {
        char* const end = text != nullptr && length > 0 ? text + length : text;
        setg(text, text, end);
    }

    const char* Begin() const { return eback(); }
    const char* Next() const { return gptr(); }
    const char* End() const { return egptr(); }
    /// How far the next character is from the start.
    long Position() const { return static_cast<long>(gptr() - eback()); }

    /// Requires: `next` points into the text or to its end.
    void SetNext(const char* next) { gbump(static_cast<int>(next - gptr())); }
    /// Requires: `position` is one that the text has, or its length.
    void SetPosition(long position) { setg(eback(), eback() + position, egptr()); }

protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir direction,
                     std::ios_base::openmode which) override {
        const off_type size = egptr() - eback();
        const off_type origin = direction == std::ios_base::beg   ? 0
                                : direction == std::ios_base::cur ? gptr() - eback()
                                                                  : size;
        if ((which & std::ios_base::in) == 0 || offset < -origin || offset > size - origin) {
            return pos_type(off_type(-1));
        }
        SetPosition(static_cast<long>(origin + offset));
        return pos_type(origin + offset);
    }

    pos_type seekpos(pos_type position, std::ios_base::openmode which) override {
        return seekoff(off_type(position), std::ios_base::beg, which);
    }

    // There is no pbackfail: another character than the one that was read is refused, as the stream's badbit
    // tells. Putting it back would write into the text, which may be read-only, and which a caller does not
    // hand over as a scratch pad.

    /// Nothing comes behind the end.
    std::streamsize showmanyc() override { return -1; }
};

}  // namespace lvx::text
