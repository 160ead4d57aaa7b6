// A docking frame with a status bar of three panes: what it is told, and what the bar shows.
#pragma once

#include <afxstatusbar.h>

#include <vector>

#include "docking_fixture.h"
#include "picture.h"

namespace docking {

inline constexpr UINT kPane = 2010;  // "a pane"

class StatusFrame : public Frame {
public:
    std::vector<UINT> commands;
    std::vector<WPARAM> cornerPresses;
    CString paneText = L"asked";
    BOOL paneEnabled = TRUE;
    int paneCheck = 0;

protected:
    void OnUpdatePane(CCmdUI* item);
    BOOL OnCommand(WPARAM command, LPARAM parameter) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()
};

/// Notes what it is asked to draw.
class NotingBar : public CMFCStatusBar {
public:
    std::vector<UINT> drawn;

protected:
    void OnDrawPane(CDC* dc, CMFCStatusBarPaneInfo* shown) override;
};

class StatusBarEx : public Docking {
protected:
    StatusBarEx();
    ~StatusBarEx() override { bar.DestroyWindow(); }

    StatusFrame& noting() { return static_cast<StatusFrame&>(*frame); }
    CRect pane(int index) {
        CRect rect;
        bar.GetItemRect(index, &rect);
        return rect;
    }
    CRect client() {
        CRect rect;
        frame->GetClientRect(&rect);
        return rect;
    }
    void update() { bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE); }
    /// The inside of a pane as the screen shows it, without the line before it.
    ui_test::Picture shown(int index);
    int text_width(const wchar_t* text);
    static HICON icon(COLORREF color, int size = 16);
    static void fill(CBitmap& bitmap, COLORREF color, int size);

    NotingBar bar;
};

}  // namespace docking
