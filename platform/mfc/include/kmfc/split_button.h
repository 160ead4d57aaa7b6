// CSplitButton: a button with an arrow that opens a menu.
#pragma once

#include <kmfc/button.h>
#include <kmfc/menu.h>

/// A split button. Its arrow shows the menu it was given: a menu that stays the caller's, or the first
/// submenu of one from the resources.
class KMFC_API CSplitButton : public CButton {
    DECLARE_DYNAMIC(CSplitButton)
public:
    CSplitButton() = default;
    CSplitButton(UINT nMenuId, UINT nSubMenuId);
    explicit CSplitButton(CMenu* pMenu);
    ~CSplitButton() override;

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// The menu of submenu `nSubMenuId` of a resource.
    void SetDropDownMenu(UINT nMenuId, UINT nSubMenuId);
    void SetDropDownMenu(CMenu* pMenu);

    // The arrow's part by BCSIF_ and BCSS_ flags; FALSE reports failures.
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const;
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo);
    UINT GetSplitStyle() const;
    BOOL SetSplitStyle(UINT nStyle);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitSize(LPSIZE pSize);
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    CImageList* GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList* pImageList);

protected:
    /// Shows the menu below the button; the parent gets the command.
    virtual void OnDropDown(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg BOOL OnDropDownReflected(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    BUTTON_SPLITINFO split_info(UINT mask) const;

    CMenu m_loaded;            ///< of the resources
    CMenu* m_pMenu = nullptr;  ///< the caller's
    UINT m_nSubMenu = 0;
};
