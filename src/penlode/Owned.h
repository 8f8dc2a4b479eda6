#pragma once

#include <memory>
#include <utility>

namespace penlode {

/// Holds at most one T: clones it on copy, frees it on destruction, never shares it. Records hold their pens
/// and fonts in it, so that they copy and compare as plain values, and a const record's cannot be changed.
template <class T> class Owned {
public:
    Owned() = default;

    Owned(std::nullptr_t) {}

    Owned(T value) : m_object(std::make_unique<T>(std::move(value))) {}

    Owned(const Owned& other) : m_object(other.Clone()) {}

    Owned(Owned&&) noexcept = default;
    ~Owned() = default;

    Owned& operator=(const Owned& other) {
        if (this != &other) {
            m_object = other.Clone();
        }
        return *this;
    }

    Owned& operator=(Owned&&) noexcept = default;

    /// The held object, or null. It stays owned by the handle.
    T* Get() { return m_object.get(); }

    const T* Get() const { return m_object.get(); }

    T& operator*() { return *m_object; }

    const T& operator*() const { return *m_object; }

    T* operator->() { return m_object.get(); }

    const T* operator->() const { return m_object.get(); }

    explicit operator bool() const { return m_object != nullptr; }

    /// Frees the held object and takes over `object`, which may be null and must come from `new`.
    void Adopt(T* object) { m_object.reset(object); }

    friend bool operator==(const Owned& a, const Owned& b) {
        return a.m_object == b.m_object || (a && b && *a == *b);
    }

private:
    std::unique_ptr<T> Clone() const { return m_object ? std::make_unique<T>(*m_object) : nullptr; }

    std::unique_ptr<T> m_object;
};

/// Lends an owned object to a stream that speaks plain pointers. `transfer` gets the address of a pointer: to
/// the held object when saving, to null when loading (the old object is freed before), and then whatever it
/// put there is adopted.
template <class T, class Transfer> void LendToStream(Owned<T>& owned, bool saving, Transfer&& transfer) {
    if (!saving) {
        owned.Adopt(nullptr);
    }
    T* object = owned.Get();
    std::forward<Transfer>(transfer)(&object);
    if (!saving) {
        owned.Adopt(object);
    }
}

} // namespace penlode
