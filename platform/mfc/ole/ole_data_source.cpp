#include <kmfc/ole_drop.h>

#include <shlobj.h>

#include "com_served.h"

IMPLEMENT_DYNAMIC(COleDataSource, CCmdTarget)

/// The source as receivers see it; empty once the source has gone.
class COleDataSource::Served final : public kmfc::ComServed<IDataObject> {
public:
    explicit Served(COleDataSource& source) : ComServed(IID_IDataObject), m_source(&source) {}
    void forget() { m_source = nullptr; }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (!format || !medium) return E_INVALIDARG;
        *medium = {};
        return m_source ? m_source->serve(*format, *medium) : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        return format && m_source && m_source->find(*format) ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* canonical) override {
        canonical->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (direction != DATADIR_GET || !m_source) return E_NOTIMPL;
        std::vector<FORMATETC> all;
        for (const Offer& offer : m_source->m_offers) all.push_back(offer.format);
        return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(all.size()), all.data(), formats);
    }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    COleDataSource* m_source;
};

namespace {

/// Asks a drop source on behalf of the system.
class ServedDropSource final : public kmfc::ComServed<IDropSource> {
public:
    explicit ServedDropSource(COleDropSource& source) : ComServed(IID_IDropSource), m_source(source) {}
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
        return m_source.QueryContinueDrag(escape, keys);
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) override { return m_source.GiveFeedback(effect); }

private:
    COleDropSource& m_source;
};

}  // namespace

COleDataSource::~COleDataSource() {
    if (m_served) {
        m_served->forget();
        m_served->Release();
    }
    Empty();
}

void COleDataSource::Empty() {
    for (Offer& offer : m_offers) ::ReleaseStgMedium(&offer.medium);
    m_offers.clear();
}

void COleDataSource::offer(CLIPFORMAT cfFormat, const STGMEDIUM& medium, LPFORMATETC lpFormatEtc,
                           DWORD tymed) {
    FORMATETC format = {cfFormat, nullptr, DVASPECT_CONTENT, -1, tymed};
    if (lpFormatEtc) format = *lpFormatEtc;
    if (cfFormat != 0) format.cfFormat = cfFormat;
    m_offers.push_back({format, medium});
}

void COleDataSource::CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, LPFORMATETC lpFormatEtc) {
    STGMEDIUM medium = {};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = hGlobal;
    offer(cfFormat, medium, lpFormatEtc, TYMED_HGLOBAL);
}

void COleDataSource::CacheData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc) {
    offer(cfFormat, *lpStgMedium, lpFormatEtc, lpStgMedium->tymed);
}

void COleDataSource::DelayRenderData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    offer(cfFormat, STGMEDIUM{}, lpFormatEtc, TYMED_HGLOBAL);
}

const COleDataSource::Offer* COleDataSource::find(const FORMATETC& format) const {
    for (const Offer& each : m_offers)
        if (each.format.cfFormat == format.cfFormat && each.format.dwAspect == format.dwAspect &&
            (each.format.tymed & format.tymed))
            return &each;
    return nullptr;
}

HRESULT COleDataSource::serve(const FORMATETC& format, STGMEDIUM& medium) {
    const Offer* found = find(format);
    if (!found) return DV_E_FORMATETC;
    FORMATETC wanted = found->format;
    if (found->medium.tymed == TYMED_NULL) return OnRenderData(&wanted, &medium) ? S_OK : DV_E_FORMATETC;
    return ::CopyStgMedium(&found->medium, &medium);
}

BOOL COleDataSource::OnRenderData(LPFORMATETC lpFormatEtc, LPSTGMEDIUM lpStgMedium) {
    if (!(lpFormatEtc->tymed & TYMED_HGLOBAL)) return FALSE;
    HGLOBAL memory = lpStgMedium->tymed == TYMED_HGLOBAL ? lpStgMedium->hGlobal : nullptr;
    if (!OnRenderGlobalData(lpFormatEtc, &memory)) return FALSE;
    lpStgMedium->tymed = TYMED_HGLOBAL;
    lpStgMedium->hGlobal = memory;
    return TRUE;
}

BOOL COleDataSource::OnRenderGlobalData(LPFORMATETC, HGLOBAL*) { return FALSE; }

DROPEFFECT COleDataSource::DoDragDrop(DWORD dwEffects, LPCRECT lpRectStartDrag, COleDropSource* pDropSource) {
    COleDropSource usual;
    COleDropSource& dropSource = pDropSource ? *pDropSource : usual;
    if (lpRectStartDrag)
        dropSource.m_rectStartDrag = *lpRectStartDrag;
    else {
        CPoint cursor;
        ::GetCursorPos(&cursor);
        dropSource.m_rectStartDrag = CRect(cursor, CSize(0, 0));
    }
    if (!dropSource.OnBeginDrag(AfxGetMainWnd())) return DROPEFFECT_NONE;
    if (!m_served) m_served = new Served(*this);
    auto* served = new ServedDropSource(dropSource);
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT result = ::DoDragDrop(m_served, served, dwEffects, &effect);
    served->Release();
    return result == DRAGDROP_S_DROP ? effect : DROPEFFECT_NONE;
}
