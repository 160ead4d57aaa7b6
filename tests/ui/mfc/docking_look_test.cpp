// What captions, signs and tabs look like: pixels in light, dark and high contrast.
#include <afxcaptionbutton.h>
#include <afxmenuimages.h>
#include <afxvisualmanager.h>

#include <map>

#include "tab_fixture.h"

namespace tab_test {

namespace {

/// A picture of its own to draw on.
struct Canvas {
    Canvas(int w, int h) : width(w), height(h) {
        const HDC screen = ::GetDC(nullptr);
        dc.Attach(::CreateCompatibleDC(screen));
        bitmap.Attach(::CreateCompatibleBitmap(screen, w, h));
        ::ReleaseDC(nullptr, screen);
        former = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, w, h, RGB(255, 0, 255));
    }
    ~Canvas() { dc.SelectObject(former); }
    COLORREF at(int x, int y) { return dc.GetPixel(x, y); }
    std::map<COLORREF, int> colors(CRect area) {
        std::map<COLORREF, int> counts;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x) ++counts[at(x, y)];
        return counts;
    }
    int width, height;
    CDC dc;
    CBitmap bitmap;
    CBitmap* former;
};

/// Other system colours for as long as it lives.
class FakeColors {
public:
    FakeColors(COLORREF face, COLORREF text, COLORREF window, COLORREF highlight, COLORREF highlightText,
               BOOL contrast = FALSE) {
        afxGlobalData.clrBarFace = face;
        afxGlobalData.clrBarText = afxGlobalData.clrWindowText = text;
        afxGlobalData.clrBarWindow = afxGlobalData.clrWindow = window;
        afxGlobalData.clrHilite = highlight;
        afxGlobalData.clrTextHilite = highlightText;
        afxGlobalData.m_bIsBlackHighContrast = contrast;
    }
    ~FakeColors() { afxGlobalData.UpdateSysColors(); }
    FakeColors(const FakeColors&) = delete;
    FakeColors& operator=(const FakeColors&) = delete;
};

constexpr COLORREF kFace = RGB(43, 43, 43), kText = RGB(250, 250, 250), kWindow = RGB(20, 20, 20),
                   kHighlight = RGB(0, 90, 158), kHighlightText = RGB(255, 255, 255);

int brightness(COLORREF color) { return GetRValue(color) + GetGValue(color) + GetBValue(color); }

class CountingManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(CountingManager)
public:
    CountingManager() { ++alive; }
    ~CountingManager() override { --alive; }
    CSize GetCaptionButtonExtraBorder() const override { return CSize(4, 6); }
    static inline int alive = 0;
};
IMPLEMENT_DYNCREATE(CountingManager, CMFCVisualManager)

class LookListener : public ui_test::ParentWindow {
public:
    int changes = 0;

protected:
    LRESULT OnChange(WPARAM, LPARAM) { return ++changes; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(LookListener, CWnd)
    ON_REGISTERED_MESSAGE(AFX_WM_ON_CHANGE_VISUAL_MANAGER, &LookListener::OnChange)
END_MESSAGE_MAP()

}  // namespace

TEST(DockingLook, ReplacesTheManager) {
    LookListener main;
    AfxGetApp()->m_pMainWnd = &main;
    CMFCVisualManager* const first = CMFCVisualManager::GetInstance();
    EXPECT_EQ(CMFCVisualManager::GetInstance(), first);
    const CSize plain = CMFCCaptionButton::GetSize();
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CWnd));
    EXPECT_EQ(main.changes, 0) << "no visual manager";
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CountingManager));
    EXPECT_EQ(main.changes, 1);
    EXPECT_TRUE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CountingManager)));
    EXPECT_EQ(CountingManager::alive, 1);
    EXPECT_EQ(CMFCCaptionButton::GetSize(), plain + CSize(4, 6));
    CMFCVisualManager::SetDefaultManager(nullptr);
    EXPECT_EQ(CountingManager::alive, 0);
    EXPECT_FALSE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CountingManager)));
    AfxGetApp()->m_pMainWnd = nullptr;
}

TEST(DockingLook, PaintsCaptionsByTheirState) {
    const FakeColors dark(kFace, kText, kWindow, kHighlight, kHighlightText);
    Canvas canvas(60, 40);
    CMFCVisualManager& look = *CMFCVisualManager::GetInstance();
    EXPECT_EQ(look.OnDrawPaneCaption(&canvas.dc, nullptr, TRUE, CRect(0, 0, 60, 20), CRect()),
              kHighlightText);
    EXPECT_EQ(canvas.at(30, 10), kHighlight);
    EXPECT_EQ(look.OnDrawPaneCaption(&canvas.dc, nullptr, FALSE, CRect(0, 20, 60, 40), CRect()), kText);
    const COLORREF fill = canvas.at(30, 30);
    EXPECT_NE(fill, kHighlight);
    EXPECT_NE(fill, kFace);
    EXPECT_NEAR(brightness(fill), brightness(kFace), 80);
    EXPECT_EQ(look.OnFillMiniFrameCaption(&canvas.dc, CRect(0, 0, 60, 20), nullptr, FALSE), kText);
    EXPECT_EQ(canvas.at(30, 10), fill);
    EXPECT_EQ(look.OnFillMiniFrameCaption(&canvas.dc, CRect(0, 0, 60, 20), nullptr, TRUE), kHighlightText);
    EXPECT_EQ(canvas.at(30, 10), kHighlight);
}

TEST(DockingLook, PaintsBarsBordersAndDividers) {
    const FakeColors dark(kFace, kText, kWindow, kHighlight, kHighlightText);
    Canvas canvas(40, 40);
    CMFCVisualManager& look = *CMFCVisualManager::GetInstance();
    look.OnFillBarBackground(&canvas.dc, nullptr, CRect(0, 0, 40, 30), CRect());
    EXPECT_EQ(canvas.at(5, 29), kFace);
    EXPECT_EQ(canvas.at(5, 30), RGB(255, 0, 255));
    CRect frame(0, 0, 40, 30);
    look.OnDrawPaneBorder(&canvas.dc, nullptr, frame);
    EXPECT_NE(canvas.at(0, 15), kFace);
    EXPECT_EQ(canvas.at(0, 15), canvas.at(39, 15));
    EXPECT_EQ(canvas.at(1, 15), kFace);
    look.OnDrawPaneDivider(&canvas.dc, nullptr, CRect(0, 30, 40, 34), FALSE);
    EXPECT_EQ(canvas.at(0, 30), kFace);
    look.OnDrawPaneDivider(&canvas.dc, nullptr, CRect(0, 30, 40, 34), TRUE);
    EXPECT_NE(canvas.at(0, 30), kFace);
    look.OnDrawMiniFrameBorder(&canvas.dc, nullptr, CRect(0, 0, 40, 40), CRect(3, 4, 5, 6));
    EXPECT_EQ(canvas.at(2, 20), kFace);
    EXPECT_EQ(canvas.at(36, 20), kFace);
    EXPECT_NE(canvas.at(0, 20), kFace);
    look.OnFillAutoHideButtonBackground(&canvas.dc, CRect(0, 0, 20, 20), nullptr);
    EXPECT_EQ(canvas.at(10, 10), kFace);
    look.OnDrawAutoHideButtonBorder(&canvas.dc, CRect(0, 0, 20, 20), CRect(0, 3, 0, 0), nullptr);
    EXPECT_NE(canvas.at(10, 2), kFace);
    EXPECT_EQ(canvas.at(10, 3), kFace);
    EXPECT_EQ(canvas.at(10, 19), kFace);
}

TEST(DockingLook, PaintsCaptionButtonsByTheirState) {
    const FakeColors dark(kFace, kText, kWindow, kHighlight, kHighlightText);
    Canvas canvas(40, 40);
    CMFCCaptionButton button(AFX_HTCLOSE);
    button.Move(CPoint(5, 6));
    const CSize size = CMFCCaptionButton::GetSize();
    EXPECT_EQ(button.GetRect(), CRect(CPoint(5, 6), size));
    const CPoint corner(5, 6);
    button.OnDraw(&canvas.dc, FALSE);
    EXPECT_EQ(canvas.at(corner.x, corner.y), RGB(255, 0, 255)) << "at rest only the sign is drawn";
    const CRect rect = button.GetRect();
    EXPECT_GE(canvas.colors(rect).size(), 2u);
    button.m_bFocused = TRUE;
    button.OnDraw(&canvas.dc, FALSE);
    const COLORREF hot = canvas.at(corner.x, corner.y);
    button.m_bPushed = TRUE;
    button.OnDraw(&canvas.dc, FALSE);
    const COLORREF pressed = canvas.at(corner.x, corner.y);
    button.m_bFocused = FALSE;
    button.OnDraw(&canvas.dc, FALSE);
    EXPECT_EQ(canvas.at(corner.x, corner.y), hot) << "held, but the mouse is elsewhere";
    EXPECT_NE(hot, pressed);
    EXPECT_NE(hot, RGB(255, 0, 255));
    canvas.dc.FillSolidRect(0, 0, 40, 40, RGB(255, 0, 255));
    button.m_bEnabled = FALSE;
    button.OnDraw(&canvas.dc, FALSE);
    EXPECT_EQ(canvas.at(corner.x, corner.y), RGB(255, 0, 255)) << "nothing lights up on a dead button";
    EXPECT_GE(canvas.colors(rect).size(), 2u);
    canvas.dc.FillSolidRect(0, 0, 40, 40, RGB(255, 0, 255));
    button.Move(CPoint(5, 6), TRUE);
    EXPECT_TRUE(button.GetRect().IsRectEmpty());
    button.OnDraw(&canvas.dc, FALSE);
    EXPECT_EQ(canvas.colors(CRect(0, 0, 40, 40)).size(), 1u) << "a hidden button draws nothing";
}

TEST(CaptionButtons, ShowTheSignOfWhatTheyDo) {
    EXPECT_EQ(CMFCCaptionButton(AFX_HTCLOSE).GetIconID(TRUE), CMenuImages::IdClose);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTMENU).GetIconID(TRUE), CMenuImages::IdArrowDown);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTMAXBUTTON).GetIconID(TRUE, FALSE), CMenuImages::IdPinVert);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTMAXBUTTON).GetIconID(TRUE, TRUE), CMenuImages::IdPinHorz);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTLEFTBUTTON).GetIconID(TRUE), CMenuImages::IdArrowLeftLarge);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTLEFTBUTTON).GetIconID(FALSE), CMenuImages::IdArrowUpLarge);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTRIGHTBUTTON).GetIconID(TRUE), CMenuImages::IdArrowRightLarge);
    EXPECT_EQ(CMFCCaptionButton(AFX_HTRIGHTBUTTON).GetIconID(FALSE), CMenuImages::IdArrowDownLarge);
    EXPECT_EQ(AFX_HTMENU, 8);
    EXPECT_EQ(AFX_HTMAXBUTTON, 9);
    EXPECT_EQ(AFX_HTCLOSE, 19);
    CMFCCaptionButton plain;
    EXPECT_EQ(plain.GetHit(), static_cast<UINT>(HTNOWHERE));
    EXPECT_FALSE(plain.IsMiniFrameButton());
    plain.SetMiniFrameButton();
    EXPECT_TRUE(plain.IsMiniFrameButton());
    EXPECT_TRUE(CMFCCaptionButton(AFX_HTCLOSE, TRUE).m_bLeftAlign);
}

TEST(MenuImages, AreSharpAtAnyResolution) {
    const int former = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 96;
    EXPECT_EQ(CMenuImages::Size(), CSize(9, 9));
    EXPECT_EQ(CMFCCaptionButton::GetSize(), CSize(9 + 2 * CMFCCaptionButton::m_nButtonMarginHorz,
                                                  9 + 2 * CMFCCaptionButton::m_nButtonMarginVert));
    afxGlobalData.m_nDpi = 144;
    EXPECT_EQ(CMenuImages::Size(), CSize(14, 14));
    afxGlobalData.m_nDpi = former;
}

TEST(MenuImages, AreDrawnInTheColourOfTheirState) {
    Canvas canvas(30, 30);
    const CSize nine(9, 9);
    CMenuImages::Draw(&canvas.dc, CMenuImages::IdMinimize, CPoint(10, 10), CMenuImages::ImageBlack, nine);
    EXPECT_EQ(canvas.at(14, 18), RGB(0, 0, 0));
    EXPECT_EQ(canvas.at(14, 10), RGB(255, 0, 255)) << "around the sign the background stays";
    EXPECT_EQ(canvas.at(19, 18), RGB(255, 0, 255));
    CMenuImages::Draw(&canvas.dc, CMenuImages::IdMinimize, CPoint(10, 10), CMenuImages::ImageWhite, nine);
    EXPECT_EQ(canvas.at(14, 18), RGB(255, 255, 255));
    CMenuImages::SetColor(CMenuImages::ImageBlack2, RGB(1, 2, 3));
    CMenuImages::Draw(&canvas.dc, CMenuImages::IdMinimize, CRect(0, 0, 19, 19), CMenuImages::ImageBlack2,
                      nine);
    EXPECT_EQ(canvas.at(9, 13), RGB(1, 2, 3)) << "in the middle of the rectangle";
    CMenuImages::SetColor(CMenuImages::ImageBlack2, RGB(0, 0, 0));
    CMenuImages::CleanUp();
    CMenuImages::draw_in_color(&canvas.dc, CMenuImages::IdMinimize, CRect(0, 0, 19, 19), RGB(7, 8, 9), nine);
    EXPECT_EQ(canvas.at(9, 13), RGB(7, 8, 9));
}

TEST(MenuImages, CanBeSeenOnTheirBackground) {
    EXPECT_EQ(CMenuImages::GetStateByColor(RGB(240, 240, 240)), CMenuImages::ImageBlack);
    EXPECT_EQ(CMenuImages::GetStateByColor(RGB(0, 0, 128)), CMenuImages::ImageWhite);
    EXPECT_EQ(CMenuImages::GetStateByColor(RGB(130, 130, 130), FALSE), CMenuImages::ImageGray);
    EXPECT_EQ(CMenuImages::GetStateByColor(RGB(250, 250, 250), FALSE), CMenuImages::ImageWhite);
    EXPECT_EQ(CMenuImages::GetStateByColor(RGB(70, 70, 70), FALSE), CMenuImages::ImageDkGray);
}

TEST(GlobalData, FollowsTheSystem) {
    afxGlobalData.UpdateSysColors();
    EXPECT_EQ(afxGlobalData.clrBarFace, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(afxGlobalData.clrBarText, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(afxGlobalData.clrWindow, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(afxGlobalData.clrHilite, ::GetSysColor(COLOR_HIGHLIGHT));
    LOGBRUSH brush = {};
    afxGlobalData.brBarFace.GetLogBrush(&brush);
    EXPECT_EQ(brush.lbColor, ::GetSysColor(COLOR_BTNFACE));
    const int element = COLOR_BTNFACE;
    const COLORREF other = RGB(12, 34, 56), former = ::GetSysColor(COLOR_BTNFACE);
    ::SetSysColors(1, &element, &other);
    EXPECT_EQ(afxGlobalData.clrBarFace, former) << "until it is told";
    afxGlobalData.UpdateSysColors();
    EXPECT_EQ(afxGlobalData.clrBarFace, other);
    afxGlobalData.brBarFace.GetLogBrush(&brush);
    EXPECT_EQ(brush.lbColor, other);
    ::SetSysColors(1, &element, &former);
    afxGlobalData.UpdateSysColors();
    EXPECT_EQ(afxGlobalData.m_nBitsPerPixel, 32);
    EXPECT_TRUE(afxGlobalData.Is32BitIcons());
    EXPECT_FALSE(afxGlobalData.IsHighContrastMode());
    EXPECT_EQ(afxGlobalData.m_rectVirtual.Width(), ::GetSystemMetrics(SM_CXVIRTUALSCREEN));
    EXPECT_EQ(afxGlobalData.m_sizeSmallIcon.cx, ::GetSystemMetrics(SM_CXSMICON));
}

TEST(GlobalData, MakesItsFontsFromOne) {
    LOGFONTW regular = {}, bold = {}, underlined = {}, vertical = {}, caption = {};
    afxGlobalData.fontRegular.GetLogFont(&regular);
    afxGlobalData.fontBold.GetLogFont(&bold);
    afxGlobalData.fontUnderline.GetLogFont(&underlined);
    afxGlobalData.fontVert.GetLogFont(&vertical);
    afxGlobalData.fontVertCaption.GetLogFont(&caption);
    EXPECT_EQ(bold.lfWeight, FW_BOLD);
    EXPECT_EQ(bold.lfHeight, regular.lfHeight);
    EXPECT_TRUE(underlined.lfUnderline);
    EXPECT_EQ(vertical.lfEscapement, 2700);
    EXPECT_EQ(caption.lfEscapement, 900);
    EXPECT_EQ(regular.lfEscapement, 0);
    LOGFONTW larger = regular;
    larger.lfHeight = -40;
    EXPECT_TRUE(afxGlobalData.SetMenuFont(&larger, TRUE));
    EXPECT_GE(afxGlobalData.GetTextHeight(), 40);
    EXPECT_LT(afxGlobalData.GetTextHeight(FALSE), 40);
    LOGFONTW same = {};
    afxGlobalData.fontVert.GetLogFont(&same);
    EXPECT_EQ(same.lfHeight, vertical.lfHeight) << "the upright ones stay";
    afxGlobalData.UpdateFonts();
    EXPECT_LT(afxGlobalData.GetTextHeight(), 40);
    EXPECT_TRUE(afxGlobalData.SetMenuFont(&larger, FALSE));
    EXPECT_GE(afxGlobalData.GetTextHeight(FALSE), 40);
    afxGlobalData.fontRegular.DeleteObject();
    larger.lfHeight = -60;
    afxGlobalData.fontRegular.CreateFontIndirect(&larger);
    EXPECT_GE(afxGlobalData.GetTextHeight(), 60) << "a font that was exchanged from outside";
    afxGlobalData.UpdateFonts();
}

TEST(GlobalData, RegistersAWindowClassOnce) {
    const CString name = afxGlobalData.RegisterWindowClass(L"KH:Test");
    EXPECT_EQ(name.Left(8), L"KH:Test:");
    EXPECT_EQ(afxGlobalData.RegisterWindowClass(L"KH:Test"), name);
    WNDCLASSW found = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), name, &found));
    EXPECT_EQ(found.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_NE(found.style & CS_DBLCLKS, 0u);
    CWnd window;
    EXPECT_TRUE(window.CreateEx(0, name, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window.DestroyWindow();
}

TEST(GlobalData, KnowsCursorsAndScale) {
    EXPECT_EQ(afxGlobalData.m_hcurStretch, ::LoadCursorW(nullptr, IDC_SIZEWE));
    EXPECT_EQ(afxGlobalData.m_hcurStretchVert, ::LoadCursorW(nullptr, IDC_SIZENS));
    EXPECT_EQ(afxGlobalData.GetHandCursor(), ::LoadCursorW(nullptr, IDC_HAND));
    const int former = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 192;
    EXPECT_EQ(afxGlobalData.scaled(7), 14);
    afxGlobalData.m_nDpi = former;
}

TEST_F(TabWindow, PaintsTheActiveTabLikeItsPage) {
    const FakeColors dark(kFace, kText, kWindow, kHighlight, kHighlightText);
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add(L"i"), add(L"i"), add(L"i");
    Canvas canvas(400, 200);
    tabs.paint(canvas.dc);
    const auto beside = [&](int i) { return canvas.at(tab(i).left + 4, tab(i).CenterPoint().y); };
    EXPECT_EQ(beside(0), kWindow);
    EXPECT_EQ(beside(1), kFace);
    EXPECT_EQ(canvas.at(tab(0).CenterPoint().x, tab(0).top), kHighlight) << "a line along the active tab";
    EXPECT_EQ(canvas.at(tab(1).CenterPoint().x, tab(1).top), kFace);
    EXPECT_EQ(canvas.at(390, 5), kFace) << "behind the tabs";
    send(WM_MOUSEMOVE, tab(1).CenterPoint());
    tabs.paint(canvas.dc);
    EXPECT_NE(beside(1), kFace) << "under the mouse";
    EXPECT_EQ(beside(2), kFace);
    tabs.SetLocation(CMFCTabCtrl::LOCATION_BOTTOM);
    tabs.paint(canvas.dc);
    EXPECT_EQ(canvas.at(tab(0).CenterPoint().x, tab(0).bottom - 1), kHighlight);
}

TEST_F(TabWindow, PaintsTabsInColoursOfTheirOwn) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add(L"i"), add(L"i"), add(L"i");
    const auto fill = [&](int i) {
        Canvas canvas(400, 200);
        tabs.paint(canvas.dc);
        return canvas.at(tab(i).left + 4, tab(i).CenterPoint().y);
    };
    EXPECT_EQ(tabs.GetTabBkColor(1), static_cast<COLORREF>(-1));
    EXPECT_TRUE(tabs.SetTabBkColor(1, RGB(10, 200, 30)));
    EXPECT_EQ(fill(1), RGB(10, 200, 30));
    EXPECT_FALSE(tabs.SetTabBkColor(7));
    EXPECT_EQ(tabs.GetActiveTabColor(), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(tabs.GetActiveTabTextColor(), ::GetSysColor(COLOR_WINDOWTEXT));
    tabs.SetActiveTabColor(RGB(200, 10, 30));
    EXPECT_EQ(fill(0), RGB(200, 10, 30));
    tabs.EnableAutoColor();
    EXPECT_TRUE(tabs.IsAutoColor());
    EXPECT_EQ(fill(2), tabs.GetAutoColors()[2]);
    EXPECT_EQ(fill(1), RGB(10, 200, 30)) << "its own goes first";
    CArray<COLORREF, COLORREF> two;
    two.Add(RGB(1, 1, 250)), two.Add(RGB(2, 250, 2));
    tabs.SetAutoColors(two);
    EXPECT_EQ(fill(2), RGB(1, 1, 250)) << "the row begins again";
    tabs.SetAutoColors(CArray<COLORREF, COLORREF>());
    EXPECT_GT(tabs.GetAutoColors().GetSize(), 4);
    CMFCVisualManager& look = *CMFCVisualManager::GetInstance();
    EXPECT_TRUE(tabs.SetTabTextColor(1, RGB(9, 9, 9)));
    EXPECT_EQ(look.GetTabTextColor(&tabs, 1, FALSE), RGB(9, 9, 9));
    tabs.SetActiveTabTextColor(RGB(8, 8, 8));
    EXPECT_EQ(look.GetTabTextColor(&tabs, 0, TRUE), RGB(8, 8, 8));
    tabs.SetTabTextColor(1);
    tabs.SetTabBkColor(1, RGB(0, 0, 90));
    EXPECT_EQ(look.GetTabTextColor(&tabs, 1, FALSE), RGB(255, 255, 255)) << "dark text can't be read there";
}

TEST_F(TabWindow, UsesOnlyTheSystemsColoursInHighContrast) {
    const COLORREF yellow = RGB(255, 255, 0), green = RGB(0, 255, 0);
    const FakeColors contrast(0, yellow, 0, green, 0, TRUE);
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add(L"i"), add(L"i");
    tabs.SetTabBkColor(1, RGB(10, 200, 30));
    Canvas canvas(400, 200);
    tabs.paint(canvas.dc);
    EXPECT_EQ(canvas.at(tab(0).left + 4, tab(0).CenterPoint().y), green);
    EXPECT_EQ(canvas.at(tab(1).left + 4, tab(1).CenterPoint().y), RGB(0, 0, 0));
}

TEST_F(TabWindow, SlantsOnlyTheOneNoteTabs) {
    make(CMFCTabCtrl::STYLE_3D_ONENOTE, CMFCTabCtrl::LOCATION_TOP);
    add(L"first"), add(L"second");
    tabs.SetActiveTab(1);
    tabs.SetTabBkColor(0, RGB(1, 2, 200));
    Canvas canvas(400, 200);
    tabs.paint(canvas.dc);
    EXPECT_NE(canvas.at(tab(0).left + 1, tab(0).top + 1), RGB(1, 2, 200)) << "the upper corner is cut";
    EXPECT_EQ(canvas.at(tab(0).left + tab(0).Height(), tab(0).top + 3), RGB(1, 2, 200));
    tabs.ModifyTabStyle(CMFCTabCtrl::STYLE_3D);
    tabs.paint(canvas.dc);
    EXPECT_EQ(canvas.at(tab(0).left + 1, tab(0).top + 1), RGB(1, 2, 200));
}

TEST_F(TabWindow, FramesItsPage) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add(L"one");
    Canvas canvas(400, 200);
    tabs.paint(canvas.dc);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_NE(canvas.at(0, 150), face);
    EXPECT_EQ(canvas.at(1, 150), face);
    EXPECT_EQ(canvas.at(0, 150), canvas.at(399, 150));
    const int line = tabs.GetTabsHeight();
    EXPECT_EQ(canvas.at(tab(0).CenterPoint().x, line), ::GetSysColor(COLOR_WINDOW))
        << "the active tab joins it";
    EXPECT_EQ(canvas.at(300, line), canvas.at(0, 150));
    tabs.SetFlatFrame(FALSE);
    EXPECT_FALSE(tabs.IsFlatFrame());
    tabs.paint(canvas.dc);
    EXPECT_NE(canvas.at(0, 150), canvas.at(399, 150)) << "light from the left";
    tabs.SetDrawFrame(FALSE);
    EXPECT_FALSE(tabs.IsDrawFrame());
    tabs.paint(canvas.dc);
    EXPECT_EQ(canvas.at(0, 150), face);
}

}  // namespace tab_test
