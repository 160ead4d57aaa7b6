// CKtUiTaskDialog: a message with a heading, a text, commands, common buttons and a verification box.
//
//     CKtUiTaskDialog dialog;
//     dialog.SetMainInstruction(L"Save the changes to bracket.dxf?");
//     dialog.SetOptions(0x0010);  // commands are links
//     dialog.AddCommandControl(101, L"Save");
//     dialog.SetCommandControlExtend(101, L"Overwrites the drawing on disk.");
//     dialog.SetCommonButtons(8);
//     if (dialog.DoModal(parent) == 101) save();
//
// Two engines stand behind it: the system's task dialog, and a dialog of the toolkit where the system has
// none or a command has a second text. Options, buttons and ids are those of the system's task dialog.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

struct CTaskDialogImpl;

class KTUI_API CKtUiTaskDialog {
public:
    CKtUiTaskDialog();
    // Kept: not virtual. The table of virtual operations has one entry.
    ~CKtUiTaskDialog();
    /// A dialog with the same contents; the icon is copied.
    CKtUiTaskDialog(const CKtUiTaskDialog& other);
    CKtUiTaskDialog& operator=(const CKtUiTaskDialog& other);

    /// Called at each click on the verification box. This class answers 0.
    virtual long OnVerificationCheckboxClick(int checked);

    void SetWindowTitle(const CString& title);
    void SetMainInstruction(const CString& text);
    void SetContent(const CString& text);
    /// Takes the icon over: it is destroyed with the next one, or with this object. An icon adds option
    /// 0x0002; null takes the icon away.
    void SetMainIcon(HICON icon);
    /// One of the system's icons by its number as a resource: 0xFFFB question, 0xFFFC shield, 0xFFFD
    /// information, 0xFFFE error, 0xFFFF warning. Any other does nothing.
    void SetMainIcon(const wchar_t* resource);
    /// Client width in pixels; 0 means that the dialog chooses.
    void SetDialogWidth(int width);
    /// Replaces all options: 0x0008 cancellable, 0x0010 links, 0x0020 links without a glyph, 0x1000 placed
    /// relative to the parent, and the system's other ones, which its own engine alone reads.
    void SetOptions(int options);
    /// Bits 1 OK, 2 Yes, 4 No, 8 Cancel, 16 Retry, 32 Close. Without any button or command there is an OK.
    void SetCommonButtons(int buttons);
    /// Disables the buttons of the mask, and enables the others, while the dialog runs. Nothing before.
    void SetCommonButtonOptions(int disabledMask);
    void AddCommandControl(int id, const CString& text);
    /// A second, smaller text below that of each command with this id. Needs links (0x0010, 0x0020).
    void SetCommandControlExtend(int id, const CString& extended);
    /// The button that Enter presses at first; the first one if there is no such id.
    void SetDefaultCommandControl(int id);
    /// The id that ended the last DoModal.
    int GetSelectedCommandControlID();
    void SetVerificationCheckboxText(const CString& text);
    /// Whether the box starts checked.
    void SetVerificationCheckbox(int checked);
    /// Whether it was checked when a button ended the last DoModal.
    int GetVerificationCheckboxState();

    /// Runs the dialog; the id of the button that ended it, IDCANCEL for a closed one, -1 on failure.
    __int64 DoModal(HWND parent);

private:
    CTaskDialogImpl* m_impl;
};
