// CKbUiTab: the tab control of a tabbed dialog. It holds the list of pages and decides who is in front.
//
//     void CMyDialog::DoDataExchange(CDataExchange* exchange) {
//         CKtUiTabMainDialog::DoDataExchange(exchange);
//         DDX_Control(exchange, IDC_TABS, m_tabs);
//     }
//
// Its parent must be a CKbUiTabMainDialog. The pages are children of that dialog and lie over the control;
// they belong to whoever made them. A page can refuse to be left by the user (OnTabChanging), but not by
// SetActiveTab.
#pragma once

#include <afxcmn.h>
#include <afxcoll.h>

#include <ktui/ktui_api.h>

class CKbUiTabChildDialog;
class CKbUiTabMainDialog;
struct KbUiAccessibleItem;

class KTUI_API CKbUiTab : public CTabCtrl {
    DECLARE_DYNAMIC(CKbUiTab)

public:
    CKbUiTab();
    ~CKbUiTab() override;

    /// Adds an item at `index` and `page` behind all other pages; makes the page's window unless it has one,
    /// and brings page 0 to the front. 0 for null, and if the window can't be made: the item then stays.
    /// Kept: the page's place in the list is its end, so items have to be added at the end to agree with it.
    int AddTab(int index, const CString& name, unsigned templateId, CKbUiTabChildDialog* page);
    /// The same with a string of the current resource module; without one the name is the number.
    /// Kept: answers 0 whatever came of it.
    int AddTab(int index, unsigned nameId, unsigned templateId, CKbUiTabChildDialog* page);
    /// Takes the item and its page out and hides the page; another page comes to the front. 0 if out of
    /// range.
    int RemoveTab(int index);
    /// RemoveTab by another name.
    int DeleteItem(int index);
    /// RemoveTab, and the page's window is destroyed. With `save` 1 a page that was visited has the tab
    /// control's data exchanged before. Always 1.
    int DestroyTab(int index, int save);

    /// The index that the control has selected, or -1.
    int GetActiveTab();
    /// Brings page `index` to the front without asking the page that is there; too large an index means 0.
    /// The index, or -1 without items. Both pages hear OnTabActivation, unless the page is in front already.
    int SetActiveTab(int index);
    /// The index of `page`, or -1.
    int GetTabIndex(CKbUiTabChildDialog* page);
    /// The page at `index` of the list; null out of range.
    CKbUiTabChildDialog* GetDialogPointer(int index);
    /// The dialog that the control is on.
    CKbUiTabMainDialog* GetMainDialog();

    int IsDirty() const { return m_dirty; }
    void SetDirty(int dirty) { m_dirty = dirty; }
    /// Keeps the id and sets the dirty mark to whether the tab control has such a child.
    void SetApplyButtonID(unsigned id);
    /// Moves the control's focus mark to the selected item.
    void SetChildFocus();
    /// Gives the focus to the tab control's child that the exchange had last.
    void SetValidationInfo(CDataExchange* exchange);

    /// Exchanges the data of the pages in their order; 0 at the first that fails.
    int ExchangeData(int save);
    int DisplayData() { return ExchangeData(0); }
    int ValidateData() { return ExchangeData(1); }

    /// Where a page belongs, for a row as high as item `index`; pixels in the parent dialog.
    CRect PageArea(int index) const;

protected:
    void PreSubclassWindow() override;

    afx_msg BOOL OnSelChanging(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnSelChange(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    /// A list of tabs, each named by its text, whose action changes to it as a click does.
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CPtrArray m_pages;  ///< CKbUiTabChildDialog pointers, not owned
    int m_dirty = 1;
    int m_activeTab = -1;  ///< as last read from the control
    unsigned m_applyButtonId = 0;

private:
    LRESULT tellOfItem(int index, KbUiAccessibleItem& item);
    /// Changes to the item as the control does at a click: the page in front may refuse.
    void changeAsAUserDoes(int index);
    /// Sends the parent a notification without data; its answer.
    LRESULT notify(UINT code);
    int BringTabToFront(int index);
    void PositionTabDialog(CKbUiTabChildDialog* page, int index);
    /// Marks the page at `index` as visited and tells it that it is in front; nothing if there is none.
    void arriveAt(int index);
};
