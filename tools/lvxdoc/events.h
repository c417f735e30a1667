// tools/lvxdoc/events.h
//
// What a walk through a stream meets, in the order of the bytes.
#pragma once

#include <cstdint>
#include <string_view>

namespace lvxdoc {

struct Event {
    enum class Kind {
        marker,        // text: "A" or "B"
        class_name,    // text: the name; number: the class number it takes
        class_number,  // text: the name; number: the class number
        object,        // text: the class; number: the object's id; its members follow, one level deeper
        reference,     // text: the class of the object; number: its id
        null,
        unknown_tag,  // number: the byte, which a reader takes for a null pointer
        integer,      // number
        boolean,      // number: 0 for false
        real,         // real
        text,  // text, of which length bytes stand in the stream; only the first are shown of a long one
        raw,   // text: the first bytes; length; checksum
    };

    Kind kind;
    std::uint64_t offset;
    /// Bytes that it takes in the stream.
    std::uint64_t size;
    /// 0 at the top, one more in each object.
    std::size_t depth = 0;
    /// For values: the type and the name of the field. Valid during the call only, as all texts are.
    std::string_view type = {};
    std::string_view name = {};
    std::int64_t number = 0;
    double real = 0;
    std::string_view text = {};
    std::uint64_t length = 0;
    /// The CRC-32 of raw bytes.
    std::uint32_t checksum = 0;
};

class EventSink {
public:
    EventSink() = default;
    EventSink(const EventSink&) = delete;
    EventSink& operator=(const EventSink&) = delete;
    virtual ~EventSink() = default;

    virtual void Take(const Event& event) = 0;

    // The bytes of a bitmap, besides the events that describe it: begin, bytes in order, end. A bitmap that
    // is cut short gets no end.
    virtual void BeginBitmap(std::uint64_t /*size*/) {}
    virtual void TakeBitmapBytes(std::string_view /*bytes*/) {}
    virtual void EndBitmap() {}
};

}  // namespace lvxdoc
