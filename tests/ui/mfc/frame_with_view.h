// A frame of a test's own class with a view that takes what its bars leave.
#pragma once

#include <afxext.h>

#include "ui_test.h"

template <class Frame>
class FrameWithView : public ::testing::Test {
protected:
    FrameWithView() : frame(new Frame) {
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 550, 450));
        view.Create(AfxRegisterWndClass(0), L"view", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), frame,
                    AFX_IDW_PANE_FIRST);
        frame->GetClientRect(&client);
    }
    ~FrameWithView() override { frame->DestroyWindow(); }
    CRect rectOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        frame->ScreenToClient(&rect);
        return rect;
    }
    void idle() {
        frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
    Frame* frame;  // deletes itself
    CWnd view;
    CRect client;
};
