// CMenuButton: the OK button of the navigation file dialog, with a menu at its right end. Private to the
// library.
#pragma once

#include <afxwin.h>

#include <memory>

#include <ktui/tips/split_button.h>

class CMenuButton : public CButton {
    DECLARE_DYNAMIC(CMenuButton)

public:
    /// Makes the menu, which is empty.
    CMenuButton();
    ~CMenuButton() override;

    /// The menu that the drop-down zone opens; the button's own.
    CMenu& Menu() { return m_menu; }
    /// Makes the OK button of `dialog` a split button whose menu commands go to `owner`.
    void Attach(CWnd* dialog, HWND owner);
    /// Gives the button back; nothing if it was never attached.
    void Release();

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND m_ownerWindow = nullptr;
    CMenu m_menu;
    std::unique_ptr<SplitButtonRecord> m_record;
};
