#include <kmfc/settings_store.h>

#include <cstring>

#include <kmfc/app.h>
#include <kmfc/archive.h>
#include <kmfc/exceptions.h>

namespace {

CRuntimeClass*& store_class() {
    static CRuntimeClass* chosen = nullptr;
    return chosen;
}

HKEY root_of(BOOL admin) { return admin ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

/// Deletes the objects of a list that could not be read to its end.
void delete_objects(CObList& list) {
    while (!list.IsEmpty()) delete list.RemoveHead();
}

}  // namespace

IMPLEMENT_DYNCREATE(CSettingsStore, CObject)

CSettingsStore::CSettingsStore() : CSettingsStore(FALSE, TRUE) {}
CSettingsStore::CSettingsStore(BOOL bAdmin, BOOL bReadOnly) : m_bAdmin(bAdmin), m_bReadOnly(bReadOnly) {}
CSettingsStore::~CSettingsStore() { CSettingsStore::Close(); }

REGSAM CSettingsStore::rights() const {
    return m_bReadOnly ? KEY_QUERY_VALUE | KEY_NOTIFY | KEY_ENUMERATE_SUB_KEYS : KEY_ALL_ACCESS;
}

BOOL CSettingsStore::Open(LPCTSTR pszPath) {
    Close();
    return ::RegOpenKeyExW(root_of(m_bAdmin), pszPath, 0, rights(), &m_hKey) == ERROR_SUCCESS;
}

BOOL CSettingsStore::CreateKey(LPCTSTR pszPath) {
    Close();
    if (m_bReadOnly) return FALSE;
    return ::RegCreateKeyExW(root_of(m_bAdmin), pszPath, 0, nullptr, REG_OPTION_NON_VOLATILE, rights(),
                             nullptr, &m_hKey, nullptr) == ERROR_SUCCESS;
}

void CSettingsStore::Close() {
    if (m_hKey != nullptr) ::RegCloseKey(m_hKey);
    m_hKey = nullptr;
}

bool CSettingsStore::read_bytes(LPCTSTR name, DWORD type, CByteArray& bytes) {
    DWORD found = 0, size = 0;
    if (m_hKey == nullptr ||
        ::RegQueryValueExW(m_hKey, name, nullptr, &found, nullptr, &size) != ERROR_SUCCESS || found != type)
        return false;
    bytes.SetSize(static_cast<INT_PTR>(size));
    // A value that was changed between the two is not read.
    return size == 0 ||
           (::RegQueryValueExW(m_hKey, name, nullptr, &found, bytes.GetData(), &size) == ERROR_SUCCESS &&
            found == type && static_cast<INT_PTR>(size) == bytes.GetSize());
}

bool CSettingsStore::write_bytes(LPCTSTR name, DWORD type, const void* data, size_t size) {
    return m_hKey != nullptr && ::RegSetValueExW(m_hKey, name, 0, type, static_cast<const BYTE*>(data),
                                                 static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

/// Lets `reader` read the value as an archive; false when it breaks off.
template <class Reader>
bool CSettingsStore::read_archive(LPCTSTR name, Reader reader) {
    CByteArray bytes;
    if (!read_bytes(name, REG_BINARY, bytes)) return false;
    try {
        CMemFile file(bytes.GetData(), static_cast<UINT>(bytes.GetSize()));
        CArchive archive(&file, CArchive::load);
        reader(archive);
        return true;
    } catch (CException* e) {
        e->Delete();
        return false;
    }
}

template <class Writer>
bool CSettingsStore::write_archive(LPCTSTR name, Writer writer) {
    try {
        CMemFile file;
        {
            CArchive archive(&file, CArchive::store);
            writer(archive);
            archive.Close();
        }
        const auto size = static_cast<size_t>(file.GetLength());
        BYTE* const bytes = file.Detach();
        const bool written = write_bytes(name, REG_BINARY, bytes, size);
        ::free(bytes);
        return written;
    } catch (CException* e) {
        e->Delete();
        return false;
    }
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, int& iVal) {
    DWORD number = 0;
    if (!Read(pszKey, number)) return FALSE;
    iVal = static_cast<int>(number);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, DWORD& dwVal) {
    CByteArray bytes;
    if (!read_bytes(pszKey, REG_DWORD, bytes) || bytes.GetSize() != sizeof(DWORD)) return FALSE;
    memcpy(&dwVal, bytes.GetData(), sizeof(DWORD));
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CString& sVal) {
    CByteArray bytes;
    if (!read_bytes(pszKey, REG_SZ, bytes)) return FALSE;
    // What another program stored may lack its end.
    const auto* text = reinterpret_cast<const wchar_t*>(bytes.GetData());
    const auto room = static_cast<size_t>(bytes.GetSize()) / sizeof(wchar_t);
    sVal = CString(text, static_cast<int>(room == 0 ? 0 : wcsnlen(text, room)));
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CStringList& scStringList) {
    CStringList read;
    if (!read_archive(pszKey, [&](CArchive& ar) { read.Serialize(ar); })) return FALSE;
    scStringList.AddTail(&read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CStringArray& scArray) {
    CStringArray read;
    if (!read_archive(pszKey, [&](CArchive& ar) { read.Serialize(ar); })) return FALSE;
    scArray.Copy(read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CDWordArray& dwcArray) {
    CDWordArray read;
    if (!read_archive(pszKey, [&](CArchive& ar) { read.Serialize(ar); })) return FALSE;
    dwcArray.Copy(read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CWordArray& wcArray) {
    CWordArray read;
    if (!read_archive(pszKey, [&](CArchive& ar) { read.Serialize(ar); })) return FALSE;
    wcArray.Copy(read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CByteArray& bcArray) {
    CByteArray read;
    if (!read_bytes(pszKey, REG_BINARY, read)) return FALSE;
    bcArray.Copy(read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, LPPOINT& lpPoint) {
    CByteArray bytes;
    if (lpPoint == nullptr || !read_bytes(pszKey, REG_BINARY, bytes) || bytes.GetSize() != sizeof(POINT))
        return FALSE;
    memcpy(lpPoint, bytes.GetData(), sizeof(POINT));
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CRect& rect) {
    CByteArray bytes;
    if (!read_bytes(pszKey, REG_BINARY, bytes) || bytes.GetSize() != sizeof(RECT)) return FALSE;
    memcpy(static_cast<RECT*>(&rect), bytes.GetData(), sizeof(RECT));
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, BYTE** ppData, UINT* pBytes) {
    CByteArray bytes;
    if (ppData == nullptr || pBytes == nullptr || !read_bytes(pszKey, REG_BINARY, bytes)) return FALSE;
    *pBytes = static_cast<UINT>(bytes.GetSize());
    *ppData = new BYTE[*pBytes];
    if (*pBytes != 0) memcpy(*ppData, bytes.GetData(), *pBytes);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CObList& list) {
    CObList read;
    if (!read_archive(pszKey, [&](CArchive& ar) { read.Serialize(ar); })) {
        delete_objects(read);
        return FALSE;
    }
    list.AddTail(&read);
    return TRUE;
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CObject& obj) {
    return read_archive(pszKey, [&](CArchive& ar) { obj.Serialize(ar); });
}

BOOL CSettingsStore::Read(LPCTSTR pszKey, CObject*& pObj) {
    CObject* read = nullptr;
    if (!read_archive(pszKey, [&](CArchive& ar) { read = ar.ReadObject(nullptr); })) return FALSE;
    pObj = read;
    return TRUE;
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, int iVal) { return Write(pszKey, static_cast<DWORD>(iVal)); }

BOOL CSettingsStore::Write(LPCTSTR pszKey, DWORD dwVal) {
    return write_bytes(pszKey, REG_DWORD, &dwVal, sizeof(dwVal));
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, LPCTSTR pszVal) {
    const LPCTSTR text = pszVal != nullptr ? pszVal : L"";
    return write_bytes(pszKey, REG_SZ, text, (wcslen(text) + 1) * sizeof(wchar_t));
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CStringList& scStringList) {
    return write_archive(pszKey, [&](CArchive& ar) { scStringList.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CStringArray& scArray) {
    return write_archive(pszKey, [&](CArchive& ar) { scArray.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CDWordArray& dwcArray) {
    return write_archive(pszKey, [&](CArchive& ar) { dwcArray.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CWordArray& wcArray) {
    return write_archive(pszKey, [&](CArchive& ar) { wcArray.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CByteArray& bcArray) {
    return write_bytes(pszKey, REG_BINARY, bcArray.GetData(), static_cast<size_t>(bcArray.GetSize()));
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, const CRect& rect) {
    return write_bytes(pszKey, REG_BINARY, static_cast<const RECT*>(&rect), sizeof(RECT));
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, LPPOINT& lpPoint) {
    return lpPoint != nullptr && write_bytes(pszKey, REG_BINARY, lpPoint, sizeof(POINT));
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, LPBYTE pData, UINT nBytes) {
    return write_bytes(pszKey, REG_BINARY, pData, nBytes);
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CObList& list) {
    return write_archive(pszKey, [&](CArchive& ar) { list.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CObject& obj) {
    return write_archive(pszKey, [&](CArchive& ar) { obj.Serialize(ar); });
}

BOOL CSettingsStore::Write(LPCTSTR pszKey, CObject* pObj) {
    return write_archive(pszKey, [&](CArchive& ar) { ar.WriteObject(pObj); });
}

BOOL CSettingsStore::DeleteValue(LPCTSTR pszValue) {
    return m_hKey != nullptr && ::RegDeleteValueW(m_hKey, pszValue) == ERROR_SUCCESS;
}

BOOL CSettingsStore::DeleteKey(LPCTSTR pszPath, BOOL bAdmin) {
    if (m_bReadOnly || pszPath == nullptr || *pszPath == L'\0') return FALSE;
    CString path(pszPath);
    path.TrimRight(L'\\');  // paths of the framework end in one
    return !path.IsEmpty() && ::RegDeleteTreeW(root_of(bAdmin), path) == ERROR_SUCCESS;
}

CSettingsStoreSP::CSettingsStoreSP(DWORD dwUserData) : m_dwUserData(dwUserData) {}
CSettingsStoreSP::~CSettingsStoreSP() { delete m_pRegistry; }

CSettingsStore& CSettingsStoreSP::Create(BOOL bAdmin, BOOL bReadOnly) {
    delete m_pRegistry;
    CRuntimeClass* const made = store_class();
    m_pRegistry = made == nullptr ? nullptr : static_cast<CSettingsStore*>(made->CreateObject());
    if (m_pRegistry == nullptr) m_pRegistry = new CSettingsStore;
    m_pRegistry->m_bAdmin = bAdmin;
    m_pRegistry->m_bReadOnly = bReadOnly;
    m_pRegistry->m_dwUserData = m_dwUserData;
    return *m_pRegistry;
}

BOOL CSettingsStoreSP::SetRuntimeClass(CRuntimeClass* pRTI) {
    if (pRTI != nullptr && !pRTI->IsDerivedFrom(RUNTIME_CLASS(CSettingsStore))) return FALSE;
    store_class() = pRTI;
    return TRUE;
}

CString AFXGetRegPath(LPCTSTR lpszPostFix, LPCTSTR lpszProfileName) {
    CString path;
    if (lpszProfileName != nullptr && *lpszProfileName != L'\0') {
        path = lpszProfileName;
    } else {
        const CWinApp* const app = AfxGetApp();
        path = L"SOFTWARE\\";
        for (const LPCTSTR part : {app != nullptr ? app->m_pszRegistryKey : nullptr,
                                   app != nullptr ? app->m_pszProfileName : nullptr, lpszPostFix})
            if (part != nullptr && *part != L'\0') path += CString(part) + L"\\";
    }
    if (path.Right(1) != L"\\") path += L"\\";
    return path;
}
