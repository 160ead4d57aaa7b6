// The roots of the runtime's object model: counted objects, the pointer that counts them, and the module
// objects through which the runtime sees an extension library.
//
// A counted object starts with a count of 0; the first OdSmartPtr that takes it makes the count 1, and the
// last one to let go deletes it. Any thread may count; what else other threads may do, od_db_shared_reading.h
// says.
#pragma once

#include <cstddef>
#include <utility>
#include "od_string.h"
#include "odrt_api.h"

/// Allocates `size` bytes from the runtime's heap, aligned for any type. Null when there is no memory.
ODRT_API void* odrxAlloc(std::size_t size);

/// Frees what odrxAlloc gave; null is ignored.
ODRT_API void odrxFree(void* memory);

/// Base of every counted object.
class ODRT_API OdRxObject {
public:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;
    virtual ~OdRxObject();

    /// Adds one to the count of references.
    virtual void addRef();
    /// Takes one from the count, and deletes the object when none is left.
    virtual void release();
    /// The count of references.
    virtual long numRefs() const;

private:
    int m_references = 0;
};

/// A pointer that counts: holds one reference to its object for as long as it points to it.
template <class T>
class OdSmartPtr {
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    OdSmartPtr(T* object) : m_object(object) {
        if (m_object) m_object->addRef();
    }
    OdSmartPtr(const OdSmartPtr& other) : OdSmartPtr(other.m_object) {}
    OdSmartPtr(OdSmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U>
    OdSmartPtr(const OdSmartPtr<U>& other) : OdSmartPtr(other.get()) {}
    ~OdSmartPtr() {
        if (m_object) m_object->release();
    }
    OdSmartPtr& operator=(OdSmartPtr other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// The object, which the pointer goes on owning; null if there is none.
    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    bool isNull() const { return m_object == nullptr; }
    /// Lets go of the object.
    void release() { *this = OdSmartPtr(); }

    friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object == b.m_object; }
    friend bool operator!=(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object != b.m_object; }
    friend bool operator==(const OdSmartPtr& a, std::nullptr_t) { return !a.m_object; }
    friend bool operator!=(const OdSmartPtr& a, std::nullptr_t) { return a.m_object != nullptr; }

private:
    T* m_object = nullptr;
};

/// An extension library as the runtime sees it. The virtual operations come in this order: those of
/// OdRxObject, then those below.
class ODRT_API OdRxModule : public OdRxObject {
public:
    /// Whether this is a module object; always true here.
    virtual bool isModule() const { return true; }
    /// The operating system's handle of the library, as a plain pointer; null when it has none.
    virtual void* sysHandle() const = 0;
    /// Ends the object's life, whatever its count is.
    virtual void deleteModule() = 0;
    /// Called once after the library was loaded.
    virtual void initApp() = 0;
    /// Called once before the library is unloaded.
    virtual void uninitApp() = 0;
    /// The full path of the library's file.
    virtual OdString moduleName() const = 0;
};

/// A module that takes numbered messages, with a packet whose meaning the message gives.
class ODRT_API OdRxExtendModule : public OdRxModule {
public:
    /// Hands a message to the library's entry point; the answer is the entry point's.
    virtual int dispatch(int message, void* packet) = 0;
};
