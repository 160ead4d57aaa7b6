#include <ktui/host/accessible.h>
#include <ktui/host/registered_messages.h>

#include <utility>

namespace {

/// Answers for one control: from what the control says, and otherwise from the system's own object.
class ControlAccessible final : public IAccessible {
public:
    ControlAccessible(HWND window, IAccessible* standard) : m_window(window), m_standard(standard) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        if (id != IID_IUnknown && id != IID_IDispatch && id != __uuidof(IAccessible))
            return m_standard->QueryInterface(id, object);
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(::InterlockedIncrement(&m_count)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = ::InterlockedDecrement(&m_count);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return m_standard->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return m_standard->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return m_standard->GetIDsOfNames(id, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        ITypeInfo* info = nullptr;
        const HRESULT found = m_standard->GetTypeInfo(0, locale, &info);
        if (FAILED(found)) return found;
        const HRESULT done = info->Invoke(static_cast<IAccessible*>(this), member, flags, parameters, result,
                                          exception, wrong);
        info->Release();
        return done;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return m_standard->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        KbUiAccessibleItem self;
        if (!ask(self)) return CO_E_OBJNOTCONNECTED;
        *count = self.children;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        *object = nullptr;
        KbUiAccessibleItem item;
        const HRESULT found = find(child, item);
        return found == S_OK ? S_FALSE : found;  // a part is no object of its own
    }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        return text(child, name, &KbUiAccessibleItem::name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return text(child, value, &KbUiAccessibleItem::value);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return text(child, action, &KbUiAccessibleItem::defaultAction);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
        return text(child, description, &KbUiAccessibleItem::description);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override {
        *help = nullptr;
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, LONG*) override {
        *file = nullptr;
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return m_standard->get_accKeyboardShortcut(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        KbUiAccessibleItem item;
        return number(child, item, role, item.role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        KbUiAccessibleItem item;
        LONG of = 0;
        const HRESULT found = number(child, item, state, of);
        if (found != S_OK) return found;
        state->lVal = (ofWindow() & ~item.statesWithout) | item.states;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override {
        return m_standard->get_accFocus(focus);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override {
        return m_standard->get_accSelection(selection);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return m_standard->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        KbUiAccessibleItem item;
        const HRESULT found = find(child, item);
        if (found != S_OK) return found;
        if (item.child == 0) return m_standard->accLocation(left, top, width, height, child);
        CRect place = item.place;
        ::MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&place), 2);
        *left = place.left;
        *top = place.top;
        *width = place.Width();
        *height = place.Height();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return m_standard->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
        CPoint point(left, top);
        ::ScreenToClient(m_window, &point);
        KbUiAccessibleItem self;
        if (!ask(self)) return CO_E_OBJNOTCONNECTED;
        for (int part = 1; part <= self.children; ++part) {
            KbUiAccessibleItem item;
            item.child = part;
            if (!ask(item) || !item.place.PtInRect(point)) continue;
            child->vt = VT_I4;
            child->lVal = part;
            return S_OK;
        }
        return m_standard->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        KbUiAccessibleItem item;
        const HRESULT found = find(child, item);
        if (found != S_OK) return found;
        return ask(item, KbUiAccessibleRequest::kAct) ? S_OK : DISP_E_MEMBERNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~ControlAccessible() { m_standard->Release(); }

    bool ask(KbUiAccessibleItem& item, KbUiAccessibleRequest what = KbUiAccessibleRequest::kFacts) const {
        return ::SendMessageW(m_window, accessibleMessage, static_cast<WPARAM>(what),
                              reinterpret_cast<LPARAM>(&item)) != 0;
    }
    /// The item that a caller means.
    HRESULT find(const VARIANT& child, KbUiAccessibleItem& item) const {
        if (child.vt != VT_I4) return E_INVALIDARG;
        KbUiAccessibleItem self;
        if (!ask(self)) return CO_E_OBJNOTCONNECTED;
        if (child.lVal < 0 || child.lVal > self.children) return E_INVALIDARG;
        if (child.lVal == 0) {
            item = std::move(self);
            return S_OK;
        }
        item.child = static_cast<int>(child.lVal);
        return ask(item) ? S_OK : CO_E_OBJNOTCONNECTED;
    }
    HRESULT text(const VARIANT& child, BSTR* text, CString KbUiAccessibleItem::*which) const {
        *text = nullptr;
        KbUiAccessibleItem item;
        const HRESULT found = find(child, item);
        if (found != S_OK) return found;
        const CString& said = item.*which;
        if (said.IsEmpty()) return S_FALSE;
        *text = ::SysAllocStringLen(said.GetString(), static_cast<UINT>(said.GetLength()));
        return *text ? S_OK : E_OUTOFMEMORY;
    }
    HRESULT number(const VARIANT& child, KbUiAccessibleItem& item, VARIANT* result, const LONG& which) const {
        result->vt = VT_EMPTY;
        const HRESULT found = find(child, item);
        if (found != S_OK) return found;
        result->vt = VT_I4;
        result->lVal = which;
        return S_OK;
    }
    /// The states that the system knows of the window.
    LONG ofWindow() const {
        VARIANT self = {}, state = {};
        self.vt = VT_I4;
        return m_standard->get_accState(self, &state) == S_OK && state.vt == VT_I4 ? state.lVal : 0;
    }

    LONG m_count = 1;
    HWND m_window;
    IAccessible* m_standard;
};

}  // namespace

LRESULT AnswerGetObject(const CWnd& window, WPARAM wParam, LPARAM lParam) {
    if (static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT)) return 0;
    IAccessible* standard = nullptr;
    if (FAILED(::CreateStdAccessibleObject(window.m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&standard))))
        return 0;
    auto* accessible = new ControlAccessible(window.m_hWnd, standard);
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), wParam, accessible);
    accessible->Release();
    return answer;
}

CString WithoutAccessKey(const CString& caption) {
    CString plain;
    for (int i = 0; i < caption.GetLength(); ++i) {
        // A mark is left out, and of two the first.
        if (caption[i] == L'&' && ++i == caption.GetLength()) break;
        plain += caption[i];
    }
    return plain;
}
