// CNameEdit: the small popup in which the user renames a palette or a palette set in place.
//
// Its receiver hears WM_USER + 102 with this object and the new text (null when cancelled), and has to
// destroy the window and delete the object then. Return, and the loss of the focus, hand over the text;
// Escape cancels.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

/// Messages between name edits and those who are renamed.
constexpr UINT kBeginNameEdit = WM_USER + 101;  ///< wParam a CPoint* (client coordinates), or 0
constexpr UINT kEndNameEdit = WM_USER + 102;  ///< wParam the CNameEdit*, lParam the text, or 0 when cancelled

class KTUI_API CNameEdit : public CWnd {
public:
    CNameEdit();
    ~CNameEdit() override;

    /// Shows the popup, 100 pixels wide and as high as a line of text and 4 pixels, over `parent`, with
    /// `text` selected and the focus in it. It lies at `position` (screen), or for null 20 pixels right of
    /// and 10 below the parent's corner. `receiver` is not owned. Non-zero on success.
    int Create(CWnd* receiver, CWnd* parent, const wchar_t* text, const CPoint* position);

    /// From here on nobody is told; for a receiver that ends the edit itself.
    void ForgetReceiver() { m_receiver = nullptr; }
    /// Forgets the receiver, which therefore isn't told by the loss of the focus, and destroys the window.
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnKillFocusEdit();
    DECLARE_MESSAGE_MAP()

    CWnd* m_receiver = nullptr;  ///< null once it has been told by a key
    CEdit* m_edit = nullptr;     ///< owned

private:
    using CWnd::Create;

    /// Tells the receiver and forgets it. Afterwards this object may be gone.
    void finish(const wchar_t* text);
};
