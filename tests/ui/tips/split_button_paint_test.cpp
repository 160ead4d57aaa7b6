// How emulated split buttons are painted: the parts and states asked of a theme, what is drawn without one,
// the clips, the glyph, the icon, the text and the focus.
#include <ktui/host/platform_versions.h>
#include <ktui/host/test_door.h>
#include <ktui/tips/split_button.h>

#include <string>
#include <utility>
#include <vector>

#include "canvas.h"
#include "replaced_import.h"
#include "sent_messages.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

using ui_test::Canvas;
using ui_test::ReplacedImport;

constexpr int kWidth = 100, kHeight = 24;
constexpr COLORREF kGround = RGB(9, 200, 9);

/// One drawing call, with the numbers that matter of it.
struct Call {
    std::string name;
    int part = 0, state = 0;
    CRect rect{0, 0, 0, 0};
    CRect clip = CRect(0, 0, 0, 0);
    UINT flags = 0;
    std::wstring text = {};
};
std::vector<Call> calls;
int partlyTransparent = 0;       ///< the state whose background is
HDC paintedOn = nullptr;         ///< what the button is asked to paint on
HWND parentOfPainted = nullptr;  ///< the button's parent
HTHEME const kTheme = reinterpret_cast<HTHEME>(static_cast<ULONG_PTR>(0x77));

const Call* Find(const char* name, std::size_t nth = 0) {
    for (const Call& call : calls)
        if (call.name == name && nth-- == 0) return &call;
    return nullptr;
}
int Count(const char* name) {
    int count = 0;
    for (const Call& call : calls) count += call.name == name;
    return count;
}

/// What is drawn is drawn on the device context that was given.
void ExpectGiven(HDC dc) { EXPECT_TRUE(paintedOn == nullptr || dc == paintedOn); }

/// A theme that writes down what is drawn with it.
ThemeApi WatchedTheme() {
    ThemeApi api = KtUiTestDoor().exchangeThemeApi(ThemeApi());
    KtUiTestDoor().exchangeThemeApi(api);
    api.isThemeBackgroundPartiallyTransparent = [](HTHEME theme, int part, int state) -> BOOL {
        EXPECT_EQ(theme, kTheme);
        EXPECT_EQ(part, 1);
        return state == partlyTransparent;
    };
    api.drawThemeParentBackground = [](HWND window, HDC dc, RECT* rect) -> HRESULT {
        if (paintedOn != nullptr) {
            EXPECT_EQ(dc, paintedOn);
            EXPECT_EQ(::GetParent(window), parentOfPainted);
        }
        calls.push_back({"parent", 0, 0, CRect(*rect)});
        return S_OK;
    };
    api.drawThemeBackground = [](HTHEME theme, HDC dc, int part, int state, const RECT* rect,
                                 const RECT* clip) -> HRESULT {
        EXPECT_EQ(theme, kTheme);
        ExpectGiven(dc);
        calls.push_back(
            {"background", part, state, CRect(*rect), clip != nullptr ? CRect(*clip) : CRect(*rect)});
        return S_OK;
    };
    api.drawThemeEdge = [](HTHEME theme, HDC dc, int part, int state, const RECT* rect, UINT edge, UINT sides,
                           RECT*) -> HRESULT {
        EXPECT_EQ(theme, kTheme);
        ExpectGiven(dc);
        EXPECT_EQ(sides, static_cast<UINT>(BF_LEFT));
        calls.push_back({"edge", part, state, CRect(*rect), {}, edge});
        return S_OK;
    };
    api.drawThemeText = [](HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int, DWORD flags, DWORD,
                           const RECT* rect) -> HRESULT {
        EXPECT_EQ(theme, kTheme);
        ExpectGiven(dc);
        calls.push_back({"theme text", part, state, CRect(*rect), {}, flags, text});
        return S_OK;
    };
    return api;
}

int WINAPI NoteText(HDC dc, LPCWSTR text, int length, RECT* rect, UINT flags) {
    ExpectGiven(dc);
    calls.push_back(
        {"text", ::GetBkMode(dc), static_cast<int>(::GetTextColor(dc)), CRect(*rect), {}, flags, text});
    return ::DrawTextW(dc, text, length, rect, flags);
}
BOOL WINAPI NoteFocus(HDC dc, const RECT* rect) {
    ExpectGiven(dc);
    calls.push_back({"focus", 0, 0, CRect(*rect)});
    return TRUE;
}
BOOL WINAPI NoteIcon(HDC dc, int x, int y, HICON, int width, int height, UINT, HBRUSH, UINT flags) {
    ExpectGiven(dc);
    calls.push_back({"glyph", 0, 0, CRect(CPoint(x, y), CSize(width, height)), {}, flags});
    return TRUE;
}
HICON WINAPI NoteGlyph(HIMAGELIST list, int index, UINT flags) {
    EXPECT_EQ(list, KtUiTestDoor().loadedToolkit().arrowImageList);
    calls.push_back({"image", index});
    return ::ImageList_GetIcon(list, index, flags);
}
BOOL WINAPI NoteState(HDC dc, HBRUSH, DRAWSTATEPROC, LPARAM data, WPARAM, int x, int y, int, int,
                      UINT flags) {
    ExpectGiven(dc);
    calls.push_back({"state", static_cast<int>(data != 0), 0, CRect(x, y, x, y), {}, flags});
    return TRUE;
}
BOOL WINAPI NoteFrame(HDC dc, RECT* rect, UINT type, UINT state) {
    CRect clip;
    ::GetClipBox(dc, &clip);
    EXPECT_EQ(type, static_cast<UINT>(DFC_BUTTON));
    ExpectGiven(dc);
    calls.push_back({"frame", 0, 0, CRect(*rect), clip, state});
    return ::DrawFrameControl(dc, rect, type, state);
}
BOOL WINAPI NoteEdge(HDC dc, RECT* rect, UINT edge, UINT sides) {
    ExpectGiven(dc);
    EXPECT_EQ(sides, static_cast<UINT>(BF_LEFT));
    calls.push_back({"edge", 0, 0, CRect(*rect), {}, edge});
    return ::DrawEdge(dc, rect, edge, sides);
}

HDC WINAPI NoteBeginning(HWND window, PAINTSTRUCT* paint) {
    const HDC dc = ::BeginPaint(window, paint);
    calls.push_back({"begin"});
    paintedOn = dc;
    return dc;
}
BOOL WINAPI NoteEnd(HWND window, const PAINTSTRUCT* paint) {
    EXPECT_EQ(paint->hdc, paintedOn);
    paintedOn = nullptr;
    calls.push_back({"end"});
    return ::EndPaint(window, paint);
}

std::vector<HGDIOBJ> iconParts;  ///< the bitmaps that were handed out, less those that were given back

BOOL WINAPI NoteIconParts(HICON icon, ICONINFO* info) {
    const BOOL found = ::GetIconInfo(icon, info);
    iconParts = {info->hbmColor, info->hbmMask};
    return found;
}
BOOL WINAPI NoteDeletion(HGDIOBJ object) {
    std::erase(iconParts, object);
    return ::DeleteObject(object);
}

LRESULT stateAnswer = 0;
WNDPROC plainProc = nullptr;

LRESULT CALLBACK AnsweringProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == BM_GETSTATE) return stateAnswer;
    return ::CallWindowProcW(plainProc, window, message, wParam, lParam);
}

class SplitButtonPaint : public ::testing::Test {
protected:
    SplitButtonPaint() {
        calls.clear();
        partlyTransparent = 0;
        stateAnswer = 0;
        record.m_word = 12;
        Make(0);
    }
    ~SplitButtonPaint() override {
        KtUiTestDoor().exchangeThemeApi(formerTheme);
        ::DestroyWindow(window);
    }
    void Make(DWORD exStyle, const wchar_t* caption = L"&Open") {
        if (window != nullptr) ::DestroyWindow(window);
        window = ::CreateWindowExW(exStyle, L"BUTTON", caption, WS_CHILD | WS_VISIBLE, 10, 10, kWidth,
                                   kHeight, parent.m_hWnd, nullptr, nullptr, nullptr);
        plainProc = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AnsweringProc)));
    }
    void UseTheme() {
        record.m_theme = kTheme;
        KtUiTestDoor().exchangeThemeApi(WatchedTheme());
    }
    void Paint(Canvas& canvas) {
        calls.clear();
        paintedOn = canvas.dc.m_hDC;
        parentOfPainted = parent.m_hWnd;
        EXPECT_EQ(KtUiTestDoor().splitButtonMessage(&record, window, WM_PRINTCLIENT,
                                                    reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0),
                  0);
        paintedOn = nullptr;
    }
    void Paint() {
        Canvas canvas(kWidth, kHeight, kGround);
        Paint(canvas);
    }
    /// The states of the left part and of the zone.
    std::pair<int, int> States() {
        Paint();
        EXPECT_EQ(Count("background"), 2);
        if (Count("background") != 2) return {};
        return {Find("background", 0)->state, Find("background", 1)->state};
    }

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ThemeApi formerTheme = [] {
        ThemeApi api = KtUiTestDoor().exchangeThemeApi(ThemeApi());
        KtUiTestDoor().exchangeThemeApi(api);
        return api;
    }();
    ReplacedImport text{toolkit, "DrawTextW", &NoteText};
    ReplacedImport focus{toolkit, "DrawFocusRect", &NoteFocus};
    ReplacedImport icon{toolkit, "DrawIconEx", &NoteIcon};
    ReplacedImport glyph{toolkit, "ImageList_GetIcon", &NoteGlyph};
    ReplacedImport drawState{toolkit, "DrawStateW", &NoteState};
    ReplacedImport frame{toolkit, "DrawFrameControl", &NoteFrame};
    ReplacedImport edge{toolkit, "DrawEdge", &NoteEdge};
    SplitButtonRecord record;
    HWND window = nullptr;
};

const CRect kAll(0, 0, kWidth, kHeight), kLeft(0, 0, 84, kHeight), kZone(84, 0, kWidth, kHeight);

}  // namespace

TEST_F(SplitButtonPaint, ThemeStatesFollowTheButton) {
    UseTheme();
    using Pair = std::pair<int, int>;
    EXPECT_EQ(States(), Pair(1, 1));
    record.m_word = 13;
    EXPECT_EQ(States(), Pair(5, 5));
    stateAnswer = 0x200;
    EXPECT_EQ(States(), Pair(2, 2));
    stateAnswer = 0x204;
    EXPECT_EQ(States(), Pair(3, 3));
    stateAnswer = 0x604;
    EXPECT_EQ(States(), Pair(1, 3));
    ::EnableWindow(window, FALSE);
    EXPECT_EQ(States(), Pair(4, 4));
}

TEST_F(SplitButtonPaint, ThemePaintsEachPartInItsPlaceAndASunkenLineBetween) {
    UseTheme();
    record.m_word = 13;  // no frame of its own with a theme
    stateAnswer = 0x400;
    Paint();
    ASSERT_EQ(Count("background"), 2);
    EXPECT_EQ(Find("background", 0)->part, 1);
    EXPECT_EQ(Find("background", 0)->clip, kLeft);
    EXPECT_EQ(Find("background", 1)->clip, kZone);
    ASSERT_NE(Find("edge"), nullptr);
    EXPECT_EQ(Find("edge")->flags, 10u);
    EXPECT_EQ(Find("edge")->part, 1);
    EXPECT_EQ(Find("edge")->state, 3);
    EXPECT_EQ(Find("edge")->rect.left, 84);
    EXPECT_EQ(Count("frame"), 0);
    ASSERT_NE(Find("theme text"), nullptr);
    EXPECT_EQ(Find("theme text")->text, L"&Open");
    EXPECT_EQ(Find("theme text")->part, 1);
    EXPECT_EQ(Find("theme text")->state, 1);
    EXPECT_EQ(Count("text"), 0);
}

TEST_F(SplitButtonPaint, ParentShowsThroughTheTransparentPartsAlone) {
    UseTheme();
    Paint();
    EXPECT_EQ(Count("parent"), 0);
    partlyTransparent = 3;
    stateAnswer = 0x400;
    Paint();
    ASSERT_EQ(Count("parent"), 1);
    EXPECT_EQ(Find("parent")->rect, kZone);
    std::size_t parentAt = 0, zoneAt = 0;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i].name == "parent") parentAt = i;
        if (calls[i].name == "background" && calls[i].state == 3) zoneAt = i;
    }
    EXPECT_LT(parentAt, zoneAt);
    partlyTransparent = 1;
    stateAnswer = 0;
    Paint();
    EXPECT_EQ(Count("parent"), 2);
}

TEST_F(SplitButtonPaint, WithoutAThemeTheParentIsAskedForItsColours) {
    Canvas canvas(kWidth, kHeight, kGround);
    int asked = 0;
    {
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.message != WM_CTLCOLORBTN) return;
            ++asked;
            EXPECT_EQ(message.hwnd, parent.m_hWnd);
            EXPECT_EQ(message.wParam, reinterpret_cast<WPARAM>(canvas.dc.m_hDC));
            EXPECT_EQ(message.lParam, reinterpret_cast<LPARAM>(window));
        });
        Paint(canvas);
    }
    EXPECT_EQ(asked, 1);
}

TEST_F(SplitButtonPaint, WithoutAThemeBothPartsAreDrawnInTheirClips) {
    Paint();
    ASSERT_EQ(Count("frame"), 2);
    EXPECT_EQ(Find("frame", 0)->rect, kAll);
    EXPECT_EQ(Find("frame", 0)->clip, kLeft);
    EXPECT_EQ(Find("frame", 1)->rect, kAll);
    EXPECT_EQ(Find("frame", 1)->clip, kZone);
    for (const std::size_t i : {0u, 1u})
        EXPECT_EQ(Find("frame", i)->flags, static_cast<UINT>(DFCS_BUTTONPUSH));
    EXPECT_EQ(Find("edge")->rect.left, 84);
    EXPECT_EQ(Find("edge")->flags, static_cast<UINT>(EDGE_ETCHED));
}

TEST_F(SplitButtonPaint, PushedPartsAreDrawnSoAndADisabledButtonInactive) {
    const UINT push = DFCS_BUTTONPUSH, pushed = DFCS_BUTTONPUSH | DFCS_PUSHED;
    stateAnswer = 0x4;
    Paint();
    EXPECT_EQ(Find("frame", 0)->flags, pushed);
    EXPECT_EQ(Find("frame", 1)->flags, pushed);
    stateAnswer = 0x400;
    Paint();
    EXPECT_EQ(Find("frame", 0)->flags, push);
    EXPECT_EQ(Find("frame", 1)->flags, pushed);
    stateAnswer = 0;
    ::EnableWindow(window, FALSE);
    Paint();
    EXPECT_EQ(Find("frame", 0)->flags, push | DFCS_INACTIVE);
    EXPECT_EQ(Find("frame", 1)->flags, push | DFCS_INACTIVE);
}

TEST_F(SplitButtonPaint, ADefaultButtonHasAFrameAroundTheRest) {
    record.m_word = 13;
    Canvas canvas(kWidth, kHeight, kGround);
    Paint(canvas);
    const COLORREF color = ::GetSysColor(COLOR_WINDOWFRAME);
    for (int x = 0; x < kWidth; ++x) {
        ASSERT_EQ(canvas.at(x, 0), color) << x;
        ASSERT_EQ(canvas.at(x, kHeight - 1), color) << x;
    }
    for (int y = 0; y < kHeight; ++y) {
        ASSERT_EQ(canvas.at(0, y), color) << y;
        ASSERT_EQ(canvas.at(kWidth - 1, y), color) << y;
    }
    EXPECT_EQ(Find("frame", 0)->rect, CRect(1, 1, 99, 23));
    EXPECT_EQ(Find("frame", 0)->clip, CRect(1, 1, 84, 23));
    EXPECT_EQ(Find("frame", 1)->clip, CRect(84, 1, 99, 23));
}

TEST_F(SplitButtonPaint, EveryPixelIsPaintedAndTheClipIsAsBefore) {
    Canvas canvas(kWidth, kHeight, kGround);
    Paint(canvas);
    EXPECT_EQ(canvas.count(kGround), 0);
    const HRGN none = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetClipRgn(canvas.dc.m_hDC, none), 0);
    ::DeleteObject(none);
}

TEST_F(SplitButtonPaint, AClipOfTheCallersHoldsAndStays) {
    Canvas canvas(kWidth, kHeight, kGround);
    const CRect half(10, 2, 90, 20);
    const HRGN region = ::CreateRectRgnIndirect(&half);
    ::SelectClipRgn(canvas.dc.m_hDC, region);
    Paint(canvas);
    EXPECT_EQ(Find("frame", 0)->clip, CRect(10, 2, 84, 20));
    EXPECT_EQ(Find("frame", 1)->clip, CRect(84, 2, 90, 20));
    const HRGN after = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetClipRgn(canvas.dc.m_hDC, after), 1);
    EXPECT_TRUE(::EqualRgn(after, region));
    EXPECT_EQ(canvas.at(5, 10), kGround);
    EXPECT_EQ(canvas.at(95, 10), kGround);
    ::SelectClipRgn(canvas.dc.m_hDC, nullptr);
    ::DeleteObject(after);
    ::DeleteObject(region);
}

TEST_F(SplitButtonPaint, GlyphIsCentredInTheZoneAndMovesWithIt) {
    Paint();
    ASSERT_NE(Find("glyph"), nullptr);
    EXPECT_EQ(Find("glyph")->rect, CRect(CPoint(87, 7), CSize(9, 9)));
    EXPECT_EQ(Find("glyph")->flags, static_cast<UINT>(DI_NORMAL));
    EXPECT_EQ(Find("image")->part, 0);
    stateAnswer = 0x400;
    Paint();
    EXPECT_EQ(Find("glyph")->rect.TopLeft(), CPoint(88, 8));
    EXPECT_EQ(Find("text")->rect, CRect(3, 3, 81, 21)) << "the left part is not pushed";
    stateAnswer = 0x4;
    Paint();
    EXPECT_EQ(Find("glyph")->rect.TopLeft(), CPoint(88, 8));
    EXPECT_EQ(Find("text")->rect, CRect(4, 4, 82, 22));
    stateAnswer = 0;
    ::EnableWindow(window, FALSE);
    Paint();
    EXPECT_EQ(Find("image")->part, 1);
}

TEST_F(SplitButtonPaint, GlyphIsDrawnWithAThemeToo) {
    UseTheme();
    stateAnswer = 0x404;
    Paint();
    ASSERT_NE(Find("glyph"), nullptr);
    EXPECT_EQ(Find("glyph")->rect, CRect(CPoint(87, 7), CSize(9, 9)));
}

TEST_F(SplitButtonPaint, FocusIsDrawnAroundTheLeftPartUnlessItIsHidden) {
    Paint();
    EXPECT_EQ(Count("focus"), 0);
    ::SetFocus(window);
    Paint();
    ASSERT_EQ(Count("focus"), 1);
    EXPECT_EQ(Find("focus")->rect, CRect(3, 3, 81, 21));
    record.m_word |= kSplitFocusHidden;
    Paint();
    EXPECT_EQ(Count("focus"), 0);
}

TEST_F(SplitButtonPaint, TextIsTransparentInTheColourOfButtons) {
    Paint();
    ASSERT_EQ(Count("text"), 1);
    const Call& drawn = *Find("text");
    EXPECT_EQ(drawn.text, L"&Open");
    EXPECT_EQ(drawn.part, TRANSPARENT);
    EXPECT_EQ(static_cast<COLORREF>(drawn.state), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(drawn.flags, static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    record.m_word = 12 | BS_LEFT | BS_TOP | kSplitAccelHidden;
    Paint();
    EXPECT_EQ(Find("text")->flags, static_cast<UINT>(DT_LEFT | DT_TOP | DT_SINGLELINE | DT_HIDEPREFIX));
    Make(WS_EX_RIGHT);
    record.m_word = 12;
    Paint();
    EXPECT_EQ(Find("text")->flags, static_cast<UINT>(DT_RIGHT | DT_VCENTER | DT_SINGLELINE));
}

TEST_F(SplitButtonPaint, TextHasAtMost256Characters) {
    Make(0, std::wstring(300, L'x').c_str());
    Paint();
    EXPECT_EQ(Find("text")->text, std::wstring(256, L'x'));
}

TEST_F(SplitButtonPaint, AnIconIsCentredInTheLeftPart) {
    record.m_word = 12 | BS_ICON;
    Paint();
    EXPECT_EQ(Count("state"), 0) << "no icon was given";
    EXPECT_EQ(Count("text"), 0);
    const HICON picture = ::LoadIconW(nullptr, IDI_HAND);  // 32 by 32
    ::DestroyWindow(window);
    window = ::CreateWindowExW(0, L"BUTTON", L"text", WS_CHILD | WS_VISIBLE | BS_ICON, 10, 10, kWidth, 40,
                               parent.m_hWnd, nullptr, nullptr, nullptr);
    plainProc = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AnsweringProc)));
    ::SendMessageW(window, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(picture));
    Canvas canvas(kWidth, 40, kGround);
    Paint(canvas);
    ASSERT_EQ(Count("state"), 1);
    EXPECT_EQ(Find("state")->rect.TopLeft(), CPoint((84 - 32) / 2, 4));
    EXPECT_EQ(Find("state")->flags, static_cast<UINT>(DST_ICON | DSS_NORMAL));
    EXPECT_EQ(Count("text"), 0);
    stateAnswer = 0x4;
    Paint(canvas);
    EXPECT_EQ(Find("state")->rect.TopLeft(), CPoint((84 - 32) / 2 + 1, 5));
    stateAnswer = 0;
    ::EnableWindow(window, FALSE);
    Paint(canvas);
    EXPECT_EQ(Find("state")->flags, static_cast<UINT>(DST_ICON | DSS_DISABLED));
}

TEST_F(SplitButtonPaint, TheBitmapsOfAnIconAreGivenBack) {
    const ReplacedImport parts(toolkit, "GetIconInfo", &NoteIconParts);
    const ReplacedImport deletion(toolkit, "DeleteObject", &NoteDeletion);
    ASSERT_TRUE(parts.isThere() && deletion.isThere());
    record.m_word = 12 | BS_ICON;
    ::SetWindowLongW(window, GWL_STYLE, ::GetWindowLongW(window, GWL_STYLE) | BS_ICON);
    ::SendMessageW(window, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(::LoadIconW(nullptr, IDI_HAND)));
    iconParts = {reinterpret_cast<HGDIOBJ>(&iconParts)};
    Paint();
    EXPECT_EQ(Count("state"), 1);
    EXPECT_TRUE(iconParts.empty());
}

TEST_F(SplitButtonPaint, WithoutARecordTheWindowsStyleCounts) {
    Canvas canvas(kWidth, kHeight, kGround);
    KtUiTestDoor().splitButtonMessage(nullptr, window, WM_PRINTCLIENT,
                                      reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0);
    EXPECT_EQ(Count("frame"), 2);
    EXPECT_EQ(Find("text")->text, L"&Open");
    EXPECT_EQ(canvas.count(kGround), 0);
}

TEST_F(SplitButtonPaint, AButtonOfAnotherTypeIsLeftToTheSystem) {
    record.m_word = BS_PUSHBUTTON;
    Canvas canvas(kWidth, kHeight, kGround);
    KtUiTestDoor().splitButtonMessage(&record, window, WM_PRINTCLIENT,
                                      reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0);
    EXPECT_EQ(Count("frame") + Count("glyph") + Count("text"), 0);
}

TEST_F(SplitButtonPaint, NothingIsDrawnOnTheScreenWhileRedrawingIsSuspended) {
    record.m_word |= kSplitRedrawSuspended;
    ::InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(&record, window, WM_PAINT, 0, 0), 0);
    EXPECT_TRUE(calls.empty());
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    Canvas canvas(kWidth, kHeight, kGround);
    const auto dc = reinterpret_cast<WPARAM>(canvas.dc.m_hDC);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(&record, window, WM_PAINT, dc, 0), 0);
    EXPECT_EQ(Count("frame"), 2) << "a picture that is asked for is drawn all the same";
}

TEST_F(SplitButtonPaint, TheScreenIsPaintedBetweenItsBeginningAndItsEnd) {
    const ReplacedImport beginning(toolkit, "BeginPaint", &NoteBeginning);
    const ReplacedImport end(toolkit, "EndPaint", &NoteEnd);
    ASSERT_TRUE(beginning.isThere() && end.isThere());
    parentOfPainted = parent.m_hWnd;
    ::InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(&record, window, WM_PAINT, 0, 0), 0);
    ASSERT_GT(calls.size(), 4u);
    EXPECT_EQ(calls.front().name, "begin");
    EXPECT_EQ(calls.back().name, "end");
    EXPECT_EQ(Count("begin"), 1);
    EXPECT_EQ(Count("end"), 1);
    Paint();
    EXPECT_EQ(Count("begin") + Count("end"), 0) << "what was given is the caller's";
}

TEST_F(SplitButtonPaint, PaintingOnTheScreenValidatesIt) {
    ::InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(KtUiTestDoor().splitButtonMessage(&record, window, WM_PAINT, 0, 0), 0);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    EXPECT_EQ(Count("frame"), 2);
}

namespace {

/// Another version of the system for as long as it lives.
class OtherSystem {
public:
    explicit OtherSystem(DWORD code) : m_former(std::exchange(version(), code)) {}
    ~OtherSystem() { version() = m_former; }
    OtherSystem(const OtherSystem&) = delete;
    OtherSystem& operator=(const OtherSystem&) = delete;

private:
    /// The library keeps it as found when it was loaded.
    static DWORD& version() { return const_cast<DWORD&>(KtUiTestDoor().loadedToolkit().osVersionCode); }
    DWORD m_former;
};

constexpr DWORD kBeforeSplitButtons = MakeOsVersionCode(2, 5, 2);

}  // namespace

TEST_F(SplitButtonPaint, AnOlderSystemsThemedIconIsDrawnHere) {
    const OtherSystem older(kBeforeSplitButtons);
    UseTheme();
    record.m_word = BS_ICON;
    const HICON picture = ::LoadIconW(nullptr, IDI_HAND);
    ::SetWindowLongW(window, GWL_STYLE, ::GetWindowLongW(window, GWL_STYLE) | BS_ICON);
    ::SendMessageW(window, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(picture));
    Paint();
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[0].name, "parent");
    EXPECT_EQ(calls[0].rect, kAll);
    EXPECT_EQ(calls[1].name, "background");
    EXPECT_EQ(calls[1].part, 1);
    EXPECT_EQ(calls[1].state, 1);
    EXPECT_EQ(calls[1].rect, kAll);
    EXPECT_EQ(calls[2].name, "state");
    EXPECT_EQ(calls[2].part, 1) << "the icon is handed over";
    const int size = ::GetSystemMetrics(SM_CXICON);
    EXPECT_EQ(calls[2].rect.TopLeft(), CPoint((kWidth - size) / 2, (kHeight - size) / 2));
    EXPECT_EQ(calls[2].flags, static_cast<UINT>(DST_ICON | DSS_NORMAL));
    ::EnableWindow(window, FALSE);
    Paint();
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[1].state, 4);
    EXPECT_EQ(calls[2].flags, static_cast<UINT>(DST_ICON | DSS_DISABLED));
}

TEST_F(SplitButtonPaint, WhatASystemDrawsItselfIsLeftToIt) {
    const auto drawnHere = [&] {
        Canvas canvas(kWidth, kHeight, kGround);
        calls.clear();
        KtUiTestDoor().splitButtonMessage(&record, window, WM_PRINTCLIENT,
                                          reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0);
        return Count("background") + Count("state");
    };
    UseTheme();
    record.m_word = BS_ICON;
    EXPECT_EQ(drawnHere(), 0) << "a system with split buttons";
    const OtherSystem older(kBeforeSplitButtons);
    EXPECT_EQ(drawnHere(), 2);
    record.m_word = 0;
    EXPECT_EQ(drawnHere(), 0) << "no icon";
    record.m_word = BS_ICON;
    record.m_theme = nullptr;
    EXPECT_EQ(drawnHere(), 0) << "no theme";
}
