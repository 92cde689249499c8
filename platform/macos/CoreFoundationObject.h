// A Core Foundation object that is released with its owner. Used by the adapters of this folder, so
// that no way out of a function leaves a reference behind, an exception's included. Holds one
// reference; never looks at what the object is. Not for sharing between threads.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <utility>

namespace macoshost {

/// `Ref` is the type of the reference: CFStringRef, CFURLRef, CFArrayRef and their like.
template <class Ref>
class CoreFoundationObject {
  public:
    CoreFoundationObject() = default;
    /// Takes over the reference that a function with "Create" or "Copy" in its name has given; null
    /// is "none". What a "Get" function gives belongs to somebody else and is not for this.
    explicit CoreFoundationObject(Ref owned) : m_object(owned) {}
    CoreFoundationObject(CoreFoundationObject&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr)) {}
    CoreFoundationObject& operator=(CoreFoundationObject&& other) noexcept {
        if (this != &other)
            release(std::exchange(m_object, std::exchange(other.m_object, nullptr)));
        return *this;
    }
    ~CoreFoundationObject() { release(m_object); }

    /// The object, or null; it stays this owner's.
    Ref get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

  private:
    // CFRelease ends the program when it is given null.
    static void release(Ref object) {
        if (object)
            CFRelease(object);
    }

    Ref m_object = nullptr;
};

} // namespace macoshost
