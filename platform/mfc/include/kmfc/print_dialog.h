// CPrintDialog: the system's dialogs for printing and for the printer's settings.
#pragma once

#include <kmfc/common_dialogs.h>

/// Asks what to print and on which printer, or only for the printer. Whoever uses it alone frees hDevMode and
/// hDevNames by GlobalFree and deletes the printer's device context; CWinApp keeps those of the program's
/// printer, and a CPrintInfo deletes the context.
class KMFC_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)
public:
    /// With `bPrintSetupOnly` the printer's settings; otherwise a device context is made as well.
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);

    INT_PTR DoModal() override;
    /// The settings of the default printer, without asking; FALSE without one.
    BOOL GetDefaults();
    /// Makes the printer's device context by hDevNames and hDevMode; null without them. The caller deletes
    /// it.
    HDC CreatePrinterDC();

    // What was chosen.
    int GetCopies() const;
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    /// -1 unless a range of pages was chosen.
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }
    /// The printer's settings, locked: the caller unlocks hDevMode by GlobalUnlock. Null without any.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    /// The device context that DoModal or GetDefaults made.
    HDC GetPrinterDC() const { return m_pd.hDC; }

    PRINTDLGW m_pd = {};  ///< for changes before DoModal

protected:
    DECLARE_MESSAGE_MAP()
};
