// tools/lvxdoc/value_reader.h
//
// Reads the plain values of a store one by one and tells a sink of each. Lengths are held against what is
// left before anything is read or kept.
#pragma once

#include <cstdint>
#include <string>

#include "tools/lvxdoc/cursor.h"
#include "tools/lvxdoc/events.h"
#include "tools/lvxdoc/schema.h"

namespace lvxdoc {

struct BitmapHeader;

class ValueReader {
public:
    /// With `strict`, refuses what readers accept but no writer leaves. All that is given outlives the
    /// reader.
    ValueReader(Cursor& cursor, EventSink& sink, bool strict)
        : m_cursor(cursor), m_sink(sink), m_strict(strict) {}

    /// The depth that events get from now on.
    void SetDepth(std::size_t depth) { m_depth = depth; }

    void ReadBoolean(const std::string& name);
    std::int32_t ReadInteger(Type type, const std::string& name);
    void ReadReal(Type type, const std::string& name);
    void ReadCharacter(const std::string& name);
    void ReadCString(const std::string& name);
    /// A string behind its tag, which stood at `offset` and was read.
    void ReadTaggedString(std::uint64_t offset, const std::string& name);
    void ReadBytes(std::uint64_t length, const std::string& name);
    void ReadBitmap(std::uint64_t size, const std::string& name);

    /// Sends an event on, with the depth.
    void Emit(Event event);

private:
    std::uint64_t ReadLength(const std::string& what);
    std::string ReadText(std::uint64_t length, const std::string& what);
    void ReadHeaderFields(std::uint64_t offset, std::uint64_t size, const BitmapHeader& header);
    void ReadRegion(std::uint64_t length, const char* type, const std::string& name, bool is_bitmap);

    Cursor& m_cursor;
    EventSink& m_sink;
    bool m_strict;
    std::size_t m_depth = 0;
};

}  // namespace lvxdoc
