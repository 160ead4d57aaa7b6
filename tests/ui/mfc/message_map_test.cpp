// Message maps: whose handler gets a message, and how notifications find their way to the control itself.
#include <afxcmn.h>

#include <string>

#include "ui_test.h"

namespace {

constexpr UINT kMessage = WM_APP + 1;
constexpr UINT kOtherMessage = WM_APP + 2;
const UINT registered_message = ::RegisterWindowMessageW(L"ktui test message");
constexpr UINT kFirst = 100, kLast = 109, kPushed = 120, kChild = 130;

/// Writes down every handler that ran.
class LoggingWindow : public CWnd {
public:
    std::string log;
    BOOL answer = TRUE;

    BOOL CreateHidden() {
        return CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 200, 200), nullptr, 0);
    }
    std::string Take() { return std::exchange(log, {}); }

protected:
    afx_msg LRESULT OnOwn(WPARAM w, LPARAM l) {
        log += "base ";
        return static_cast<LRESULT>(w) * 10 + l;
    }
    afx_msg LRESULT OnBaseOnly(WPARAM, LPARAM) {
        log += "base-only ";
        return 7;
    }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) {
        log += "registered ";
        return static_cast<LRESULT>(w);
    }
    afx_msg void OnRange(UINT id) { log += "range" + std::to_string(id) + " "; }
    afx_msg BOOL OnFirstChoice(UINT id) {
        log += "ex" + std::to_string(id) + " ";
        return answer;
    }
    afx_msg void OnNote(NMHDR* header, LRESULT* result) {
        log += "notify ";
        *result = static_cast<LRESULT>(header->idFrom);
    }
    afx_msg BOOL OnNoteEx(UINT id, NMHDR*, LRESULT* result) {
        log += "notify-ex" + std::to_string(id) + " ";
        *result = 5;
        return answer;
    }
    afx_msg void OnNoteRange(UINT id, NMHDR*, LRESULT* result) {
        log += "notify-range" + std::to_string(id) + " ";
        *result = 6;
    }
    afx_msg void OnChildChanged() { log += "parent "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LoggingWindow, CWnd)
    ON_MESSAGE(kMessage, &LoggingWindow::OnOwn)
    ON_MESSAGE(kOtherMessage, &LoggingWindow::OnBaseOnly)
    ON_REGISTERED_MESSAGE(registered_message, &LoggingWindow::OnRegistered)
    ON_COMMAND_EX(kFirst, &LoggingWindow::OnFirstChoice)
    ON_COMMAND_RANGE(kFirst + 1, kLast, &LoggingWindow::OnRange)
    ON_NOTIFY(NM_CLICK, kChild, &LoggingWindow::OnNote)
    ON_NOTIFY_EX(NM_DBLCLK, kChild, &LoggingWindow::OnNoteEx)
    ON_NOTIFY_RANGE(NM_RCLICK, kChild, kChild + 2, &LoggingWindow::OnNoteRange)
    ON_EN_CHANGE(kChild, &LoggingWindow::OnChildChanged)
    ON_NOTIFY(NM_RELEASEDCAPTURE, kChild, &LoggingWindow::OnNote)
END_MESSAGE_MAP()

class DerivedWindow : public LoggingWindow {
protected:
    afx_msg LRESULT OnDerived(WPARAM, LPARAM) {
        log += "derived ";
        return 99;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWindow, LoggingWindow)
    ON_MESSAGE(kMessage, &DerivedWindow::OnDerived)
END_MESSAGE_MAP()

/// A control that sees its own notifications first.
class ReflectingEdit : public CEdit {
public:
    int changes = 0, notes = 0;
    BOOL keep = TRUE;
    HBRUSH brush = nullptr;

protected:
    afx_msg BOOL OnChanged() {
        ++changes;
        return keep;
    }
    afx_msg BOOL OnNote(NMHDR*, LRESULT* result) {
        ++notes;
        *result = 11;
        return keep;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT kind) {
        EXPECT_EQ(kind, static_cast<UINT>(CTLCOLOR_EDIT));
        return brush;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChanged)
    ON_NOTIFY_REFLECT_EX(NM_RELEASEDCAPTURE, &ReflectingEdit::OnNote)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class QuietEdit : public CEdit {
public:
    int changes = 0;

protected:
    afx_msg void OnChanged() { ++changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(QuietEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, &QuietEdit::OnChanged)
END_MESSAGE_MAP()

class MessageMap : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(base.CreateHidden());
        ASSERT_TRUE(derived.CreateHidden());
        ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &base, kChild));
    }
    void TearDown() override {
        edit.DestroyWindow();
        base.DestroyWindow();
        derived.DestroyWindow();
    }
    LRESULT notify(HWND sender, int code) {
        NMHDR header = {sender, static_cast<UINT_PTR>(::GetDlgCtrlID(sender)), static_cast<UINT>(code)};
        return base.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }
    /// A control without an object of its own.
    HWND bare_child(UINT id) {
        return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, base.m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    }

    LoggingWindow base;
    DerivedWindow derived;
    ReflectingEdit edit;
};

}  // namespace

TEST_F(MessageMap, TheMostDerivedHandlerWinsAndTheBaseIsReached) {
    EXPECT_EQ(derived.SendMessage(kMessage, 1, 2), 99);
    EXPECT_EQ(derived.SendMessage(kOtherMessage), 7);
    EXPECT_EQ(derived.Take(), "derived base-only ");
}

TEST_F(MessageMap, TheCacheKeepsTwoClassesApart) {
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(base.SendMessage(kMessage, 1, 2), 12);
        EXPECT_EQ(derived.SendMessage(kMessage, 1, 2), 99);
    }
    EXPECT_EQ(base.Take(), "base base base ");
    EXPECT_EQ(derived.Take(), "derived derived derived ");
}

TEST_F(MessageMap, MessagesThatShareACacheSlotKeepTheirHandlers) {
    for (UINT round = 0; round < 4; ++round) {
        EXPECT_EQ(base.SendMessage(kMessage, 3, 1), 31);
        EXPECT_EQ(base.SendMessage(kMessage + 512), 0);
    }
    EXPECT_EQ(base.Take(), "base base base base ");
}

TEST_F(MessageMap, ARegisteredMessageIsFoundByItsNumberAtRunTime) {
    ASSERT_GE(registered_message, 0xC000u);
    EXPECT_EQ(base.SendMessage(registered_message, 42), 42);
    EXPECT_EQ(derived.SendMessage(registered_message, 43), 43);
    EXPECT_EQ(base.SendMessage(::RegisterWindowMessageW(L"ktui other message"), 42), 0);
    EXPECT_EQ(base.Take(), "registered ");
}

TEST_F(MessageMap, ARangeHandlerGetsTheCommandId) {
    base.SendMessage(WM_COMMAND, kFirst + 1);
    base.SendMessage(WM_COMMAND, kLast);
    base.SendMessage(WM_COMMAND, kLast + 1);
    EXPECT_EQ(base.Take(), "range101 range109 ");
}

TEST_F(MessageMap, AnExtendedCommandHandlerMayPassTheCommandOn) {
    EXPECT_EQ(base.SendMessage(WM_COMMAND, kFirst), 1);
    base.answer = FALSE;
    EXPECT_EQ(base.SendMessage(WM_COMMAND, kFirst), 0);
    EXPECT_EQ(base.Take(), "ex100 ex100 ");
}

TEST_F(MessageMap, NotificationsFindTheirHandlerByCodeAndId) {
    HWND neighbour = bare_child(kChild + 1), stranger = bare_child(kChild + 3);
    EXPECT_EQ(notify(edit.m_hWnd, NM_CLICK), static_cast<LRESULT>(kChild));
    EXPECT_EQ(notify(edit.m_hWnd, NM_DBLCLK), 5);
    EXPECT_EQ(notify(neighbour, NM_RCLICK), 6);
    EXPECT_EQ(notify(neighbour, NM_CLICK), 0);
    EXPECT_EQ(notify(stranger, NM_RCLICK), 0);
    EXPECT_EQ(base.Take(), "notify notify-ex130 notify-range131 ");
}

TEST_F(MessageMap, AnExtendedReflectionThatAnswersFalseLetsTheParentSee) {
    edit.ReplaceSel(L"a");
    EXPECT_EQ(edit.changes, 1);
    EXPECT_EQ(base.Take(), "");
    edit.keep = FALSE;
    edit.ReplaceSel(L"b");
    EXPECT_EQ(edit.changes, 2);
    EXPECT_EQ(base.Take(), "parent ");
}

TEST_F(MessageMap, APlainReflectionKeepsTheNotification) {
    QuietEdit quiet;
    edit.DestroyWindow();
    ASSERT_TRUE(quiet.Create(WS_CHILD, CRect(0, 0, 50, 20), &base, kChild));
    quiet.ReplaceSel(L"a");
    EXPECT_EQ(quiet.changes, 1);
    EXPECT_EQ(base.Take(), "");
}

TEST_F(MessageMap, AReflectedNotificationAnswersThroughItsResult) {
    EXPECT_EQ(notify(edit.m_hWnd, NM_RELEASEDCAPTURE), 11);
    EXPECT_EQ(base.Take(), "");
    edit.keep = FALSE;
    EXPECT_EQ(notify(edit.m_hWnd, NM_RELEASEDCAPTURE), static_cast<LRESULT>(kChild));
    EXPECT_EQ(edit.notes, 2);
    EXPECT_EQ(base.Take(), "notify ");
}

TEST_F(MessageMap, AControlGivesItsOwnBackgroundBrush) {
    CClientDC dc(&edit);
    edit.brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    const auto ask = [&] {
        return reinterpret_cast<HBRUSH>(base.SendMessage(WM_CTLCOLOREDIT,
                                                         reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                                         reinterpret_cast<LPARAM>(edit.m_hWnd)));
    };
    EXPECT_EQ(ask(), edit.brush);
    edit.brush = nullptr;  // leaves it to the parent, whose default has a brush
    EXPECT_NE(ask(), nullptr);
}

TEST_F(MessageMap, TheMessageInHandIsTheInnermostOneAndComesBack) {
    class Asking : public LoggingWindow {
    public:
        HWND other = nullptr;
        UINT before = 0, after = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override {
            if (message != kMessage) return LoggingWindow::WindowProc(message, w, l);
            before = GetCurrentMessage()->message;
            ::SendMessageW(other, kOtherMessage, 0, 0);
            after = GetCurrentMessage()->message;
            return 0;
        }
    } asking;
    ASSERT_TRUE(asking.CreateHidden());
    asking.other = base.m_hWnd;
    asking.SendMessage(kMessage);
    EXPECT_EQ(asking.before, kMessage);
    EXPECT_EQ(asking.after, kMessage);
    asking.DestroyWindow();
}
