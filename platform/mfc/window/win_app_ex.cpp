#include <kmfc/win_app_ex.h>

#include <kmfc/settings_store.h>
#include <kmfc/visual_manager.h>

namespace {

constexpr const wchar_t* kDefaultBase = L"Workspace";

}  // namespace

IMPLEMENT_DYNAMIC(CWinAppEx, CWinApp)

CWinAppEx::CWinAppEx(BOOL bResourceSmartUpdate)
    : m_strRegSection(kDefaultBase), m_bResourceSmartUpdate(bResourceSmartUpdate) {}
CWinAppEx::~CWinAppEx() = default;

int CWinAppEx::ExitInstance() {
    CMFCVisualManager::DestroyInstance(TRUE);
    return CWinApp::ExitInstance();
}

LPCTSTR CWinAppEx::SetRegistryBase(LPCTSTR lpszSectionName) {
    m_strRegSection = lpszSectionName != nullptr ? lpszSectionName : kDefaultBase;
    return m_strRegSection;
}

CString CWinAppEx::GetRegSectionPath(LPCTSTR szSectionAdd) {
    CString path = AFXGetRegPath(m_strRegSection);
    if (szSectionAdd != nullptr && *szSectionAdd != L'\0') path += szSectionAdd;
    return path.Right(1) == L"\\" ? path : path + L"\\";
}

BOOL CWinAppEx::CleanState(LPCTSTR lpszSectionName) {
    CSettingsStoreSP keeper;
    return keeper.Create(FALSE, FALSE).DeleteKey(GetRegSectionPath(lpszSectionName));
}

BOOL CWinAppEx::IsStateExists(LPCTSTR lpszSectionName) {
    CSettingsStoreSP keeper;
    return keeper.Create(FALSE, TRUE).Open(GetRegSectionPath(lpszSectionName));
}

template <class Use>
bool CWinAppEx::in_section(LPCTSTR section, bool writes, Use use) {
    CSettingsStoreSP keeper;
    CSettingsStore& store = keeper.Create(FALSE, !writes);
    const CString path = GetRegSectionPath(section);
    return (writes ? store.CreateKey(path) : store.Open(path)) && use(store);
}

int CWinAppEx::GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault) {
    int value = nDefault;
    in_section(lpszSubSection, false, [&](CSettingsStore& store) { return store.Read(lpszEntry, value); });
    return value;
}

CString CWinAppEx::GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    CString value = lpszDefault;
    in_section(lpszSubSection, false, [&](CSettingsStore& store) { return store.Read(lpszEntry, value); });
    return value;
}

BOOL CWinAppEx::GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    return in_section(lpszSubSection, false,
                      [&](CSettingsStore& store) { return store.Read(lpszEntry, ppData, pBytes); });
}

BOOL CWinAppEx::GetSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj) {
    return in_section(lpszSubSection, false,
                      [&](CSettingsStore& store) { return store.Read(lpszEntry, obj); });
}

BOOL CWinAppEx::WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue) {
    return in_section(lpszSubSection, true,
                      [&](CSettingsStore& store) { return store.Write(lpszEntry, nValue); });
}

BOOL CWinAppEx::WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    return in_section(lpszSubSection, true,
                      [&](CSettingsStore& store) { return store.Write(lpszEntry, lpszValue); });
}

BOOL CWinAppEx::WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    return in_section(lpszSubSection, true,
                      [&](CSettingsStore& store) { return store.Write(lpszEntry, pData, nBytes); });
}

BOOL CWinAppEx::WriteSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj) {
    return in_section(lpszSubSection, true,
                      [&](CSettingsStore& store) { return store.Write(lpszEntry, obj); });
}
