// lvx/drawing/delete_unless_null.h
//
// What the free operations do: objects are deleted where they were made, within the library.
#pragma once

namespace lvx::drawing {

/// Deletes `object`, for its own member function: hosts call that on null pointers too, and a compiler takes
/// `this` for none.
template <class Object>
void delete_unless_null(Object* object) {
    Object* const volatile doubted = object;
    delete doubted;
}

}  // namespace lvx::drawing
