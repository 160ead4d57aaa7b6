// What the answers for assistive programs take from the system's own object, which is one of the test's here:
// type information for scripts, and the states of the window.
#include <ktui/host/accessible.h>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

const UINT accessibleMessage = ::RegisterWindowMessageW(L"KtUiAccessibleMessage");

/// Type information that writes down what is to be invoked, and of what.
class NotedTypeInfo final : public ITypeInfo {
public:
    void* instance = nullptr;
    MEMBERID member = 0;
    WORD flags = 0;
    DISPPARAMS* parameters = nullptr;
    VARIANT* result = nullptr;
    int held = 0;

    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++held); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--held); }
    STDMETHODIMP Invoke(PVOID of, MEMBERID id, WORD how, DISPPARAMS* with, VARIANT* answer, EXCEPINFO*,
                        UINT*) override {
        instance = of;
        member = id;
        flags = how;
        parameters = with;
        result = answer;
        return DISP_E_TYPEMISMATCH;
    }
    STDMETHODIMP GetTypeAttr(TYPEATTR**) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
    STDMETHODIMP GetFuncDesc(UINT, FUNCDESC**) override { return E_NOTIMPL; }
    STDMETHODIMP GetVarDesc(UINT, VARDESC**) override { return E_NOTIMPL; }
    STDMETHODIMP GetNames(MEMBERID, BSTR*, UINT, UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetRefTypeOfImplType(UINT, HREFTYPE*) override { return E_NOTIMPL; }
    STDMETHODIMP GetImplTypeFlags(UINT, INT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetDocumentation(MEMBERID, BSTR*, BSTR*, DWORD*, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) override { return E_NOTIMPL; }
    STDMETHODIMP GetRefTypeInfo(HREFTYPE, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) override { return E_NOTIMPL; }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID, PVOID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMops(MEMBERID, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainingTypeLib(ITypeLib**, UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP_(void) ReleaseTypeAttr(TYPEATTR*) override {}
    STDMETHODIMP_(void) ReleaseFuncDesc(FUNCDESC*) override {}
    STDMETHODIMP_(void) ReleaseVarDesc(VARDESC*) override {}
};

/// The system's object, with a state and type information that a test sets.
class Standard final : public IAccessible {
public:
    NotedTypeInfo typeInfo;
    UINT typeInfoIndex = 99;
    VARIANT state = {};
    HRESULT stateFound = S_OK;

    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        typeInfoIndex = index;
        typeInfo.AddRef();
        *info = &typeInfo;
        return S_OK;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP get_accState(VARIANT, VARIANT* found) override {
        *found = state;
        return stateFound;
    }
    STDMETHODIMP get_accParent(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP get_accChildCount(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accChild(VARIANT, IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP get_accName(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accValue(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accDescription(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accRole(VARIANT, VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accFocus(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accSelection(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_accDefaultAction(VARIANT, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP accSelect(LONG, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP accLocation(LONG*, LONG*, LONG*, LONG*, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP accNavigate(LONG, VARIANT, VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP accHitTest(LONG, LONG, VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP accDoDefaultAction(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }
};

Standard* standard = nullptr;
IAccessible* given = nullptr;

HRESULT WINAPI CreateStandard(HWND, LONG, REFIID, void** object) {
    *object = static_cast<IAccessible*>(standard);
    return S_OK;
}

/// Takes the object that is handed out.
LRESULT WINAPI TakeObject(REFIID, WPARAM, LPUNKNOWN object) {
    given = static_cast<IAccessible*>(object);
    given->AddRef();
    return 1;
}

/// A control that adds one state to those of its window.
class Pressed : public CWnd {
public:
    Pressed() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr); }
    ~Pressed() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != accessibleMessage) return CWnd::WindowProc(message, wParam, lParam);
        reinterpret_cast<KbUiAccessibleItem*>(lParam)->states = STATE_SYSTEM_PRESSED;
        return 1;
    }
};

class AccessibleOfAnotherSystem : public ::testing::Test {
protected:
    AccessibleOfAnotherSystem() {
        standard = &system;
        const HMODULE program = ::GetModuleHandleW(nullptr);
        const ui_test::ReplacedImport create(program, "CreateStdAccessibleObject", &CreateStandard);
        const ui_test::ReplacedImport take(program, "LresultFromObject", &TakeObject);
        EXPECT_TRUE(create.isThere() && take.isThere());
        EXPECT_EQ(AnswerGetObject(window, 0, OBJID_CLIENT), 1);
    }
    ~AccessibleOfAnotherSystem() override { given->Release(); }

    LONG State() {
        VARIANT self = {}, state = {};
        self.vt = VT_I4;
        EXPECT_EQ(given->get_accState(self, &state), S_OK);
        EXPECT_EQ(state.vt, VT_I4);
        return state.lVal;
    }

    Standard system;
    Pressed window;
};

}  // namespace

TEST_F(AccessibleOfAnotherSystem, ScriptsAreGivenItsTypeInformation) {
    ITypeInfo* info = nullptr;
    for (const UINT index : {0u, 3u}) {
        EXPECT_EQ(given->GetTypeInfo(index, 0, &info), S_OK);
        EXPECT_EQ(system.typeInfoIndex, index);
        EXPECT_EQ(info, &system.typeInfo);
        info->Release();
    }
}

TEST_F(AccessibleOfAnotherSystem, WhatAScriptCallsIsCalledOfTheControlsObject) {
    DISPPARAMS parameters = {};
    VARIANT result = {};
    EXPECT_EQ(given->Invoke(DISPID_ACC_NAME, IID_NULL, 0, DISPATCH_PROPERTYGET, &parameters, &result, nullptr,
                            nullptr),
              DISP_E_TYPEMISMATCH)
        << "the answer is that of the call";
    EXPECT_EQ(system.typeInfoIndex, 0u);
    EXPECT_EQ(system.typeInfo.instance, static_cast<void*>(given));
    EXPECT_EQ(system.typeInfo.member, DISPID_ACC_NAME);
    EXPECT_EQ(system.typeInfo.flags, DISPATCH_PROPERTYGET);
    EXPECT_EQ(system.typeInfo.parameters, &parameters);
    EXPECT_EQ(system.typeInfo.result, &result);
    EXPECT_EQ(system.typeInfo.held, 0) << "given back after the call";
}

TEST_F(AccessibleOfAnotherSystem, StatesOfTheWindowCountWhereTheyAreANumber) {
    system.state.vt = VT_I4;
    system.state.lVal = STATE_SYSTEM_FOCUSABLE;
    EXPECT_EQ(State(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_PRESSED);
    system.state.vt = VT_EMPTY;
    EXPECT_EQ(State(), STATE_SYSTEM_PRESSED) << "no number";
    system.state.vt = VT_I4;
    system.stateFound = S_FALSE;
    EXPECT_EQ(State(), STATE_SYSTEM_PRESSED) << "no answer";
}
