// Documents with a frame, a splitter and its panes, without and with tabs, opened and closed a thousand
// times.
#include <afxcontrolbars.h>
#include <afxext.h>

#include "leak_growth.h"
#include "ui_test.h"

namespace {

using namespace leaks;

constexpr UINT kResource = 1;  // there is no such resource: no title, menu or accelerators

class Sheet : public CDocument {
    DECLARE_DYNCREATE(Sheet)
};
IMPLEMENT_DYNCREATE(Sheet, CDocument)

class SheetView : public CScrollView {
    DECLARE_DYNCREATE(SheetView)
protected:
    void OnInitialUpdate() override {
        SetScrollSizes(MM_TEXT, CSize(2000, 2000));
        CScrollView::OnInitialUpdate();
    }
};
IMPLEMENT_DYNCREATE(SheetView, CScrollView)

class SplitChild : public CMDIChildWndEx {
    DECLARE_DYNCREATE(SplitChild)
public:
    CSplitterWnd splitter;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext* context) override {
        return splitter.Create(this, 2, 1, CSize(10, 10), context);
    }
};
IMPLEMENT_DYNCREATE(SplitChild, CMDIChildWndEx)

class Documents : public ::testing::Test {
protected:
    Documents() {
        frame = new CMDIFrameWndEx;
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
        AfxGetApp()->m_pMainWnd = frame;
    }
    ~Documents() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    /// The windows of a document, without the class layer.
    void openBareChild() const {
        MDICREATESTRUCTW request = {};
        request.szClass = L"KtuiBareChild";
        request.szTitle = L"bare";
        request.cx = 300;
        request.cy = 300;
        HWND const client = frame->m_hWndMDIClient;
        const auto child = reinterpret_cast<HWND>(
            ::SendMessageW(client, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&request)));
        ASSERT_NE(child, nullptr);
        for (int i = 0; i < 3; ++i)
            ::CreateWindowExW(0, L"SCROLLBAR", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, child, nullptr,
                              nullptr, nullptr);
        ui_test::pump();
        ::SendMessageW(client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
    }
    void openDocument() {
        CDocument* document = kind.OpenDocumentFile(nullptr);
        ASSERT_NE(document, nullptr);
        auto* child = static_cast<SplitChild*>(frame->MDIGetActive());
        ASSERT_NE(child, nullptr);
        ASSERT_TRUE(child->splitter.SplitRow(100));
        ui_test::pump();
        child->splitter.DeleteRow(++opened % 2);
        document->OnCloseDocument();
    }

    CMDIFrameWndEx* frame;
    CMultiDocTemplate kind{kResource, RUNTIME_CLASS(Sheet), RUNTIME_CLASS(SplitChild),
                           RUNTIME_CLASS(SheetView)};
    int opened = 0;
};

}  // namespace

TEST_F(Documents, AThousandDocumentsLeaveNothing) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = ::DefMDIChildProcW;
    windowClass.lpszClassName = L"KtuiBareChild";
    ASSERT_NE(::RegisterClassW(&windowClass), 0);
    const size_t growth = heap_growth([&] { openBareChild(); });
    expect_no_growth([&] { openDocument(); }, growth);
    EXPECT_EQ(opened, kTimes + kWarmUp);
    // The same with a tab for each.
    frame->EnableMDITabs(TRUE, TRUE, CMFCTabCtrl::LOCATION_TOP, TRUE);
    expect_no_growth([&] { openDocument(); }, growth);
    EXPECT_EQ(opened, 2 * (kTimes + kWarmUp));
}
