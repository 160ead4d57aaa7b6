// A dialog with each of the buttons made, painted, described and destroyed a thousand times.
#include <ktui/ktui.h>

#include "accessible_object.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

const CRect kPlace(10, 10, 60, 34);
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON;

/// Draws a button with each state on a bitmap.
void paint(CKbUiOwnerDrawButton& button) {
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, kPlace.Width(), kPlace.Height());
    CBitmap* former = dc.SelectObject(&bitmap);
    for (const UINT state : {0, ODS_DISABLED, ODS_FOCUS | ODS_DEFAULT, ODS_SELECTED}) {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.itemState = state;
        item.hwndItem = button.m_hWnd;
        item.hDC = dc.m_hDC;
        item.rcItem = CRect(CPoint(0, 0), kPlace.Size());
        button.DrawItem(&item);
    }
    dc.SelectObject(former);
}

/// Has the system hand out its own object of a window, the way a control hands out one of its own.
void describe(HWND button) {
    IAccessible* standard = nullptr;
    ASSERT_EQ(::CreateStdAccessibleObject(button, OBJID_CLIENT, __uuidof(IAccessible),
                                          reinterpret_cast<void**>(&standard)),
              S_OK);
    const LRESULT handed = ::LresultFromObject(__uuidof(IAccessible), 0, standard);
    IAccessible* taken = nullptr;
    ASSERT_EQ(::ObjectFromLresult(handed, __uuidof(IAccessible), 0, reinterpret_cast<void**>(&taken)), S_OK);
    taken->Release();
    standard->Release();
}

/// Heap blocks that the system keeps for as many buttons of its own.
size_t growth_of_bare_buttons(CWnd& parent, int count) {
    return heap_growth([&parent, count] {
        for (int i = 0; i < count; ++i) {
            const HWND button = ::CreateWindowExW(0, L"BUTTON", L"text", kStyle, 10, 10, 50, 24,
                                                  parent.m_hWnd, nullptr, nullptr, nullptr);
            describe(button);
            ::DestroyWindow(button);
        }
        ui_test::pump();
    });
}

class ButtonLeaks : public leaks::Leaks {
protected:
    ButtonLeaks() { ::CoInitialize(nullptr); }
    ~ButtonLeaks() override { ::CoUninitialize(); }
};

TEST_F(ButtonLeaks, AThousandOfEachLeaveNothing) {
    constexpr int kKinds = 8;
    const size_t systemGrowth = growth_of_bare_buttons(parent, kKinds);
    int loaded = 0;
    expect_no_growth(
        [&] {
            CKtUiOwnerDrawButton plain;
            CKtUiBitmapButton bitmap;
            CKtUiToolButton tool;
            CKtUiBitmapStatic picture;
            CKtUiDropSite site;
            CKtUiPickButton pick;
            CKtUiSelectButton select;
            CKbUiTrackButton track;
            CKbUiOwnerDrawButton* const all[kKinds] = {&plain, &bitmap, &tool,   &picture,
                                                       &site,  &pick,   &select, &track};
            for (CKbUiOwnerDrawButton* each : all) {
                ASSERT_TRUE(each->Create(L"WARNINGBMP|Caption", kStyle, kPlace, &parent, 81));
                loaded += each->AutoLoad();
                each->StartTimer(USER_TIMER_MAXIMUM);
                each->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
                each->SendMessage(WM_THEMECHANGED);
                paint(*each);
                EXPECT_FALSE(ui_test::AccessibleObject(each->m_hWnd).name().empty());
                each->DestroyWindow();
            }
            ui_test::pump();
        },
        systemGrowth);
    EXPECT_EQ(loaded, 6 * (kTimes + kWarmUp));
}

}  // namespace
