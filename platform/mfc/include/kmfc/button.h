// CButton: push, check and radio buttons, group boxes, split and command buttons.
#pragma once

#include <kmfc/wnd.h>

class CImageList;

/// A button control. The pictures it is given stay the caller's.
class KMFC_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    CButton() = default;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    /// Highlights the button without clicking it.
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return static_cast<UINT>(GetStyle() & BS_TYPEMASK); }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    void Click() { SendMessage(BM_CLICK); }

    HICON SetIcon(HICON hIcon) { return static_cast<HICON>(set_image(IMAGE_ICON, hIcon)); }
    HICON GetIcon() const { return static_cast<HICON>(image(IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return static_cast<HBITMAP>(set_image(IMAGE_BITMAP, hBitmap)); }
    HBITMAP GetBitmap() const { return static_cast<HBITMAP>(image(IMAGE_BITMAP)); }
    HCURSOR SetCursor(HCURSOR hCursor) { return static_cast<HCURSOR>(set_image(IMAGE_CURSOR, hCursor)); }
    HCURSOR GetCursor() const { return static_cast<HCURSOR>(image(IMAGE_CURSOR)); }

    /// The size that fits the button's text and picture.
    BOOL GetIdealSize(LPSIZE psize) const { return get(BCM_GETIDEALSIZE, psize); }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const {
        return get(BCM_GETIMAGELIST, pbuttonImagelist);
    }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist) { return get(BCM_SETIMAGELIST, pbuttonImagelist); }
    BOOL GetTextMargin(LPRECT pmargin) const { return get(BCM_GETTEXTMARGIN, pmargin); }
    BOOL SetTextMargin(LPRECT pmargin) { return get(BCM_SETTEXTMARGIN, pmargin); }

    /// Draws the button when it is BS_OWNERDRAW. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    BOOL get(UINT message, void* data) const {
        return static_cast<BOOL>(SendMessage(message, 0, reinterpret_cast<LPARAM>(data)));
    }
    HANDLE set_image(WPARAM type, HANDLE handle) {
        return reinterpret_cast<HANDLE>(SendMessage(BM_SETIMAGE, type, reinterpret_cast<LPARAM>(handle)));
    }
    HANDLE image(WPARAM type) const { return reinterpret_cast<HANDLE>(SendMessage(BM_GETIMAGE, type)); }
};
