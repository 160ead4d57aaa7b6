// The controls inside a search box.
#pragma once

#include <afxext.h>

#include <ktui/input/kbui_edit.h>

/// Takes the typing.
class KTUI_API CKbUiSearchBoxEditor : public CKbUiEdit {
    DECLARE_DYNAMIC(CKbUiSearchBoxEditor)

protected:
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    /// Named like the search box that it lies on.
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// Shows a magnifier.
class KTUI_API CKbUiSearchBoxSearchButton : public CBitmapButton {
    DECLARE_DYNAMIC(CKbUiSearchBoxSearchButton)

public:
    /// Paints the picture in the middle, in the colours of texts and windows.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// Shows a cross.
class KTUI_API CKbUiSearchBoxClearButton : public CBitmapButton {
    DECLARE_DYNAMIC(CKbUiSearchBoxClearButton)

public:
    /// Paints the picture in the middle, in the colours of texts and windows.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
