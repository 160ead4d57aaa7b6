// A frame with one view, and views that tests look at.
#pragma once

#include "documents_fixture.h"

namespace documents_test {

class Sheet : public CScrollView {
    DECLARE_DYNCREATE(Sheet)
public:
    using CScrollView::m_bCenter;
    CRect drawn;  ///< what OnDraw saw of the window's upper left pixel and its size, in logical units
protected:
    void OnDraw(CDC* dc) override {
        CRect room;
        GetClientRect(&room);
        drawn = room;
        dc->DPtoLP(&drawn);
    }
};
class Form : public CFormView {
    DECLARE_DYNCREATE(Form)
public:
    Form() : CFormView(IDD_FORM) {}
    CString first = L"one", second = L"two";

protected:
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Text(dx, IDC_FORM_FIRST, first);
        DDX_Text(dx, IDC_FORM_SECOND, second);
    }
};
/// Whether a command's item would be enabled.
bool is_enabled(CCmdTarget& target, UINT id);

/// A frame with one view of class `View`, 400 by 300 pixels inside.
template <class View>
struct ViewFrame {
    ViewFrame() {
        context.m_pNewViewClass = View::GetThisClass();
        context.m_pCurrentDoc = &document;
        document.m_bAutoDelete = FALSE;
        frame = new CFrameWnd;
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400), nullptr, nullptr, 0,
                      &context);
        view = static_cast<View*>(frame->GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        resize(400, 300);
        frame->InitialUpdateFrame(&document, TRUE);
    }
    ~ViewFrame() { frame->DestroyWindow(); }
    void resize(int width, int height) const {
        CRect outer(0, 0, width, height);
        frame->CalcWindowRect(&outer);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width(), outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    }
    CRect room() const {
        CRect rect;
        view->GetClientRect(&rect);
        return rect;
    }
    bool bar(DWORD style) const { return (view->GetStyle() & style) != 0; }
    void draw() const {
        view->Invalidate();
        view->UpdateWindow();
    }

    Plan document;
    CCreateContext context;
    CFrameWnd* frame;
    View* view;
};

}  // namespace documents_test
