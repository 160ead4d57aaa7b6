// What a strip leaves behind with its window, what it does with the windows that it holds, and its tips.
#include <cstddef>
#include <new>

#include "fake_resolution.h"
#include "strip_fixture.h"

namespace {

using namespace docking_test;

/// Counts how often it is deleted.
class Page : public CWnd {
public:
    explicit Page(int* deleted = nullptr) : m_deleted(deleted) {}
    ~Page() override {
        if (m_deleted) ++*m_deleted;
    }

private:
    int* m_deleted;
};

/// Lies where a page was deleted, and notes who still takes it for the page.
class Remains : public CWnd {
public:
    BOOL DestroyWindow() override { return ++touched; }
    static void operator delete(void*) { ++touched; }
    static int touched;
};
int Remains::touched = 0;

/// A page in a place of its own, of which remains stay behind.
class LonePage : public Page {
public:
    using Page::Page;
    static void* operator new(std::size_t) { return place; }
    static void operator delete(void* deleted) { ::new (deleted) Remains; }
    static void clearAway() { reinterpret_cast<Remains*>(place)->~Remains(); }

private:
    alignas(std::max_align_t) static unsigned char place[];
};
alignas(std::max_align_t) unsigned char LonePage::place[sizeof(LonePage)];

struct StripLifetime : StripTest {
    /// The tips of this thread that belong to the parent window.
    std::vector<HWND> tipWindows() {
        std::vector<HWND> found;
        m_owner = parent.m_hWnd;
        m_found = &found;
        ::EnumThreadWindows(::GetCurrentThreadId(), note, reinterpret_cast<LPARAM>(this));
        return found;
    }

private:
    static BOOL CALLBACK note(HWND window, LPARAM self) {
        auto* test = reinterpret_cast<StripLifetime*>(self);
        wchar_t name[40] = {};
        ::GetClassNameW(window, name, 40);
        if (std::wstring(name) == TOOLTIPS_CLASSW && ::GetWindow(window, GW_OWNER) == test->m_owner)
            test->m_found->push_back(window);
        return TRUE;
    }
    HWND m_owner = nullptr;
    std::vector<HWND>* m_found = nullptr;
};

TEST_F(StripLifetime, AStripThatIsMadeAgainStartsAnew) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);
    strip.fill(7);
    strip.SetActiveTab(5);
    strip.Recalc();
    ASSERT_FALSE(strip.m_scrollRect.IsRectEmpty());
    ASSERT_EQ(tipWindows().size(), 1u);
    strip.DestroyWindow();
    EXPECT_TRUE(tipWindows().empty()) << "the tip goes with its strip";
    make(strip, kRight, 18, 400);
    EXPECT_EQ(tipWindows(), std::vector<HWND>{strip.m_tip.m_hWnd});
    EXPECT_EQ(strip.m_activeTab, 0);
    EXPECT_EQ(strip.m_firstVisible, 0);
    EXPECT_EQ(strip.m_lastVisible, -1);
    EXPECT_TRUE(strip.m_scrollRect.IsRectEmpty());
    strip.fill(2);
    EXPECT_EQ(strip.GetTab(0)->m_toolId, 1);
    EXPECT_EQ(strip.m_tip.GetToolCount(), 2);
    expectRect(strip.rectOf(0), 160, 0, 280, textHeight() + 4);
    expectRect(strip.rectOf(1), 280, 0, 400, textHeight() + 4);
}

TEST_F(StripLifetime, ItsWidthsGrowWithTheResolutionOnceForEachWindow) {
    const ui_test::FakeResolution resolution(144);
    OpenStrip strip;
    for (const UINT dpi : {144u, 144u, 192u, 96u}) {
        resolution.show(dpi);
        const int sixteenths = static_cast<int>(dpi / 6);
        make(strip, kRight, 18, 400);
        EXPECT_EQ(strip.m_scrollWidth, sixteenths) << dpi;
        EXPECT_EQ(strip.m_minTabWidth, 60 * sixteenths / 16) << dpi;
        EXPECT_EQ(strip.m_maxTabWidth, 120 * sixteenths / 16) << dpi;
        strip.DestroyWindow();
        EXPECT_EQ(strip.m_maxTabWidth, 120) << dpi;
    }
}

TEST_F(StripLifetime, AWindowWithTwoTabsIsDeletedOnce) {
    int deleted = 0;
    Remains::touched = 0;
    auto* page = new LonePage(&deleted);
    ASSERT_TRUE(page->Create(nullptr, L"page", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
    const HWND window = page->m_hWnd;
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    int others = 0;
    strip.InsertTab(0, L"Page", L"", page);
    strip.InsertTab(1, L"Other", L"", new Page(&others));
    strip.InsertTab(2, L"Page again", L"", page);
    strip.DestroyWindow();
    ASSERT_EQ(deleted, 1);
    EXPECT_EQ(Remains::touched, 0) << "nor destroyed again";
    LonePage::clearAway();
    EXPECT_EQ(others, 1);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(strip.GetTabCount(), 0);
}

TEST_F(StripLifetime, ADoubleClickOnATabWithoutAWindowDoesNothing) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    ASSERT_EQ(strip.hit(5, 10), 1);
    strip.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 10));
    EXPECT_EQ(strip.m_activeTab, 0);
    EXPECT_EQ(strip.GetTabCount(), 2);
}

TEST_F(StripLifetime, ATipKeepsTheNameThatItsTabWasInsertedWith) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    ASSERT_EQ(strip.SetTabText(1, L"Other"), 1);
    EXPECT_EQ(strip.GetTab(1)->m_tip, L"Tab 1 tip");
    CString shown;
    strip.m_tip.GetText(shown, &strip, static_cast<UINT_PTR>(strip.GetTab(1)->m_toolId));
    EXPECT_EQ(shown, L"Tab 1 tip");
}

}  // namespace
