// The window procedure of emulated split buttons, a row of its message table after the other.
#include <ktui/host/test_door.h>
#include <ktui/tips/split_button.h>

#include <utility>
#include <vector>

#include "picture.h"
#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

using ui_test::ReplacedImport;

const wchar_t* const kClass = L"emulated split button";
constexpr int kId = 7;

/// What reached the system's button procedure, which answers as it likes unless a test has its say.
struct Forwarded {
    UINT message;
    WPARAM wParam;
};
std::vector<Forwarded> forwarded;
bool refusesCreate = false;
LRESULT cueState = 0;  ///< the answer to WM_QUERYUISTATE

/// Stands where the library calls the system's button procedure.
LRESULT WINAPI NoteForward(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    forwarded.push_back({message, wParam});
    if (refusesCreate && message == WM_CREATE) return -1;
    return ::CallWindowProcW(procedure, window, message, wParam, lParam);
}

bool wasForwarded(UINT message) {
    for (const Forwarded& each : forwarded)
        if (each.message == message) return true;
    return false;
}
int countForwarded(UINT message) {
    int count = 0;
    for (const Forwarded& each : forwarded) count += each.message == message;
    return count;
}

struct Notice {
    UINT code;
    RECT zone;
    DWORD wordThen;
    LRESULT stateThen;
    CRect paintedLater;  ///< what has to be painted anew by then
};
std::vector<Notice> notices;

SplitButtonRecord* recordOf(HWND button) {
    const int extra = static_cast<int>(::GetClassLongPtrW(button, GCL_CBWNDEXTRA));
    return reinterpret_cast<SplitButtonRecord*>(::GetWindowLongPtrW(button, extra - 8));
}

const void* watchedRecord = nullptr;
int timesReleased = 0;

/// Stands where the library gives memory back.
void NoteRelease(void* memory, std::size_t) noexcept {
    if (memory != nullptr && memory == watchedRecord) ++timesReleased;
    ::operator delete(memory);
}

LRESULT CALLBACK WatchedProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_QUERYUISTATE) {
        EXPECT_EQ(wParam, 0u);
        EXPECT_EQ(lParam, 0);
        return cueState;
    }
    if (message == WM_NOTIFY) {
        const auto* notice = reinterpret_cast<const NMBCDROPDOWN*>(lParam);
        CRect update;
        ::GetUpdateRect(window, &update, FALSE);
        notices.push_back({notice->hdr.code, notice->rcButton, recordOf(window)->m_word,
                           ::SendMessageW(window, BM_GETSTATE, 0, 0), update});
        EXPECT_EQ(notice->hdr.hwndFrom, window);
        EXPECT_EQ(wParam, static_cast<WPARAM>(kId));
        return 0;
    }
    return KtUiTestDoor().splitButtonWndProc(window, message, wParam, lParam);
}

class SplitButton : public ::testing::Test {
protected:
    SplitButton() {
        WNDCLASSW button = {};
        ::GetClassInfoW(nullptr, L"BUTTON", &button);
        button.lpfnWndProc = WatchedProc;
        button.cbWndExtra += 8;
        button.lpszClassName = kClass;
        button.hInstance = ::GetModuleHandleW(nullptr);
        ::RegisterClassW(&button);
        notices.clear();
        refusesCreate = false;
    }
    ~SplitButton() override {
        if (window) ::DestroyWindow(window);
    }

    HWND Make(DWORD style, const wchar_t* text = L"Open") {
        if (window) ::DestroyWindow(window);
        window =
            ::CreateWindowExW(0, kClass, text, WS_CHILD | WS_VISIBLE | style, 10, 10, 100, 24, parent.m_hWnd,
                              reinterpret_cast<HMENU>(kId), ::GetModuleHandleW(nullptr), nullptr);
        ui_test::pump();
        forwarded.clear();
        return window;
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessageW(window, message, wParam, lParam);
    }
    DWORD Word() const { return recordOf(window)->m_word; }
    bool NeedsPaint() const { return ::GetUpdateRect(window, nullptr, FALSE) != FALSE; }
    static LPARAM At(int x, int y = 10) { return MAKELPARAM(x, y); }

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ReplacedImport forward{toolkit, "CallWindowProcW", &NoteForward};
    HWND window = nullptr;
};

constexpr UINT kInside = 84, kOutside = 83;  // of 100 pixels, the zone being the last 16

}  // namespace

TEST_F(SplitButton, CreationMakesARecordOfTheLow28Bits) {
    Make(12 | WS_TABSTOP);
    ASSERT_NE(recordOf(window), nullptr);
    EXPECT_EQ(Word() & kSplitStyleBits, (WS_CHILD | WS_VISIBLE | WS_TABSTOP | 12) & 0x0FFFFFFFu);
    EXPECT_EQ(Word() & kSplitDropPressed, 0u);
    Make(13 | WS_DISABLED);
    EXPECT_EQ(Word() & 0x0800000F, 0x0800000Du);
    EXPECT_EQ(sizeof(SplitButtonRecord), 16u);
}

TEST_F(SplitButton, ItsRecordEndsWithTheWindow) {
    Make(12);
    const ReplacedImport release(toolkit, "_ZdlPvy", &NoteRelease);
    ASSERT_TRUE(release.isThere());
    watchedRecord = recordOf(window);
    timesReleased = 0;
    ::DestroyWindow(window);
    window = nullptr;
    EXPECT_EQ(timesReleased, 1);
    watchedRecord = nullptr;
}

TEST_F(SplitButton, FailedCreationEndsIt) {
    refusesCreate = true;
    window = ::CreateWindowExW(0, kClass, L"", WS_CHILD | 12, 0, 0, 50, 20, parent.m_hWnd, nullptr,
                               ::GetModuleHandleW(nullptr), nullptr);
    EXPECT_EQ(window, nullptr);
}

TEST_F(SplitButton, CreationTakesTheStateOfTheCues) {
    cueState = UISF_HIDEACCEL;
    Make(12);
    cueState = 0;
    EXPECT_EQ(Word() & (kSplitAccelHidden | kSplitFocusHidden), kSplitAccelHidden);
}

TEST_F(SplitButton, CreationTakesEachCueByItself) {
    cueState = UISF_HIDEFOCUS;
    Make(12);
    cueState = 0;
    EXPECT_EQ(Word() & (kSplitAccelHidden | kSplitFocusHidden), kSplitFocusHidden);
}

TEST_F(SplitButton, RedrawingIsSuspendedAndResumed) {
    Make(12);
    Send(WM_SETREDRAW, FALSE);
    EXPECT_EQ(Word() & kSplitRedrawSuspended, kSplitRedrawSuspended);
    EXPECT_TRUE(wasForwarded(WM_SETREDRAW));
    Send(WM_SETREDRAW, TRUE);
    EXPECT_EQ(Word() & kSplitRedrawSuspended, 0u);
}

TEST_F(SplitButton, SuspendedPaintingOnlyValidates) {
    Make(12);
    recordOf(window)->m_word |= kSplitRedrawSuspended;
    ::InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(Send(WM_PAINT), 0);
    EXPECT_FALSE(NeedsPaint());
    EXPECT_FALSE(wasForwarded(WM_PAINT));
}

TEST_F(SplitButton, StylesStaySplit) {
    Make(12);
    const std::pair<DWORD, DWORD> changes[] = {{0, 12}, {1, 13}, {2, 12}, {3, 13}, {13, 13}, {14, 12}};
    for (const auto& [wanted, expected] : changes) {
        STYLESTRUCT styles = {WS_CHILD | 12, WS_CHILD | wanted};
        Send(WM_STYLECHANGING, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&styles));
        EXPECT_EQ(styles.styleNew, WS_CHILD | expected) << wanted;
        EXPECT_TRUE(wasForwarded(WM_STYLECHANGING));
    }
    STYLESTRUCT extended = {12, 2};
    Send(WM_STYLECHANGING, static_cast<WPARAM>(GWL_EXSTYLE), reinterpret_cast<LPARAM>(&extended));
    EXPECT_EQ(extended.styleNew, 12u) << "extended styles are taken for styles";
    STYLESTRUCT fromPlain = {WS_CHILD | 0, WS_CHILD | 1};
    Send(WM_STYLECHANGING, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&fromPlain));
    EXPECT_EQ(fromPlain.styleNew, static_cast<DWORD>(WS_CHILD | 1));
}

TEST_F(SplitButton, RecordFollowsTheStyle) {
    Make(12);
    STYLESTRUCT styles = {0, 0xF000010D};
    Send(WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&styles));
    EXPECT_EQ(Word(), 0x0000010Du);
    STYLESTRUCT extended = {0, 0x00000ABC};
    Send(WM_STYLECHANGED, static_cast<WPARAM>(GWL_EXSTYLE), reinterpret_cast<LPARAM>(&extended));
    EXPECT_EQ(Word(), 0x0000010Du);
    EXPECT_EQ(countForwarded(WM_STYLECHANGED), 2);
}

TEST_F(SplitButton, CuesAreSetClearedAndReplaced) {
    Make(12);
    recordOf(window)->m_word &= ~(kSplitAccelHidden | kSplitFocusHidden);
    const auto cues = [&] { return Word() & (kSplitAccelHidden | kSplitFocusHidden); };
    ::ValidateRect(window, nullptr);
    Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEACCEL));
    EXPECT_EQ(cues(), kSplitAccelHidden);
    EXPECT_TRUE(NeedsPaint());
    Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
    EXPECT_EQ(cues(), kSplitAccelHidden | kSplitFocusHidden);
    Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL));
    EXPECT_EQ(cues(), kSplitFocusHidden);
    Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_INITIALIZE, UISF_HIDEACCEL));
    EXPECT_EQ(cues(), kSplitAccelHidden);
    EXPECT_EQ(countForwarded(WM_UPDATEUISTATE), 4);
}

TEST_F(SplitButton, DialogCodeTellsWhichIsTheDefault) {
    Make(12);
    EXPECT_EQ(Send(WM_GETDLGCODE), 0x2020);
    Make(13);
    EXPECT_EQ(Send(WM_GETDLGCODE), 0x2010);
    EXPECT_FALSE(wasForwarded(WM_GETDLGCODE));
}

TEST_F(SplitButton, StateShowsTheDropOnlyWhileItIsPressed) {
    Make(12);
    EXPECT_EQ(Send(BM_GETSTATE) & 0x400, 0);
    recordOf(window)->m_word |= kSplitDropPressed;
    EXPECT_EQ(Send(BM_GETSTATE) & 0x400, 0x400);
    EXPECT_TRUE(wasForwarded(BM_GETSTATE));
}

TEST_F(SplitButton, SettingTheStateIsForwardedAndPainted) {
    Make(12);
    ::ValidateRect(window, nullptr);
    EXPECT_EQ(Send(BM_SETSTATE, TRUE), 0);
    EXPECT_TRUE(wasForwarded(BM_SETSTATE));
    EXPECT_TRUE(NeedsPaint());
}

TEST_F(SplitButton, SettingTheStyleKeepsItSplit) {
    Make(12);
    EXPECT_EQ(Send(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE), 0);
    ASSERT_TRUE(wasForwarded(BM_SETSTYLE));
    EXPECT_EQ(forwarded.front().wParam & 0xF, 13u);
    EXPECT_EQ(Word() & 0xF, 13u);
    Send(BM_SETSTYLE, BS_CHECKBOX, TRUE);
    EXPECT_EQ(Word() & 0xF, 12u);
}

TEST_F(SplitButton, ClickInTheZoneSendsOneNotice) {
    Make(12);
    ::ValidateRect(window, nullptr);
    EXPECT_EQ(Send(WM_LBUTTONDOWN, MK_LBUTTON, At(kInside)), 0);
    ASSERT_EQ(notices.size(), 1u);
    EXPECT_EQ(notices[0].code, static_cast<UINT>(-1248));
    EXPECT_EQ(notices[0].zone.left, 84);
    EXPECT_EQ(notices[0].zone.right, 100);
    EXPECT_EQ(notices[0].zone.bottom, 24);
    EXPECT_EQ(notices[0].wordThen & kSplitDropPressed, kSplitDropPressed);
    EXPECT_EQ(notices[0].stateThen & 0x400, 0x400);
    EXPECT_EQ(Word() & kSplitDropPressed, 0u);
    EXPECT_EQ(Send(BM_GETSTATE) & 0x400, 0);
    EXPECT_EQ(::GetFocus(), window);
    EXPECT_FALSE(wasForwarded(WM_LBUTTONDOWN));
    RECT update = {};
    ::GetUpdateRect(window, &update, FALSE);
    EXPECT_EQ(update.left, 0);
}

TEST_F(SplitButton, OnlyTheZoneIsPaintedAnewWhileItIsPressed) {
    Make(12);
    ::SetFocus(window);
    ::ValidateRect(window, nullptr);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(kInside));
    ASSERT_EQ(notices.size(), 1u);
    EXPECT_EQ(notices[0].paintedLater, CRect(84, 0, 100, 24));
}

TEST_F(SplitButton, ClickOutsideTheZoneIsAnOrdinaryOne) {
    Make(12);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(kOutside));
    EXPECT_TRUE(notices.empty());
    EXPECT_TRUE(wasForwarded(WM_LBUTTONDOWN));
    EXPECT_EQ(::GetFocus(), window);
    ::ReleaseCapture();
}

TEST_F(SplitButton, DoubleClickInTheZoneIsNothing) {
    Make(12);
    EXPECT_EQ(Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(kInside)), 0);
    EXPECT_TRUE(notices.empty());
    EXPECT_FALSE(wasForwarded(WM_LBUTTONDBLCLK));
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(kOutside));
    EXPECT_TRUE(wasForwarded(WM_LBUTTONDBLCLK));
    ::ReleaseCapture();
}

TEST_F(SplitButton, OtherTypesBehaveAsPlainButtons) {
    Make(BS_PUSHBUTTON);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(kInside));
    ::ReleaseCapture();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(kInside));
    ::ReleaseCapture();
    Send(WM_GETDLGCODE);
    Send(BM_GETSTATE);
    Send(BM_SETSTATE, TRUE);
    Send(BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
    Send(WM_PAINT);
    EXPECT_TRUE(notices.empty());
    for (const UINT message : {static_cast<UINT>(WM_LBUTTONDOWN), static_cast<UINT>(WM_LBUTTONDBLCLK),
                               static_cast<UINT>(WM_GETDLGCODE), static_cast<UINT>(BM_GETSTATE),
                               static_cast<UINT>(BM_SETSTATE), static_cast<UINT>(WM_PAINT)})
        EXPECT_TRUE(wasForwarded(message)) << message;
    EXPECT_EQ(::GetWindowLongW(window, GWL_STYLE) & 0xF, BS_DEFPUSHBUTTON);
}

TEST_F(SplitButton, WithoutARecordOldControlsMakeItSplit) {
    // This system's controls say 5.81.
    ASSERT_LT(KtUiTestDoor().loadedToolkit().commonControlsVersion, 0x00060000u);
    Make(12);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(nullptr, window, WM_GETDLGCODE, 0, 0), 0x2020);
}

TEST_F(SplitButton, WithoutARecordControlsOfVersion6AreAskedThemselves) {
    Make(BS_PUSHBUTTON);
    DWORD& version = const_cast<DWORD&>(KtUiTestDoor().loadedToolkit().commonControlsVersion);
    const DWORD former = std::exchange(version, 0x00060000);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(nullptr, window, WM_GETDLGCODE, 0, 0),
              ::CallWindowProcW(KtUiTestDoor().loadedToolkit().buttonWndProc, window, WM_GETDLGCODE, 0, 0));
    version = 0x0005FFFF;
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(nullptr, window, WM_GETDLGCODE, 0, 0), 0x2020);
    version = former;
}

TEST_F(SplitButton, ThemeGoesWithTheWindowAndItsChanges) {
    Make(12);
    static int opened, closed;
    static HWND openedFor;
    opened = closed = 0;
    openedFor = nullptr;
    ThemeApi api = KtUiTestDoor().exchangeThemeApi(ThemeApi());
    ThemeApi watched = api;
    watched.openThemeData = [](HWND asked, LPCWSTR list) -> HTHEME {
        EXPECT_STREQ(list, L"BUTTON");
        openedFor = asked;
        ++opened;
        return reinterpret_cast<HTHEME>(static_cast<ULONG_PTR>(0x55));
    };
    watched.closeThemeData = [](HTHEME theme) -> HRESULT {
        EXPECT_EQ(theme, reinterpret_cast<HTHEME>(static_cast<ULONG_PTR>(0x55)));
        ++closed;
        return S_OK;
    };
    KtUiTestDoor().exchangeThemeApi(watched);
    SplitButtonRecord record;
    record.m_word = 12;
    const auto send = [&](UINT message) {
        KtUiTestDoor().splitButtonMessage(&record, window, message, 0, 0);
    };
    ::ValidateRect(window, nullptr);
    send(WM_THEMECHANGED);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(openedFor, window);
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(NeedsPaint());
    send(WM_THEMECHANGED);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(closed, 1);
    send(WM_DESTROY);
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(record.m_theme, nullptr);
    KtUiTestDoor().exchangeThemeApi(api);
}

TEST_F(SplitButton, TextFlagsFollowTheStyle) {
    const auto flags = KtUiTestDoor().splitButtonTextFlags;
    EXPECT_EQ(flags(0, 0, false), static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_LEFT, 0, false), static_cast<UINT>(DT_LEFT | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_RIGHT, 0, false), static_cast<UINT>(DT_RIGHT | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_CENTER, 0, false), static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_CENTER, WS_EX_RIGHT, false), static_cast<UINT>(DT_RIGHT | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_LEFT, WS_EX_RIGHT, false), static_cast<UINT>(DT_LEFT | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(0, WS_EX_DLGMODALFRAME, false),
              static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_TOP, 0, false), static_cast<UINT>(DT_CENTER | DT_TOP | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_BOTTOM, 0, false), static_cast<UINT>(DT_CENTER | DT_BOTTOM | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_VCENTER, 0, false), static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(flags(BS_MULTILINE, 0, true),
              static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_WORDBREAK | DT_HIDEPREFIX));
}

TEST_F(SplitButton, AStyleBecomesASplitOneWithItsDefaultBitKept) {
    Make(12);
    Send(BM_SETSTYLE, 3);
    EXPECT_EQ(::GetWindowLongW(window, GWL_STYLE) & 0xF, 13) << "2 goes, 12 comes, 1 stays";
    Send(BM_SETSTYLE, 2);
    EXPECT_EQ(::GetWindowLongW(window, GWL_STYLE) & 0xF, 12);
}

TEST_F(SplitButton, WithoutARecordItKeepsNothingAndStillServes) {
    Make(12);
    SplitButtonRecord* const record = recordOf(window);
    const int extra = static_cast<int>(::GetClassLongPtrW(window, GCL_CBWNDEXTRA)) - 8;
    ::SetWindowLongPtrW(window, extra, 0);
    const DWORD before = record->m_word;
    STYLESTRUCT styles = {12, 13};
    Send(WM_SETREDRAW, FALSE);
    Send(WM_SETREDRAW, TRUE);
    Send(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
    Send(WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&styles));
    Send(WM_THEMECHANGED);
    EXPECT_EQ(Send(BM_GETSTATE) & 0x400, 0);
    EXPECT_TRUE(wasForwarded(WM_UPDATEUISTATE));
    EXPECT_TRUE(wasForwarded(WM_THEMECHANGED));
    EXPECT_EQ(record->m_word, before);
    ::SetWindowLongPtrW(window, extra, reinterpret_cast<LONG_PTR>(record));
}
