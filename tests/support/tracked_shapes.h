// The classes of shapes.h, under the same names in a store, for reading stores that may be damaged: whatever
// ends early or is deleted on the way, each object is freed once, and none is left.
//
//     lvx_test::register_tracked_shapes();
//     lvx_test::ReadObjects objects;
//     Storable* object = nullptr;
//     store >> object;
//     objects.Keep(object);
//
// Not for a program that also registers shapes.h: the factory keeps the first class of a name. One thread.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "lvx/store/object_factory.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LVX_TEST_SEES_FREED_MEMORY
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define LVX_TEST_SEES_FREED_MEMORY
#endif
#ifdef LVX_TEST_SEES_FREED_MEMORY
extern "C" int __asan_address_is_poisoned(const volatile void* address);
#endif

namespace lvx_test {

class Tracked;

/// Owns the objects that were read, as the caller of a store does: each once, however often it was handed
/// out, and not those that were deleted meanwhile. Tracked objects are followed everywhere; of others a
/// deletion is seen only by the address sanitizer. The last one made keeps what nested objects read.
class ReadObjects {
public:
    ReadObjects() : m_outer(s_current) { s_current = this; }
    ReadObjects(const ReadObjects&) = delete;
    ReadObjects& operator=(const ReadObjects&) = delete;
    ~ReadObjects();

    static ReadObjects& Current() { return *s_current; }

    void Keep(Storable* object) {
        if (object != nullptr) {
            m_objects[object] = dynamic_cast<void*>(object);
        }
    }
    void Forget(const Storable* object) { m_objects.erase(const_cast<Storable*>(object)); }
    bool IsAlive(const Storable* object) const {
        const auto found = m_objects.find(const_cast<Storable*>(object));
        return found != m_objects.end() && !IsFreed(found->second);
    }

private:
    friend class Tracked;

    static bool IsFreed([[maybe_unused]] const void* start) {
#ifdef LVX_TEST_SEES_FREED_MEMORY
        return __asan_address_is_poisoned(start) != 0;
#else
        return false;
#endif
    }

    static inline ReadObjects* s_current = nullptr;

    std::map<Storable*, void*> m_objects;
    ReadObjects* m_outer;
};

class Tracked : public virtual Storable {
public:
    Tracked() { s_alive.insert(this); }
    Tracked(const Tracked&) = delete;
    Tracked& operator=(const Tracked&) = delete;
    ~Tracked() override {
        s_alive.erase(this);
        for (ReadObjects* keeper = ReadObjects::s_current; keeper != nullptr; keeper = keeper->m_outer) {
            keeper->Forget(this);
        }
        if (!s_closing) {
            std::for_each(s_alive.begin(), s_alive.end(), [this](Tracked* other) { other->Lose(this); });
        }
    }

    static const std::set<Tracked*>& Alive() { return s_alive; }

protected:
    /// `object` is gone.
    virtual void Lose(const Storable*) {}

private:
    friend class ReadObjects;

    static inline std::set<Tracked*> s_alive;
    static inline bool s_closing = false;
};

inline ReadObjects::~ReadObjects() {
    s_current = m_outer;
    Tracked::s_closing = true;
    for (const auto& [object, start] : m_objects) {
        if (!IsFreed(start)) {
            delete object;
        }
    }
    Tracked::s_closing = false;
}

/// A node with a number and edges to other nodes.
class TrackedNode : public Tracked {
public:
    TrackedNode() = default;

    void PutTo(ObjectStore& store) const override {
        store << m_number << static_cast<int>(m_edges.size());
        for (const Storable* edge : m_edges) {
            if (edge == nullptr) {
                store << '0';
            } else {
                store << *edge;
            }
        }
    }
    void GetFrom(ObjectStore& store) override {
        int count = 0;
        store >> m_number >> count;
        for (int i = 0; i < count; ++i) {
            Storable* edge = nullptr;
            store >> edge;
            ReadObjects::Current().Keep(edge);
            m_edges.push_back(edge);
        }
    }
    const char* ClassName() const override { return "lvx_test::Node"; }

    int m_number = 0;
    std::vector<Storable*> m_edges;

protected:
    void Lose(const Storable* object) override {
        std::replace(m_edges.begin(), m_edges.end(), const_cast<Storable*>(object),
                     static_cast<Storable*>(nullptr));
    }
};

/// A leaf with values of several types.
class TrackedLeaf : public Tracked {
public:
    TrackedLeaf() = default;

    void PutTo(ObjectStore& store) const override { store << m_flag << m_ratio << m_name << m_letter; }
    void GetFrom(ObjectStore& store) override { store >> m_flag >> m_ratio >> m_name >> m_letter; }
    const char* ClassName() const override { return "lvx_test::inner::Leaf"; }

    bool m_flag = false;
    double m_ratio = 0;
    std::string m_name;
    char m_letter = ' ';
};

inline void register_tracked_shapes() {
    ObjectFactory::Register("lvx_test::Node", ObjectFactory::CreateStorable<TrackedNode>);
    ObjectFactory::Register("lvx_test::inner::Leaf", ObjectFactory::CreateStorable<TrackedLeaf>);
}

}  // namespace lvx_test
