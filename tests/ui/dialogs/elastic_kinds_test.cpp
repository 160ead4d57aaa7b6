// What each kind of registration does to its control, what is repainted, and the limits of the size.
#include <algorithm>

#include <ktui/dialogs/elastic.h>

#include "dialog_fixture.h"
#include "leak_count.h"
#include "sent_messages.h"

namespace {

using ui_test::SentMessages;

/// Opens the messages of the resize model.
class SizedDialog : public OpenDialog {
public:
    using CKbUiDialog::m_dialogHelpTag;
    using CKbUiDialog::m_dialogName;
    using CKbUiDialog::m_reserved;
    using CKbUiDialog::m_templateId;
    using OpenDialog::OpenDialog;
    std::vector<UINT> defaults;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaults.push_back(message);
        return OpenDialog::DefWindowProc(message, wParam, lParam);
    }
};

class ElasticKinds : public DialogTest {
protected:
    ElasticKinds() : dialog(IDD_ELASTIC, &parent) {
        dialog.SetDialogName(L"kinds");
        dialog.Create(IDD_ELASTIC, &parent);
        dialog.GetClientRect(&client);
    }
    /// Sends the size that the client area would have after growing by (dx, dy).
    void size(int dx, int dy) {
        dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width() + dx, client.Height() + dy));
    }
    SizedDialog dialog;
    CRect client;
};

TEST_F(ElasticKinds, EachRegistrationTouchesItsOwnAxisAndEdge) {
    const CRect base = dialog.rectOf(IDC_FIRST);
    const struct {
        const char* name;
        std::function<int()> enter;
        CRect after;
    } kinds[] = {
        {"move x", [&] { return dialog.MoveControlX(IDC_FIRST, 50); }, base + CPoint(10, 0)},
        {"move y", [&] { return dialog.MoveControlY(IDC_FIRST, 50); }, base + CPoint(0, 20)},
        {"move xy", [&] { return dialog.MoveControlXY(IDC_FIRST, 100, 50); }, base + CPoint(20, 20)},
        {"stretch x", [&] { return dialog.StretchControlX(IDC_FIRST, 50); },
         CRect(base.left, base.top, base.right + 10, base.bottom)},
        {"stretch y", [&] { return dialog.StretchControlY(IDC_FIRST, 50); },
         CRect(base.left, base.top, base.right, base.bottom + 20)},
        {"stretch xy", [&] { return dialog.StretchControlXY(IDC_FIRST, 100, 50); },
         CRect(base.left, base.top, base.right + 20, base.bottom + 20)},
    };
    for (const auto& kind : kinds) {
        dialog.DestroyWindow();
        KbUiElastic* elastic = dialog.m_elastic;
        while (elastic->m_tags.GetSize() > 0) {
            delete elastic->m_tags[0];
            elastic->m_tags.RemoveAt(0);
        }
        dialog.Create(IDD_ELASTIC, &parent);
        EXPECT_EQ(kind.enter(), 1) << kind.name;
        ASSERT_EQ(elastic->m_tags.GetSize(), 1) << kind.name;
        size(20, 40);
        EXPECT_EQ(dialog.rectOf(IDC_FIRST), kind.after) << kind.name;
    }
}

TEST_F(ElasticKinds, AMissingControlIsRefusedByEachRegistration) {
    EXPECT_EQ(dialog.MoveControlX(4711, 1), 0);
    EXPECT_EQ(dialog.MoveControlY(4711, 1), 0);
    EXPECT_EQ(dialog.MoveControlXY(4711, 1, 1), 0);
    EXPECT_EQ(dialog.StretchControlX(4711, 1), 0);
    EXPECT_EQ(dialog.StretchControlY(4711, 1), 0);
    EXPECT_EQ(dialog.StretchControlXY(4711, 1, 1), 0);
    EXPECT_EQ(dialog.m_elastic->m_tags.GetSize(), 0);
}

TEST_F(ElasticKinds, ATagIsKnownByItsIdAndItsKindTogether) {
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.MoveControlX(IDC_SECOND, 100);
    dialog.MoveControlY(IDC_FIRST, 100);
    dialog.MoveControlX(IDC_FIRST, 7);
    dialog.MoveControlXY(IDC_FIRST, 1, 2);
    dialog.MoveControlXY(IDC_FIRST, 3, 4);
    ASSERT_EQ(dialog.m_elastic->m_tags.GetSize(), 4);
    const _SControlTag& last = *dialog.m_elastic->m_tags[3];
    EXPECT_EQ(last.m_id, unsigned{IDC_FIRST});
    EXPECT_EQ(last.m_kind, 3u);
    EXPECT_EQ(last.m_percentX, 1);
    EXPECT_EQ(last.m_percentY, 2);
    EXPECT_EQ(last.m_remainderX, 0);
    EXPECT_EQ(last.m_remainderY, 0);
}

TEST_F(ElasticKinds, ABatchTakesFourKindsWithTheirPercentage) {
    const CRect first = dialog.rectOf(IDC_FIRST), second = dialog.rectOf(IDC_SECOND),
                third = dialog.rectOf(IDC_THIRD), list = dialog.rectOf(IDC_LIST), ok = dialog.rectOf(IDOK),
                cancel = dialog.rectOf(IDCANCEL);
    _dlgControlTag tags[] = {{IDC_FIRST, 1, 50},  {IDC_SECOND, 2, 25}, {IDC_THIRD, 16, 200},
                             {IDC_LIST, 32, -50}, {IDOK, 3, 100},      {IDCANCEL, 48, 100},
                             {IDOK, 0, 100},      {IDCANCEL, 17, 100}};
    EXPECT_EQ(dialog.SetControlProperty(tags, 8), 1);
    EXPECT_EQ(dialog.m_elastic->m_tags.GetSize(), 4);
    size(8, 16);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first + CPoint(4, 0));
    EXPECT_EQ(dialog.rectOf(IDC_SECOND), second + CPoint(0, 4));
    EXPECT_EQ(dialog.rectOf(IDC_THIRD), CRect(third.left, third.top, third.right + 16, third.bottom));
    EXPECT_EQ(dialog.rectOf(IDC_LIST), CRect(list.left, list.top, list.right, list.bottom - 8));
    EXPECT_EQ(dialog.rectOf(IDOK), ok);
    EXPECT_EQ(dialog.rectOf(IDCANCEL), cancel);
}

TEST_F(ElasticKinds, ABatchGoesNoFurtherThanItsCount) {
    _dlgControlTag tags[] = {{IDC_FIRST, 1, 50}, {IDC_SECOND, 1, 50}};
    EXPECT_EQ(dialog.SetControlProperty(tags, 1), 1);
    ASSERT_EQ(dialog.m_elastic->m_tags.GetSize(), 1);
    EXPECT_EQ(dialog.m_elastic->m_tags[0]->m_id, unsigned{IDC_FIRST});
    EXPECT_EQ(dialog.SetControlProperty(tags, 0), 1);
    EXPECT_EQ(dialog.m_elastic->m_tags.GetSize(), 1);
}

TEST_F(ElasticKinds, WhenAControlMovedTheWholeDialogIsPaintedAfresh) {
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.ShowWindow(SW_SHOW);
    ui_test::pump();
    dialog.ValidateRect(nullptr);
    size(4, 0);
    CRect dirty, all;
    EXPECT_TRUE(::GetUpdateRect(dialog.m_hWnd, &dirty, FALSE));
    dialog.GetClientRect(&all);
    EXPECT_EQ(dirty, all);
    int erasures = 0;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.m_hWnd && message.message == WM_ERASEBKGND) ++erasures;
    });
    dialog.UpdateWindow();
    EXPECT_EQ(erasures, 1);
}

TEST_F(ElasticKinds, WhenNoControlMovedNothingIsPaintedAfresh) {
    dialog.MoveControlX(IDC_FIRST, 10);
    dialog.ShowWindow(SW_SHOW);
    ui_test::pump();
    dialog.ValidateRect(nullptr);
    size(4, 10);
    EXPECT_FALSE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
}

TEST_F(ElasticKinds, AControlThatIsGoneMovesNothing) {
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.GetDlgItem(IDC_FIRST)->DestroyWindow();
    dialog.ShowWindow(SW_SHOW);
    ui_test::pump();
    dialog.ValidateRect(nullptr);
    size(4, 10);
    EXPECT_FALSE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
}

TEST_F(ElasticKinds, ControlsAreMovedWithoutRepaint) {
    dialog.MoveControlX(IDC_FIRST, 100);
    const HWND first = dialog.GetDlgItem(IDC_FIRST)->m_hWnd;
    std::vector<UINT> redraw;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == first && message.message == WM_WINDOWPOSCHANGING)
            redraw.push_back(ui_test::position_flags(message) & SWP_NOREDRAW);
    });
    size(5, 0);
    EXPECT_EQ(redraw, (std::vector<UINT>{SWP_NOREDRAW}));
    RECT rect = {1, 2, 31, 22};
    dialog.ForceControlResize(dialog.GetDlgItem(IDC_FIRST), &rect);
    EXPECT_EQ(redraw, (std::vector<UINT>{SWP_NOREDRAW, SWP_NOREDRAW}));
}

TEST_F(ElasticKinds, TheSizeGoesOnToThePlatformResizableOrNot) {
    dialog.defaults.clear();
    size(1, 0);
    EXPECT_EQ(dialog.defaults, (std::vector<UINT>{WM_SIZE}));
    SizedDialog fixed(IDD_FIXED, &parent);
    fixed.Create(IDD_FIXED, &parent);
    fixed.defaults.clear();
    fixed.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(10, 10));
    EXPECT_EQ(fixed.defaults, (std::vector<UINT>{WM_SIZE}));
    EXPECT_EQ(fixed.m_elastic->m_lastClient, CSize(0, 0)) << "a fixed dialog takes no part";
    dialog.defaults.clear();
    dialog.DestroyWindow();
    EXPECT_EQ(std::count(dialog.defaults.begin(), dialog.defaults.end(), UINT{WM_DESTROY}), 1);
}

TEST_F(ElasticKinds, TheKindOfSizingIsNotLookedAt) {
    dialog.MoveControlX(IDC_FIRST, 100);
    const CRect before = dialog.rectOf(IDC_FIRST);
    int moved = 0;
    for (const UINT type : {SIZE_RESTORED, SIZE_MAXIMIZED, SIZE_MAXSHOW, SIZE_MAXHIDE, SIZE_MINIMIZED}) {
        dialog.SendMessage(WM_SIZE, type, MAKELPARAM(client.Width() + ++moved, client.Height()));
        EXPECT_EQ(dialog.rectOf(IDC_FIRST), before + CPoint(moved, 0)) << type;
    }
}

TEST_F(ElasticKinds, OnlyTheWidthTellsThatThereWasASizeBefore) {
    dialog.MoveControlXY(IDC_FIRST, 100, 100);
    const CRect before = dialog.rectOf(IDC_FIRST);
    dialog.m_elastic->m_lastClient = CSize(0, 50);
    size(0, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before);
    dialog.m_elastic->m_lastClient = CSize(1, 0);
    dialog.SendMessage(WM_SIZE, 0, MAKELPARAM(3, 4));
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before + CPoint(2, 4));
    EXPECT_EQ(dialog.m_elastic->m_lastClient, CSize(3, 4));
}

TEST_F(ElasticKinds, RemaindersGoOnInBothAxesAndKeepTheirSign) {
    dialog.MoveControlXY(IDC_FIRST, 50, 50);
    const CRect before = dialog.rectOf(IDC_FIRST);
    size(1, 1);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before);
    size(2, 2);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before + CPoint(1, 1));
    size(1, 1);
    EXPECT_EQ(dialog.m_elastic->m_tags[0]->m_remainderX, -50);
    EXPECT_EQ(dialog.m_elastic->m_tags[0]->m_remainderY, -50);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before + CPoint(1, 1));
}

TEST_F(ElasticKinds, TheLimitsStartAsTheSizeOfTheTemplateAndTheScreen) {
    CRect window = dialog.windowRect(), desktop;
    ::GetWindowRect(::GetDesktopWindow(), &desktop);
    const KbUiElastic& elastic = *dialog.m_elastic;
    EXPECT_EQ(elastic.m_initialRect, window);
    EXPECT_EQ(elastic.m_lastClient, client.Size());
    EXPECT_EQ(elastic.m_dialog, &dialog);
    // A fixed dialog keeps what it got before its initialisation: the same for the window, and the screen.
    SizedDialog fixed(IDD_FIXED, &parent);
    MINMAXINFO info = {};
    fixed.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, 0) << "no limit at first";
    EXPECT_EQ(info.ptMaxTrackSize.y, 0);
    fixed.Create(IDD_FIXED, &parent);
    fixed.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, fixed.windowRect().Width());
    EXPECT_EQ(info.ptMinTrackSize.y, fixed.windowRect().Height());
    EXPECT_EQ(info.ptMaxTrackSize.x, ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(info.ptMaxTrackSize.y, ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_EQ(fixed.m_elastic->m_initialRect, CRect(0, 0, 0, 0));
}

TEST_F(ElasticKinds, LimitsFromBeforeTheInitialisationAreOverwritten) {
    SizedDialog early(IDD_ELASTIC, &parent);
    early.SetDialogMinExtents(1, 2);
    early.SetDialogMaxExtents(3, 4);
    early.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(early.m_elastic->m_minExtent.m_width, early.windowRect().Width());
    EXPECT_EQ(early.m_elastic->m_minExtent.m_height, early.windowRect().Height());
    EXPECT_EQ(early.m_elastic->m_maxExtent.m_width, ::GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(ElasticKinds, EachLimitIsLeftOutByItselfWhenNegativeAndZeroIsALimit) {
    const int values[][4] = {{-1, 8, 9, 10}, {7, -1, 9, 10}, {7, 8, -1, 10}, {7, 8, 9, -1}, {0, 0, 0, 0}};
    for (const auto& set : values) {
        dialog.SetDialogMinExtents(set[0], set[1]);
        dialog.SetDialogMaxExtents(set[2], set[3]);
        MINMAXINFO info = {};
        info.ptReserved = info.ptMaxSize = info.ptMaxPosition = {70, 71};
        info.ptMinTrackSize = {72, 73};
        info.ptMaxTrackSize = {74, 75};
        dialog.defaults.clear();
        dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        EXPECT_TRUE(dialog.defaults.empty()) << "the platform is not asked";
        EXPECT_EQ(info.ptMinTrackSize.x, set[0] < 0 ? 72 : set[0]);
        EXPECT_EQ(info.ptMinTrackSize.y, set[1] < 0 ? 73 : set[1]);
        EXPECT_EQ(info.ptMaxTrackSize.x, set[2] < 0 ? 74 : set[2]);
        EXPECT_EQ(info.ptMaxTrackSize.y, set[3] < 0 ? 75 : set[3]);
        EXPECT_EQ(info.ptMaxSize.x, 70);
        EXPECT_EQ(info.ptMaxPosition.y, 71);
    }
}

TEST_F(ElasticKinds, ALockTakesThePresentSizeOfItsAxisAlone) {
    const CRect window = dialog.windowRect();
    dialog.SetDialogMinExtents(1, 2);
    dialog.SetDialogMaxExtents(5001, 5002);
    dialog.LockDialogWidth();
    MINMAXINFO info = {};
    dialog.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, window.Width());
    EXPECT_EQ(info.ptMaxTrackSize.x, window.Width());
    EXPECT_EQ(info.ptMinTrackSize.y, 2);
    EXPECT_EQ(info.ptMaxTrackSize.y, 5002);
    dialog.SetDialogMinExtents(1, 2);
    dialog.SetDialogMaxExtents(5001, 5002);
    dialog.LockDialogHeight();
    dialog.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, 1);
    EXPECT_EQ(info.ptMaxTrackSize.x, 5001);
    EXPECT_EQ(info.ptMinTrackSize.y, window.Height());
    EXPECT_EQ(info.ptMaxTrackSize.y, window.Height());
}

TEST_F(ElasticKinds, TheFieldsStartAsTheyAre) {
    SizedDialog fresh(IDD_FIXED);
    EXPECT_EQ(fresh.m_reserved, 1);
    EXPECT_EQ(fresh.m_templateId, unsigned{IDD_FIXED});
    EXPECT_TRUE(fresh.m_dialogName.IsEmpty());
    EXPECT_TRUE(fresh.m_dialogHelpTag.IsEmpty());
    ASSERT_NE(fresh.m_elastic, nullptr);
    EXPECT_EQ(fresh.m_elastic->m_minExtent.m_width, -1);
    EXPECT_EQ(fresh.m_elastic->m_minExtent.m_height, -1);
    EXPECT_EQ(fresh.m_elastic->m_maxExtent.m_width, -1);
    EXPECT_EQ(fresh.m_elastic->m_maxExtent.m_height, -1);
    EXPECT_EQ(fresh.m_elastic->m_lastClient, CSize(0, 0));
    EXPECT_EQ(fresh.m_elastic->m_initialRect, CRect(0, 0, 0, 0));
}

TEST_F(ElasticKinds, TheInitialisationsResultIsThePlatforms) {
    class Answering : public SizedDialog {
    public:
        using SizedDialog::SizedDialog;
        BOOL answer = TRUE;
        BOOL OnInitDialog() override { return answer; }
    } answering(IDD_ELASTIC, &parent);
    answering.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(answering.SendMessage(WM_INITDIALOG), 1);
    answering.answer = FALSE;
    EXPECT_EQ(answering.SendMessage(WM_INITDIALOG), 0);
    struct Seen : SizedDialog {
        using SizedDialog::SizedDialog;
        BOOL seen = -1;
        BOOL OnInitDialog() override { return seen = SizedDialog::OnInitDialog(); }
    } fixed(IDD_FIXED, &parent), elastic(IDD_ELASTIC, &parent);
    fixed.Create(IDD_FIXED, &parent);
    EXPECT_EQ(fixed.seen, TRUE);
    elastic.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(elastic.seen, TRUE);
}

TEST_F(ElasticKinds, ADialogLeavesNothingOfItsResizeState) {
    const auto make = [] { SizedDialog gone(IDD_ELASTIC); };
    make();
    const std::size_t before = count_held_objects().heapBlocks;
    for (int i = 0; i < 200; ++i) make();
    EXPECT_LT(count_held_objects().heapBlocks, before + 100);
}

}  // namespace
