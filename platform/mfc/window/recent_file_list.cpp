#include <kmfc/recent_file_list.h>

#include <kmfc/app.h>
#include <kmfc/menu.h>

namespace {

CString full_path(LPCTSTR path) {
    wchar_t full[MAX_PATH] = {};
    const DWORD length = ::GetFullPathNameW(path, MAX_PATH, full, nullptr);
    return length == 0 || length >= MAX_PATH ? CString(path) : CString(full);
}

/// A path of at most `most` characters: folders in the middle give way to dots; at least the name stays if
/// asked.
CString shortened(const CString& path, int most, bool atLeastName) {
    if (path.GetLength() <= most) return path;
    const int name = path.ReverseFind(L'\\') + 1;
    const int nameLength = path.GetLength() - name;
    if (nameLength > most) return atLeastName ? path.Mid(name) : CString();
    // The volume (or server and share) and as many of the last folders as there is room for.
    int volume = path.Find(L'\\', path.Left(2) == L"\\\\" ? path.Find(L'\\', 2) + 1 : 0) + 1;
    if (volume <= 0) volume = 0;
    const CString front = path.Left(volume) + L"...";
    for (int cut = path.Find(L'\\', volume); cut >= 0; cut = path.Find(L'\\', cut + 1)) {
        if (front.GetLength() + path.GetLength() - cut <= most) return front + path.Mid(cut);
    }
    return path.Mid(name);
}

/// A menu takes a single ampersand for the mark of an access key.
CString for_menu(CString text) {
    text.Replace(L"&", L"&&");
    return text;
}

}  // namespace

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                                 int nMaxDispLen)
    : m_nSize(nSize),
      m_arrNames(new CString[static_cast<size_t>(nSize)]),
      m_strSectionName(lpszSection),
      m_strEntryFormat(lpszEntryFormat),
      m_nStart(nStart),
      m_nMaxDisplayLength(nMaxDispLen) {}

CRecentFileList::~CRecentFileList() { delete[] m_arrNames; }

CString& CRecentFileList::operator[](int nIndex) {
    ENSURE_ARG(nIndex >= 0 && nIndex < m_nSize);
    return m_arrNames[nIndex];
}

void CRecentFileList::Add(LPCTSTR lpszPathName) {
    ENSURE_ARG(lpszPathName != nullptr);
    const CString path = full_path(lpszPathName);
    int place = 0;
    while (place < m_nSize - 1 && m_arrNames[place].CompareNoCase(path) != 0) ++place;
    for (; place > 0; --place) m_arrNames[place] = m_arrNames[place - 1];
    m_arrNames[0] = path;
}

void CRecentFileList::Remove(int nIndex) {
    if (nIndex < 0 || nIndex >= m_nSize) return;
    for (int i = nIndex; i < m_nSize - 1; ++i) m_arrNames[i] = m_arrNames[i + 1];
    m_arrNames[m_nSize - 1].Empty();
}

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const {
    if (nIndex < 0 || nIndex >= m_nSize || m_arrNames[nIndex].IsEmpty()) return FALSE;
    const CString& path = m_arrNames[nIndex];
    const int name = path.ReverseFind(L'\\') + 1;
    const bool here = name == nCurDir && ::_wcsnicmp(path, lpszCurDir, static_cast<size_t>(nCurDir)) == 0;
    strName = here ? path.Mid(name) : shortened(path, m_nMaxDisplayLength, bAtLeastName != FALSE);
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI) {
    CMenu* menu = pCmdUI->m_pMenu;
    if (m_strOriginal.IsEmpty() && menu != nullptr)
        menu->GetMenuString(pCmdUI->m_nID, m_strOriginal, MF_BYCOMMAND);
    if (m_arrNames[0].IsEmpty()) {
        if (!m_strOriginal.IsEmpty()) pCmdUI->SetText(m_strOriginal);
        pCmdUI->Enable(FALSE);
        return;
    }
    if (menu == nullptr) return;
    for (int i = 0; i < m_nSize; ++i) menu->DeleteMenu(pCmdUI->m_nID + static_cast<UINT>(i), MF_BYCOMMAND);

    wchar_t folder[MAX_PATH + 1] = {};
    const DWORD room = ::GetCurrentDirectoryW(MAX_PATH, folder);
    if (room > 0 && room < MAX_PATH && folder[room - 1] != L'\\') ::wcscat(folder, L"\\");
    const int folderLength = static_cast<int>(::wcslen(folder));
    CString name, text;
    for (int i = 0; i < m_nSize && GetDisplayName(name, i, folder, folderLength); ++i) {
        // The first nine have their number for an access key, the tenth its nought.
        const UINT number = m_nStart + 1 + static_cast<UINT>(i);
        if (number < 10)
            text.Format(L"&%u %s", number, for_menu(name).GetString());
        else if (number == 10)
            text.Format(L"1&0 %s", for_menu(name).GetString());
        else
            text.Format(L"%u %s", number, for_menu(name).GetString());
        menu->InsertMenu(pCmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID++, text);
    }
    // The caller goes on behind what was put in.
    --pCmdUI->m_nIndex;
    pCmdUI->m_nIndexMax = static_cast<UINT>(menu->GetMenuItemCount());
    pCmdUI->m_bEnableChanged = TRUE;
}

void CRecentFileList::ReadList() {
    CString entry;
    for (int i = 0; i < m_nSize; ++i) {
        entry.Format(m_strEntryFormat, i + 1);
        m_arrNames[i] = AfxGetApp()->GetProfileString(m_strSectionName, entry);
    }
}

void CRecentFileList::WriteList() {
    CWinApp* app = AfxGetApp();
    app->WriteProfileString(m_strSectionName, nullptr, nullptr);
    CString entry;
    for (int i = 0; i < m_nSize; ++i) {
        entry.Format(m_strEntryFormat, i + 1);
        if (!m_arrNames[i].IsEmpty()) app->WriteProfileString(m_strSectionName, entry, m_arrNames[i]);
    }
}
