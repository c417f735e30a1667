// owl/gdi_object.h
//
// What all tools of drawing have in common: a handle of the system, owned or borrowed. An object that owns
// its handle deletes it at its end; several may borrow one handle, and the owner must outlive them. An object
// must not go while it is selected in a device context: that context's Restore... operations let go of it.
// For the thread that draws. Windows only. Does not: count the users of a handle, or refuse a null one; what
// cannot be made throws TXGdi.
#pragma once

#include <windows.h>

#include "owl/auto_delete.h"
#include "owl/error.h"
#include "owl/platform/export.h"

namespace owl {

class OWL_EXPORT TGdiObject {
public:
    virtual ~TGdiObject();
    TGdiObject(const TGdiObject&) = delete;
    TGdiObject& operator=(const TGdiObject&) = delete;

    /// The handle; null only if the object was made on a null one or has given its own away.
    HGDIOBJ GetHandle() const { return m_handle; }
    /// Whether the handle ends with this object.
    bool IsOwner() const { return m_owner; }
    /// Gives the handle to the caller, who deletes it if this object owned it. The object is left without
    /// one.
    HGDIOBJ Detach();

protected:
    explicit TGdiObject(HGDIOBJ handle, TAutoDelete autoDelete);

    /// Takes over `handle` as its own instead of what it had, which it deletes if it owned that.
    void Replace(HGDIOBJ handle);

private:
    void DeleteOwned();

    HGDIOBJ m_handle;
    bool m_owner;
};

}  // namespace owl
