// CPrintInfo: what a view and the printing of it tell each other.
#pragma once

#include <kmfc/geometry.h>
#include <kmfc/print_dialog.h>

/// Lives as long as one print job. The pages are in the print dialog, which belongs to the object, as does
/// the printer's device context in it.
struct KMFC_API CPrintInfo {
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;
    BOOL m_bPreview = FALSE;          ///< pages are shown, not printed
    BOOL m_bDirect = FALSE;           ///< nothing is asked
    BOOL m_bContinuePrinting = TRUE;  ///< FALSE from OnPrepareDC ends the job before the page
    UINT m_nCurPage = 1;              ///< the page that is printed
    UINT m_nNumPreviewPages = 0;      ///< shown side by side, 1 or 2; 0 for the application's
    CString m_strPageDesc;            ///< how pages are named, for one and for two: "Page %u\nPages %u-%u\n"
    LPVOID m_lpUserData = nullptr;    ///< for the program
    CRect m_rectDraw{0, 0, 0, 0};     ///< what is left of the page, logical units
    int m_nJobNumber = SP_ERROR;      ///< as the system counts; SP_ERROR before the job begins

    // The document's pages; from 1 to 65535 at first, which stands for a number that isn't known.
    void SetMinPage(UINT nMinPage) { m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage); }
    void SetMaxPage(UINT nMaxPage) { m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage); }
    UINT GetMinPage() const { return m_pPD->m_pd.nMinPage; }
    UINT GetMaxPage() const { return m_pPD->m_pd.nMaxPage; }
    /// What is printed of them: the range that the user gave, otherwise all.
    UINT GetFromPage() const { return m_pPD->PrintRange() ? m_pPD->m_pd.nFromPage : GetMinPage(); }
    UINT GetToPage() const { return m_pPD->PrintRange() ? m_pPD->m_pd.nToPage : GetMaxPage(); }
};
