// CKbUiDialog: a dialog that resizes by percentages and remembers where it stood.
//
//     BOOL CMyDialog::OnInitDialog() {
//         const BOOL result = CKbUiDialog::OnInitDialog();
//         StretchControlXY(IDC_LIST, 100, 100);  // takes all of the growth
//         MoveControlXY(IDOK, 100, 100);         // stays in the corner
//         return result;
//     }
//
// A dialog with DS_MODALFRAME keeps its size and only has its position restored. Placement and columns are
// kept per user in the registry; nothing is reported in words.
#pragma once

#include <ktui/dialogs/kbui_base_dialog.h>
#include <ktui/dialogs/elastic_tags.h>

class KbUiElastic;

class KTUI_API CKbUiDialog : public CKbUiBaseDialog {
    DECLARE_DYNAMIC(CKbUiDialog)

public:
    CKbUiDialog(unsigned templateId, CWnd* parent, HINSTANCE resource);
    ~CKbUiDialog() override;

    // Registering a control that exists: how many per cent of a change of the dialog's size (pixels) its
    // place or its size follows. 0 if there is no such control; 1 otherwise, also if the pair of id and kind
    // was there already and keeps its first percentage. A percentage may be negative or above 100.
    int MoveControlX(unsigned id, long percent);
    int MoveControlY(unsigned id, long percent);
    int MoveControlXY(unsigned id, long percentX, long percentY);
    int StretchControlX(unsigned id, long percent);
    int StretchControlY(unsigned id, long percent);
    int StretchControlXY(unsigned id, long percentX, long percentY);
    /// Registers `count` records of kinds 1, 2, 16 and 32; answers 1 whatever came of it.
    int SetControlProperty(_dlgControlTag* tags, unsigned long count);

    // Limits of the window's size in pixels; a negative value is no limit. Set after OnInitDialog of this
    // class, which makes the template's size the smallest.
    void SetDialogMinExtents(int width, int height);
    void SetDialogMaxExtents(int width, int height);
    /// Makes the present width, or height, the only one.
    void LockDialogWidth();
    void LockDialogHeight();
    void GetElasticMinMaxInfo(MINMAXINFO& info);
    /// The resize state, untyped; null if there is none.
    void* GetElasticPointer() { return m_elastic; }
    /// Kept: always (0, 0); null without resize state.
    CSize* GetCurrentDelta();

    /// The name under which the dialog's data is kept: the one set, or else module, template and modality. 1
    /// unless it is empty. A name is fixed at its first use.
    int GetDialogName(CString& name);
    /// Sets the name unless there is one; trims it. The help tag takes the untrimmed form if it is empty.
    void SetDialogName(const wchar_t* name);
    void GetDialogHelpTag(CString& tag) const { tag = m_dialogHelpTag; }
    void SetDialogHelpTag(const wchar_t* tag) { m_dialogHelpTag = tag; }
    /// The registry key of the dialog's data, below the current user, with a backslash at its end; 0 without
    /// a name.
    int GetDialogKey(CString& key);
    // One value of the dialog's data; 1 on success. A failed read gives 0, or the empty string.
    int GetDialogData(const wchar_t* value, CString& text);
    int GetDialogData(const wchar_t* value, unsigned long& number);
    int SetDialogData(const wchar_t* value, const wchar_t* text);
    int SetDialogData(const wchar_t* value, unsigned long number);
    /// The stored placement in screen pixels, 1; or the window's present one, 0.
    int GetPixelData(CRect& rect);
    /// Stores the window's placement; 0 at the first value that cannot be written.
    int StorePixelData();
    // Column widths (pixels) of a report list, by its control id; 0 for a list without columns.
    int GetColumnSizes(CListCtrl* list);
    int SaveColumnSizes(CListCtrl* list);
    /// SetAppRootKey by another name.
    void SetRootKey(const wchar_t* key) { SetAppRootKey(key); }

    /// Moves the control to `rect` (client pixels) without repaint; 0 for null.
    int ForceControlResize(CWnd* control, RECT* rect);
    /// Kept: repaints nothing; 1 exactly for a control with flag 1.
    int ForceControlRepaint(CWnd* control, int flag);

    // Kept: these do nothing, and those with a result answer 0.
    void SetElasticSize(CSize& size, int flag);
    void SetPersistency(int persistency);
    void SetTabSize(__int64 tab, int size);
    int AddControl(CWnd* control);
    int AutoLoadControl(CWnd* control);
    int ReloadControl(CWnd* control, const wchar_t* name);
    int RemoveControl(CWnd* control);
    void OnInitDialogFinish() override;

protected:
    virtual void OnDialogHelp();

    void OnInitDialogBegin() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    int DoDialogHelp() override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    KbUiElastic* m_elastic;
    CString m_dialogName;
    CString m_dialogHelpTag;
    int m_reserved = 1;  ///< read by nothing
    unsigned m_templateId;

private:
    bool isResizable() const;
    int registerControl(unsigned id, unsigned kind, long percentX, long percentY);
    void restorePlacement();
    void restorePosition();
    int getColumnKey(CListCtrl* list, CString& key, int& count);
};
