// How a tip window is made: its class, its styles, and what happens when either can't be had.
#include "tip_fixture.h"

namespace {

constexpr const char* kRegisterClass = "_Z16AfxRegisterClassP12tagWNDCLASSW";

int registrations = 0;
WNDCLASSW asked = {};

BOOL RefuseClass(WNDCLASSW* windowClass) {
    ++registrations;
    asked = *windowClass;
    return FALSE;
}

BOOL WINAPI NoClassInfo(HINSTANCE, LPCWSTR, WNDCLASSW*) { return FALSE; }

HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

void destroyTip(CWnd& tip) {
    if (tip.m_hWnd) tip.DestroyWindow();
}

}  // namespace

TEST(TipCreation, BeginsWithoutControlOwnerAndText) {
    ui_test::WatchedTip<CKbUiTextTip> tip;
    EXPECT_EQ(tip.GetUseText(), 0);
    EXPECT_EQ(tip.Owner(), nullptr);
    EXPECT_EQ(tip.m_timer, 0u);
    int width = 7, height = 7;
    tip.GetTextExtent(L"text", width, height);
    EXPECT_EQ(width, 0) << "no owner, no device context";
    EXPECT_EQ(height, 0);
}

TEST(TipCreation, MakesAHiddenEmptyTopmostPopupOfTheOwner) {
    ui_test::ParentWindow parent;
    CKbUiTextTip tip;
    EXPECT_TRUE(tip.Create(&parent));
    EXPECT_EQ(tip.GetExStyle(), 0x88u);
    EXPECT_EQ(tip.GetStyle() & (WS_POPUP | WS_CHILD | WS_VISIBLE | WS_CAPTION | WS_BORDER),
              static_cast<DWORD>(WS_POPUP));
    EXPECT_EQ(tip.GetStyle() & 0xFFFF, 0u) << "no style of a class";
    EXPECT_EQ(::GetWindow(tip.m_hWnd, GW_OWNER), parent.m_hWnd);
    CRect rect;
    tip.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), CSize(0, 0));
    EXPECT_TRUE(ui_test::text_of(tip.m_hWnd).IsEmpty());
    EXPECT_EQ(tip.Owner(), &parent);
    destroyTip(tip);
}

TEST(TipCreation, ClassSavesBitsUnderTheArrowAndHasNothingElse) {
    ui_test::ParentWindow parent;
    CKbUiTextTip tip;
    tip.Create(&parent);
    WNDCLASSW found = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), L"CKbUiTipWindow", &found));
    EXPECT_EQ(found.style, 0x800u);
    EXPECT_EQ(found.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(found.hIcon, nullptr);
    EXPECT_EQ(found.hbrBackground, nullptr);
    EXPECT_EQ(found.lpszMenuName, nullptr);
    EXPECT_EQ(found.cbWndExtra, 0);
    destroyTip(tip);
}

TEST(TipCreation, RegistersItsClassOnlyWhereItIsMissing) {
    ui_test::ParentWindow parent;
    CKbUiTextTip first;
    first.Create(&parent);
    const ui_test::ReplacedImport refuse(toolkit(), kRegisterClass, &RefuseClass);
    ASSERT_TRUE(refuse.isThere());
    registrations = 0;
    CKbUiTextTip second;
    EXPECT_TRUE(second.Create(&parent));
    EXPECT_EQ(registrations, 0);
    destroyTip(first);
    destroyTip(second);
}

TEST(TipCreation, ThrowsTheResourceExceptionWithoutItsClass) {
    ui_test::ParentWindow parent;
    const ui_test::ReplacedImport missing(toolkit(), "GetClassInfoW", &NoClassInfo);
    const ui_test::ReplacedImport refuse(toolkit(), kRegisterClass, &RefuseClass);
    registrations = 0;
    CKbUiTextTip tip;
    bool isThrown = false;
    try {
        tip.Create(&parent);
    } catch (CResourceException* failure) {
        failure->Delete();
        isThrown = true;
    }
    EXPECT_TRUE(isThrown);
    EXPECT_EQ(registrations, 1);
    EXPECT_EQ(asked.style, 0x800u);
    EXPECT_EQ(asked.hInstance, AfxGetInstanceHandle());
    EXPECT_EQ(reinterpret_cast<void*>(asked.lpfnWndProc), reinterpret_cast<void*>(&::DefWindowProcW));
    EXPECT_EQ(asked.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_STREQ(asked.lpszClassName, L"CKbUiTipWindow");
    EXPECT_EQ(asked.hIcon, nullptr);
    EXPECT_EQ(asked.hbrBackground, nullptr);
    EXPECT_EQ(asked.lpszMenuName, nullptr);
    EXPECT_EQ(tip.Owner(), nullptr);
}

TEST(TipCreation, AWindowThatCannotBeMadeHasNoOwner) {
    CWnd nowhere;
    nowhere.m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0001));
    CKbUiTextTip tip;
    EXPECT_FALSE(tip.Create(&nowhere));
    EXPECT_EQ(tip.Owner(), nullptr);
    nowhere.m_hWnd = nullptr;
}
