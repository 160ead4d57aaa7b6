// CStatic: a text, an icon or a frame.
#pragma once

#include <kmfc/wnd.h>

/// A static control. The pictures it is given stay the caller's.
class KMFC_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic() = default;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);

    // Each setter answers the picture it replaces.
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(send(STM_SETICON, hIcon)); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return static_cast<HBITMAP>(set_image(IMAGE_BITMAP, hBitmap)); }
    HBITMAP GetBitmap() const { return static_cast<HBITMAP>(image(IMAGE_BITMAP)); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile) {
        return static_cast<HENHMETAFILE>(set_image(IMAGE_ENHMETAFILE, hMetaFile));
    }
    HENHMETAFILE GetEnhMetaFile() const { return static_cast<HENHMETAFILE>(image(IMAGE_ENHMETAFILE)); }
    HCURSOR SetCursor(HCURSOR hCursor) { return static_cast<HCURSOR>(set_image(IMAGE_CURSOR, hCursor)); }
    HCURSOR GetCursor() const { return static_cast<HCURSOR>(image(IMAGE_CURSOR)); }

    /// Draws the control when it is SS_OWNERDRAW. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    LRESULT send(UINT message, HANDLE handle) {
        return SendMessage(message, reinterpret_cast<WPARAM>(handle));
    }
    HANDLE set_image(WPARAM type, HANDLE handle) {
        return reinterpret_cast<HANDLE>(SendMessage(STM_SETIMAGE, type, reinterpret_cast<LPARAM>(handle)));
    }
    HANDLE image(WPARAM type) const { return reinterpret_cast<HANDLE>(SendMessage(STM_GETIMAGE, type)); }
};
