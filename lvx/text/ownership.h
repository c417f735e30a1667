// lvx/text/ownership.h
//
// Small owning templates of the library's interfaces: one word, no reference count. Results that hand over a
// new object do so through lvx::auto_ptr; a null one means failure.
// Do not: check for null on use, or survive in a standard container (lvx::autovector is for that).
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace lvx {

/// Owns one object. A copy takes the object over and leaves null behind, so at most one owner exists.
template <class T>
class auto_ptr {
public:
    using element_type = T;

    auto_ptr() noexcept = default;
    /// Takes ownership; null is allowed.
    explicit auto_ptr(T* object) noexcept : m_object(object) {}
    auto_ptr(auto_ptr& other) noexcept : m_object(other.release()) {}
    auto_ptr(auto_ptr&& other) noexcept : m_object(other.release()) {}
    template <class Other>
    auto_ptr(auto_ptr<Other>& other) noexcept : m_object(other.release()) {}
    template <class Other>
    auto_ptr(auto_ptr<Other>&& other) noexcept : m_object(other.release()) {}
    ~auto_ptr() { delete m_object; }

    auto_ptr& operator=(auto_ptr& other) noexcept {
        reset(other.release());
        return *this;
    }
    auto_ptr& operator=(auto_ptr&& other) noexcept {
        reset(other.release());
        return *this;
    }

    /// The object, or null. Ownership stays.
    T* get() const noexcept { return m_object; }
    /// The object, or null; the caller owns it from here on.
    T* release() noexcept { return std::exchange(m_object, nullptr); }
    /// Deletes the present object, unless it is `object` itself, and owns `object`.
    void reset(T* object = nullptr) noexcept {
        if (object != m_object) {
            delete std::exchange(m_object, object);
        }
    }

    /// Requires: not null.
    T* operator->() const noexcept { return m_object; }
    /// Requires: not null.
    T& operator*() const noexcept { return *m_object; }

private:
    T* m_object = nullptr;
};

/// Owns an array made with array new. Copies take it over as those of lvx::auto_ptr do.
template <class T>
class auto_array {
public:
    using element_type = T;

    auto_array() noexcept = default;
    /// Takes ownership; null is allowed.
    explicit auto_array(T* elements) noexcept : m_elements(elements) {}
    auto_array(auto_array& other) noexcept : m_elements(other.release()) {}
    auto_array(auto_array&& other) noexcept : m_elements(other.release()) {}
    ~auto_array() { delete[] m_elements; }

    auto_array& operator=(auto_array& other) noexcept {
        reset(other.release());
        return *this;
    }
    auto_array& operator=(auto_array&& other) noexcept {
        reset(other.release());
        return *this;
    }

    /// The first element, or null. Ownership stays.
    T* get() const noexcept { return m_elements; }
    /// The first element, or null; the caller owns the array from here on.
    T* release() noexcept { return std::exchange(m_elements, nullptr); }
    /// Deletes the present array, unless it is `elements` itself, and owns `elements`.
    void reset(T* elements = nullptr) noexcept {
        if (elements != m_elements) {
            delete[] std::exchange(m_elements, elements);
        }
    }

    /// Requires: not null, and `index` inside the array; neither is checked.
    T& operator[](std::size_t index) const noexcept { return m_elements[index]; }
    /// Requires: not null.
    T* operator->() const noexcept { return m_elements; }
    /// The first element. Requires: not null.
    T& operator*() const noexcept { return *m_elements; }

private:
    T* m_elements = nullptr;
};

/// A vector of pointers that owns what they point to. Its destructor deletes each element, then the storage.
/// Elements are reached as in std::vector; taking one out by erase() or clear() hands it back undeleted.
/// Cannot be copied; moving moves the elements.
template <class T>
class autovector : public std::vector<T*> {
public:
    autovector() = default;
    autovector(const autovector&) = delete;
    autovector& operator=(const autovector&) = delete;
    autovector(autovector&& other) noexcept : std::vector<T*>(std::move(other)) { other.clear(); }
    autovector& operator=(autovector&& other) noexcept {
        this->swap(other);
        return *this;
    }
    ~autovector() {
        for (T* element : *this) {
            delete element;
        }
    }

    /// Appends `element` and owns it. If there is no memory for the place, deletes it and lets bad_alloc
    /// pass.
    void push_back(T* element) {
        auto_ptr<T> owner(element);
        std::vector<T*>::push_back(element);
        owner.release();
    }
};

}  // namespace lvx

using lvx::auto_array;
