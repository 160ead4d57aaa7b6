// What assistive programs learn of a search box, of its field and of its buttons.
#include <ktui/input/kbui_search_box.h>

#include "accessible_object.h"
#include "recording_holder.h"
#include "replaced_import.h"
#include "test_host.h"

namespace {

using ui_test::AccessibleObject;

constexpr UINT kClear = 1125, kSearch = 1126, kEditor = 1127;

int WINAPI NoString(HINSTANCE, UINT, LPWSTR, int) { return 0; }

class Box : public CKbUiSearchBox {
public:
    int searches = 0;
    void SearchButtonClicked() override { ++searches; }
    HWND inside(UINT id) const { return ::GetDlgItem(m_hWnd, static_cast<int>(id)); }
    void type(const wchar_t* text) { ::SetWindowTextW(inside(kEditor), text); }
};

struct SearchBoxAccessible : ::testing::Test {
    SearchBoxAccessible() {
        ::CoInitialize(nullptr);
        box.SetNotification(L"Search layers");
        box.SetDefaultText(L"name");
        box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 34), &holder, 38);
    }
    ~SearchBoxAccessible() override {
        box.DestroyWindow();
        ::CoUninitialize();
    }
    ui_test::TestHost host;
    ui_test::RecordingHolder holder;
    Box box;
};

}  // namespace

TEST_F(SearchBoxAccessible, TheFieldIsNamedByItsPromptAndHasTheSearchedTextAsItsValue) {
    for (const HWND window : {box.m_hWnd, box.inside(kEditor)}) {
        const AccessibleObject object(window);
        EXPECT_EQ(object.name(), L"Search layers");
        EXPECT_EQ(object.role(), ROLE_SYSTEM_TEXT);
        EXPECT_EQ(object.value(), L"") << "a prompt is no value";
        EXPECT_EQ(object.action(), L"");
        EXPECT_EQ(object.act(), DISP_E_MEMBERNOTFOUND);
        box.type(L"Walls");
        EXPECT_EQ(object.name(), L"Search layers");
        EXPECT_EQ(object.value(), L"Walls");
        box.type(L"name");
        EXPECT_EQ(object.value(), L"") << "the editor's own prompt is none either";
    }
}

TEST_F(SearchBoxAccessible, TheButtonsAreNamedByWhatTheyDo) {
    const AccessibleObject search(box.inside(kSearch)), clear(box.inside(kClear));
    EXPECT_EQ(search.name(), L"Search");
    EXPECT_EQ(clear.name(), L"Clear");
    for (const AccessibleObject* each : {&search, &clear}) {
        EXPECT_EQ(each->role(), ROLE_SYSTEM_PUSHBUTTON);
        EXPECT_EQ(each->action(), L"Press");
        EXPECT_EQ(each->value(), L"");
        EXPECT_EQ(each->state() & STATE_SYSTEM_PRESSED, 0);
    }
    EXPECT_EQ(search.state() & STATE_SYSTEM_INVISIBLE, 0);
    EXPECT_NE(clear.state() & STATE_SYSTEM_INVISIBLE, 0);
    ::SendMessageW(box.inside(kSearch), BM_SETSTATE, TRUE, 0);
    EXPECT_NE(search.state() & STATE_SYSTEM_PRESSED, 0);
}

TEST_F(SearchBoxAccessible, WithoutTheResourceLibraryTheButtonsHaveChineseNames) {
    const ui_test::ReplacedImport strings(::GetModuleHandleW(L"ktui.dll"), "LoadStringW", &NoString);
    ASSERT_TRUE(strings.isThere());
    const AccessibleObject search(box.inside(kSearch)), clear(box.inside(kClear));
    EXPECT_EQ(search.name(), L"查找");
    EXPECT_EQ(clear.name(), L"清除");
    EXPECT_EQ(search.action(), L"按下");
}

TEST_F(SearchBoxAccessible, TheirActionsAreClicks) {
    box.type(L"Walls");
    const AccessibleObject search(box.inside(kSearch)), clear(box.inside(kClear));
    EXPECT_EQ(search.act(), S_OK);
    EXPECT_EQ(clear.act(), S_OK);
    EXPECT_EQ(box.searches, 0) << "a caller does not wait for what the click does";
    EXPECT_FALSE(box.IsEditEmpty());
    EXPECT_TRUE(ui_test::pump_until([&] { return box.searches == 1 && box.IsEditEmpty(); }));
}
