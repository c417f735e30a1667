// owl/auto_delete.h
//
// Whether an object that is made on a handle ends with it what the handle stands for.
#pragma once

namespace owl {

enum TAutoDelete {
    /// The handle is another's: it stays when the object goes.
    NoAutoDelete,
    /// The object owns the handle.
    AutoDelete,
};

}  // namespace owl
