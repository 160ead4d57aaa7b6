// CNavFileDlg: what is chosen at OK.
#include <ktui/nav/nav_file_dlg.h>

#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/open_menu.h>
#include <ktui/nav/place_list.h>
#include <ktui/nav/recent_folder.h>
#include <ktui/nav/view_memory.h>

BOOL CNavFileDlg::OnFileNameOK() {
    SaveViewState(*this);
    savePlaces(0);
    if (!takesUrl()) return TRUE;
    applyMenuCommand();
    addResults();
    SelectFilterIndex(static_cast<int>(m_ofn.nFilterIndex) - 1);
    // Kept: a refusal leaves the results in the array.
    if (m_owner->m_owner->OnFileNameOK()) return TRUE;
    return CFileDialog::OnFileNameOK();
}

/// Settles whether an address was typed; false for one that is not wanted.
bool CNavFileDlg::takesUrl() {
    if (!m_owner->m_noURLFileTransfer && !m_owner->m_noURLsAllowed) return true;
    const CString typed = TypedName();
    if (typed.IsEmpty()) return true;
    const bool url = CountsAsUrl(typed, GetPathName(), m_ofn.lpstrFile);
    if (url && m_owner->m_noURLsAllowed) return false;
    m_urlText = url ? typed : CString();
    return true;
}

void CNavFileDlg::applyMenuCommand() const {
    int noTemplate = m_owner->m_openNoTemplateSelection;
    ApplyOpenMenuCommand(m_chosenMenuCommand, m_owner->m_readOnlySpecified, noTemplate);
    m_owner->m_openNoTemplateSelection = static_cast<KtUiOpenNoTemplateFlag>(noTemplate);
}

void CNavFileDlg::addResults() {
    const auto add = [this](const CString& text) {
        if (CNavData* const data = m_owner->m_dataArray->AddData()) data->SetText(text);
    };
    if (!m_urlText.IsEmpty()) {
        add(m_urlText);
        return;
    }
    for (POSITION at = GetStartPosition(); at != nullptr;) {
        const CString path = GetNextPathName(at);
        add(path);
        keepAsRecent(path);
    }
}

void CNavFileDlg::keepAsRecent(const CString& path) const {
    if (m_placesList && !m_placesList->RecentFolder().IsEmpty())
        AddToRecentFolder(path, m_placesList->RecentFolder());
}
