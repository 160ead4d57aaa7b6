// Previews where the dialog must not wait: what the pane shows until they come, what is dropped, and who
// holds what meanwhile.
#include <ktui/nav/thumbnail_ctrl.h>

#include <ktdsres/never_blocked_ids.h>

#include "in_language.h"
#include "shown_fixture.h"
#include "slow_preview.h"
#include "without_strings.h"

namespace {

namespace fs = std::filesystem;
constexpr unsigned kLong = 60000, kShort = 300;
const CSize kPane(160, 120);

/// A pane that can be looked at.
class Pane {
public:
    explicit Pane(CWnd& parent, CSize size = kPane) {
        EXPECT_TRUE(pane.Create(L"", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size), &parent));
        Look();
    }
    void Show(const fs::path& path) {
        pane.m_path = path.c_str();
        pane.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        Look();
    }
    /// Notes what the pane shows.
    void Look() {
        pane.UpdateWindow();
        CRect area;
        pane.GetClientRect(&area);
        CClientDC dc(&pane);
        ground = pictures = words = 0;
        inked = CRect(area.right, area.bottom, 0, 0);
        for (int y = 0; y < area.bottom; ++y)
            for (int x = 0; x < area.right; ++x) {
                const COLORREF color = dc.GetPixel(x, y);
                ground += color == ::GetSysColor(COLOR_BTNFACE);
                pictures += color == SlowPreviews::kColor;
                words += color == ::GetSysColor(COLOR_BTNTEXT);
                if (color != ::GetSysColor(COLOR_BTNFACE))
                    inked.SetRect(std::min<int>(inked.left, x), std::min<int>(inked.top, y),
                                  std::max<int>(inked.right, x + 1), std::max<int>(inked.bottom, y + 1));
            }
        isEmpty = ground == area.right * area.bottom;
    }
    /// Whether it comes to show a preview, or words, or nothing.
    bool ComesToShow(const std::function<bool()>& wanted) {
        return ui_test::pump_until(
            [&] {
                Look();
                return wanted();
            },
            5000);
    }
    bool ShowsPreview() const {
        return pictures == SlowPreviews::kWidth * SlowPreviews::kHeight && words == 0;
    }
    bool ShowsWords() const { return words > 20 && pictures == 0; }
    bool ComesToShowPreview() {
        return ComesToShow([this] { return ShowsPreview(); });
    }
    bool ComesToShowWords() {
        return ComesToShow([this] { return ShowsWords(); });
    }

    CThumbnailCtrl pane;
    int ground = 0, pictures = 0, words = 0;
    CRect inked;
    bool isEmpty = false;
};

/// A window that has a font, as dialogs do and plain windows don't.
class FontedParent : public ui_test::ParentWindow {
public:
    HFONT font = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(font);
        return ui_test::ParentWindow::WindowProc(message, wParam, lParam);
    }
};

class NeverBlockedPreviews : public ::testing::Test {
protected:
    NeverBlockedPreviews() {
        fs::create_directories(folder);
        for (const wchar_t* name : {L"quick.dwg", L"other.dwg", L"slow.dwg", L"slow2.dwg"})
            std::ofstream(folder / name) << "x";
    }
    ~NeverBlockedPreviews() override { fs::remove_all(folder); }
    /// The parent's font: one whose strokes are the colour of the text and nothing between.
    void useFont(int height) {
        LOGFONT look = {};
        look.lfHeight = height;
        look.lfQuality = NONANTIALIASED_QUALITY;
        ::lstrcpynW(look.lfFaceName, L"Tahoma", LF_FACESIZE);
        font.DeleteObject();
        font.CreateFontIndirect(&look);
        parent.font = font;
    }
    /// Lets some time go by in which a wrong answer would have come.
    static void wait(unsigned milliseconds) {
        ui_test::pump_until([] { return false; }, milliseconds);
    }

    fs::path folder = fs::temp_directory_path() / "ktui never blocked";
    ui_test::TestHost host;
    FontedParent parent;
    CFont font;
    SlowPreviews previews;
};

}  // namespace

TEST(NeverBlockedLimit, IsNoneAtFirstAndTheFormerOneIsAnswered) {
    EXPECT_EQ(KtUiNeverBlockedLimit(), 0u);
    EXPECT_EQ(KtUiSetNeverBlocked(1500), 0u);
    EXPECT_EQ(KtUiNeverBlockedLimit(), 1500u);
    EXPECT_EQ(KtUiSetNeverBlocked(0), 1500u);
    EXPECT_EQ(KtUiNeverBlockedLimit(), 0u);
}

TEST_F(NeverBlockedPreviews, WithoutALimitEachPaintingWaitsForTheFile) {
    Pane pane(parent);
    pane.Show(folder / "quick.dwg");
    EXPECT_TRUE(pane.ShowsPreview()) << "at once";
    EXPECT_EQ(previews.thread(), ::GetCurrentThreadId());
    pane.Show(folder / "quick.dwg");
    EXPECT_EQ(previews.calls(), 2);
}

TEST_F(NeverBlockedPreviews, ItsWordsHaveTheFontOfItsParent) {
    const NeverBlocked limit(kLong);
    const auto heightOfWords = [&](int height) {
        useFont(height);
        Pane pane(parent);
        pane.Show(folder / "slow.dwg");
        EXPECT_TRUE(pane.ComesToShowWords());
        return pane.inked.Height();
    };
    const int small = heightOfWords(-9), larger = heightOfWords(-18);
    EXPECT_LT(small, 14);
    EXPECT_GT(larger, small + 4);
    previews.Open(L"slow.dwg");
}

TEST_F(NeverBlockedPreviews, ThePaneIsEmptyAMomentThenSaysThatItReadsThenShowsThePreview) {
    const NeverBlocked limit(kLong);
    Pane pane(parent);
    const auto start = ::GetTickCount64();
    pane.Show(folder / "slow.dwg");
    EXPECT_LT(::GetTickCount64() - start, 1000u);
    EXPECT_TRUE(pane.isEmpty);
    EXPECT_TRUE(pane.ComesToShowWords());
    EXPECT_GE(::GetTickCount64() - start, 80u);
    // In the middle, both ways.
    EXPECT_NEAR(pane.inked.left, kPane.cx - pane.inked.right, 4);
    EXPECT_NEAR(pane.inked.top, kPane.cy - pane.inked.bottom, 6);
    EXPECT_LT(pane.inked.Height(), 30) << "words, no picture";
    EXPECT_EQ(previews.busy(), 1);
    EXPECT_NE(previews.thread(), ::GetCurrentThreadId());
    EXPECT_EQ(previews.room().cx, kPane.cx);
    EXPECT_EQ(previews.room().cy, kPane.cy);
    previews.Open(L"slow.dwg");
    EXPECT_TRUE(pane.ComesToShowPreview());
    // In the middle, at its own size.
    EXPECT_EQ(pane.inked, CRect(CPoint(70, 55), CSize(20, 10)));
}

/// The words drawn since the last look, without those that were only measured.
std::vector<std::wstring> wordsDrawn;

int WINAPI notesWords(HDC dc, LPCWSTR text, int length, LPRECT place, UINT form) {
    if (!(form & DT_CALCRECT)) wordsDrawn.push_back(text);
    return ::DrawTextW(dc, text, length, place, form);
}

TEST_F(NeverBlockedPreviews, ItsWordsAreTheUsersLanguagesOrBuiltIn) {
    const ui_test::ReplacedImport notes(::GetModuleHandleW(L"kmfc.dll"), "DrawTextW", &notesWords);
    ASSERT_TRUE(notes.isThere());
    const NeverBlocked limit(kShort);
    const auto said = [&] {
        wordsDrawn.clear();
        Pane pane(parent);
        pane.Show(folder / "slow.dwg");
        std::vector<std::wstring> words;
        EXPECT_TRUE(pane.ComesToShow([&] {
            for (const std::wstring& each : wordsDrawn)
                if (words.empty() || words.back() != each) words.push_back(each);
            return words.size() == 2;
        }));
        return words;
    };
    using Words = std::vector<std::wstring>;
    EXPECT_EQ(said(), (Words{L"Reading the preview...", L"The file does not answer."}));
    const Words chinese = {L"正在读取预览...", L"文件没有响应。"};
    {
        const ui_test::InLanguage user(ui_test::kChinese);
        EXPECT_EQ(said(), chinese);
    }
    const ui_test::WithoutStrings strings;
    EXPECT_EQ(said(), chinese);
    previews.Open(L"slow.dwg");
}

TEST_F(NeverBlockedPreviews, WhatIsShownIsReadOnce) {
    const NeverBlocked limit(kLong);
    Pane pane(parent);
    pane.Show(folder / "quick.dwg");
    EXPECT_TRUE(pane.ComesToShowPreview());
    for (int i = 0; i < 3; ++i) {
        pane.Show(folder / "quick.dwg");
        EXPECT_TRUE(pane.ShowsPreview()) << "at once";
    }
    EXPECT_EQ(previews.calls(), 1);
    pane.Show(folder / "other.dwg");
    EXPECT_TRUE(pane.isEmpty) << "not the former one's";
    EXPECT_TRUE(pane.ComesToShowPreview());
    EXPECT_EQ(previews.calls(), 2);
    // Another size is another preview, whichever side changes.
    for (const CSize size : {CSize(150, 120), CSize(150, 110)}) {
        const int before = previews.calls();
        pane.pane.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        pane.Show(folder / "other.dwg");
        EXPECT_TRUE(pane.ComesToShowPreview());
        EXPECT_EQ(previews.calls(), before + 1);
        EXPECT_EQ(previews.room().cx, size.cx);
        EXPECT_EQ(previews.room().cy, size.cy);
    }
}

TEST_F(NeverBlockedPreviews, AFileWithoutPreviewAFolderAndNoFileLeaveThePaneEmpty) {
    const NeverBlocked limit(kLong);
    Pane pane(parent);
    for (const fs::path& path : {folder, folder / "gone.dwg", fs::path()}) {
        pane.Show(path);
        wait(250);
        pane.Look();
        EXPECT_TRUE(pane.isEmpty) << path;
    }
    EXPECT_EQ(previews.calls(), 0);
}

TEST_F(NeverBlockedPreviews, AFileThatDoesNotAnswerInTimeIsGivenUpInWords) {
    const NeverBlocked limit(kShort);
    Pane pane(parent);
    pane.Show(folder / "slow.dwg");
    const auto start = ::GetTickCount64();
    EXPECT_TRUE(pane.ComesToShowWords());
    const CRect reading = pane.inked;
    EXPECT_TRUE(pane.ComesToShow([&] { return pane.ShowsWords() && pane.inked != reading; }))
        << "other words";
    EXPECT_GE(::GetTickCount64() - start, kShort - 50);
    EXPECT_EQ(previews.busy(), 1);
    // What comes late is dropped, and its bitmap with it.
    const CRect givenUp = pane.inked;
    previews.Open(L"slow.dwg");
    EXPECT_TRUE(ui_test::pump_until([&] {
        const HBITMAP late = previews.answered(L"slow.dwg");
        return late != nullptr && ::GetObjectType(late) == 0;
    }));
    wait(100);
    pane.Look();
    EXPECT_EQ(pane.inked, givenUp);
    EXPECT_EQ(pane.pictures, 0);
}

TEST_F(NeverBlockedPreviews, TheWordsAreThoseOfTheResourceLibrary) {
    wchar_t text[100] = {};
    const HMODULE library = ::GetModuleHandleW(L"ktdsres.dll");
    ASSERT_GT(::LoadStringW(library, IDS_PREVIEW_READING, text, 100), 0);
    EXPECT_STREQ(text, L"Reading the preview...");
    ASSERT_GT(::LoadStringW(library, IDS_PREVIEW_NO_ANSWER, text, 100), 0);
    EXPECT_STREQ(text, L"The file does not answer.");
}

TEST_F(NeverBlockedPreviews, ALateAnswerForAFileNoLongerSelectedIsDropped) {
    const NeverBlocked limit(kLong);
    Pane pane(parent);
    pane.Show(folder / "slow.dwg");
    ASSERT_TRUE(ui_test::pump_until([&] { return previews.busy() == 1; }));
    pane.Show(folder / "gone.dwg");
    wait(150);
    previews.Open(L"slow.dwg");
    EXPECT_TRUE(ui_test::pump_until([&] {
        const HBITMAP late = previews.answered(L"slow.dwg");
        return late != nullptr && ::GetObjectType(late) == 0;
    })) << "nobody keeps it";
    wait(100);
    pane.Look();
    EXPECT_TRUE(pane.isEmpty);
}

TEST_F(NeverBlockedPreviews, TheNextFileDoesNotWaitForTheOneBefore) {
    const NeverBlocked limit(kLong);
    Pane pane(parent);
    pane.Show(folder / "slow.dwg");
    ASSERT_TRUE(ui_test::pump_until([&] { return previews.busy() == 1; }));
    pane.Show(folder / "quick.dwg");
    EXPECT_TRUE(pane.ComesToShowPreview());
    EXPECT_EQ(previews.busy(), 1);
    EXPECT_EQ(previews.asked(), (std::vector<std::wstring>{L"slow.dwg", L"quick.dwg"}));
}

TEST_F(NeverBlockedPreviews, TwoPanesReadEachForItself) {
    const NeverBlocked limit(kLong);
    Pane one(parent), two(parent);
    one.Show(folder / "slow.dwg");
    two.Show(folder / "quick.dwg");
    two.pane.BringWindowToTop();
    EXPECT_TRUE(two.ComesToShowPreview());
    EXPECT_EQ(previews.busy(), 1);
    previews.Open(L"slow.dwg");
    one.pane.BringWindowToTop();
    one.pane.Invalidate();
    EXPECT_TRUE(one.ComesToShowPreview());
}

TEST_F(NeverBlockedPreviews, TheBitmapGoesWithThePane) {
    const NeverBlocked limit(kLong);
    {
        Pane pane(parent);
        pane.Show(folder / "quick.dwg");
        EXPECT_TRUE(pane.ComesToShowPreview());
        EXPECT_NE(::GetObjectType(previews.answered(L"quick.dwg")), 0u);
    }
    EXPECT_TRUE(ui_test::pump_until([&] { return ::GetObjectType(previews.answered(L"quick.dwg")) == 0; }));
}

TEST_F(NeverBlockedPreviews, AModuleThatIsReadInStaysUntilItsThreadsHaveEnded) {
    const NeverBlocked limit(kLong);
    using Read = void (*)(HANDLE);
    const HANDLE gate = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const auto load = [] { return ::LoadLibraryW(L"held_modules.dll"); };
    const auto function = [](HMODULE module, const char* name) {
        return reinterpret_cast<void*>(::GetProcAddress(module, name));
    };
    const auto isLoaded = [] { return ::GetModuleHandleW(L"held_modules.dll") != nullptr; };
    HMODULE module = load();
    ASSERT_NE(module, nullptr);
    // The module of the reader itself, which is gone when the module is freed.
    reinterpret_cast<Read>(function(module, "ReadBehind"))(gate);
    ::FreeLibrary(module);
    wait(100);
    EXPECT_TRUE(isLoaded());
    ::SetEvent(gate);
    EXPECT_TRUE(ui_test::pump_until([&] { return !isLoaded(); }));
    // The provider's.
    ::ResetEvent(gate);
    module = load();
    ASSERT_NE(module, nullptr);
    reinterpret_cast<Read>(function(module, "SetGate"))(gate);
    const KtUiThumbnailProvider former =
        KtUiSetThumbnailProvider(reinterpret_cast<KtUiThumbnailProvider>(function(module, "ProvideBehind")));
    {
        Pane pane(parent);
        pane.Show(folder / "quick.dwg");
    }
    KtUiSetThumbnailProvider(former);
    ::FreeLibrary(module);
    wait(100);
    EXPECT_TRUE(isLoaded());
    ::SetEvent(gate);
    EXPECT_TRUE(ui_test::pump_until([&] { return !isLoaded(); }));
    ::CloseHandle(gate);
}

namespace {

class NeverBlockedDialog : public ShownTest {
protected:
    NeverBlockedDialog() {
        slowFile = folder + L"slow.dwg";
        ::CloseHandle(::CreateFileW(slowFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        dialog.SetPreviewVisible(1);
    }
    ~NeverBlockedDialog() override { ::DeleteFileW(slowFile); }
    static CThumbnailCtrl* preview(HWND window) {
        return dynamic_cast<CThumbnailCtrl*>(CWnd::FromHandlePermanent(own(window, 57022)));
    }
    /// Has the preview show `path` as at a selection.
    static void show(HWND window, const CString& path) {
        preview(window)->m_path = path;
        preview(window)->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    CString slowFile;
    SlowPreviews previews;
};

}  // namespace

TEST_F(NeverBlockedDialog, ClosesAtOnceWhileAPreviewIsRead) {
    const NeverBlocked limit(kLong);
    ULONGLONG pressed = 0;
    run([&](HWND window) {
        ASSERT_NE(preview(window), nullptr);
        show(window, slowFile);
        ASSERT_TRUE(ui_test::pump_until([&] { return previews.busy() == 1; }));
        pressed = ::GetTickCount64();
        press(window, IDCANCEL);
    });
    EXPECT_LT(::GetTickCount64() - pressed, 1500u);
    EXPECT_EQ(previews.busy(), 1);
    // Its answer is nobody's, and is freed.
    previews.Open(L"slow.dwg");
    EXPECT_TRUE(ui_test::pump_until([&] {
        const HBITMAP late = previews.answered(L"slow.dwg");
        return late != nullptr && ::GetObjectType(late) == 0;
    }));
}

TEST_F(NeverBlockedDialog, TheNextDialogReadsAfreshWhileTheFormerOnesThreadIsStillBusy) {
    const NeverBlocked limit(kLong);
    run([&](HWND window) {
        show(window, slowFile);
        EXPECT_TRUE(ui_test::pump_until([&] { return previews.busy() == 1; }));
        press(window, IDCANCEL);
    });
    bool isShown = false;
    run([&](HWND window) {
        show(window, folder + L"one.dwg");
        EXPECT_TRUE(ui_test::pump_until([&] { return previews.calls() == 2; }));
        CThumbnailCtrl& pane = *preview(window);
        isShown = ui_test::pump_until([&] {
            CRect area;
            pane.GetClientRect(&area);
            CClientDC dc(&pane);
            return dc.GetPixel(area.CenterPoint().x, area.CenterPoint().y) == SlowPreviews::kColor;
        });
        press(window, IDCANCEL);
    });
    EXPECT_TRUE(isShown);
    EXPECT_EQ(previews.busy(), 1);
}
