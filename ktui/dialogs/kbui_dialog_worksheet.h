// CKbUiDialogWorksheet: a kept shell of a tool window, for clients that derive from it.
//
// Kept: its own operations do nothing or answer 0, also where they stand in for the platform's. Its window
// goes with the object.
#pragma once

#include <ktui/dialogs/kbui_dialog.h>

class CKbUiTheme;

/// Known as a constructor's argument only.
class CKbUiWorksheetDraw {};

class KTUI_API CKbUiDialogWorksheet : public CKbUiDialog {
    DECLARE_DYNAMIC(CKbUiDialogWorksheet)

public:
    CKbUiDialogWorksheet(unsigned templateId, CWnd* parent, HINSTANCE resource);
    /// Kept: `draw` is not looked at.
    CKbUiDialogWorksheet(unsigned templateId, const CKbUiWorksheetDraw& draw, CWnd* parent,
                         HINSTANCE resource);
    ~CKbUiDialogWorksheet() override;

    using CKbUiDialog::CreateEx;
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR name, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menu, LPVOID data = nullptr) override;
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, LPVOID data = nullptr);
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

    CKbUiTheme* GetTheme() const;
    int SetTheme(CKbUiTheme* theme);
    void ThemeModified(CKbUiTheme* theme);
    void SetDraw(const CKbUiWorksheetDraw& draw);
    int SetDefaultDraw();

protected:
    BOOL OnInitDialog() override;
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PostNcDestroy() override;

    afx_msg void OnClose();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnIconEraseBkgnd(CDC* dc);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMoving(UINT side, LPRECT rect);
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* sizes);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT create);
    afx_msg void OnNcDestroy();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSizing(UINT side, LPRECT rect);
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style);
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style);
};

/// The same by the name that an application uses; here the handlers are in force.
class KTUI_API CKtUiDialogWorksheet : public CKbUiDialogWorksheet {
    DECLARE_DYNAMIC(CKtUiDialogWorksheet)

public:
    CKtUiDialogWorksheet(unsigned templateId, CWnd* parent = nullptr, HINSTANCE resource = nullptr);
    CKtUiDialogWorksheet(unsigned templateId, const CKbUiWorksheetDraw& draw, CWnd* parent = nullptr,
                         HINSTANCE resource = nullptr);
    ~CKtUiDialogWorksheet() override;

protected:
    CWnd* AppMainWindow() override;
    HINSTANCE AppResourceInstance() override;
    const wchar_t* AppRootKey() override;

    afx_msg void OnSysColorChange();
    afx_msg void OnSysCommand(UINT id, LPARAM data);
    DECLARE_MESSAGE_MAP()
};
