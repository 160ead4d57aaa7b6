#include <ktui/host/accessible_control.h>

#include <atomic>

namespace {

bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

HRESULT answerText(const CString& text, BSTR* out) {
    *out = text.IsEmpty() ? nullptr : ::SysAllocString(text);
    return text.IsEmpty() ? S_FALSE : S_OK;
}

/// Stands before the system's object of the window and answers what differs.
class AccessibleControl final : public IAccessible {
public:
    AccessibleControl(HWND window, const AccessibleFacts& facts, IAccessible* standard)
        : m_window(window), m_facts(facts), m_standard(standard) {}

    // IUnknown
    STDMETHODIMP QueryInterface(REFIID id, void** out) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
        *out = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_count; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_count;
        if (left == 0) delete this;
        return left;
    }

    // IDispatch
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return m_standard->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override {
        return m_standard->GetTypeInfo(index, language, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override {
        return m_standard->GetIDsOfNames(id, names, count, language, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID language, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        return m_standard->Invoke(member, id, language, flags, parameters, result, exception, wrong);
    }

    // What differs.
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return isSelf(child) ? answerText(m_facts.name, name) : m_standard->get_accName(child, name);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
        if (!isSelf(child)) return m_standard->get_accDescription(child, text);
        return answerText(m_facts.description, text);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        if (!isSelf(child)) return m_standard->get_accRole(child, role);
        role->vt = VT_I4;
        role->lVal = m_facts.role;
        return S_OK;
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return isSelf(child) ? answerText(L"Press", action) : m_standard->get_accDefaultAction(child, action);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        if (!isSelf(child)) return m_standard->accDoDefaultAction(child);
        if (!::IsWindowEnabled(m_window)) return DISP_E_MEMBERNOTFOUND;
        // Posted: a click may open a dialog, and the asking program waits for this answer.
        return ::PostMessageW(m_window, BM_CLICK, 0, 0) ? S_OK : E_FAIL;
    }

    // What the system answers.
    STDMETHODIMP get_accParent(IDispatch** parent) override { return m_standard->get_accParent(parent); }
    STDMETHODIMP get_accChildCount(LONG* count) override { return m_standard->get_accChildCount(count); }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) override {
        return m_standard->get_accChild(child, out);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return m_standard->get_accValue(child, value);
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        return m_standard->get_accState(child, state);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        return m_standard->get_accHelp(child, help);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return m_standard->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return m_standard->get_accKeyboardShortcut(child, keys);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return m_standard->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return m_standard->get_accSelection(children);
    }
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override { return m_standard->accSelect(flags, child); }
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        return m_standard->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return m_standard->accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override {
        return m_standard->accHitTest(left, top, child);
    }
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
        return m_standard->put_accName(child, name);
    }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return m_standard->put_accValue(child, value);
    }

private:
    ~AccessibleControl() { m_standard->Release(); }

    std::atomic<ULONG> m_count = 1;
    HWND m_window;
    AccessibleFacts m_facts;
    IAccessible* m_standard;  ///< one reference is ours
};

}  // namespace

LRESULT AnswerGetObject(CWnd& control, const AccessibleFacts& facts, WPARAM wParam, LPARAM lParam) {
    const HWND window = control.m_hWnd;
    if (static_cast<LONG>(lParam) != OBJID_CLIENT)
        return ::DefWindowProcW(window, WM_GETOBJECT, wParam, lParam);
    void* standard = nullptr;
    if (FAILED(::CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible, &standard))) return 0;
    auto* object = new AccessibleControl(window, facts, static_cast<IAccessible*>(standard));
    const LRESULT answer = ::LresultFromObject(IID_IAccessible, wParam, object);
    object->Release();
    return answer;
}
