// A program with several documents.
#pragma once

#include "documents_fixture.h"

namespace documents_test {

class PadFrame : public CMDIFrameWnd {
    DECLARE_DYNCREATE(PadFrame)
protected:
    void OnMainCommand() { note("main command"); }
    DECLARE_MESSAGE_MAP()
};

struct MdiTest : DocumentsTest {
    MdiTest() {
        kind = new CMultiDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(CMDIChildWnd),
                                     RUNTIME_CLASS(PlanView));
        app.AddDocTemplate(kind);
        frame = new PadFrame;
        EXPECT_TRUE(frame->LoadFrame(IDR_MAIN));
        app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        take();
    }
    Plan* open() { return static_cast<Plan*>(kind->OpenDocumentFile(nullptr)); }
    static CMDIChildWnd* child_of(CDocument* document) {
        POSITION place = document->GetFirstViewPosition();
        return static_cast<CMDIChildWnd*>(document->GetNextView(place)->GetParentFrame());
    }
    CString title() const { return ui_test::text_of(frame->m_hWnd); }

    CMultiDocTemplate* kind;
    PadFrame* frame;
};

}  // namespace documents_test
