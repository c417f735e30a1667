// lvx/store/object_factory.h
//
// The process-wide registry from class name to creator, by which a store makes the objects that it reads.
//
// A class registers itself while its module starts, behind an ObjectFactoryInit of its own file, so that the
// registry exists whatever the order of start-up is, and also when the class lives in another module:
//
//     namespace {
//     const ObjectFactoryInit factory;
//     const bool registered = (ObjectFactory::Register("Star", ObjectFactory::CreateStorable<Star>), true);
//     }
//
// Registration belongs to start-up, when there is one thread; from then on the registry is only read.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "lvx/platform/export.h"
#include "lvx/store/object_store.h"
#include "lvx/store/storable.h"
#include "lvx/text/error.h"
#include "lvx/text/ownership.h"

class LVX_EXPORT ObjectFactory {
public:
    /// Makes an empty object, announces it with ObjectStore::AppendObjectToList, has it read itself, and
    /// hands it to the caller. What it throws passes to the reader.
    using Creator = Storable* (*)(ObjectStore&);

    class LVX_EXPORT UnknownClass : public lvx::runtime_error {
    public:
        explicit UnknownClass(const std::string& name);
        UnknownClass(const UnknownClass&) = default;
        ~UnknownClass() override;
    };

    /// Files `creator` under `className` without its first qualifier: "LVXUtilities::DIBitmap" under
    /// "DIBitmap", "a::b::C" under "b::C". A name that is there already keeps its first creator, silently.
    static void Register(const std::string& className, Creator creator);

    /// Has the creator filed for `className`, its first qualifier removed, read an object from `store`. The
    /// caller owns the result. Throws UnknownClass, naming `className` as given, if there is none.
    static Storable* Create(ObjectStore& store, const std::string& className);

    /// Whether `className` is filed exactly as it stands. Nothing is removed here: true for "DIBitmap" and
    /// false for "LVXUtilities::DIBitmap", for which Create succeeds. Hosts have come to ask with the bare
    /// name.
    static bool IsRegistered(const std::string& className);

    /// The creator that most classes want, for a class with a default constructor.
    template <class T>
    static Storable* CreateStorable(ObjectStore& store);

private:
    friend class ObjectFactoryInit;
    friend class lvx::store::Shortcuts;

    static Creator Find(const std::string& className);

    static std::map<std::string, Creator, std::less<std::string>>* s_functions;
};

/// Keeps the registry alive: the first of them makes it, the last one to go deletes it. Every file that
/// registers a class or asks the factory during start-up or shutdown holds a static one.
class LVX_EXPORT ObjectFactoryInit {
public:
    ObjectFactoryInit();
    ObjectFactoryInit(const ObjectFactoryInit&) = delete;
    ObjectFactoryInit& operator=(const ObjectFactoryInit&) = delete;
    ~ObjectFactoryInit();

private:
    friend class ObjectFactory;

    static int count;
};

template <class T>
Storable* ObjectFactory::CreateStorable(ObjectStore& store) {
    lvx::auto_ptr<Storable> object(new T);
    // Before any member is read: the writer numbered the object before its members, and they may refer to it.
    store.AppendObjectToList(object.get());
    object->GetFrom(store);
    return object.release();
}
