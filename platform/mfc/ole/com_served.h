// What the COM objects of the class layer share: one interface, a count, and deletion at its end.
#pragma once

#include <windows.h>
#include <unknwn.h>

namespace kmfc {

/// Serves `Interface`, whose id is `id`. Made with a count of 1.
template <class Interface>
class ComServed : public Interface {
public:
    explicit ComServed(REFIID id) : m_id(id) {}
    virtual ~ComServed() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = id == IID_IUnknown || id == m_id ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_count;
        if (left == 0) delete this;
        return left;
    }

private:
    const IID m_id;
    ULONG m_count = 1;
};

}  // namespace kmfc
