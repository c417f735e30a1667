// lvx/store/storable.h
//
// The base of everything that can go into a store. A class writes its members in PutTo and reads them back in
// the same order in GetFrom; the store writes its name, its number and the references to it.
// Does not: know the store it came from, or register its class (see object_factory.h).
#pragma once

#include "lvx/platform/export.h"

class ObjectStore;

class LVX_EXPORT Storable {
public:
    Storable() = default;
    Storable(const Storable&) = default;
    Storable& operator=(const Storable&) = default;
    virtual ~Storable();

    /// Writes the members. Exceptions of the store pass through.
    virtual void PutTo(ObjectStore& store) const = 0;

    /// Reads the members back, in the order of PutTo. ObjectStore::GetVersion tells which form they have.
    virtual void GetFrom(ObjectStore& store) = 0;

    /// The name under which objects of this class stand in a store: the run-time type name of the most
    /// derived class in its plain source form, such as "LVXUtilities::DIBitmap". The text belongs to the
    /// library and stays valid until the process ends. Up to 47 characters are read back by every kind of
    /// store.
    virtual const char* ClassName() const;
};
