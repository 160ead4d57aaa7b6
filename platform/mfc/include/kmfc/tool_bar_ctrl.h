// CToolBarCtrl: a toolbar as the system has it.
#pragma once

#include <kmfc/image_list.h>
#include <kmfc/wnd.h>

class CToolTipCtrl;
struct IDropTarget;

/// A toolbar control. Functions that take `nID` mean the command of a button, others its place from 0. -1 and
/// FALSE report failures.
class KMFC_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
public:
    CToolBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // States of a button.
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) { return set(TB_ENABLEBUTTON, nID, bEnable); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return set(TB_CHECKBUTTON, nID, bCheck); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return set(TB_PRESSBUTTON, nID, bPress); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return set(TB_HIDEBUTTON, nID, bHide); }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE) {
        return set(TB_INDETERMINATE, nID, bIndeterminate);
    }
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE) { return set(TB_MARKBUTTON, nID, fHighlight); }
    BOOL IsButtonEnabled(int nID) const { return send(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return send(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return send(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return send(TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return send(TB_ISBUTTONINDETERMINATE, nID); }
    BOOL IsButtonHighlighted(int nID) const { return send(TB_ISBUTTONHIGHLIGHTED, nID); }
    /// TBSTATE_ bits.
    BOOL SetState(int nID, UINT nState) { return set(TB_SETSTATE, nID, static_cast<int>(nState)); }
    int GetState(int nID) const { return send(TB_GETSTATE, nID); }

    // Buttons.
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
        return send(TB_ADDBUTTONSW, nNumButtons, lpButtons);
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton) { return send(TB_INSERTBUTTONW, nIndex, lpButton); }
    BOOL DeleteButton(int nIndex) { return send(TB_DELETEBUTTON, nIndex); }
    BOOL MoveButton(UINT nOldPos, UINT nNewPos) {
        return static_cast<BOOL>(SendMessage(TB_MOVEBUTTON, nOldPos, static_cast<LPARAM>(nNewPos)));
    }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const { return send(TB_GETBUTTON, nIndex, lpButton); }
    int GetButtonCount() const { return send(TB_BUTTONCOUNT); }
    int CommandToIndex(UINT nID) const { return send(TB_COMMANDTOINDEX, static_cast<int>(nID)); }
    BOOL SetCmdID(int nIndex, UINT nID) { return set(TB_SETCMDID, nIndex, static_cast<int>(nID)); }
    /// By TBIF_ flags; cbSize is set here.
    BOOL GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi);

    // Places and sizes, in pixels.
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return send(TB_GETITEMRECT, nIndex, lpRect); }
    BOOL GetRect(int nID, LPRECT lpRect) const { return send(TB_GETRECT, nID, lpRect); }
    /// The button at a point; what is negative is a separator, or the button that is nearest.
    int HitTest(LPPOINT ppt) const { return send(TB_HITTEST, 0, ppt); }
    BOOL SetButtonSize(CSize size) { return size_message(TB_SETBUTTONSIZE, size); }
    CSize GetButtonSize() const { return CSize(static_cast<DWORD>(SendMessage(TB_GETBUTTONSIZE))); }
    BOOL SetBitmapSize(CSize size) { return size_message(TB_SETBITMAPSIZE, size); }
    BOOL SetButtonWidth(int cxMin, int cxMax) { return size_message(TB_SETBUTTONWIDTH, CSize(cxMin, cxMax)); }
    void SetButtonStructSize(int nSize) { send(TB_BUTTONSTRUCTSIZE, nSize); }
    BOOL SetIndent(int iIndent) { return send(TB_SETINDENT, iIndent); }
    BOOL GetMaxSize(LPSIZE pSize) const { return send(TB_GETMAXSIZE, 0, pSize); }
    CSize GetPadding() const { return CSize(static_cast<DWORD>(SendMessage(TB_GETPADDING))); }
    CSize SetPadding(CSize size) {
        return CSize(static_cast<DWORD>(SendMessage(TB_SETPADDING, 0, MAKELPARAM(size.cx, size.cy))));
    }
    void GetMetrics(LPTBMETRICS ptbm) const { send(TB_GETMETRICS, 0, ptbm); }
    void SetMetrics(LPTBMETRICS ptbm) { send(TB_SETMETRICS, 0, ptbm); }
    void AutoSize() { send(TB_AUTOSIZE); }
    int GetRows() const { return send(TB_GETROWS); }
    /// Lays out in about `nRows` rows; `lpRect`, which may be null, gets the bounds that come of it.
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect) {
        SendMessage(TB_SETROWS, MAKEWPARAM(nRows, bLarger), reinterpret_cast<LPARAM>(lpRect));
    }

    // Pictures. Bitmaps must live as long as the control; image lists stay the caller's, and the result of
    // setting one is the one before.
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap) { return send(TB_REPLACEBITMAP, 0, pReplaceBitmap); }
    int GetBitmap(int nID) const { return send(TB_GETBITMAP, nID); }
    BOOL ChangeBitmap(int idButton, int iBitmap) { return set(TB_CHANGEBITMAP, idButton, iBitmap); }
    UINT GetBitmapFlags() const { return static_cast<UINT>(send(TB_GETBITMAPFLAGS)); }
    void LoadImages(int iBitmapID, HINSTANCE hinst) {
        SendMessage(TB_LOADIMAGES, static_cast<WPARAM>(iBitmapID), reinterpret_cast<LPARAM>(hinst));
    }
    CImageList* GetImageList() const { return list(TB_GETIMAGELIST); }
    CImageList* SetImageList(CImageList* pImageList) { return list(TB_SETIMAGELIST, pImageList); }
    CImageList* GetHotImageList() const { return list(TB_GETHOTIMAGELIST); }
    CImageList* SetHotImageList(CImageList* pImageList) { return list(TB_SETHOTIMAGELIST, pImageList); }
    CImageList* GetDisabledImageList() const { return list(TB_GETDISABLEDIMAGELIST); }
    CImageList* SetDisabledImageList(CImageList* pImageList) {
        return list(TB_SETDISABLEDIMAGELIST, pImageList);
    }
    CImageList* GetPressedImageList();
    CImageList* SetPressedImageList(int iImageID, CImageList* pImageList);

    // Texts. Added ones count from 0; a text of several ends with two zeros.
    int AddString(UINT nStringID);
    int AddStrings(LPCTSTR lpszStrings) { return send(TB_ADDSTRINGW, 0, lpszStrings); }
    int GetString(int nString, LPTSTR lpszString, size_t cchMaxLen) const;
    int GetString(int nString, CString& str) const;
    BOOL SetMaxTextRows(int iMaxRows) { return send(TB_SETMAXTEXTROWS, iMaxRows); }
    int GetMaxTextRows() const { return send(TB_GETTEXTROWS); }
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags) {
        return static_cast<DWORD>(SendMessage(TB_SETDRAWTEXTFLAGS, dwMask, static_cast<LPARAM>(dwDTFlags)));
    }

    // Behaviour.
    DWORD GetStyle() const { return static_cast<DWORD>(send(TB_GETSTYLE)); }
    void SetStyle(DWORD dwStyle) { SendMessage(TB_SETSTYLE, 0, static_cast<LPARAM>(dwStyle)); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(send(TB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExStyle) {
        return static_cast<DWORD>(SendMessage(TB_SETEXTENDEDSTYLE, 0, static_cast<LPARAM>(dwExStyle)));
    }
    /// Whom the control tells what happens.
    void SetOwner(CWnd* pWnd) {
        SendMessage(TB_SETPARENT, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWnd)));
    }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    BOOL GetAnchorHighlight() const { return send(TB_GETANCHORHIGHLIGHT); }
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE) { return send(TB_SETANCHORHIGHLIGHT, fAnchor); }
    int GetHotItem() const { return send(TB_GETHOTITEM); }
    int SetHotItem(int nHot) { return send(TB_SETHOTITEM, nHot); }
    BOOL GetInsertMark(TBINSERTMARK* ptbim) const { return send(TB_GETINSERTMARK, 0, ptbim); }
    void SetInsertMark(TBINSERTMARK* ptbim) { send(TB_SETINSERTMARK, 0, ptbim); }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(send(TB_GETINSERTMARKCOLOR)); }
    COLORREF SetInsertMarkColor(COLORREF clrNew) {
        return static_cast<COLORREF>(SendMessage(TB_SETINSERTMARKCOLOR, 0, clrNew));
    }
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const {
        return static_cast<BOOL>(SendMessage(TB_INSERTMARKHITTEST, reinterpret_cast<WPARAM>(ppt),
                                             reinterpret_cast<LPARAM>(ptbim)));
    }
    BOOL MapAccelerator(TCHAR chAccel, UINT* pIDBtn) const {
        return static_cast<BOOL>(SendMessage(TB_MAPACCELERATORW, chAccel, reinterpret_cast<LPARAM>(pIDBtn)));
    }
    BOOL GetColorScheme(COLORSCHEME* lpColorScheme) const;
    void SetColorScheme(const COLORSCHEME* lpColorScheme) { send(TB_SETCOLORSCHEME, 0, lpColorScheme); }
    HRESULT GetDropTarget(IDropTarget** ppDropTarget) const;
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName) {
        return static_cast<HRESULT>(send(TB_SETWINDOWTHEME, 0, pszSubAppName));
    }

    /// Lets the user choose the buttons; the owner is asked by TBN_ notifications.
    void Customize() { send(TB_CUSTOMIZE); }
    /// Buttons and their places, kept below a key of the registry.
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);

private:
    int send(UINT message, int wParam = 0, const void* data = nullptr) const {
        return static_cast<int>(
            SendMessage(message, static_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(data)));
    }
    BOOL set(UINT message, int id, int value) const {
        return static_cast<BOOL>(SendMessage(message, static_cast<WPARAM>(id), MAKELPARAM(value, 0)));
    }
    BOOL size_message(UINT message, CSize size) const {
        return static_cast<BOOL>(SendMessage(message, 0, MAKELPARAM(size.cx, size.cy)));
    }
    CImageList* list(UINT message) const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(message)));
    }
    CImageList* list(UINT message, const CImageList* images) const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
            SendMessage(message, 0, reinterpret_cast<LPARAM>(kmfc::safe_handle(images)))));
    }
    void keep_state(bool save, HKEY root, LPCTSTR subKey, LPCTSTR value);
};
