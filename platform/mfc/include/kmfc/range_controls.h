// Controls over a range of numbers: spin button, slider, progress bar.
#pragma once

#include <kmfc/wnd.h>

/// A pair of arrows that counts, often for a buddy edit control.
class KMFC_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    CSpinButtonCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel) {
        return static_cast<BOOL>(SendMessage(UDM_SETACCEL, static_cast<WPARAM>(nAccel), as_param(pAccel)));
    }
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const {
        return static_cast<UINT>(SendMessage(UDM_GETACCEL, static_cast<WPARAM>(nAccel), as_param(pAccel)));
    }
    int SetBase(int nBase) { return static_cast<int>(SendMessage(UDM_SETBASE, static_cast<WPARAM>(nBase))); }
    UINT GetBase() const { return static_cast<UINT>(SendMessage(UDM_GETBASE)); }
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    /// The 16-bit forms: the position in the low word, an error flag in the high word.
    int SetPos(int nPos) { return static_cast<short>(SendMessage(UDM_SETPOS, 0, MAKELPARAM(nPos, 0))); }
    int GetPos() const { return static_cast<int>(SendMessage(UDM_GETPOS)); }
    void SetRange(short nLower, short nUpper) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    DWORD GetRange() const { return static_cast<DWORD>(SendMessage(UDM_GETRANGE)); }
    void GetRange(int& lower, int& upper) const { GetRange32(lower, upper); }
    void SetRange32(int nLower, int nUpper) {
        SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange32(int& lower, int& upper) const {
        SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), as_param(&upper));
    }
    int SetPos32(int nPos) { return static_cast<int>(SendMessage(UDM_SETPOS32, 0, nPos)); }
    int GetPos32(LPBOOL lpbError = nullptr) const {
        return static_cast<int>(SendMessage(UDM_GETPOS32, 0, as_param(lpbError)));
    }

private:
    static LPARAM as_param(const void* data) { return reinterpret_cast<LPARAM>(data); }
};

/// A track bar.
class KMFC_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)
public:
    CSliderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetPos() const { return send(TBM_GETPOS); }
    void SetPos(int nPos) { send(TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return send(TBM_GETRANGEMIN); }
    int GetRangeMax() const { return send(TBM_GETRANGEMAX); }
    void GetRange(int& nMin, int& nMax) const { nMin = GetRangeMin(), nMax = GetRangeMax(); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) {
        send(TBM_SETRANGEMIN, static_cast<WPARAM>(bRedraw), nMin);
    }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) {
        send(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SetRangeMin(nMin, bRedraw), SetRangeMax(nMax, bRedraw);
    }
    int GetLineSize() const { return send(TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return send(TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return send(TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return send(TBM_SETPAGESIZE, 0, nSize); }
    void GetSelection(int& nMin, int& nMax) const {
        nMin = send(TBM_GETSELSTART), nMax = send(TBM_GETSELEND);
    }
    void SetSelection(int nMin, int nMax) {
        send(TBM_SETSELSTART, FALSE, nMin), send(TBM_SETSELEND, FALSE, nMax);
    }
    void ClearSel(BOOL bRedraw = FALSE) { send(TBM_CLEARSEL, static_cast<WPARAM>(bRedraw)); }
    UINT GetNumTics() const { return static_cast<UINT>(send(TBM_GETNUMTICS)); }
    int GetTic(int nTic) const { return send(TBM_GETTIC, static_cast<WPARAM>(nTic)); }
    int GetTicPos(int nTic) const { return send(TBM_GETTICPOS, static_cast<WPARAM>(nTic)); }
    BOOL SetTic(int nTic) { return send(TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { send(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
    void ClearTics(BOOL bRedraw = FALSE) { send(TBM_CLEARTICS, static_cast<WPARAM>(bRedraw)); }
    DWORD* GetTicArray() const { return reinterpret_cast<DWORD*>(SendMessage(TBM_GETPTICS)); }
    int GetThumbLength() const { return send(TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) { send(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(nLength)); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    /// Where a tip stands, TBTS_; the place before.
    int SetTipSide(int nLocation) { return send(TBM_SETTIPSIDE, static_cast<WPARAM>(nLocation)); }
    void GetThumbRect(LPRECT lprc) const { SendMessage(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(lprc)); }
    void GetChannelRect(LPRECT lprc) const {
        SendMessage(TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(lprc));
    }
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);

private:
    int send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};

/// A progress bar.
class KMFC_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetStep() const { return static_cast<int>(SendMessage(PBM_GETSTEP)); }
    COLORREF GetBarColor() const { return static_cast<COLORREF>(SendMessage(PBM_GETBARCOLOR)); }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(PBM_GETBKCOLOR)); }
    /// PBST_; setting answers the state before.
    int GetState() const { return static_cast<int>(SendMessage(PBM_GETSTATE)); }
    int SetState(int iState) {
        return static_cast<int>(SendMessage(PBM_SETSTATE, static_cast<WPARAM>(iState)));
    }
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    /// Each answers the position before.
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
    int OffsetPos(int nPos) { return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos))); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep))); }
    COLORREF SetBarColor(COLORREF clrBar) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBARCOLOR, 0, clrBar));
    }
    COLORREF SetBkColor(COLORREF clrNew) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBKCOLOR, 0, clrNew));
    }
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval) {
        return static_cast<BOOL>(SendMessage(PBM_SETMARQUEE, static_cast<WPARAM>(fMarqueeMode), nInterval));
    }
};
