// tools/lvxdoc/walker.h
//
// Walks through the bytes of a store, tells a sink what it meets, and stops with Damage at the first thing
// that cannot be. It decodes the format by itself and shares nothing with the library's reader but the order
// of bytes, so that the one can bear witness for the other.
//
// It trusts no length, number or id. It does not recurse: objects nest as deep as a limit says, for a few
// bytes of memory each. Besides those it keeps four bytes for every object, and the class names.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "tools/lvxdoc/cursor.h"
#include "tools/lvxdoc/events.h"
#include "tools/lvxdoc/schema.h"
#include "tools/lvxdoc/value_reader.h"

namespace lvxdoc {

/// The class numbers and object ids given so far. A fresh one goes with each stream, unless the writer let
/// them run on from one stream to the next.
struct Numbering {
    std::vector<std::string> class_names;
    /// The class number of each object.
    std::deque<std::uint32_t> objects;
};

struct WalkOptions {
    /// Also refuses what readers accept but no writer leaves: a tag that is none, a bool other than 0 and 1,
    /// a C string without its NUL, bytes behind the end, a bitmap header that does not fit its block.
    bool strict = false;
    /// The longest class name that the kind of store reads back.
    std::size_t longest_class_name = 48;
    std::size_t deepest_nest = 1'000'000;
};

class Walker {
public:
    /// All of them outlive the walker.
    Walker(ByteSource& source, const Schema& schema, EventSink& sink, Numbering& numbering,
           WalkOptions options);

    /// Walks from the start of the source through what `top` says. Bytes that `top` leaves are told as a run
    /// of bytes named "rest".
    void Walk(const Record& top);

    /// The most objects that were open at once.
    std::size_t DeepestNest() const { return m_deepest; }

private:
    // Kept small: there is one for each level of a nest.
    struct Frame {
        const Record* record;
        std::uint64_t item;
        std::uint32_t field;
        std::uint32_t slots;
    };

    struct ObjectClass {
        std::uint32_t number;
        /// Where the object begins, with its marker.
        std::uint64_t offset;
    };

    void Open(const Record& record);
    void Close();
    void Step();
    bool HasItem(const Frame& frame, const Field& field);
    void ReadItem(const Frame& frame, const Field& field);
    std::uint64_t ValueOf(const Frame& frame, std::size_t field);
    std::uint64_t RawLength(const Frame& frame, const Field& field);
    void ReadRest();

    void ReadObject(bool to_end);
    void ReadString(const std::string& name);
    bool ReadObjectHead(ObjectClass& found, unsigned char& last_tag);
    std::string ReadLine(std::uint64_t offset);
    std::uint32_t ReadClassName(std::uint64_t offset);
    std::uint32_t ReadClassNumber(std::uint64_t offset);
    void ReadReference(std::uint64_t offset);
    void ReadBodyTag();
    void BeginObject(const ObjectClass& found, const Record& record);
    const Record& Described(const ObjectClass& found) const;
    void Emit(Event::Kind kind, std::uint64_t offset, std::int64_t number, std::string_view text);

    Cursor m_cursor;
    const Schema& m_schema;
    Numbering& m_numbering;
    WalkOptions m_options;
    ValueReader m_values;
    std::deque<Frame> m_frames;
    std::deque<std::int32_t> m_slots;
    std::size_t m_deepest = 0;
};

}  // namespace lvxdoc
