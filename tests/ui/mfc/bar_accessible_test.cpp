// What assistive programs get of a docking toolbar beside its buttons: what is the system's to answer, what
// is refused, and what is left once the bar has gone.
#include "docking_bars_fixture.h"

#include <oleacc.h>

#include "accessible_object.h"

using namespace docking;

namespace {

using BarAccessible = DockingBars;

VARIANT of(LONG child) { return ui_test::AccessibleObject::of(child); }

}  // namespace

TEST_F(BarAccessible, what_no_part_has_is_nothing) {
    CMFCToolBar& bar = docked_bar();
    const ui_test::AccessibleObject object(bar.m_hWnd);
    auto* const kept = reinterpret_cast<BSTR>(1);
    BSTR text = kept;
    EXPECT_EQ(object->get_accDescription(of(1), &text), S_FALSE);
    EXPECT_EQ(text, nullptr);
    text = kept;
    EXPECT_EQ(object->get_accHelp(of(1), &text), S_FALSE);
    EXPECT_EQ(text, nullptr);
    text = kept;
    LONG topic = 0;
    EXPECT_EQ(object->get_accHelpTopic(&text, of(1), &topic), S_FALSE);
    EXPECT_EQ(text, nullptr);
    VARIANT selection = of(7);
    EXPECT_EQ(object->get_accSelection(&selection), S_FALSE);
    EXPECT_EQ(selection.vt, VT_EMPTY);
    const BSTR name = ::SysAllocString(L"name");
    EXPECT_EQ(object->put_accName(of(1), name), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->put_accValue(of(1), name), DISP_E_MEMBERNOTFOUND);
    ::SysFreeString(name);
    IDispatch* child = reinterpret_cast<IDispatch*>(1);
    EXPECT_EQ(object->get_accChild(of(1), &child), S_FALSE) << "no button is an object of its own";
    EXPECT_EQ(child, nullptr);
}

TEST_F(BarAccessible, parts_that_there_are_not_are_refused) {
    CMFCToolBar& bar = docked_bar();
    const ui_test::AccessibleObject object(bar.m_hWnd);
    LONG count = 0;
    ASSERT_EQ(object->get_accChildCount(&count), S_OK);
    ASSERT_GE(count, 4);
    VARIANT notANumber = {};
    notANumber.vt = VT_BSTR;
    for (const VARIANT& wrong : {of(-1), of(count + 1), notANumber}) {
        VARIANT found = of(7);
        EXPECT_EQ(object->get_accRole(wrong, &found), E_INVALIDARG);
        EXPECT_EQ(found.vt, VT_EMPTY);
        found = of(7);
        EXPECT_EQ(object->get_accState(wrong, &found), E_INVALIDARG);
        EXPECT_EQ(found.vt, VT_EMPTY);
        BSTR text = reinterpret_cast<BSTR>(1);
        EXPECT_EQ(object->get_accName(wrong, &text), E_INVALIDARG);
        EXPECT_EQ(text, nullptr);
        LONG left = 0, top = 0, width = 0, height = 0;
        EXPECT_EQ(object->accLocation(&left, &top, &width, &height, wrong), E_INVALIDARG);
        EXPECT_EQ(object->accDoDefaultAction(wrong), E_INVALIDARG);
        IDispatch* child = nullptr;
        EXPECT_EQ(object->get_accChild(wrong, &child), E_INVALIDARG);
    }
}

TEST_F(BarAccessible, the_bar_itself_is_where_and_as_its_window_is) {
    CMFCToolBar& bar = docked_bar();
    const ui_test::AccessibleObject object(bar.m_hWnd);
    CRect client;
    bar.GetClientRect(&client);
    bar.ClientToScreen(&client);
    EXPECT_EQ(object.place(), client);
    EXPECT_EQ(object.role(), ROLE_SYSTEM_TOOLBAR);
    EXPECT_EQ(object.state() & STATE_SYSTEM_UNAVAILABLE, 0);
    bar.EnableWindow(FALSE);
    EXPECT_NE(object.state() & STATE_SYSTEM_UNAVAILABLE, 0);
    bar.EnableWindow(TRUE);
    bar.ShowWindow(SW_HIDE);
    EXPECT_NE(object.state() & STATE_SYSTEM_INVISIBLE, 0);
    bar.ShowWindow(SW_SHOWNA);
    VARIANT at = {};
    const CPoint second = button_of(bar, 1);
    ASSERT_EQ(object->accHitTest(second.x, second.y, &at), S_OK);
    EXPECT_EQ(at.vt, VT_I4);
    EXPECT_EQ(at.lVal, 2);
    IDispatch* parent = nullptr;
    EXPECT_EQ(object->get_accParent(&parent), S_OK);
    ASSERT_NE(parent, nullptr);
    parent->Release();
    IUnknown* same = nullptr;
    EXPECT_EQ(object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&same)), S_OK);
    ASSERT_NE(same, nullptr);
    same->Release();
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(BarAccessible, an_object_that_outlives_its_bar_says_so) {
    CMFCToolBar& bar = docked_bar();
    const ui_test::AccessibleObject object(bar.m_hWnd);
    ASSERT_EQ(object.role(1), ROLE_SYSTEM_PUSHBUTTON);
    bar.DestroyWindow();
    LONG count = 5;
    EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    VARIANT found = of(7);
    EXPECT_EQ(object->get_accRole(of(1), &found), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(found.vt, VT_EMPTY);
    found = of(7);
    EXPECT_EQ(object->get_accFocus(&found), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(found.vt, VT_EMPTY);
    found = of(7);
    EXPECT_EQ(object->accHitTest(1, 1, &found), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(found.vt, VT_EMPTY);
    BSTR text = reinterpret_cast<BSTR>(1);
    EXPECT_EQ(object->get_accName(of(1), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(object->accDoDefaultAction(of(1)), CO_E_OBJNOTCONNECTED);
}
