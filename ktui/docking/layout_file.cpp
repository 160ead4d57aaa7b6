#include <ktui/docking/layout_file.h>

#include <comdef.h>
#include <msxml.h>

#include <ktui/docking/layout_problem.h>

namespace layouts {

namespace {

_COM_SMARTPTR_TYPEDEF(IXMLDOMNode, IID_IXMLDOMNode);
_COM_SMARTPTR_TYPEDEF(IXMLDOMElement, IID_IXMLDOMElement);
_COM_SMARTPTR_TYPEDEF(IXMLDOMDocument, IID_IXMLDOMDocument);
_COM_SMARTPTR_TYPEDEF(IXMLDOMText, IID_IXMLDOMText);
_COM_SMARTPTR_TYPEDEF(IXMLDOMDocumentType, IID_IXMLDOMDocumentType);
_COM_SMARTPTR_TYPEDEF(IXMLDOMNamedNodeMap, IID_IXMLDOMNamedNodeMap);
_COM_SMARTPTR_TYPEDEF(IXMLDOMParseError, IID_IXMLDOMParseError);
_COM_SMARTPTR_TYPEDEF(IXMLDOMProcessingInstruction, IID_IXMLDOMProcessingInstruction);

const CLSID kDocument = {0x2933BF90, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

/// COM for this thread, as long as it lives.
class ComInUse {
public:
    ComInUse() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComInUse() {
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    ComInUse(const ComInUse&) = delete;
    ComInUse& operator=(const ComInUse&) = delete;

private:
    HRESULT m_result;
};

void check(HRESULT result) {
    if (FAILED(result)) _com_issue_error(result);
}

/// An empty document that reads at once and asks nobody for anything.
IXMLDOMDocumentPtr newDocument() {
    IXMLDOMDocumentPtr document;
    check(document.CreateInstance(kDocument));
    check(document->put_async(VARIANT_FALSE));
    check(document->put_validateOnParse(VARIANT_FALSE));
    check(document->put_resolveExternals(VARIANT_FALSE));
    return document;
}

// Writing.

void append(IXMLDOMNode* parent, IXMLDOMNode* child) {
    IXMLDOMNodePtr appended;
    check(parent->appendChild(child, &appended));
}

/// Begins a line, indented.
void breakLine(IXMLDOMDocument* document, IXMLDOMNode* parent, int depth) {
    IXMLDOMTextPtr text;
    const CString line = L"\n" + CString(L' ', 2 * depth);
    check(document->createTextNode(_bstr_t(line.GetString()), &text));
    append(parent, text);
}

IXMLDOMElementPtr elementIn(IXMLDOMDocument* document, const Element& source, int depth, bool lines) {
    IXMLDOMElementPtr element;
    check(document->createElement(_bstr_t(source.name.GetString()), &element));
    for (const auto& [name, value] : source.attributes)
        check(element->setAttribute(_bstr_t(name.GetString()), _variant_t(value.GetString())));
    for (const Element& child : source.children) {
        if (lines) breakLine(document, element, depth + 1);
        append(element, elementIn(document, child, depth + 1, lines));
    }
    if (lines && !source.children.empty()) breakLine(document, element, depth);
    return element;
}

// Reading.

CString nameOf(IXMLDOMNode* node) {
    _bstr_t name;
    check(node->get_nodeName(name.GetAddress()));
    return CString(static_cast<const wchar_t*>(name));
}

void readAttributes(IXMLDOMNode* node, Element& element) {
    IXMLDOMNamedNodeMapPtr attributes;
    check(node->get_attributes(&attributes));
    long count = 0;
    if (attributes != nullptr) check(attributes->get_length(&count));
    for (long i = 0; i < count; ++i) {
        IXMLDOMNodePtr attribute;
        check(attributes->get_item(i, &attribute));
        _variant_t value;
        check(attribute->get_nodeValue(&value));
        value.ChangeType(VT_BSTR);
        element.put(nameOf(attribute), CString(value.bstrVal));
    }
}

/// False for what nests too deep.
bool readElement(IXMLDOMNode* node, Element& element, int depth) {
    if (depth > kDeepestElement) return false;
    element.name = nameOf(node);
    readAttributes(node, element);
    IXMLDOMNodePtr child;
    check(node->get_firstChild(&child));
    while (child != nullptr) {
        DOMNodeType type = NODE_INVALID;
        check(child->get_nodeType(&type));
        if (type == NODE_ELEMENT) {
            element.children.emplace_back();
            if (!readElement(child, element.children.back(), depth + 1)) return false;
        }
        IXMLDOMNodePtr next;
        check(child->get_nextSibling(&next));
        child = next;
    }
    return true;
}

CString problemOf(IXMLDOMDocument* document) {
    IXMLDOMParseErrorPtr error;
    long line = 0, column = 0;
    if (SUCCEEDED(document->get_parseError(&error)) && error != nullptr) {
        error->get_line(&line);
        error->get_linepos(&column);
    }
    CString lineText, columnText;
    lineText.Format(L"%ld", line);
    columnText.Format(L"%ld", column);
    return TextOf(Problem::notXml, lineText, columnText);
}

bool elementOf(IXMLDOMDocument* document, Element& root, CString& problem) {
    IXMLDOMElementPtr top;
    IXMLDOMDocumentTypePtr type;
    check(document->get_documentElement(&top));
    check(document->get_doctype(&type));
    if (top == nullptr) {
        problem = problemOf(document);
        return false;
    }
    // A document type could make much out of little, and layouts need none.
    if (type != nullptr) {
        problem = TextOf(Fault{FaultKind::unknownElement, L"DOCTYPE", {}, {}});
        return false;
    }
    Element read;
    if (!readElement(top, read, 0)) {
        problem = TextOf(Fault{FaultKind::tooDeep, nameOf(top), {}, {}});
        return false;
    }
    root = std::move(read);
    return true;
}

/// The bytes of a file; false where there are none to be had.
bool readBytes(const CString& path, _variant_t& bytes, CString& problem) {
    CFile file;
    problem = TextOf(Problem::notRead, path);
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite)) return false;
    try {
        const ULONGLONG length = file.GetLength();
        if (length > kLargestFile) {
            problem = TextOf(Problem::tooLarge, path);
            return false;
        }
        SAFEARRAY* const array = ::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(length));
        if (array == nullptr) return false;
        bytes.vt = VT_ARRAY | VT_UI1;
        bytes.parray = array;
        return length != 0 && file.Read(array->pvData, static_cast<UINT>(length)) == length;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

/// A document with the element, in lines, and what says how it is encoded.
IXMLDOMDocumentPtr documentOf(const Element& root) {
    const IXMLDOMDocumentPtr document = newDocument();
    IXMLDOMProcessingInstructionPtr head;
    check(document->createProcessingInstruction(_bstr_t(L"xml"),
                                                _bstr_t(L"version=\"1.0\" encoding=\"UTF-8\""), &head));
    append(document, head);
    append(document, elementIn(document, root, 0, true));
    return document;
}

/// A file beside `path` takes its place once it is complete.
bool writeDocument(IXMLDOMDocument* document, const CString& path) {
    const CString beside = path + L".new";
    if (FAILED(document->save(_variant_t(beside.GetString())))) {
        ::DeleteFileW(beside);
        return false;
    }
    if (::MoveFileExW(beside, path, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return true;
    ::DeleteFileW(beside);
    return false;
}

}  // namespace

bool TextOfElement(const Element& root, CString& text) try {
    const ComInUse com;
    _bstr_t written;
    check(elementIn(newDocument(), root, 0, false)->get_xml(written.GetAddress()));
    text = static_cast<const wchar_t*>(written);
    return true;
} catch (const _com_error&) {
    return false;
}

bool ElementOfText(const CString& text, Element& root, CString& problem) try {
    const ComInUse com;
    const IXMLDOMDocumentPtr document = newDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    document->loadXML(_bstr_t(text.GetString()), &loaded);
    return elementOf(document, root, problem);
} catch (const _com_error&) {
    problem = TextOf(Problem::refused);
    return false;
}

bool WriteElement(const CString& path, const Element& root, CString& problem) try {
    const ComInUse com;
    problem = TextOf(Problem::notWritten, path);
    return writeDocument(documentOf(root), path);
} catch (const _com_error&) {
    return false;
}

bool ReadElement(const CString& path, Element& root, CString& problem) try {
    const ComInUse com;
    _variant_t bytes;
    if (!readBytes(path, bytes, problem)) return false;
    const IXMLDOMDocumentPtr document = newDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    document->load(bytes, &loaded);
    return elementOf(document, root, problem);
} catch (const _com_error&) {
    return false;
}

}  // namespace layouts
