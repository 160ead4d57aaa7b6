// CKbUiSearchBox: a search field with a prompt and one button, which shows a magnifier while the field is
// empty and a cross that empties it when it is not.
//
// The control itself shows the prompt or the text that is searched for. While the user types, an inner edit
// lies on it; each change of the text reaches the holder as the control's EN_CHANGE.
//
//     CKbUiSearchBox search;
//     search.SubclassDlgItem(IDC_SEARCH, &dialog);
//     search.SetNotification(L"Search layers");
//     if (!search.IsEditEmpty()) search.ClearEditor();
#pragma once

#include <ktui/input/kbui_search_box_parts.h>

class KTUI_API CKbUiSearchBox : public CKbUiEdit {
    DECLARE_DYNAMIC(CKbUiSearchBox)

public:
    CKbUiSearchBox();
    ~CKbUiSearchBox() override;

    /// Makes the control and what is inside it; FALSE if either fails.
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    /// The text of the inner edit changed: the control shows it, or the prompt, and the button that goes with
    /// it.
    virtual void EditChanged();
    /// The cross was clicked: ClearEditor.
    virtual void ClearButtonClicked();
    /// The magnifier was clicked; nothing here.
    virtual void SearchButtonClicked();

    // Kept: the inner edit shows it only after the next clear, or after it has lost the focus while empty.
    /// Sets the prompt of the inner edit; a text equal to it counts as none.
    void SetDefaultText(const wchar_t* text) { m_defaultText = text; }
    /// Sets the prompt of the control; a text equal to it counts as none. It shows from the next change on.
    void SetNotification(const wchar_t* text) { m_notification = text; }
    /// Empties the field: both prompts and the magnifier show.
    void ClearEditor();
    /// TRUE when the control's text is empty or one of the two prompts.
    BOOL IsEditEmpty();

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg BOOL SetEditFocus();
    afx_msg void KillEditFocus();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    /// A field that is named by its prompt and has what is searched for as its value.
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEditorChange() { EditChanged(); }
    afx_msg void OnClearButton() { ClearButtonClicked(); }
    afx_msg void OnSearchButton() { SearchButtonClicked(); }
    DECLARE_MESSAGE_MAP()

    CKbUiSearchBoxEditor* m_editor = nullptr;  ///< owned, as are the buttons
    CKbUiSearchBoxSearchButton* m_searchButton = nullptr;
    CKbUiSearchBoxClearButton* m_clearButton = nullptr;
    CString m_notification;
    CString m_defaultText;

private:
    BOOL CreateControls();
    bool createEditor(const CRect& place);
    bool createButtons(const CRect& place);
    void destroyControls();
    void GetControlRect(CRect& editor, CRect& button);
    void UpdateButton();
    // Kept: nothing.
    void UpdateSearchBox() {}
};
