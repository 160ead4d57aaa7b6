// The system's colour and font dialogs, and the base of all of the system's dialogs.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <kmfc/dialog.h>

/// Base of the system's dialogs. Modal only: DoModal answers IDOK or IDCANCEL.
class KMFC_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    void OnOK() override;
    void OnCancel() override;
    INT_PTR run(BOOL (*show)(void* data), void* data, HWND& owner);
    /// The hook that the system's dialogs call first of all; asks the dialog's object by answer_hook.
    static UINT_PTR CALLBACK dialog_hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Answers what the system tells the hook; 0 leaves it to the system. Starts OnInitDialog.
    virtual UINT_PTR answer_hook(UINT message);
    DECLARE_MESSAGE_MAP()
};

/// The colour dialog.
class KMFC_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    INT_PTR DoModal() override;
    /// While the dialog is shown, the colour selected in it.
    void SetCurrentColor(COLORREF clr);
    /// The colour chosen, or the initial one.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// The 16 custom colours, shared by all colour dialogs of the process and changed by the user.
    static COLORREF* PASCAL GetSavedCustomColors();

    CHOOSECOLORW m_cc = {};  ///< for changes before DoModal

protected:
    /// Asked before the dialog closes; TRUE keeps it open.
    virtual BOOL OnColorOK();
    UINT_PTR answer_hook(UINT message) override;
    DECLARE_MESSAGE_MAP()
};

/// The font dialog.
class KMFC_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)
public:
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);

    INT_PTR DoModal() override;
    /// The font chosen; while the dialog is shown, the one selected in it.
    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    int GetSize() const { return m_cf.iPointSize; }  ///< in tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_lf.lfUnderline != 0; }
    BOOL IsBold() const { return m_lf.lfWeight >= FW_BOLD; }
    BOOL IsItalic() const { return m_lf.lfItalic != 0; }

    CHOOSEFONTW m_cf = {};  ///< for changes before DoModal
    LOGFONTW m_lf = {};     ///< the font shown first, then the one chosen

protected:
    TCHAR m_szStyleName[64] = {};
};
