// What a CKtUiTaskDialog holds. Private to the library.
#pragma once

#include <ktui/tips/messages/ktui_task_dialog.h>
#include <ktui/tips/messages/task_dialog_layout.h>

class CTaskDialog;
class CUiTaskDialog;

struct CTaskDialogImpl {
    explicit CTaskDialogImpl(CKtUiTaskDialog* owner) : m_owner(owner) {}
    ~CTaskDialogImpl();
    CTaskDialogImpl(const CTaskDialogImpl&) = delete;
    CTaskDialogImpl& operator=(const CTaskDialogImpl&) = delete;

    /// Becomes a dialog of the same contents; the owner and what runs stay.
    void copyContents(const CTaskDialogImpl& other);
    void setMainIcon(HICON icon);
    bool hasExtendedText() const;
    /// Escape and the close box end the own dialog.
    bool isCancellable() const;
    TaskDialogContents contents() const;

    CKtUiTaskDialog* m_owner;
    CTaskDialog* m_platformDialog = nullptr;  ///< while it runs
    CUiTaskDialog* m_ownDialog = nullptr;     ///< while it runs
    int m_commonButtons = 0;
    int m_options = 0;
    int m_width = 0;
    int m_defaultCommand = 0;
    HICON m_mainIcon = nullptr;  ///< owned
    std::vector<CTaskDialogButton> m_commands;
    CString m_content;
    CString m_mainInstruction;
    CString m_windowTitle;
    CString m_verificationText;
    int m_verificationState = 0;
    int m_selectedCommand = 0;
};
