#include "status_bar_ex_fixture.h"

namespace docking {

BEGIN_MESSAGE_MAP(StatusFrame, Frame)
    ON_UPDATE_COMMAND_UI(kPane, &StatusFrame::OnUpdatePane)
END_MESSAGE_MAP()

void StatusFrame::OnUpdatePane(CCmdUI* item) {
    item->Enable(paneEnabled);
    item->SetText(paneText);
    item->SetCheck(paneCheck);
}

BOOL StatusFrame::OnCommand(WPARAM command, LPARAM parameter) {
    commands.push_back(LOWORD(command));
    return Frame::OnCommand(command, parameter);
}

LRESULT StatusFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCLBUTTONDOWN) {
        cornerPresses.push_back(wParam);
        return 0;
    }
    return Frame::WindowProc(message, wParam, lParam);
}

void NotingBar::OnDrawPane(CDC* dc, CMFCStatusBarPaneInfo* shown) {
    drawn.push_back(shown->nID);
    CMFCStatusBar::OnDrawPane(dc, shown);
}

StatusBarEx::StatusBarEx() : Docking(WS_VISIBLE, new StatusFrame) {
    EXPECT_TRUE(bar.Create(frame));
    const UINT ids[] = {ID_SEPARATOR, kPane, ID_INDICATOR_CAPS};
    EXPECT_TRUE(bar.SetIndicators(ids, 3));
    frame->RecalcLayout();
    ui_test::pump();
}

ui_test::Picture StatusBarEx::shown(int index) {
    CRect rect(pane(index));
    rect.DeflateRect(2, 1);
    return ui_test::Picture(bar, rect);
}

int StatusBarEx::text_width(const wchar_t* text) {
    CClientDC dc(&bar);
    CFont* const former = dc.SelectObject(&afxGlobalData.fontTooltip);
    const int width = dc.GetTextExtent(text).cx;
    dc.SelectObject(former);
    return width;
}

HICON StatusBarEx::icon(COLORREF color, int size) {
    CImageList list;
    list.Create(size, size, ILC_COLOR32 | ILC_MASK, 1, 1);
    CBitmap bitmap;
    fill(bitmap, color, size);
    list.Add(&bitmap, RGB(1, 2, 3));
    return list.ExtractIcon(0);
}

void StatusBarEx::fill(CBitmap& bitmap, COLORREF color, int size) {
    CClientDC screen(nullptr);
    bitmap.CreateCompatibleBitmap(&screen, size, size);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* const former = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, size, size, color);
    dc.SelectObject(former);
}

}  // namespace docking
