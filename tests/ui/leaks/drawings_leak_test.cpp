// The windows of the sample's drawings, each with a tab, a thousand times opened and closed.
#include "../../../samples/drafter/drawing_window.h"
#include "../../../samples/drafter/options.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

/// A main window that shows nothing of its drawings.
class Desk : public CDrawingDesk {
public:
    Desk(CStandinHost& host, CWnd& owner) : m_host(host), m_owner(owner) {}
    int activated = 0, left = 0;

private:
    CStandinHost& Host() override { return m_host; }
    const DrafterOptions& Options() const override { return m_options; }
    CWnd& DialogOwner() override { return m_owner; }
    void DrawingActivated(CDrawingWindow* window) override {
        ++(window != nullptr ? activated : left);
        m_host.SetCurrentDocument(window != nullptr ? &window->document() : nullptr);
        if (window != nullptr) window->RefreshIfOutdated();
    }
    void DrawingChanged(const CDrawingWindow&) override {}
    void SelectionChanged(const CDrawingWindow&) override {}
    void PointerMoved(const CDrawingWindow&) override {}
    void NameChanged(const CDrawingWindow&) override {}
    void Say(const CString&) override {}
    void SayIdle() override {}
    void TakeTyped() override {}
    bool GiveUpCommand() override { return false; }
    CDrawingWindow* WindowOf(const CString&) override { return nullptr; }

    CStandinHost& m_host;
    CWnd& m_owner;
    DrafterOptions m_options;
};

class DrawingLeaks : public leaks::Leaks {
protected:
    DrawingLeaks() : frame(new CMDIFrameWndEx), desk(host, *frame) {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
        frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, FALSE, CMFCTabCtrl::STYLE_3D_SCROLLED,
                             TRUE, TRUE);
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = ::DefMDIChildProcW;
        windowClass.lpszClassName = L"KtuiBareChild";
        ::RegisterClassW(&windowClass);
    }
    ~DrawingLeaks() override {
        frame->DestroyWindow();
        ::UnregisterClassW(L"KtuiBareChild", AfxGetInstanceHandle());
    }

    /// The windows of a drawing, by the system alone.
    void openBare() {
        MDICREATESTRUCTW request = {};
        request.szClass = L"KtuiBareChild";
        request.szTitle = L"bare";
        request.cx = request.cy = 300;
        const auto child = reinterpret_cast<HWND>(
            ::SendMessageW(frame->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&request)));
        ASSERT_NE(child, nullptr);
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, child, nullptr, nullptr,
                          nullptr);
        ui_test::pump();
        ::SendMessageW(frame->m_hWndMDIClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
    }
    static std::unique_ptr<CDraftDocument> document() {
        auto made = std::make_unique<CDraftDocument>();
        const OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setEndPoint({100, 50, 0});
        const OdDbBlockTableRecordPtr space =
            made->database()->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        space->appendOdDbEntity(OdDbEntityPtr(line.get()));
        made->history().Commit(L"Line");
        return made;
    }
    CDrawingWindow* open() {
        auto* const window = new CDrawingWindow(desk, document(), 1);
        return window->Open(*frame) ? window : nullptr;
    }

    CMDIFrameWndEx* frame;
    Desk desk;
};

TEST_F(DrawingLeaks, AThousandDrawingsLeaveNothing) {
    const std::size_t growth = heap_growth([&] { openBare(); });
    expect_no_growth(
        [&] {
            CDrawingWindow* const window = open();
            ASSERT_NE(window, nullptr);
            window->FinishChange(L"Nothing");
            ui_test::pump();
            window->DestroyWindow();
        },
        growth);
    EXPECT_EQ(desk.activated, kTimes + kWarmUp);
    EXPECT_EQ(desk.left, kTimes + kWarmUp) << "told once when the last one goes";
    EXPECT_EQ(frame->GetMDITabs().GetTabsNum(), 0);
}

TEST_F(DrawingLeaks, DrawingsBesideOthersLeaveNothing) {
    CDrawingWindow* const first = open();
    ASSERT_NE(first, nullptr);
    const std::size_t growth = heap_growth([&] { openBare(); });
    // One is closed in front, the other behind.
    expect_no_growth(
        [&] {
            CDrawingWindow* const second = open();
            CDrawingWindow* const third = open();
            ASSERT_TRUE(second != nullptr && third != nullptr);
            second->DestroyWindow();
            ui_test::pump();
            third->DestroyWindow();
        },
        2 * growth);
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_EQ(frame->GetMDITabs().GetTabsNum(), 1);
    EXPECT_EQ(desk.left, 0);
}

}  // namespace
