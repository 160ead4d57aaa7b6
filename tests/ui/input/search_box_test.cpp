#include <ktui/input/kbui_search_box.h>

#include <algorithm>

#include "canvas.h"
#include "fake_resolution.h"
#include "recording_holder.h"
#include "scheme_in_force.h"
#include "sent_messages.h"
#include "test_host.h"

namespace {

constexpr UINT kId = 38;
constexpr UINT kClear = 1125, kSearch = 1126, kEditor = 1127;

/// Opens what is protected and counts what is clicked and changed.
class Box : public CKbUiSearchBox {
public:
    using CKbUiSearchBox::m_clearButton;
    using CKbUiSearchBox::m_defaultText;
    using CKbUiSearchBox::m_editor;
    using CKbUiSearchBox::m_notification;
    using CKbUiSearchBox::m_searchButton;

    int clears = 0, searches = 0, changes = 0;

    void ClearButtonClicked() override {
        ++clears;
        CKbUiSearchBox::ClearButtonClicked();
    }
    void SearchButtonClicked() override {
        ++searches;
        CKbUiSearchBox::SearchButtonClicked();
    }
    void EditChanged() override {
        ++changes;
        CKbUiSearchBox::EditChanged();
    }
    HWND inside(UINT id) const { return ::GetDlgItem(m_hWnd, static_cast<int>(id)); }
    bool shows(UINT id) const { return (::GetWindowLongW(inside(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    CString text() const { return ui_test::text_of(m_hWnd); }
    CString typed() const { return ui_test::text_of(m_editor->m_hWnd); }
    CRect placeOf(UINT id) const {
        CRect place;
        ::GetWindowRect(inside(id), &place);
        ScreenToClient(&place);
        return place;
    }
    CRect client() const {
        CRect all;
        GetClientRect(&all);
        return all;
    }
    void click(UINT id) { ::SendMessageW(inside(id), BM_CLICK, 0, 0); }
};

struct SearchBox : ::testing::Test {
    void make(int width = 160) {
        box.SetNotification(L"Search layers");
        box.SetDefaultText(L"name");
        ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 10 + width, 34), &holder, kId));
    }
    void type(const wchar_t* text) { box.m_editor->SetWindowText(text); }

    ui_test::TestHost host;
    ui_test::RecordingHolder holder;
    Box box;
};

}  // namespace

TEST_F(SearchBox, BeginsWithThePromptsAndTheMagnifier) {
    EXPECT_STREQ(Box().m_notification, L"Search") << "of the resource library";
    EXPECT_STREQ(Box().m_defaultText, L"");
    make();
    EXPECT_STREQ(box.text(), L"Search layers");
    EXPECT_STREQ(box.typed(), L"name");
    EXPECT_TRUE(box.shows(kSearch));
    EXPECT_FALSE(box.shows(kClear));
    EXPECT_FALSE(box.shows(kEditor));
    EXPECT_TRUE(box.IsEditEmpty());
}

TEST_F(SearchBox, IsASunkenEditThatScrollsWithItsControlsInside) {
    make();
    EXPECT_NE(box.GetStyle() & ES_AUTOHSCROLL, 0u);
    EXPECT_NE(box.GetExStyle() & WS_EX_CLIENTEDGE, 0u);
    constexpr LONG kAsked = WS_CHILD | WS_VISIBLE | 0xFFFF;
    EXPECT_EQ(::GetWindowLongW(box.inside(kEditor), GWL_STYLE) & kAsked, 0x40000080);
    EXPECT_EQ(::GetWindowLongW(box.inside(kSearch), GWL_STYLE) & kAsked, 0x5000000B);
    EXPECT_EQ(::GetWindowLongW(box.inside(kClear), GWL_STYLE) & kAsked, 0x4000000B);
    EXPECT_EQ(box.inside(kEditor), box.m_editor->m_hWnd);
    EXPECT_EQ(box.inside(kSearch), box.m_searchButton->m_hWnd);
    EXPECT_EQ(box.inside(kClear), box.m_clearButton->m_hWnd);
}

TEST_F(SearchBox, TheButtonIsASquareAtTheRightBehindAPixel) {
    make();
    const CRect client = box.client();
    const CRect editor(0, 0, client.right - client.bottom, client.bottom);
    const CRect button(editor.right + 1, 0, client.right, client.bottom);
    ASSERT_GT(editor.Width(), 50);
    EXPECT_EQ(box.placeOf(kEditor), editor);
    EXPECT_EQ(box.placeOf(kSearch), button);
    EXPECT_EQ(box.placeOf(kClear), button);
}

TEST_F(SearchBox, WhatIsInsideFollowsItsSize) {
    make();
    box.SetWindowPos(nullptr, 0, 0, 240, 30, SWP_NOMOVE | SWP_NOZORDER);
    const CRect client = box.client();
    EXPECT_EQ(box.placeOf(kEditor), CRect(0, 0, client.right - client.bottom, client.bottom));
    const CRect button(client.right - client.bottom + 1, 0, client.right, client.bottom);
    EXPECT_EQ(box.placeOf(kSearch), button);
    EXPECT_EQ(box.placeOf(kClear), button);
}

TEST_F(SearchBox, WithoutAWidthNothingIsMadeThenOrLater) {
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 10, 34), &holder, kId));
    EXPECT_EQ(box.m_editor, nullptr);
    box.SetWindowPos(nullptr, 0, 0, 160, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(box.m_editor, nullptr);
    EXPECT_EQ(box.inside(kSearch), nullptr);
    box.ClearEditor();
    box.SetFocus();
    EXPECT_EQ(::GetFocus(), box.m_hWnd);
}

TEST_F(SearchBox, NoWiderThanItsSquareItHasNothingInside) {
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 34, 34), &holder, kId));
    ASSERT_EQ(box.client().Width(), box.client().Height());
    EXPECT_EQ(box.m_editor, nullptr);
    EXPECT_EQ(box.m_searchButton, nullptr);
}

TEST_F(SearchBox, AnEditOfADialogBecomesOneWhenItIsTakenOver) {
    const HWND window = ::CreateWindowExW(0, L"EDIT", L"old", WS_CHILD | WS_VISIBLE, 10, 10, 160, 24,
                                          holder.m_hWnd, reinterpret_cast<HMENU>(kId), nullptr, nullptr);
    ASSERT_TRUE(box.SubclassWindow(window));
    ASSERT_NE(box.m_editor, nullptr);
    EXPECT_STREQ(box.text(), L"Search");
    EXPECT_TRUE(box.shows(kSearch));
}

TEST_F(SearchBox, TypingShowsTheTextAndTheCross) {
    make();
    holder.changes = 0;
    type(L"wall");
    EXPECT_EQ(box.changes, 2) << "the first was the prompt at the start";
    EXPECT_STREQ(box.text(), L"wall");
    EXPECT_FALSE(box.IsEditEmpty());
    EXPECT_FALSE(box.shows(kSearch));
    EXPECT_TRUE(box.shows(kClear));
    EXPECT_EQ(holder.changes, 1) << "the holder hears of the control's own text";
    type(L"");
    EXPECT_STREQ(box.text(), L"Search layers");
    EXPECT_TRUE(box.shows(kSearch));
    EXPECT_FALSE(box.shows(kClear));
    type(L"wall");
    type(L"name");
    EXPECT_STREQ(box.text(), L"Search layers") << "the inner prompt is no text";
    EXPECT_TRUE(box.IsEditEmpty());
}

TEST_F(SearchBox, TextEqualToAPromptCountsAsNone) {
    make();
    type(L"Search layers");
    EXPECT_TRUE(box.IsEditEmpty());
    EXPECT_TRUE(box.shows(kSearch));
    for (const auto& [text, empty] : {std::pair<const wchar_t*, BOOL>{L"", TRUE},
                                      {L"Search layers", TRUE},
                                      {L"name", TRUE},
                                      {L"Name", FALSE},
                                      {L"wall", FALSE}}) {
        box.SetWindowText(text);
        EXPECT_EQ(box.IsEditEmpty(), empty) << text;
    }
}

TEST_F(SearchBox, TheCrossClearsAndTheMagnifierIsTheClients) {
    make();
    type(L"wall");
    box.click(kClear);
    EXPECT_EQ(box.clears, 1);
    EXPECT_STREQ(box.typed(), L"name");
    EXPECT_STREQ(box.text(), L"Search layers");
    EXPECT_TRUE(box.shows(kSearch));
    EXPECT_FALSE(box.shows(kClear));
    box.click(kSearch);
    EXPECT_EQ(box.searches, 1);
    EXPECT_EQ(box.clears, 1);
}

TEST_F(SearchBox, ClearingShowsTheMagnifierWhateverWasThere) {
    make();
    box.m_searchButton->ShowWindow(SW_HIDE);
    box.m_clearButton->ShowWindow(SW_SHOW);
    box.ClearEditor();
    EXPECT_TRUE(box.shows(kSearch));
    EXPECT_FALSE(box.shows(kClear));
}

TEST_F(SearchBox, ADefaultTextSetLaterShowsAfterTheNextClear) {
    make();
    box.SetDefaultText(L"other");
    EXPECT_STREQ(box.typed(), L"name");
    box.ClearEditor();
    EXPECT_STREQ(box.typed(), L"other");
    box.SetDefaultText(L"third");
    box.SetFocus();
    type(L"");
    EXPECT_STREQ(box.typed(), L"");
    holder.SetFocus();
    EXPECT_STREQ(box.typed(), L"third") << "or after a loss of the focus";
}

TEST_F(SearchBox, FocusGoesToTheEditorInTheControlsFont) {
    make();
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    box.SetFont(&font);
    box.SetFocus();
    EXPECT_EQ(::GetFocus(), box.m_editor->m_hWnd);
    EXPECT_TRUE(box.shows(kEditor));
    EXPECT_EQ(box.m_editor->SendMessage(WM_GETFONT), reinterpret_cast<LRESULT>(font.m_hObject));
    int first = -1, last = -1;
    box.m_editor->GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 4) << "a prompt is selected whole";
    type(L"walls");
    holder.SetFocus();
    EXPECT_TRUE(box.shows(kEditor)) << "with a text it stays";
    box.SetFocus();
    box.m_editor->GetSel(first, last);
    EXPECT_EQ(first, 5);
    EXPECT_EQ(last, 5) << "a text has the caret at its end";
}

TEST_F(SearchBox, AnEmptyEditorGetsItsPromptAndHidesWhenItLosesTheFocus) {
    make();
    box.SetFocus();
    type(L"");
    holder.SetFocus();
    EXPECT_STREQ(box.typed(), L"name");
    EXPECT_FALSE(box.shows(kEditor));
    EXPECT_STREQ(box.text(), L"Search layers");
}

TEST_F(SearchBox, TheHolderHearsThatItGotTheFocus) {
    class Listener : public ui_test::ParentWindow {
    public:
        int focuses = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            const BOOL handled = ParentWindow::OnCommand(wParam, lParam);
            if (HIWORD(wParam) == EN_SETFOCUS && !handled) ++focuses;
            return handled;
        }
    } listener;
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 34), &listener, kId));
    box.SetFocus();
    EXPECT_EQ(listener.focuses, 1);
    box.DestroyWindow();
}

TEST_F(SearchBox, EndsWithItsWindow) {
    make();
    const HWND editor = box.m_editor->m_hWnd, search = box.m_searchButton->m_hWnd,
               clear = box.m_clearButton->m_hWnd;
    box.DestroyWindow();
    EXPECT_EQ(box.m_editor, nullptr);
    EXPECT_EQ(box.m_searchButton, nullptr);
    EXPECT_EQ(box.m_clearButton, nullptr);
    for (const HWND gone : {editor, search, clear}) EXPECT_FALSE(::IsWindow(gone));
    EXPECT_EQ(box.m_hWnd, nullptr);
}

namespace {

/// Notes how the platform's procedure is asked.
std::vector<UINT> platformMessages;
WNDPROC platformEdit = nullptr;

LRESULT CALLBACK notePlatform(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    platformMessages.push_back(message);
    return ::CallWindowProcW(platformEdit, window, message, wParam, lParam);
}

}  // namespace

TEST_F(SearchBox, TheDestructionDoesNotGoOnToThePlatform) {
    const HWND window = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 160, 24,
                                          holder.m_hWnd, reinterpret_cast<HMENU>(kId), nullptr, nullptr);
    platformEdit = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&notePlatform)));
    box.SubclassWindow(window);
    platformMessages.clear();
    box.DestroyWindow();
    EXPECT_EQ(std::count(platformMessages.begin(), platformMessages.end(), UINT{WM_DESTROY}), 0);
    EXPECT_EQ(std::count(platformMessages.begin(), platformMessages.end(), UINT{WM_NCDESTROY}), 1);
}

TEST_F(SearchBox, ItsPicturesComeFromTheLibraryItself) {
    const HINSTANCE before = AfxGetResourceHandle();
    host.pushes = host.pops = 0;
    make();
    EXPECT_EQ(host.pushes, 2);
    EXPECT_EQ(host.pops, 2);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

namespace {

/// Draws the library's picture `name` as the rule has it: in the middle, in two colours.
void drawExpected(ui_test::Canvas& canvas, const wchar_t* name, COLORREF ink, COLORREF paper) {
    const CRect area(0, 0, 18, 18);
    canvas.dc.FillSolidRect(&area, paper);
    const HBITMAP picture = ::LoadBitmapW(::GetModuleHandleW(L"ktui.dll"), name);
    ASSERT_NE(picture, nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&canvas.dc);
    const HGDIOBJ former = ::SelectObject(memory.m_hDC, picture);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            canvas.dc.SetPixel(x + 1, y + 1, memory.GetPixel(x, y) == RGB(255, 255, 255) ? paper : ink);
    ::SelectObject(memory.m_hDC, former);
    ::DeleteObject(picture);
}

}  // namespace

TEST_F(SearchBox, PicturesStandInTheMiddleInTheColoursOfTextsAndWindows) {
    const ui_test::SchemeInForce colors(FALSE);
    make();
    for (const auto& [id, name] : {std::pair<UINT, const wchar_t*>{kSearch, L"IDB_SEARCHBOX_SEARCH"},
                                   {kClear, L"IDB_SEARCHBOX_CLEAR"}}) {
        ui_test::Canvas canvas(18, 18, RGB(1, 2, 3)), expected(18, 18, RGB(1, 2, 3));
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.CtlID = id;
        item.hwndItem = box.inside(id);
        item.hDC = canvas.dc.m_hDC;
        item.rcItem = CRect(0, 0, 18, 18);
        box.SendMessage(WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
        drawExpected(expected, name, ui_test::scheme::kWindowText, ui_test::scheme::kWindow);
        EXPECT_TRUE(canvas == expected) << id;
        EXPECT_GT(canvas.count(ui_test::scheme::kWindowText), 20);
    }
}

TEST_F(SearchBox, CannotBeMadeWithoutAParent) {
    EXPECT_FALSE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 34), nullptr, kId));
    EXPECT_EQ(box.m_hWnd, nullptr);
    EXPECT_EQ(box.m_editor, nullptr);
}

TEST_F(SearchBox, OnePixelOfRoomIsEnoughForTheEditor) {
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 35, 34), &holder, kId));
    ASSERT_EQ(box.client().Width(), box.client().Height() + 1);
    ASSERT_NE(box.m_editor, nullptr);
    EXPECT_EQ(box.placeOf(kEditor).Width(), 1);
}

TEST_F(SearchBox, ItsStylesAreThoseAskedForAndTwoMore) {
    make();
    EXPECT_EQ(box.GetStyle() & 0xFFFF, DWORD{ES_AUTOHSCROLL});
    EXPECT_EQ(box.GetStyle() & 0xFFFF0000, DWORD{WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN});
    for (const UINT id : {kClear, kSearch}) EXPECT_STREQ(ui_test::text_of(box.inside(id)), L"");
}

TEST_F(SearchBox, TheEditorGetsItsPromptBeforeTheControl) {
    std::vector<CString> texts;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == WM_SETTEXT) texts.emplace_back(reinterpret_cast<LPCWSTR>(message.lParam));
    });
    make();
    ASSERT_GE(texts.size(), 2u);
    EXPECT_STREQ(texts[0], L"name");
    for (size_t i = 1; i < texts.size(); ++i) EXPECT_STREQ(texts[i], L"Search layers");
}

TEST_F(SearchBox, APromptIsSelectedByAskingForAll) {
    make();
    std::vector<std::pair<WPARAM, LPARAM>> selections;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == EM_SETSEL && message.hwnd == box.m_editor->m_hWnd)
            selections.emplace_back(message.wParam, message.lParam);
    });
    box.SetFocus();
    ASSERT_FALSE(selections.empty());
    EXPECT_EQ(selections[0].first, 0u);
    EXPECT_EQ(selections[0].second, -1);
}

TEST_F(SearchBox, ClearingChangesTheButtonsThoughNobodyListensToTheEditor) {
    class Deaf : public Box {
        void EditChanged() override {}
    } deaf;
    ASSERT_TRUE(deaf.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 34), &holder, kId));
    deaf.SetWindowText(L"wall");
    deaf.m_searchButton->ShowWindow(SW_HIDE);
    deaf.m_clearButton->ShowWindow(SW_SHOW);
    ASSERT_TRUE(deaf.shows(kClear));
    deaf.ClearEditor();
    EXPECT_TRUE(deaf.shows(kSearch));
    EXPECT_FALSE(deaf.shows(kClear));
    deaf.DestroyWindow();
}

TEST_F(SearchBox, PicturesComeInTheSizeOfTheResolution) {
    for (const UINT id : {kSearch, kClear}) {
        int inked[2] = {};
        for (const UINT dpi : {96u, 144u}) {
            const ui_test::FakeResolution resolution(dpi);
            Box sized;
            ASSERT_TRUE(sized.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 34), &holder, kId));
            ui_test::Canvas canvas(40, 40, RGB(1, 2, 3));
            DRAWITEMSTRUCT item = {};
            item.CtlType = ODT_BUTTON;
            item.CtlID = id;
            item.hwndItem = sized.inside(id);
            item.hDC = canvas.dc.m_hDC;
            item.rcItem = CRect(0, 0, 40, 40);
            sized.SendMessage(WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
            inked[dpi == 144] = canvas.count(::GetSysColor(COLOR_WINDOWTEXT));
            sized.DestroyWindow();
        }
        EXPECT_GT(inked[0], 20) << id;
        EXPECT_GT(inked[1], inked[0] * 5 / 4) << id;
    }
}

TEST_F(SearchBox, DrawingLeavesTheColoursOfTheDeviceContext) {
    make();
    ui_test::Canvas canvas(18, 18);
    canvas.dc.SetBkColor(RGB(1, 2, 3));
    canvas.dc.SetTextColor(RGB(4, 5, 6));
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = kSearch;
    item.hwndItem = box.inside(kSearch);
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(0, 0, 18, 18);
    box.SendMessage(WM_DRAWITEM, kSearch, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(4, 5, 6));
    EXPECT_EQ(canvas.dc.GetBkColor(), RGB(1, 2, 3));
}
