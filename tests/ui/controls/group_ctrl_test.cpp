// The group controls: their state, their fixed answers, and that they swallow what they do not draw.
#include <ktui/controls/kbui_group_ctrl.h>

#include "canvas.h"
#include "recording_holder.h"
#include "sent_messages.h"
#include "slot_of.h"

namespace {

using ui_test::slotOf;

class OpenGroup : public CKbUiGroupCtrl {
public:
    std::vector<CBitmap*> offered;  ///< to the forms that take a bitmap
    bool takes = false;
    int headers = 0;

    bool AddWnd(CWnd* window, const wchar_t* name, CBitmap* bitmap) override {
        offered.push_back(bitmap);
        const bool held = CKbUiGroupCtrl::AddWnd(window, name, bitmap);
        return held || takes;
    }
    bool AddBmpBtnToHeader(CBitmap* bitmap, KbUiGroupHeaderCall call, DWORD& id,
                           const wchar_t* tip) override {
        offered.push_back(bitmap);
        const bool held = CKbUiGroupCtrl::AddBmpBtnToHeader(bitmap, call, id, tip);
        return held || takes;
    }
    void DrawGroupHeader() override { ++headers; }
    using CKbUiGroupCtrl::AddBmpBtnToHeader;
    using CKbUiGroupCtrl::AddWnd;
    using CKbUiGroupCtrl::m_brush;
    using CKbUiGroupCtrl::m_title;
    using CKbUiGroupCtrl::m_toolTip;
    using CKbUiGroupCtrl::OnChevronClicked;
};

struct GroupCtrl : ::testing::Test {
    GroupCtrl() {
        group.Create(L"group", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 60), &holder, 5);
        ui_test::pump();
    }
    ui_test::RecordingHolder holder;
    OpenGroup group;
    CWnd child;
};

TEST_F(GroupCtrl, KeepsItsState) {
    EXPECT_EQ(group.m_brush.m_hObject, nullptr);
    EXPECT_EQ(group.m_toolTip.m_hWnd, nullptr);
    group.SetTitle("a title");
    EXPECT_EQ(group.m_title, L"a title");
    for (const bool on : {true, false}) {
        group.SetMinimized(on);
        group.SetActive(!on);
        EXPECT_EQ(group.GetMinimized(), on);
        EXPECT_EQ(group.GetActive(), !on);
        group.SetHideGroupHeader(on);
        EXPECT_EQ(group.GetHideGroupHeader(), on);
    }
    group.SetHeaderHeight(21);
    group.SetSelIndex(-3);
    group.SetStyle(0x80000001);
    EXPECT_EQ(group.GetHeaderHeight(), 21);
    EXPECT_EQ(group.GetSelIndex(), -3);
    EXPECT_EQ(group.GetStyle(), 0x80000001u);
}

TEST_F(GroupCtrl, AChildIsCountedAndNotHeld) {
    CBitmap bitmap;
    group.SetSelIndex(4);
    EXPECT_FALSE(group.AddWnd(&child, L"child", &bitmap));
    EXPECT_EQ(group.GetSelIndex(), 5);
    EXPECT_FALSE(group.AddWnd(&child, L"child", static_cast<CBitmap*>(nullptr)));
    EXPECT_EQ(group.GetSelIndex(), 5);
}

TEST_F(GroupCtrl, AChildsBitmapIsLoadedByNameForTheOtherForm) {
    group.SetSelIndex(0);
    EXPECT_FALSE(group.AddWnd(&child, L"child", L"SQUARE"));
    ASSERT_EQ(group.offered.size(), 1u);
    EXPECT_EQ(group.GetSelIndex(), 1);
    EXPECT_FALSE(group.AddWnd(&child, L"child", L""));
    EXPECT_FALSE(group.AddWnd(&child, L"child", static_cast<const wchar_t*>(nullptr)));
    EXPECT_FALSE(group.AddWnd(&child, L"child", L"NOWHERE"));
    EXPECT_EQ(group.offered.size(), 1u);
    EXPECT_EQ(group.GetSelIndex(), 1);
}

TEST_F(GroupCtrl, ABitmapBelongsToAnOverrideThatTakesIt) {
    group.takes = true;
    DWORD id = 9;
    EXPECT_TRUE(group.AddWnd(&child, L"child", L"SQUARE"));
    EXPECT_TRUE(group.AddBmpBtnToHeader(L"SQUARE", nullptr, id, L"tip"));
    for (CBitmap* bitmap : group.offered) {
        BITMAP size = {};
        EXPECT_TRUE(bitmap->GetBitmap(&size));
        EXPECT_EQ(size.bmWidth, 10);
        delete bitmap;
    }
    EXPECT_EQ(group.offered.size(), 2u);
}

TEST_F(GroupCtrl, AHeaderButtonIsNotHeld) {
    CBitmap bitmap;
    DWORD id = 77;
    EXPECT_FALSE(group.AddBmpBtnToHeader(&bitmap, nullptr, id, L"tip"));
    EXPECT_FALSE(group.AddBmpBtnToHeader(L"SQUARE", nullptr, id, L"tip"));
    EXPECT_EQ(group.offered.size(), 2u);
    EXPECT_FALSE(group.AddBmpBtnToHeader(L"NOWHERE", nullptr, id, L"tip"));
    EXPECT_EQ(group.offered.size(), 2u);
    EXPECT_EQ(id, 77u);
    EXPECT_FALSE(group.RemoveBmpBtnFromHeader(77));
}

TEST_F(GroupCtrl, ShowsAWindow) {
    EXPECT_FALSE(group.ShowWnd(nullptr));
    CStatic hidden;
    hidden.Create(L"hidden", WS_CHILD, CRect(0, 0, 5, 5), &holder, 6);
    EXPECT_TRUE(group.ShowWnd(&hidden));
    EXPECT_TRUE(hidden.IsWindowVisible());
}

TEST_F(GroupCtrl, ChangesTheWindowsStylesAndFont) {
    group.ModGroupStyle(WS_VISIBLE, WS_TABSTOP);
    const DWORD style = group.CWnd::GetStyle();
    EXPECT_FALSE(style & WS_VISIBLE);
    EXPECT_TRUE(style & WS_TABSTOP);
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    std::vector<std::pair<WPARAM, LPARAM>> fonts;
    const auto record = [&](const CWPSTRUCT& message) {
        if (message.message == WM_SETFONT && message.hwnd == group.m_hWnd)
            fonts.push_back({message.wParam, message.lParam});
    };
    const ui_test::SentMessages sent(record);
    group.SetFont(&font, 0);
    group.SetFont(&font);
    group.SetFont(nullptr, 1);
    const auto handle = reinterpret_cast<WPARAM>(font.m_hObject);
    EXPECT_EQ(fonts, (std::vector<std::pair<WPARAM, LPARAM>>{{handle, 0}, {handle, 1}, {0, 1}}));
}

TEST_F(GroupCtrl, DeselectingTheHeaderDrawsIt) {
    group.DeselectGroupHeader();
    EXPECT_EQ(group.headers, 1);
}

TEST_F(GroupCtrl, SwallowsItsMessages) {
    EXPECT_EQ(group.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(70, 70)), 0);
    EXPECT_EQ(group.SendMessage(WM_CTLCOLORSTATIC, 0, 0), 0);
    CREATESTRUCTW create = {};
    EXPECT_EQ(group.SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    RECT rect = {1, 2, 30, 40};
    group.SendMessage(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(CRect(rect), CRect(1, 2, 30, 40));
    group.Invalidate();
    group.SendMessage(WM_PAINT);
    EXPECT_TRUE(group.GetUpdateRect(nullptr)) << "nothing is painted";
    group.ValidateRect(nullptr);
    ui_test::Canvas canvas(20, 20, RGB(1, 2, 3));
    EXPECT_EQ(group.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc.m_hDC)), 1);
    EXPECT_TRUE(canvas.isAll(RGB(1, 2, 3)));
    for (const UINT message :
         {WM_NCPAINT, WM_SIZE, WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK, WM_SETFOCUS, WM_KILLFOCUS})
        EXPECT_EQ(group.SendMessage(message, 0, 0), 0) << message;
    MSG message = {};
    EXPECT_FALSE(group.PreTranslateMessage(&message));
    group.OnChevronClicked();
    group.DrawGroupContent();
    group.SetTheme(nullptr);
}

TEST_F(GroupCtrl, ItsOperationsStandInTheirOrder) {
    using Group = CKbUiGroupCtrl;
    using Call = KbUiGroupHeaderCall;
    const std::vector<long long> all = {
        slotOf<bool (Group::*)(CWnd*, const wchar_t*, const wchar_t*)>(&Group::AddWnd),
        slotOf<bool (Group::*)(CWnd*, const wchar_t*, CBitmap*)>(&Group::AddWnd),
        slotOf(&Group::ShowWnd),
        slotOf<bool (Group::*)(CBitmap*, Call, DWORD&, const wchar_t*)>(&Group::AddBmpBtnToHeader),
        slotOf<bool (Group::*)(const wchar_t*, Call, DWORD&, const wchar_t*)>(&Group::AddBmpBtnToHeader),
        slotOf(&Group::RemoveBmpBtnFromHeader),
        slotOf(&Group::ModGroupStyle),
        slotOf<void (Group::*)(CFont*, int)>(&Group::SetFont),
        slotOf<void (Group::*)(CFont*)>(&Group::SetFont),
        slotOf(&Group::SetMinimized),
        slotOf(&Group::DeselectGroupHeader),
        slotOf(&Group::DrawGroupHeader),
        slotOf(&Group::DrawGroupContent),
        slotOf(&Group::SetTheme)};
    for (std::size_t i = 1; i < all.size(); ++i) EXPECT_EQ(all[i], all[0] + static_cast<long long>(i)) << i;
}

class OpenCouple : public CKbUiCoupledGroupCtrl {
public:
    using CKbUiCoupledGroupCtrl::m_bottomGroup;
    using CKbUiCoupledGroupCtrl::m_bottomWnd;
    using CKbUiCoupledGroupCtrl::m_brush;
    using CKbUiCoupledGroupCtrl::m_topGroup;
    using CKbUiCoupledGroupCtrl::m_topWnd;
};

struct CoupledGroup : ::testing::Test {
    OpenCouple couple;
    CKbUiGroupCtrl top, bottom;
    CWnd topWindow, bottomWindow;
};

TEST_F(CoupledGroup, EachFormSetsTheTwoFieldsOfItsTypes) {
    couple.AddCouple(&top, &bottom);
    EXPECT_EQ(couple.m_topGroup, &top);
    EXPECT_EQ(couple.m_bottomGroup, &bottom);
    EXPECT_EQ(couple.m_topWnd, nullptr);
    EXPECT_EQ(couple.m_bottomWnd, nullptr);
    CKbUiGroupCtrl other;
    couple.AddCouple(&topWindow, &other);
    EXPECT_EQ(couple.m_topWnd, &topWindow);
    EXPECT_EQ(couple.m_bottomGroup, &other);
    EXPECT_EQ(couple.m_topGroup, &top) << "left alone";
    EXPECT_EQ(couple.m_bottomWnd, nullptr);
    couple.AddCouple(&other, &bottomWindow);
    EXPECT_EQ(couple.m_topGroup, &other);
    EXPECT_EQ(couple.m_bottomWnd, &bottomWindow);
    CWnd second, third;
    couple.AddCouple(&second, &third);
    EXPECT_EQ(couple.m_topWnd, &second);
    EXPECT_EQ(couple.m_bottomWnd, &third);
}

TEST_F(CoupledGroup, KeepsItsState) {
    EXPECT_EQ(couple.m_brush.m_hObject, nullptr);
    couple.SetTopToWholeRatio(0.3);
    EXPECT_DOUBLE_EQ(couple.GetTopToWholeRatio(), 0.3);
    EXPECT_FALSE(couple.GetSplitterEnabled());
    couple.SetSplitterEnabled(true);
    EXPECT_TRUE(couple.GetSplitterEnabled());
    EXPECT_FALSE(couple.IsAnyCtrlMinimizedOrIconic());
    EXPECT_FALSE(couple.ValidateCtrls());
    couple.ResizeChildren();
    couple.SetTheme(nullptr);
}

TEST_F(CoupledGroup, OneChildIsMinimisedOrMaximisedAndAllOthersAreMaximised) {
    ui_test::ParentWindow holder;
    CStatic first, second;
    const auto make = [&](CWnd& window) {
        window.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 10), &holder, 0);
    };
    make(top);
    make(bottom);
    make(first);
    make(second);
    couple.AddCouple(&top, &bottom);
    couple.AddCouple(&first, &second);
    couple.MinMaxOneChild(&top, true);
    EXPECT_TRUE(top.IsIconic());
    for (CWnd* other :
         {static_cast<CWnd*>(&bottom), static_cast<CWnd*>(&first), static_cast<CWnd*>(&second)}) {
        EXPECT_TRUE(other->IsZoomed());
        other->ShowWindow(SW_SHOWNORMAL);
    }
    couple.MinMaxOneChild(&second, false);
    for (CWnd* each : {static_cast<CWnd*>(&top), static_cast<CWnd*>(&bottom), static_cast<CWnd*>(&first),
                       static_cast<CWnd*>(&second)})
        EXPECT_TRUE(each->IsZoomed());
    OpenCouple nobody;
    nobody.MinMaxOneChild(&first, true);
    EXPECT_TRUE(first.IsIconic());
}

TEST_F(CoupledGroup, SwallowsItsMessages) {
    ui_test::ParentWindow holder;
    couple.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &holder, 3);
    couple.Invalidate();
    couple.SendMessage(WM_PAINT);
    EXPECT_TRUE(couple.GetUpdateRect(nullptr));
    couple.ValidateRect(nullptr);
    EXPECT_EQ(couple.SendMessage(WM_CTLCOLORSTATIC, 0, 0), 0);
    for (const UINT message : {WM_SIZE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE})
        EXPECT_EQ(couple.SendMessage(message, 0, 0), 0) << message;
}

std::vector<UINT> reachedThePlatform;

LRESULT CALLBACK noteReached(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    reachedThePlatform.push_back(message);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(CoupledGroup, ItsMessagesGoNoFurther) {
    WNDCLASSW plain = {};
    plain.lpfnWndProc = noteReached;
    plain.hInstance = AfxGetInstanceHandle();
    plain.lpszClassName = L"KtuiNotesMessages";
    ASSERT_NE(::RegisterClassW(&plain), 0);
    const ui_test::ParentWindow holder;
    couple.SubclassWindow(::CreateWindowExW(0, plain.lpszClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50,
                                            holder.m_hWnd, nullptr, plain.hInstance, nullptr));
    reachedThePlatform.clear();
    for (const UINT message : {WM_PAINT, WM_SIZE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE})
        couple.SendMessage(message, 0, 0);
    EXPECT_EQ(reachedThePlatform, std::vector<UINT>{});
    couple.SendMessage(WM_RBUTTONDOWN, 0, 0);
    EXPECT_EQ(reachedThePlatform, std::vector<UINT>{WM_RBUTTONDOWN}) << "others do";
    couple.DestroyWindow();
    ::UnregisterClassW(plain.lpszClassName, plain.hInstance);
}

TEST_F(CoupledGroup, ItsOperationsStandInTheirOrder) {
    using Couple = CKbUiCoupledGroupCtrl;
    using Group = CKbUiGroupCtrl;
    const std::vector<long long> all = {slotOf<void (Couple::*)(CWnd*, Group*)>(&Couple::AddCouple),
                                        slotOf<void (Couple::*)(Group*, CWnd*)>(&Couple::AddCouple),
                                        slotOf<void (Couple::*)(CWnd*, CWnd*)>(&Couple::AddCouple),
                                        slotOf<void (Couple::*)(Group*, Group*)>(&Couple::AddCouple),
                                        slotOf(&Couple::MinMaxOneChild)};
    for (std::size_t i = 1; i < all.size(); ++i) EXPECT_EQ(all[i], all[0] + static_cast<long long>(i)) << i;
}

}  // namespace
