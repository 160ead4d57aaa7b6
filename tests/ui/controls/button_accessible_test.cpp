// What assistive programs learn of the buttons.
#include <ktui/host/accessible.h>

#include "accessible_object.h"
#include "picture_fixture.h"

namespace {

using namespace controls;
using ui_test::AccessibleObject;

/// Has a tip of its own.
struct Tipped : OpenPicture<CKbUiBitmapButton> {
    CString tip = L"Pick a point";
    BOOL answers = TRUE;
    BOOL OnGetTipText(CString& text) override {
        text = tip;
        return answers;
    }
};

struct ButtonAccessible : ::testing::Test {
    ButtonAccessible() { ::CoInitialize(nullptr); }
    ~ButtonAccessible() override {
        button.DestroyWindow();
        ::CoUninitialize();
    }
    ui_test::RecordingHolder holder;
    Tipped button;
};

TEST_F(ButtonAccessible, AButtonIsNamedByItsTipOrElseByItsCaption) {
    make(button, holder, L"Fish && &Chips");
    const AccessibleObject object(button.m_hWnd);
    EXPECT_EQ(object.name(), L"Pick a point");
    button.tip.Empty();
    EXPECT_EQ(object.name(), L"Fish & Chips");
    button.tip = L"not given";
    button.answers = FALSE;
    EXPECT_EQ(object.name(), L"Fish & Chips");
    button.SetWindowText(L"");
    EXPECT_EQ(object.name(), L"");
}

TEST_F(ButtonAccessible, AButtonIsAPushButtonThatCanBePressed) {
    make(button, holder, L"Caption");
    const AccessibleObject object(button.m_hWnd);
    EXPECT_EQ(object.role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_TRUE(object.action() == L"Press" || object.action() == L"按下");
    EXPECT_EQ(object.value(), L"");
    int clicks = 0;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == WM_COMMAND && message.wParam == MAKEWPARAM(kId, BN_CLICKED)) ++clicks;
    });
    EXPECT_EQ(object.act(), S_OK);
    EXPECT_EQ(clicks, 0) << "a caller does not wait for what the click does";
    EXPECT_TRUE(ui_test::pump_until([&] { return clicks == 1; }));
}

TEST_F(ButtonAccessible, ItsStatesAreThoseOfTheWindowAndTheMouse) {
    make(button, holder, L"Caption");
    const AccessibleObject object(button.m_hWnd);
    EXPECT_EQ(object.state(), STATE_SYSTEM_FOCUSABLE);
    button.EnableWindow(FALSE);
    EXPECT_TRUE(object.state() & STATE_SYSTEM_UNAVAILABLE);
    button.EnableWindow(TRUE);
    button.SetFocus();
    EXPECT_TRUE(object.state() & STATE_SYSTEM_FOCUSED);
    button.SetState(TRUE);
    EXPECT_TRUE(object.state() & STATE_SYSTEM_PRESSED);
    button.SetState(FALSE);
    EXPECT_FALSE(object.state() & (STATE_SYSTEM_PRESSED | STATE_SYSTEM_HOTTRACKED));
    button.SetIsPointedAt(1);
    EXPECT_TRUE(object.state() & STATE_SYSTEM_HOTTRACKED);
    button.ShowWindow(SW_HIDE);
    EXPECT_TRUE(object.state() & STATE_SYSTEM_INVISIBLE);
}

TEST_F(ButtonAccessible, APictureAndADropSiteAreGraphicsWithoutAnAction) {
    OpenPicture<CKtUiBitmapStatic> picture;
    OpenPicture<CKtUiDropSite> site;
    for (CKbUiBitmapButton* each :
         {static_cast<CKbUiBitmapButton*>(&picture), static_cast<CKbUiBitmapButton*>(&site)}) {
        make(*each, holder, L"SQUARE|&Drop files here");
        each->AutoLoad();
        const AccessibleObject object(each->m_hWnd);
        EXPECT_EQ(object.role(), ROLE_SYSTEM_GRAPHIC);
        EXPECT_EQ(object.name(), L"Drop files here");
        EXPECT_EQ(object.action(), L"");
        EXPECT_EQ(object.state(), 0);
        EXPECT_EQ(object.act(), DISP_E_MEMBERNOTFOUND);
    }
}

TEST_F(ButtonAccessible, ItStandsWhereItsWindowIsAndHasNoParts) {
    make(button, holder, L"Caption");
    const AccessibleObject object(button.m_hWnd);
    CRect window;
    button.GetWindowRect(&window);
    EXPECT_EQ(object.place(), window);
    LONG count = 7;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 0);
    BSTR name = nullptr;
    EXPECT_EQ(object->get_accName(AccessibleObject::of(1), &name), E_INVALIDARG);
    EXPECT_EQ(object->get_accName(AccessibleObject::of(-1), &name), E_INVALIDARG);
    VARIANT none = {};
    EXPECT_EQ(object->get_accName(none, &name), E_INVALIDARG);
    IDispatch* parent = nullptr;
    EXPECT_EQ(object->get_accParent(&parent), S_OK);
    ASSERT_NE(parent, nullptr);
    parent->Release();
}

TEST_F(ButtonAccessible, ScriptsReachItWhereTheSystemDescribesTheInterface) {
    make(button, holder, L"Caption");
    const AccessibleObject object(button.m_hWnd);
    ITypeInfo* info = nullptr;
    const HRESULT described = object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info);
    VARIANT child = AccessibleObject::of(0), result = {};
    DISPPARAMS parameters = {&child, nullptr, 1, 0};
    EXPECT_EQ(object->Invoke(DISPID_ACC_NAME, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                             &parameters, &result, nullptr, nullptr),
              described);
    EXPECT_EQ(std::wstring(result.vt == VT_BSTR ? result.bstrVal : L""),
              SUCCEEDED(described) ? L"Pick a point" : L"");
    ::VariantClear(&result);
    if (info) info->Release();
}

TEST_F(ButtonAccessible, AnObjectThatIsKeptLearnsThatTheButtonHasGone) {
    make(button, holder, L"Caption");
    const AccessibleObject object(button.m_hWnd);
    button.DestroyWindow();
    BSTR name = nullptr;
    EXPECT_EQ(object->get_accName(AccessibleObject::of(0), &name), CO_E_OBJNOTCONNECTED);
    LONG count = 0;
    EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.act(), CO_E_OBJNOTCONNECTED);
}

TEST_F(ButtonAccessible, OtherObjectsOfTheWindowAreTheSystems) {
    make(button, holder, L"Caption");
    EXPECT_EQ(button.SendMessage(WM_GETOBJECT, 0, OBJID_CARET), 0);
    EXPECT_NE(button.SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
}

/// A control with two parts, the way a strip of tabs has them.
class Parted : public CWnd {
public:
    int acted = -1;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        static const UINT asked = ::RegisterWindowMessageW(kAccessibleMessageName);
        if (message == WM_GETOBJECT) return AnswerGetObject(*this, wParam, lParam);
        if (message != asked) return CWnd::WindowProc(message, wParam, lParam);
        auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
        if (wParam == static_cast<WPARAM>(KbUiAccessibleRequest::kAct)) {
            acted = item.child;
            return 1;
        }
        item.children = 2;
        item.name.Format(L"part %d", item.child);
        item.value = item.child == 2 ? L"two" : L"";
        item.role = item.child ? ROLE_SYSTEM_PAGETAB : ROLE_SYSTEM_PAGETABLIST;
        item.states = item.child == 1 ? STATE_SYSTEM_SELECTED : 0;
        item.place = CRect(CPoint(10 * item.child, 5), CSize(10, 20));
        return 1;
    }
};

TEST_F(ButtonAccessible, PartsThatAreNoWindowsHaveFactsOfTheirOwn) {
    Parted parted;
    parted.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 50), &holder, 4);
    const AccessibleObject object(parted.m_hWnd);
    LONG count = 0;
    object->get_accChildCount(&count);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(object.name(), L"part 0");
    EXPECT_EQ(object.role(), ROLE_SYSTEM_PAGETABLIST);
    EXPECT_EQ(object.name(2), L"part 2");
    EXPECT_EQ(object.value(2), L"two");
    EXPECT_EQ(object.role(1), ROLE_SYSTEM_PAGETAB);
    EXPECT_TRUE(object.state(1) & STATE_SYSTEM_SELECTED);
    EXPECT_FALSE(object.state(2) & STATE_SYSTEM_SELECTED);
    CRect place(20, 5, 30, 25);
    parted.ClientToScreen(&place);
    EXPECT_EQ(object.place(2), place);
    VARIANT hit = {};
    EXPECT_EQ(object->accHitTest(place.left, place.top, &hit), S_OK);
    EXPECT_EQ(hit.lVal, 2);
    IDispatch* none = nullptr;
    EXPECT_EQ(object->get_accChild(AccessibleObject::of(2), &none), S_FALSE);
    EXPECT_EQ(object->get_accChild(AccessibleObject::of(3), &none), E_INVALIDARG);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(object.act(2), S_OK);
    EXPECT_EQ(parted.acted, 2);
    EXPECT_EQ(object.act(3), E_INVALIDARG);
    parted.DestroyWindow();
}

}  // namespace
