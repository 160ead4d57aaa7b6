// CToolBar: a bar of buttons with pictures, in a frame.
#pragma once

#include <afxcoll.h>
#include <afxres.h>
#include <kmfc/control_bar.h>
#include <kmfc/tool_bar_ctrl.h>

// Styles of buttons of a bar: styles of the control below, states above. Every state but that of a disabled
// button is as the control has it.
constexpr UINT TBBS_BUTTON = TBSTYLE_BUTTON;
constexpr UINT TBBS_SEPARATOR = TBSTYLE_SEP;
constexpr UINT TBBS_CHECKBOX = TBSTYLE_CHECK;
constexpr UINT TBBS_GROUP = TBSTYLE_GROUP;
constexpr UINT TBBS_CHECKGROUP = TBBS_GROUP | TBBS_CHECKBOX;
constexpr UINT TBBS_DROPDOWN = TBSTYLE_DROPDOWN;
constexpr UINT TBBS_AUTOSIZE = TBSTYLE_AUTOSIZE;
constexpr UINT TBBS_NOPREFIX = TBSTYLE_NOPREFIX;
constexpr UINT TBBS_CHECKED = TBSTATE_CHECKED << 16;
constexpr UINT TBBS_PRESSED = TBSTATE_PRESSED << 16;
constexpr UINT TBBS_DISABLED = TBSTATE_ENABLED << 16;
constexpr UINT TBBS_HIDDEN = TBSTATE_HIDDEN << 16;
constexpr UINT TBBS_INDETERMINATE = TBSTATE_INDETERMINATE << 16;
constexpr UINT TBBS_WRAPPED = TBSTATE_WRAP << 16;

/// A toolbar. The frame is told of a press by the button's command, asked for its state when idle, and for
/// its tip by the second line of the command's string. Places of buttons count from 0.
class KMFC_API CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)
public:
    CToolBar() = default;
    ~CToolBar() override;

    /// `dwStyle` has window styles and CBRS_ styles.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    /// The same with styles of the control and room around the buttons, in pixels.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);

    /// Buttons, sizes and the bitmap of the same name, of a TOOLBAR resource. FALSE without one, or when it
    /// is damaged; the bar stays as it is.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource) { return LoadToolBar(MAKEINTRESOURCEW(nIDResource)); }
    /// The pictures of the buttons, side by side; greys become the system's colours of buttons.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCEW(nIDResource)); }
    /// The same of a bitmap that stays the caller's and must outlive the bar.
    BOOL SetBitmap(HBITMAP hbmImageWell);
    /// Buttons of these commands with the pictures in turn; ID_SEPARATOR is a gap. A null array makes hidden
    /// buttons for SetButtonInfo.
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);
    /// Sizes in pixels. A button must be 7 wider and 6 higher than its picture.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    /// The height of the bar in place of that of its buttons.
    void SetHeight(int cyHeight);

    /// -1 when no button has the command.
    int CommandToIndex(UINT nIDFind) const;
    /// ID_SEPARATOR for a gap and for a place without a button.
    UINT GetItemID(int nIndex) const;
    /// In client coordinates; empty for a hidden button and for a place without one.
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);
    /// `iImage` is the picture, or of a gap its width in pixels.
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const { rString = GetButtonText(nIndex); }
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    /// The control that the bar is.
    CToolBarCtrl& GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD dwMode) override;
    /// The room around the buttons goes too.
    void CalcInsideRect(CRect& rect, BOOL bHorz) const override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

protected:
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

private:
    bool button(int index, TBBUTTON& info) const;
    /// Puts a changed button back in its place.
    void put_button(int index, const TBBUTTON& info);
    /// Starts new rows so that none is wider than `width` pixels; for 0 a row for each button.
    void wrap(int width);
    int width_for_height(int height);
    CSize extent() const;
    BOOL take_bitmap(HBITMAP bitmap);

    CSize m_sizeImage{16, 15};
    CSize m_sizeButton{24, 22};
    int m_height = 0;               ///< SetHeight's
    int m_wrapWidth = 32767;        ///< what the rows are arranged for
    HBITMAP m_hbmLoaded = nullptr;  ///< LoadBitmap's, the bar's own
    HBITMAP m_hbmShown = nullptr;   ///< what the control was given
    int m_shownCount = 0;           ///< pictures in it
    CStringArray m_texts;           ///< the control's, in its order

    friend class CToolCmdUI;
};
