// CBitmapButton: a push button with a bitmap for each state.
#pragma once

#include <kmfc/button.h>

/// An owner-drawn button that shows one of its bitmaps.
class KMFC_API CBitmapButton : public CButton {
    DECLARE_DYNAMIC(CBitmapButton)
public:
    CBitmapButton() = default;
    CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                  LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);

    /// Loads the bitmaps; FALSE when the first is missing. States without a bitmap of their own show the
    /// first.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    /// Subclasses a dialog's button, loads the bitmaps named after its caption with U, D, F and X appended,
    /// and sizes it to fit.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    /// Makes the button as large as its first bitmap.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;
};
