// A parser that tells where it failed, as the system's does on Windows; the one at hand may tell no place.
#pragma once

#include <afxwin.h>
#include <comdef.h>
#include <msxml.h>

#include "slot_of.h"
#include "without_dispatch.h"

namespace docking_test {

/// What a parser tells of its error: a place and nothing else. Lives as long as the test.
class ToldPlace final : public WithoutDispatch<IXMLDOMParseError> {
public:
    ToldPlace(long line, long column) : m_line(line), m_column(column) {}
    virtual ~ToldPlace() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        const bool known = wanted == IID_IUnknown || wanted == IID_IXMLDOMParseError;
        *object = known ? this : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE get_errorCode(LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_url(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_reason(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_srcText(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_line(LONG* line) override {
        *line = m_line;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_linepos(LONG* column) override {
        *column = m_column;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_filepos(LONG*) override { return E_NOTIMPL; }

    ULONG references = 0;

private:
    LONG m_line, m_column;
};

/// The system's documents tell of `place` as long as the object lives.
class ParserTells {
public:
    explicit ParserTells(ToldPlace* place) {
        told() = place;
        ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        constexpr CLSID kDocument = {
            0x2933BF90, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
        IXMLDOMDocument* document = nullptr;
        if (FAILED(::CoCreateInstance(kDocument, nullptr, CLSCTX_ALL, IID_IXMLDOMDocument,
                                      reinterpret_cast<void**>(&document))))
            return;
        m_slot = *reinterpret_cast<void***>(document) + ui_test::slotOf(&IXMLDOMDocument::get_parseError);
        document->Release();
        m_former = exchange(reinterpret_cast<void*>(&answer));
    }
    ~ParserTells() {
        if (m_slot != nullptr) exchange(m_former);
        ::CoUninitialize();
    }
    ParserTells(const ParserTells&) = delete;
    ParserTells& operator=(const ParserTells&) = delete;

private:
    static ToldPlace*& told() {
        static ToldPlace* place = nullptr;
        return place;
    }
    static HRESULT STDMETHODCALLTYPE answer(IXMLDOMDocument*, IXMLDOMParseError** error) {
        *error = told();
        if (told() == nullptr) return S_FALSE;
        told()->AddRef();
        return S_OK;
    }
    void* exchange(void* function) const {
        DWORD protection = 0;
        ::VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &protection);
        void* const former = *m_slot;
        *m_slot = function;
        ::VirtualProtect(m_slot, sizeof *m_slot, protection, &protection);
        return former;
    }

    void** m_slot = nullptr;
    void* m_former = nullptr;
};

}  // namespace docking_test
