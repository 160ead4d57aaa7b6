// What a control that paints itself tells assistive programs: its own facts, its parts', and the system's for
// the rest.
#include <ktui/host/accessible.h>

#include <map>

#include <ui_test.h>

#include "accessible_object.h"

namespace {

using ui_test::AccessibleObject;

const UINT accessibleMessage = ::RegisterWindowMessageW(L"KtUiAccessibleMessage");

/// A window of 200 x 100 pixels whose facts a test sets, for itself (0) and for its parts.
class Described : public CWnd {
public:
    Described() {
        EXPECT_TRUE(CreateEx(0, AfxRegisterWndClass(0), L"window text", WS_POPUP | WS_VISIBLE, 300, 200, 200,
                             100, nullptr, nullptr));
    }
    ~Described() override { DestroyWindow(); }

    std::map<int, KbUiAccessibleItem> items;
    std::vector<std::pair<WPARAM, int>> asked;  ///< what was asked for, and of which item
    bool acts = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETOBJECT) {
            if (const LRESULT answer = AnswerGetObject(*this, wParam, lParam)) return answer;
        }
        if (message != accessibleMessage) return CWnd::WindowProc(message, wParam, lParam);
        auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
        asked.emplace_back(wParam, item.child);
        const auto found = items.find(item.child);
        if (found == items.end()) return 0;
        if (wParam == static_cast<WPARAM>(KbUiAccessibleRequest::kAct)) return acts;
        const int child = item.child;
        item = found->second;
        item.child = child;
        return 1;
    }
};

struct Accessible : ::testing::Test {
    Accessible() {
        ::CoInitialize(nullptr);
        window.items[0].name = L"whole";
        window.items[0].children = 2;
        window.items[1].name = L"first";
        window.items[1].place = CRect(10, 20, 40, 60);
        window.items[2].name = L"second";
        window.items[2].place = CRect(50, 20, 120, 70);
    }
    ~Accessible() override { ::CoUninitialize(); }

    /// The system's own object of the window.
    IAccessible* standard() {
        IAccessible* object = nullptr;
        EXPECT_EQ(::CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible),
                                              reinterpret_cast<void**>(&object)),
                  S_OK);
        return object;
    }
    CPoint on_screen(int x, int y) {
        CPoint point(x, y);
        window.ClientToScreen(&point);
        return point;
    }
    Described window;
};

VARIANT by_name() {
    VARIANT variant = {};
    variant.vt = VT_BSTR;
    return variant;
}

TEST_F(Accessible, OnlyTheClientAreaIsAnsweredFor) {
    EXPECT_NE(AnswerGetObject(window, 0, OBJID_CLIENT), 0);
    EXPECT_NE(AnswerGetObject(window, 0, static_cast<LPARAM>(static_cast<DWORD>(OBJID_CLIENT))), 0)
        << "the id may come without its sign";
    EXPECT_EQ(AnswerGetObject(window, 0, OBJID_WINDOW), 0);
    EXPECT_EQ(AnswerGetObject(window, 0, OBJID_HSCROLL), 0);
    EXPECT_EQ(AnswerGetObject(window, 0, 0), 0);
}

TEST_F(Accessible, AWindowThatIsGoneHasNoObject) {
    CWnd gone;
    EXPECT_EQ(AnswerGetObject(gone, 0, OBJID_CLIENT), 0);
}

TEST_F(Accessible, TheObjectIsKnownByItsInterfacesAndCountsItsOwners) {
    const AccessibleObject object(window);
    IUnknown* unknown = nullptr;
    IDispatch* dispatch = nullptr;
    IAccessible* again = nullptr;
    ASSERT_EQ(object->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&unknown)), S_OK);
    ASSERT_EQ(object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch)), S_OK);
    ASSERT_EQ(object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&again)), S_OK);
    BSTR name = nullptr;
    EXPECT_EQ(again->get_accName(AccessibleObject::of(0), &name), S_OK);
    EXPECT_STREQ(name, L"whole");
    ::SysFreeString(name);
    EXPECT_EQ(static_cast<void*>(unknown), static_cast<void*>(again));
    EXPECT_EQ(static_cast<void*>(dispatch), static_cast<void*>(again));
    const ULONG more = again->AddRef();
    EXPECT_EQ(again->Release(), more - 1);
    EXPECT_EQ(again->Release(), more - 2);
    EXPECT_EQ(dispatch->Release(), more - 3);
    EXPECT_EQ(unknown->Release(), more - 4);
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Accessible, OtherInterfacesAreTheSystemObjects) {
    const AccessibleObject object(window);
    IEnumVARIANT* list = nullptr;
    EXPECT_EQ(object->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&list)), S_OK);
    if (list) list->Release();
    IStream* stream = nullptr;
    EXPECT_EQ(object->QueryInterface(IID_IStream, reinterpret_cast<void**>(&stream)), E_NOINTERFACE);
}

TEST_F(Accessible, WhatHasNoTypeInformationSaysSoLikeTheSystemObject) {
    const AccessibleObject object(window);
    IAccessible* system = standard();
    UINT ours = 7, theirs = 7;
    EXPECT_EQ(object->GetTypeInfoCount(&ours), system->GetTypeInfoCount(&theirs));
    EXPECT_EQ(ours, theirs);
    ITypeInfo *info = nullptr, *systemInfo = nullptr;
    const HRESULT wanted = system->GetTypeInfo(0, 0, &systemInfo);
    EXPECT_EQ(object->GetTypeInfo(0, 0, &info), wanted);
    EXPECT_EQ(info == nullptr, systemInfo == nullptr);
    OLECHAR word[] = L"accName";
    LPOLESTR words[] = {word};
    DISPID id = 0, systemId = 0;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, words, 1, 0, &id),
              system->GetIDsOfNames(IID_NULL, words, 1, 0, &systemId));
    EXPECT_EQ(id, systemId);
    DISPPARAMS none = {};
    const HRESULT invoked =
        object->Invoke(DISPID_ACC_NAME, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr);
    if (FAILED(wanted)) {
        EXPECT_EQ(invoked, wanted);
    } else {
        EXPECT_EQ(invoked, DISP_E_PARAMNOTFOUND);
    }
    if (info) info->Release();
    if (systemInfo) systemInfo->Release();
    system->Release();
}

TEST_F(Accessible, NameValueActionAndDescriptionAreTheControls) {
    window.items[2].value = L"v";
    window.items[2].defaultAction = L"a";
    window.items[2].description = L"d";
    const AccessibleObject object(window);
    EXPECT_EQ(object.name(), L"whole");
    EXPECT_EQ(object.name(1), L"first");
    EXPECT_EQ(object.name(2), L"second");
    EXPECT_EQ(object.value(2), L"v");
    EXPECT_EQ(object.action(2), L"a");
    EXPECT_EQ(object.description(2), L"d");
    EXPECT_EQ(object.value(1), L"") << "an empty text is none";
    EXPECT_EQ(object.description(1), L"");
}

TEST_F(Accessible, AnItemThatIsNotThereIsInvalid) {
    const AccessibleObject object(window);
    for (const VARIANT& wrong : {AccessibleObject::of(3), AccessibleObject::of(-1), by_name()}) {
        auto* text = reinterpret_cast<BSTR>(1);
        EXPECT_EQ(object->get_accName(wrong, &text), E_INVALIDARG);
        EXPECT_EQ(text, nullptr);
        VARIANT found = AccessibleObject::of(9);
        EXPECT_EQ(object->get_accRole(wrong, &found), E_INVALIDARG);
        EXPECT_EQ(found.vt, VT_EMPTY);
        found.vt = VT_I4;
        EXPECT_EQ(object->get_accState(wrong, &found), E_INVALIDARG);
        EXPECT_EQ(found.vt, VT_EMPTY);
        auto* part = reinterpret_cast<IDispatch*>(1);
        EXPECT_EQ(object->get_accChild(wrong, &part), E_INVALIDARG);
        EXPECT_EQ(part, nullptr);
        LONG left = -1, top = -1, width = -1, height = -1;
        EXPECT_EQ(object->accLocation(&left, &top, &width, &height, wrong), E_INVALIDARG);
        EXPECT_EQ(left, -1);
        EXPECT_EQ(object->accDoDefaultAction(wrong), E_INVALIDARG);
    }
}

TEST_F(Accessible, PartsAreCountedAndAreNoObjectsOfTheirOwn) {
    const AccessibleObject object(window);
    LONG count = -1;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 2);
    auto* part = reinterpret_cast<IDispatch*>(1);
    EXPECT_EQ(object->get_accChild(AccessibleObject::of(2), &part), S_FALSE);
    EXPECT_EQ(part, nullptr);
}

TEST_F(Accessible, RoleIsTheClientAreasUntilTheControlSaysAnother) {
    window.items[1].role = ROLE_SYSTEM_LINK;
    const AccessibleObject object(window);
    EXPECT_EQ(object.role(), ROLE_SYSTEM_CLIENT);
    EXPECT_EQ(object.role(1), ROLE_SYSTEM_LINK);
}

TEST_F(Accessible, StatesAreTheWindowsLessAndMoreThanTheControlSays) {
    ::SetFocus(nullptr);
    const AccessibleObject object(window);
    EXPECT_EQ(object.state(), STATE_SYSTEM_FOCUSABLE);
    EXPECT_EQ(object.state(1), STATE_SYSTEM_FOCUSABLE);
    window.items[1].statesWithout = STATE_SYSTEM_FOCUSABLE;
    window.items[1].states = STATE_SYSTEM_LINKED | STATE_SYSTEM_PRESSED;
    EXPECT_EQ(object.state(1), STATE_SYSTEM_LINKED | STATE_SYSTEM_PRESSED);
    window.items[2].statesWithout = STATE_SYSTEM_FOCUSABLE;
    window.items[2].states = STATE_SYSTEM_FOCUSABLE;
    EXPECT_EQ(object.state(2), STATE_SYSTEM_FOCUSABLE) << "what is added goes last";
    window.EnableWindow(FALSE);
    EXPECT_TRUE(object.state() & STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(Accessible, HelpIsNone) {
    const AccessibleObject object(window);
    auto* text = reinterpret_cast<BSTR>(1);
    EXPECT_EQ(object->get_accHelp(AccessibleObject::of(0), &text), S_FALSE);
    EXPECT_EQ(text, nullptr);
    text = reinterpret_cast<BSTR>(1);
    LONG topic = 0;
    EXPECT_EQ(object->get_accHelpTopic(&text, AccessibleObject::of(0), &topic), S_FALSE);
    EXPECT_EQ(text, nullptr);
}

TEST_F(Accessible, PlacesAreOnTheScreen) {
    const AccessibleObject object(window);
    EXPECT_EQ(object.place(1), CRect(on_screen(10, 20), on_screen(40, 60)));
    EXPECT_EQ(object.place(2), CRect(on_screen(50, 20), on_screen(120, 70)));
    EXPECT_EQ(object.place(), CRect(on_screen(0, 0), on_screen(200, 100))) << "the whole is the window's";
}

TEST_F(Accessible, APointHitsThePartThatHoldsIt) {
    const AccessibleObject object(window);
    const auto hit = [&](int x, int y) {
        const CPoint point = on_screen(x, y);
        VARIANT found = {};
        EXPECT_EQ(object->accHitTest(point.x, point.y, &found), S_OK);
        EXPECT_EQ(found.vt, VT_I4);
        return found.lVal;
    };
    EXPECT_EQ(hit(10, 20), 1);
    EXPECT_EQ(hit(39, 59), 1);
    EXPECT_EQ(hit(40, 59), 0) << "beyond its edge";
    EXPECT_EQ(hit(119, 69), 2) << "the last part counts";
    EXPECT_EQ(hit(5, 5), 0);
    window.items.erase(1);
    EXPECT_EQ(hit(20, 30), 0) << "a part that answers nothing is passed over";
    EXPECT_EQ(hit(60, 30), 2);
}

TEST_F(Accessible, TheActionIsDoneByTheControl) {
    const AccessibleObject object(window);
    window.asked.clear();
    EXPECT_EQ(object.act(2), S_OK);
    ASSERT_FALSE(window.asked.empty());
    EXPECT_EQ(window.asked.back(), (std::pair<WPARAM, int>(2, 2)));
    window.acts = false;
    EXPECT_EQ(object.act(2), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Accessible, NothingCanBeRenamed) {
    const AccessibleObject object(window);
    EXPECT_EQ(object->put_accName(AccessibleObject::of(0), nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->put_accValue(AccessibleObject::of(0), nullptr), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Accessible, TheRestIsTheSystemObjects) {
    const AccessibleObject object(window);
    IAccessible* system = standard();
    const VARIANT self = AccessibleObject::of(0);

    IDispatch *parent = nullptr, *systemParent = nullptr;
    EXPECT_EQ(object->get_accParent(&parent), system->get_accParent(&systemParent));
    ASSERT_TRUE(parent);
    ASSERT_TRUE(systemParent);
    parent->Release();
    systemParent->Release();

    window.SetFocus();
    VARIANT focus = {}, systemFocus = {};
    EXPECT_EQ(object->get_accFocus(&focus), system->get_accFocus(&systemFocus));
    EXPECT_EQ(focus.vt, systemFocus.vt);
    EXPECT_EQ(focus.vt, VT_I4) << "the window itself";
    EXPECT_EQ(focus.lVal, 0);

    VARIANT chosen = {}, systemChosen = {};
    EXPECT_EQ(object->get_accSelection(&chosen), system->get_accSelection(&systemChosen));
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, self), system->accSelect(SELFLAG_TAKEFOCUS, self));
    VARIANT to = {}, systemTo = {};
    EXPECT_EQ(object->accNavigate(NAVDIR_FIRSTCHILD, self, &to),
              system->accNavigate(NAVDIR_FIRSTCHILD, self, &systemTo));
    BSTR keys = nullptr, systemKeys = nullptr;
    EXPECT_EQ(object->get_accKeyboardShortcut(self, &keys),
              system->get_accKeyboardShortcut(self, &systemKeys));
    ::SysFreeString(keys);
    ::SysFreeString(systemKeys);
    system->Release();
}

TEST_F(Accessible, AnObjectThatOutlivesItsWindowSaysSo) {
    const AccessibleObject object(window);
    window.DestroyWindow();
    auto* text = reinterpret_cast<BSTR>(1);
    EXPECT_EQ(object->get_accName(AccessibleObject::of(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(text, nullptr);
    LONG count = -1;
    EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, -1);
    VARIANT hit = {};
    EXPECT_EQ(object->accHitTest(310, 210, &hit), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.act(), CO_E_OBJNOTCONNECTED);
}

TEST_F(Accessible, APartThatAnswersNothingIsNotConnected) {
    window.items.erase(1);
    const AccessibleObject object(window);
    BSTR text = nullptr;
    EXPECT_EQ(object->get_accName(AccessibleObject::of(1), &text), CO_E_OBJNOTCONNECTED);
}

TEST(PlainCaption, AccessMarksAreLeftOut) {
    EXPECT_EQ(WithoutAccessKey(L"&Open"), L"Open");
    EXPECT_EQ(WithoutAccessKey(L"Save &As"), L"Save As");
    EXPECT_EQ(WithoutAccessKey(L"Fish && Chips"), L"Fish & Chips");
    EXPECT_EQ(WithoutAccessKey(L"&&&x"), L"&x");
    EXPECT_EQ(WithoutAccessKey(L"end&"), L"end");
    EXPECT_EQ(WithoutAccessKey(L""), L"");
}

}  // namespace
