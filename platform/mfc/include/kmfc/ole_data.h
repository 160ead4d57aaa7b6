// COleDataObject and COleDataSource: the two ends of a data transfer by drag and drop.
//
// A source says what it offers, at once (CacheGlobalData, CacheData) or on demand (DelayRenderData and an
// override of OnRenderGlobalData or OnRenderData), and has it dragged:
//
//     COleDataSource source;
//     source.CacheGlobalData(CF_UNICODETEXT, text);
//     source.DoDragDrop(DROPEFFECT_COPY);
//
// The clipboard and data as files are not covered.
#pragma once

#include <kmfc/cmd_target.h>

#include <ole2.h>

#include <vector>

class COleDropSource;

using DROPEFFECT = DWORD;

/// What a source offers, as its receiver sees it.
class KMFC_API COleDataObject {
public:
    COleDataObject() = default;
    ~COleDataObject() { Release(); }
    COleDataObject(const COleDataObject&) = delete;
    COleDataObject& operator=(const COleDataObject&) = delete;

    /// Takes `lpDataObject`, in the place of one held, and releases it in the end if `bAutoRelease`.
    void Attach(LPDATAOBJECT lpDataObject, BOOL bAutoRelease = TRUE);
    /// Gives the object to the caller, who releases it.
    LPDATAOBJECT Detach();
    /// Ends the use of the object.
    void Release();

    /// Starts GetNextFormat from the first format again.
    void BeginEnumFormats();
    /// FALSE when there are no more formats. The caller frees ptd by CoTaskMemFree.
    BOOL GetNextFormat(LPFORMATETC lpFormatEtc);
    /// The data in a format; the caller ends it by ReleaseStgMedium. `lpFormatEtc` says more than the format.
    BOOL GetData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc = nullptr);
    /// The data in a format as memory that is the caller's; null if there is none.
    HGLOBAL GetGlobalData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc = nullptr);
    BOOL IsDataAvailable(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc = nullptr);

    LPDATAOBJECT m_lpDataObject = nullptr;

private:
    IEnumFORMATETC* m_formats = nullptr;
    BOOL m_autoRelease = TRUE;
};

/// What is offered. It must live until DoDragDrop returns; a receiver that keeps the object finds it empty
/// after that.
class KMFC_API COleDataSource : public CCmdTarget {
    DECLARE_DYNAMIC(COleDataSource)
public:
    COleDataSource() = default;
    ~COleDataSource() override;
    COleDataSource(const COleDataSource&) = delete;
    COleDataSource& operator=(const COleDataSource&) = delete;

    /// Takes back all that is offered, and frees it.
    void Empty();
    /// Offers data, which belongs to the source from now on.
    void CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, LPFORMATETC lpFormatEtc = nullptr);
    void CacheData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc = nullptr);
    /// Offers a format whose data OnRenderGlobalData or OnRenderData makes when it is asked for.
    void DelayRenderData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc = nullptr);

    /// Has the user drag the data from now on, or once the mouse has left `lpRectStartDrag` (screen, null for
    /// its first move), and answers the effect: DROPEFFECT_NONE if nothing was dropped.
    DROPEFFECT DoDragDrop(DWORD dwEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK,
                          LPCRECT lpRectStartDrag = nullptr, COleDropSource* pDropSource = nullptr);

protected:
    /// Makes data that was offered on demand. The base asks OnRenderGlobalData where memory will do.
    virtual BOOL OnRenderData(LPFORMATETC lpFormatEtc, LPSTGMEDIUM lpStgMedium);
    /// Makes data as memory: new memory if `*phGlobal` is null, or into that. FALSE if it can't.
    virtual BOOL OnRenderGlobalData(LPFORMATETC lpFormatEtc, HGLOBAL* phGlobal);

private:
    class Served;
    struct Offer {
        FORMATETC format;
        STGMEDIUM medium;  ///< TYMED_NULL for one that is rendered on demand
    };
    const Offer* find(const FORMATETC& format) const;
    void offer(CLIPFORMAT cfFormat, const STGMEDIUM& medium, LPFORMATETC lpFormatEtc, DWORD tymed);
    HRESULT serve(const FORMATETC& format, STGMEDIUM& medium);

    std::vector<Offer> m_offers;
    Served* m_served = nullptr;
};

/// Readies OLE on this thread; FALSE if it can't be. It is ended with the application.
KMFC_API BOOL AfxOleInit();
/// Ends OLE on this thread if AfxOleInit readied it.
KMFC_API void AfxOleTerm(BOOL bJustRevoke = FALSE);
