// A menu bar whose menus open and close, that docks, floats, shows other menus and goes, and a toolbar whose
// menu for more opens, a thousand times.
#include <afxcontrolbars.h>
#include <oleacc.h>

#include "leak_growth.h"
#include "ui_test.h"

namespace {

using namespace leaks;

/// Closes each menu as it opens.
class ClosingFrame : public CFrameWndEx {
public:
    HWND owner = nullptr;
    int opened = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            ++opened;
            ::PostMessageW(owner, WM_KEYDOWN, VK_ESCAPE, 0);
        }
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

HMENU menu_of(std::initializer_list<const wchar_t*> items) {
    HMENU const menu = ::CreateMenu();
    for (const wchar_t* const item : items) {
        HMENU const popup = ::CreatePopupMenu();
        ::AppendMenuW(popup, MF_STRING, 2001, L"&One");
        ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), item);
    }
    return menu;
}

class MenuBarThatStays : public ::testing::Test {
protected:
    MenuBarThatStays() : frame(new ClosingFrame) {
        EXPECT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 620, 520)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        ::SetMenu(frame->m_hWnd, menu_of({L"&File", L"&Edit"}));
        AfxGetApp()->m_pMainWnd = frame;
        make();
    }
    ~MenuBarThatStays() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    void make() {
        EXPECT_TRUE(bar.Create(frame));
        frame->owner = bar.m_hWnd;
        bar.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&bar);
    }

    ClosingFrame* frame;
    CMFCMenuBar bar;
};

}  // namespace

TEST_F(MenuBarThatStays, AThousandTimesOpenedAndClosedLeavesNothing) {
    expect_no_growth([&] {
        bar.open_by_letter(L'e');
        bar.toggle_focus();
        ui_test::pump();
    });
    EXPECT_EQ(frame->opened, kTimes + kWarmUp);
}

TEST_F(MenuBarThatStays, AThousandTimesDockedAndFloatedLeavesNothing) {
    int floated = 0;
    expect_no_growth([&] {
        bar.FloatPane(CRect(50, 50, 50, 50), DM_UNKNOWN, false);
        floated += bar.IsFloating() ? 1 : 0;
        frame->DockPane(&bar, AFX_IDW_DOCKBAR_LEFT);
        frame->DockPane(&bar, AFX_IDW_DOCKBAR_TOP);
        ui_test::pump();
    });
    EXPECT_EQ(floated, kTimes + kWarmUp);
}

TEST_F(MenuBarThatStays, AThousandTimesMadeAndFilledLeavesNothing) {
    HMENU const other = menu_of({L"&Other"});
    expect_no_growth([&] {
        bar.CreateFromMenu(other);
        bar.CreateFromMenu(bar.GetDefaultMenu());
        bar.DestroyWindow();
        make();
        ui_test::pump();
    });
    ::DestroyMenu(other);
}

/// Asks for the name of the first part of a window, as an assistive program does.
bool is_named(HWND window) {
    IAccessible* object = nullptr;
    if (::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                     reinterpret_cast<void**>(&object)) != S_OK)
        return false;
    VARIANT first = {};
    first.vt = VT_I4;
    first.lVal = 1;
    BSTR name = nullptr;
    object->get_accName(first, &name);
    const bool named = name != nullptr;
    ::SysFreeString(name);
    object->Release();
    return named;
}

/// A window that answers with the system's own object.
class BareWindow : public ui_test::ParentWindow {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        IAccessible* object = nullptr;
        if (message != WM_GETOBJECT || static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT) ||
            FAILED(::CreateStdAccessibleObject(m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                               reinterpret_cast<void**>(&object))))
            return CWnd::WindowProc(message, wParam, lParam);
        const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
        object->Release();
        return answer;
    }
};

TEST_F(MenuBarThatStays, AThousandTimesToldToAssistiveProgramsLeavesNothing) {
    ::CoInitialize(nullptr);
    int named = 0;
    const BareWindow bare;
    const size_t growth = heap_growth([&] { is_named(bare.m_hWnd); });
    expect_no_growth([&] { named += is_named(bar.m_hWnd) ? 1 : 0; }, growth);
    EXPECT_EQ(named, kTimes + kWarmUp);
    ::CoUninitialize();
}
