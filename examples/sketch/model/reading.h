// Who owns the objects that a store reads. A store hands out plain pointers, the same one for each reference
// to an object, and forgets them when something is wrong half way. So while a document is read, one Reading
// keeps all of them, each once; what the document does not take over goes with it.
#pragma once

#include <map>
#include <memory>

#include "lvx/store/object_store.h"
#include "lvx/store/storable.h"

namespace sketch {

class Reading {
public:
    /// One at a time.
    Reading();
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    /// The creator that the classes of a document are registered with in the ObjectFactory. Throws
    /// DocumentError without a Reading.
    template <class T>
    static Storable* Create(ObjectStore& store);

    /// Reads an object or a reference to one. Throws DocumentError if there is none, or one of another class
    /// than `T`; what the store throws passes through.
    template <class T>
    static std::shared_ptr<T> Read(ObjectStore& store);

    /// The same for an object that the library has read.
    template <class T>
    static std::shared_ptr<T> Take(Storable* object);

private:
    static Reading& Current();
    static Storable* ReadAny(ObjectStore& store);
    static std::shared_ptr<Storable> Own(Storable* object);
    static void Keep(const std::shared_ptr<Storable>& object);
    [[noreturn]] static void RefuseClass(const Storable& object);

    static Reading* s_current;
    std::map<const Storable*, std::shared_ptr<Storable>> m_objects;
};

template <class T>
Storable* Reading::Create(ObjectStore& store) {
    const auto object = std::make_shared<T>();
    Keep(object);
    store.AppendObjectToList(object.get());
    object->GetFrom(store);
    return object.get();
}

template <class T>
std::shared_ptr<T> Reading::Read(ObjectStore& store) {
    return Take<T>(ReadAny(store));
}

template <class T>
std::shared_ptr<T> Reading::Take(Storable* read) {
    const std::shared_ptr<Storable> object = Own(read);
    std::shared_ptr<T> result = std::dynamic_pointer_cast<T>(object);
    if (result == nullptr) {
        RefuseClass(*object);
    }
    return result;
}

}  // namespace sketch
