// CUiTaskDialog: the toolkit's own task dialog, for systems without one and for commands with a second text.
// Private to the library.
#pragma once

#include <memory>
#include <vector>

#include <ktui/dialogs/ktui_dialog.h>
#include <ktui/tips/messages/scrolled_contents.h>
#include <ktui/tips/messages/task_dialog_layout.h>
#include <ktui/tips/messages/ui_button.h>
#include <ktui/tips/messages/ui_static.h>

struct CTaskDialogImpl;

class CUiTaskDialog : public CKtUiDialog {
public:
    /// Shows what `impl` holds, and puts into it what the user chose.
    CUiTaskDialog(CTaskDialogImpl& impl, CWnd* parent);

    /// Disables the offered common buttons of the mask and enables the others.
    void SetCommonButtonOptions(int disabledMask);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short turn, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void makeFonts();
    TaskDialogMetrics metricsFor(const CRect& workArea) const;
    TaskDialogLayout place();
    /// Brings the control with the focus into view where the contents are taller than the screen.
    void revealFocus();
    void createChildren(const TaskDialogLayout& layout);
    void createText(CUiStatic& text, const CString& words, const CRect& rect, COLORREF color, CFont& font);
    void makeButton(const TaskDialogPlacedButton& placed);
    void setUpCheckBox(const CRect& rect);
    void setDefault(const TaskDialogOrder& order);
    CUiButton* buttonOf(int id) const;
    /// Ends the dialog as the button of that id does.
    void end(int id);

    CTaskDialogImpl& m_impl;
    ScrolledContents m_scrolled{*this};
    CFont m_textFont;
    CFont m_headingFont;
    int m_footerTop = -1;
    int m_textLeft = 0;
    int m_unit = 0;  ///< height of the text font
    CUiStatic m_heading;
    CUiStatic m_body;
    std::vector<std::unique_ptr<CUiButton>> m_buttons;
    CUiButton m_checkBox;
    CUiButton* m_defaultButton = nullptr;
};
