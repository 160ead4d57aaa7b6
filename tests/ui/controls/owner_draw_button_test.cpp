// The owner-draw button: how it attaches, its flags, its slots and the answers about its tip.
#include <ktui/controls/ktui_buttons.h>
#include <ktui/docking/kbui_theme.h>

#include "button_fixture.h"
#include "fake_theme.h"
#include "slot_of.h"

namespace {

using namespace controls;
using ui_test::FakeTheme;
using ui_test::slotOf;

using OwnerDrawButton = ButtonTest<>;

struct StyleSent {
    WPARAM style;
    LPARAM redraw;
};

std::vector<StyleSent>& stylesSent() {
    static std::vector<StyleSent> sent;
    return sent;
}

/// What is done when a bare button gets files.
std::function<void()> beforeDrop;

LRESULT CALLBACK recordStyle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == BM_SETSTYLE) stylesSent().push_back({wParam, lParam});
    if (message == WM_DROPFILES && beforeDrop) beforeDrop();
    return ::CallWindowProcW(reinterpret_cast<WNDPROC>(::GetPropW(window, L"former")), window, message,
                             wParam, lParam);
}

/// A bare button whose BM_SETSTYLE messages are recorded.
HWND recordedButton(CWnd& parent, DWORD style) {
    stylesSent().clear();
    const HWND window = ::CreateWindowExW(0, L"BUTTON", L"bare", WS_CHILD | WS_VISIBLE | style, 0, 0, 50, 20,
                                          parent.m_hWnd, nullptr, nullptr, nullptr);
    ::SetPropW(window, L"former",
               reinterpret_cast<HANDLE>(
                   ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordStyle))));
    return window;
}

TEST_F(OwnerDrawButton, AttachingMakesAnyButtonOwnerDrawn) {
    for (const DWORD style : {BS_PUSHBUTTON, BS_DEFPUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON}) {
        const HWND bare = recordedButton(holder, style);
        CKbUiOwnerDrawButton attached;
        ASSERT_TRUE(attached.SubclassWindow(bare));
        EXPECT_EQ(attached.GetButtonStyle(), UINT{BS_OWNERDRAW}) << style;
    }
}

TEST_F(OwnerDrawButton, TheStyleSentHasItsHighBitsDroppedAndElevenAdded) {
    for (const DWORD style : {DWORD{BS_PUSHBUTTON}, DWORD{BS_AUTOCHECKBOX | BS_MULTILINE | BS_NOTIFY},
                              DWORD{BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP}}) {
        const HWND bare = recordedButton(holder, style);
        const auto before = static_cast<DWORD>(::GetWindowLongPtrW(bare, GWL_STYLE));
        CKbUiOwnerDrawButton attached;
        attached.SubclassWindow(bare);
        ASSERT_EQ(stylesSent().size(), 1u);
        EXPECT_EQ(stylesSent()[0].style, WPARAM{(before & 0xFFF4) | 11});
        EXPECT_LE(stylesSent()[0].style, WPARAM{0xFFFF});
        EXPECT_EQ(stylesSent()[0].redraw, TRUE);
        EXPECT_EQ(attached.GetStyle() >> 16, before >> 16) << "the window keeps its own";
    }
}

TEST_F(OwnerDrawButton, AButtonThatItCreatesIsOwnerDrawnToo) {
    EXPECT_EQ(button.GetButtonStyle(), UINT{BS_OWNERDRAW});
}

TEST_F(OwnerDrawButton, StartsWithItsDefaults) {
    EXPECT_EQ(button.m_lastMousePoint, CPoint(0, 0));
    EXPECT_TRUE(button.m_tipRect.IsRectNull());
    EXPECT_EQ(button.m_theme, nullptr);
    EXPECT_EQ(button.m_kbUiParent, nullptr);
    EXPECT_EQ(button.m_buttonFlags, 2u);
    EXPECT_EQ(button.m_timerId, 0u);
    EXPECT_EQ(button.m_borderFlags[0], 1);
    EXPECT_EQ(button.m_borderFlags[1], 1);
    EXPECT_EQ(button.m_borderFlags[2], 8);
    EXPECT_EQ(button.m_tipState, 0);
    EXPECT_EQ(button.m_visualStylesTheme, nullptr);
    EXPECT_EQ(CKbUiOwnerDrawButton::m_timerEvent, 1u);
}

TEST_F(OwnerDrawButton, EachFlagHasABitOfItsOwnThatTheLowestBitOfAnArgumentSets) {
    struct Flag {
        unsigned bit;
        void (CKbUiOwnerDrawButton::*set)(int);
        int (CKbUiOwnerDrawButton::*get)() const;
    };
    using Button = CKbUiOwnerDrawButton;
    const Flag flags[] = {{1, &Button::SetEnableDragDrop, &Button::GetEnableDragDrop},
                          {2, &Button::SetEnableFastDraw, &Button::GetEnableFastDraw},
                          {4, &Button::SetEnablePointedAt, &Button::GetEnablePointedAt},
                          {8, &Button::SetIsPointedAt, &Button::GetIsPointedAt},
                          {16, &Button::SetIsStatic, &Button::GetIsStatic},
                          {32, &Button::SetIsToolButton, &Button::GetIsToolButton}};
    for (const Flag& flag : flags) {
        for (const unsigned others : {0u, 127u}) {
            button.m_buttonFlags = others & ~flag.bit;
            (button.*flag.set)(3);
            EXPECT_EQ(button.m_buttonFlags, others | flag.bit);
            EXPECT_EQ((button.*flag.get)(), -1) << flag.bit;
            (button.*flag.set)(2);
            EXPECT_EQ(button.m_buttonFlags, others & ~flag.bit);
            EXPECT_EQ((button.*flag.get)(), 0) << flag.bit;
        }
    }
}

TEST_F(OwnerDrawButton, TrackingHasABitAndNoGetter) {
    button.SetTracking(1);
    EXPECT_EQ(button.m_buttonFlags, 66u);
    button.SetTracking(0);
    EXPECT_EQ(button.m_buttonFlags, 2u);
}

TEST_F(OwnerDrawButton, SettingPointedAtIsToldAndPaintsAnew) {
    takeDirty(button);
    button.SetIsPointedAt(1);
    EXPECT_TRUE(takeDirty(button));
    button.SetIsPointedAt(0);
    EXPECT_TRUE(takeDirty(button));
    EXPECT_EQ(button.pointedAt, (std::vector<int>{1, 0}));
}

TEST_F(OwnerDrawButton, KeepsAndAnswersATheme) {
    auto* theme = reinterpret_cast<CKbUiTheme*>(0x1230);
    EXPECT_EQ(button.SetTheme(theme), theme);
    EXPECT_EQ(button.m_theme, theme);
    EXPECT_EQ(button.SetTheme(nullptr), nullptr);
    takeDirty(button);
    button.ThemeModified(static_cast<KbUiThemeElement>(2));
    EXPECT_FALSE(takeDirty(button));
}

TEST_F(OwnerDrawButton, LoadsNothingByItselfAndAReloadPaintsAnew) {
    EXPECT_EQ(button.AutoLoad(), 0);
    EXPECT_FALSE(takeDirty(button));
    EXPECT_EQ(button.Reload(L"whatever"), 1);
    EXPECT_TRUE(takeDirty(button));
}

TEST_F(OwnerDrawButton, ItsOperationsStandInTheirOrder) {
    struct Open : CKbUiOwnerDrawButton {
        static std::vector<long long> all() {
            return {slotOf(&Open::DoKbUiMessage),
                    slotOf(&Open::OnDrawTip),
                    slotOf(&Open::OnDrawTipText),
                    slotOf(&Open::OnGetTipSupport),
                    slotOf(&Open::OnGetTipRect),
                    slotOf(&Open::OnGetTipText),
                    slotOf(&Open::OnHitTipRect),
                    slotOf(&Open::SetTracking),
                    slotOf(&Open::SetTheme),
                    slotOf(&Open::DrawBorder),
                    slotOf(&Open::DrawHotBorder),
                    slotOf(&Open::DrawButton),
                    slotOf(&Open::DrawPushButtonBorder),
                    slotOf(&Open::DrawToolButtonBorder),
                    slotOf(&Open::OnAutoLoad),
                    slotOf(&Open::OnDragDrop),
                    slotOf(&Open::OnPointedAt),
                    slotOf(&Open::OnReload),
                    slotOf(&Open::ThemeModified)};
        }
    };
    const std::vector<long long> all = Open::all();
    for (std::size_t i = 1; i < all.size(); ++i) EXPECT_EQ(all[i], all[0] + static_cast<long long>(i)) << i;
}

TEST_F(OwnerDrawButton, HasNoTipOfItsOwnButATextForOne) {
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyGetTipSupport, 0), kKbUiReplyNone);
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyGetTipSupport, 1), kKbUiReplyNone);
    CString text;
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyGetTipText, reinterpret_cast<unsigned __int64>(&text)),
              kKbUiReplyHandled);
    EXPECT_EQ(text, L"Caption");
    button.m_tipRect = CRect(1, 2, 3, 4);
    CRect rect(5, 5, 9, 9);
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect)),
              kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_TRUE(button.m_tipRect.IsRectNull());
}

TEST_F(OwnerDrawButton, ATipIsHitInItsRectangle) {
    button.m_tipRect = CRect(2, 3, 10, 12);
    CPoint inside(2, 3), outside(10, 12);
    EXPECT_TRUE(button.OnHitTipRect(inside));
    EXPECT_FALSE(button.OnHitTipRect(outside));
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyHitTipRect, reinterpret_cast<unsigned __int64>(&inside)),
              kKbUiReplyHandled);
}

TEST_F(OwnerDrawButton, ADrawnTipIsAFilledFrame) {
    ui_test::Canvas canvas(20, 20, RGB(1, 2, 3));
    KbUiNotify(button, 0, kKbUiNotifyDrawTip, reinterpret_cast<unsigned __int64>(&canvas.dc));
    EXPECT_TRUE(canvas.isAll(RGB(1, 2, 3))) << "no rectangle, no tip";
    button.m_tipRect = CRect(4, 5, 14, 12);
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyDrawTip, reinterpret_cast<unsigned __int64>(&canvas.dc)),
              kKbUiReplyHandled);
    EXPECT_EQ(canvas.at(4, 5), RGB(0, 0, 0));
    EXPECT_EQ(canvas.at(13, 11), RGB(0, 0, 0));
    EXPECT_EQ(canvas.at(8, 8), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.at(14, 12), RGB(1, 2, 3));
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 2 * 10 + 2 * 5);
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_BRUSH), ::GetStockObject(WHITE_BRUSH))
        << "its tools are put back";
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_PEN), ::GetStockObject(BLACK_PEN));
}

TEST_F(OwnerDrawButton, AButtonWithoutAnyOfTheStylesOfElevenDrawsNoTip) {
    ui_test::Canvas canvas(20, 20, RGB(1, 2, 3));
    button.m_tipRect = CRect(4, 5, 14, 12);
    ::SetWindowLongPtrW(button.m_hWnd, GWL_STYLE, static_cast<LONG_PTR>((button.GetStyle() & ~15u) | 4));
    button.OnDrawTip(canvas.dc);
    EXPECT_TRUE(canvas.isAll(RGB(1, 2, 3)));
    ::SetWindowLongPtrW(button.m_hWnd, GWL_STYLE, static_cast<LONG_PTR>((button.GetStyle() & ~15u) | 8));
    button.OnDrawTip(canvas.dc);
    EXPECT_EQ(canvas.at(4, 5), RGB(0, 0, 0)) << "one of them is enough";
}

TEST_F(OwnerDrawButton, ATextTipIsDrawnInTheMiddleAndAnsweredWithNo) {
    ui_test::Canvas canvas(80, 40);
    CRect rect(0, 0, 80, 40);
    CKbUiDrawTipText tip(canvas.dc, rect, L"tip");
    EXPECT_EQ(KbUiNotify(button, 0, kKbUiNotifyDrawTipText, reinterpret_cast<unsigned __int64>(&tip)),
              kKbUiReplyNone);
    ui_test::Canvas expected(80, 40);
    CRect whole(0, 0, 80, 40);
    ::DrawTextW(expected.dc.m_hDC, L"tip", -1, &whole, DT_SINGLELINE | DT_VCENTER);
    EXPECT_TRUE(canvas == expected);
    EXPECT_FALSE(canvas.isAll(RGB(255, 255, 255)));
}

TEST_F(OwnerDrawButton, VisualStylesAreOpenedOnAttachingAndClosedWithTheWindow) {
    const FakeTheme theme;
    CKbUiOwnerDrawButton attached;
    attached.SubclassWindow(recordedButton(holder, BS_PUSHBUTTON));
    EXPECT_EQ(FakeTheme::asked, (std::vector<ui_test::Asked>{{"open BUTTON"}}));
    EXPECT_EQ(FakeTheme::opened, attached.m_hWnd);
    EXPECT_NE(attached.GetVisualStylesTheme(), nullptr);
    FakeTheme::asked.clear();
    attached.ValidateRect(nullptr);
    ASSERT_FALSE(takeDirty(attached));
    attached.SendMessage(WM_THEMECHANGED);
    EXPECT_EQ(FakeTheme::asked, (std::vector<ui_test::Asked>{{"close"}, {"open BUTTON"}}));
    EXPECT_TRUE(takeDirty(attached));
    FakeTheme::asked.clear();
    attached.DestroyWindow();
    EXPECT_EQ(FakeTheme::asked, (std::vector<ui_test::Asked>{{"close"}}));
    EXPECT_EQ(attached.GetVisualStylesTheme(), nullptr);
}

TEST_F(OwnerDrawButton, VisualStylesAreClosedOnceByWhateverEndsTheButton) {
    const FakeTheme theme;
    {
        CKbUiOwnerDrawButton attached;
        attached.SubclassWindow(recordedButton(holder, BS_PUSHBUTTON));
        FakeTheme::asked.clear();
    }
    EXPECT_EQ(FakeTheme::asked, (std::vector<ui_test::Asked>{{"close"}}));
    FakeTheme::asked.clear();
    { CKbUiOwnerDrawButton withoutWindow; }
    EXPECT_TRUE(FakeTheme::asked.empty());
}

TEST_F(OwnerDrawButton, WithoutVisualStylesThereIsNothingToClose) {
    const FakeTheme theme;
    FakeTheme::hasData = false;
    {
        CKbUiOwnerDrawButton attached;
        attached.SubclassWindow(recordedButton(holder, BS_PUSHBUTTON));
        EXPECT_EQ(attached.GetVisualStylesTheme(), nullptr);
    }
    EXPECT_EQ(FakeTheme::asked, (std::vector<ui_test::Asked>{{"open BUTTON"}}));
}

TEST_F(OwnerDrawButton, DroppedFilesAreOfferedBeforeTheDefaultProcessing) {
    const auto files = reinterpret_cast<HDROP>(::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 32));
    Opened<CKbUiOwnerDrawButton> attached;
    attached.SubclassWindow(recordedButton(holder, BS_PUSHBUTTON));
    std::size_t offeredBefore = 0;
    beforeDrop = [&] { offeredBefore = attached.dropped.size(); };
    attached.SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(files));
    beforeDrop = nullptr;
    EXPECT_EQ(attached.dropped, (std::vector<HDROP>{files}));
    EXPECT_EQ(offeredBefore, 1u);
    ::GlobalFree(files);
}

TEST_F(OwnerDrawButton, TheApplicationLayersOneIsTheSame) {
    CKtUiOwnerDrawButton other;
    EXPECT_TRUE(other.IsKindOf(RUNTIME_CLASS(CKbUiOwnerDrawButton)));
    EXPECT_EQ(sizeof(CKtUiOwnerDrawButton), sizeof(CKbUiOwnerDrawButton));
}

}  // namespace
