// CStandinHost: a complete host object for applications that have none of their own yet, for samples and
// tests.
//
//     CStandinHost host(theApp);          // installs itself; the destructor puts the former host back
//     host.SetCurrentDocument(&document);
//
// Settings go to the registry below ktutProfileFileName(); colours are the indexed palette for a dark
// background; dialogs are this module's own. A single facet can be replaced, as tests do.
#pragma once

#include <memory>
#include <vector>

#include <afxwin.h>
#include <kh_system.h>
#include <od_db.h>

#include "standin_api.h"

struct StandinFacets;

class STANDIN_API CStandinHost : public CKhSystem {
public:
    /// `application` is the host's application object; its main window may come later.
    explicit CStandinHost(CWinApp& application);
    virtual ~CStandinHost();
    CStandinHost(const CStandinHost&) = delete;
    CStandinHost& operator=(const CStandinHost&) = delete;

    CKhServiceManager* serviceManager() override;
    CKhRuntimeHost* runtimeHost() override;
    CKhProductInfo* productInfo() override;
    CKhProfileStore* profileStore() override;
    CKhDocumentServices* documentServices() override;
    CKhColorServices* colorServices() override;
    CKhUiHost* uiHost() override;
    CKhPaletteHost* paletteHost() override;

    /// The document that currentDocument answers, and whose drawing becomes the working database; null for
    /// none. Not owned: take it away before it goes.
    void SetCurrentDocument(KtApDocument* document);
    /// Folders in which findFile looks, first to last, behind the document's own folder.
    void SetSupportDirectories(std::vector<CString> folders);
    /// Value of a path variable such as "PrinterStyleSheetDir", which is the folder "Plot Styles" below the
    /// program's until it is set; folders are separated by semicolons.
    void SetPathVariable(const wchar_t* name, const wchar_t* value);
    /// Makes the host answer `service` to serviceManager()->getService(name); null takes it away. Not owned.
    /// At first there is "CKhPlotStyle", which reads the style sheets in the folders of that path variable.
    void SetService(const wchar_t* name, CKhService* service);

    // Replacing a facet: `facet` (not owned) answers from now on, also null where the interface lets a facet
    // be null.
    void ReplaceUiHost(CKhUiHost* facet);
    void ReplaceColorServices(CKhColorServices* facet);
    /// Puts the host's own facets back.
    void RestoreFacets();

private:
    std::unique_ptr<StandinFacets> m_facets;
    CKhSystem* m_former;
};
