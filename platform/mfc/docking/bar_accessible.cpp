#include "bar_accessible.h"

#include <kmfc/status_bar_ex.h>
#include <kmfc/tool_bar_ex.h>

namespace kmfc::docking {

UINT press_part_message = ::RegisterWindowMessageW(L"kmfc: a part of a bar is to be pressed");

namespace {

/// The part with the keyboard's mark; panes of status bars never have it.
LONG marked_part(const CMFCToolBar& bar) { return bar.GetHighlightedButton() + 1; }
LONG marked_part(const CMFCStatusBar&) { return CHILDID_SELF; }
bool press_part(CMFCToolBar& bar, LONG part) { return bar.press_part(static_cast<int>(part)); }
bool press_part(CMFCStatusBar&, LONG) { return false; }

/// Asks the bar for its parts, and the system's object of the window for all else.
template <class Bar>
class BarAccessible final : public IAccessible {
public:
    BarAccessible(HWND window, IAccessible* standard) : m_window(window), m_standard(standard) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        if (id != IID_IUnknown && id != IID_IDispatch && id != __uuidof(IAccessible))
            return m_standard->QueryInterface(id, object);
        AddRef();
        *object = static_cast<IAccessible*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(::InterlockedIncrement(&m_uses)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = ::InterlockedDecrement(&m_uses);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    // Scripts get what the system's object knows of its interface.
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
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        ITypeInfo* type = nullptr;
        HRESULT done = m_standard->GetTypeInfo(0, locale, &type);
        if (FAILED(done)) return done;
        done =
            type->Invoke(static_cast<IAccessible*>(this), member, flags, arguments, result, exception, wrong);
        type->Release();
        return done;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return m_standard->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        const Bar* const shown = bar();
        if (shown == nullptr) return CO_E_OBJNOTCONNECTED;
        *count = shown->parts();
        return S_OK;
    }
    /// No part is an object of its own.
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        *object = nullptr;
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        return found == S_OK ? S_FALSE : found;
    }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        return text(child, &AccessiblePart::name, name);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return text(child, &AccessiblePart::keys, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return text(child, &AccessiblePart::action, action);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return text(child, &AccessiblePart::value, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR* words) override { return none(words); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override { return none(help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return none(file); }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        return found == S_OK ? number(part.role, role) : empty(role, found);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        if (found != S_OK) return empty(state, found);
        VARIANT window = {};
        if (child.lVal == CHILDID_SELF && m_standard->get_accState(child, &window) == S_OK &&
            window.vt == VT_I4)
            part.states |= window.lVal;
        return number(part.states, state);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override {
        const Bar* const shown = bar();
        if (shown == nullptr) return empty(focus, CO_E_OBJNOTCONNECTED);
        if (::GetFocus() != m_window) return empty(focus, S_FALSE);
        return number(marked_part(*shown), focus);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override {
        return empty(selection, S_FALSE);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return m_standard->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        if (found != S_OK) return found;
        if (child.lVal == CHILDID_SELF) return m_standard->accLocation(left, top, width, height, child);
        ::MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&part.place), 2);
        *left = part.place.left;
        *top = part.place.top;
        *width = part.place.Width();
        *height = part.place.Height();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT from, VARIANT* to) override {
        return m_standard->accNavigate(direction, from, to);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
        const Bar* const shown = bar();
        if (shown == nullptr) return empty(child, CO_E_OBJNOTCONNECTED);
        CPoint point(left, top);
        ::ScreenToClient(m_window, &point);
        for (int i = 1; i <= shown->parts(); ++i) {
            AccessiblePart part;
            shown->describe(i, part);
            if (part.place.PtInRect(point)) return number(i, child);
        }
        return m_standard->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        if (found != S_OK) return found;
        return press_part(*bar(), child.lVal) ? S_OK : DISP_E_MEMBERNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~BarAccessible() { m_standard->Release(); }

    Bar* bar() const { return dynamic_cast<Bar*>(CWnd::FromHandlePermanent(m_window)); }
    HRESULT ask(const VARIANT& child, AccessiblePart& part) const {
        const Bar* const shown = bar();
        if (shown == nullptr) return CO_E_OBJNOTCONNECTED;
        if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > shown->parts()) return E_INVALIDARG;
        shown->describe(static_cast<int>(child.lVal), part);
        return S_OK;
    }
    HRESULT text(const VARIANT& child, CString AccessiblePart::*which, BSTR* said) const {
        *said = nullptr;
        AccessiblePart part;
        const HRESULT found = ask(child, part);
        if (found != S_OK) return found;
        if ((part.*which).IsEmpty()) return S_FALSE;
        *said = ::SysAllocString(part.*which);
        return *said != nullptr ? S_OK : E_OUTOFMEMORY;
    }
    static HRESULT none(BSTR* said) {
        *said = nullptr;
        return S_FALSE;
    }
    static HRESULT number(LONG value, VARIANT* result) {
        result->vt = VT_I4;
        result->lVal = value;
        return S_OK;
    }
    static HRESULT empty(VARIANT* result, HRESULT answer) {
        result->vt = VT_EMPTY;
        return answer;
    }

    LONG m_uses = 1;
    HWND m_window;
    IAccessible* m_standard;
};

template <class Bar>
LRESULT answer_for(Bar& bar, WPARAM wParam, LPARAM lParam) {
    if (static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT)) return 0;
    IAccessible* standard = nullptr;
    if (FAILED(::CreateStdAccessibleObject(bar.m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&standard))))
        return 0;
    auto* const answer = new BarAccessible<Bar>(bar.m_hWnd, standard);
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, answer);
    answer->Release();
    return result;
}

}  // namespace

LRESULT answer_get_object(CMFCToolBar& bar, WPARAM wParam, LPARAM lParam) {
    return answer_for(bar, wParam, lParam);
}
LRESULT answer_get_object(CMFCStatusBar& bar, WPARAM wParam, LPARAM lParam) {
    return answer_for(bar, wParam, lParam);
}

void tell_part_marked(const CMFCToolBar& bar, int part) {
    ::NotifyWinEvent(EVENT_OBJECT_FOCUS, bar.m_hWnd, OBJID_CLIENT, part);
}

CString without_marks(const CString& text) {
    CString plain;
    for (int i = 0; i < text.GetLength(); ++i) {
        // Of two marks one is shown.
        if (text[i] == L'&' && ++i == text.GetLength()) break;
        plain += text[i];
    }
    return plain;
}

wchar_t marked_letter(const CString& text) {
    for (int i = 0; i + 1 < text.GetLength(); ++i) {
        if (text[i] != L'&') continue;
        if (text[++i] != L'&') return text[i];
    }
    return 0;
}

}  // namespace kmfc::docking
