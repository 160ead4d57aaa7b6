#include <ktui/docking/dock_bar_xml.h>

#include <comdef.h>
#include <msxml.h>

namespace {

_COM_SMARTPTR_TYPEDEF(IXMLDOMNode, IID_IXMLDOMNode);
_COM_SMARTPTR_TYPEDEF(IXMLDOMElement, IID_IXMLDOMElement);
_COM_SMARTPTR_TYPEDEF(IXMLDOMDocument, IID_IXMLDOMDocument);

const wchar_t* const kBarElement = L"CAdUiDockControlBar";
const wchar_t* const kFloatElement = L"FloatInfo";
const wchar_t* const kDockElement = L"DockInfo";
constexpr unsigned kFloatingOrientation = 0xFFFFFFFF;

void check(HRESULT result) {
    if (FAILED(result)) _com_issue_error(result);
}

/// Writes attributes of one element.
class Writer {
public:
    explicit Writer(IXMLDOMElement* element) : m_element(element) {}

    void put(const wchar_t* name, VARTYPE type, long value) const {
        VARIANT variant = {};
        variant.vt = type;
        variant.lVal = value;
        check(m_element->setAttribute(_bstr_t(name), variant));
    }
    void putRect(const CRect& rect) const {
        put(L"Left", VT_I4, rect.left);
        put(L"Top", VT_I4, rect.top);
        put(L"Width", VT_UINT, rect.Width());
        put(L"Height", VT_UINT, rect.Height());
    }

private:
    IXMLDOMElement* m_element;
};

/// Reads an attribute as `type`.
long read(IXMLDOMElement* element, const wchar_t* name, VARTYPE type) {
    _variant_t value;
    check(element->getAttribute(_bstr_t(name), &value));
    value.ChangeType(type);
    return value.lVal;
}

/// The element, or null when it can't be made.
IXMLDOMElementPtr makeElement(IXMLDOMDocument* document, const wchar_t* name) {
    IXMLDOMElementPtr element;
    return SUCCEEDED(document->createElement(_bstr_t(name), &element)) ? element : IXMLDOMElementPtr();
}

void append(IXMLDOMNode* parent, IXMLDOMNode* child) {
    IXMLDOMNodePtr appended;
    check(parent->appendChild(child, &appended));
}

IXMLDOMElementPtr findElement(IXMLDOMNode* parent, const wchar_t* name) {
    IXMLDOMNodePtr found;
    check(parent->selectSingleNode(_bstr_t(name), &found));
    return IXMLDOMElementPtr(found);
}

/// Reads a rectangle whose width and height count from `corner`'s left and top.
void readRect(IXMLDOMElement* element, CRect& rect, const CRect& corner) {
    rect.left = read(element, L"Left", VT_I4);
    rect.top = read(element, L"Top", VT_I4);
    rect.right = read(element, L"Width", VT_UINT) + corner.left;
    rect.bottom = read(element, L"Height", VT_UINT) + corner.top;
}

}  // namespace

int SaveDockBar(IUnknown* unknown, const DockBarPlaces& places) {
    const IXMLDOMNodePtr node(unknown);
    IXMLDOMDocumentPtr document;
    if (node == nullptr || FAILED(node->get_ownerDocument(&document)) || document == nullptr) return 0;
    const IXMLDOMElementPtr bar = makeElement(document, kBarElement);
    if (bar == nullptr) return 0;
    Writer(bar).put(L"Orientation", VT_UI4,
                    static_cast<long>(places.floating ? kFloatingOrientation : places.alignment));
    Writer(bar).put(L"AllowDocking", VT_UINT, places.allowDocking ? 1 : 0);
    const IXMLDOMElementPtr floating = makeElement(document, kFloatElement);
    if (floating == nullptr) return 0;
    Writer(floating).putRect(places.floatingRect);
    append(bar, floating);
    const IXMLDOMElementPtr docked = makeElement(document, kDockElement);
    if (docked == nullptr) return 0;
    Writer(docked).putRect(places.dockingRect);
    Writer(docked).put(L"MRUDockID", VT_UI4, static_cast<long>(places.alignment));
    append(bar, docked);
    append(node, bar);
    return 1;
}

int LoadDockBar(IUnknown* unknown, const DockBarFields& fields) {
    const IXMLDOMNodePtr node(unknown);
    if (node == nullptr) return 0;
    const IXMLDOMElementPtr bar = findElement(node, kBarElement);
    if (bar == nullptr) return 0;
    fields.setOrientation(static_cast<unsigned>(read(bar, L"Orientation", VT_UINT)));
    fields.allowDocking = read(bar, L"AllowDocking", VT_UINT) != 0;
    const IXMLDOMElementPtr floating = findElement(bar, kFloatElement);
    if (floating == nullptr) return 0;
    readRect(floating, fields.floatingRect, fields.floatingRect);
    const IXMLDOMElementPtr docked = findElement(bar, kDockElement);
    if (docked == nullptr) return 0;
    // Kept: the docked size is written from the docked corner, and read from the floating one.
    readRect(docked, fields.dockingRect, fields.floatingRect);
    // Kept: the alignment takes the place of the whole word, so the visible flag comes out clear.
    fields.dockFlags = static_cast<unsigned>(read(docked, L"MRUDockID", VT_UI4));
    return 1;
}

DWORD AlignmentOfOrientation(unsigned orientation, DWORD style) {
    // Kept: a docked orientation leaves the floating bit of the style as it is.
    const DWORD others = style & ~CBRS_ALIGN_ANY;
    switch (orientation) {
        case 0:
        case 1:
        case kFloatingOrientation: return others | CBRS_FLOATING;
        case CBRS_ALIGN_TOP:
        case CBRS_ALIGN_RIGHT:
        case CBRS_ALIGN_BOTTOM: return others | orientation;
        default: return others | CBRS_ALIGN_LEFT;
    }
}
