// CEdit: an edit control.
#pragma once

#include <kmfc/wnd.h>

/// An edit control. Characters and lines count from 0.
class KMFC_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified)); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetRectNP(LPCRECT lpRect) { SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect)); }
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    void GetSel(int& nStartChar, int& nEndChar) const {
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar), reinterpret_cast<LPARAM>(&nEndChar));
    }
    /// Selects from the low to the high word; scrolls the caret into view unless told not to.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
        SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
    }
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
    }
    HLOCAL GetHandle() const { return reinterpret_cast<HLOCAL>(SendMessage(EM_GETHANDLE)); }
    void SetHandle(HLOCAL hBuffer) { SendMessage(EM_SETHANDLE, reinterpret_cast<WPARAM>(hBuffer)); }
    void SetMargins(UINT nLeft, UINT nRight) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    CPoint PosFromChar(UINT nChar) const {
        return CPoint(static_cast<LPARAM>(SendMessage(EM_POSFROMCHAR, nChar)));
    }
    /// The character nearest a point in the low word, its line in the high word.
    int CharFromPos(CPoint pt) const {
        return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
    }
    int LineFromChar(int nIndex = -1) const {
        return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
    }
    int LineIndex(int nLine = -1) const {
        return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
    }
    int LineLength(int nLine = -1) const {
        return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
    }
    void LineScroll(int nLines, int nChars = 0) {
        SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
    }
    /// Copies a line without a closing zero; the first form takes the buffer's size from its first word.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const {
        return static_cast<int>(
            SendMessage(EM_GETLINE, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
    }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetFirstVisibleLine() const { return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR)); }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, ch); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return static_cast<BOOL>(SendMessage(EM_SETTABSTOPS, static_cast<WPARAM>(nTabStops),
                                             reinterpret_cast<LPARAM>(rgTabStops)));
    }
    void SetTabStops() { SendMessage(EM_SETTABSTOPS); }
    BOOL FmtLines(BOOL bAddEOL) {
        return static_cast<BOOL>(SendMessage(EM_FMTLINES, static_cast<WPARAM>(bAddEOL)));
    }
    BOOL SetCueBanner(LPCTSTR lpszText, BOOL fDrawWhenFocused = FALSE) {
        return static_cast<BOOL>(SendMessage(EM_SETCUEBANNER, static_cast<WPARAM>(fDrawWhenFocused),
                                             reinterpret_cast<LPARAM>(lpszText)));
    }
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return static_cast<BOOL>(
            SendMessage(EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(pEditBalloonTip)));
    }
    BOOL HideBalloonTip() { return static_cast<BOOL>(SendMessage(EM_HIDEBALLOONTIP)); }

    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};
