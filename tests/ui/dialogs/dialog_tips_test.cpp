// Which tip a dialog shows for the place of the pointer in one of its controls, and the windows that show it.
#include <ktui/host/appearance.h>
#include "base_dialog_fixture.h"
#include "sent_messages.h"

namespace {

using ui_test::SentMessages;

TEST_F(BaseDialog, TipsOnTwiceMakeNoSecondWindow) {
    CKbUiTextTip* tip = dialog.m_textTip;
    CToolTipCtrl* tool = dialog.GetToolTipCtrl();
    ASSERT_NE(tip, nullptr);
    dialog.SetUseTips(1);
    EXPECT_EQ(dialog.m_textTip, tip);
    EXPECT_EQ(dialog.GetToolTipCtrl(), tool);
    dialog.SetUseTips(3);
    EXPECT_EQ(dialog.m_textTip, nullptr);
    EXPECT_EQ(dialog.GetToolTipCtrl(), nullptr);
    EXPECT_EQ(dialog.GetUseTips(), 3);
}

TEST_F(BaseDialog, TheToolTipControlIsSetUp) {
    CToolTipCtrl* tool = dialog.GetToolTipCtrl();
    EXPECT_EQ(tool->GetTipBkColor(), 0xF9F9F9u);
    EXPECT_EQ(tool->GetTipTextColor(), 0x4B4846u);
    EXPECT_EQ(tool->GetMaxTipWidth(), 256);
    CRect margin;
    tool->GetMargin(&margin);
    EXPECT_EQ(margin, CRect(3, 3, 3, 3));
    EXPECT_TRUE(tool->GetStyle() & TTS_ALWAYSTIP);
}

TEST_F(BaseDialog, ATextTipLiesOverItsRectangleALittleLarger) {
    giveTip(kKbUiReplyTextTip);
    EXPECT_EQ(updateTip(), kKbUiReplyHandled);
    EXPECT_TRUE(tipVisible());
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    expected.top -= 2;
    expected.right += 4;
    expected.bottom += 2;
    dialog.m_textTip->GetWindowRect(&shown);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(ui_test::text_of(dialog.m_textTip->m_hWnd), L"the whole text");
    EXPECT_EQ(dialog.m_textTip->GetUseText(), 1);
}

TEST_F(BaseDialog, ADrawnTipLiesExactlyOverItsRectangleAndTheControlPaintsIt) {
    giveTip(kKbUiReplyDrawnTip);
    EXPECT_EQ(updateTip(), kKbUiReplyHandled);
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    dialog.m_textTip->GetWindowRect(&shown);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(dialog.m_textTip->GetUseText(), 0);
    EXPECT_NE(button.drawnOn, nullptr);
}

TEST_F(BaseDialog, ADrawnTipWithoutADeviceContextIsOfferedWithoutOne) {
    giveTip(kKbUiReplyDrawnTip);
    const HWND window = dialog.m_textTip->m_hWnd;
    dialog.m_textTip->m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0001));  // no window
    LRESULT reply = -1;
    EXPECT_NO_THROW(reply = updateTip());
    dialog.m_textTip->m_hWnd = window;
    EXPECT_EQ(reply, kKbUiReplyHandled);
    EXPECT_EQ(button.drawDatum, 0);
}

TEST_F(BaseDialog, TheSameItemWithAVisibleTipIsLeftAlone) {
    for (const LRESULT same : {kKbUiReplyHandled, kKbUiReplyKeepTip}) {
        giveTip(kKbUiReplyTextTip);
        updateTip();
        giveTip(same);
        button.heard.clear();
        EXPECT_EQ(updateTip(), 0) << same;
        EXPECT_TRUE(tipVisible());
        EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport}));
        dialog.m_textTip->Hide();
    }
}

TEST_F(BaseDialog, ANewItemIsShownAfresh) {
    for (const LRESULT fresh : {2, 4}) {
        giveTip(fresh);
        updateTip();
        button.heard.clear();
        EXPECT_EQ(updateTip(), 1) << fresh;
        EXPECT_GT(button.heard.size(), 3u);
    }
}

TEST_F(BaseDialog, NoTipSupportHidesTheTip) {
    giveTip(kKbUiReplyTextTip);
    updateTip();
    button.replies[kKbUiNotifyGetTipSupport] = 0;
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
}

TEST_F(BaseDialog, EachUnansweredQuestionEndsTheTip) {
    giveTip(kKbUiReplyTextTip);
    button.replies[kKbUiNotifyHitTipRect] = 0;
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.replies[kKbUiNotifyGetTipRect] = 0;
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.tipRect.SetRectEmpty();
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.tipRect = CRect(2, 3, 40, 12);
    button.tipText.Empty();
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
}

TEST_F(BaseDialog, AnUnansweredQuestionHidesTheTipOfTheFormerItem) {
    for (const int silent : {kKbUiNotifyHitTipRect, kKbUiNotifyGetTipRect}) {
        giveTip(kKbUiReplyTextTip);
        updateTip();
        ASSERT_TRUE(tipVisible());
        button.replies[silent] = 0;
        EXPECT_EQ(updateTip(), 0) << silent;
        EXPECT_FALSE(tipVisible()) << silent;
    }
    giveTip(kKbUiReplyTextTip);
    updateTip();
    button.tipText.Empty();
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
}

TEST_F(BaseDialog, ARectangleWithoutWidthOrWithoutHeightEndsTheTip) {
    for (const CRect& flat : {CRect(5, 3, 5, 12), CRect(2, 7, 40, 7)}) {
        giveTip(kKbUiReplyTextTip);
        button.tipRect = flat;
        button.heard.clear();
        EXPECT_EQ(updateTip(), 0);
        EXPECT_EQ(button.heard.back(), kKbUiNotifyGetTipRect) << "the text is not asked for";
    }
}

TEST_F(BaseDialog, TheQuestionsComeInOrderWithTheIdOfTheControlAndThePlaceOfThePointer) {
    giveTip(kKbUiReplyTextTip);
    updateTip();
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport, kKbUiNotifyHitTipRect,
                                              kKbUiNotifyGetTipRect, kKbUiNotifyGetTipText}));
    button.heard.clear();
    giveTip(kKbUiReplyDrawnTip);
    updateTip();
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport, kKbUiNotifyHitTipRect,
                                              kKbUiNotifyGetTipRect, kKbUiNotifyDrawTip}));
    CRect rect;
    button.GetWindowRect(&rect);
    CPoint pointer = rect.CenterPoint();
    button.ScreenToClient(&pointer);
    EXPECT_EQ(button.points, (std::vector<CPoint>(4, pointer)));
    for (const WPARAM word : button.words) EXPECT_EQ(word & 0xFFFF, WPARAM{IDC_FIRST});
    EXPECT_EQ(button.offeredRect, CRect(0, 0, 0, 0)) << "the rectangle comes empty";
}

TEST_F(BaseDialog, TheFormerTipGoesBeforeTheControlIsAskedForTheNext) {
    giveTip(kKbUiReplyTextTip);
    updateTip();
    std::map<int, bool> visible;
    button.onHeard = [&](int notification) { visible[notification] = tipVisible(); };
    updateTip();
    EXPECT_TRUE(visible[kKbUiNotifyGetTipSupport]);
    EXPECT_FALSE(visible[kKbUiNotifyHitTipRect]);
    EXPECT_FALSE(visible[kKbUiNotifyGetTipText]);
    EXPECT_TRUE(tipVisible());
}

TEST_F(BaseDialog, KindsOneAndFourAreTextAndAllOthersAreDrawn) {
    for (const LRESULT kind : {1, 2, 3, 4, 5, 6, 7, 8}) {
        dialog.m_textTip->Hide();
        giveTip(kind);
        button.drawDatum = -1;
        dialog.m_textTip->SetUseText(kind == 1 || kind == 4 ? 0 : 1);
        // A reply of 5 comes from the control itself here, past the dialog's own answer to it.
        EXPECT_EQ(updateTip(), 1) << kind;
        EXPECT_TRUE(tipVisible()) << kind;
        EXPECT_EQ(dialog.m_textTip->GetUseText(), kind == 1 || kind == 4 ? 1 : 0) << kind;
        EXPECT_EQ(button.drawDatum != -1, kind != 1 && kind != 4) << kind;
    }
}

TEST_F(BaseDialog, ADrawnTipIsShownInItsPlaceBeforeTheControlPaintsIt) {
    giveTip(kKbUiReplyDrawnTip);
    dialog.m_textTip->SetUseText(1);
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    HWND painted = nullptr;
    const HWND tip = dialog.m_textTip->m_hWnd;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message != KbUiMessage() || message.wParam >> 16 != kKbUiNotifyDrawTip) return;
        ::GetWindowRect(tip, &shown);
        EXPECT_TRUE(::IsWindowVisible(tip));
        EXPECT_EQ(dialog.m_textTip->GetUseText(), 0);
        painted = ::WindowFromDC(reinterpret_cast<CDC*>(message.lParam)->GetSafeHdc());
    });
    updateTip();
    EXPECT_EQ(painted, tip);
    EXPECT_EQ(shown, expected);
    EXPECT_NE(::WindowFromDC(button.drawnOn), tip) << "the device context is given back";
}

TEST_F(BaseDialog, ATextTipHasItsTextAndPlaceBeforeItIsShown) {
    giveTip(kKbUiReplyTextTip);
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    expected.InflateRect(0, 2, 4, 2);
    CString text;
    const HWND tip = dialog.m_textTip->m_hWnd;
    int moves = 0;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != tip || message.message != WM_WINDOWPOSCHANGING) return;
        if (!(ui_test::position_flags(message) & SWP_NOMOVE)) {
            ++moves;
            EXPECT_FALSE(ui_test::position_flags(message) & SWP_NOREDRAW);
        }
        if (!(ui_test::position_flags(message) & SWP_SHOWWINDOW)) return;
        ::GetWindowRect(tip, &shown);
        text = ui_test::text_of(tip);
    });
    updateTip();
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(text, L"the whole text");
}

TEST_F(BaseDialog, TheTipKnowsItsControlAndIsThenMovedWithRepaint) {
    const HWND tip = dialog.m_textTip->m_hWnd;
    for (const LRESULT kind : {kKbUiReplyTextTip, kKbUiReplyDrawnTip}) {
        dialog.m_textTip->Hide();
        dialog.m_textTip->SetControl(nullptr);
        giveTip(kind);
        button.rightClicks = 0;
        std::vector<UINT> redraw;
        SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd != tip || message.message != WM_WINDOWPOSCHANGING ||
                (ui_test::position_flags(message) & SWP_NOMOVE))
                return;
            redraw.push_back(ui_test::position_flags(message) & SWP_NOREDRAW);
            ::SendMessageW(tip, WM_RBUTTONDOWN, 0, 0);
        });
        updateTip();
        EXPECT_EQ(redraw, (std::vector<UINT>{0})) << kind;
        EXPECT_EQ(button.rightClicks, 1) << kind;
    }
}

TEST_F(BaseDialog, AClickOnEitherTipGoesToTheControlBeneath) {
    for (const LRESULT kind : {kKbUiReplyTextTip, kKbUiReplyDrawnTip}) {
        dialog.m_textTip->SetControl(nullptr);
        giveTip(kind);
        updateTip();
        button.rightClicks = 0;
        dialog.m_textTip->SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(1, 1));
        EXPECT_EQ(button.rightClicks, 1) << kind;
    }
}

TEST_F(BaseDialog, TheTipIsOneOfTextBeforeTheTextIsAskedFor) {
    giveTip(kKbUiReplyTextTip);
    dialog.m_textTip->SetUseText(0);
    int useText = -1;
    button.onHeard = [&](int notification) {
        if (notification == kKbUiNotifyGetTipText) useText = dialog.m_textTip->GetUseText();
    };
    button.replies.erase(kKbUiNotifyGetTipText);  // the text counts, not the answer
    EXPECT_EQ(updateTip(), 1);
    EXPECT_EQ(useText, 1);
    EXPECT_TRUE(tipVisible());
}

TEST_F(BaseDialog, ATipThatIsLeftWhenTipsAreOffIsHidden) {
    giveTip(kKbUiReplyTextTip);
    updateTip();
    button.heard.clear();
    dialog.m_useTips = 2;
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
    EXPECT_TRUE(button.heard.empty());
    dialog.m_useTips = 1;
}

TEST_F(BaseDialog, WithoutATipWindowTheMoveIsTakenAndNothingIsAsked) {
    CKbUiTextTip* held = dialog.m_textTip;
    dialog.m_textTip = nullptr;
    giveTip(kKbUiReplyTextTip);
    EXPECT_EQ(updateTip(), 1);
    EXPECT_TRUE(button.heard.empty());
    dialog.m_textTip = held;
}

TEST_F(BaseDialog, OnlyTheMissingTipIsMade) {
    CKbUiTextTip* tip = dialog.m_textTip;
    dialog.m_toolTip->DestroyToolTipCtrl();
    delete dialog.m_toolTip;
    dialog.m_toolTip = nullptr;
    dialog.SetUseTips(1);
    EXPECT_EQ(dialog.m_textTip, tip);
    ASSERT_NE(dialog.m_toolTip, nullptr);
    CToolTipCtrl* tool = dialog.m_toolTip;
    dialog.m_textTip->DestroyWindow();
    delete dialog.m_textTip;
    dialog.m_textTip = nullptr;
    dialog.SetUseTips(1);
    EXPECT_EQ(dialog.m_toolTip, tool);
    ASSERT_NE(dialog.m_textTip, nullptr);
    EXPECT_EQ(dialog.m_textTip->Owner(), &dialog);
    EXPECT_TRUE(::IsWindow(dialog.m_textTip->m_hWnd));
}

TEST_F(BaseDialog, TurningTipsOffDestroysBothWindows) {
    const HWND tip = dialog.m_textTip->m_hWnd, tool = dialog.m_toolTip->m_hWnd;
    EXPECT_TRUE(::IsWindow(tip));
    EXPECT_TRUE(::IsWindow(tool));
    dialog.SetUseTips(0);
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_FALSE(::IsWindow(tool));
    dialog.SetUseTips(0);
    EXPECT_EQ(dialog.m_textTip, nullptr);
}

TEST_F(BaseDialog, TheTipsEndWithTheWindow) {
    const HWND tip = dialog.m_textTip->m_hWnd, tool = dialog.m_toolTip->m_hWnd;
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_textTip, nullptr);
    EXPECT_EQ(dialog.GetToolTipCtrl(), nullptr);
    EXPECT_EQ(dialog.GetUseTips(), 0);
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_FALSE(::IsWindow(tool));
}

TEST_F(BaseDialog, TipsThatAreOffBeforeTheWindowIsMadeStayOff) {
    OpenDialog without(IDD_ELASTIC, &parent);
    without.SetUseTips(0);
    ASSERT_TRUE(without.Create(IDD_ELASTIC, &parent));
    EXPECT_EQ(without.m_textTip, nullptr);
    EXPECT_EQ(without.GetToolTipCtrl(), nullptr);
    EXPECT_EQ(without.GetUseTips(), 0);
}

TEST_F(BaseDialog, TheToolTipControlIsSetUpInOrder) {
    dialog.SetUseTips(0);
    dialog.EnableToolTips(FALSE);
    std::vector<UINT> messages;
    bool enabled = false;
    SentMessages sent([&](const CWPSTRUCT& message) {
        wchar_t name[32] = {};
        ::GetClassNameW(message.hwnd, name, 32);
        if (::lstrcmpiW(name, TOOLTIPS_CLASSW) != 0) return;
        if (message.message == WM_NCCREATE) enabled = (dialog.m_nFlags & WF_TOOLTIPS) != 0;
        if (message.message >= WM_USER && message.message < 0xC000) {
            messages.push_back(message.message);
            if (message.message >= TTM_SETMAXTIPWIDTH) {
                EXPECT_EQ(message.wParam, 0u);
            }
        }
    });
    dialog.SetUseTips(1);
    EXPECT_TRUE(enabled) << "tool tips are enabled before the control is made";
    EXPECT_EQ(messages,
              (std::vector<UINT>{TTM_SETTIPBKCOLOR, TTM_SETTIPTEXTCOLOR, TTM_SETMARGIN, TTM_SETMAXTIPWIDTH}));
}

TEST_F(BaseDialog, EveryMessageGoesToTheToolTipControlBeforeTheDialogLooksAtIt) {
    CWnd* ok = dialog.GetDlgItem(IDOK);
    ok->SetFocus();
    MSG tab = {ok->m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    MSG other = {ok->m_hWnd, WM_NULL, 0, 0, 0, {}};
    std::vector<const MSG*> relayed;
    HWND focusThen = nullptr;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != dialog.GetToolTipCtrl()->GetSafeHwnd() || message.message != TTM_RELAYEVENT)
            return;
        relayed.push_back(reinterpret_cast<const MSG*>(message.lParam));
        focusThen = ::GetFocus();
    });
    EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
    EXPECT_EQ(relayed, (std::vector<const MSG*>{&tab}));
    EXPECT_EQ(focusThen, ok->m_hWnd);
    EXPECT_NE(::GetFocus(), ok->m_hWnd);
    EXPECT_FALSE(dialog.PreTranslateMessage(&other));
    EXPECT_EQ(relayed, (std::vector<const MSG*>{&tab, &other}));
}

TEST_F(BaseDialog, WithoutToolTipControlKeysStillWork) {
    dialog.SetUseTips(0);
    CWnd* ok = dialog.GetDlgItem(IDOK);
    ok->SetFocus();
    MSG tab = {ok->m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
    EXPECT_NE(::GetFocus(), ok->m_hWnd);
}

TEST_F(BaseDialog, WithTipsOffNothingIsAsked) {
    dialog.SetUseTips(0);
    EXPECT_EQ(updateTip(), 0);
    EXPECT_TRUE(button.heard.empty());
}

TEST_F(BaseDialog, ToolTipsHaveTheSystemsColoursForAHostThatFollowsIt) {
    KtUiFollowSystemAppearance(TRUE);
    dialog.SetUseTips(0);
    dialog.SetUseTips(1);
    KtUiFollowSystemAppearance(FALSE);
    ASSERT_NE(dialog.m_toolTip, nullptr);
    EXPECT_EQ(static_cast<COLORREF>(dialog.m_toolTip->SendMessage(TTM_GETTIPBKCOLOR)),
              ::GetSysColor(COLOR_INFOBK));
    EXPECT_EQ(static_cast<COLORREF>(dialog.m_toolTip->SendMessage(TTM_GETTIPTEXTCOLOR)),
              ::GetSysColor(COLOR_INFOTEXT));
}

}  // namespace
