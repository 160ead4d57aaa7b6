// Calls of docking toolbars and their pictures that programs make themselves, and the object that assistive
// programs get.
#include "docking_bars_fixture.h"

#include <oleacc.h>

#include "accessible_object.h"
#include "canvas.h"
#include "told_mouse.h"

using namespace docking;

namespace {

constexpr COLORREF kGround = RGB(255, 0, 255);

class ToolBarCalls : public DockingBars {
protected:
    /// What picture `index` looks like in its middle; the ground when nothing is drawn.
    static COLORREF drawn(CMFCToolBarImages& images, int index, BOOL disabled = FALSE,
                          CSize size = CSize(0, 0)) {
        ui_test::Canvas canvas(40, 40, kGround);
        CAfxDrawState state;
        if (!images.PrepareDrawImage(state, size)) return CLR_INVALID;
        const BOOL done = images.Draw(&canvas.dc, 2, 3, index, disabled);
        images.EndDrawImage(state);
        if (!done) return CLR_NONE;
        const CSize drawnSize = size == CSize(0, 0) ? images.GetImageSize() : size;
        EXPECT_EQ(canvas.at(1, 3), kGround);
        EXPECT_EQ(canvas.at(2, 2), kGround);
        EXPECT_EQ(canvas.at(2 + drawnSize.cx, 3), kGround);
        EXPECT_EQ(canvas.at(2, 3 + drawnSize.cy), kGround);
        return canvas.at(2 + drawnSize.cx / 2, 3 + drawnSize.cy / 2);
    }
    ui_test::ToldMouse mouse;
};

}  // namespace

TEST_F(ToolBarCalls, pictures_follow_one_another) {
    CMFCToolBarImages images;
    EXPECT_FALSE(images.IsValid());
    EXPECT_EQ(images.GetImageSize(), CSize(16, 15));
    EXPECT_EQ(drawn(images, 0), CLR_INVALID) << "there are none";
    EXPECT_FALSE(images.Load(440)) << "the bitmap is lower than that";
    images.SetImageSize(CSize(8, 8));
    ASSERT_TRUE(images.Load(440));
    const int count = images.GetCount();
    ASSERT_EQ(count, 3);
    const COLORREF first = drawn(images, 0), second = drawn(images, 1), third = drawn(images, 2);
    EXPECT_NE(first, second);
    EXPECT_NE(second, third);
    EXPECT_EQ(drawn(images, 3), CLR_NONE);
    EXPECT_EQ(drawn(images, -1), CLR_NONE);
    ASSERT_TRUE(images.Load(441, nullptr, TRUE)) << "behind those there are";
    EXPECT_EQ(images.GetCount(), 6);
    EXPECT_EQ(drawn(images, 0), first);
    EXPECT_EQ(drawn(images, 2), third);
    EXPECT_EQ(drawn(images, 3), first);
    EXPECT_EQ(drawn(images, 5), third);
    ASSERT_TRUE(images.Load(441));
    EXPECT_EQ(images.GetCount(), 3) << "in their place";
    EXPECT_FALSE(images.Load(61999));
    EXPECT_EQ(images.GetCount(), 3);
    EXPECT_EQ(drawn(images, 1, FALSE, CSize(24, 20)), second) << "at another size";
    const COLORREF grey = drawn(images, 0, TRUE);
    EXPECT_NE(grey, first);
    images.SetImageSize(CSize(4, 8), TRUE);
    EXPECT_EQ(images.GetCount(), 6);
    images.SetImageSize(CSize(8, 9), TRUE);
    EXPECT_EQ(images.GetCount(), 0) << "higher than the bitmap";
    EXPECT_FALSE(images.Load(440)) << "for the same reason";
    images.SetImageSize(CSize(0, 8));
    EXPECT_FALSE(images.Load(440));
    images.SetImageSize(CSize(8, 8), TRUE);
    EXPECT_EQ(images.GetCount(), 3);
    images.Clear();
    EXPECT_FALSE(images.IsValid());
    EXPECT_EQ(drawn(images, 0), CLR_INVALID);
    images.SetImageSize(CSize(8, 8), TRUE);
    EXPECT_EQ(images.GetCount(), 0) << "nothing is left";
}

TEST_F(ToolBarCalls, the_transparent_colour_shows_what_lies_behind) {
    CMFCToolBarImages images;
    images.SetImageSize(CSize(8, 8));
    ASSERT_TRUE(images.Load(440));
    images.SetMapToDark(FALSE);
    const COLORREF first = drawn(images, 0);
    EXPECT_EQ(images.GetTransparentColor(), RGB(192, 192, 192));
    EXPECT_EQ(images.SetTransparentColor(first), RGB(192, 192, 192));
    EXPECT_EQ(images.GetTransparentColor(), first);
    EXPECT_EQ(drawn(images, 0), first) << "for what is loaded later";
    ASSERT_TRUE(images.Load(440));
    EXPECT_EQ(drawn(images, 0), kGround);
    EXPECT_NE(drawn(images, 1), kGround);
}

TEST_F(ToolBarCalls, a_button_is_asked_for_and_exchanged_by_its_place) {
    CMFCToolBar& bar = docked_bar();
    UINT id = 0, style = 0;
    int image = 0;
    bar.GetButtonInfo(1, id, style, image);
    EXPECT_EQ(id, kOpen);
    EXPECT_EQ(style, static_cast<UINT>(TBBS_BUTTON));
    EXPECT_EQ(image, 1);
    bar.SetButtonInfo(1, kCut, TBBS_CHECKBOX, 2);
    bar.GetButtonInfo(1, id, style, image);
    EXPECT_EQ(id, kCut);
    EXPECT_EQ(style, static_cast<UINT>(TBBS_CHECKBOX));
    EXPECT_EQ(image, 2);
    bar.GetButtonInfo(99, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(style, static_cast<UINT>(TBBS_SEPARATOR));
    EXPECT_EQ(image, -1);
    bar.SetButtonInfo(99, kCut, TBBS_CHECKBOX, 2);
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.CommandToIndex(kCut), 1);
    EXPECT_EQ(bar.CommandToIndex(kCut, 2), 3);
    EXPECT_EQ(bar.CommandToIndex(kUnhandled), -1);
    EXPECT_EQ(bar.ButtonToIndex(bar.GetButton(3)), 3);
    EXPECT_EQ(bar.ButtonToIndex(nullptr), -1);
    EXPECT_EQ(bar.GetButton(-1), nullptr);
    EXPECT_EQ(bar.GetButton(4), nullptr);
    CRect rect(1, 2, 3, 4);
    bar.GetItemRect(9, &rect);
    EXPECT_EQ(rect, CRect(0, 0, 0, 0));
}

TEST_F(ToolBarCalls, all_bars_have_the_sizes_that_are_set_unless_their_own) {
    CMFCToolBar& bar = docked_bar();
    bar.SetLockedSizes(CSize(0, 0), CSize(0, 0));
    const CSize button = bar.GetButtonSize(), image = bar.GetImageSize();
    CMFCToolBar::SetSizes(CSize(40, 36), CSize(20, 18));
    EXPECT_EQ(bar.GetButtonSize(), CSize(40, 36));
    EXPECT_EQ(bar.GetImageSize(), CSize(20, 18));
    bar.SetLockedSizes(CSize(30, 28), CSize(10, 9));
    EXPECT_EQ(bar.GetButtonSize(), CSize(30, 28));
    EXPECT_EQ(bar.GetImageSize(), CSize(10, 9));
    CMFCToolBar::SetSizes(button, image);
    bar.SetLockedSizes(CSize(0, 0), CSize(0, 0));
    EXPECT_EQ(bar.GetButtonSize(), button);
    const int former = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 192;
    EXPECT_EQ(bar.GetButtonSize(), CSize(2 * button.cx, 2 * button.cy));
    EXPECT_EQ(bar.GetImageSize(), CSize(2 * image.cx, 2 * image.cy));
    afxGlobalData.m_nDpi = former;
}

TEST_F(ToolBarCalls, a_bar_tells_in_how_many_rows_it_would_stand) {
    CMFCToolBar& bar = make_bar();
    EXPECT_EQ(bar.WrapToolBar(1000), 1);
    const int one = bar.GetButtonSize().cx;
    EXPECT_GT(bar.WrapToolBar(one + 4), 1);
    EXPECT_EQ(bar.WrapToolBar(1000), 1);
}

TEST_F(ToolBarCalls, a_gripper_is_at_the_bars_beginning) {
    CMFCToolBar& bar = docked_bar();
    CRect gripper, client;
    bar.GetGripperRect(gripper);
    bar.GetClientRect(&client);
    EXPECT_EQ(gripper, CRect(0, 0, 8, client.bottom));
    CMFCToolBar& upright = docked_bar(AFX_IDW_DOCKBAR_LEFT);
    upright.GetGripperRect(gripper);
    upright.GetClientRect(&client);
    EXPECT_EQ(gripper, CRect(0, 0, client.right, 8));
    upright.FloatPane(CRect(300, 200, 500, 300));
    upright.GetGripperRect(gripper);
    EXPECT_TRUE(gripper.IsRectEmpty()) << "its frame has a caption";
}

TEST_F(ToolBarCalls, the_mouse_shows_where_a_bar_is_held) {
    CMFCToolBar& bar = docked_bar();
    const auto cursor_at = [&](CPoint screen) {
        mouse.place = screen;
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        bar.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(bar.m_hWnd),
                        MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    };
    EXPECT_EQ(cursor_at(gripper_of(bar)), ::LoadCursorW(nullptr, IDC_SIZEALL));
    EXPECT_EQ(cursor_at(button_of(bar, 0)), ::LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(ToolBarCalls, a_bar_wants_the_arrow_keys_of_dialogs) {
    CMFCToolBar& bar = docked_bar();
    EXPECT_EQ(bar.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS);
}

TEST_F(ToolBarCalls, a_fast_second_press_on_a_button_counts_too) {
    CMFCToolBar& bar = docked_bar();
    double_click(bar, button_of(bar, 0));
    release(button_of(bar, 0));
    ui_test::pump();
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kNew});
}

TEST_F(ToolBarCalls, assistive_programs_get_what_the_interface_offers) {
    ::CoInitialize(nullptr);
    {
        CMFCToolBar& bar = docked_bar();
        const ui_test::AccessibleObject about(bar.m_hWnd);
        IAccessible* const object = &*about.operator->();
        const auto part = [](LONG number) {
            VARIANT which = {};
            which.vt = VT_I4;
            which.lVal = number;
            return which;
        };
        // Scripts get what the system's own object answers.
        IAccessible* bare = nullptr;
        ASSERT_EQ(::CreateStdAccessibleObject(bar.m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                              reinterpret_cast<void**>(&bare)),
                  S_OK);
        UINT types = 7, bareTypes = 7;
        EXPECT_EQ(object->GetTypeInfoCount(&types), bare->GetTypeInfoCount(&bareTypes));
        EXPECT_EQ(types, bareTypes);
        DISPID id = 0;
        wchar_t name[] = L"accName";
        LPOLESTR names[] = {name};
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names, 1, 0, &id),
                  bare->GetIDsOfNames(IID_NULL, names, 1, 0, &id));
        ITypeInfo* type = nullptr;
        const HRESULT typed = bare->GetTypeInfo(0, 0, &type);
        if (type != nullptr) type->Release();
        EXPECT_EQ(object->GetTypeInfo(0, 0, &type), typed);
        VARIANT argument = part(1), result = {};
        DISPPARAMS arguments = {&argument, nullptr, 1, 0};
        EXPECT_EQ(object->Invoke(DISPID_ACC_NAME, IID_NULL, 0, DISPATCH_PROPERTYGET, &arguments, &result,
                                 nullptr, nullptr),
                  typed);
        ::VariantClear(&result);
        bare->Release();
        IDispatch* parent = nullptr;
        EXPECT_EQ(object->get_accParent(&parent), S_OK);
        if (parent != nullptr) parent->Release();
        IDispatch* child = reinterpret_cast<IDispatch*>(1);
        EXPECT_EQ(object->get_accChild(part(1), &child), S_FALSE) << "no object of its own";
        EXPECT_EQ(child, nullptr);
        EXPECT_EQ(object->get_accChild(part(99), &child), E_INVALIDARG);
        BSTR text = reinterpret_cast<BSTR>(1);
        EXPECT_EQ(object->get_accDescription(part(1), &text), S_FALSE);
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(object->get_accHelp(part(1), &text), S_FALSE);
        LONG topic = 0;
        EXPECT_EQ(object->get_accHelpTopic(&text, part(1), &topic), S_FALSE);
        EXPECT_EQ(object->get_accValue(part(1), &text), S_FALSE);
        EXPECT_EQ(object->get_accValue(part(99), &text), E_INVALIDARG);
        EXPECT_EQ(object->put_accName(part(1), nullptr), DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(object->put_accValue(part(1), nullptr), DISP_E_MEMBERNOTFOUND);
        VARIANT chosen = part(3);
        EXPECT_EQ(object->get_accSelection(&chosen), S_FALSE);
        EXPECT_EQ(chosen.vt, VT_EMPTY);
        EXPECT_EQ(object->get_accRole(part(99), &chosen), E_INVALIDARG);
        EXPECT_EQ(object->get_accState(part(-1), &chosen), E_INVALIDARG);
        VARIANT nothing = {};
        EXPECT_EQ(object->get_accRole(nothing, &chosen), E_INVALIDARG);
        view.SetFocus();
        EXPECT_EQ(object->get_accFocus(&chosen), S_FALSE);
        bar.SetFocus();
        EXPECT_EQ(object->get_accFocus(&chosen), S_OK);
        EXPECT_EQ(chosen.vt, VT_I4);
        EXPECT_EQ(chosen.lVal, bar.GetHighlightedButton() + 1);
        LONG left = 0, top = 0, width = 0, height = 0;
        EXPECT_EQ(object->accLocation(&left, &top, &width, &height, part(0)), S_OK);
        EXPECT_EQ(CRect(CPoint(left, top), CSize(width, height)), on_screen(bar));
        EXPECT_EQ(object->accLocation(&left, &top, &width, &height, part(99)), E_INVALIDARG);
        void* unknown = nullptr;
        EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
        ASSERT_EQ(object->QueryInterface(IID_IDispatch, &unknown), S_OK);
        EXPECT_EQ(unknown, object);
        static_cast<IUnknown*>(unknown)->Release();
        EXPECT_NE(object->QueryInterface(IID_IPersist, &unknown), S_OK);
    }
    ::CoUninitialize();
}
