// bench/raw_graph.h
//
// The store's format written down directly: a call of the medium for each value, a tree of addresses for the
// ids. It shows what the format itself costs without a library and without thought about speed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/drawing.h"

namespace lvx_bench {

class RawWriter;
class RawReader;

class RawShape {
public:
    virtual ~RawShape() = default;
    virtual const char* Name() const = 0;
    virtual void Write(RawWriter& writer) const = 0;
    virtual void Read(RawReader& reader) = 0;
};

class RawDot : public RawShape {
public:
    RawDot() = default;
    explicit RawDot(const Values& initial) : values(initial) {}

    const char* Name() const override { return "lvx_bench::Dot"; }
    void Write(RawWriter& writer) const override;
    void Read(RawReader& reader) override;

    Values values;
};

class RawWriter {
public:
    virtual ~RawWriter() = default;
    virtual void PutBytes(const void* data, std::size_t size) = 0;

    template <class Value>
    void Put(Value value) {
        PutBytes(&value, sizeof value);
    }

    void PutObject(const RawShape& object) {
        Put('B');
        const auto known = m_ids.find(&object);
        if (known != m_ids.end()) {
            Put('O');
            Put(known->second);
            return;
        }
        m_ids.emplace(&object, static_cast<int>(m_ids.size()));
        PutClass(object.Name());
        Put('o');
        object.Write(*this);
    }

private:
    void PutClass(const std::string& name) {
        const auto known = std::find(m_classes.begin(), m_classes.end(), name);
        if (known != m_classes.end()) {
            Put('C');
            Put(static_cast<int>(known - m_classes.begin()));
            return;
        }
        Put('c');
        PutBytes(name.data(), name.size());
        PutBytes("\r\n", 2);
        m_classes.push_back(name);
    }

    std::map<const RawShape*, int> m_ids;
    std::vector<std::string> m_classes;
};

class RawReader {
public:
    virtual ~RawReader() = default;
    virtual void GetBytes(void* data, std::size_t size) = 0;

    template <class Value>
    Value Get() {
        Value value;
        GetBytes(&value, sizeof value);
        return value;
    }

    RawShape* GetObject() {
        Expect('B');
        const char tag = Get<char>();
        if (tag == 'O') {
            return m_objects.at(static_cast<std::size_t>(Get<int>()));
        }
        const std::string& name = tag == 'c' ? GetName() : m_classes.at(static_cast<std::size_t>(Get<int>()));
        Expect('o');
        m_objects.push_back(m_creators.at(name)());
        RawShape* const object = m_objects.back();
        object->Read(*this);
        return object;
    }

private:
    void Expect(char expected) {
        if (Get<char>() != expected) {
            throw std::runtime_error("raw: unexpected byte");
        }
    }
    const std::string& GetName() {
        std::string name;
        for (char next = Get<char>(); next != '\n'; next = Get<char>()) {
            if (next != '\r') {
                name += next;
            }
        }
        m_classes.push_back(name);
        return m_classes.back();
    }

    std::map<std::string, RawShape* (*)()> m_creators{
        {"lvx_bench::Dot", []() -> RawShape* { return new RawDot; }}};
    std::vector<RawShape*> m_objects;
    std::vector<std::string> m_classes;
};

inline void RawDot::Write(RawWriter& writer) const {
    writer.Put(values.x);
    writer.Put(values.y);
    writer.Put(values.colour);
    writer.Put(values.layer);
}

inline void RawDot::Read(RawReader& reader) {
    values.x = reader.Get<double>();
    values.y = reader.Get<double>();
    values.colour = reader.Get<int>();
    values.layer = reader.Get<int>();
}

inline Drawing<RawShape*> make_raw_drawing() {
    return make_drawing<RawShape*>([](const Values& values) { return new RawDot(values); });
}

inline void save_raw_drawing(RawWriter& writer, const Drawing<RawShape*>& drawing) {
    writer.Put(static_cast<int>(drawing.by_depth.size()));
    for (const RawShape* const shape : drawing.by_depth) {
        writer.PutObject(*shape);
    }
    for (const RawShape* const shape : drawing.by_layer) {
        writer.PutObject(*shape);
    }
}

inline Drawing<RawShape*> load_raw_drawing(RawReader& reader) {
    const auto size = static_cast<std::size_t>(reader.Get<int>());
    Drawing<RawShape*> drawing{std::vector<RawShape*>(size), std::vector<RawShape*>(size)};
    for (RawShape*& shape : drawing.by_depth) {
        shape = reader.GetObject();
    }
    for (RawShape*& shape : drawing.by_layer) {
        shape = reader.GetObject();
    }
    return drawing;
}

inline std::uint64_t raw_fingerprint(const Drawing<RawShape*>& drawing) {
    return fingerprint(drawing, [](const RawShape* shape) { return dynamic_cast<const RawDot*>(shape); });
}

/// For a medium that did not do all that it was asked.
inline void expect_transfer(bool transferred) {
    if (!transferred) {
        throw std::runtime_error("raw: a transfer failed");
    }
}

}  // namespace lvx_bench
