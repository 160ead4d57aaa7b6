#include <kmfc/ole_drop.h>

#include "com_served.h"

IMPLEMENT_DYNAMIC(COleDropTarget, CCmdTarget)

/// The target as the system sees it.
class COleDropTarget::Served final : public kmfc::ComServed<IDropTarget> {
public:
    explicit Served(COleDropTarget& target) : ComServed(IID_IDropTarget), m_target(&target) {}
    ~Served() override { m_data.Release(); }
    void forget() { m_target = nullptr; }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        hold(data);
        return over(keys, point, effect, &COleDropTarget::OnDragEnter);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL point, DWORD* effect) override {
        return over(keys, point, effect, &COleDropTarget::OnDragOver);
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override {
        if (m_target) m_target->OnDragLeave(window());
        m_data.Release();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        if (!effect) return E_INVALIDARG;
        const DWORD offered = *effect;
        *effect = DROPEFFECT_NONE;
        if (!m_target) return S_OK;
        hold(data);
        const CPoint client = clientPoint(point);
        const DROPEFFECT usual = m_target->OnDragOver(window(), &m_data, keys, client) & offered;
        constexpr auto kNotHandled = static_cast<DROPEFFECT>(-1);
        DROPEFFECT result = m_target->OnDropEx(window(), &m_data, usual, offered, client);
        if (result == kNotHandled) {
            const bool taken = usual != DROPEFFECT_NONE && m_target->OnDrop(window(), &m_data, usual, client);
            if (usual == DROPEFFECT_NONE) m_target->OnDragLeave(window());
            result = taken ? usual : DROPEFFECT_NONE;
        }
        *effect = result;
        m_data.Release();
        return S_OK;
    }

private:
    CWnd* window() const { return CWnd::FromHandle(m_target->m_hWnd); }
    CPoint clientPoint(POINTL point) const {
        CPoint client(point.x, point.y);
        ::ScreenToClient(m_target->m_hWnd, &client);
        return client;
    }
    void hold(IDataObject* data) {
        if (data) data->AddRef();
        m_data.Attach(data);
    }
    template <class Ask>
    HRESULT over(DWORD keys, POINTL point, DWORD* effect, Ask ask) {
        if (!effect) return E_INVALIDARG;
        const DWORD offered = *effect;
        *effect = DROPEFFECT_NONE;
        if (!m_target) return S_OK;
        const CPoint client = clientPoint(point);
        DROPEFFECT wanted = m_target->OnDragScroll(window(), keys, client);
        if (!(wanted & DROPEFFECT_SCROLL)) wanted = (m_target->*ask)(window(), &m_data, keys, client);
        *effect = wanted & (offered | DROPEFFECT_SCROLL);
        return S_OK;
    }

    COleDropTarget* m_target;
    COleDataObject m_data;
};

COleDropTarget::~COleDropTarget() { COleDropTarget::Revoke(); }

BOOL COleDropTarget::Register(CWnd* pWnd) {
    if (m_hWnd || !pWnd || !pWnd->m_hWnd) return FALSE;
    m_served = new Served(*this);
    if (FAILED(::RegisterDragDrop(pWnd->m_hWnd, m_served))) {
        m_served->Release();
        m_served = nullptr;
        return FALSE;
    }
    m_hWnd = pWnd->m_hWnd;
    return TRUE;
}

void COleDropTarget::Revoke() {
    if (!m_hWnd) return;
    ::RevokeDragDrop(m_hWnd);
    m_hWnd = nullptr;
    m_served->forget();
    m_served->Release();
    m_served = nullptr;
}

DROPEFFECT COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) { return DROPEFFECT_NONE; }

DROPEFFECT COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) { return DROPEFFECT_NONE; }

void COleDropTarget::OnDragLeave(CWnd*) {}

DROPEFFECT COleDropTarget::OnDragScroll(CWnd*, DWORD, CPoint) { return DROPEFFECT_NONE; }

BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint) { return FALSE; }

DROPEFFECT COleDropTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) {
    return static_cast<DROPEFFECT>(-1);
}
