// A document without a parser: notes what is written to it, in order, and fails where it is told to.
#pragma once

#include <afxwin.h>
#include <msxml.h>

#include <string>
#include <vector>

#include "without_dispatch.h"

namespace docking_test {

/// What the nodes of one document share.
struct DomNotes {
    std::vector<std::wstring> calls;
    std::wstring failing;  ///< the call that fails, as it is noted, without a value
    int alive = 0;         ///< nodes that somebody holds

    HRESULT note(const std::wstring& call, const std::wstring& value = L"") {
        calls.push_back(call + value);
        return call == failing ? E_FAIL : S_OK;
    }
};

/// A node of a kind; what bars don't ask of nodes isn't there.
template <class Kind>
class FakeNode : public WithoutDispatch<Kind> {
public:
    FakeNode(DomNotes& shared, const wchar_t* name, const IID& kind)
        : m_notes(shared), m_name(name), m_kind(kind) {
        ++m_notes.alive;
    }
    virtual ~FakeNode() { --m_notes.alive; }
    FakeNode(const FakeNode&) = delete;
    FakeNode& operator=(const FakeNode&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        const bool known = wanted == IID_IUnknown || wanted == IID_IXMLDOMNode || wanted == m_kind;
        *object = known ? static_cast<Kind*>(this) : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE appendChild(IXMLDOMNode* child, IXMLDOMNode** appended) override {
        if (appended != nullptr) *appended = nullptr;
        BSTR name = nullptr;
        child->get_nodeName(&name);
        const std::wstring call = L"append " + std::wstring(name) + L" to " + m_name;
        ::SysFreeString(name);
        return m_notes.note(call);
    }
    HRESULT STDMETHODCALLTYPE get_nodeName(BSTR* name) override {
        *name = ::SysAllocString(m_name.c_str());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_ownerDocument(IXMLDOMDocument** document) override;

    // Not asked.
    HRESULT STDMETHODCALLTYPE get_nodeValue(VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_nodeValue(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_nodeType(DOMNodeType*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_parentNode(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_childNodes(IXMLDOMNodeList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_firstChild(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_lastChild(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_previousSibling(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_nextSibling(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_attributes(IXMLDOMNamedNodeMap**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE insertBefore(IXMLDOMNode*, VARIANT, IXMLDOMNode**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE replaceChild(IXMLDOMNode*, IXMLDOMNode*, IXMLDOMNode**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE removeChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE hasChildNodes(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE cloneNode(VARIANT_BOOL, IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_nodeTypeString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_text(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_text(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_specified(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_definition(IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_nodeTypedValue(VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_nodeTypedValue(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_dataType(VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_dataType(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_xml(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE transformNode(IXMLDOMNode*, BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE selectNodes(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE selectSingleNode(BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_parsed(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_namespaceURI(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_prefix(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_baseName(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE transformNodeToObject(IXMLDOMNode*, VARIANT) override { return E_NOTIMPL; }

protected:
    DomNotes& m_notes;
    std::wstring m_name;

private:
    IID m_kind;
    ULONG m_references = 1;
};

class FakeElement : public FakeNode<IXMLDOMElement> {
public:
    FakeElement(DomNotes& shared, const wchar_t* name) : FakeNode(shared, name, IID_IXMLDOMElement) {}

    HRESULT STDMETHODCALLTYPE setAttribute(BSTR name, VARIANT value) override {
        const wchar_t* const type = value.vt == VT_UI4    ? L" ui4 "
                                    : value.vt == VT_UINT ? L" uint "
                                    : value.vt == VT_I4   ? L" i4 "
                                                          : L" other ";
        return m_notes.note(m_name + L"." + name, type + std::to_wstring(value.lVal));
    }
    HRESULT STDMETHODCALLTYPE get_tagName(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE getAttribute(BSTR, VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE removeAttribute(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE getAttributeNode(BSTR, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE setAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE removeAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE getElementsByTagName(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE normalize() override { return E_NOTIMPL; }
};

class FakeDocument : public FakeNode<IXMLDOMDocument> {
public:
    explicit FakeDocument(DomNotes& shared) : FakeNode(shared, L"document", IID_IXMLDOMDocument) {}

    HRESULT STDMETHODCALLTYPE createElement(BSTR name, IXMLDOMElement** element) override {
        *element = nullptr;
        const HRESULT result = m_notes.note(std::wstring(L"create ") + name);
        if (SUCCEEDED(result)) *element = new FakeElement(m_notes, name);
        return result;
    }
    HRESULT STDMETHODCALLTYPE get_doctype(IXMLDOMDocumentType**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_implementation(IXMLDOMImplementation**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_documentElement(IXMLDOMElement**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE putref_documentElement(IXMLDOMElement*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createDocumentFragment(IXMLDOMDocumentFragment**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createTextNode(BSTR, IXMLDOMText**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createComment(BSTR, IXMLDOMComment**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createCDATASection(BSTR, IXMLDOMCDATASection**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createProcessingInstruction(BSTR, BSTR,
                                                          IXMLDOMProcessingInstruction**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE createAttribute(BSTR, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createEntityReference(BSTR, IXMLDOMEntityReference**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE getElementsByTagName(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE createNode(VARIANT, BSTR, BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE nodeFromID(BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE load(VARIANT, VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_readyState(LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_parseError(IXMLDOMParseError**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_url(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_async(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_async(VARIANT_BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE abort() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE loadXML(BSTR, VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE save(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_validateOnParse(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_validateOnParse(VARIANT_BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_resolveExternals(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_resolveExternals(VARIANT_BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_preserveWhiteSpace(VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_preserveWhiteSpace(VARIANT_BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_onreadystatechange(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_ondataavailable(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_ontransformnode(VARIANT) override { return E_NOTIMPL; }
};

template <class Kind>
HRESULT STDMETHODCALLTYPE FakeNode<Kind>::get_ownerDocument(IXMLDOMDocument** document) {
    *document = nullptr;
    const HRESULT result = m_notes.note(L"owner");
    if (SUCCEEDED(result)) *document = new FakeDocument(m_notes);
    return result;
}

}  // namespace docking_test
