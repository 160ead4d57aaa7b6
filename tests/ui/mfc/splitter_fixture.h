// A frame with a splitter: a static one of two panes, or a dynamic one that the user divides.
#pragma once

#include "documents_fixture.h"

namespace documents_test {

inline constexpr int kGap = 7, kBorder = 2;

class Leaf : public CScrollView {
    DECLARE_DYNCREATE(Leaf)
public:
    Leaf() { ++alive; }
    ~Leaf() override { --alive; }
    static inline int alive = 0;
    static inline int updated = 0;
    void OnInitialUpdate() override {
        ++updated;
        SetScrollSizes(MM_TEXT, CSize(1000, 2000));
        CScrollView::OnInitialUpdate();
    }

protected:
    void OnDraw(CDC*) override {}
};
/// The class opens what is protected.
class Splitter : public CSplitterWnd {
public:
    std::vector<std::string> drawn;

protected:
    void OnDrawSplitter(CDC* dc, ESplitType type, const CRect& rect) override {
        drawn.push_back(std::string(type == splitBox   ? "box"
                                    : type == splitBar ? "bar"
                                                       : "border") +
                        " " + std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
                        std::to_string(rect.right) + "," + std::to_string(rect.bottom));
        CSplitterWnd::OnDrawSplitter(dc, type, rect);
    }
};

class SplitFrame : public CFrameWnd {
    DECLARE_DYNCREATE(SplitFrame)
public:
    Splitter splitter;
    static inline bool dynamic = false;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext* context) override {
        if (dynamic) return splitter.Create(this, 2, 2, CSize(30, 20), context);
        return splitter.CreateStatic(this, 1, 2) &&
               splitter.CreateView(0, 0, RUNTIME_CLASS(PlanView), CSize(100, 50), context) &&
               splitter.CreateView(0, 1, RUNTIME_CLASS(Leaf), CSize(10, 10), context);
    }
};
struct SplitterTest : DocumentsTest {
    void make(bool dynamic) {
        SplitFrame::dynamic = dynamic;
        document.m_bAutoDelete = FALSE;
        CCreateContext context;
        context.m_pCurrentDoc = &document;
        context.m_pNewViewClass = RUNTIME_CLASS(Leaf);
        frame = new SplitFrame;
        ASSERT_TRUE(frame->Create(nullptr, L"split", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400), nullptr,
                                  nullptr, 0, &context));
        CRect outer(0, 0, 400, 300);
        frame->CalcWindowRect(&outer);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width(), outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
        frame->InitialUpdateFrame(&document, TRUE);
        take();
    }
    ~SplitterTest() override {
        if (frame != nullptr) frame->DestroyWindow();
        EXPECT_EQ(Leaf::alive, 0);
    }
    CRect place(int row, int col) const {
        CRect rect;
        splitter().GetPane(row, col)->GetWindowRect(&rect);
        frame->ScreenToClient(&rect);
        return rect;
    }
    Splitter& splitter() const { return frame->splitter; }
    void drag(CPoint from, CPoint to) const {
        splitter().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
        EXPECT_TRUE(splitter().IsTracking());
        splitter().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
        splitter().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
        EXPECT_FALSE(splitter().IsTracking());
    }
    int columns() const { return splitter().GetColumnCount(); }
    int rows() const { return splitter().GetRowCount(); }

    Plan document;
    SplitFrame* frame = nullptr;
    const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
};

}  // namespace documents_test
