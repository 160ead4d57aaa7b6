// A reference to a COM object, given back at its end. Private to the library.
#pragma once

template <class T>
class ComReference {
public:
    ComReference() = default;
    ~ComReference() {
        if (m_object != nullptr) m_object->Release();
    }
    ComReference(const ComReference&) = delete;
    ComReference& operator=(const ComReference&) = delete;

    /// Where a function puts the reference that it answers; only for one that holds none.
    T** place() { return &m_object; }
    void** anyPlace() { return reinterpret_cast<void**>(&m_object); }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T* m_object = nullptr;
};
