#include <kmfc/ole_data.h>

namespace {

FORMATETC FormatOf(CLIPFORMAT format, const FORMATETC* more, DWORD tymed) {
    if (!more) return {format, nullptr, DVASPECT_CONTENT, -1, tymed};
    FORMATETC full = *more;
    if (format != 0) full.cfFormat = format;
    return full;
}

constexpr DWORD kAnyMedium =
    TYMED_HGLOBAL | TYMED_FILE | TYMED_ISTREAM | TYMED_ISTORAGE | TYMED_GDI | TYMED_MFPICT | TYMED_ENHMF;

/// A copy of memory, null without memory.
HGLOBAL CopyOf(HGLOBAL source) {
    const SIZE_T size = ::GlobalSize(source);
    const HGLOBAL copy = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (!copy) return nullptr;
    CopyMemory(::GlobalLock(copy), ::GlobalLock(source), size);
    ::GlobalUnlock(source);
    ::GlobalUnlock(copy);
    return copy;
}

}  // namespace

void COleDataObject::Attach(LPDATAOBJECT lpDataObject, BOOL bAutoRelease) {
    Release();
    m_lpDataObject = lpDataObject;
    m_autoRelease = bAutoRelease;
}

LPDATAOBJECT COleDataObject::Detach() {
    LPDATAOBJECT object = m_lpDataObject;
    if (object && !m_autoRelease) object->AddRef();
    m_autoRelease = FALSE;
    Release();
    return object;
}

void COleDataObject::Release() {
    if (m_formats) m_formats->Release();
    if (m_lpDataObject && m_autoRelease) m_lpDataObject->Release();
    m_formats = nullptr;
    m_lpDataObject = nullptr;
}

void COleDataObject::BeginEnumFormats() {
    if (m_formats) m_formats->Release();
    m_formats = nullptr;
    if (m_lpDataObject) m_lpDataObject->EnumFormatEtc(DATADIR_GET, &m_formats);
}

BOOL COleDataObject::GetNextFormat(LPFORMATETC lpFormatEtc) {
    return m_formats && m_formats->Next(1, lpFormatEtc, nullptr) == S_OK;
}

BOOL COleDataObject::GetData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc) {
    FORMATETC format = FormatOf(cfFormat, lpFormatEtc, kAnyMedium);
    return m_lpDataObject && SUCCEEDED(m_lpDataObject->GetData(&format, lpStgMedium));
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    FORMATETC format = FormatOf(cfFormat, lpFormatEtc, TYMED_HGLOBAL);
    format.tymed = TYMED_HGLOBAL;
    STGMEDIUM medium = {};
    if (!m_lpDataObject || FAILED(m_lpDataObject->GetData(&format, &medium))) return nullptr;
    HGLOBAL memory = nullptr;
    if (medium.tymed == TYMED_HGLOBAL && !medium.pUnkForRelease) return medium.hGlobal;
    if (medium.tymed == TYMED_HGLOBAL) memory = CopyOf(medium.hGlobal);
    ::ReleaseStgMedium(&medium);
    return memory;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    FORMATETC format = FormatOf(cfFormat, lpFormatEtc, kAnyMedium);
    return m_lpDataObject && m_lpDataObject->QueryGetData(&format) == S_OK;
}
