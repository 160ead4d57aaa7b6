// Calls of tab windows, signs and the shared data that programs make themselves.
#include <afxmenuimages.h>
#include <afxvisualmanager.h>

#include <algorithm>
#include <set>

#include "canvas.h"
#include "tab_fixture.h"

namespace tab_test {

namespace {

constexpr COLORREF kGround = RGB(255, 255, 255);

/// A sign of 18 by 18 pixels, row by row.
using Pixels = std::vector<COLORREF>;
constexpr int kSide = 18;

Pixels sign(CMenuImages::IMAGES_IDS id) {
    ui_test::Canvas canvas(kSide, kSide, kGround);
    CMenuImages::Draw(&canvas.dc, id, CPoint(0, 0), CMenuImages::ImageBlack, CSize(kSide, kSide));
    return canvas.pixels();
}
Pixels mirrored(const Pixels& from) {
    Pixels to(from);
    for (int y = 0; y < kSide; ++y) std::reverse(to.begin() + y * kSide, to.begin() + (y + 1) * kSide);
    return to;
}
Pixels turned_over(const Pixels& from) {
    Pixels to;
    for (int y = kSide - 1; y >= 0; --y)
        to.insert(to.end(), from.begin() + y * kSide, from.begin() + (y + 1) * kSide);
    return to;
}
Pixels across(const Pixels& from) {
    Pixels to(from);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            to[static_cast<size_t>(y * kSide + x)] = from[static_cast<size_t>(x * kSide + y)];
    return to;
}
/// The dark pixels of a sign.
int ink(const Pixels& pixels) {
    return static_cast<int>(
        std::count_if(pixels.begin(), pixels.end(), [](COLORREF c) { return c != kGround; }));
}
/// Where they begin and end from the left and from above.
CRect bounds(const Pixels& pixels) {
    CRect box(kSide, kSide, 0, 0);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            if (pixels[static_cast<size_t>(y * kSide + x)] != kGround)
                box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                            std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
    return box;
}

/// Paints its background in stripes by place.
class Striped : public ui_test::ParentWindow {
public:
    BOOL answer = TRUE;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_ERASEBKGND) return ParentWindow::WindowProc(message, wParam, lParam);
        const HDC dc = reinterpret_cast<HDC>(wParam);
        for (int x = 0; x < 100; ++x)
            for (int y = 0; y < 60; ++y) ::SetPixel(dc, x, y, RGB(x, y, 7));
        return answer;
    }
};

}  // namespace

TEST(Signs, OfTheSameKindPointEachItsOwnWay) {
    using M = CMenuImages;
    EXPECT_EQ(mirrored(sign(M::IdArrowLeft)), sign(M::IdArrowRight));
    EXPECT_EQ(turned_over(sign(M::IdArrowUp)), sign(M::IdArrowDown));
    EXPECT_EQ(across(sign(M::IdArrowUp)), sign(M::IdArrowLeft));
    EXPECT_EQ(mirrored(sign(M::IdArrowLeftLarge)), sign(M::IdArrowRightLarge));
    EXPECT_EQ(turned_over(sign(M::IdArrowUpLarge)), sign(M::IdArrowDownLarge));
    EXPECT_EQ(across(sign(M::IdArrowUpLarge)), sign(M::IdArrowLeftLarge));
    EXPECT_EQ(mirrored(sign(M::IdArrowFirst)), sign(M::IdArrowLast));
    EXPECT_GT(ink(sign(M::IdArrowUpLarge)), ink(sign(M::IdArrowUp)));
    EXPECT_GT(ink(sign(M::IdClose)), ink(sign(M::IdCloseSmall)));
    // An arrow has its point where it points to: the narrower end.
    const Pixels down = sign(M::IdArrowDown), right = sign(M::IdArrowRight);
    const CRect box = bounds(down), side = bounds(right);
    int above = 0, below = 0, before = 0, behind = 0;
    for (int i = 0; i < kSide; ++i) {
        above += down[static_cast<size_t>(box.top * kSide + i)] != kGround;
        below += down[static_cast<size_t>((box.bottom - 1) * kSide + i)] != kGround;
        before += right[static_cast<size_t>(i * kSide + side.left)] != kGround;
        behind += right[static_cast<size_t>(i * kSide + side.right - 1)] != kGround;
    }
    EXPECT_GT(above, below);
    EXPECT_GT(before, behind);
}

TEST(Signs, AreAllDifferentAndNoneIsEmpty) {
    std::set<Pixels> all;
    for (int id = CMenuImages::IdArrowDown; id <= CMenuImages::IdArrowUpLarge; ++id) {
        const Pixels drawn = sign(static_cast<CMenuImages::IMAGES_IDS>(id));
        EXPECT_GT(ink(drawn), 0) << id;
        all.insert(drawn);
    }
    EXPECT_EQ(all.size(), 20U);
}

TEST(Signs, HaveTheShapesOfTheirNames) {
    using M = CMenuImages;
    const Pixels close = sign(M::IdClose), radio = sign(M::IdRadio), line = sign(M::IdMinimize),
                 frame = sign(M::IdMaximize);
    EXPECT_EQ(mirrored(close), close);
    EXPECT_EQ(turned_over(close), close);
    EXPECT_EQ(across(close), close);
    EXPECT_EQ(mirrored(radio), radio);
    EXPECT_EQ(across(radio), radio);
    EXPECT_EQ(mirrored(frame), frame);
    EXPECT_EQ(mirrored(line), line);
    EXPECT_GT(bounds(line).top, kSide / 2) << "a line below";
    const CRect outer = bounds(frame);
    const CPoint middle = outer.CenterPoint();
    EXPECT_EQ(frame[static_cast<size_t>(middle.y * kSide + middle.x)], kGround) << "a frame is open";
    EXPECT_NE(radio[static_cast<size_t>(9 * kSide + 9)], kGround) << "a dot is full";
    EXPECT_EQ(across(sign(M::IdPinVert)).size(), sign(M::IdPinHorz).size());
    EXPECT_GT(bounds(sign(M::IdPinVert)).Height(), bounds(sign(M::IdPinVert)).Width());
    EXPECT_GT(bounds(sign(M::IdPinHorz)).Width(), bounds(sign(M::IdPinHorz)).Height());
}

TEST_F(TabWindow, TakesLabelsFromTheResources) {
    make();
    Page one(&tabs, 1001), two(&tabs, 1002), three(&tabs, 1003);
    // Texts of the class layer itself, found behind the program's own.
    CString text;
    ASSERT_TRUE(text.LoadString(AFX_IDS_UNTITLED));
    CMFCBaseTabCtrl& base = tabs;
    base.AddTab(&one, L"plain");
    base.AddTab(&two, AFX_IDS_UNTITLED, 3, FALSE);
    base.InsertTab(&three, AFX_IDS_UNTITLED, 0);
    EXPECT_EQ(labels(), std::wstring(text) + L",plain," + std::wstring(text));
    EXPECT_EQ(tabs.GetTabIcon(2), 3U);
    EXPECT_FALSE(tabs.IsTabDetachable(2));
    EXPECT_TRUE(tabs.IsTabDetachable(0));
    EXPECT_TRUE(tabs.IsTabDetachable(1));
    EXPECT_EQ(tabs.GetTabIcon(0), static_cast<UINT>(-1));
    EXPECT_EQ(tabs.GetTabIcon(9), static_cast<UINT>(-1));
    tabs.RemoveAllTabs();
}

TEST_F(TabWindow, TellsOfTheLargestOfItsWindows) {
    make();
    EXPECT_EQ(tabs.GetMaxWindowSize(), CSize(0, 0));
    Page &wide = add(L"wide"), &high = add(L"high");
    wide.MoveWindow(0, 0, 120, 30);
    high.MoveWindow(0, 0, 40, 90);
    EXPECT_EQ(tabs.GetMaxWindowSize(), CSize(120, 90));
}

TEST_F(TabWindow, FindsTabsByPointWindowAndId) {
    make();
    Page& one = add(L"one");
    Page& two = add(L"two");
    const CMFCBaseTabCtrl& base = tabs;
    CPoint in_second = tab(1).CenterPoint(), outside(399, 5);
    EXPECT_EQ(base.CMFCBaseTabCtrl::GetTabFromPoint(in_second), 1);
    EXPECT_EQ(base.CMFCBaseTabCtrl::GetTabFromPoint(outside), -1);
    CRect strip;
    base.CMFCBaseTabCtrl::GetTabsRect(strip);
    EXPECT_TRUE(strip.PtInRect(in_second));
    EXPECT_EQ(strip.bottom, 200);
    EXPECT_EQ(tabs.GetTabFromHwnd(one.m_hWnd), 0);
    EXPECT_EQ(tabs.GetTabFromHwnd(owner.m_hWnd), -1);
    EXPECT_EQ(tabs.GetTabID(0), 0);
    EXPECT_EQ(tabs.GetTabID(1), 1);
    EXPECT_EQ(tabs.GetTabID(2), -1);
    tabs.MoveTab(1, 0);
    EXPECT_EQ(tabs.GetTabByID(1), 0);
    EXPECT_EQ(tabs.GetTabByID(7), -1);
    EXPECT_EQ(tabs.GetTabWnd(0), &two);
    EXPECT_EQ(tabs.GetTabFullWidth(5), -1);
    EXPECT_GT(tabs.GetTabFullWidth(0), 0);
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(tabs.GetTabRect(5, rect));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    tabs.ShowTab(0, FALSE);
    int found = 9;
    EXPECT_EQ(tabs.GetFirstVisibleTab(found), &one);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(tabs.GetFirstVisibleTab(-4, found), &one);
    EXPECT_EQ(tabs.GetFirstVisibleTab(2, found), nullptr);
    EXPECT_EQ(found, -1);
    EXPECT_EQ(tabs.GetLastVisibleTab(found), &one);
    EXPECT_EQ(found, 1);
    tabs.ShowTab(1, FALSE);
    EXPECT_EQ(tabs.GetLastVisibleTab(found), nullptr);
    EXPECT_EQ(found, -1);
}

TEST_F(TabWindow, HasNoPicturesWithoutAList) {
    make();
    add(L"one");
    EXPECT_FALSE(tabs.SetImageList(static_cast<HIMAGELIST>(nullptr)));
    EXPECT_FALSE(tabs.SetImageList(61999)) << "no such bitmap";
    EXPECT_FALSE(tabs.HasImage(0));
    EXPECT_FALSE(tabs.HasImage(4));
    EXPECT_FALSE(tabs.SetTabIcon(4, 1));
    EXPECT_FALSE(tabs.SetTabHicon(4, nullptr));
    EXPECT_EQ(tabs.GetTabHicon(4), nullptr);
    EXPECT_FALSE(tabs.SetTabIconOnly(4));
    EXPECT_FALSE(tabs.IsTabIconOnly(4));
    const int plain = tabs.GetTabsHeight();
    CImageList list;
    list.Create(12, 40, ILC_COLOR32, 1, 0);
    EXPECT_TRUE(tabs.SetImageList(list.GetSafeHandle()));
    EXPECT_EQ(tabs.GetImageSize(), CSize(12, 40));
    EXPECT_EQ(tabs.GetTabsHeight(), 40 + 8) << "as high as its pictures, and four more at each side";
    EXPECT_FALSE(tabs.HasImage(0)) << "none is chosen";
    tabs.SetTabIcon(0, 0);
    EXPECT_TRUE(tabs.HasImage(0));
    tabs.ResetImageList();
    EXPECT_FALSE(tabs.HasImage(0));
    EXPECT_EQ(tabs.GetTabsHeight(), plain);
    const HICON icon = ::LoadIconW(nullptr, IDI_HAND);
    EXPECT_TRUE(tabs.SetTabHicon(0, icon));
    EXPECT_EQ(tabs.GetTabHicon(0), icon);
    EXPECT_TRUE(tabs.HasImage(0));
    EXPECT_EQ(tabs.GetTabsHeight(), std::max<int>(plain, afxGlobalData.m_sizeSmallIcon.cy + 8));
}

TEST_F(TabWindow, MeasuresAnewWhenTheSettingsChange) {
    make();
    add(L"one");
    const int before = tabs.GetTabsHeight();
    LOGFONTW font = {}, former = {};
    afxGlobalData.fontRegular.GetLogFont(&former);
    font = former;
    font.lfHeight = -40;
    afxGlobalData.SetMenuFont(&font, TRUE);
    EXPECT_EQ(tabs.GetTabsHeight(), before) << "until it is told";
    tabs.SendMessage(WM_SETTINGCHANGE);
    EXPECT_GE(tabs.GetTabsHeight(), 48);
    EXPECT_EQ(tab(0).Height(), tabs.GetTabsHeight());
    afxGlobalData.UpdateFonts();
}

TEST_F(TabWindow, PaintsWhereItIsToldTo) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add(L"one"), add(L"two");
    ui_test::Canvas printed(400, 200, RGB(255, 0, 255)), painted(400, 200, RGB(255, 0, 255));
    tabs.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc.m_hDC), PRF_CLIENT);
    tabs.paint(painted.dc);
    EXPECT_TRUE(printed == painted);
    EXPECT_EQ(printed.count(RGB(255, 0, 255)), 0);
}

TEST(GlobalDataCalls, AWindowShowsWhatLiesBehindIt) {
    Striped parent;
    CWnd child, orphan;
    const CString kind = afxGlobalData.RegisterWindowClass(L"kmfc:Behind");
    child.Create(kind, L"", WS_CHILD | WS_VISIBLE, CRect(20, 10, 60, 40), &parent, 5);
    ui_test::Canvas canvas(50, 40, RGB(255, 0, 255));
    EXPECT_TRUE(afxGlobalData.DrawParentBackground(&child, &canvas.dc));
    EXPECT_EQ(canvas.at(0, 0), RGB(20, 10, 7));
    EXPECT_EQ(canvas.at(39, 29), RGB(59, 39, 7));
    EXPECT_EQ(canvas.at(40, 5), RGB(255, 0, 255)) << "only its own room";
    ui_test::Canvas part(50, 40, RGB(255, 0, 255));
    CRect room(3, 4, 6, 8);
    EXPECT_TRUE(afxGlobalData.DrawParentBackground(&child, &part.dc, &room));
    EXPECT_EQ(part.at(3, 4), RGB(23, 14, 7));
    EXPECT_EQ(part.at(5, 7), RGB(25, 17, 7));
    EXPECT_EQ(part.at(2, 4), RGB(255, 0, 255));
    EXPECT_EQ(part.at(6, 4), RGB(255, 0, 255));
    EXPECT_EQ(part.at(3, 8), RGB(255, 0, 255));
    CRect clip;
    part.dc.GetClipBox(&clip);
    EXPECT_EQ(clip, CRect(0, 0, 50, 40)) << "the context is as before";
    EXPECT_EQ(part.dc.GetWindowOrg(), CPoint(0, 0));
    parent.answer = FALSE;
    EXPECT_FALSE(afxGlobalData.DrawParentBackground(&child, &part.dc));
    orphan.CreateEx(0, kind, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    EXPECT_FALSE(afxGlobalData.DrawParentBackground(&orphan, &part.dc));
    orphan.DestroyWindow();
    child.DestroyWindow();
}

TEST(GlobalDataCalls, ObjectsGoAndComeBack) {
    afxGlobalData.CleanUp();
    for (CGdiObject* const object : std::initializer_list<CGdiObject*>{
             &afxGlobalData.fontRegular, &afxGlobalData.fontTooltip, &afxGlobalData.fontBold,
             &afxGlobalData.fontUnderline, &afxGlobalData.fontDefaultGUIBold, &afxGlobalData.fontVert,
             &afxGlobalData.fontVertCaption, &afxGlobalData.brBtnFace, &afxGlobalData.brHilite,
             &afxGlobalData.brLight, &afxGlobalData.brBlack, &afxGlobalData.brActiveCaption,
             &afxGlobalData.brInactiveCaption, &afxGlobalData.brWindow, &afxGlobalData.brBarFace,
             &afxGlobalData.penHilite, &afxGlobalData.penBarFace, &afxGlobalData.penBarShadow})
        EXPECT_EQ(object->m_hObject, nullptr);
    afxGlobalData.UpdateSysColors();
    afxGlobalData.UpdateFonts();
    LOGFONTW tip = {}, bold = {};
    ASSERT_TRUE(afxGlobalData.fontTooltip.GetLogFont(&tip));
    ASSERT_TRUE(afxGlobalData.fontDefaultGUIBold.GetLogFont(&bold));
    NONCLIENTMETRICSW metrics = {};
    EXPECT_TRUE(afxGlobalData.GetNonClientMetrics(metrics));
    EXPECT_EQ(tip.lfHeight, metrics.lfStatusFont.lfHeight);
    EXPECT_EQ(bold.lfWeight, FW_BOLD);
    const std::pair<CBrush*, COLORREF> brushes[] = {
        {&afxGlobalData.brBtnFace, ::GetSysColor(COLOR_BTNFACE)},
        {&afxGlobalData.brHilite, ::GetSysColor(COLOR_HIGHLIGHT)},
        {&afxGlobalData.brLight, ::GetSysColor(COLOR_3DLIGHT)},
        {&afxGlobalData.brBlack, RGB(0, 0, 0)},
        {&afxGlobalData.brActiveCaption, ::GetSysColor(COLOR_ACTIVECAPTION)},
        {&afxGlobalData.brInactiveCaption, ::GetSysColor(COLOR_INACTIVECAPTION)},
        {&afxGlobalData.brWindow, ::GetSysColor(COLOR_WINDOW)},
        {&afxGlobalData.brBarFace, ::GetSysColor(COLOR_BTNFACE)}};
    for (const auto& [brush, color] : brushes) {
        LOGBRUSH about = {};
        ASSERT_TRUE(brush->GetLogBrush(&about));
        EXPECT_EQ(about.lbColor, color);
    }
    const std::pair<CPen*, COLORREF> pens[] = {{&afxGlobalData.penHilite, ::GetSysColor(COLOR_HIGHLIGHT)},
                                               {&afxGlobalData.penBarFace, ::GetSysColor(COLOR_BTNFACE)},
                                               {&afxGlobalData.penBarShadow, ::GetSysColor(COLOR_BTNSHADOW)}};
    for (const auto& [pen, color] : pens) {
        LOGPEN about = {};
        ASSERT_TRUE(pen->GetLogPen(&about));
        EXPECT_EQ(about.lopnColor, color);
        EXPECT_EQ(about.lopnStyle, static_cast<UINT>(PS_SOLID));
    }
}

TEST(GlobalDataCalls, EveryColourIsTheSystemsOwn) {
    afxGlobalData.UpdateSysColors();
    const std::pair<COLORREF, int> colors[] = {
        {afxGlobalData.clrBtnFace, COLOR_BTNFACE},
        {afxGlobalData.clrBarFace, COLOR_BTNFACE},
        {afxGlobalData.clrBtnShadow, COLOR_BTNSHADOW},
        {afxGlobalData.clrBarShadow, COLOR_BTNSHADOW},
        {afxGlobalData.clrBtnHilite, COLOR_BTNHIGHLIGHT},
        {afxGlobalData.clrBarHilite, COLOR_BTNHIGHLIGHT},
        {afxGlobalData.clrBtnText, COLOR_BTNTEXT},
        {afxGlobalData.clrBarText, COLOR_BTNTEXT},
        {afxGlobalData.clrBtnDkShadow, COLOR_3DDKSHADOW},
        {afxGlobalData.clrBarDkShadow, COLOR_3DDKSHADOW},
        {afxGlobalData.clrBtnLight, COLOR_3DLIGHT},
        {afxGlobalData.clrBarLight, COLOR_3DLIGHT},
        {afxGlobalData.clrWindow, COLOR_WINDOW},
        {afxGlobalData.clrBarWindow, COLOR_WINDOW},
        {afxGlobalData.clrWindowText, COLOR_WINDOWTEXT},
        {afxGlobalData.clrWindowFrame, COLOR_WINDOWFRAME},
        {afxGlobalData.clrGrayedText, COLOR_GRAYTEXT},
        {afxGlobalData.clrMenuText, COLOR_MENUTEXT},
        {afxGlobalData.clrHilite, COLOR_HIGHLIGHT},
        {afxGlobalData.clrTextHilite, COLOR_HIGHLIGHTTEXT},
        {afxGlobalData.clrHotText, COLOR_HOTLIGHT},
        {afxGlobalData.clrActiveCaption, COLOR_ACTIVECAPTION},
        {afxGlobalData.clrInactiveCaption, COLOR_INACTIVECAPTION},
        {afxGlobalData.clrCaptionText, COLOR_CAPTIONTEXT},
        {afxGlobalData.clrInactiveCaptionText, COLOR_INACTIVECAPTIONTEXT},
        {afxGlobalData.clrActiveCaptionGradient, COLOR_GRADIENTACTIVECAPTION},
        {afxGlobalData.clrInactiveCaptionGradient, COLOR_GRADIENTINACTIVECAPTION}};
    for (const auto& [color, id] : colors) EXPECT_EQ(color, ::GetSysColor(id)) << id;
}

TEST_F(TabWindow, IsDrawnAnewWhenItsColoursChange) {
    make();
    add(L"one");
    tabs.ShowWindow(SW_SHOW);
    const auto stale = [&](auto change) {
        tabs.ValidateRect(nullptr);
        change();
        CRect rect;
        return tabs.GetUpdateRect(&rect) != FALSE;
    };
    EXPECT_FALSE(stale([] {}));
    EXPECT_TRUE(stale([&] { tabs.SetAutoColors(CArray<COLORREF, COLORREF>()); }));
    EXPECT_TRUE(stale([&] { tabs.EnableAutoColor(); }));
    EXPECT_TRUE(stale([&] { tabs.SetTabBkColor(0, RGB(1, 2, 3)); }));
    EXPECT_TRUE(stale([&] { tabs.SetTabTextColor(0, RGB(1, 2, 3)); }));
    EXPECT_TRUE(stale([&] { tabs.SetActiveTabColor(RGB(1, 2, 3)); }));
    EXPECT_TRUE(stale([&] { tabs.SetActiveTabTextColor(RGB(1, 2, 3)); }));
}

TEST(StatusProgress, ItsTextLeavesTheBarBehindItAlone) {
    ui_test::Canvas canvas(80, 24, RGB(255, 0, 255));
    canvas.dc.SetBkColor(RGB(0, 255, 0));
    canvas.dc.SetBkMode(OPAQUE);
    CMFCVisualManager::GetInstance()->OnDrawStatusBarProgress(&canvas.dc, nullptr, CRect(2, 2, 78, 22), 100,
                                                              50, RGB(10, 20, 30), RGB(10, 20, 30),
                                                              RGB(250, 250, 250), TRUE);
    EXPECT_EQ(canvas.count(RGB(0, 255, 0)), 0);
    EXPECT_GT(canvas.count(RGB(10, 20, 30)), 300);
}

}  // namespace tab_test
